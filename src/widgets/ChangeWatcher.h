// Tells when any standard control below a widget reports a change, whoever made that widget and whenever the control
// was made; several changes within one turn of the event loop are told once.
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

    // Watches the widget and all that is or will be below it. The widget is not owned and may go at any time.
    void watch(QWidget *root);

signals:
    // Sent from the event loop after one or more changes.
    void changed();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void watchTree(QWidget *widget);
    // Whether the control is of a kind whose insides need no look of their own.
    bool watchControl(QWidget *widget);
    void watchModel(QAbstractItemView *view);
    void noteChange();

    QSet<const QObject *> m_watched;
    bool m_pending = false;
};

} // namespace bv
