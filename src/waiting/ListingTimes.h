// SPDX-License-Identifier: GPL-2.0-or-later
// When printers listed their profiles the last time, for this user. The list file does not say it: a refresh that fails
// writes that file too.
#pragma once

#include <QString>

namespace bv {

// Of the printer at this address, in seconds since 1970; 0 when it is not known.
int64_t lastListing(const QString &address);
void rememberListing(const QString &address, int64_t seconds);

} // namespace bv
