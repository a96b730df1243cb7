// What a text must be to become a list file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace bv {

// Checks that the text is one well-formed XML document in UTF-8 without entities of its own, and a property list whose
// root holds the three class dictionaries, each with its six field dictionaries; other keys may stand beside them.
// Nesting is bounded. Nothing when it is; else a sentence for the diagnostics.
std::optional<std::string> faultOfListText(std::string_view text);

} // namespace bv
