// bvprint: the print dialog, as a window or driven by a batch of commands.
#include "app/CommandLine.h"
#include "app/MessageFilter.h"
#include "batch/BatchRunner.h"
#include "dialog/PrintDialogRunner.h"
#include "jobs/FolderSink.h"
#include "jobs/PrintServerSink.h"
#include "platform/FileDescriptor.h"
#include "queues/PanelLoader.h"
#include "queues/SessionStart.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace {

constexpr int kBadStart = 2;

// One line, whatever the sentence holds.
int refuse(const QString &sentence)
{
    std::fprintf(stderr, "bvprint: %s\n", sentence.simplified().toUtf8().constData());
    return kBadStart;
}

// The window system is chosen before the application object: without a display Qt would end the program.
void chooseWindowSystem(bool batch)
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return;
    if (batch || (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

int runBatch(const bv::CommandLine &line, bv::PanelLoader &loader)
{
    const bv::Result<std::unique_ptr<bv::QueueSession>> session = bv::startSession(line.session);
    if (!session)
        return refuse(session.error());
    bv::PrintServerSink printServer;
    bv::FolderSink nowhere;
    bv::JobSink &sink = line.session.usesServer() ? static_cast<bv::JobSink &>(printServer) : nowhere;
    bv::BatchCommands commands(*session.value(), loader, sink);
    bv::BatchRunner runner(commands);
    if (const QString error = runner.open(line.script); !error.isEmpty())
        return refuse(error);
    return runner.run();
}

} // namespace

int main(int argc, char **argv)
{
    // A stream that was closed before the start would lend its number to the next file that is opened, and a batch
    // would read that.
    if (!bv::openStandardDescriptors())
        return kBadStart;
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromUtf8(argv[i]));
    const bv::Result<bv::CommandLine> parsed = bv::parseCommandLine(arguments);
    if (!parsed)
        return refuse(parsed.error());
    const bv::CommandLine &line = parsed.value();
    using Mode = bv::CommandLine::Mode;
    if (line.mode == Mode::Help || line.mode == Mode::Version) {
        const QString text = line.mode == Mode::Help ? bv::commandLineHelp() : bv::commandLineVersion();
        std::fputs(text.toUtf8().constData(), stdout);
        return 0;
    }

    bv::installMessageFilter();
    chooseWindowSystem(line.mode == Mode::Batch);
    // Our own options are read already; Qt gets none, so a document may have any name.
    int applicationArgc = 1;
    const QApplication application(applicationArgc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("bvprint"));

    bv::PanelLoader loader;
    if (const auto loaded = loader.load(line.plugin); !loaded)
        return refuse(loaded.error());
    if (line.mode == Mode::Batch) {
        // A file panel of the desktop could not be driven.
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        return runBatch(line, loader);
    }
    return bv::runPrintDialog({line.session, line.documents, line.screenshot}, loader);
}
