// XML property lists: an owned list, borrowed nodes of it, reading behind a guard, writing. Free of Qt and libcups.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace bv {

// A node inside a property list that someone else owns; valid as long as that list is, and unchanged. The null node
// stands for "not there" and answers every question with nothing.
class PropertyListNode
{
public:
    PropertyListNode() = default;
    explicit PropertyListNode(void *node) : m_node(node) {}

    explicit operator bool() const { return m_node != nullptr; }
    bool isDictionary() const;
    // The value under a key of a dictionary; the null node when there is none or this is no dictionary.
    PropertyListNode item(const char *key) const;
    // The value of a number as 32 bits: the fraction of a real is cut off, what lies outside the range becomes the
    // nearest end of it. Nothing for any other type (a boolean is no number) and for a real that is no number.
    std::optional<int32_t> number() const;
    // The text of a string, up to its first NUL. Nothing for any other type.
    std::optional<std::string_view> text() const;

    void *handle() const { return m_node; }

private:
    void *m_node = nullptr;
};

// One property list and all that is in it. Null after a failed read.
class PropertyList
{
public:
    PropertyList() = default;
    PropertyList(PropertyList &&other) noexcept;
    PropertyList &operator=(PropertyList &&other) noexcept;
    ~PropertyList();

    // Parses an XML text that passes the guard of platform/PlistGuard.h; null, with the reason in the diagnostic log,
    // when it does not or is no property list.
    static PropertyList fromXml(std::string_view xml);
    // An empty dictionary.
    static PropertyList dictionary();
    // A deep copy of a node; null of the null node.
    static PropertyList copyOf(PropertyListNode node);

    explicit operator bool() const { return static_cast<bool>(m_root); }
    PropertyListNode root() const { return m_root; }

    // Each puts one entry into this dictionary; the last one under a key counts.
    void setNumber(const char *key, int32_t value);
    // The text must hold no NUL; one that holds characters XML cannot carry makes a text that no XML parser takes.
    void setText(const char *key, const std::string &value);
    // Takes the item over and returns it as a node of this list.
    PropertyListNode setItem(const char *key, PropertyList item);

    // The XML text, UTF-8; nothing when there is no memory for it.
    std::optional<std::string> toXml() const;

private:
    explicit PropertyList(void *root) : m_root(root) {}

    PropertyListNode m_root;
};

} // namespace bv
