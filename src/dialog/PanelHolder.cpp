// SPDX-License-Identifier: GPL-2.0-or-later
// Creates and ends a panel, and passes on the ownership of its view.
#include "dialog/PanelHolder.h"

#include <algorithm>

namespace bv {

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
    QWidget *view = m_panel->panelView();
    if (!view)
        return tr("The options of this printer cannot be shown: the plug-in gives no view. Install it anew.");
    m_area = new PaneArea;
    m_area->setObjectName(QStringLiteral("paneArea"));
    m_area->setWidget(view);
    view->show();
    QString problem = restoreValues();
    m_watcher.watch(view);
    return problem;
}

QString PanelHolder::restoreValues()
{
    QString error;
    if (m_panel->restoreValuesAndReturnError(&error))
        return {};
    return error.isEmpty() ? tr("Not all of the choices could be restored. Look them through.") : error;
}

} // namespace bv
