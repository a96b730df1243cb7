// SPDX-License-Identifier: GPL-2.0-or-later
// Standard job options (media, sides, print-color-mode …) and the choices of a PPD that they stand for.
#pragma once

#include <QString>
#include <cups/ppd.h>
#include <map>

namespace bv {

// Whether libcups turns an option of this name into choices of the PPD. Kept as an option of its own it would
// contradict a later choice of the PPD's option.
bool isStandardOption(const QString &name);

// The choices, by keyword, that a value of such an option makes, as on the print server; also those that are the
// printer's defaults. Empty when the printer has none for it. Changes the PPD's marks and marks its defaults at the
// end. The PPD may be null.
std::map<QString, QString> choicesOfStandardOption(const QString &name, const QString &value, ppd_file_t *ppd);

} // namespace bv
