// SPDX-License-Identifier: GPL-2.0-or-later
// Checks the grammar of property lists on the events of Expat. The first fault stops the parser.
#include "platform/PlistParser.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <expat.h>
#include <limits>
#include <memory>
#include <strings.h>

namespace bv {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kHexDigits = "0123456789abcdefABCDEF";
constexpr std::string_view kBase64 = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/= \t\r\n";

constexpr int64_t kLowest = std::numeric_limits<int32_t>::min();
constexpr int64_t kHighest = std::numeric_limits<int32_t>::max();

enum class Element : uint8_t { Plist, Dict, Array, Key, Integer, Real, String, Date, Data, Boolean };

struct ElementRow
{
    std::string_view name;
    Element element;
};

// clang-format off
constexpr ElementRow kElements[] = {
    {"key",     Element::Key},
    {"integer", Element::Integer},
    {"string",  Element::String},
    {"dict",    Element::Dict},
    {"plist",   Element::Plist},
    {"array",   Element::Array},
    {"real",    Element::Real},
    {"true",    Element::Boolean},
    {"false",   Element::Boolean},
    {"date",    Element::Date},
    {"data",    Element::Data},
};
// clang-format on

std::string_view withoutBlanks(std::string_view text)
{
    const size_t first = text.find_first_not_of(kBlanks);
    return first == text.npos ? std::string_view() : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool isMadeOf(std::string_view text, std::string_view characters)
{
    return text.find_first_not_of(characters) == text.npos;
}

// Asked for every piece of white space between elements, so it does not search.
bool isBlank(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
}

// Reads an integer of any length: decimal, or hexadecimal after "0x", with or without a sign. Values outside 32 bits
// become the nearest limit. Nothing when the text is no integer.
std::optional<int32_t> integerIn(std::string_view text)
{
    text = withoutBlanks(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal)
        text.remove_prefix(2);
    if (text.empty() || !isMadeOf(text, hexadecimal ? kHexDigits : kDigits))
        return std::nullopt;
    int64_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value, hexadecimal ? 16 : 10);
    if (result.ec != std::errc())
        value = std::numeric_limits<int64_t>::max();
    return static_cast<int32_t>(std::clamp(negative ? -value : value, kLowest, kHighest));
}

// Whether the text is a real number; "nan" and "inf" are. Also yields the value as a 32-bit integer where there is one.
bool isReal(std::string_view text, std::optional<int32_t> *number)
{
    text = withoutBlanks(text);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ptr != text.data() + text.size() || result.ec == std::errc::invalid_argument)
        return false;
    if (result.ec == std::errc::result_out_of_range) // too small or too large for a double
        value = text.find("e-") == text.npos && text.find("E-") == text.npos ? HUGE_VAL : 0;
    if (!std::isnan(value))
        *number = static_cast<int32_t>(std::clamp(std::trunc(text.starts_with('-') ? -std::abs(value) : value),
                                                  static_cast<double>(kLowest), static_cast<double>(kHighest)));
    return true;
}

// Whether the text is a date of the form "YYYY-MM-DDTHH:MM:SSZ".
bool isDate(std::string_view text)
{
    constexpr std::string_view kPattern = "0000-00-00T00:00:00Z";
    text = withoutBlanks(text);
    return std::equal(text.begin(), text.end(), kPattern.begin(), kPattern.end(),
                      [](char c, char wanted) { return wanted == '0' ? c >= '0' && c <= '9' : c == wanted; });
}

class PlistParser
{
public:
    // `room`: no text of the tree will be longer in bytes, nor all of them together.
    PlistParser(XML_Parser parser, PlistEncoding encoding, size_t room, PlistTree *tree)
        : m_parser(parser), m_root(&tree->root), m_texts(&tree->texts.emplace_back())
    {
        m_texts->reserve(room);
        XML_SetUserData(parser, this);
        // Told to read UTF-8, Expat ignores the declared encoding. Another reader of the text would follow it, so it
        // must be right.
        if (encoding == PlistEncoding::Utf8)
            XML_SetXmlDeclHandler(parser, [](void *self, const XML_Char *, const XML_Char *declared, int) {
                if (declared && strcasecmp(declared, "UTF-8") != 0)
                    of(self).stop("it is not declared as UTF-8");
            });
        // Declared entities are refused, so none can expand to a huge text or name a file.
        XML_SetEntityDeclHandler(parser, [](void *self, const XML_Char *, int, const XML_Char *, int, const XML_Char *,
                                            const XML_Char *, const XML_Char *,
                                            const XML_Char *) { of(self).stop("it brings entities of its own"); });
        // If the document type names an external subset, XML 1.0 (section 4.1) permits undeclared entities. They are
        // refused here.
        XML_SetSkippedEntityHandler(
            parser, [](void *self, const XML_Char *, int) { of(self).stop("it uses an entity that is not declared"); });
        XML_SetElementHandler(
            parser, [](void *self, const XML_Char *name, const XML_Char **) { of(self).startElement(name); },
            [](void *self, const XML_Char *) { of(self).endElement(); });
        XML_SetCharacterDataHandler(parser, [](void *self, const XML_Char *text, int length) {
            of(self).characters({text, static_cast<size_t>(length)});
        });
    }

    const char *fault() const { return m_fault; }

private:
    // An open element that holds others: plist, dictionary or array. Elements with a text are not kept here, since most
    // of a list file is made of them.
    struct Open
    {
        Element element;
        PlistValue value;
        std::string_view key;    // of a dictionary: the key whose value comes next
        bool keyPending = false; // whether there is such a key
        bool sorted = true;      // whether a dictionary's entries are in key order so far
        bool filled = false;     // whether the plist element has its value
    };

    static PlistParser &of(void *self) { return *static_cast<PlistParser *>(self); }

    void stop(const char *fault)
    {
        if (m_fault)
            return;
        m_fault = fault;
        XML_StopParser(m_parser, XML_FALSE);
    }

    void startElement(std::string_view name)
    {
        if (m_fault)
            return;
        const auto *row = std::find_if(std::begin(kElements), std::end(kElements),
                                       [&](const ElementRow &candidate) { return candidate.name == name; });
        if (row == std::end(kElements) || !mayStandHere(row->element))
            return stop("it is no property list");
        if (!holdsElements(row->element)) {
            m_leaf = row->element;
            m_leafStart = m_texts->size();
            return;
        }
        if (m_open.size() > kPlistMaximumDepth) // the plist element itself does not count
            return stop("it is nested too deep");
        Open &opened = m_open.emplace_back(Open{row->element, {}, {}});
        if (row->element == Element::Dict)
            opened.value.kind = PlistValue::Kind::Dictionary;
    }

    static bool holdsElements(Element element)
    {
        return element == Element::Plist || element == Element::Dict || element == Element::Array;
    }

    // Whether an element may begin inside the innermost open one.
    bool mayStandHere(Element element) const
    {
        if (m_leaf)
            return false;
        if (m_open.empty())
            return element == Element::Plist;
        const Open &parent = m_open.back();
        switch (parent.element) {
        case Element::Dict:
            return element != Element::Plist && (element == Element::Key) != parent.keyPending;
        case Element::Plist:
            return element != Element::Key && element != Element::Plist && !parent.filled;
        default:
            return element != Element::Key && element != Element::Plist;
        }
    }

    void endElement()
    {
        if (m_fault)
            return;
        if (m_leaf) {
            const Element ended = *m_leaf;
            m_leaf.reset();
            if (ended == Element::Key)
                takeKey();
            else
                fill(place(), ended);
            return;
        }
        Open ended = std::move(m_open.back());
        m_open.pop_back();
        if (ended.element == Element::Plist) {
            if (!ended.filled)
                stop("it is empty");
            return;
        }
        if (ended.keyPending)
            stop("a key has no value");
        if (!ended.sorted)
            std::stable_sort(ended.value.entries.begin(), ended.value.entries.end(),
                             [](const PlistEntry &a, const PlistEntry &b) { return a.key < b.key; });
        if (PlistValue *value = place())
            *value = std::move(ended.value);
    }

    void takeKey()
    {
        Open &parent = m_open.back();
        parent.key = leafText();
        parent.keyPending = true;
    }

    std::string_view leafText() const { return std::string_view(*m_texts).substr(m_leafStart); }

    // Where the value that just ended belongs, in the element that contains it. Null in an array, which keeps none.
    PlistValue *place()
    {
        Open &parent = m_open.back();
        if (parent.element == Element::Plist) {
            parent.filled = true;
            return m_root;
        }
        if (parent.element == Element::Array)
            return nullptr;
        std::vector<PlistEntry> &entries = parent.value.entries;
        parent.sorted = parent.sorted && (entries.empty() || entries.back().key <= parent.key);
        parent.keyPending = false;
        return &entries.emplace_back(parent.key, PlistValue()).value;
    }

    // Checks the text of an element that has ended, and stores it as a value where there is a place for it. Only a
    // string keeps its text.
    void fill(PlistValue *value, Element ended)
    {
        const std::string_view text = leafText();
        PlistValue ignored;
        PlistValue &filled = value ? *value : ignored;
        switch (ended) {
        case Element::String:
            filled.kind = PlistValue::Kind::Text;
            filled.text = text;
            return;
        case Element::Integer:
            filled.kind = PlistValue::Kind::Number;
            filled.number = integerIn(text);
            if (!filled.number)
                stop("an integer is none");
            break;
        case Element::Real:
            filled.kind = PlistValue::Kind::Number;
            if (!isReal(text, &filled.number))
                stop("a real number is none");
            break;
        case Element::Date:
            if (!isDate(text))
                stop("a date is none");
            break;
        case Element::Data:
            if (!isMadeOf(text, kBase64))
                stop("data is not in base 64");
            break;
        default: // has no content to check
            break;
        }
        m_texts->resize(m_leafStart);
    }

    void characters(std::string_view text)
    {
        if (m_fault)
            return;
        if (!m_leaf || *m_leaf == Element::Boolean) {
            if (!isBlank(text))
                stop("text stands between its elements");
        } else if (text.size() > m_texts->capacity() - m_texts->size()) {
            stop("it is too large"); // more room would move the texts that are taken already
        } else {
            m_texts->append(text);
        }
    }

    XML_Parser m_parser;
    PlistValue *m_root;
    const char *m_fault = nullptr;
    std::vector<Open> m_open;      // from the outermost to the innermost
    std::optional<Element> m_leaf; // the open element with a text, inside these
    std::string *m_texts;          // all that is kept, and at the end the text of that element
    size_t m_leafStart = 0;        // where it begins
};

} // namespace

bool parsePlist(std::string_view xml, PlistEncoding encoding, PlistTree *tree, std::string *fault)
{
    if (xml.size() > kPlistMaximumBytes) {
        *fault = "it is too large";
        return false;
    }
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> expat(
        XML_ParserCreate(encoding == PlistEncoding::Utf8 ? "UTF-8" : nullptr), &XML_ParserFree);
    if (!expat) {
        *fault = "no memory for its parser";
        return false;
    }
    // Expat hands out UTF-8, which is at most twice as long as a text in another encoding that it knows.
    PlistParser parser(expat.get(), encoding, 2 * xml.size(), tree);
    const XML_Status status = XML_Parse(expat.get(), xml.data(), static_cast<int>(xml.size()), XML_TRUE);
    if (parser.fault())
        *fault = parser.fault();
    else if (status != XML_STATUS_OK)
        *fault = std::string("it is not well-formed: ") + XML_ErrorString(XML_GetErrorCode(expat.get()));
    return !parser.fault() && status == XML_STATUS_OK;
}

} // namespace bv
