// Parsing of an XML property list. Free of Qt and libcups.
#pragma once

#include "platform/PlistValue.h"
#include "platform/PropertyList.h"

namespace bv {

// Parses the text into the value. False, with a sentence in *fault, when PropertyList::fromXml must not take it.
bool parsePlist(std::string_view xml, PlistEncoding encoding, PlistValue *root, std::string *fault);

} // namespace bv
