// Loads a plug-in of print panels and asks its factory for panels.
#pragma once

#include "platform/HostProtocol.h"
#include "platform/Result.h"

#include <QPluginLoader>
#include <variant>

namespace bv {

using Panels = std::vector<std::unique_ptr<PrintPanel>>;

// The panels that a loader hands out go before the loader does. The plug-in stays in the process until it ends.
class PanelLoader
{
public:
    // Where the plug-in lies beside this program, built or installed: <folder of bvprint>/../lib/bvco/bvco.so.
    static QString defaultPath();
    // Loads the plug-in and tells it where it lies and which language its texts are wanted in: a locale name such as
    // "de_DE", or empty for the keys of the texts. An empty path stands for the default one. The path of a failure is
    // named in its sentence. To be called once, and before all else.
    Result<std::monostate> load(const QString &path, const QString &language);

    // What the factory answers; nothing when it has no panel of that type.
    std::optional<Panels> panels(const QString &type, PrintPanelCallback *callback);
    // The first panel of the printer module; null when the plug-in has none.
    std::unique_ptr<PrintPanel> printerPanel(PrintPanelCallback *callback);

private:
    QPluginLoader m_loader;
    PrintPanelFactory *m_factory = nullptr;
};

} // namespace bv
