// SPDX-License-Identifier: GPL-2.0-or-later
// Formatting of log texts, their conversion to the system's encoding, and the diagnostic log.
#include "platform/Log.h"

#include "platform/TerminalText.h"

#include "platform/TextConverter.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <langinfo.h>
#include <optional>
#include <syslog.h>

namespace bv {

namespace {

// Limit for widths and precisions. Larger ones would only waste memory.
constexpr int kMaximumWidth = 4096;

std::atomic<LogObserver *> observing = nullptr;

struct Placeholder
{
    std::string flags;
    std::optional<int> width;
    std::optional<int> precision;
    bool wide = false; // a length modifier for more than 32 bits
    char conversion = 0;
};

class Formatter
{
public:
    Formatter(std::string_view format, std::initializer_list<LogArgument> arguments)
        : m_format(format), m_next(arguments.begin()), m_end(arguments.end())
    {}

    std::string run()
    {
        while (m_at < m_format.size()) {
            const size_t percent = std::min(m_format.find('%', m_at), m_format.size());
            m_text += m_format.substr(m_at, percent - m_at);
            m_at = percent;
            if (m_at < m_format.size())
                placeholder();
        }
        return std::move(m_text);
    }

private:
    char peek() const { return m_at < m_format.size() ? m_format[m_at] : '\0'; }

    // Reads a number from the format or, for "*", from an argument. Nothing when there is neither.
    std::optional<int> number()
    {
        if (peek() == '*') {
            ++m_at;
            if (m_next == m_end)
                return std::nullopt;
            const LogArgument &argument = *m_next++;
            const int64_t value = argument.kind() == LogArgument::Kind::Unsigned
                                      ? static_cast<int64_t>(std::min<uint64_t>(argument.asUnsigned(), kMaximumWidth))
                                      : argument.asSigned();
            return static_cast<int>(std::clamp<int64_t>(value, -kMaximumWidth, kMaximumWidth));
        }
        std::optional<int> value;
        for (; peek() >= '0' && peek() <= '9'; ++m_at)
            value = std::min(value.value_or(0) * 10 + (peek() - '0'), kMaximumWidth);
        return value;
    }

    Placeholder parse()
    {
        Placeholder place;
        for (; m_at < m_format.size() && std::string_view("-+ #0'").find(peek()) != std::string_view::npos; ++m_at)
            place.flags += peek();
        place.width = number();
        if (place.width && *place.width < 0) { // a negative width from an argument is the "-" flag and a width
            place.flags += '-';
            place.width = -*place.width;
        }
        if (peek() == '.') {
            ++m_at;
            place.precision = number().value_or(0);
            if (*place.precision < 0)
                place.precision.reset();
        }
        for (; m_at < m_format.size() && std::string_view("hlLqjzt").find(peek()) != std::string_view::npos; ++m_at)
            place.wide |= peek() != 'h';
        if (m_at < m_format.size())
            place.conversion = m_format[m_at++];
        return place;
    }

    void placeholder()
    {
        const size_t start = m_at++;
        const Placeholder place = parse();
        if (place.conversion == '%') {
            m_text += '%';
            return;
        }
        if (std::string_view("@diouxXcsfFeEgGaAp").find(place.conversion) == std::string_view::npos ||
            place.conversion == '\0' || m_next == m_end) {
            m_text += m_format.substr(start, m_at - start);
            return;
        }
        write(place, *m_next++);
    }

    void write(const Placeholder &place, const LogArgument &argument)
    {
        const std::string_view conversion(&place.conversion, 1);
        const auto isOneOf = [&](std::string_view set) { return set.find(conversion) != std::string_view::npos; };
        switch (argument.kind()) {
        case LogArgument::Kind::Text:
            writeText(place, argument.asText());
            break;
        case LogArgument::Kind::Signed:
            if (isOneOf("c"))
                writeCharacter(place, argument.asSigned());
            else if (isOneOf("ouxX"))
                print(place, "ll", place.conversion, unsignedBits(place, argument.asSigned()));
            else
                print(place, "ll", 'd', static_cast<long long>(argument.asSigned()));
            break;
        case LogArgument::Kind::Unsigned:
            if (isOneOf("c"))
                writeCharacter(place, static_cast<int64_t>(std::min<uint64_t>(argument.asUnsigned(), INT64_MAX)));
            else
                print(place, "ll", isOneOf("oxX") ? place.conversion : 'u',
                      static_cast<unsigned long long>(argument.asUnsigned()));
            break;
        case LogArgument::Kind::Real:
            print(place, "", isOneOf("fFeEgGaA") ? place.conversion : 'g', argument.asReal());
            break;
        case LogArgument::Kind::Pointer:
            print(place, "", 'p', argument.asPointer());
            break;
        }
    }

    // A negative 32-bit number in an unsigned placeholder without a length modifier shows 32 bits, as in printf(3).
    static unsigned long long unsignedBits(const Placeholder &place, int64_t value)
    {
        if (!place.wide && value < 0 && value >= INT32_MIN)
            return static_cast<uint32_t>(value);
        return static_cast<unsigned long long>(value);
    }

    template <typename Value> void print(const Placeholder &place, const char *length, char conversion, Value value)
    {
        std::string format = "%" + place.flags;
        if (place.width)
            format += std::to_string(*place.width);
        if (place.precision && conversion != 'p')
            format += '.' + std::to_string(*place.precision);
        format += length;
        format += conversion;
        const int size = std::snprintf(nullptr, 0, format.c_str(), value);
        if (size <= 0)
            return;
        std::string printed(static_cast<size_t>(size) + 1, '\0');
        std::snprintf(printed.data(), printed.size(), format.c_str(), value);
        printed.pop_back();
        m_text += printed;
    }

    void writeCharacter(const Placeholder &place, int64_t code)
    {
        const char ascii = static_cast<char>(code > 0 && code < 0x80 ? code : '?');
        writeText(Placeholder{place.flags, place.width, std::nullopt, false, 'c'}, std::string_view(&ascii, 1));
    }

    // The precision counts bytes, as in printf(3), but never cuts a character in two.
    void writeText(const Placeholder &place, std::string_view text)
    {
        if (place.precision && text.size() > static_cast<size_t>(*place.precision)) {
            const auto most = static_cast<size_t>(*place.precision);
            size_t end = 0;
            for (size_t next = 0; next <= most && end < text.size();) {
                end = next;
                next += std::max<size_t>(1, utf8CharacterLength(text.substr(end)));
            }
            text = text.substr(0, end);
        }
        const size_t width = static_cast<size_t>(place.width.value_or(0));
        const std::string blanks(width > text.size() ? width - text.size() : 0, ' ');
        const bool left = place.flags.find('-') != std::string::npos;
        m_text.append(left ? std::string_view() : blanks).append(text).append(left ? blanks : std::string_view());
    }

    std::string_view m_format;
    const LogArgument *m_next;
    const LogArgument *m_end;
    size_t m_at = 0;
    std::string m_text;
};

} // namespace

std::string formatLog(std::string_view format, std::initializer_list<LogArgument> arguments)
{
    return Formatter(format, arguments).run();
}

void writeInSystemEncoding(std::FILE *stream, std::string_view text)
{
    if (!stream || !isUtf8(text))
        return;
    TextConverter converter(nl_langinfo(CODESET), "UTF-8");
    if (!converter)
        return;
    std::string converted;
    while (!text.empty()) {
        const std::string_view character = text.substr(0, utf8CharacterLength(text));
        if (!converter.append(&converted, character))
            converter.append(&converted, "?");
        text.remove_prefix(character.size());
    }
    converter.append(&converted, {}); // resets an encoding that has shift states
    std::fwrite(converted.data(), 1, converted.size(), stream);
    std::fflush(stream);
}

void setLogObserver(LogObserver *observer)
{
    observing = observer;
}

void diagnosticLine(std::string_view text, LogSubject subject)
{
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](unsigned char c) { return c < 0x20; }, ' ');
    const char *where = secure_getenv("BVCO_LOG");
    if (where && std::string_view(where) == "stderr")
        std::fprintf(stderr, "bvco: %s\n", printableText(line).c_str());
    else
        syslog(LOG_USER | LOG_DEBUG, "bvco: %s", line.c_str());
    LogObserver *observer = observing;
    if (observer && subject != LogSubject::General)
        observer->logged(subject);
}

} // namespace bv

// Empty on purpose: the messages of the trace points are dropped here. The tests link their own version to read them.
void MyDebugMessage(const char *, uint32_t) {}
