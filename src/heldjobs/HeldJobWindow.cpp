// SPDX-License-Identifier: GPL-2.0-or-later
// Puts the job in the place of the documents, and its button beside Print.
#include "heldjobs/HeldJobWindow.h"

#include "dialog/JobRows.h"
#include "dialog/PrintDialog.h"
#include "dialog/PrintDialogLayout.h"
#include "dialog/PrintDialogRunner.h"
#include "heldjobs/HeldJobBatch.h"
#include "heldjobs/HeldJobCopies.h"
#include "heldjobs/HeldJobSink.h"
#include "jobs/PdfPages.h"
#include "platform/PlainTip.h"
#include "preview/PagePreview.h"
#include "queues/Complaint.h"
#include "widgets/DocumentList.h"
#include "widgets/MessageBar.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

namespace bv {

namespace {

// The one queue of the job. Its documents are there already.
class OneQueue final : public QueueSource
{
public:
    explicit OneQueue(QString queue) : m_queue(std::move(queue)) {}

    Result<std::vector<PrintQueue>> queues(CallControl &control) const override
    {
        using Queues = Result<std::vector<PrintQueue>>;
        Result<PrintQueue> queue = PrintServer::queue(m_queue, control);
        if (!queue)
            return Queues::failure(queue.error());
        // Whether it takes further jobs does not matter to this one.
        queue.value().acceptsJobs = true;
        return std::vector<PrintQueue>{std::move(queue.value())};
    }
    Result<PpdText> ppd(const QString &queue, CallControl &control) const override
    {
        return PrintServer::ppd(queue, control);
    }

private:
    QString m_queue;
};

// The layout inside `outer` that holds the widget itself.
QBoxLayout *layoutOf(QLayout *outer, QWidget *widget)
{
    if (auto *box = qobject_cast<QBoxLayout *>(outer); box && box->indexOf(widget) >= 0)
        return box;
    for (int i = 0; outer && i < outer->count(); ++i)
        if (QBoxLayout *found = layoutOf(outer->itemAt(i)->layout(), widget))
            return found;
    return nullptr;
}

QString describe(const HeldJob &job)
{
    const QLocale locale;
    QString text = HeldJobWindow::tr("Job %1: %2").arg(job.id).arg(job.title);
    if (job.documents > 1)
        text += u'\n' + HeldJobWindow::tr("%1 documents").arg(locale.toString(job.documents));
    if (job.sent.isValid())
        text += u'\n' + HeldJobWindow::tr("Sent %1. It is held until you print or cancel it.")
                            .arg(locale.toString(job.sent, QLocale::ShortFormat));
    return text;
}

} // namespace

HeldJobWindow::HeldJobWindow(PrintDialog &dialog, HeldJob job)
    : QObject(&dialog), m_dialog(dialog), m_job(std::move(job)), m_note(new QLabel), m_documents(new QComboBox),
      m_cancelJob(new QPushButton(tr("Ca&ncel Job")))
{
    dialog.setAcceptDrops(false);
    dialog.setWindowTitle(tr("Print – %1").arg(m_job.title));
    placeJob();
    placeButtons();
    dialog.parts().job->setOptions(m_job.attributes.options);
    m_fetching.start(
        [job = m_job, folder = m_folder](CallControl &control) { return copyDocuments(job, folder, control); },
        Result<QStringList>::failure(noAnswerSentence()),
        [this](const Result<QStringList> &copies) { takeCopies(copies); });
}

void HeldJobWindow::placeJob()
{
    const PrintDialogLayout &parts = m_dialog.parts();
    m_note->setObjectName(QStringLiteral("heldJob"));
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_note->setText(describe(m_job));
    m_documents->setObjectName(QStringLiteral("heldDocuments"));
    m_documents->setAccessibleName(tr("Document in the preview"));
    m_documents->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_documents->setMinimumContentsLength(12);
    m_documents->hide();
    connect(m_documents, &QComboBox::currentIndexChanged, parts.preview, &PagePreview::showDocument);
    QWidget *list = parts.documents;
    list->hide();
    QBoxLayout *column = layoutOf(list->parentWidget()->layout(), list);
    column->insertWidget(column->indexOf(list), m_note);
    column->insertWidget(column->indexOf(list), m_documents);
}

void HeldJobWindow::placeButtons()
{
    const PrintDialogLayout &parts = m_dialog.parts();
    m_cancelJob->setObjectName(QStringLiteral("cancelHeldJob"));
    m_cancelJob->setAutoDefault(false);
    setPlainTip(m_cancelJob, tr("Remove the job from the printer without printing it"));
    connect(m_cancelJob, &QPushButton::clicked, this, &HeldJobWindow::cancelJob);
    QPushButton *later = parts.cancel;
    later->setText(tr("&Decide Later"));
    setPlainTip(later, tr("Close this window. The job stays held until you print or cancel it."));
    QBoxLayout *row = layoutOf(parts.layout(), later);
    row->insertWidget(row->indexOf(later), m_cancelJob);
    QWidget::setTabOrder(m_cancelJob, later);
}

void HeldJobWindow::takeCopies(const Result<QStringList> &copies)
{
    if (!copies) {
        m_note->setText(describe(m_job) + u'\n' + copies.error());
        return;
    }
    // The dialog's own list is hidden; the preview and the check of page ranges follow it.
    m_dialog.parts().documents->addDocuments(copies.value());
    for (const QString &path : copies.value())
        m_documents->addItem(QFileInfo(path).fileName());
    m_documents->setVisible(copies.value().size() > 1);
}

void HeldJobWindow::cancelJob()
{
    m_cancelJob->setEnabled(false);
    m_canceling.start(
        [name = JobName{m_job.id, m_job.queue}](CallControl &control) { return cancelHeldJob(name, control); },
        tr("The print server did not confirm that job %1 is canceled. Look at the printer's jobs.").arg(m_job.id),
        [this](const QString &problem) {
            if (problem.isEmpty()) {
                m_dialog.reject();
                return;
            }
            m_cancelJob->setEnabled(true);
            m_dialog.parts().message->say(MessageBar::Kind::Problem, problem);
        });
}

int runHeldJobDialog(const SessionRequest &request, const QString &job, const QString &screenshot, PanelLoader &loader)
{
    const Result<HeldJob> found = heldJobOf(request, job);
    if (!found) {
        complain(found.error());
        return 2;
    }
    PrintDialogStart start;
    start.queue = found.value().queue;
    start.pageCount = pdfPages();
    start.jobOptions = found.value().attributes.options;
    start.withUserDefaults = true;
    return showPrintDialog(std::make_shared<OneQueue>(start.queue), std::make_shared<HeldJobSink>(found.value()),
                           loader, start, screenshot,
                           [&](PrintDialog &dialog) { new HeldJobWindow(dialog, found.value()); });
}

} // namespace bv
