// The scan of a property-list text before it is parsed.
#include "platform/PlistGuard.h"

namespace bv {

namespace {

constexpr std::string_view kListEnd = "</plist>";
constexpr std::string_view kBlanks = " \t\r\n";

bool beginsContainer(std::string_view tag)
{
    return tag.starts_with("dict") || tag.starts_with("array");
}

// A tag that closes itself opens nothing. The scan looks at the character before the first ">" alone; where quotes make
// that wrong the count of containers still holds.
bool closesItself(std::string_view tag)
{
    const size_t end = tag.find('>');
    return end != std::string_view::npos && end > 0 && tag[end - 1] == '/';
}

const char *contentRefusal(std::string_view text)
{
    int depth = 0;
    int containers = 0;
    int keys = 0;
    for (size_t at = text.find('<'), next = 0; at != std::string_view::npos; at = next) {
        next = text.find('<', at + 1);
        const std::string_view part = text.substr(at + 1, next - at - 1); // a tag and the text behind it
        if (beginsContainer(part)) {
            if (++containers > kPlistMaximumContainers)
                return "too many dictionaries and arrays";
            if (!closesItself(part) && ++depth > kPlistMaximumDepth)
                return "nested too deep";
        } else if (part.starts_with('/') && beginsContainer(part.substr(1))) {
            --depth;
        } else if (part.starts_with("key") && ++keys > kPlistMaximumKeys) {
            return "too many keys";
        }
        if (part.size() > kPlistMaximumEscapedText && part.find('&') != std::string_view::npos)
            return "too long a text with entities";
    }
    return nullptr;
}

} // namespace

const char *plistRefusal(std::string_view text)
{
    if (text.size() > kPlistMaximumBytes)
        return "too large";
    if (text.starts_with("bplist"))
        return "a binary list";
    if (text.find('\0') != std::string_view::npos)
        return "a NUL byte in it";
    const size_t end = text.find(kListEnd);
    if (end == std::string_view::npos)
        return "cut short";
    if (text.find_first_not_of(kBlanks, end + kListEnd.size()) != std::string_view::npos)
        return "something behind its end";
    return contentRefusal(text);
}

} // namespace bv
