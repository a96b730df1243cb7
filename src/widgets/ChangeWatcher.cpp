// SPDX-License-Identifier: GPL-2.0-or-later
// Connects to the change signals of Qt's standard controls, and to widgets as they are added.
#include "widgets/ChangeWatcher.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QChildEvent>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTextEdit>

namespace bv {

ChangeWatcher::ChangeWatcher(QObject *parent) : QObject(parent) {}

void ChangeWatcher::watch(QWidget *root)
{
    if (root)
        watchTree(root);
}

void ChangeWatcher::watchTree(QWidget *widget)
{
    if (m_watched.contains(widget))
        return;
    m_watched.insert(widget);
    connect(widget, &QObject::destroyed, this, [this](QObject *gone) { m_watched.remove(gone); });
    if (watchControl(widget))
        return;
    widget->installEventFilter(this);
    for (QObject *child : widget->children()) {
        if (auto *childWidget = qobject_cast<QWidget *>(child))
            watchTree(childWidget);
    }
}

bool ChangeWatcher::watchControl(QWidget *widget)
{
    const auto note = &ChangeWatcher::noteChange;
    if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        connect(combo, &QComboBox::currentIndexChanged, this, note);
        connect(combo, &QComboBox::activated, this, note);
        connect(combo, &QComboBox::editTextChanged, this, note);
        return true;
    }
    if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        connect(button, &QAbstractButton::toggled, this, note);
        connect(button, &QAbstractButton::clicked, this, note);
        return true;
    }
    if (auto *spin = qobject_cast<QSpinBox *>(widget)) {
        connect(spin, &QSpinBox::valueChanged, this, note);
        return true;
    }
    if (auto *spin = qobject_cast<QDoubleSpinBox *>(widget)) {
        connect(spin, &QDoubleSpinBox::valueChanged, this, note);
        return true;
    }
    if (auto *date = qobject_cast<QDateTimeEdit *>(widget)) {
        connect(date, &QDateTimeEdit::dateTimeChanged, this, note);
        return true;
    }
    if (auto *line = qobject_cast<QLineEdit *>(widget)) {
        connect(line, &QLineEdit::textChanged, this, note);
        return true;
    }
    if (auto *text = qobject_cast<QTextEdit *>(widget)) {
        connect(text, &QTextEdit::textChanged, this, note);
        return true;
    }
    if (auto *text = qobject_cast<QPlainTextEdit *>(widget)) {
        connect(text, &QPlainTextEdit::textChanged, this, note);
        return true;
    }
    if (auto *slider = qobject_cast<QAbstractSlider *>(widget)) {
        if (!qobject_cast<QScrollBar *>(widget))
            connect(slider, &QAbstractSlider::valueChanged, this, note);
        return true;
    }
    if (auto *view = qobject_cast<QAbstractItemView *>(widget)) {
        watchModel(view);
        return true;
    }
    if (auto *group = qobject_cast<QGroupBox *>(widget))
        connect(group, &QGroupBox::toggled, this, note);
    if (auto *tabs = qobject_cast<QTabBar *>(widget))
        connect(tabs, &QTabBar::currentChanged, this, note);
    return false;
}

void ChangeWatcher::watchModel(QAbstractItemView *view)
{
    const auto note = &ChangeWatcher::noteChange;
    if (const QAbstractItemModel *model = view->model()) {
        connect(model, &QAbstractItemModel::dataChanged, this, note);
        connect(model, &QAbstractItemModel::rowsInserted, this, note);
        connect(model, &QAbstractItemModel::rowsRemoved, this, note);
        connect(model, &QAbstractItemModel::rowsMoved, this, note);
        connect(model, &QAbstractItemModel::modelReset, this, note);
    }
    if (const QItemSelectionModel *selection = view->selectionModel())
        connect(selection, &QItemSelectionModel::selectionChanged, this, note);
}

bool ChangeWatcher::eventFilter(QObject *object, QEvent *event)
{
    // Qt sends ChildPolished when the child is fully constructed and its class is known.
    if (event->type() == QEvent::ChildPolished) {
        if (auto *child = qobject_cast<QWidget *>(static_cast<QChildEvent *>(event)->child()))
            watchTree(child);
    }
    return QObject::eventFilter(object, event);
}

void ChangeWatcher::noteChange()
{
    if (m_pending)
        return;
    m_pending = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_pending = false;
            emit changed();
        },
        Qt::QueuedConnection);
}

} // namespace bv
