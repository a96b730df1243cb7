// Checks the text of a list with one pass of Expat.
#include "helper/ListCheck.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <expat.h>
#include <limits>
#include <memory>
#include <strings.h>
#include <vector>

namespace bv {

namespace {

constexpr size_t kDepthLimit = 32;
constexpr size_t kRootLevel = 2;  // elements open inside the root dictionary: plist, dict
constexpr size_t kClassLevel = 3; // inside a class dictionary

constexpr std::array<std::string_view, 3> kClassKeys = {"RGB", "SIM", "DST"};
constexpr std::array<std::string_view, 6> kFieldKeys = {"IndexOnDevice", "InMenu",   "ProfileClass",
                                                        "Location",      "FileName", "ProfileName"};

enum class Kind : uint8_t { Plist, Dict, Array, Key, Integer, Text, Empty };

struct ElementRow
{
    std::string_view name;
    Kind kind;
};

// The elements of a property list. The contents of dates, real numbers and data are not checked.
// clang-format off
constexpr ElementRow kElements[] = {
    {"plist",   Kind::Plist},
    {"dict",    Kind::Dict},
    {"array",   Kind::Array},
    {"key",     Kind::Key},
    {"integer", Kind::Integer},
    {"string",  Kind::Text},
    {"real",    Kind::Text},
    {"date",    Kind::Text},
    {"data",    Kind::Text},
    {"true",    Kind::Empty},
    {"false",   Kind::Empty},
};
// clang-format on

template <size_t Size> int indexIn(const std::array<std::string_view, Size> &keys, std::string_view key)
{
    const auto *place = std::find(keys.begin(), keys.end(), key);
    return place == keys.end() ? -1 : static_cast<int>(place - keys.begin());
}

bool isInteger(std::string_view text)
{
    if (text.starts_with('-') || text.starts_with('+'))
        text.remove_prefix(1);
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// Handles the parser's events. The first fault stops the parser.
class ListReader
{
public:
    explicit ListReader(XML_Parser parser) : m_parser(parser)
    {
        XML_SetUserData(parser, this);
        // The parser always reads UTF-8, but later readers of the file would believe another declared encoding.
        XML_SetXmlDeclHandler(parser, [](void *self, const XML_Char *, const XML_Char *encoding, int) {
            if (encoding && strcasecmp(encoding, "UTF-8") != 0)
                reader(self).stop("the list is not declared as UTF-8");
        });
        // Without an internal subset there are no entity declarations, so no entity can expand or name a file.
        XML_SetStartDoctypeDeclHandler(
            parser, [](void *self, const XML_Char *, const XML_Char *, const XML_Char *, int hasInternalSubset) {
                if (hasInternalSubset)
                    reader(self).stop("the list brings declarations of its own");
            });
        // With an external subset, an undeclared entity is not an error of the document (XML 1.0, section 4.1).
        XML_SetSkippedEntityHandler(parser, [](void *self, const XML_Char *, int) {
            reader(self).stop("the list uses an entity that is not declared");
        });
        XML_SetElementHandler(
            parser, [](void *self, const XML_Char *name, const XML_Char **) { reader(self).startElement(name); },
            [](void *self, const XML_Char *) { reader(self).endElement(); });
        XML_SetCharacterDataHandler(parser, [](void *self, const XML_Char *text, int length) {
            reader(self).characters({text, static_cast<size_t>(length)});
        });
    }

    const std::optional<std::string> &fault() const { return m_fault; }

    // True if all required dictionaries were present. Valid after the end of the text.
    bool isComplete() const
    {
        return std::all_of(m_fields.begin(), m_fields.end(),
                           [](uint8_t fields) { return fields == (1U << kFieldKeys.size()) - 1; });
    }

private:
    struct Element
    {
        Kind kind;
        bool keyPending = false; // a key of this dictionary has no value yet
        size_t values = 0;       // values inside a plist
    };

    static ListReader &reader(void *self) { return *static_cast<ListReader *>(self); }

    void stop(const char *fault)
    {
        if (m_fault)
            return;
        m_fault = fault;
        XML_StopParser(m_parser, XML_FALSE);
    }

    void startElement(std::string_view name)
    {
        const auto *row = std::find_if(std::begin(kElements), std::end(kElements),
                                       [&](const ElementRow &element) { return element.name == name; });
        if (row == std::end(kElements) || !mayStandHere(row->kind))
            return stop("the list is no property list");
        if (m_open.size() == kDepthLimit)
            return stop("the list is nested too deep");
        noteDictionary(row->kind);
        m_open.push_back({row->kind});
        m_text.clear();
    }

    // True if an element of this kind may begin here. Inside a dictionary it becomes the value of the last key.
    bool mayStandHere(Kind kind)
    {
        if (m_open.empty())
            return kind == Kind::Plist;
        Element &parent = m_open.back();
        switch (parent.kind) {
        case Kind::Plist:
            return kind != Kind::Key && kind != Kind::Plist && parent.values++ == 0;
        case Kind::Array:
            return kind != Kind::Key && kind != Kind::Plist;
        case Kind::Dict:
            if (kind == Kind::Plist || (kind == Kind::Key) == parent.keyPending)
                return false;
            parent.keyPending = kind == Kind::Key;
            return true;
        default:
            return false;
        }
    }

    // Records a required dictionary that begins as the value of the last key.
    void noteDictionary(Kind kind)
    {
        if (kind != Kind::Dict || m_open.empty() || m_open.back().kind != Kind::Dict)
            return;
        if (m_open.size() == kRootLevel)
            m_class = indexIn(kClassKeys, m_key);
        else if (m_open.size() == kClassLevel && m_class >= 0)
            if (const int field = indexIn(kFieldKeys, m_key); field >= 0)
                m_fields[static_cast<size_t>(m_class)] |= static_cast<uint8_t>(1U << field);
    }

    void endElement()
    {
        const Element element = m_open.back();
        m_open.pop_back();
        switch (element.kind) {
        case Kind::Dict:
            if (element.keyPending)
                stop("a key of the list has no value");
            if (m_open.size() == kRootLevel)
                m_class = -1;
            break;
        case Kind::Key:
            m_key = m_text;
            noteKey();
            break;
        case Kind::Integer:
            if (!isInteger(m_text))
                stop("an integer of the list is none");
            break;
        case Kind::Plist:
            if (element.values == 0)
                stop("the list is empty");
            break;
        default:
            break;
        }
        m_text.clear();
    }

    // With a required key twice, readers could take either value.
    void noteKey()
    {
        if (m_open.back().kind != Kind::Dict)
            return;
        int key = -1;
        if (m_open.size() == kRootLevel)
            key = indexIn(kClassKeys, m_key);
        else if (m_open.size() == kClassLevel && m_class >= 0 && indexIn(kFieldKeys, m_key) >= 0)
            key = static_cast<int>(kClassKeys.size()) + m_class * static_cast<int>(kFieldKeys.size()) +
                  indexIn(kFieldKeys, m_key);
        if (key < 0)
            return;
        if (m_seenKeys & (1U << key))
            stop("a required key of the list stands there twice");
        m_seenKeys |= 1U << key;
    }

    void characters(std::string_view text)
    {
        const Kind kind = m_open.empty() ? Kind::Plist : m_open.back().kind;
        if (kind == Kind::Key || kind == Kind::Integer)
            m_text += text;
        else if (kind != Kind::Text && text.find_first_not_of(" \t\r\n") != std::string_view::npos)
            stop("text stands between the elements of the list");
    }

    XML_Parser m_parser;
    std::optional<std::string> m_fault;
    std::vector<Element> m_open;
    std::string m_text;                                // text of the open key or integer
    std::string m_key;                                 // the last key
    int m_class = -1;                                  // index of the open class dictionary, or -1
    std::array<uint8_t, kClassKeys.size()> m_fields{}; // one bit for each field dictionary of a class
    uint32_t m_seenKeys = 0;                           // one bit for each required key
};

} // namespace

std::optional<std::string> faultOfListText(std::string_view text)
{
    if (text.size() > static_cast<size_t>(std::numeric_limits<int>::max()))
        return "the list is too long";
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate("UTF-8"),
                                                                              &XML_ParserFree);
    if (!parser)
        return "no memory for the check";
    ListReader reader(parser.get());
    const XML_Status status = XML_Parse(parser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE);
    if (reader.fault())
        return reader.fault();
    if (status != XML_STATUS_OK)
        return std::string("the list is not well-formed: ") + XML_ErrorString(XML_GetErrorCode(parser.get()));
    if (!reader.isComplete())
        return "the list lacks a required dictionary";
    return std::nullopt;
}

} // namespace bv
