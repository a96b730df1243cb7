// Any text that the guard accepts must be safe to parse, iterate, copy, write and free.
#include "platform/PlistGuard.h"
#include "platform/PropertyList.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const bv::PropertyList list = bv::PropertyList::fromXml(text);
    if (bv::plistRefusal(text) && list)
        std::abort();
    const bv::PropertyListNode item = list.root().item("k");
    item.number();
    item.text();
    bv::PropertyList::copyOf(list.root()).toXml();
    return 0;
}
