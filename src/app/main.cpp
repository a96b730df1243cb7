// SPDX-License-Identifier: GPL-2.0-or-later
// bvprint: the print dialog, as a window or driven by a batch of commands.
#include "app/CommandLine.h"
#include "app/EndSignals.h"
#include "app/MessageFilter.h"
#include "app/ShareProfiles.h"
#include "app/WindowSystem.h"
#include "batch/BatchRunner.h"
#include "commandline/Completion.h"
#include "commandline/DirectRun.h"
#include "dialog/PrintDialogRunner.h"
#include "heldjobs/AgentCommand.h"
#include "heldjobs/HeldJobBatch.h"
#include "heldjobs/HeldJobWindow.h"
#include "jobs/DocumentArguments.h"
#include "jobs/FolderSink.h"
#include "jobs/PdfPages.h"
#include "jobs/PrintServerSink.h"
#include "platform/FileDescriptor.h"
#include "queues/BackgroundCall.h"
#include "queues/Complaint.h"
#include "queues/Locale.h"
#include "queues/PanelLoader.h"
#include "queues/SessionStart.h"
#include "texts/WindowTexts.h"

#include <QApplication>
#include <QIcon>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <optional>

namespace {

constexpr int kBadStart = 2;

int refuse(const QString &sentence)
{
    bv::complain(sentence);
    return kBadStart;
}

int say(const QString &text)
{
    if (bv::tell(text))
        return 0;
    std::perror("bvprint: standard output cannot be written");
    return 1;
}

// A batch on a new job.
bv::Result<bv::HeldJobSession> startBatch(const bv::CommandLine &line)
{
    using Started = bv::Result<bv::HeldJobSession>;
    bv::Result<std::unique_ptr<bv::QueueSession>> session = bv::startSession(line.session);
    if (!session)
        return Started::failure(session.error());
    std::shared_ptr<const bv::JobSink> sink = std::make_shared<bv::FolderSink>();
    if (line.session.usesServer())
        sink = std::make_shared<bv::PrintServerSink>();
    return bv::HeldJobSession{std::move(session.value()), std::move(sink)};
}

int runBatch(const bv::CommandLine &line, bv::PanelLoader &loader)
{
    bv::Result<bv::HeldJobSession> start =
        line.job.isEmpty() ? startBatch(line) : bv::startHeldJobSession(line.session, line.job, loader);
    if (!start)
        return refuse(start.error());
    const bool scriptIsInput = line.script == u"-";
    bv::BatchCommands commands(*start.value().session, loader, start.value().sink,
                               bv::DocumentArguments(!scriptIsInput), bv::pdfPages());
    // With these signals ignored, a closed pipe or a file at its size limit is a write error and does not kill the
    // program.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    bv::BatchRunner runner(commands);
    if (const QString error = runner.open(line.script); !error.isEmpty())
        return refuse(error);
    return runner.run();
}

int runProgram(const bv::CommandLine &line)
{
    // In the locale C the pane's texts are keys without a window. A window always shows words. What a batch says of
    // errors is for scripts, and English.
    const bool isBatch = line.mode == bv::CommandLine::Mode::Batch;
    const bool isDirect = line.mode == bv::CommandLine::Mode::Direct;
    std::optional<bv::WindowTexts> texts;
    if (!isBatch)
        texts.emplace(bv::messageLocale());
    if (line.mode == bv::CommandLine::Mode::Agent)
        return bv::runAgent();
    bv::endInOrderBySignals();
    const QString language = (isBatch || isDirect) && bv::isLocaleC() ? QString() : bv::messageLocale();
    bv::PanelLoader loader;
    if (const auto loaded = loader.load(line.plugin, language); !loaded)
        return refuse(loaded.error());
    if (isDirect)
        return bv::runDirect(line.direct, loader);
    if (!isBatch) {
        // The desktop's theme may have its own.
        QGuiApplication::setDesktopFileName(QStringLiteral("vnd.brevane.bvprint"));
        QGuiApplication::setWindowIcon(
            QIcon::fromTheme(QStringLiteral("vnd.brevane.bvprint"), QIcon(QStringLiteral(":/bvprint/bvprint.svg"))));
        if (!line.job.isEmpty())
            return bv::runHeldJobDialog(line.session, line.job, line.screenshot, loader);
        return bv::runPrintDialog({line.session, line.documents, line.preset, line.screenshot}, loader);
    }
    // A batch cannot operate the desktop's own file panel.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    return runBatch(line, loader);
}

// A call to a print server that hangs must not hold up the end.
int endedWith(int status)
{
    if (!bv::detachedThreadsEnded()) {
        std::fflush(nullptr);
        std::_Exit(status);
    }
    return status;
}

} // namespace

int main(int argc, char **argv)
{
    // If a standard stream is closed at the start, the next opened file would get its number, and a batch would read
    // that file.
    if (!bv::openStandardDescriptors(O_RDONLY))
        return kBadStart;
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromUtf8(argv[i]));
    const bv::Result<bv::CommandLine> parsed = bv::parseCommandLine(arguments);
    if (!parsed)
        return refuse(parsed.error());
    const bv::CommandLine &line = parsed.value();
    using Mode = bv::CommandLine::Mode;
    if (line.mode == Mode::Help || line.mode == Mode::Version)
        return say(line.mode == Mode::Help ? bv::commandLineHelp() : bv::commandLineVersion());
    if (line.mode == Mode::Share)
        return bv::shareProfiles(line.share);
    if (line.mode == Mode::Agent && line.agent != u"run") {
        const QCoreApplication withoutWindow(argc, argv);
        return bv::switchAgent(line.agent);
    }
    if (line.mode == Mode::Complete) {
        if (line.complete == u"options")
            return say(bv::commandLineOptions().join(u'\n') + u'\n');
        const QCoreApplication withoutWindow(argc, argv);
        const int status = bv::complete(line.complete, line.session);
        return endedWith(status);
    }
    const bv::Result<QByteArray> platform = bv::windowSystem(line);
    if (!platform)
        return refuse(platform.error());

    bv::installMessageFilter();
    // Qt gets none of our arguments, so that a document may have any name. The window system is passed as an option,
    // because programs started by the pane would inherit a variable.
    QByteArray option("-platform");
    QByteArray value = platform.value();
    std::array<char *, 4> words = {argv[0], option.data(), value.data(), nullptr};
    int wordCount = value.isEmpty() ? 1 : 3;
    const QApplication application(wordCount, words.data());
    QCoreApplication::setApplicationName(QStringLiteral("bvprint"));

    return endedWith(runProgram(line));
}
