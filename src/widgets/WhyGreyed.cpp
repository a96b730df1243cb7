// SPDX-License-Identifier: GPL-2.0-or-later
// Finds the controls, and shows their reasons in a list of its own.
#include "widgets/WhyGreyed.h"

#include "widgets/Mnemonics.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace bv {

namespace {

constexpr int kLines = 14;      // of the list, at most
constexpr int kCharacters = 70; // of its width, in average characters

// Greyed by itself, and not as a part of something that is.
bool isGreyed(const QWidget *widget, const QWidget *area)
{
    const QWidget *parent = widget->parentWidget();
    return !widget->isEnabled() && (!parent || parent->isEnabled()) && widget->isVisibleTo(area) &&
           widget->focusPolicy() != Qt::NoFocus && !widget->accessibleDescription().isEmpty();
}

// The name that people see: of a label beside the control, or its own.
QString nameOf(QWidget *widget, const QWidget *area)
{
    for (const QLabel *label : area->findChildren<QLabel *>()) {
        if (label->buddy() != widget)
            continue;
        QString name = withoutMnemonic(label->text());
        return name.endsWith(u':') ? name.chopped(1).trimmed() : name;
    }
    // A letter in brackets that a button was given is no part of its name.
    if (const auto *button = qobject_cast<QAbstractButton *>(widget); button && widget->accessibleName().isEmpty())
        return withoutMnemonic(button->text());
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
    return accessible ? accessible->text(QAccessible::Name) : widget->accessibleName();
}

} // namespace

WhyGreyed::WhyGreyed(QWidget *area, QWidget *parent)
    : QPushButton(tr("W&hy Is It Gray?"), parent), m_area(area), m_popUp(new QFrame(this, Qt::Popup)),
      m_list(new QListWidget(m_popUp))
{
    setObjectName(QStringLiteral("whyGreyed"));
    setAutoDefault(false);
    setAccessibleDescription(tr("Lists the controls that cannot be used now, and what makes them available"));
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    static_cast<QFrame *>(m_popUp)->setFrameShape(QFrame::StyledPanel);
    m_list->setObjectName(QStringLiteral("greyedReasons"));
    m_list->setAccessibleName(tr("Controls that cannot be used now"));
    m_list->setWordWrap(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *column = new QVBoxLayout(m_popUp);
    column->setContentsMargins(2, 2, 2, 2);
    column->addWidget(m_list);
    connect(this, &QPushButton::clicked, this, &WhyGreyed::open);
    hide();
}

QStringList WhyGreyed::reasons() const
{
    QList<QWidget *> greyed;
    for (QWidget *widget : m_area->findChildren<QWidget *>())
        if (isGreyed(widget, m_area))
            greyed << widget;
    const auto place = [this](const QWidget *widget) {
        const QPoint at = widget->mapTo(m_area, QPoint(0, 0));
        return std::pair(at.y(), at.x());
    };
    std::stable_sort(greyed.begin(), greyed.end(),
                     [&place](const QWidget *one, const QWidget *other) { return place(one) < place(other); });
    QStringList lines;
    for (QWidget *widget : greyed)
        lines << tr("%1: %2", "name of a control, why it is gray")
                     .arg(nameOf(widget, m_area), widget->accessibleDescription());
    return lines;
}

void WhyGreyed::refresh()
{
    const QList<QWidget *> all = m_area->findChildren<QWidget *>();
    setVisible(std::any_of(all.begin(), all.end(), [this](const QWidget *widget) { return isGreyed(widget, m_area); }));
}

void WhyGreyed::open()
{
    m_list->clear();
    m_list->addItems(reasons());
    m_list->setCurrentRow(0);
    const QRect room = screen()->availableGeometry();
    const int width = std::min(fontMetrics().averageCharWidth() * kCharacters, room.width());
    const int height = std::min(fontMetrics().height() * kLines, room.height() / 2);
    const QRect box(mapToGlobal(QPoint(0, 0)), size());
    const int top = box.bottom() + height < room.bottom() ? box.bottom() + 1 : box.top() - height;
    const int left = std::clamp(box.right() - width + 1, room.left(), std::max(room.left(), room.right() - width + 1));
    m_popUp->setGeometry(left, top, width, height);
    m_popUp->show();
    m_list->setFocus(Qt::PopupFocusReason);
}

} // namespace bv
