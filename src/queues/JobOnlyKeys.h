// The ticket keys that belong to one job only: the dialog's own rows set them anew for each job.
#pragma once

#include "platform/PrintValue.h"

namespace bv {

// The job attributes that the rows send.
inline constexpr char kCopiesKey[] = "copies";
inline constexpr char kPageRangesKey[] = "page-ranges";

// The same under the names that PPDs use.
inline constexpr char kPpdCopiesKey[] = "Copies";
inline constexpr char kPpdPageRangesKey[] = "PageRanges";

// Takes them all out of a ticket that outlives a job, or that one begins with.
inline void removeJobOnlyKeys(PrintDictionary *ticket)
{
    for (const char *key : {kCopiesKey, kPageRangesKey, kPpdCopiesKey, kPpdPageRangesKey})
        ticket->entries.erase(QString::fromLatin1(key));
}

} // namespace bv
