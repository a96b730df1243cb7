// Page ranges as people write them ("1-3, 8-"), checked and brought into the form that the print server takes.
#pragma once

#include <QString>
#include <vector>

namespace bv {

// One run of pages, first to last, both counted from 1. An open run ends with the document.
struct PageRun
{
    static constexpr int kOpenEnd = 2147483647;

    int first = 1;
    int last = kOpenEnd;

    bool operator==(const PageRun &) const = default;
};

// What was made of a text: the runs in ascending order, without overlaps, or a sentence for people that says what is
// wrong with it (then there are no runs).
struct PageRange
{
    std::vector<PageRun> runs;
    QString error;

    bool isValid() const { return error.isEmpty(); }
    // "1-3,8-", the syntax of the job attribute "page-ranges" on a command line.
    QString toOption() const;
};

// Reads a list of pages and runs ("3", "1-4", "8-", "-2") between commas or semicolons, with any digits and dashes.
// The print server wants ascending runs that do not overlap (RFC 8011, 5.2.7), so they are sorted and joined here.
PageRange parsePageRange(const QString &text);

} // namespace bv
