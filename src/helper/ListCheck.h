// SPDX-License-Identifier: GPL-2.0-or-later
// Checks whether a text may become a list file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace bv {

// Checks that the text is a well-formed XML document in UTF-8 without entity declarations, and a property list. Its
// root must hold the three class dictionaries, each with its six field dictionaries; other keys are allowed. Nesting is
// limited. Returns nothing for a valid text, else a sentence for the diagnostics.
std::optional<std::string> faultOfListText(std::string_view text);

} // namespace bv
