// SPDX-License-Identifier: GPL-2.0-or-later
// Tells from its first bytes what a document is. Free of Qt.
#pragma once

#include "pages/PageProtocol.h"

#include <string_view>

namespace bv {

// The first bytes of a document that documentContent() looks at.
inline constexpr size_t kDocumentHead = 8192;

// What the first bytes are of. Unknown for formats that are not shown (PostScript, office documents, archives) and for
// an empty document.
PageContent documentContent(std::string_view head);

} // namespace bv
