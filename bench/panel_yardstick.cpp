// SPDX-License-Identifier: GPL-2.0-or-later
// Compares the pane with other programs that open the same PPD: `lpoptions -l` and Qt's own print dialog with its page
// of options, both on a private print server. Also measures the whole print dialog on that server. Prints medians of 20
// rounds in milliseconds, and ratios to the pane. The start of the application object is not counted.
#include "PanelOpening.h"
#include "support/PaneFixture.h"
#include "support/PrivateCupsd.h"

#include "dialog/PrintDialog.h"
#include "jobs/FolderSink.h"
#include "queues/PanelLoader.h"
#include "queues/RememberedTickets.h"

#include <QDialog>
#include <QEventLoop>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <cstdio>

namespace {

using bvbench::milliseconds;

constexpr int kRuns = 20;
const QString kQueue = QStringLiteral("QL70");

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

// Time of the command from start to end. `lines` is set to the number of options that it lists.
double lpoptionsTime(int &lines)
{
    QProcess process;
    const double time = milliseconds([&] {
        process.start(QStringLiteral("lpoptions"), {QStringLiteral("-p"), kQueue, QStringLiteral("-l")});
        process.waitForFinished();
    });
    require(process.exitCode() == 0, "lpoptions failed");
    lines = int(process.readAllStandardOutput().count('\n'));
    return time;
}

// Time from the printer's name to the painted page of its options. `dialogOnly` is set to the time until the dialog was
// painted.
double qtDialogTime(double &dialogOnly)
{
    double time = 0;
    const auto start = std::chrono::steady_clock::now();
    const auto passed = [start] {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    };
    const QPrinterInfo info = QPrinterInfo::printerInfo(kQueue);
    require(!info.isNull(), "Qt does not find the queue");
    QPrinter printer(info);
    QPrintDialog dialog(&printer);
    dialog.show();
    QCoreApplication::processEvents();
    dialogOnly = passed();
    auto *properties = dialog.findChild<QPushButton *>(QStringLiteral("properties"));
    require(properties != nullptr, "Qt's print dialog has no button for the properties");
    // The button opens a modal window, and the click returns only when it is closed.
    QTimer::singleShot(0, &dialog, [&] {
        QWidget *window = QApplication::activeModalWidget();
        auto *pages = window ? window->findChild<QTabWidget *>() : nullptr;
        require(pages && pages->count() > 1, "Qt's print dialog has no page of options");
        pages->setCurrentIndex(pages->count() - 1);
        QCoreApplication::processEvents();
        time = passed();
        qobject_cast<QDialog *>(window)->reject();
    });
    properties->click();
    return time;
}

// Time of this project's print dialog until the pane is painted in its window. It asks the server for the queues and
// the PPD, and paints the window before each request.
double ownDialogTime(const std::shared_ptr<const bv::QueueSource> &source,
                     const std::shared_ptr<const bv::JobSink> &sink, bv::PanelLoader &loader,
                     bv::RememberedTickets &remembered)
{
    return milliseconds([&] {
        bv::PrintDialog dialog(source, sink, loader, remembered, {kQueue, std::nullopt, {}});
        QEventLoop loop;
        QObject::connect(&dialog, &bv::PrintDialog::ready, &loop, &QEventLoop::quit);
        dialog.show();
        loop.exec();
        QCoreApplication::processEvents();
        require(dialog.hadPrinter(), "the print dialog does not open the queue");
    });
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir root;
    qputenv("BVCO_ROOT", root.path().toUtf8());
    bvtest::PrivateCupsd server;
    server.listenOnPort();
    require(server.start().isEmpty(), "the print server does not come up");
    require(server.addQueue(kQueue, server.directPpd(QStringLiteral(BV_SOURCE_DIR "/resources/QL70.ppd"))),
            "the print server does not take the queue");
    server.useHere(root.path());
    const QApplication application(argc, argv);

    const bvtest::TestPpd ppd;
    bvtest::TestTicket ticket;
    bvtest::TestSession session;
    bvtest::TestCallback callback;
    callback.settings = &ticket;
    callback.session = &session;
    callback.ppd = ppd.get();
    const std::shared_ptr<const bv::QueueSource> source = bv::makeServerSource();
    const std::shared_ptr<const bv::JobSink> sink = std::make_shared<bv::FolderSink>();
    const bv::RememberedTickets remembered(root.filePath(QStringLiteral("tickets")));

    std::vector<double> pane;
    std::vector<double> lpoptions;
    std::vector<double> qtDialog;
    std::vector<double> qtPage;
    std::vector<double> ownDialog;
    int options = 0;
    // The first round warms the caches and does not count.
    for (int run = 0; run <= kRuns; ++run) {
        double dialogOnly = 0;
        const double times[] = {bvbench::openPanel(callback).whole, lpoptionsTime(options), qtDialogTime(dialogOnly)};
        // The plug-in stays loaded until the loader is destroyed.
        bv::PanelLoader loader;
        require(bool(loader.load(QStringLiteral(BV_PLUGIN), {})), "the plug-in cannot be loaded");
        const double own = ownDialogTime(source, sink, loader, const_cast<bv::RememberedTickets &>(remembered));
        if (run == 0)
            continue;
        pane.push_back(times[0]);
        lpoptions.push_back(times[1]);
        qtDialog.push_back(dialogOnly);
        qtPage.push_back(times[2]);
        ownDialog.push_back(own);
    }
    for (const auto &[name, values] : {std::pair<const char *, std::vector<double> &>{"pane, load to restored", pane},
                                       {"lpoptions -l", lpoptions},
                                       {"Qt's print dialog", qtDialog},
                                       {"Qt's print dialog and option page", qtPage},
                                       {"bvprint's dialog with the pane", ownDialog}})
        std::printf("%-36s %8.2f ms  %6.2f of the pane\n", name, bvbench::median(values),
                    bvbench::median(values) / bvbench::median(pane));
    std::printf("lpoptions lists %d options\n", options);
    return 0;
}
