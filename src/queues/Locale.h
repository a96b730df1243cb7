// The locale of messages as the environment sets it.
#pragma once

#include <QString>

namespace bv {

// The locale name in LC_ALL, LC_MESSAGES or LANG (POSIX.1-2017, 8.2), the first that is set and not empty, without
// codeset and modifier: "de_DE". Empty for "C", "POSIX", "C.UTF-8" and where none is set.
QString messageLocale();

} // namespace bv
