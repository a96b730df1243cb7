// One printer setting as it stands in a document.
#pragma once

#include <string>
#include <vector>

namespace bv {

// A PPD option, the choice to be named beside it, and the PostScript code that makes it so.
struct Setting
{
    std::string option;
    std::string choice;
    std::string code;
};

using Settings = std::vector<Setting>;

} // namespace bv
