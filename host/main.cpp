// bvprint: the print dialog, as a window or driven by a batch of commands.
#include "host/CommandLine.h"
#include "host/MessageFilter.h"
#include "host/PanelLoader.h"
#include "host/PrintDialogRunner.h"

#include <QApplication>
#include <cstdio>

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

} // namespace

int main(int argc, char **argv)
{
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
    return bv::runPrintDialog(line, loader);
}
