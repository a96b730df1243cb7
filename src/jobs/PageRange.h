// SPDX-License-Identifier: GPL-2.0-or-later
// Reads page ranges as users write them ("1-3, 8-"), checks them, and converts them to the print server's form.
#pragma once

#include <QString>
#include <vector>

namespace bv {

// Consecutive pages from first to last, counted from 1. With kOpenEnd the run goes up to the last page of the document.
struct PageRun
{
    static constexpr int kOpenEnd = 2147483647;

    int first = 1;
    int last = kOpenEnd;

    bool operator==(const PageRun &) const = default;
};

// The result of reading a text: sorted runs that do not overlap, or a sentence for the user about the mistake (then
// there are no runs).
struct PageRange
{
    std::vector<PageRun> runs;
    QString error;

    bool isValid() const { return error.isEmpty(); }
    // The syntax of the job attribute "page-ranges" on a command line, for example "1-3,8-".
    QString toOption() const;
};

// Reads pages and runs ("3", "1-4", "8-", "-2") separated by commas or semicolons. Any Unicode digits and dashes are
// accepted. Sorts and joins the runs, because the print server requires ascending runs without overlaps (RFC 8011,
// 5.2.7).
PageRange parsePageRange(const QString &text);

} // namespace bv
