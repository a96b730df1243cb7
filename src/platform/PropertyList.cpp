// Property lists on libplist.
#include "platform/PropertyList.h"

#include "platform/Log.h"
#include "platform/PlistGuard.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <plist/plist.h>
#include <utility>

namespace bv {

namespace {

constexpr int64_t kLowest = std::numeric_limits<int32_t>::min();
constexpr int64_t kHighest = std::numeric_limits<int32_t>::max();

} // namespace

bool PropertyListNode::isDictionary() const
{
    return m_node && plist_get_node_type(m_node) == PLIST_DICT;
}

PropertyListNode PropertyListNode::item(const char *key) const
{
    return isDictionary() ? PropertyListNode(plist_dict_get_item(m_node, key)) : PropertyListNode();
}

std::optional<int32_t> PropertyListNode::number() const
{
    switch (m_node ? plist_get_node_type(m_node) : PLIST_NONE) {
    case PLIST_UINT: {
        // libplist hands a negative number out as its two's complement.
        uint64_t bits = 0;
        plist_get_uint_val(m_node, &bits);
        return static_cast<int32_t>(std::clamp(static_cast<int64_t>(bits), kLowest, kHighest));
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(m_node, &value);
        if (std::isnan(value))
            return std::nullopt;
        return static_cast<int32_t>(
            std::clamp(std::trunc(value), static_cast<double>(kLowest), static_cast<double>(kHighest)));
    }
    default:
        return std::nullopt;
    }
}

std::optional<std::string_view> PropertyListNode::text() const
{
    uint64_t length = 0;
    const char *text = m_node ? plist_get_string_ptr(m_node, &length) : nullptr;
    if (!text)
        return std::nullopt;
    // The length that libplist reports may be larger than the text.
    return std::string_view(text, strnlen(text, length));
}

PropertyList::PropertyList(PropertyList &&other) noexcept : m_root(std::exchange(other.m_root, PropertyListNode())) {}

PropertyList &PropertyList::operator=(PropertyList &&other) noexcept
{
    std::swap(m_root, other.m_root);
    return *this;
}

PropertyList::~PropertyList()
{
    if (m_root)
        plist_free(m_root.handle());
}

PropertyList PropertyList::fromXml(std::string_view xml)
{
    if (const char *reason = plistRefusal(xml)) {
        diagnosticLine(formatLog("property list refused: %@", {reason}));
        return {};
    }
    plist_t root = nullptr;
    plist_from_xml(xml.data(), static_cast<uint32_t>(xml.size()), &root);
    if (!root)
        diagnosticLine("property list refused: it does not parse");
    return PropertyList(root);
}

PropertyList PropertyList::dictionary()
{
    return PropertyList(plist_new_dict());
}

PropertyList PropertyList::copyOf(PropertyListNode node)
{
    return node ? PropertyList(plist_copy(node.handle())) : PropertyList();
}

void PropertyList::setNumber(const char *key, int32_t value)
{
    plist_dict_set_item(m_root.handle(), key, plist_new_uint(static_cast<uint64_t>(int64_t{value})));
}

void PropertyList::setText(const char *key, const std::string &value)
{
    plist_dict_set_item(m_root.handle(), key, plist_new_string(value.c_str()));
}

PropertyListNode PropertyList::setItem(const char *key, PropertyList item)
{
    const PropertyListNode node = std::exchange(item.m_root, PropertyListNode());
    plist_dict_set_item(m_root.handle(), key, node.handle());
    return node;
}

std::optional<std::string> PropertyList::toXml() const
{
    // libplist writes nothing at all unless the pointer is null before the call.
    char *text = nullptr;
    uint32_t length = 0;
    if (m_root)
        plist_to_xml(m_root.handle(), &text, &length);
    if (!text)
        return std::nullopt;
    std::string xml(text, length);
    plist_to_xml_free(text);
    return xml;
}

} // namespace bv
