// SPDX-License-Identifier: GPL-2.0-or-later
// Settings added to the kinds of PostScript documents that a print chain produces.
#include "filter/DocumentRewriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <thread>
#include <unistd.h>

namespace {

using bv::DocumentRewriter;
using bv::Settings;

// Stands for the settings in expected texts. Their line ends are those of the document.
constexpr char kFeatures[] = "<settings>";

const Settings kSettings = {{"BVA", "x", "/a"}, {"BVB", "y", "/b"}};

std::string features(const std::string &lineEnd)
{
    std::string text;
    for (const bv::Setting &setting : kSettings)
        text += "[{" + lineEnd + "%%BeginFeature: *" + setting.option + " " + setting.choice + lineEnd + setting.code +
                lineEnd + "%%EndFeature" + lineEnd + "} stopped cleartomark" + lineEnd;
    return text;
}

std::string replaced(std::string text, const std::string &from, const std::string &to)
{
    for (size_t at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

// The rewritten document. The input arrives in pieces of `pieceBytes`.
std::string rewritten(const std::string &document, size_t pieceBytes, const Settings &settings = kSettings,
                      int *sheets = nullptr)
{
    int pipe[2] = {};
    EXPECT_EQ(::pipe(pipe), 0);
    std::thread writer([&] {
        for (size_t at = 0; at < document.size(); at += pieceBytes) {
            const size_t count = std::min(pieceBytes, document.size() - at);
            if (write(pipe[1], document.data() + at, count) != ssize_t(count))
                break;
        }
        close(pipe[1]);
    });
    const int output = memfd_create("output", MFD_CLOEXEC);
    DocumentRewriter rewriter(settings, [sheets](int /*page*/, int copies) {
        if (sheets)
            *sheets += copies;
    });
    rewriter.copy(pipe[0], output);
    writer.join();
    close(pipe[0]);
    std::string text(size_t(lseek(output, 0, SEEK_END)), '\0');
    EXPECT_EQ(pread(output, text.data(), text.size(), 0), ssize_t(text.size()));
    close(output);
    return text;
}

struct Document
{
    const char *name;
    std::string input;
    std::string expected;
};

std::vector<Document> documents()
{
    const std::string head = "%!PS-Adobe-3.0\n%%Title: (x)\n";
    const std::string prolog = "%%EndComments\n%%BeginProlog\n/p {} def\n%%EndProlog\n";
    const std::string pages = "%%Page: 1 1\nshow\n%%Page: 2 2\nshow\n%%Trailer\n%%EOF\n";
    const std::string ours = "%%BeginFeature: *BVA old\n/old\n%%EndFeature\n";
    const std::string others = "%%BeginFeature: *BVOther z\n/z\n%%EndFeature\n";
    const std::string binary("%%BeginSetup\0%%EndSetup\r%%Page: 9 9\n", 36);
    const std::string hex = "%%EndSetup\n%%Page: 9 9\r\n";
    const std::string embedded = "%%BeginDocument: a.eps\n%!PS-Adobe-3.0 EPSF-3.0\n%%EndSetup\n" + ours +
                                 "%%Page: 1 1\n%%BeginDocument: b\n%%EndDocument\n%%EOF\n%%EndDocument\n";
    const std::string at = kFeatures;
    const std::string section = "%%BeginSetup\n" + at + "%%EndSetup\n";
    return {
        {"a setup section: at its end", head + prolog + "%%BeginSetup\nx\n" + others + "%%EndSetup\n" + pages,
         head + prolog + "%%BeginSetup\nx\n" + others + at + "%%EndSetup\n" + pages},
        {"features of the same options, in the setup and of a page: out",
         head + prolog + "%%BeginSetup\n[{\n" + ours + "} stopped cleartomark\n%%EndSetup\n%%Page: 1 1\n" + ours +
             others + "%%IncludeFeature: *BVB z\n" + "%%EOF\n",
         head + prolog + "%%BeginSetup\n[{\n} stopped cleartomark\n" + at + "%%EndSetup\n%%Page: 1 1\n" + others +
             "%%EOF\n"},
        {"no setup: a section of its own before the first page", head + prolog + pages,
         head + prolog + section + pages},
        {"a setup without an end, before pages", head + prolog + "%%BeginSetup\nx\n" + pages,
         head + prolog + "%%BeginSetup\nx\n" + at + pages},
        {"a setup without an end, and no pages", head + prolog + "%%BeginSetup\nshow\n",
         head + prolog + "%%BeginSetup\n" + at + "show\n"},
        {"no section at all: at the head", head + "\n% note\nshow\n%%EOF\n",
         head + "\n% note\n" + at + "show\n%%EOF\n"},
        {"a resource, and no section: before the code behind it",
         head + "%%BeginResource: procset p\n/p {} def\n%%EndResource\n%%BeginFont: f\n/f\n%%EndFont\nshow\n%%EOF\n",
         head + "%%BeginResource: procset p\n/p {} def\n%%EndResource\n%%BeginFont: f\n/f\n%%EndFont\n" + at +
             "show\n%%EOF\n"},
        {"a prolog that begins with a resource: in its setup",
         head + "%%BeginProcSet: p\n/p\n%%EndProcSet\n/q\n%%EndProlog\n%%BeginSetup\n%%EndSetup\n" + pages,
         head + "%%BeginProcSet: p\n/p\n%%EndProcSet\n/q\n%%EndProlog\n" + section + pages},
        {"no structure: behind the first line", "%!\nshow\n%%Page: 1 1\n", "%!\n" + at + "show\n%%Page: 1 1\n"},
        {"a feature that never ends stays",
         head + prolog + "%%BeginSetup\n%%EndSetup\n%%Page: 1 1\n%%BeginFeature: *BVA old\nshow\n",
         head + prolog + "%%BeginSetup\n" + at + "%%EndSetup\n%%Page: 1 1\n%%BeginFeature: *BVA old\nshow\n"},
        {"binary sections, lines of data and documents within: as they are",
         head + prolog + "%%BeginBinary: 36\n" + binary + "%%EndBinary\n%%BeginData: 2 ASCII Lines\n" + hex +
             "%%EndData\n%%BeginData: 36 Binary Bytes\n" + binary + "%%EndData\n" + embedded + "%%BeginSetup\n" +
             "%%EndSetup\n" + pages,
         head + prolog + "%%BeginBinary: 36\n" + binary + "%%EndBinary\n%%BeginData: 2 ASCII Lines\n" + hex +
             "%%EndData\n%%BeginData: 36 Binary Bytes\n" + binary + "%%EndData\n" + embedded + "%%BeginSetup\n" + at +
             "%%EndSetup\n" + pages},
        {"three documents: each", head + prolog + pages + "\004" + head + prolog + pages + head + prolog + pages,
         head + prolog + section + pages + "\004" + head + prolog + section + pages + head + prolog + section + pages},
        {"a printer job language around it", "\033%-12345X@PJL SET X\n@PJL ENTER\n" + head + pages + "\033%-12345X",
         "\033%-12345X@PJL SET X\n@PJL ENTER\n" + head + section + pages + "\033%-12345X"},
        {"no PostScript: as it is", "%PDF-1.4\n%%EndSetup\n" + ours, "%PDF-1.4\n%%EndSetup\n" + ours},
    };
}

TEST(DocumentRewriter, PutsTheSettingsIntoEachDocumentOnce)
{
    for (const Document &document : documents()) {
        for (const char *lineEnd : {"\n", "\r", "\r\n"}) {
            // The byte counts of binary sections would be wrong after the conversion to CR LF.
            if (std::string(lineEnd) == "\r\n" && document.input.find("Binary") != std::string::npos)
                continue;
            const std::string input = replaced(document.input, "\n", lineEnd);
            const std::string expected =
                replaced(replaced(document.expected, "\n", lineEnd), kFeatures, features(lineEnd));
            for (const size_t pieceBytes : {size_t{1}, size_t{7}, input.size()})
                EXPECT_EQ(rewritten(input, pieceBytes), expected) << document.name << " by " << pieceBytes;
            EXPECT_EQ(rewritten(input, input.size(), {}), input) << document.name;
        }
    }
}

TEST(DocumentRewriter, CopiesAllOtherBytesUnchanged)
{
    // Text that looks like comments inside a line, lines longer than any buffer, and buffer ends at every position.
    std::string body;
    for (unsigned i = 0; i < 1000000; ++i)
        body += char((i * 2654435761U) >> 24) == '\n' || char((i * 2654435761U) >> 24) == '\r'
                    ? '%'
                    : char((i * 2654435761U) >> 24);
    const std::string document = "%!PS-Adobe-3.0\n%%Requirements: collate numcopies(3)\n%%EndComments\n" +
                                 std::string("%%BeginSetup\n%%EndSetup\n%%Page: 1 1\nx") + body + "\n%%Page: 2 2\n" +
                                 std::string(300000, '\n') + "%%EOF\n";
    int sheets = 0;
    EXPECT_EQ(rewritten(document, 65536, kSettings, &sheets),
              replaced(document, "%%EndSetup", features("\n") + "%%EndSetup"));
    EXPECT_EQ(sheets, 6);
}

} // namespace
