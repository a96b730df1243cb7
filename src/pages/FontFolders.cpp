// SPDX-License-Identifier: GPL-2.0-or-later
// Asks fontconfig.
#include "pages/FontFolders.h"

#include <fontconfig/fontconfig.h>

namespace bv {

std::vector<std::string> fontFolders()
{
    std::vector<std::string> folders = {"/usr/share/poppler"};
    FcConfig *config = FcInitLoadConfigAndFonts();
    if (!config)
        return folders;
    FcConfigSetCurrent(config);
    // Never look for changes of the settings, which can no longer be opened.
    FcConfigSetRescanInterval(config, 0);
    if (FcStrList *found = FcConfigGetFontDirs(config)) {
        while (const FcChar8 *folder = FcStrListNext(found))
            folders.emplace_back(reinterpret_cast<const char *>(folder));
        FcStrListDone(found);
    }
    return folders;
}

} // namespace bv
