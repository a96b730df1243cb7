// SPDX-License-Identifier: GPL-2.0-or-later
// Opens the pane through the host protocol, from loading the plug-in to the shown and restored view, and measures each
// step.
#pragma once

#include "Measure.h"
#include "platform/Bundle.h"
#include "platform/HostProtocol.h"
#include "plugin/PDEPlugInInterface.h"

#include <QApplication>
#include <QPluginLoader>
#include <QWidget>

namespace bvbench {

// All times are in milliseconds.
struct PanelOpening
{
    double whole = 0;
    double load = 0;
    double view = 0; // panelView only: builds the menus and refreshes the profiles from the printer
    double restore = 0;
    double show = 0;
    QStringList keys; // the PPD options that the panel serves
};

// Opens the panel once. Afterwards the plug-in is unloaded again.
inline PanelOpening openPanel(bv::PrintPanelCallback &callback)
{
    PanelOpening opening;
    QPluginLoader loader(QStringLiteral(BV_PLUGIN));
    opening.whole = milliseconds([&] {
        bv::PrintPanelFactory *factory = nullptr;
        opening.load = milliseconds([&] {
            factory = qobject_cast<bv::PrintPanelFactory *>(loader.instance());
            factory->initWithBundle({QStringLiteral(BV_PLUGIN), QStringLiteral("en")});
        });
        const auto panels = factory->PDEPanelsForType(QString::fromLatin1(bv::kPrinterModulePanelType), &callback);
        QWidget *view = nullptr;
        opening.view = milliseconds([&] { view = panels->front()->panelView(); });
        opening.restore = milliseconds([&] { panels->front()->restoreValuesAndReturnError(nullptr); });
        opening.show = milliseconds([&] {
            panels->front()->willShow();
            view->show();
            QCoreApplication::processEvents();
        });
        opening.keys = panels->front()->supportedPPDOptionKeys();
    });
    loader.unload();
    return opening;
}

} // namespace bvbench
