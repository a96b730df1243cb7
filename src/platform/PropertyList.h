// XML property lists: an owned list, borrowed nodes of it, reading and writing. Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace bv {

// The largest text that is read, in bytes, and how many elements of it may be open inside each other.
inline constexpr size_t kPlistMaximumBytes = size_t{4} * 1024 * 1024;
inline constexpr size_t kPlistMaximumDepth = 32;

struct PlistValue;

// A node inside a property list that someone else owns; valid as long as that list is, and unchanged. The null node
// stands for "not there" and answers every question with nothing.
class PropertyListNode
{
public:
    PropertyListNode() = default;
    explicit PropertyListNode(const PlistValue *value) : m_value(value) {}

    explicit operator bool() const { return m_value != nullptr; }
    bool isDictionary() const;
    // The value under a key of a dictionary, the last one where the key stands there more than once; the null node
    // when there is none or this is no dictionary.
    PropertyListNode item(std::string_view key) const;
    // Whether a dictionary has the key more than once.
    bool repeats(std::string_view key) const;
    // The value of a number as 32 bits: the fraction of a real is cut off, what lies outside the range becomes the
    // nearest end of it, however large. Nothing for any other type (a boolean is no number) and for a real that is no
    // number.
    std::optional<int32_t> number() const;
    // The text of a string: UTF-8 without a NUL. Nothing for any other type.
    std::optional<std::string_view> text() const;

    const PlistValue *value() const { return m_value; }

private:
    const PlistValue *m_value = nullptr;
};

// Which texts fromXml takes: those of every encoding that their declaration or their byte-order mark names (UTF-8,
// UTF-16, ISO-8859-1, US-ASCII), or only those that are, and may say that they are, UTF-8.
enum class PlistEncoding { Declared, Utf8 };

// One property list. It holds dictionaries, numbers and texts; arrays, dates, data and booleans are checked while
// reading, but only that they are there is kept, and they are not written. Null after a failed read.
class PropertyList
{
public:
    PropertyList();
    PropertyList(PropertyList &&other) noexcept;
    PropertyList &operator=(PropertyList &&other) noexcept;
    ~PropertyList();

    // Reads one well-formed XML document (https://www.w3.org/TR/xml/) that is a property list by its elements; what
    // stands around them (declaration, byte-order mark, document type, comments, processing instructions, blanks) is
    // passed over. Null, with the reason in the diagnostic log and in *fault where one is given, for anything else,
    // for a text with entities of its own, and beyond the two bounds above.
    static PropertyList fromXml(std::string_view xml, PlistEncoding encoding = PlistEncoding::Declared,
                                std::string *fault = nullptr);
    // An empty dictionary.
    static PropertyList dictionary();
    // A deep copy of a node; null of the null node.
    static PropertyList copyOf(PropertyListNode node);

    explicit operator bool() const { return m_root != nullptr; }
    PropertyListNode root() const { return PropertyListNode(m_root.get()); }

    // Each puts one entry into this dictionary, in place of what stood under the key.
    void setNumber(const std::string &key, int32_t value);
    // The text must be UTF-8; one that holds characters XML cannot carry makes a text that no XML parser takes.
    void setText(const std::string &key, std::string value);
    // Takes the item over; it must not be null.
    void setItem(const std::string &key, PropertyList item);

    // The XML text, UTF-8, the entries in the order of their keys' bytes. This list must not be null.
    std::string toXml() const;

private:
    explicit PropertyList(std::unique_ptr<PlistValue> root);

    std::unique_ptr<PlistValue> m_root;
};

} // namespace bv
