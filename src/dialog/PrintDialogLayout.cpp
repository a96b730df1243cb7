// SPDX-License-Identifier: GPL-2.0-or-later
// Builds the layout, keeps the tab order, and moves the summary when the window's width changes.
#include "dialog/PrintDialogLayout.h"

#include "dialog/DefaultsMenu.h"
#include "dialog/JobRows.h"
#include "dialog/WindowSettings.h"
#include "options/ConflictBar.h"
#include "options/PpdOptionRows.h"
#include "platform/PlainTip.h"
#include "presets/PresetMenu.h"
#include "preview/PagePreview.h"
#include "printers/QueueList.h"
#include "widgets/BreakingLabel.h"
#include "widgets/DocumentList.h"
#include "widgets/MessageBar.h"
#include "widgets/Mnemonics.h"
#include "widgets/PaneArea.h"
#include "widgets/ReasonLabel.h"
#include "widgets/SendingRow.h"
#include "widgets/SummaryView.h"
#include "widgets/WaitPanel.h"
#include "widgets/WhyGreyed.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSpinBox>
#include <QStackedWidget>
#include <algorithm>
#include <initializer_list>

namespace bv {

namespace {

// The preview unfolds by itself where it has so many lines of text for its sheet, so that it never takes the place of
// settings on a small screen.
constexpr int kPreviewLines = 14;

// Widths in average characters.
constexpr int kSideCharacters = 44;       // the side, at least
constexpr int kWidestSideCharacters = 58; // the side, at most
constexpr int kSummaryLines = 5;          // heading and rows of the summary below the settings, at least
constexpr int kSummaryCharacters = 44;    // the summary, when it is beside the pane, at least
constexpr int kWidestSummary = 56;        // and at most
constexpr int kPaneCharacters = 66;       // the pane needs this much before the summary may be beside it

QLabel *heading(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

QVBoxLayout *column(QWidget *owner)
{
    auto *layout = new QVBoxLayout(owner);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

QList<QLabel *> labelsOf(const QFormLayout *form)
{
    QList<QLabel *> labels;
    for (int row = 0; row < form->rowCount(); ++row) {
        const QLayoutItem *item = form->itemAt(row, QFormLayout::LabelRole);
        if (auto *label = item ? qobject_cast<QLabel *>(item->widget()) : nullptr)
            labels << label;
    }
    return labels;
}

} // namespace

PrintDialogLayout::PrintDialogLayout(QDialog *dialog) : QWidget(dialog)
{
    auto *rows = column(this);
    queues = new QueueList(this);
    presets = new PresetMenu(this);
    message = new MessageBar(this);
    m_middle = new QHBoxLayout;
    m_middle->setSpacing(12);
    m_side = makeSide();
    m_middle->addWidget(m_side);
    m_middle->addWidget(makePlace(), 1);
    auto *top = new QHBoxLayout;
    top->addWidget(queues, 1);
    top->addWidget(presets);
    rows->addLayout(top);
    rows->addWidget(message);
    rows->addLayout(m_middle, 1);
    sending = new SendingRow(this);
    rows->addWidget(sending);
    conflicts = new ConflictBar(this);
    connect(conflicts, &ConflictBar::buttonsChanged, this, &PrintDialogLayout::setTabOrders);
    rows->addWidget(conflicts);
    rows->addLayout(makeButtons(dialog));
    setTabOrders();
}

QWidget *PrintDialogLayout::makeSide()
{
    auto *side = new QWidget(this);
    m_settings = new PaneArea(side);
    auto *content = new QWidget;
    documents = new DocumentList(content);
    connect(documents, &DocumentList::documentsChanged, this, &PrintDialogLayout::placePreview);
    job = new JobRows(content);
    m_rows = new QStackedWidget(content);
    m_noRows = new QWidget;
    m_rows->addWidget(m_noRows);
    auto *inner = column(content);
    inner->addWidget(documents, 1);
    inner->addWidget(job);
    inner->addWidget(m_rows);
    // Leaves room for the focus frames of controls at the edge.
    inner->setContentsMargins(2, 2, 4, 2);
    m_settings->setWidget(content);
    content->installEventFilter(this);
    reserveRows();

    m_sideColumn = column(side);
    // The settings take the height they need, summary and preview take the rest.
    m_settings->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_sideColumn->addWidget(m_settings);
    m_sideColumn->addWidget(makeSummary(), 1);
    m_sideColumn->addWidget(makePreview(), 1);
    m_sideColumn->addStretch(0);
    side->setFixedWidth(fontMetrics().averageCharWidth() * kSideCharacters);
    return side;
}

QWidget *PrintDialogLayout::makeSummary()
{
    m_summaryBox = new QWidget(this);
    summary = new SummaryView(m_summaryBox);
    summary->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_summaryBox->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    // On a small screen the settings scroll rather than leave no room for it.
    m_summaryBox->setMinimumHeight(fontMetrics().height() * kSummaryLines);
    auto *label = heading(tr("S&ummary"), m_summaryBox);
    label->setBuddy(summary);
    auto *box = column(m_summaryBox);
    box->addWidget(label);
    box->addWidget(summary, 1);
    return m_summaryBox;
}

QWidget *PrintDialogLayout::makePreview()
{
    preview = new PagePreview(this);
    preview->setFolded(true);
    connect(preview, &PagePreview::foldedByUser, this, [this](bool folded) {
        m_previewFoldedByUser = folded;
        m_previewUnfoldedByUser = !folded;
        placeDocuments();
    });
    return preview;
}

QWidget *PrintDialogLayout::makePlace()
{
    auto *place = new QWidget(this);
    m_paneTitle = heading(QString(), place);
    m_paneTitle->setObjectName(QStringLiteral("paneTitle"));
    m_place = new QStackedWidget(place);
    m_paneNote = new BreakingLabel(place);
    m_paneNote->setObjectName(QStringLiteral("paneNote"));
    m_paneNote->hide();
    wait = new WaitPanel;
    m_place->addWidget(wait);
    why = new WhyGreyed(this, place);
    auto *title = new QHBoxLayout;
    title->addWidget(m_paneTitle, 1);
    title->addWidget(why, 0, Qt::AlignRight); // mirrored with the window
    auto *box = column(place);
    box->addLayout(title);
    box->addWidget(m_paneNote);
    box->addWidget(m_place, 1);
    return place;
}

QBoxLayout *PrintDialogLayout::makeButtons(QDialog *dialog)
{
    restore = new QPushButton(tr("Restore De&faults"), this);
    restore->setObjectName(QStringLiteral("restoreDefaults"));
    setPlainTip(restore, tr("Put all of the printer's settings back to what its driver proposes"));
    restore->setAutoDefault(false);
    defaults = new DefaultsMenu(this);
    cancel = new QPushButton(tr("&Cancel"), this);
    cancel->setObjectName(QStringLiteral("cancel"));
    cancel->setAutoDefault(false);
    print = new QPushButton(tr("&Print"), this);
    print->setObjectName(QStringLiteral("print"));
    print->setDefault(true);
    reason = new ReasonLabel(print, tr("Print the documents with these settings"), this);
    reason->setAlignment(Qt::AlignVCenter | Qt::AlignTrailing);
    connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    auto *row = new QHBoxLayout;
    row->addWidget(restore);
    row->addWidget(defaults);
    row->addWidget(reason, 1);
    row->addWidget(cancel);
    row->addWidget(print);
    return row;
}

void PrintDialogLayout::showQueue(PpdOptionRows *rows, QWidget *pane, const QString &paneName, const QString &sentence)
{
    if (rows && m_rows->indexOf(rows) < 0)
        m_rows->addWidget(rows);
    m_rows->setCurrentWidget(rows ? static_cast<QWidget *>(rows) : m_noRows);
    // Hidden rows must not take up space.
    for (int i = 0; i < m_rows->count(); ++i) {
        const bool shown = i == m_rows->currentIndex();
        m_rows->widget(i)->setSizePolicy(QSizePolicy::Preferred, shown ? QSizePolicy::Preferred : QSizePolicy::Ignored);
    }
    if (pane && m_place->indexOf(pane) < 0)
        m_place->addWidget(pane);
    wait->say(pane ? QString() : sentence);
    m_place->setCurrentWidget(pane ? pane : wait);
    m_paneTitle->setText(paneName); // the button beside it keeps its line, so that nothing moves
    alignLabels(rows);
    widenSide();
    setTabOrders();
}

void PrintDialogLayout::showWait(PpdOptionRows *rows, const QString &sentence)
{
    showQueue(rows, nullptr, QString(), sentence);
    showPaneNote(QString());
    wait->wait(sentence);
}

void PrintDialogLayout::showPaneNote(const QString &note)
{
    m_paneNote->setText(note);
    m_paneNote->setVisible(!note.isEmpty());
}

void PrintDialogLayout::showDropped(bool isDropped)
{
    QWidget *focused = window()->focusWidget();
    if (isDropped) {
        m_focused = focused;
        // Not to a button that would be pressed by what was typed for another one.
        window()->setFocus();
    }
    for (QWidget *part : std::initializer_list<QWidget *>{queues, m_side, m_summaryBox, why})
        part->setEnabled(!isDropped);
    if (!isDropped && m_focused && (!focused || focused == window() || wait->isAncestorOf(focused)))
        m_focused->setFocus();
}

QString PrintDialogLayout::placeText() const
{
    return wait->text();
}

void PrintDialogLayout::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeSummary();
    placePreview();
}

void PrintDialogLayout::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    unfoldPreview();
}

bool PrintDialogLayout::eventFilter(QObject *object, QEvent *event)
{
    // A text may have got a mnemonic behind it.
    if (object == m_settings->widget() && event->type() == QEvent::LayoutRequest) {
        alignLabels(qobject_cast<PpdOptionRows *>(m_rows->currentWidget()));
        widenSide();
    }
    return QWidget::eventFilter(object, event);
}

bool PrintDialogLayout::event(QEvent *event)
{
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest)
        placeSummary();
    return done;
}

void PrintDialogLayout::placeSummary()
{
    const int character = fontMetrics().averageCharWidth();
    const int paneWidth = std::max(m_place->minimumSizeHint().width(), character * kPaneCharacters);
    const int room = width() - m_side->width() - paneWidth - 4 * m_middle->spacing();
    const bool aside = room >= character * kSummaryCharacters;
    if (aside)
        m_summaryBox->setFixedWidth(std::min(room, character * kWidestSummary));
    if (aside == m_summaryAside)
        return;
    m_summaryAside = aside;
    if (aside) {
        m_sideColumn->removeWidget(m_summaryBox);
        m_summaryBox->setMinimumHeight(0);
        m_middle->addWidget(m_summaryBox);
    } else {
        m_middle->removeWidget(m_summaryBox);
        m_summaryBox->setMinimumHeight(fontMetrics().height() * kSummaryLines);
        m_summaryBox->setMinimumWidth(0);
        m_summaryBox->setMaximumWidth(QWIDGETSIZE_MAX);
        m_sideColumn->insertWidget(1, m_summaryBox, 1);
    }
    setTabOrders();
}

void PrintDialogLayout::unfoldPreview()
{
    if (m_previewPlaced)
        return;
    m_previewFoldedByUser = previewWasFolded();
    m_previewPlaced = true;
    placePreview();
}

int PrintDialogLayout::previewRoom() const
{
    const int list = std::min(documents->listHeight(), documents->list()->maximumHeight());
    const int settings = m_settings->sizeHint().height() - list + documents->leastListHeight();
    const int others = settings + (m_summaryAside ? 0 : m_summaryBox->minimumSizeHint().height());
    return m_side->height() - others - 2 * m_sideColumn->spacing();
}

int PrintDialogLayout::previewNeed() const
{
    return preview->heightForSheet(fontMetrics().height() * kPreviewLines);
}

// Where neither summary nor preview needs the height, the list of documents takes it. Many documents scroll rather than
// take the preview's room.
void PrintDialogLayout::placeDocuments()
{
    const bool hasPreview = m_previewPlaced && !preview->isFolded();
    documents->limitList(hasPreview ? documents->leastListHeight() + std::max(0, previewRoom() - previewNeed())
                                    : QWIDGETSIZE_MAX);
    m_sideColumn->setStretchFactor(m_settings, m_previewPlaced && preview->isFolded() && m_summaryAside ? 1 : 0);
}

void PrintDialogLayout::placePreview()
{
    if (m_previewPlaced && !m_previewFoldedByUser && !m_previewUnfoldedByUser)
        preview->setFolded(previewRoom() < previewNeed());
    placeDocuments();
}

// Makes the side wider for longer texts (another language, another PPD), but leaves the pane the room it needs.
void PrintDialogLayout::widenSide()
{
    const int character = fontMetrics().averageCharWidth();
    const int content =
        m_settings->widget()->minimumSizeHint().width() + m_settings->verticalScrollBar()->sizeHint().width();
    m_side->setFixedWidth(std::clamp(content, character * kSideCharacters, character * kWidestSideCharacters));
}

// The last control inside `owner` in the tab order, or `otherwise` if it has none.
QWidget *PrintDialogLayout::lastControl(const QWidget *owner, QWidget *otherwise) const
{
    QWidget *last = otherwise;
    for (QWidget *widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain()) {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && owner->isAncestorOf(widget))
            last = widget;
    }
    return last;
}

// New widgets are added at the end of the tab chain. Everything that belongs behind them is appended again, so that the
// order inside the pane stays unchanged.
void PrintDialogLayout::setTabOrders()
{
    // Rows, preview, pane: from top to bottom, then to the next column.
    QWidget *before = lastControl(m_rows->currentWidget(), lastControl(job, queues->popUp()));
    for (QWidget *widget : preview->controls()) {
        setTabOrder(before, widget);
        before = widget;
    }
    QList<QWidget *> behind = {wait->skipButton(), summary, sending->stopButton()};
    behind << conflicts->buttons() << restore << defaults << cancel << print;
    before = queues->popUp();
    for (QWidget *widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain()) {
        const bool takesTabs = (widget->focusPolicy() & Qt::TabFocus) != 0;
        const bool moved = std::any_of(behind.begin(), behind.end(), [widget](const QWidget *one) {
            return one == widget || one->isAncestorOf(widget);
        });
        if (takesTabs && !moved && isAncestorOf(widget))
            before = widget;
    }
    for (QWidget *widget : behind) {
        setTabOrder(before, widget);
        before = widget;
    }
}

void PrintDialogLayout::reserveRows()
{
    QWidget usual;
    auto *form = new QFormLayout(&usual);
    form->setContentsMargins(0, 0, 0, 0);
    for (const QString &label : PpdOptionRows::allLabels()) {
        auto *menu = new QComboBox;
        menu->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        form->addRow(label, menu);
    }
    usual.ensurePolished();
    m_rows->setMinimumHeight(usual.sizeHint().height());
}

// Aligns the fields of the two forms at the side.
void PrintDialogLayout::alignLabels(PpdOptionRows *rows)
{
    QList<QLabel *> labels = labelsOf(job->form());
    if (rows)
        labels += labelsOf(rows->form());
    int widest = 0;
    QLabel measure;
    for (const QString &text : PpdOptionRows::allLabels()) {
        measure.setText(withoutMnemonic(text));
        widest = std::max(widest, measure.sizeHint().width());
    }
    for (const QLabel *label : labels)
        widest = std::max(widest, label->sizeHint().width());
    for (QLabel *label : labels)
        label->setMinimumWidth(widest);
}

} // namespace bv
