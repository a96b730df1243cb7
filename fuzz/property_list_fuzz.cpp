// SPDX-License-Identifier: GPL-2.0-or-later
// Any text that is parsed must be safe to search, copy, write and free. Readers must accept what a commit accepts.
#include "platform/PropertyList.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const bv::PropertyList list = bv::PropertyList::fromXml(text);
    if (!list && bv::PropertyList::fromXml(text, bv::PlistEncoding::Utf8))
        std::abort();
    const bv::PropertyListNode item = list.root().item("k");
    item.number();
    item.text();
    const bv::PropertyList copy = bv::PropertyList::copyOf(list.root());
    if (copy)
        copy.toXml();
    return 0;
}
