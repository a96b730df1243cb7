// SPDX-License-Identifier: GPL-2.0-or-later
// The pages of a document that are selected for printing.
#pragma once

#include <optional>
#include <vector>

namespace bv {

// Pages from first to last, counted from 1. The last may lie behind the end of the document.
struct PageSpan
{
    int first = 1;
    int last = 1;

    bool operator==(const PageSpan &) const = default;
};

// Ascending, without overlaps. None at all means all pages.
using PageSpans = std::vector<PageSpan>;

// In a document with `count` pages: the selected page at or after `page`, or at or before it. Nothing when there is
// none.
std::optional<int> selectedFrom(const PageSpans &spans, int count, int page);
std::optional<int> selectedUpTo(const PageSpans &spans, int count, int page);
// The selected page nearest to `page`.
std::optional<int> selectedNear(const PageSpans &spans, int count, int page);

} // namespace bv
