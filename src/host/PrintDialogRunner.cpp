// From the command line to a shown dialog, and from its end to the exit status.
#include "host/PrintDialogRunner.h"

#include "host/PanelLoader.h"
#include "host/PrintDialog.h"
#include "host/TicketJson.h"

#include <QTimer>
#include <cstdio>

namespace bv {

namespace {

// The smallest screen that the window is made for; pictures show it so.
constexpr QSize kPictureSize(1024, 600);

int badStart(const QString &sentence)
{
    std::fprintf(stderr, "bvprint: %s\n", qPrintable(sentence.simplified()));
    return 2;
}

// Writes a picture of the dialog once it is ready, and closes it.
void takePicture(PrintDialog &dialog, const QString &path, int &status)
{
    dialog.resize(kPictureSize);
    QObject::connect(
        &dialog, &PrintDialog::ready, &dialog,
        [&dialog, path, &status] {
            // One more turn, so that the layout has settled.
            QTimer::singleShot(0, &dialog, [&dialog, path, &status] {
                if (!dialog.grab().save(path, "PNG"))
                    status = badStart(QStringLiteral("The picture %1 cannot be written.").arg(path));
                dialog.reject();
            });
        },
        Qt::SingleShotConnection);
}

} // namespace

int runPrintDialog(const CommandLine &commandLine, PanelLoader &loader)
{
    PrintDialogStart start;
    start.queue = commandLine.ppd.isEmpty() ? commandLine.queue : commandLine.queueWithoutServer();
    start.documents = commandLine.documents;
    if (!commandLine.ticket.isEmpty()) {
        Result<PrintDictionary> ticket = ticketFromFile(commandLine.ticket);
        if (!ticket)
            return badStart(ticket.error());
        start.ticket = std::move(ticket.value());
    }
    std::unique_ptr<QueueSource> source = makeServerSource();
    if (!commandLine.ppd.isEmpty()) {
        Result<std::unique_ptr<QueueSource>> made = makePpdSource(commandLine, demoOutputFolder());
        if (!made)
            return badStart(made.error());
        source = std::move(made.value());
    }

    RememberedTickets remembered;
    PrintDialog dialog(*source, loader, remembered, std::move(start));
    int status = 0;
    QObject::connect(&dialog, &PrintDialog::printed, [](const QString &note) {
        if (!note.isEmpty())
            std::printf("%s\n", qPrintable(note));
    });
    if (!commandLine.screenshot.isEmpty())
        takePicture(dialog, commandLine.screenshot, status);
    dialog.exec();
    if (dialog.hadPrinter())
        return status;
    // Who started it from a script, for a picture say, saw no window.
    return badStart(dialog.messageText().isEmpty() ? dialog.printReason() : dialog.messageText());
}

} // namespace bv
