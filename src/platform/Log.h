// SPDX-License-Identifier: GPL-2.0-or-later
// Formatting of log texts and the diagnostic log. Free of Qt, so that the helper can use it.
#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>

namespace bv {

// One argument of a log format: an integer, a real number, a string, a pointer, or an object with a description. To log
// a type of your own, overload `std::string describe(const T &)` (UTF-8) in the namespace of the type. A null pointer
// is shown as "(null)".
class LogArgument
{
public:
    enum class Kind { Signed, Unsigned, Real, Text, Pointer };

    template <typename T>
    requires std::is_integral_v<T> && std::is_signed_v<T> LogArgument(T value) : m_kind(Kind::Signed), m_signed(value)
    {}
    template <typename T>
    requires std::is_integral_v<T> && std::is_unsigned_v<T> LogArgument(T value)
        : m_kind(Kind::Unsigned), m_unsigned(value)
    {}
    LogArgument(double value) : m_kind(Kind::Real), m_real(value) {}
    LogArgument(std::nullptr_t) : m_kind(Kind::Text), m_text("(null)") {}
    LogArgument(const char *text) : m_kind(Kind::Text), m_text(text ? text : "(null)") {}
    LogArgument(std::string text) : m_kind(Kind::Text), m_text(std::move(text)) {}
    LogArgument(std::string_view text) : m_kind(Kind::Text), m_text(text) {}
    LogArgument(const void *pointer) : m_kind(Kind::Pointer), m_pointer(pointer) {}
    template <typename T>
    requires(std::is_class_v<T> && !std::is_convertible_v<T, std::string_view>) LogArgument(const T &object)
        : m_kind(Kind::Text), m_text(describe(object))
    {}
    template <typename T>
    requires std::is_class_v<T> LogArgument(T *object)
        : m_kind(Kind::Text), m_text(object ? describe(*object) : "(null)")
    {}

    Kind kind() const { return m_kind; }
    int64_t asSigned() const { return m_signed; }
    uint64_t asUnsigned() const { return m_unsigned; }
    double asReal() const { return m_real; }
    const std::string &asText() const { return m_text; }
    const void *asPointer() const { return m_pointer; }

private:
    Kind m_kind;
    int64_t m_signed = 0;
    uint64_t m_unsigned = 0;
    double m_real = 0;
    const void *m_pointer = nullptr;
    std::string m_text;
};

// Formats like printf(3), in UTF-8; "%@" stands for the description of its argument. Flags, width and precision work as
// in printf(3). Wrong formats are safe: a placeholder without an argument is written unchanged, and an argument of
// another kind is written in the natural form of its kind. Two differences from printf(3) are intended: arguments by
// position do not exist ("%2$s" is written unchanged), and length modifiers narrow no number ("%hhd" shows 300 as 300),
// since each argument knows its own width.
std::string formatLog(std::string_view format, std::initializer_list<LogArgument> arguments);

// Writes UTF-8 text to a stream in the encoding of the process's locale and flushes the stream. Characters that the
// encoding lacks become "?". Writes nothing when the text is not UTF-8.
void writeInSystemEncoding(std::FILE *stream, std::string_view text);

// What a line of the log is about, where a program may tell its user of it.
enum class LogSubject {
    General,
    ListsNotWritten,   // what the user changed in the lists of profiles is lost
    RefreshNotWritten, // what the printer said of its profiles is lost
};

// Writes one line to the diagnostic log (syslog, level LOG_DEBUG, facility user). Every failure that the user is not
// shown must leave a line here. With BVCO_LOG=stderr in the environment, lines go to standard error instead.
void diagnosticLine(std::string_view text, LogSubject subject = LogSubject::General);

// Hears of each line that has a subject, on the thread that wrote it.
class LogObserver
{
public:
    virtual void logged(LogSubject subject) = 0;

protected:
    ~LogObserver() = default;
};

// Sets the observer in this program or plug-in; null, as at first: none. Borrowed.
void setLogObserver(LogObserver *observer);

} // namespace bv

// Formats and writes without an added newline, then flushes the stream. See formatLog and writeInSystemEncoding.
template <typename... Arguments> void MyLog(std::FILE *stream, const char *format, const Arguments &...arguments)
{
    bv::writeInSystemEncoding(stream, bv::formatLog(format, {bv::LogArgument(arguments)...}));
}

// The walk's trace hook; does nothing.
void MyDebugMessage(const char *message, uint32_t level);
