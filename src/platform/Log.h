// The plain half of the diagnostic log: free of Qt, so that the helper can use it.
#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>

namespace bv {

// One argument of a log format, of a known type: an integer, a real number, a C string, a pointer, or anything with a
// description. A type of the caller's takes part by an overload of `std::string describe(const T &)` (UTF-8) that is
// found by argument-dependent look-up; a null pointer describes itself as "(null)".
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

// The text (UTF-8) of a printf-like format in which "%@" stands for the description of its argument. Flags, width and
// precision work as in printf(3); a placeholder whose argument is missing or of another kind never reads past it: a
// missing one is written as it stands, another kind is written in its own natural form. Two things are left out on
// purpose: arguments by position ("%2$s" is written as it stands), and lengths narrow no number (with "%hhd" 300 is
// 300), since each argument brings its own width.
std::string formatLog(std::string_view format, std::initializer_list<LogArgument> arguments);

// Writes UTF-8 text to a stream in the encoding of the process's locale, with "?" for each character that it cannot
// represent, and flushes the stream. Text that is not UTF-8 writes nothing.
void writeInSystemEncoding(std::FILE *stream, std::string_view text);

// One line in the developer's diagnostic log (syslog, LOG_DEBUG facility user): every failure that is not shown to
// the user leaves one. With BVCO_LOG=stderr in the environment the lines go to standard error instead.
void diagnosticLine(std::string_view text);

} // namespace bv

// Formats and writes without an added newline, then flushes the stream. See formatLog and writeInSystemEncoding.
template <typename... Arguments> void MyLog(std::FILE *stream, const char *format, const Arguments &...arguments)
{
    bv::writeInSystemEncoding(stream, bv::formatLog(format, {bv::LogArgument(arguments)...}));
}

// The walk's trace hook; does nothing.
void MyDebugMessage(const char *message, uint32_t level);
