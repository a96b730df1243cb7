// SPDX-License-Identifier: GPL-2.0-or-later
// Loads a plug-in of print panels and asks its factory for panels.
#pragma once

#include "platform/HostProtocol.h"
#include "platform/Result.h"

#include <QPluginLoader>
#include <variant>

namespace bv {

using Panels = std::vector<std::unique_ptr<PrintPanel>>;

// Panels must be destroyed before their loader. The plug-in stays loaded until the process ends.
class PanelLoader
{
public:
    // The plug-in's path, the same in the build and when installed: <folder of bvprint>/../lib/bvco/bvco.so.
    static QString defaultPath();
    // Loads the plug-in and tells it its own path and the language of its texts. `language` is a locale name such as
    // "de_DE"; empty: the keys of the texts. An empty path stands for the default one. The sentence of a failure names
    // the path. Call this once, before any other function.
    Result<std::monostate> load(const QString &path, const QString &language);

    // The factory's panels of that type; nothing when it has none.
    std::optional<Panels> panels(const QString &type, PrintPanelCallback *callback);
    // The first panel of the printer module; null when the plug-in has none.
    std::unique_ptr<PrintPanel> printerPanel(PrintPanelCallback *callback);

    // Offers something to all panels, if the plug-in knows what to do with it; null takes it back. Borrowed.
    void setPanelWait(PanelWait *wait);
    // The same for one who hears of what the plug-in logs.
    void setLogObserver(LogObserver *observer);

private:
    QPluginLoader m_loader;
    PrintPanelFactory *m_factory = nullptr;
};

} // namespace bv
