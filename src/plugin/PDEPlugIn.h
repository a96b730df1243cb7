// SPDX-License-Identifier: GPL-2.0-or-later
// PDEPlugIn: the root object of the plug-in, which hands out the panel.
#pragma once

#include "platform/ClassNames.h"

#include "platform/HostProtocol.h"

#include <QObject>

class PDEPlugIn : public QObject,
                  public bv::PrintPanelFactory,
                  public bv::PrintPanelWaiting,
                  public bv::PrintPanelLogging
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID BV_PRINT_PANEL_FACTORY_IID)
    Q_INTERFACES(bv::PrintPanelFactory bv::PrintPanelWaiting bv::PrintPanelLogging)

public:
    bool initWithBundle(const bv::PluginBundle &bundle) override;
    // One panel for the printer-module type; nothing for any other type.
    std::optional<std::vector<std::unique_ptr<bv::PrintPanel>>>
    PDEPanelsForType(const QString &type, bv::PrintPanelCallback *hostInfo) override;
    void setPanelWait(bv::PanelWait *wait) override;
    void setLogObserver(bv::LogObserver *observer) override;
};
