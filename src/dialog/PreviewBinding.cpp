// SPDX-License-Identifier: GPL-2.0-or-later
// Asks the parts of the window after each change, and tells the preview.
#include "dialog/PreviewBinding.h"

#include "dialog/JobRows.h"
#include "dialog/PrintDialogLayout.h"
#include "dialog/QueueRoom.h"
#include "dialog/WindowSettings.h"
#include "preview/PagePreview.h"
#include "widgets/DocumentList.h"

#include <QListWidget>
#include <QTimer>

namespace bv {

namespace {

// While a printer is silent, the pages are shown before its pane is.
constexpr int kLatestStart = 800; // milliseconds

} // namespace

Sheet chosenSheet(const JobOptions &options, ppd_file_t *ppd)
{
    const auto found = options.find(QStringLiteral("PageSize"));
    const ppd_option_t *option = ppd ? ppdFindOption(ppd, "PageSize") : nullptr;
    const QByteArray name = found != options.end() ? found->second.toUtf8()
                            : option               ? QByteArray(option->defchoice)
                                                   : QByteArray();
    const ppd_size_t *size = ppd && !name.isEmpty() ? ppdPageSize(ppd, name.constData()) : nullptr;
    if (!size || size->width <= 0 || size->length <= 0)
        return {};
    // The PPD measures from the lower left corner.
    return {{size->width, size->length},
            {size->left, size->length - size->top, size->width - size->right, size->bottom}};
}

bool isGray(const JobOptions &options)
{
    const auto mode = options.find(QStringLiteral("print-color-mode"));
    return mode != options.end() && mode->second == u"monochrome";
}

PreviewBinding::PreviewBinding(PrintDialogLayout &parts, QObject *parent) : QObject(parent), m_parts(parts)
{
    connect(parts.documents, &DocumentList::documentsChanged, this, &PreviewBinding::followDocuments);
    connect(parts.documents->list(), &QListWidget::currentRowChanged, parts.preview, &PagePreview::showDocument);
    connect(parts.job, &JobRows::changed, this, &PreviewBinding::followPages);
    connect(parts.preview, &PagePreview::foldedByUser, this, &rememberPreviewFolded);
    QTimer::singleShot(kLatestStart, this, &PreviewBinding::start);
}

void PreviewBinding::start()
{
    m_parts.preview->start();
}

void PreviewBinding::follow(QueueRoom *room)
{
    if (!room || room->state() != QueueRoom::State::Ready)
        return;
    const JobOptions options = room->options();
    m_parts.preview->setSheet(chosenSheet(options, room->ppd()));
    m_parts.preview->setGray(isGray(options));
}

void PreviewBinding::followDocuments()
{
    m_parts.preview->setDocuments(m_parts.documents->documents());
}

void PreviewBinding::followPages()
{
    // A range that is still being typed changes nothing.
    if (!m_parts.job->problem().isEmpty())
        return;
    PageSpans spans;
    for (const PageRun &run : m_parts.job->pages())
        spans.push_back({run.first, run.last});
    m_parts.preview->setSpans(spans);
}

} // namespace bv
