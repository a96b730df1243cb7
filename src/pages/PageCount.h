// SPDX-License-Identifier: GPL-2.0-or-later
// The number of pages of a document, found by bvpages. Free of Qt.
#pragma once

#include <optional>
#include <string>

namespace bv {

// The pages of the PDF document at `path`. Nothing for a document of another format, or one that is broken, locked, or
// takes longer than the given time. Waits for the answer; may be called from any thread.
std::optional<int> pdfPageCount(const std::string &path, int milliseconds = 3000);

} // namespace bv
