// SPDX-License-Identifier: GPL-2.0-or-later
// Reports changes of all standard controls below a widget, also of controls that are created later. Several changes in
// one turn of the event loop are reported once.
#pragma once

#include <QObject>
#include <QPointer>
#include <QSet>

class QAbstractItemModel;
class QAbstractItemView;
class QWidget;

namespace bv {

class ChangeWatcher : public QObject
{
    Q_OBJECT

public:
    explicit ChangeWatcher(QObject *parent = nullptr);

    // Watches the widget and everything below it, now and later. The widget is not owned and may be deleted at any
    // time.
    void watch(QWidget *root);

signals:
    // Sent from the event loop after one or more changes.
    void changed();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void watchTree(QWidget *widget);
    // Connects to a known kind of control. Returns true when its children need not be watched.
    bool watchControl(QWidget *widget);
    void watchModel(QAbstractItemView *view);
    void noteChange();

    QSet<const QObject *> m_watched;
    bool m_pending = false;
};

} // namespace bv
