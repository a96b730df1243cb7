// SPDX-License-Identifier: GPL-2.0-or-later
// Reads values from property lists, builds lists and writes their XML text.
#include "platform/PropertyList.h"

#include "platform/Log.h"
#include "platform/PlistParser.h"
#include "platform/PlistValue.h"

#include <algorithm>

namespace bv {

namespace {

constexpr std::string_view kHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                   "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                   "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                                   "<plist version=\"1.0\">\n";
constexpr std::string_view kTail = "</plist>\n";

struct ByKey
{
    bool operator()(const PlistEntry &entry, std::string_view key) const { return entry.key < key; }
    bool operator()(std::string_view key, const PlistEntry &entry) const { return key < entry.key; }
};

auto entriesOf(const PlistValue *value, std::string_view key)
{
    static const std::vector<PlistEntry> none;
    const std::vector<PlistEntry> &entries = value ? value->entries : none;
    return std::equal_range(entries.begin(), entries.end(), key, ByKey());
}

void put(PlistTree *tree, std::string_view key, PlistValue value)
{
    std::vector<PlistEntry> &entries = tree->root.entries;
    // Most lists are built in key order, so first try the end.
    if (entries.empty() || entries.back().key < key) {
        entries.emplace_back(tree->texts.emplace_back(key), std::move(value));
        return;
    }
    const auto [first, last] = std::equal_range(entries.begin(), entries.end(), key, ByKey());
    entries.emplace(entries.erase(first, last), tree->texts.emplace_back(key), std::move(value));
}

void copyTexts(PlistValue *value, std::list<std::string> *texts)
{
    value->text = texts->emplace_back(value->text);
    for (PlistEntry &entry : value->entries) {
        entry.key = texts->emplace_back(entry.key);
        copyTexts(&entry.value, texts);
    }
}

// A carriage return is escaped: an XML reader would turn a plain one into a line feed.
void appendEscaped(std::string_view text, std::string *xml)
{
    for (const char c : text) {
        switch (c) {
        case '&':
            *xml += "&amp;";
            break;
        case '<':
            *xml += "&lt;";
            break;
        case '>':
            *xml += "&gt;";
            break;
        case '\r':
            *xml += "&#13;";
            break;
        default:
            *xml += c;
        }
    }
}

void appendValue(const PlistValue &value, size_t depth, std::string *xml)
{
    xml->append(depth, '\t');
    switch (value.kind) {
    case PlistValue::Kind::Dictionary:
        *xml += "<dict>\n";
        for (const auto &[key, item] : value.entries) {
            if (item.kind == PlistValue::Kind::Other)
                continue;
            xml->append(depth + 1, '\t');
            *xml += "<key>";
            appendEscaped(key, xml);
            *xml += "</key>\n";
            appendValue(item, depth + 1, xml);
        }
        xml->append(depth, '\t');
        *xml += "</dict>\n";
        break;
    case PlistValue::Kind::Number:
        *xml += value.number ? "<integer>" + std::to_string(*value.number) + "</integer>\n" : "<real>nan</real>\n";
        break;
    default:
        *xml += "<string>";
        appendEscaped(value.text, xml);
        *xml += "</string>\n";
    }
}

} // namespace

bool PropertyListNode::isDictionary() const
{
    return m_value && m_value->kind == PlistValue::Kind::Dictionary;
}

PropertyListNode PropertyListNode::item(std::string_view key) const
{
    const auto [first, last] = entriesOf(m_value, key);
    return first == last ? PropertyListNode() : PropertyListNode(&std::prev(last)->value);
}

size_t PropertyListNode::entryCount() const
{
    return m_value ? m_value->entries.size() : 0;
}

std::string_view PropertyListNode::keyAt(size_t index) const
{
    return m_value->entries[index].key;
}

PropertyListNode PropertyListNode::valueAt(size_t index) const
{
    return PropertyListNode(&m_value->entries[index].value);
}

bool PropertyListNode::repeats(std::string_view key) const
{
    const auto [first, last] = entriesOf(m_value, key);
    return last - first > 1;
}

std::optional<int32_t> PropertyListNode::number() const
{
    return m_value ? m_value->number : std::nullopt;
}

std::optional<std::string_view> PropertyListNode::text() const
{
    if (!m_value || m_value->kind != PlistValue::Kind::Text)
        return std::nullopt;
    return m_value->text;
}

PropertyList::PropertyList() = default;
PropertyList::PropertyList(PropertyList &&other) noexcept = default;
PropertyList &PropertyList::operator=(PropertyList &&other) noexcept = default;
PropertyList::~PropertyList() = default;
PropertyList::PropertyList(std::unique_ptr<PlistTree> tree) : m_tree(std::move(tree)) {}

PropertyListNode PropertyList::root() const
{
    return m_tree ? PropertyListNode(&m_tree->root) : PropertyListNode();
}

PropertyList PropertyList::fromXml(std::string_view xml, PlistEncoding encoding, std::string *fault)
{
    auto tree = std::make_unique<PlistTree>();
    std::string reason;
    if (parsePlist(xml, encoding, tree.get(), &reason))
        return PropertyList(std::move(tree));
    diagnosticLine("property list refused: " + reason);
    if (fault)
        *fault = std::move(reason);
    return {};
}

PropertyList PropertyList::dictionary()
{
    auto tree = std::make_unique<PlistTree>();
    tree->root.kind = PlistValue::Kind::Dictionary;
    return PropertyList(std::move(tree));
}

PropertyList PropertyList::copyOf(PropertyListNode node)
{
    if (!node)
        return {};
    auto tree = std::make_unique<PlistTree>();
    tree->root = *node.value();
    copyTexts(&tree->root, &tree->texts);
    return PropertyList(std::move(tree));
}

void PropertyList::setNumber(std::string_view key, int32_t value)
{
    put(m_tree.get(), key, {PlistValue::Kind::Number, value, {}, {}});
}

void PropertyList::setText(std::string_view key, std::string value)
{
    put(m_tree.get(), key, {PlistValue::Kind::Text, {}, m_tree->texts.emplace_back(std::move(value)), {}});
}

void PropertyList::setItem(std::string_view key, PropertyList item)
{
    m_tree->texts.splice(m_tree->texts.end(), item.m_tree->texts);
    put(m_tree.get(), key, std::move(item.m_tree->root));
}

std::string PropertyList::toXml() const
{
    std::string xml(kHead);
    if (m_tree->root.kind != PlistValue::Kind::Other)
        appendValue(m_tree->root, 0, &xml);
    xml += kTail;
    return xml;
}

} // namespace bv
