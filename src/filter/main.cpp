// SPDX-License-Identifier: GPL-2.0-or-later
// bvql70: the print server's filter that writes a job's color options into its documents.
#include "filter/DocumentRewriter.h"
#include "filter/JobSettings.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace {

// Writes one line to the job's log. The print server knows the levels "ERROR", "WARNING", "INFO" and "PAGE"
// (filter(7)).
void say(const char *level, const std::string &sentence)
{
    std::fprintf(stderr, "%s: %s\n", level, sentence.c_str());
}

int fail(const std::string &what)
{
    say("ERROR", what);
    return 1;
}

std::string reason()
{
    return std::strerror(errno);
}

struct PpdClose
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};

bv::JobSettings readSettings(const char *options)
{
    const char *path = std::getenv("PPD");
    const std::unique_ptr<ppd_file_t, PpdClose> ppd(path ? ppdOpenFile(path) : nullptr);
    if (ppd)
        return bv::jobSettings(ppd.get(), options);
    bv::JobSettings none;
    none.warnings.emplace_back("The printer's PPD file cannot be read; the document is printed as it is.");
    return none;
}

const char kHelp[] =
    R"(Usage: bvql70 job-id user title copies options [file]
Writes the document, standard input or the file, to standard output, with the setup that the color options of the job
mean. CUPS runs it for each document of a queue whose PPD names it.

  --help  print this and end

What the job says of Quick Color, of grayscale and of the printer's profiles is worked out here, whichever program sent
the job. Problems go to the job's log, and the document is then printed with the choices of the PPD. Exit status: 0, or
1 when the document cannot be read or written.
)";

} // namespace

int main(int argc, char **argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--help") == 0) {
        std::fputs(kHelp, stdout);
        return 0;
    }
    if (argc != 6 && argc != 7) {
        say("ERROR", "usage: bvql70 job-id user title copies options [file]");
        return 1;
    }
    // Canceling a job (SIGTERM) ends the filter at once. A closed output must be reported as an error, so SIGPIPE is
    // ignored.
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGPIPE, SIG_IGN);

    int input = STDIN_FILENO;
    if (argc == 7) {
        input = open(argv[6], O_RDONLY | O_CLOEXEC);
        if (input < 0)
            return fail("The document cannot be opened: " + reason() + ".");
    }

    bv::JobSettings job = readSettings(argv[5]);
    for (const std::string &warning : job.warnings)
        say("WARNING", warning);
    bv::DocumentRewriter rewriter(std::move(job.settings),
                                  // The server's page log needs these lines; no earlier filter writes them.
                                  [](int page, int copies) {
                                      std::fprintf(stderr, "PAGE: %d %d\nINFO: Printing page %d.\n", page, copies,
                                                   page);
                                  });
    switch (rewriter.copy(input, STDOUT_FILENO)) {
    case bv::DocumentRewriter::Result::ReadError:
        return fail("The document cannot be read: " + reason() + ".");
    case bv::DocumentRewriter::Result::WriteError:
        return fail("The document cannot be passed on: " + reason() + ".");
    case bv::DocumentRewriter::Result::NoDocument:
        say("WARNING", "The document is no PostScript; it is printed as it is.");
        return 0;
    case bv::DocumentRewriter::Result::Done:
        return 0;
    }
    return 1;
}
