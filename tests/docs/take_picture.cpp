// SPDX-License-Identifier: GPL-2.0-or-later
// take_picture KIND FILE: opens the window as one kind of user has it and takes its picture (PNG). Without arguments,
// lists the kinds. Needs no display, print server or printer.
#include "support/ListRoot.h"
#include "support/SampleLists.h"

#include "dialog/PrintDialog.h"
#include "dialog/PrintDialogLayout.h"
#include "jobs/JobSink.h"
#include "jobs/PdfPages.h"
#include "presets/PresetMenu.h"
#include "preview/PagePreview.h"
#include "printers/PrinterMenu.h"
#include "printers/QueueList.h"
#include "profiles/ProfileListFile.h"
#include "queues/CallControl.h"
#include "queues/PanelLoader.h"
#include "queues/QueueSource.h"
#include "widgets/DocumentList.h"
#include "widgets/OutlineStyle.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPdfWriter>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStyle>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <arpa/inet.h>
#include <cstdio>
#include <sys/socket.h>

namespace {

using bv::PrintDialog;

struct Kind
{
    const char *name;
    QSize size = {1200, 760}; // of the window, in points
    double scale = 1;
    int font = 10;                                        // in points; desktops have 10 or 11
    void (*prepare)(QApplication &application) = nullptr; // before the window is made
    void (*use)(PrintDialog &dialog) = nullptr;           // once it is ready
    bool isWaiting = false;                               // taken while the printer is silent
    int pages = 0;                                        // of the document; 0: the sample
    bool opensWindow = false;                             // a modal one, which closes after the picture
    const char *options = "";                             // lines of the PPD besides ours
    int documents = 1;                                    // the sample and others
};

template <typename Widget> Widget *find(PrintDialog &dialog, const char *name)
{
    return dialog.findChild<Widget *>(QLatin1String(name));
}

void setColors(const QColor &ground, const QColor &field, const QColor &text, const QColor &button,
               const QColor &highlight)
{
    QPalette palette(text, button, field, button.darker(160), button, text, text, field, ground);
    palette.setColor(QPalette::Highlight, highlight);
    constexpr int kBright = 150;
    palette.setColor(QPalette::HighlightedText, qGray(highlight.rgb()) > kBright ? Qt::black : Qt::white);
    palette.setColor(QPalette::ToolTipBase, field);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, QColor(text.red(), text.green(), text.blue(), 150));
    const QColor dimmed((text.red() + ground.red()) / 2, (text.green() + ground.green()) / 2,
                        (text.blue() + ground.blue()) / 2);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, dimmed);
    QApplication::setPalette(palette);
}

void makeDark(QApplication &)
{
    setColors(QColor(0x2b, 0x2b, 0x2b), QColor(0x1e, 0x1e, 0x1e), QColor(0xee, 0xee, 0xee), QColor(0x3a, 0x3a, 0x3a),
              QColor(0x4a, 0x90, 0xd9));
}

void makeContrast(QApplication &)
{
    setColors(Qt::black, Qt::black, Qt::white, Qt::black, Qt::yellow);
}

void makeRightToLeft(QApplication &application)
{
    application.setLayoutDirection(Qt::RightToLeft);
}

void chooseManual(PrintDialog &dialog)
{
    QTest::keyClick(find<QComboBox>(dialog, "menu_QuickColor"), Qt::Key_End);
    find<QPushButton>(dialog, "button_AdvanceColorOptions")->click();
}

void chooseGray(PrintDialog &dialog)
{
    find<QCheckBox>(dialog, "check_ColorAsGrayscale")->click();
}

void chooseInConflict(PrintDialog &dialog)
{
    auto *resolution = find<QComboBox>(dialog, "row_Resolution");
    resolution->setCurrentIndex(resolution->findData(QStringLiteral("1200dpi")));
    find<QCheckBox>(dialog, "check_EconomyPrint")->click();
}

void openMenu(PrintDialog &dialog)
{
    dialog.parts().queues->popUp()->showPopup();
}

void chooseInRows(PrintDialog &dialog)
{
    chooseInConflict(dialog);
    const std::pair<const char *, const char *> choices[] = {
        {"row_PageSize", "A3"}, {"row_MediaType", "Thick"}, {"row_Duplex", "DuplexNoTumble"}};
    for (const auto &[row, choice] : choices) {
        auto *menu = find<QComboBox>(dialog, row);
        menu->setCurrentIndex(std::max(1, menu->findData(QLatin1String(choice))));
    }
    find<QPushButton>(dialog, "moreOptions")->click();
    QWidget *more = QApplication::activeModalWidget();
    auto *staple = more->findChild<QComboBox *>(QStringLiteral("row_BVStaple"));
    staple->setCurrentIndex(1);
    more->close();
}

void choosePhoto(PrintDialog &dialog)
{
    QTest::keyClick(find<QComboBox>(dialog, "menu_QuickColor"), Qt::Key_Down);
}

void openPresets(PrintDialog &dialog)
{
    for (const char *name : {"Draft for reading", "Letterhead & envelopes", "Photos on thick paper, both sides"})
        bv::PresetStore().store(QStringLiteral("QL70"), {QString::fromLatin1(name), {}, {}});
    auto *presets = dialog.parts().presets;
    presets->use(QStringLiteral("Letterhead & envelopes"));
    presets->menu()->popup(presets->mapToGlobal(QPoint(0, presets->height())));
}

void openMoreOptions(PrintDialog &dialog)
{
    find<QPushButton>(dialog, "moreOptions")->click();
}

void manageProfiles(PrintDialog &dialog)
{
    const auto lists = bvtest::makeLists();
    const std::pair<const char *, const char *> profiles[] = {{"MONITOR1.ICC", "Monitors of the studio"},
                                                              {"CAMERA.ICC", "Camera, daylight"},
                                                              {"SCAN-A3.ICC", "Scanner in the hall"}};
    for (const auto &[file, name] : profiles)
        bvtest::add(lists->rgb, bvtest::makeRecord(3, file, 4, 1, name));
    bvtest::TestRoot::writeList(*bv::profileListXml(lists->rgb, lists->sim, lists->dst));
    chooseManual(dialog);
    find<QPushButton>(dialog, "button_ManageProfile")->click();
}

void explainGray(PrintDialog &dialog)
{
    chooseGray(dialog);
    find<QComboBox>(dialog, "row_PageSize")->setFocus();
    find<QPushButton>(dialog, "whyGreyed")->click();
}

void chooseSomePages(PrintDialog &dialog)
{
    find<QRadioButton>(dialog, "somePages")->click();
    find<QLineEdit>(dialog, "pageRange")->setText(QStringLiteral("2-4, 12"));
}

void printIt(PrintDialog &dialog)
{
    find<QPushButton>(dialog, "print")->click();
}

void failThrice(PrintDialog &dialog)
{
    QStringList missing;
    for (int i = 1; i <= 61; ++i)
        missing << QStringLiteral("/net/scans/page-%1-%2.pdf").arg(i).arg(QString(90, u'x'));
    dialog.parts().documents->addDocuments(missing);
}

void showAll(PrintDialog &dialog)
{
    failThrice(dialog);
    find<QPushButton>(dialog, "messageMore")->click();
}

constexpr char kFinishing[] = R"ppd(
*OpenGroup: Finishing/Finishing
*OpenUI *BVStaple/Staple: PickOne
*DefaultBVStaple: None
*BVStaple None/Off: ""
*BVStaple UpperLeft/Upper left corner: ""
*BVStaple Booklet/Two staples in the fold: ""
*CloseUI: *BVStaple
*OpenUI *BVPunch/Punch Holes: PickOne
*DefaultBVPunch: None
*BVPunch None/Off: ""
*BVPunch Two/Two holes: ""
*CloseUI: *BVPunch
*OpenUI *BVOutputTray/Output Tray: PickOne
*DefaultBVOutputTray: Upper
*BVOutputTray Upper/Upper: ""
*BVOutputTray Lower/Lower, face up: ""
*CloseUI: *BVOutputTray
*CloseGroup: Finishing
*OpenGroup: Quality/Print Quality
*OpenUI *BVTonerDensity/Toner Density for Envelopes: PickOne
*DefaultBVTonerDensity: Usual
*BVTonerDensity Usual/Usual: ""
*BVTonerDensity Less/Less: ""
*CloseUI: *BVTonerDensity
*CloseGroup: Quality
*UIConstraints: *BVStaple Booklet *BVPunch Two
*UIConstraints: *BVPunch Two *BVStaple Booklet
)ppd";

// clang-format off
const std::vector<Kind> kKinds = {
    {.name = "default"},
    {.name = "manual",        .use = chooseManual},
    {.name = "gray",          .use = chooseGray},
    {.name = "conflict",      .use = chooseInConflict},
    {.name = "waiting",       .isWaiting = true},
    {.name = "hundred-pages", .pages = 100},
    {.name = "five-documents", .documents = 5},
    {.name = "changed",       .use = chooseInRows, .options = kFinishing},
    {.name = "changed-9",     .font = 9, .use = chooseInRows, .options = kFinishing},
    {.name = "changed-18",    .size = {1920, 1000}, .font = 18, .use = chooseInRows, .options = kFinishing},
    {.name = "photo",         .use = choosePhoto},
    {.name = "presets",       .use = openPresets},
    {.name = "more-options",  .use = openMoreOptions, .opensWindow = true, .options = kFinishing},
    {.name = "profiles",      .use = manageProfiles, .opensWindow = true},
    {.name = "messages",      .use = failThrice},
    {.name = "messages-all",  .use = showAll},
    {.name = "printers",      .use = openMenu},
    {.name = "small-150",     .size = {682, 400}, .scale = 1.5}, // a screen of 1024 by 600 pixels
    {.name = "scale-200",     .scale = 2},
    {.name = "font-9",        .font = 9},
    {.name = "font-18",       .size = {1366, 768}, .font = 18},
    {.name = "right-to-left", .prepare = makeRightToLeft},
    {.name = "dark",          .prepare = makeDark, .use = chooseManual},
    {.name = "high-contrast", .prepare = makeContrast, .use = chooseManual},
    {.name = "pages",         .use = chooseSomePages, .pages = 24},
    {.name = "why-gray",      .use = explainGray},
    {.name = "sending",       .use = printIt},
};
// clang-format on

// One printer with our PPD, and some others that are only listed.
class Printers final : public bv::QueueSource
{
public:
    Printers(QString deviceUri, const char *options) : m_options(options)
    {
        const auto add = [&](const char *name, const char *description, const char *place) -> bv::PrintQueue & {
            bv::PrintQueue queue;
            queue.name = QLatin1String(name);
            queue.description = QLatin1String(description);
            queue.location = QLatin1String(place);
            queue.deviceUri = deviceUri;
            m_queues.push_back(std::move(queue));
            return m_queues.back();
        };
        add("QL70", "Color laser", "Room 214").isDefault = true;
        add("hall", "Copier in the hall", "Third floor").stateReasons = QStringList{"toner-low-warning"};
        bv::PrintQueue &stopped = add("plotter", "Plotter", "Workshop");
        stopped.isStopped = true;
        stopped.stateMessage = QStringLiteral("Out of paper: call the help desk");
        add("old", "Old printer", "Cellar").acceptsJobs = false;
    }
    bv::Result<std::vector<bv::PrintQueue>> queues(bv::CallControl &) const override { return m_queues; }
    bv::Result<bv::PpdText> ppd(const QString &, bv::CallControl &) const override
    {
        const QString path = QStringLiteral(BV_SOURCE_DIR "/resources/QL70.ppd");
        bv::Result<bv::PpdText> text = bv::PpdText::read(path);
        return m_options.isEmpty() || !text ? std::move(text)
                                            : bv::PpdText::from(text.value().text.replace("\n*End", m_options), path);
    }

private:
    QByteArray m_options;
    std::vector<bv::PrintQueue> m_queues;
};

// Takes the first third of a job, and no more until it is told to stop.
class SlowSink final : public bv::JobSink
{
public:
    bv::Result<bv::SentJob> submit(const bv::JobRequest & /*request*/, bv::CallControl &control) const override
    {
        constexpr int64_t kBytes = 4'800'000;
        control.setSum(kBytes);
        control.addDone(kBytes / 3);
        while (!control.isOver())
            QThread::msleep(10);
        return bv::Result<bv::SentJob>::failure(QStringLiteral("stopped"));
    }
};

QString pdfOf(int pages, const QString &path)
{
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&writer);
    painter.setFont(QFont(QStringLiteral("DejaVu Sans"), 60));
    for (int page = 1; page <= pages; ++page) {
        if (page > 1)
            writer.newPage();
        painter.drawText(QRect(0, 0, writer.width(), writer.height()), Qt::AlignCenter,
                         QStringLiteral("Page %1").arg(page));
    }
    return path;
}

// A port that takes questions and answers none.
int silentPort()
{
    const int printer = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    if (bind(printer, reinterpret_cast<sockaddr *>(&address), length) != 0 ||
        getsockname(printer, reinterpret_cast<sockaddr *>(&address), &length) != 0)
        return 0;
    return ntohs(address.sin_port);
}

bool save(PrintDialog &dialog, const QString &path)
{
    QCoreApplication::processEvents();
    QPixmap picture = dialog.grab();
    // A pop-up is a window of its own, over this one.
    QWidget *over = QApplication::activePopupWidget();
    if (!over)
        over = QApplication::activeModalWidget();
    if (over && over != &dialog) {
        QPainter painter(&picture);
        const QPoint corner = dialog.mapFromGlobal(over->mapToGlobal(QPoint(0, 0)));
        painter.drawPixmap(corner, over->grab());
        painter.drawRect(QRect(corner, over->size()).adjusted(-1, -1, 0, 0)); // its frame is not ours to draw
    }
    constexpr int kSmallest = 0;
    return picture.toImage().convertToFormat(QImage::Format_RGB888).save(path, "PNG", kSmallest);
}

int take(const Kind &kind, const QString &path, QApplication &application)
{
    const QTemporaryDir home;
    for (const char *variable : {"XDG_STATE_HOME", "XDG_CONFIG_HOME"})
        qputenv(variable, home.path().toLocal8Bit());
    const bvtest::ListRoot root;
    if (kind.isWaiting) {
        root.write("snmp/snmp.conf", "mibs :\ndefaultPort " + std::to_string(silentPort()) + "\n");
        qputenv("SNMPCONFPATH", root.file("snmp").c_str());
    }
    bv::useOutlines();
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), kind.font));
    if (kind.prepare)
        kind.prepare(application);
    bv::PanelLoader loader;
    if (!loader.load(QStringLiteral(BV_BUILD_DIR "/lib/bvco/bvco.so"), QStringLiteral("en_US")))
        return 1;
    bv::RememberedTickets remembered(home.filePath("tickets"));
    const QString sample = kind.pages > 0 ? pdfOf(kind.pages, home.filePath("report.pdf"))
                                          : QStringLiteral(BV_SOURCE_DIR "/resources/demo/sample.pdf");
    QStringList documents = {sample};
    for (int i = 2; i <= kind.documents; ++i)
        documents << pdfOf(1, home.filePath(QStringLiteral("report %1.pdf").arg(i)));
    PrintDialog dialog(std::make_shared<Printers>(kind.isWaiting ? QStringLiteral("lpd://127.0.0.1/queue")
                                                                 : QStringLiteral("socket://127.0.0.1"),
                                                  kind.options),
                       std::make_shared<SlowSink>(), loader, remembered,
                       {QStringLiteral("QL70"), std::nullopt, documents, bv::pdfPages()});
    dialog.resize(kind.size);
    int status = 1;
    if (kind.isWaiting) {
        auto *look = new QTimer(&dialog);
        QObject::connect(look, &QTimer::timeout, &dialog, [&] {
            const auto *skip = find<QPushButton>(dialog, "skipWait");
            if (!skip || !skip->isVisible())
                return;
            status = save(dialog, path) ? 0 : 1;
            dialog.reject();
        });
        look->start(200);
        dialog.exec();
        return status;
    }
    QSignalSpy ready(&dialog, &PrintDialog::ready);
    QSignalSpy shown(dialog.parts().preview, &bv::PagePreview::shown);
    dialog.show();
    if (!ready.wait(30000))
        return 1;
    constexpr int kSettled = 200; // milliseconds: scroll bars and columns find their places
    if (kind.opensWindow) {
        if (shown.isEmpty())
            shown.wait(10000);
        auto *look = new QTimer(&dialog);
        QObject::connect(look, &QTimer::timeout, &dialog, [&] {
            QWidget *over = QApplication::activeModalWidget();
            if (!over)
                return;
            status = save(dialog, path) ? 0 : 1;
            look->stop();
            over->close();
        });
        look->start(kSettled);
        kind.use(dialog); // may return only when the window is closed
        const bool isTaken = QTest::qWaitFor([&status] { return status == 0; }, 10000);
        return isTaken ? 0 : 1;
    }
    if (!dialog.parts().preview->isFolded() && shown.isEmpty())
        shown.wait(10000);
    if (kind.use)
        kind.use(dialog);
    QTest::qWait(kSettled);
    return save(dialog, path) ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        for (const Kind &kind : kKinds)
            std::printf("%s\n", kind.name);
        return argc == 1 ? 0 : 2;
    }
    for (const Kind &kind : kKinds) {
        if (std::string_view(kind.name) != argv[1])
            continue;
        qputenv("QT_SCALE_FACTOR", QByteArray::number(kind.scale));
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QApplication application(argc, argv);
        return take(kind, QString::fromLocal8Bit(argv[2]), application);
    }
    std::fprintf(stderr, "take_picture: there is no kind \"%s\"\n", argv[1]);
    return 2;
}
