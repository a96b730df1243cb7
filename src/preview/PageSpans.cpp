// SPDX-License-Identifier: GPL-2.0-or-later
// Searches span by span, so that a document may have any number of pages.
#include "preview/PageSpans.h"

#include <algorithm>

namespace bv {

std::optional<int> selectedFrom(const PageSpans &spans, int count, int page)
{
    page = std::max(page, 1);
    if (spans.empty())
        return page <= count ? std::optional(page) : std::nullopt;
    for (const PageSpan &span : spans) {
        const int found = std::max(page, span.first);
        if (found <= std::min(span.last, count))
            return found;
    }
    return std::nullopt;
}

std::optional<int> selectedUpTo(const PageSpans &spans, int count, int page)
{
    page = std::min(page, count);
    if (spans.empty())
        return page >= 1 ? std::optional(page) : std::nullopt;
    std::optional<int> found;
    for (const PageSpan &span : spans) {
        if (std::max(span.first, 1) <= std::min(page, span.last))
            found = std::min(page, span.last);
    }
    return found;
}

std::optional<int> selectedNear(const PageSpans &spans, int count, int page)
{
    const std::optional<int> after = selectedFrom(spans, count, page);
    const std::optional<int> before = selectedUpTo(spans, count, page);
    if (after && before)
        return *after - page <= page - *before ? after : before;
    return after ? after : before;
}

} // namespace bv
