// SPDX-License-Identifier: GPL-2.0-or-later
// Starts bvpages for one question.
#include "pages/PageCount.h"

#include "pages/PageWorker.h"

namespace bv {

namespace {

// Any sheet will do: pages of a PDF do not depend on it.
constexpr uint32_t kWidth = 595 * kUnitsPerPoint;
constexpr uint32_t kHeight = 842 * kUnitsPerPoint;

} // namespace

std::optional<int> pdfPageCount(const std::string &path, int milliseconds)
{
    PageRequest request;
    request.width = kWidth;
    request.height = kHeight;
    PageWorker worker;
    if (!worker.start(pagesProgram(), path) || !worker.send(request))
        return std::nullopt;
    const std::optional<PageAnswer> answer = worker.waitForAnswer(milliseconds);
    if (!answer || !plausible(*answer, request) || answer->verdict != PageVerdict::Done ||
        answer->content != PageContent::Pdf)
        return std::nullopt;
    return static_cast<int>(answer->pages);
}

} // namespace bv
