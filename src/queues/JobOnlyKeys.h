// SPDX-License-Identifier: GPL-2.0-or-later
// The ticket keys that belong to one job only: the dialog's own rows set them anew for each job.
#pragma once

#include "platform/PrintValue.h"

namespace bv {

// The job attributes that those rows send.
inline constexpr char kCopiesKey[] = "copies";
inline constexpr char kPageRangesKey[] = "page-ranges";

// The same under the names that PPDs use.
inline constexpr char kPpdCopiesKey[] = "Copies";
inline constexpr char kPpdPageRangesKey[] = "PageRanges";

// Removes these keys from a ticket. Done when a ticket is stored, and when the dialog starts from one.
inline void removeJobOnlyKeys(PrintDictionary *ticket)
{
    for (const char *key : {kCopiesKey, kPageRangesKey, kPpdCopiesKey, kPpdPageRangesKey})
        ticket->entries.erase(QString::fromLatin1(key));
}

} // namespace bv
