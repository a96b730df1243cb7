// SPDX-License-Identifier: GPL-2.0-or-later
// XML property lists: owned lists, borrowed nodes, reading and writing. Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace bv {

// Limits for reading: the size of the text in bytes, and the depth of nested elements.
inline constexpr size_t kPlistMaximumBytes = size_t{4} * 1024 * 1024;
inline constexpr size_t kPlistMaximumDepth = 32;

struct PlistTree;
struct PlistValue;

// A borrowed node of a property list, valid as long as the list exists unchanged. The null node means "not there"; all
// its functions return false, nothing or the null node.
class PropertyListNode
{
public:
    PropertyListNode() = default;
    explicit PropertyListNode(const PlistValue *value) : m_value(value) {}

    explicit operator bool() const { return m_value != nullptr; }
    bool isDictionary() const;
    // The value under a key of a dictionary; the last one if the key occurs more than once. The null node when the key
    // is missing or this is no dictionary.
    PropertyListNode item(std::string_view key) const;
    // The entries of a dictionary in the order of their keys' bytes, equal keys in the order of the text: how many
    // there are (0 for any other type), and key and value of one of them, counted from 0.
    size_t entryCount() const;
    std::string_view keyAt(size_t index) const;
    PropertyListNode valueAt(size_t index) const;
    // Whether this is a dictionary with the key more than once.
    bool repeats(std::string_view key) const;
    // The value of an integer or a real as 32 bits. Fractions are cut off; values outside the range become the nearest
    // limit. Nothing for any other type (booleans included) and for NaN.
    std::optional<int32_t> number() const;
    // The text of a string, as UTF-8 without NULs. Nothing for any other type.
    std::optional<std::string_view> text() const;

    const PlistValue *value() const { return m_value; }

private:
    const PlistValue *m_value = nullptr;
};

// Which encodings fromXml accepts. Declared: the encoding that the XML declaration or the byte-order mark names (UTF-8,
// UTF-16, ISO-8859-1, US-ASCII). Utf8: only UTF-8, and no declaration of another encoding.
enum class PlistEncoding { Declared, Utf8 };

// One property list. It holds dictionaries, numbers and texts. Arrays, dates, data and booleans are checked while
// reading, but only their presence is kept, and they are not written. Null after a failed read.
class PropertyList
{
public:
    PropertyList();
    PropertyList(PropertyList &&other) noexcept;
    PropertyList &operator=(PropertyList &&other) noexcept;
    ~PropertyList();

    // Reads one well-formed XML document (https://www.w3.org/TR/xml/) whose elements form a property list. Declaration,
    // byte-order mark, document type, comments, processing instructions and blanks are skipped. Null for anything else,
    // for a text that declares entities, and beyond the two limits above. The reason then goes to the diagnostic log
    // and, unless `fault` is null, to *fault.
    static PropertyList fromXml(std::string_view xml, PlistEncoding encoding = PlistEncoding::Declared,
                                std::string *fault = nullptr);
    // An empty dictionary.
    static PropertyList dictionary();
    // A deep copy of a node; null of the null node.
    static PropertyList copyOf(PropertyListNode node);

    explicit operator bool() const { return m_tree != nullptr; }
    PropertyListNode root() const;

    // Each sets one entry of this dictionary and replaces an older one.
    void setNumber(std::string_view key, int32_t value);
    // The text must be UTF-8. Characters that XML 1.0 does not allow must be removed before: with them toXml writes a
    // text that no XML parser accepts.
    void setText(std::string_view key, std::string value);
    // Takes ownership of the item, which must not be null.
    void setItem(std::string_view key, PropertyList item);

    // The XML text (UTF-8), with entries sorted by the bytes of their keys. This list must not be null.
    std::string toXml() const;

private:
    explicit PropertyList(std::unique_ptr<PlistTree> tree);

    std::unique_ptr<PlistTree> m_tree;
};

} // namespace bv
