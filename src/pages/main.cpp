// SPDX-License-Identifier: GPL-2.0-or-later
// bvpages: draws the pages of the document on descriptor 3. bvprint starts it and sends it requests; it has no rights
// but to read that document and the system's fonts, since the document may be anybody's.
#include "pages/DocumentKind.h"
#include "pages/FontFolders.h"
#include "pages/PageServer.h"
#include "platform/FileDescriptor.h"
#include "platform/ProcessFence.h"

#include <QGuiApplication>
#include <array>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr size_t kMostMemory = size_t{1536} << 20;
constexpr unsigned kMostSeconds = 120;
constexpr int kNiceness = 5; // the window comes first

bv::PageContent contentOf(int document)
{
    std::string head(bv::kDocumentHead, '\0');
    const ssize_t got = pread(document, head.data(), head.size(), 0);
    head.resize(got > 0 ? static_cast<size_t>(got) : 0);
    return bv::documentContent(head);
}

void raiseFence()
{
    const std::vector<std::string> folders = bv::fontFolders();
    std::vector<const char *> readable;
    readable.reserve(folders.size());
    for (const std::string &folder : folders)
        readable.push_back(folder.c_str());
    bv::raiseFence({.readable = readable, .memoryBytes = kMostMemory, .cpuSeconds = kMostSeconds});
}

} // namespace

int main(int argc, char **argv)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    setpriority(PRIO_PROCESS, 0, kNiceness);
    struct stat state = {};
    if (argc != 1 || fstat(bv::kDocumentDescriptor, &state) != 0 || !S_ISREG(state.st_mode)) {
        std::fputs("bvpages is a part of bvprint, which starts it itself.\n", stderr);
        return EXIT_FAILURE;
    }
    const bv::PageContent content = contentOf(bv::kDocumentDescriptor);
    // Only text is drawn with Qt's fonts, which need an application object.
    std::optional<QGuiApplication> application;
    QByteArray option("-platform");
    QByteArray platform("offscreen");
    std::array<char *, 4> words = {argv[0], option.data(), platform.data(), nullptr};
    int wordCount = 3;
    if (content == bv::PageContent::Text)
        application.emplace(wordCount, words.data());
    std::unique_ptr<bv::PageReader> reader = bv::makeReader(content, bv::kDocumentDescriptor);
    raiseFence();
    bv::PageServer(std::move(reader), STDIN_FILENO, STDOUT_FILENO).serve();
    // Without the destructors, which could stumble over what a broken document left behind.
    _exit(EXIT_SUCCESS);
}
