// SPDX-License-Identifier: GPL-2.0-or-later
// The plug-in's entry point.
#include "plugin/PDEPlugIn.h"

#include "platform/Bundle.h"
#include "plugin/PDEPlugInInterface.h"

bool PDEPlugIn::initWithBundle(const bv::PluginBundle &bundle)
{
    setPluginBundle(bundle);
    return true;
}

std::optional<std::vector<std::unique_ptr<bv::PrintPanel>>>
PDEPlugIn::PDEPanelsForType(const QString &type, bv::PrintPanelCallback *hostInfo)
{
    if (type != QLatin1String(bv::kPrinterModulePanelType))
        return std::nullopt;
    std::vector<std::unique_ptr<bv::PrintPanel>> panels;
    panels.push_back(std::make_unique<PDEPlugInInterface>(hostInfo));
    return panels;
}

void PDEPlugIn::setPanelWait(bv::PanelWait *wait)
{
    bv::setPanelWait(wait);
}

void PDEPlugIn::setLogObserver(bv::LogObserver *observer)
{
    bv::setLogObserver(observer);
}
