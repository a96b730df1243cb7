// SPDX-License-Identifier: GPL-2.0-or-later
// One printer setting, as it is written to a document.
#pragma once

#include <string>
#include <vector>

namespace bv {

// `option` and `choice` are PPD keywords. `code` is the PostScript code that makes the setting.
struct Setting
{
    std::string option;
    std::string choice;
    std::string code;
};

using Settings = std::vector<Setting>;

} // namespace bv
