// The locale of messages as the environment sets it.
#pragma once

#include <QString>

namespace bv {

// The first of LC_ALL, LC_MESSAGES and LANG that is set and not empty decides (POSIX.1-2017, 8.2).

// Whether that one is "C", "POSIX" or one of them with a codeset: somebody asks for texts as they stand in the code. A
// script can want that; people never do.
bool isLocaleC();

// The locale for words: its name without codeset and modifier, "de_DE". English ("en") for the locale C and where none
// is set.
QString messageLocale();

} // namespace bv
