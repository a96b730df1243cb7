// SPDX-License-Identifier: GPL-2.0-or-later
// The locale of messages as the environment sets it.
#pragma once

#include <QString>

namespace bv {

// The first of LC_ALL, LC_MESSAGES and LANG that is set and not empty decides (POSIX.1-2017, 8.2).

// Whether the locale is "C" or "POSIX", with or without a codeset. In a batch it selects the keys of texts instead of
// words.
bool isLocaleC();

// The locale's name without codeset and modifier, such as "de_DE". "en" for the locale C and when none is set.
QString messageLocale();

} // namespace bv
