// SPDX-License-Identifier: GPL-2.0-or-later
// Which page is to be shown, where it comes from (cache or renderer), and the controls around it.
#include "preview/PagePreview.h"

#include "platform/PlainTip.h"
#include "preview/DocumentNote.h"
#include "preview/SheetView.h"

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>
#include <algorithm>

namespace bv {

namespace {

constexpr int kRestMilliseconds = 120; // after the last change of the size
constexpr int kCacheKilobytes = 48 << 10;

} // namespace

PagePreview::PagePreview(QWidget *parent) : QWidget(parent), m_cache(kCacheKilobytes)
{
    setObjectName(QStringLiteral("preview"));
    build();
    m_rest.setSingleShot(true);
    m_rest.setInterval(kRestMilliseconds);
    connect(&m_rest, &QTimer::timeout, this, &PagePreview::refresh);
    connect(m_sheet, &SheetView::resized, this, [this] { m_rest.start(); });
    connect(m_sheet, &SheetView::turned, this, &PagePreview::turn);
    connect(m_sheet, &SheetView::wentToFirst, this, [this] { goToPage(1); });
    connect(m_sheet, &SheetView::wentToLast, this, [this] { goToDocument(m_document, true); });
    connect(m_back, &QToolButton::clicked, this, [this] { turn(-1); });
    connect(m_forward, &QToolButton::clicked, this, [this] { turn(1); });
    connect(m_field, &QSpinBox::valueChanged, this, &PagePreview::goToPage);
    connect(m_toggle, &QToolButton::clicked, this, [this] {
        setFolded(!m_folded);
        emit foldedByUser(m_folded);
    });
    updateControls();
}

PagePreview::~PagePreview() = default;

void PagePreview::build()
{
    m_toggle = new QToolButton(this);
    m_toggle->setObjectName(QStringLiteral("previewToggle"));
    m_toggle->setText(tr("Preview (&1)")); // the other controls of the window have all of its letters
    m_toggle->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_toggle->setAutoRaise(true);
    m_toggle->setFocusPolicy(Qt::StrongFocus);
    QFont bold = m_toggle->font();
    bold.setBold(true);
    m_toggle->setFont(bold);

    m_body = new QWidget(this);
    m_name = new QLabel(m_body);
    m_name->setObjectName(QStringLiteral("previewName"));
    m_name->setTextFormat(Qt::PlainText);
    m_name->setAlignment(Qt::AlignCenter);
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_name->installEventFilter(this);
    m_sheet = new SheetView(m_body);
    m_sheet->setAccessibleDescription(
        tr("Page Up and Page Down turn the pages, Home and End go to the first and the last one."));
    m_back = new QToolButton(m_body);
    m_back->setObjectName(QStringLiteral("previewBack"));
    m_back->setAccessibleName(tr("Previous page"));
    setPlainTip(m_back, tr("Previous page"));
    m_forward = new QToolButton(m_body);
    m_forward->setObjectName(QStringLiteral("previewForward"));
    m_forward->setAccessibleName(tr("Next page"));
    setPlainTip(m_forward, tr("Next page"));
    for (QToolButton *button : {m_back, m_forward}) {
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setAutoRepeat(true);
    }
    m_field = new QSpinBox(m_body);
    m_field->setObjectName(QStringLiteral("previewPage"));
    m_field->setAccessibleName(tr("Page in the preview"));
    m_field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_field->setGroupSeparatorShown(true); // as in the number beside it
    m_field->setAlignment(Qt::AlignCenter);
    m_field->setKeyboardTracking(false);
    m_field->setFocusPolicy(Qt::StrongFocus);
    m_field->installEventFilter(this);
    auto *label = new QLabel(tr("Pag&e"), m_body);
    label->setBuddy(m_field);
    m_count = new QLabel(m_body);
    m_count->setObjectName(QStringLiteral("previewCount"));

    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_back);
    row->addStretch(1);
    row->addWidget(label);
    row->addWidget(m_field);
    row->addWidget(m_count);
    row->addStretch(1);
    row->addWidget(m_forward);
    auto *body = new QVBoxLayout(m_body);
    body->setContentsMargins(0, 0, 0, 0);
    body->addWidget(m_name);
    body->addWidget(m_sheet, 1);
    body->addLayout(row);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(2);
    rows->addWidget(m_toggle);
    rows->addWidget(m_body, 1);
    rows->addStretch(0);
    const QList<QWidget *> chain = controls();
    for (qsizetype i = 1; i < chain.size(); ++i)
        setTabOrder(chain[i - 1], chain[i]);
}

QList<QWidget *> PagePreview::controls() const
{
    return {m_toggle, m_sheet, m_back, m_field, m_forward};
}

void PagePreview::setProgram(const std::string &program, PageRenderer::Limits limits)
{
    m_program = program;
    m_limits = limits;
}

void PagePreview::start()
{
    m_started = true;
    refresh();
}

void PagePreview::setDocuments(const QStringList &documents)
{
    const QString shown = current() ? current()->path : QString();
    std::vector<Document> known = std::move(m_documents);
    m_documents.clear();
    for (const QString &path : documents) {
        const auto found =
            std::find_if(known.begin(), known.end(), [&path](const Document &one) { return one.path == path; });
        m_documents.push_back(found == known.end() ? Document{path} : *found);
    }
    const auto at = static_cast<int>(documents.indexOf(shown));
    if (at >= 0) {
        m_document = at;
        refresh();
    } else {
        goToDocument(std::clamp(m_document, 0, std::max(0, static_cast<int>(documents.size()) - 1)), false);
    }
}

void PagePreview::showDocument(int index)
{
    if (index != m_document && index >= 0 && index < static_cast<int>(m_documents.size()))
        goToDocument(index, false);
}

void PagePreview::setSheet(const Sheet &sheet)
{
    if (sheet == m_paper)
        return;
    m_paper = sheet;
    // The pages of some documents depend on the paper.
    for (Document &document : m_documents) {
        if (document.content == PageContent::Text)
            document.pages = 0;
    }
    closeRenderer();
    m_cache.clear();
    refresh();
}

void PagePreview::setGray(bool gray)
{
    if (gray == m_gray)
        return;
    m_gray = gray;
    refresh();
}

void PagePreview::setSpans(const PageSpans &spans)
{
    if (spans == m_spans)
        return;
    m_spans = spans;
    refresh();
}

void PagePreview::setFolded(bool folded)
{
    if (folded == m_folded)
        return;
    m_folded = folded;
    m_body->setVisible(!folded);
    setSizePolicy(QSizePolicy::Preferred, folded ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    if (folded) {
        closeRenderer();
        m_cache.clear();
    }
    refresh();
}

int PagePreview::heightForSheet(int sheet) const
{
    const int around = m_body->layout()->minimumSize().height() - m_sheet->minimumSizeHint().height();
    return m_toggle->sizeHint().height() + layout()->spacing() + around + sheet;
}

PagePreview::Document *PagePreview::current()
{
    return m_documents.empty() ? nullptr : &m_documents[static_cast<size_t>(m_document)];
}

int PagePreview::page() const
{
    if (m_documents.empty())
        return 0;
    const int pages = m_documents[static_cast<size_t>(m_document)].pages;
    return m_last ? selectedUpTo(m_spans, pages, pages).value_or(0) : selectedNear(m_spans, pages, m_page).value_or(0);
}

PageRenderer &PagePreview::renderer()
{
    if (m_renderer && m_renderer->document() == current()->path)
        return *m_renderer;
    closeRenderer();
    m_renderer = std::make_unique<PageRenderer>(current()->path, m_paper, m_program, m_limits);
    connect(m_renderer.get(), &PageRenderer::opened, this, &PagePreview::opened);
    connect(m_renderer.get(), &PageRenderer::drawn, this, &PagePreview::take);
    connect(m_renderer.get(), &PageRenderer::idle, this, &PagePreview::drawNeighbours);
    connect(m_renderer.get(), &PageRenderer::failed, this, [this](NoPage why) {
        current()->failure = why;
        refresh();
    });
    connect(m_renderer.get(), &PageRenderer::notDrawn, this, [this](const PageWish &wish, NoPage why) {
        if (wish.page == page())
            showNote(why);
    });
    return *m_renderer;
}

// The renderer may be the sender of the signal that is handled right now.
void PagePreview::closeRenderer()
{
    if (!m_renderer)
        return;
    m_renderer->disconnect(this);
    m_renderer->stop();
    m_renderer->setParent(this);
    m_renderer.release()->deleteLater();
}

PageWish PagePreview::wish(int page) const
{
    return {page, m_sheet->room(), m_gray};
}

QString PagePreview::cacheKey(const PageWish &wish) const
{
    return QStringLiteral("%1 %2 %3 %4 %5")
        .arg(wish.page)
        .arg(wish.room.width())
        .arg(wish.room.height())
        .arg(int(wish.gray))
        .arg(m_documents[static_cast<size_t>(m_document)].path);
}

void PagePreview::turn(int pages)
{
    const Document *document = current();
    if (!document)
        return;
    const int step = pages > 0 ? 1 : -1;
    for (int left = std::abs(pages); left > 0; --left) {
        const std::optional<int> next = step > 0 ? selectedFrom(m_spans, document->pages, page() + 1)
                                                 : selectedUpTo(m_spans, document->pages, page() - 1);
        if (next && page() > 0) {
            m_page = *next;
            m_last = false;
            continue;
        }
        const int other = m_document + step;
        if (other >= 0 && other < static_cast<int>(m_documents.size())) {
            goToDocument(other, step < 0);
            return;
        }
        break;
    }
    refresh();
}

void PagePreview::goToPage(int page)
{
    m_page = page;
    m_last = false;
    refresh();
}

void PagePreview::goToDocument(int index, bool last)
{
    m_document = index;
    m_page = 1;
    m_last = last;
    refresh();
}

void PagePreview::refresh()
{
    m_rest.stop();
    if (m_started && !m_folded) {
        const Document *document = current();
        if (!document) {
            closeRenderer();
            m_sheet->showNote({}, tr("Add a document to see its pages."));
            emit shown();
        } else if (document->failure != NoPage::None) {
            showNote(document->failure);
            return;
        } else if (document->pages == 0) {
            m_sheet->showWaiting();
            renderer().open();
        } else if (page() == 0) {
            m_sheet->showNote({}, tr("None of the chosen pages is in this document."));
            emit shown();
        } else if (const PageWish wanted = wish(page()); !wanted.room.isEmpty()) {
            if (const DrawnPage *known = m_cache.object(cacheKey(wanted))) {
                m_sheet->showPage(*known);
                emit shown();
                drawNeighbours();
            } else {
                m_sheet->showWaiting();
                renderer().draw(wanted);
            }
        }
    }
    updateControls();
}

void PagePreview::showNote(NoPage why)
{
    const DocumentNote note = documentNote(current()->path, why);
    m_sheet->showNote(note.heading, note.text, note.icon);
    updateControls();
    emit shown();
}

void PagePreview::opened()
{
    Document *document = current();
    document->pages = m_renderer->pageCount();
    document->content = m_renderer->content();
    refresh();
}

void PagePreview::take(const PageWish &drawn, const DrawnPage &page)
{
    const auto kilobytes = static_cast<int>(page.picture.sizeInBytes() >> 10);
    m_cache.insert(cacheKey(drawn), new DrawnPage(page), kilobytes + 1);
    if (drawn.page != this->page() || drawn.gray != m_gray)
        return;
    m_sheet->showPage(page);
    updateControls();
    emit shown();
}

// The next and the previous page of the document, while there is nothing else to do.
void PagePreview::drawNeighbours()
{
    const Document *document = current();
    if (m_folded || !document || page() == 0 || renderer().isBusy())
        return;
    const QString here = cacheKey(wish(page()));
    if (!m_cache.contains(here))
        return;
    if (here != m_aheadOf)
        m_ahead.clear();
    m_aheadOf = here;
    for (const std::optional<int> page : {selectedFrom(m_spans, document->pages, this->page() + 1),
                                          selectedUpTo(m_spans, document->pages, this->page() - 1)}) {
        // Each is tried once: a page may be broken, or too large for the cache.
        if (!page || m_cache.contains(cacheKey(wish(*page))) || m_ahead.contains(*page))
            continue;
        m_ahead.insert(*page);
        renderer().drawAhead(wish(*page));
        return;
    }
}

void PagePreview::updateControls()
{
    const Document *document = current();
    const int pages = document ? document->pages : 0;
    const int page = this->page();
    const bool known = page > 0;
    const auto last = static_cast<int>(m_documents.size()) - 1;
    m_back->setEnabled(m_document > 0 || (known && selectedUpTo(m_spans, pages, page - 1)));
    m_forward->setEnabled(m_document < last || (known && selectedFrom(m_spans, pages, page + 1)));
    m_field->setEnabled(known);
    // Why something is gray.
    const auto explain = [](QWidget *control, const QString &reason) {
        control->setAccessibleDescription(control->isEnabled() ? QString() : reason);
    };
    explain(m_back, tr("This is the first page."));
    explain(m_forward, tr("This is the last page."));
    explain(m_field, tr("There are no pages to choose from."));
    const QSignalBlocker quiet(m_field);
    m_field->setRange(known ? 1 : 0, std::max(pages, 1));
    m_field->setSpecialValueText(known ? QString() : QStringLiteral("–"));
    m_field->setValue(page);
    m_count->setText(known ? tr("of %1", "pages of a document").arg(QLocale().toString(pages)) : QString());
    m_toggle->setArrowType(!m_folded ? Qt::DownArrow : isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
    const QString action = m_folded ? tr("Show the pages that will be printed") : tr("Fold the preview away");
    setPlainTip(m_toggle, action);
    m_toggle->setAccessibleDescription(action);
    m_back->setArrowType(isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
    m_forward->setArrowType(isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
    m_name->setVisible(last > 0);
    if (document && last > 0) {
        const QString place =
            tr("%1 of %2", "document").arg(QLocale().toString(m_document + 1), QLocale().toString(last + 1));
        const int room = m_name->width() - fontMetrics().horizontalAdvance(place + QStringLiteral("  "));
        m_name->setText(fontMetrics().elidedText(QFileInfo(document->path).fileName(), Qt::ElideMiddle, room) +
                        QStringLiteral("  ") + place);
    }
    m_sheet->setAccessibleName(sentence());
}

QString PagePreview::sentence() const
{
    if (m_documents.empty())
        return tr("Preview");
    const Document &document = m_documents[static_cast<size_t>(m_document)];
    const QString name = QFileInfo(document.path).fileName();
    const QString note = m_sheet->note();
    if (!note.isEmpty() || page() == 0)
        return note.isEmpty() ? tr("Preview of %1").arg(name) : tr("Preview of %1: %2").arg(name, note);
    return tr("Preview, page %1 of %2 of %3").arg(QLocale().toString(page()), QLocale().toString(document.pages), name);
}

void PagePreview::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void PagePreview::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        updateControls();
}

bool PagePreview::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_name && event->type() == QEvent::Resize)
        updateControls();
    // The wheel changes no number that has no focus.
    if (object == m_field && event->type() == QEvent::Wheel && !m_field->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(object, event);
}

} // namespace bv
