// SPDX-License-Identifier: GPL-2.0-or-later
// Opens and closes the pane again and again, the plug-in's loading and unloading included, and compares heap, memory
// and open files after the first 50 times with those at the end. Exit status 1 when one has grown. Usage: panel_soak
// [CYCLES]
#include "PanelOpening.h"
#include "support/ListRoot.h"
#include "support/PaneFixture.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>

namespace {

constexpr int kFirst = 50;
// What may differ without anything leaking: caches of the toolkit, and how free memory lies.
constexpr long kHeapSlack = 128L << 10;
constexpr long kResidentSlack = 1L << 20;

struct Size
{
    long heap = 0;     // bytes in use
    long resident = 0; // bytes
    long files = 0;
};

Size sizeNow()
{
    malloc_trim(0);
    Size size;
    size.heap = static_cast<long>(mallinfo2().uordblks);
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    size.resident = pages * sysconf(_SC_PAGESIZE);
    for ([[maybe_unused]] const auto &entry : std::filesystem::directory_iterator("/proc/self/fd"))
        ++size.files;
    return size;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false;default.warning=false");
    const QApplication application(argc, argv);
    const int cycles = argc > 1 ? std::atoi(argv[1]) : 200;
    const bvtest::ListRoot root;
    ppd_file_t *ppd = ppdOpenFile(BV_SOURCE_DIR "/resources/QL70.ppd");
    if (!ppd || cycles <= kFirst) {
        std::fprintf(stderr, "panel_soak: no PPD, or not more than %d cycles\n", kFirst);
        return 2;
    }
    ppdMarkDefaults(ppd);
    bvtest::TestTicket ticket;
    bvtest::TestSession session;
    bvtest::TestCallback callback;
    callback.settings = &ticket;
    callback.session = &session;
    callback.ppd = ppd;
    Size first;
    for (int cycle = 1; cycle <= cycles; ++cycle) {
        bvbench::openPanel(callback);
        if (cycle == kFirst)
            first = sizeNow();
    }
    const Size last = sizeNow();
    ppdClose(ppd);
    std::printf(
        "%d openings; after %d and at the end: heap %ld and %ld kB, resident %ld and %ld kB, files %ld and %ld\n",
        cycles, kFirst, first.heap >> 10, last.heap >> 10, first.resident >> 10, last.resident >> 10, first.files,
        last.files);
    return last.heap - first.heap > kHeapSlack || last.resident - first.resident > kResidentSlack ||
                   last.files > first.files
               ? 1
               : 0;
}
