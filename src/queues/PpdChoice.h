// SPDX-License-Identifier: GPL-2.0-or-later
// Options and choices of a PPD by the words that programs and users write, spelled as in the PPD: libcups takes any
// case, panels and the dialog do not.
#pragma once

#include <QString>
#include <cups/ppd.h>

namespace bv {

// The option of that keyword, in any case; null when there is none. The PPD may be null, and owns it.
ppd_option_t *findOption(ppd_file_t *ppd, const QString &keyword);

// The option's choice of that keyword as the PPD spells it, "Custom" for "Custom.100x200mm" and the like. Empty when
// there is none. The option may be null.
QString spelledChoice(ppd_option_t *option, const QString &choice);

// The option that a ticket's entry belongs to by its name, when it says that something else than a choice of the PPD
// counts: OPTIONCustom, OPTIONCustomFilename. Null: it belongs to none.
const ppd_option_t *ownerOfCustomEntry(ppd_file_t *ppd, const QString &key);

} // namespace bv
