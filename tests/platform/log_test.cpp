// SPDX-License-Identifier: GPL-2.0-or-later
// The log: formatting that is safe with wrong arguments, and output in the system's encoding.
#include "platform/Log.h"

#include <clocale>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace shop {

struct Printer
{
    std::string name;
};
std::string describe(const Printer &printer)
{
    return "<Printer " + printer.name + ">";
}

} // namespace shop

namespace {

// What MyLog writes to a stream.
template <typename... Arguments> std::string logged(const char *format, const Arguments &...arguments)
{
    char *bytes = nullptr;
    size_t size = 0;
    std::FILE *stream = open_memstream(&bytes, &size);
    MyLog(stream, format, arguments...);
    std::string text(bytes, size); // flushed, so it is all there before the stream is closed
    std::fclose(stream);
    std::free(bytes);
    return text;
}

TEST(Log, FormatsAsPrintfDoesAndDescribesObjects)
{
    const shop::Printer printer{"QL70"};
    const shop::Printer *none = nullptr;
    EXPECT_EQ(logged("%d|%-5d|%05i|%.3d", 7, 7, 7, 7), "7|7    |00007|007"); // no newline is added
    EXPECT_EQ(logged("%u %x %lx %hhd %lld", -1, -1, -1, 5, int64_t{1} << 40),
              "4294967295 ffffffff ffffffffffffffff 5 1099511627776");
    EXPECT_EQ(logged("%.2e|%6s|%-6s|%.3s|%-*.*s|%c 100%%", 1234.5, "ab", "ab", "abcdef", 3, 1, "yz", 'o'),
              "1.23e+03|    ab|ab    |abc|y  |o 100%");
    EXPECT_EQ(logged("%@ %@ %@ %@ %@", printer, &printer, none, "text", 5),
              "<Printer QL70> <Printer QL70> (null) text 5");
}

TEST(Log, SurvivesPlaceholdersThatDoNotFitTheirArguments)
{
    EXPECT_EQ(logged("%s and %d %@", "one"), "one and %d %@"); // missing arguments: placeholders stay
    EXPECT_EQ(logged("%s %f %d %p %s", 5, "text", 2.5, "text", static_cast<const char *>(nullptr)),
              "5 text 2.5 text (null)");
    EXPECT_EQ(logged("%n %q %*", 1), "%n %q %*");
    EXPECT_EQ(logged("one", 1, 2), "one");
    EXPECT_LT(logged("%999999999999d%.999999999999f", 1, 1.0).size(), 20'000u);
}

TEST(Log, WritesUtf8InTheEncodingOfTheSystem)
{
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(logged("%@", "Büro 印刷 😀!"), "B?ro ?? ?!");
    EXPECT_EQ(logged("before %s", "caf\xE9"), "") << "no UTF-8";
    ASSERT_TRUE(std::setlocale(LC_ALL, "C.UTF-8"));
    EXPECT_EQ(logged("%@", "Büro 印刷 😀!"), "Büro 印刷 😀!");
    EXPECT_EQ(logged("%.2s|%.3s", "aé", "aé"), "a|aé"); // never half a character
    std::setlocale(LC_ALL, "C");
}

TEST(Log, ADiagnosticLineIsOneLine)
{
    setenv("BVCO_LOG", "stderr", 1);
    testing::internal::CaptureStderr();
    bv::diagnosticLine("two\nlines %s");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "bvco: two lines %s\n");
    unsetenv("BVCO_LOG");
}

} // namespace
