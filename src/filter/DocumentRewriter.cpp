// SPDX-License-Identifier: GPL-2.0-or-later
// Follows the structuring comments of a document from section to section.
#include "filter/DocumentRewriter.h"

#include "filter/DocumentStream.h"

#include <algorithm>
#include <charconv>

namespace bv {

namespace {

// Comments are read up to this length. Some are longer than the 255 characters of the conventions, but no word that
// matters is farther from the start.
constexpr size_t kLongestComment = 1024;
// A longer feature is taken for one without an end, and kept.
constexpr size_t kLongestFeature = size_t{64} * 1024;
// The end of a setup section, or a section behind a resource, is searched within this many bytes.
constexpr size_t kLongestSetup = size_t{128} * 1024;
constexpr std::string_view kBegin = "%%Begin";
// Possible bytes before a document on its first line: the end of the previous job, in the serial protocol and in the
// printer job language.
constexpr std::string_view kPrefixes[] = {"\004", "\033%-12345X"};

bool isLineEnd(char character)
{
    return character == '\n' || character == '\r';
}

// The first line, including its line end.
std::string_view firstLine(std::string_view text)
{
    const size_t end = size_t(std::find_if(text.begin(), text.end(), isLineEnd) - text.begin());
    return text.substr(0, text.substr(end, 2) == "\r\n" ? end + 2 : end + 1);
}

std::string_view lineEndOf(std::string_view line)
{
    return line.substr(size_t(std::find_if(line.begin(), line.end(), isLineEnd) - line.begin()));
}

bool isBlank(std::string_view line)
{
    return line.find_first_not_of(" \t\r\n\f") == line.npos;
}

// The words after the colon of a comment.
std::string_view argumentsOf(std::string_view line)
{
    line.remove_suffix(lineEndOf(line).size());
    const size_t colon = line.find(':');
    return colon == line.npos ? std::string_view() : line.substr(colon + 1);
}

std::string_view takeWord(std::string_view &words)
{
    words.remove_prefix(std::min(words.find_first_not_of(" \t"), words.size()));
    const std::string_view word = words.substr(0, words.find_first_of(" \t"));
    words.remove_prefix(word.size());
    return word;
}

// Copies binary data or any other data that a comment announces: "%%BeginBinary: bytes" and "%%BeginData: number type
// unit".
void passData(DocumentStream &stream, std::string_view line)
{
    const bool isData = line.starts_with("%%BeginData:");
    if (!isData && !line.starts_with("%%BeginBinary:"))
        return;
    std::string_view words = argumentsOf(line);
    const std::string_view number = takeWord(words);
    uint64_t count = 0;
    std::from_chars(number.data(), number.data() + number.size(), count);
    takeWord(words); // Hex, Binary or ASCII
    if (isData && takeWord(words) == "Lines")
        stream.passLines(count);
    else
        stream.pass(count);
}

// The N of "%%Requirements: numcopies(N)": copies that the printer makes, not copies in the document. 1 without it.
int copiesOf(std::string_view line)
{
    constexpr std::string_view kWord = "numcopies(";
    const size_t found = line.find(kWord);
    int copies = 1;
    if (found != line.npos)
        std::from_chars(line.data() + found + kWord.size(), line.data() + line.size(), copies);
    return std::max(copies, 1);
}

// Length of a feature, including the line that ends it. 0 when the text does not hold the end.
size_t featureLength(std::string_view text)
{
    constexpr std::string_view kEnd = "%%EndFeature";
    for (size_t at = text.find(kEnd); at != text.npos; at = text.find(kEnd, at + 1)) {
        if (isLineEnd(text[at - 1]))
            return at + firstLine(text.substr(at)).size();
    }
    return 0;
}

} // namespace

DocumentRewriter::DocumentRewriter(Settings settings, PageNotice pageNotice)
    : m_settings(std::move(settings)), m_pageNotice(std::move(pageNotice))
{}

DocumentRewriter::Result DocumentRewriter::copy(int input, int output)
{
    DocumentStream stream(input, output);
    for (std::string_view text = stream.ahead(kLongestComment); !text.empty(); text = stream.ahead(kLongestComment)) {
        if (stream.atLineStart() && (text.starts_with("%%") || text.starts_with("%!")))
            comment(stream, firstLine(text.substr(0, kLongestComment)));
        else
            code(stream, firstLine(text.substr(0, kLongestComment)));
    }
    stream.flush();
    if (stream.readFailed())
        return Result::ReadError;
    if (stream.writeFailed())
        return Result::WriteError;
    return m_found ? Result::Done : Result::NoDocument;
}

// Handles lines that are not structuring comments.
void DocumentRewriter::code(DocumentStream &stream, std::string_view line)
{
    if (m_place == Place::Outside) {
        for (const std::string_view prefix : kPrefixes) {
            if (!line.starts_with(prefix))
                continue;
            stream.pass(prefix.size());
            if (stream.ahead(2).starts_with("%!"))
                beginDocument(stream, std::string(firstLine(stream.ahead(kLongestComment).substr(0, kLongestComment))));
            return;
        }
    }
    if (m_place == Place::Header || m_place == Place::AfterHeader) {
        m_place = Place::AfterHeader;
        if (line.starts_with('%') || isBlank(line)) {
            stream.pass(line.size());
            return;
        }
        // The document has no prolog or setup section, so the settings go first.
        putSettings(stream, Section::None);
    }
    stream.passToComment();
}

void DocumentRewriter::comment(DocumentStream &stream, std::string_view line)
{
    m_comment = line; // reading ahead invalidates the view
    if (m_nested == 0 && structure(stream, m_comment))
        return;
    if (m_comment.starts_with("%%BeginDocument"))
        ++m_nested;
    else if (m_comment.starts_with("%%EndDocument") && m_nested > 0)
        --m_nested;
    stream.pass(m_comment.size());
    passData(stream, m_comment);
}

// Handles a comment of the document itself. Returns true when the line needs no copying.
bool DocumentRewriter::structure(DocumentStream &stream, std::string_view line)
{
    if (m_place == Place::Outside) {
        if (!line.starts_with("%!"))
            return false;
        beginDocument(stream, line);
        return true;
    }
    if (line.starts_with("%%BeginFeature:") && isOurs(line)) {
        const size_t length = featureLength(stream.ahead(kLongestFeature));
        stream.drop(length);
        return length > 0;
    }
    if (line.starts_with("%%IncludeFeature:") && isOurs(line)) {
        stream.drop(line.size());
        return true;
    }
    if (line.starts_with("%%EndSetup")) {
        putSettings(stream, Section::None);
    } else if (line.starts_with("%%Page:")) {
        putSettings(stream, m_place == Place::Setup ? Section::None : Section::Own);
        m_pageNotice(++m_pages, m_copies);
    } else if (line.starts_with("%%Trailer") || line.starts_with("%%EOF")) {
        putSettings(stream, m_place == Place::Setup ? Section::None : Section::Own);
        if (line.starts_with("%%EOF"))
            m_place = Place::Outside;
    } else if (m_place != Place::Body) {
        if (line.starts_with("%%Requirements:"))
            m_copies = copiesOf(line);
        if (line.starts_with("%%BeginSetup"))
            return beginSetup(stream, line);
        if (line.starts_with("%%EndComments") || line.starts_with("%%EndProlog")) {
            m_place = Place::AfterHeader;
        } else if (line.starts_with(kBegin) && m_place != Place::Setup && m_place != Place::Prolog) {
            m_place = Place::Prolog;
            line.remove_prefix(kBegin.size());
            m_resourceEnd = "%%End" + std::string(line.substr(0, line.find_first_of(": \t\r\n")));
        } else if (m_place == Place::Prolog && line.starts_with(m_resourceEnd)) {
            endResource(stream);
        }
    }
    return false;
}

void DocumentRewriter::beginDocument(DocumentStream &stream, std::string_view line)
{
    m_found = true;
    m_copies = 1;
    const std::string_view lineEnd = lineEndOf(line);
    m_lineEnd = lineEnd.empty() ? "\n" : lineEnd;
    const bool structured = line.starts_with("%!PS-Adobe-");
    stream.pass(line.size());
    m_place = Place::Header;
    if (!structured)
        putSettings(stream, Section::None);
}

// The settings go to the end of the setup section, after the document's own. If the end of the section is not found,
// they go to its beginning.
bool DocumentRewriter::beginSetup(DocumentStream &stream, std::string_view line)
{
    m_place = Place::Setup;
    const std::string_view setup = stream.ahead(kLongestSetup);
    if (setup.find("%%EndSetup") != setup.npos || setup.find("%%Page:") != setup.npos)
        return false;
    stream.pass(line.size());
    putSettings(stream, Section::None);
    return true;
}

// A resource may stand in a document without any section. The settings then go before the code behind the resource.
void DocumentRewriter::endResource(DocumentStream &stream)
{
    const std::string_view text = stream.ahead(kLongestSetup);
    for (const std::string_view section : {"%%EndProlog", "%%BeginSetup", "%%Page:"}) {
        if (text.find(section) != text.npos)
            return;
    }
    m_place = Place::AfterHeader;
}

void DocumentRewriter::putSettings(DocumentStream &stream, Section section)
{
    if (m_place == Place::Body)
        return;
    m_place = Place::Body;
    if (m_settings.empty())
        return;
    std::string text;
    for (const Setting &setting : m_settings) {
        text += "[{" + m_lineEnd;
        text += "%%BeginFeature: *" + setting.option + " " + setting.choice + m_lineEnd;
        text += setting.code + m_lineEnd;
        text += "%%EndFeature" + m_lineEnd;
        text += "} stopped cleartomark" + m_lineEnd;
    }
    if (section == Section::Own)
        text = "%%BeginSetup" + m_lineEnd + text + "%%EndSetup" + m_lineEnd;
    stream.put(text);
}

// True if a feature comment names an option that the settings set.
bool DocumentRewriter::isOurs(std::string_view feature) const
{
    std::string_view words = argumentsOf(feature);
    std::string_view option = takeWord(words);
    if (option.starts_with('*'))
        option.remove_prefix(1);
    return std::any_of(m_settings.begin(), m_settings.end(),
                       [option](const Setting &setting) { return setting.option == option; });
}

} // namespace bv
