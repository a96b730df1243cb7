// SPDX-License-Identifier: GPL-2.0-or-later
// Parsing of an XML property list. Free of Qt and libcups.
#pragma once

#include "platform/PlistValue.h"
#include "platform/PropertyList.h"

namespace bv {

// Parses the text into the empty *tree. False, with a sentence in *fault, when the text is not acceptable to
// PropertyList::fromXml.
bool parsePlist(std::string_view xml, PlistEncoding encoding, PlistTree *tree, std::string *fault);

} // namespace bv
