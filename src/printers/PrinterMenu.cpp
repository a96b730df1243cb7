// SPDX-License-Identifier: GPL-2.0-or-later
// The pop-up's own window with field and list, and how keys go between the two.
#include "printers/PrinterMenu.h"

#include <QCoreApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>
#include <algorithm>

namespace bv {

// Keeps the printers in which each word occurs somewhere.
class PrinterFilter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setWords(const QString &words)
    {
        m_words = words.split(u' ', Qt::SkipEmptyParts);
        invalidateFilter();
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        QVariant value = QSortFilterProxyModel::data(index, role);
        if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)
            return value;
        const QString title = QSortFilterProxyModel::data(index, Qt::DisplayRole).toString();
        const QString note = QSortFilterProxyModel::data(index, PrinterMenu::kNoteRole).toString();
        if (role == Qt::AccessibleTextRole)
            return note.isEmpty() ? title : title + QStringLiteral(", ") + note;
        return title + u'\n' + note; // rows of one height
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override
    {
        const QString text = sourceModel()->index(row, 0, parent).data(PrinterMenu::kSearchRole).toString();
        return std::all_of(m_words.begin(), m_words.end(),
                           [&text](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
    }

private:
    QStringList m_words;
};

namespace {

constexpr int kMostRows = 12;
constexpr int kLeastWidth = 70; // of the pop-up, in average characters

} // namespace

PrinterMenu::PrinterMenu(QWidget *parent)
    : QComboBox(parent), m_popUp(new QFrame(this, Qt::Popup)), m_field(new QLineEdit(m_popUp)),
      m_list(new QListView(m_popUp)), m_nothing(new QLabel(m_popUp)), m_filter(new PrinterFilter(this))
{
    static_cast<QFrame *>(m_popUp)->setFrameShape(QFrame::StyledPanel);
    m_popUp->setObjectName(QStringLiteral("printerPopUp"));
    m_popUp->setAccessibleName(tr("Printers"));
    m_field->setObjectName(QStringLiteral("printerFind"));
    m_field->setPlaceholderText(tr("Find by name, description or place"));
    m_field->setAccessibleName(tr("Find a printer by name, description or place"));
    m_field->setClearButtonEnabled(true);
    m_field->installEventFilter(this);
    m_filter->setSourceModel(model());
    m_list->setObjectName(QStringLiteral("printerChoices"));
    m_list->setAccessibleName(tr("Printers"));
    m_list->setModel(m_filter);
    m_list->setUniformItemSizes(true);
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setFocusPolicy(Qt::NoFocus); // keys go to the field
    m_list->setMouseTracking(true);
    m_nothing->setTextFormat(Qt::PlainText);
    m_nothing->setWordWrap(true);
    m_nothing->hide();
    auto *column = new QVBoxLayout(m_popUp);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(m_field);
    column->addWidget(m_nothing);
    column->addWidget(m_list, 1);
    connect(m_field, &QLineEdit::textChanged, this, &PrinterMenu::find);
    connect(m_list, &QListView::entered, m_list, &QListView::setCurrentIndex);
    connect(m_list, &QListView::clicked, this, &PrinterMenu::choose);
}

void PrinterMenu::showPopup()
{
    m_field->clear();
    find(QString());
    m_list->setCurrentIndex(m_filter->mapFromSource(model()->index(currentIndex(), 0)));
    m_popUp->setGeometry(popUpPlace());
    m_popUp->show();
    m_field->setFocus(Qt::PopupFocusReason);
    m_list->scrollTo(m_list->currentIndex());
    emit opened();
}

void PrinterMenu::hidePopup()
{
    m_popUp->close();
    QComboBox::hidePopup();
}

// Below the pop-up where there is room, else above, and always on the screen.
QRect PrinterMenu::popUpPlace() const
{
    const QRect room = screen()->availableGeometry();
    const int width = std::clamp(fontMetrics().averageCharWidth() * kLeastWidth, this->width(), room.width());
    const int rows = std::clamp(count(), 1, kMostRows);
    const int row = std::max(m_list->sizeHintForRow(0), fontMetrics().height() * 2);
    const int rest = m_field->sizeHint().height() + 6 * m_popUp->layout()->spacing();
    const QRect box(mapToGlobal(QPoint(0, 0)), size());
    const int below = room.bottom() - box.bottom();
    const int above = box.top() - room.top();
    const int height = std::min(rows * row + rest, std::max(below, above));
    const int top = height <= below ? box.bottom() + 1 : box.top() - height;
    const int left = layoutDirection() == Qt::RightToLeft ? box.right() - width + 1 : box.left();
    return {std::clamp(left, room.left(), std::max(room.left(), room.right() - width + 1)), top, width, height};
}

void PrinterMenu::find(const QString &words)
{
    const QModelIndex before = m_filter->mapToSource(m_list->currentIndex());
    m_filter->setWords(words);
    const QModelIndex kept = m_filter->mapFromSource(before);
    m_list->setCurrentIndex(kept.isValid() ? kept : m_filter->index(0, 0));
    const bool none = m_filter->rowCount() == 0;
    m_nothing->setText(tr("No printer has “%1” in its name, description or place. Try fewer letters.").arg(words));
    m_nothing->setVisible(none && !words.isEmpty());
    m_list->setVisible(!none);
    m_field->setAccessibleDescription(m_nothing->isHidden() ? QString() : m_nothing->text());
}

void PrinterMenu::choose(const QModelIndex &found)
{
    const int row = m_filter->mapToSource(found).row();
    hidePopup();
    setFocus(Qt::PopupFocusReason);
    if (row >= 0 && row != currentIndex())
        setCurrentIndex(row);
}

void PrinterMenu::keyPressEvent(QKeyEvent *event)
{
    // Letters find in the open pop-up, by any part of the texts.
    const QString text = event->text();
    const bool isText = !text.isEmpty() && text.at(0).isPrint() && !text.at(0).isSpace() &&
                        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!isText || count() == 0) {
        QComboBox::keyPressEvent(event);
        return;
    }
    showPopup();
    m_field->setText(text);
}

bool PrinterMenu::eventFilter(QObject *object, QEvent *event)
{
    if (object != m_field || event->type() != QEvent::KeyPress)
        return QComboBox::eventFilter(object, event);
    auto *key = static_cast<QKeyEvent *>(event);
    switch (key->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (key->modifiers() & Qt::AltModifier)
            hidePopup();
        else
            QCoreApplication::sendEvent(m_list, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        choose(m_list->currentIndex());
        return true;
    case Qt::Key_Escape:
        hidePopup();
        setFocus(Qt::PopupFocusReason);
        return true;
    default:
        return false;
    }
}

} // namespace bv
