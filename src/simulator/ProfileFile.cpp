// SPDX-License-Identifier: GPL-2.0-or-later
// Parses the text file with the profiles.
#include "simulator/ProfileFile.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <sstream>

namespace sim {

namespace {

constexpr std::string_view kDefaultList = R"(
# index location file-name     profile-name                     class availability
1       disk     SRGB.ICC      "sRGB"                           1     1
2       disk     OPRGB.ICC     "Wide RGB"                       1     1
3       disk     PHOTO.ICC     "Photo Display D65"              2     1
4       disk     COATED.ICC    "Coated Paper CMYK"              3     1
5       disk     UNCOATED.ICC  "Uncoated Paper CMYK"            3     1
6       card     HOUSE.ICC     "House Proof"                    3     1
7       card     MONITOR.ICC   "Studio Monitor"                 1     1
)";

constexpr std::string_view kMissing = "-";
constexpr size_t kFields = 6;

struct Word
{
    std::string text;
    bool quoted = false;
};

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r';
}

// Removes a quoted text from the front of `line`; the opening quote is already gone. Nothing when the closing quote is
// missing or an escape is not one of \" \\ \xHH.
std::optional<std::string> takeQuoted(std::string_view *line)
{
    std::string text;
    while (!line->empty()) {
        const char c = line->front();
        line->remove_prefix(1);
        if (c == '"')
            return text;
        if (c != '\\') {
            text += c;
            continue;
        }
        if (line->empty())
            return std::nullopt;
        const char escape = line->front();
        line->remove_prefix(1);
        if (escape == '"' || escape == '\\') {
            text += escape;
            continue;
        }
        unsigned value = 0;
        if (escape != 'x' || line->size() < 2 ||
            std::from_chars(line->data(), line->data() + 2, value, 16).ptr != line->data() + 2)
            return std::nullopt;
        text += static_cast<char>(value);
        line->remove_prefix(2);
    }
    return std::nullopt;
}

// Splits a line into words, up to a "#" at the beginning of a word. Nothing when a quoted text is malformed.
std::optional<std::vector<Word>> words(std::string_view line)
{
    std::vector<Word> found;
    for (;;) {
        while (!line.empty() && isBlank(line.front()))
            line.remove_prefix(1);
        if (line.empty() || line.front() == '#')
            return found;
        if (line.front() == '"') {
            line.remove_prefix(1);
            std::optional<std::string> text = takeQuoted(&line);
            if (!text)
                return std::nullopt;
            found.push_back({std::move(*text), true});
            continue;
        }
        const size_t length = static_cast<size_t>(std::find_if(line.begin(), line.end(), isBlank) - line.begin());
        found.push_back({std::string(line.substr(0, length)), false});
        line.remove_prefix(length);
    }
}

template <typename T> bool parseNumber(std::string_view text, T *value)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), *value);
    return error == std::errc() && end == text.data() + text.size() && !text.empty();
}

bool takeNumber(const Word &word, std::optional<int32_t> *field)
{
    int32_t value = 0;
    if (word.quoted)
        return false;
    if (word.text == kMissing)
        return true;
    if (!parseNumber(word.text, &value))
        return false;
    *field = value;
    return true;
}

bool takeLocation(const Word &word, std::optional<int32_t> *field)
{
    if (!word.quoted && (word.text == "disk" || word.text == "card")) {
        *field = word.text == "disk" ? 4 : 5;
        return true;
    }
    return takeNumber(word, field);
}

void takeText(const Word &word, std::optional<std::string> *field)
{
    if (word.quoted || word.text != kMissing)
        *field = word.text;
}

class Reader
{
public:
    // Reads one line. Returns an empty text, or a description of the mistake.
    std::string take(std::string_view line)
    {
        const std::optional<std::vector<Word>> found = words(line);
        if (!found)
            return "a quoted text is broken";
        if (found->empty())
            return {};
        const Word &first = found->front();
        if (!first.quoted && first.text == "gap")
            return takeGap(*found);
        if (!first.quoted && first.text == "row")
            return takeRowNumber(*found);
        return takeRow(*found);
    }

    std::vector<ProfileRow> takeRows() { return std::move(m_rows); }

private:
    std::string takeGap(const std::vector<Word> &line)
    {
        if (line.size() != 1)
            return "\"gap\" stands alone on its line";
        ++m_next;
        return {};
    }

    std::string takeRowNumber(const std::vector<Word> &line)
    {
        uint32_t number = 0;
        if (line.size() != 2 || !parseNumber(line[1].text, &number))
            return "\"row\" wants one number";
        if (number < m_next)
            return "row numbers only go up";
        m_next = number;
        return {};
    }

    std::string takeRow(const std::vector<Word> &line)
    {
        if (line.size() != kFields)
            return "a row has six fields: index location file-name profile-name class availability";
        ProfileRow row;
        row.number = static_cast<uint32_t>(m_next++);
        if (!takeNumber(line[0], &row.indexOnDevice))
            return "the index is no number";
        if (!takeLocation(line[1], &row.location))
            return "the location is none of disk, card, a number";
        takeText(line[2], &row.fileName);
        takeText(line[3], &row.profileName);
        if (!takeNumber(line[4], &row.profileClass))
            return "the class is no number";
        if (!takeNumber(line[5], &row.availability))
            return "the availability is no number";
        m_rows.push_back(std::move(row));
        return {};
    }

    uint64_t m_next = 1;
    std::vector<ProfileRow> m_rows;
};

} // namespace

ProfileFile parseProfiles(std::string_view text)
{
    Reader reader;
    for (size_t number = 1; !text.empty(); ++number) {
        const size_t end = std::min(text.find('\n'), text.size());
        const std::string problem = reader.take(text.substr(0, end));
        if (!problem.empty())
            return {{}, "line " + std::to_string(number) + ": " + problem};
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return {reader.takeRows(), {}};
}

ProfileFile readProfiles(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    // A folder can be opened like a file, but the first read fails.
    if (!file || (file.peek() != std::ifstream::traits_type::eof() && !(text << file.rdbuf())) || file.bad())
        return {{}, "it cannot be read"};
    return parseProfiles(text.str());
}

std::vector<ProfileRow> defaultProfiles()
{
    return parseProfiles(kDefaultList).rows;
}

} // namespace sim
