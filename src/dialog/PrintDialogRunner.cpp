// SPDX-License-Identifier: GPL-2.0-or-later
// Opens the dialog for a request and turns its result into an exit status.
#include "dialog/PrintDialogRunner.h"

#include "dialog/PrintDialog.h"
#include "dialog/PrintDialogLayout.h"
#include "jobs/DocumentArguments.h"
#include "jobs/FolderSink.h"
#include "jobs/PdfPages.h"
#include "jobs/PrintServerSink.h"
#include "queues/Complaint.h"
#include "preview/PagePreview.h"
#include "queues/PanelLoader.h"
#include "widgets/OutlineStyle.h"
#include "queues/TicketJson.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTimer>

namespace bv {

namespace {

// Pictures are taken at this size.
constexpr QSize kPictureSize(1200, 760);
// They wait so long for the preview's first page.
constexpr int kPreviewMilliseconds = 5000;

int badStart(const QString &sentence)
{
    complain(sentence);
    return 2;
}

// Saves a picture of the dialog once it is ready, and closes it.
void takePicture(PrintDialog &dialog, const QString &path, int &status)
{
    dialog.resize(kPictureSize);
    QObject::connect(
        &dialog, &PrintDialog::ready, &dialog,
        [&dialog, path, &status] {
            const PagePreview *preview = dialog.parts().preview;
            auto *wait = new QTimer(&dialog);
            wait->setSingleShot(true);
            QObject::connect(preview, &PagePreview::shown, wait, [wait] { wait->start(0); });
            QObject::connect(wait, &QTimer::timeout, &dialog, [&dialog, path, &status] {
                // Unbuffered, because errors in a last buffered write would go unnoticed.
                QFile file(path);
                if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !dialog.grab().save(&file, "PNG"))
                    status =
                        badStart(QCoreApplication::translate("PrintDialogRunner", "The picture %1 cannot be written.")
                                     .arg(path));
                dialog.reject();
            });
            // Waits at least one more turn of the event loop for the layout.
            wait->start(preview->isFolded() ? 0 : kPreviewMilliseconds);
        },
        Qt::SingleShotConnection);
}

} // namespace

int runPrintDialog(const WindowRequest &request, PanelLoader &loader)
{
    PrintDialogStart start;
    const SessionRequest &session = request.session;
    start.queue = session.queueWithoutServer();
    if (session.usesServer()) {
        const QueueInstance named = QueueInstance::fromName(session.queue);
        start.queue = named.queue;
        start.instance = named.instance;
        start.withUserDefaults = true;
    }
    DocumentArguments arguments;
    Result<QStringList> documents = arguments.paths(request.documents);
    if (!documents)
        return badStart(documents.error());
    start.documents = std::move(documents.value());
    start.pageCount = pdfPages();
    start.preset = request.preset;
    if (!session.ticket.isEmpty()) {
        Result<PrintDictionary> ticket = ticketFromFile(session.ticket);
        if (!ticket)
            return badStart(ticket.error());
        start.ticket = std::move(ticket.value());
    }
    std::shared_ptr<const QueueSource> source;
    std::shared_ptr<const JobSink> sink;
    if (session.usesServer()) {
        source = makeServerSource();
        sink = std::make_shared<PrintServerSink>();
    } else {
        const QString folder = demoOutputFolder();
        Result<std::shared_ptr<const QueueSource>> made = makePpdSource(
            session, QCoreApplication::translate("PrintDialogRunner", "No print server: jobs are written to %1")
                         .arg(QDir::toNativeSeparators(folder)));
        if (!made)
            return badStart(made.error());
        source = std::move(made.value());
        sink = std::make_shared<FolderSink>(folder);
    }
    return showPrintDialog(std::move(source), std::move(sink), loader, std::move(start), request.screenshot);
}

int showPrintDialog(std::shared_ptr<const QueueSource> source, std::shared_ptr<const JobSink> sink, PanelLoader &loader,
                    PrintDialogStart start, const QString &screenshot, const std::function<void(PrintDialog &)> &adapt)
{
    start.remembersSize = screenshot.isEmpty();
    useOutlines();
    RememberedTickets remembered;
    PrintDialog dialog(std::move(source), std::move(sink), loader, remembered, std::move(start));
    if (adapt)
        adapt(dialog);
    int status = 0;
    QObject::connect(&dialog, &PrintDialog::printed, [](const QString &note) {
        if (!note.isEmpty())
            tell(note + u'\n');
    });
    if (!screenshot.isEmpty())
        takePicture(dialog, screenshot, status);
    dialog.exec();
    // Who cancels while the dialog still looks for printers knows what he does.
    if (dialog.hadPrinter() || dialog.isWaiting())
        return status;
    // A script that takes a picture shows no window, so the reason goes to standard error.
    return badStart(dialog.messageText().isEmpty() ? dialog.printReason() : dialog.messageText());
}

} // namespace bv
