// SPDX-License-Identifier: GPL-2.0-or-later
// The list of documents, its two buttons, and the rules for adding files.
#include "widgets/DocumentList.h"

#include "platform/PlainTip.h"
#include "widgets/FileProbe.h"
#include "widgets/Mnemonics.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QUrl>
#include <algorithm>

namespace bv {

namespace {

constexpr int kLeastRows = 3;
constexpr int kMostRows = 10;

int heightOf(const QListWidget &list, int rows)
{
    return rows * std::max(list.sizeHintForRow(0), list.fontMetrics().height()) + list.fontMetrics().height();
}

// A list that shows a hint while it is empty.
class HintedList : public QListWidget
{
public:
    using QListWidget::QListWidget;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QListWidget::paintEvent(event);
        if (count() > 0)
            return;
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect().adjusted(6, 4, -6, -4), Qt::AlignCenter | Qt::TextWordWrap,
                         DocumentList::tr("Drop files here, or choose Add."));
    }

    // The default size hint is far too tall for the few files of a job.
    QSize sizeHint() const override
    {
        return {fontMetrics().averageCharWidth() * 30, heightOf(*this, std::clamp(count(), kLeastRows, kMostRows))};
    }
    QSize minimumSizeHint() const override
    {
        return {fontMetrics().averageCharWidth() * 16, fontMetrics().height() * 3};
    }
};

constexpr int kPathRole = Qt::UserRole;
constexpr int kSizeRole = Qt::UserRole + 1; // in bytes

// Why a file cannot be printed. Empty when it can, or when its disk does not answer: it is asked again before printing.
QString whyNot(const QFileInfo &file, const FileFacts &facts)
{
    if (!facts.isKnown)
        return {};
    if (!facts.exists)
        return DocumentList::tr("“%1” was not found.").arg(file.filePath());
    if (facts.isFolder)
        return DocumentList::tr("“%1” is a folder. Add the files in it.").arg(file.fileName());
    if (!facts.isReadable)
        return DocumentList::tr("“%1” cannot be read. Ask its owner for leave to read it.").arg(file.fileName());
    return {};
}

} // namespace

DocumentList::DocumentList(QWidget *parent)
    : QWidget(parent), m_label(new QLabel(this)), m_list(new HintedList(this)),
      m_add(new QPushButton(tr("&Add…"), this)), m_remove(new QPushButton(tr("Remo&ve"), this))
{
    m_label->setBuddy(m_list);
    m_label->setTextFormat(Qt::PlainText);
    m_list->setObjectName(QStringLiteral("documentList"));
    m_list->setAccessibleName(tr("Documents"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setDragDropMode(QAbstractItemView::InternalMove);
    m_list->setAccessibleDescription(tr("Alt+Up and Alt+Down move the selected documents, Delete takes them out"));
    m_add->setObjectName(QStringLiteral("documentAdd"));
    setPlainTip(m_add, tr("Choose files to print (Ctrl+O)"));
    m_add->setAutoDefault(false);
    m_remove->setObjectName(QStringLiteral("documentRemove"));
    m_remove->setAutoDefault(false);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_label, 0, 0);
    grid->addWidget(m_add, 0, 1);
    grid->addWidget(m_remove, 0, 2);
    grid->addWidget(m_list, 1, 0, 1, 3);
    grid->setColumnStretch(0, 1);
    setTabOrder(m_list, m_add);
    setTabOrder(m_add, m_remove);

    connect(m_add, &QPushButton::clicked, this, &DocumentList::chooseFiles);
    connect(m_remove, &QPushButton::clicked, this, &DocumentList::removeSelected);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &DocumentList::updateButtons);
    auto *deleteKey = new QShortcut(QKeySequence::Delete, m_list);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &DocumentList::removeSelected);
    for (const bool up : {true, false}) {
        auto *key = new QShortcut(QKeySequence(Qt::ALT | (up ? Qt::Key_Up : Qt::Key_Down)), m_list);
        key->setContext(Qt::WidgetShortcut);
        connect(key, &QShortcut::activated, this, [this, up] { moveSelected(up); });
    }
    connect(m_list->model(), &QAbstractItemModel::rowsMoved, this, &DocumentList::documentsChanged);
    connect(this, &DocumentList::documentsChanged, this, &DocumentList::countDocuments);
    countDocuments();
    updateButtons();
}

void DocumentList::addDocuments(const QStringList &paths)
{
    QStringList known = documents();
    QStringList reasons;
    bool added = false;
    const std::vector<FileFacts> facts = probeFiles(paths);
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const QFileInfo file(paths[i]);
        if (const QString reason = whyNot(file, facts[size_t(i)]); !reason.isEmpty()) {
            reasons << reason;
            continue;
        }
        const QString absolute = file.absoluteFilePath();
        if (known.contains(absolute)) {
            reasons << tr("“%1” is in the list already.").arg(file.fileName());
            continue;
        }
        known << absolute;
        auto *item = new QListWidgetItem(file.fileName(), m_list);
        item->setData(kPathRole, absolute);
        item->setData(kSizeRole, facts[size_t(i)].size);
        item->setToolTip(plainTip(absolute));
        added = true;
    }
    if (!m_list->currentItem() && m_list->count() > 0)
        m_list->setCurrentRow(0);
    if (added)
        emit documentsChanged();
    if (!reasons.isEmpty())
        emit refused(reasons.join(u'\n'));
}

void DocumentList::addDropped(const QMimeData &data)
{
    QStringList paths;
    bool elsewhere = false;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            paths << url.toLocalFile();
        else
            elsewhere = true;
    }
    addDocuments(paths);
    if (elsewhere)
        emit refused(tr("Only files of this computer can be printed. Save the document here first."));
}

void DocumentList::setFixed(bool fixed)
{
    m_isFixed = fixed;
    m_add->setVisible(!fixed);
    m_remove->setVisible(!fixed);
}

bool DocumentList::canTake(const QMimeData &data)
{
    return data.hasUrls();
}

QStringList DocumentList::documents() const
{
    QStringList paths;
    for (int row = 0; row < m_list->count(); ++row)
        paths << m_list->item(row)->data(kPathRole).toString();
    return paths;
}

int DocumentList::listHeight() const
{
    return m_list->sizeHint().height();
}

int DocumentList::leastListHeight() const
{
    return heightOf(*m_list, kLeastRows);
}

void DocumentList::limitList(int height)
{
    m_list->setMaximumHeight(height);
}

void DocumentList::chooseFiles()
{
    addDocuments(QFileDialog::getOpenFileNames(window(), tr("Add Documents")));
}

void DocumentList::removeSelected()
{
    const QList<QListWidgetItem *> selected = m_list->selectedItems();
    if (selected.isEmpty() || m_isFixed)
        return;
    // The Remove button is disabled when the list becomes empty, so the focus moves to the list first.
    m_list->setFocus();
    qDeleteAll(selected);
    // The next one, so that the key can be pressed again.
    if (QListWidgetItem *next = m_list->currentItem())
        next->setSelected(true);
    updateButtons();
    emit documentsChanged();
}

void DocumentList::moveSelected(bool up)
{
    std::vector<int> rows;
    rows.reserve(size_t(m_list->count()));
    for (int row = 0; row < m_list->count(); ++row)
        if (m_list->item(row)->isSelected())
            rows.push_back(row);
    if (rows.empty() || (up ? rows.front() == 0 : rows.back() == m_list->count() - 1))
        return;
    if (!up)
        std::reverse(rows.begin(), rows.end());
    {
        // Each step is a move of its own; the job changes once.
        const QSignalBlocker quiet(this);
        for (const int row : rows)
            m_list->model()->moveRow({}, row, {}, up ? row - 1 : row + 2);
    }
    m_list->scrollToItem(m_list->currentItem());
    emit documentsChanged();
}

void DocumentList::countDocuments()
{
    qint64 size = 0;
    for (int row = 0; row < m_list->count(); ++row)
        size += m_list->item(row)->data(kSizeRole).toLongLong();
    const auto title = [](int count, qint64 bytes) {
        return tr("&Documents (%1, %2):", "number and size")
            .arg(QLocale().toString(count), QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat));
    };
    m_label->setText(m_list->count() == 0 ? tr("&Documents:") : title(m_list->count(), size));
    // The column keeps its width while documents come and go.
    constexpr int kManyDocuments = 88;
    constexpr qint64 kManyBytes = 91 << 10;
    const auto widthOf = [this](const QString &text) {
        return fontMetrics().horizontalAdvance(withoutMnemonic(text)) + m_label->margin();
    };
    m_label->setMinimumWidth(std::max(widthOf(title(kManyDocuments, kManyBytes)), widthOf(m_label->text())));
    m_list->updateGeometry();
}

void DocumentList::updateButtons()
{
    const bool any = !m_list->selectedItems().isEmpty();
    m_remove->setEnabled(any);
    setPlainTip(m_remove, any ? tr("Take the selected documents out of the job; the files themselves stay")
                              : tr("Select the documents to take out first"));
    m_remove->setAccessibleDescription(m_remove->toolTip());
}

} // namespace bv
