// SPDX-License-Identifier: GPL-2.0-or-later
// Reads one line as a job's options and the rest as a document of the print chain. Without settings the document must
// stay as it is; with settings of options that it does not name, text may only be added; and how the document arrives
// must make no difference.
#include "Fuzzing.h"
#include "filter/DocumentRewriter.h"
#include "filter/JobSettings.h"

#include <memory>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

using fuzz::require;

namespace {

constexpr char kOption[] = "BVFuzzed";
constexpr size_t kMostPieces = 100; // what a socket holds without a reader

std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    for (size_t at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

// The document after the filter. It arrives in at most `pieces` reads.
std::string rewritten(std::string_view document, const bv::Settings &settings, size_t pieces)
{
    int ends[2] = {};
    require(socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) == 0);
    for (size_t piece = document.size() / pieces + 1; !document.empty(); document.remove_prefix(piece)) {
        piece = std::min(piece, document.size());
        require(write(ends[1], document.data(), piece) == ssize_t(piece));
    }
    close(ends[1]);
    const int output = memfd_create("output", MFD_CLOEXEC);
    bv::DocumentRewriter rewriter(settings, [](int page, int copies) { require(page > 0 && copies > 0); });
    const auto result = rewriter.copy(ends[0], output);
    require(result == bv::DocumentRewriter::Result::Done || result == bv::DocumentRewriter::Result::NoDocument);
    close(ends[0]);
    std::string text(size_t(lseek(output, 0, SEEK_END)), '\0');
    require(pread(output, text.data(), text.size(), 0) == ssize_t(text.size()));
    close(output);
    return text;
}

void checkDocument(std::string_view document)
{
    require(rewritten(document, {}, 1) == document);
    const bv::Settings settings = {{kOption, "x", "/BVFuzzedCode"}};
    std::string text = rewritten(document, settings, 1);
    require(rewritten(document, settings, kMostPieces) == text);
    if (document.find(kOption) != document.npos)
        return; // its own features of the option are taken out
    for (const char *lineEnd : {"\r\n", "\n", "\r"}) {
        const std::string block = replaced(
            "[{\n%%BeginFeature: *BVFuzzed x\n/BVFuzzedCode\n%%EndFeature\n} stopped cleartomark\n", "\n", lineEnd);
        std::string section = replaced("%%BeginSetup\n", "\n", lineEnd);
        section.append(block).append("%%EndSetup").append(lineEnd);
        text = replaced(text, section, "");
        text = replaced(text, block, "");
    }
    // A document may itself hold such a section around the settings, and then it was taken out with them.
    require(text == document || document.find("%%BeginSetup") != document.npos);
    require(text.find(kOption) == text.npos);
}

void checkOptions(const std::string &options)
{
    static const std::unique_ptr<ppd_file_t, void (*)(ppd_file_t *)> ppd(
        ppdOpenFile(BV_SOURCE_DIR "/resources/QL70.ppd"), ppdClose);
    require(ppd != nullptr);
    std::vector<std::string> seen;
    for (const bv::Setting &setting : bv::jobSettings(ppd.get(), options.c_str()).settings) {
        require(ppdFindOption(ppd.get(), setting.option.c_str()) != nullptr);
        require(std::find(seen.begin(), seen.end(), setting.option) == seen.end());
        seen.push_back(setting.option);
        require(setting.code.starts_with("<<") && setting.code.ends_with(">>setpagedevice"));
        // One line, whatever a profile's path was made of.
        require(std::none_of(setting.code.begin(), setting.code.end(),
                             [](char one) { return static_cast<unsigned char>(one) < ' '; }));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::Input input(data, size);
    checkOptions(std::string(input.line()));
    checkDocument(input.rest());
    return 0;
}
