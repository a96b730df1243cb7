// The panel's life in the dialog, and who owns its view when.
#include "host/PanelHolder.h"

#include <QEvent>
#include <QScrollBar>
#include <algorithm>

namespace bv {

PaneArea::PaneArea(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setObjectName(QStringLiteral("paneArea"));
}

QSize PaneArea::sizeHint() const
{
    // The whole pane, where the base class stops at a share of the screen.
    return widget() ? widget()->sizeHint().expandedTo(widget()->minimumSizeHint()) : QScrollArea::sizeHint();
}

QSize PaneArea::minimumSizeHint() const
{
    constexpr int kWidest = 620;
    const int bar = verticalScrollBar()->sizeHint().width();
    const int pane = widget() ? widget()->minimumSizeHint().width() : 0;
    return {std::min(pane, kWidest) + bar, QScrollArea::minimumSizeHint().height()};
}

bool PaneArea::eventFilter(QObject *object, QEvent *event)
{
    // A pane that changes its size from within must move its neighbours, not only grow a scroll bar.
    if (object == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(object, event);
}

PanelHolder::PanelHolder(std::unique_ptr<PrintPanel> panel) : m_panel(std::move(panel))
{
    connect(&m_watcher, &ChangeWatcher::changed, this, &PanelHolder::changed);
}

PanelHolder::~PanelHolder()
{
    if (m_area) {
        QWidget *view = m_area->takeWidget();
        if (view)
            view->setParent(nullptr);
        delete m_area;
    }
    m_panel->terminate();
}

bool PanelHolder::serves(ppd_file_t *ppd)
{
    const QStringList keys = m_panel->supportedPPDOptionKeys();
    return ppd && std::any_of(keys.begin(), keys.end(), [ppd](const QString &key) {
               return ppdFindOption(ppd, key.toUtf8().constData()) != nullptr;
           });
}

QString PanelHolder::prepare()
{
    m_view = m_panel->panelView();
    if (!m_view)
        return tr("The options of this printer cannot be shown: the plug-in gives no view. Install it anew.");
    m_area = new PaneArea;
    m_area->setWidget(m_view);
    m_view->show();
    QString error;
    if (!m_panel->restoreValuesAndReturnError(&error))
        return error.isEmpty() ? tr("Not all of the choices could be restored. Look them through.") : error;
    m_watcher.watch(m_view);
    return {};
}

} // namespace bv
