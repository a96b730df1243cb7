// SPDX-License-Identifier: GPL-2.0-or-later
// Clicks a check box of the pane in the whole dialog, and lets the window settle: rules, summary, conflicts, marks and
// painting. The yardstick sets the texts of a list of 29 rows anew. Prints the CPU time of each and the ratio. With
// --constraints N the PPD has N further constraints. With --clicks N only clicks N times, for counting instructions by
// difference: valgrind --tool=callgrind click_bench --clicks 10, and 20.
#include "Measure.h"
#include "support/TestRoot.h"

#include "dialog/PrintDialog.h"
#include "jobs/FolderSink.h"
#include "queues/PanelLoader.h"
#include "queues/QueueSource.h"
#include "queues/RememberedTickets.h"

#include <QApplication>
#include <QCheckBox>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <cstdio>
#include <ctime>

namespace {

constexpr int kRounds = 60;

double processorMilliseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// One printer with our PPD, to which constraints between further options are added.
class Printer final : public bv::QueueSource
{
public:
    explicit Printer(int constraints) : m_constraints(constraints) {}
    bv::Result<std::vector<bv::PrintQueue>> queues(bv::CallControl & /*control*/) const override
    {
        bv::PrintQueue queue;
        queue.name = QStringLiteral("QL70");
        queue.deviceUri = QStringLiteral("socket://127.0.0.1");
        return std::vector<bv::PrintQueue>{queue};
    }
    bv::Result<bv::PpdText> ppd(const QString & /*queue*/, bv::CallControl & /*control*/) const override
    {
        const QString path = QStringLiteral(BV_SOURCE_DIR "/resources/QL70.ppd");
        bv::Result<bv::PpdText> text = bv::PpdText::read(path);
        if (!text || m_constraints == 0)
            return text;
        QByteArray options = "\n*OpenGroup: Bench/Bench\n*OpenUI *BVBench/Bench: PickOne\n*DefaultBVBench: None\n"
                             "*BVBench None/None: \"\"\n";
        QByteArray rules;
        for (int i = 0; i < m_constraints; ++i) {
            const QByteArray name = "C" + QByteArray::number(i);
            options += "*BVBench " + name + "/" + name + ": \"\"\n";
            rules += "*UIConstraints: *BVBench " + name + " *BVAutoTrapping True\n";
        }
        options += "*CloseUI: *BVBench\n*CloseGroup: Bench\n" + rules;
        return bv::PpdText::from(text.value().text.replace("\n*End", options), path);
    }

private:
    int m_constraints;
};

class ListOfRows
{
public:
    ListOfRows()
    {
        m_list.setColumnCount(2);
        m_list.resize(320, 640);
        for (int row = 0; row < kRows; ++row)
            new QTreeWidgetItem(&m_list);
        m_list.show();
    }
    void setAnew(int round)
    {
        for (int row = 0; row < kRows; ++row)
            for (int column = 0; column < 2; ++column)
                m_list.topLevelItem(row)->setText(column, QStringLiteral("Text %1 of %2").arg(row).arg(round + column));
        QCoreApplication::processEvents();
    }

private:
    static constexpr int kRows = 29;
    QTreeWidget m_list;
};

int number(const QStringList &arguments, const QString &option, int otherwise)
{
    const qsizetype at = arguments.indexOf(option);
    return at < 0 || at + 1 >= arguments.size() ? otherwise : arguments[at + 1].toInt();
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir home;
    for (const char *variable : {"XDG_STATE_HOME", "XDG_CONFIG_HOME"})
        qputenv(variable, home.path().toUtf8());
    const bvtest::TestRoot root;
    QApplication application(argc, argv);
    const int clicks = number(QCoreApplication::arguments(), QStringLiteral("--clicks"), 0);
    const int constraints = number(QCoreApplication::arguments(), QStringLiteral("--constraints"), 0);

    bv::PanelLoader loader;
    if (!loader.load(QStringLiteral(BV_PLUGIN), QStringLiteral("en_US")))
        return 1;
    bv::RememberedTickets remembered(home.filePath("tickets"));
    bv::PrintDialog dialog(std::make_shared<Printer>(constraints),
                           std::make_shared<bv::FolderSink>(home.filePath("jobs")), loader, remembered,
                           {QStringLiteral("QL70"), std::nullopt, {}});
    dialog.resize(1200, 760);
    QEventLoop loop;
    QObject::connect(&dialog, &bv::PrintDialog::ready, &loop, &QEventLoop::quit);
    dialog.show();
    loop.exec();
    auto *box = dialog.findChild<QCheckBox *>(QStringLiteral("check_AutoTrapping"));
    if (!box)
        return 1;
    // A click is looked at a moment later, when the events that came with it are done.
    const auto click = [box] {
        box->click();
        QEventLoop settle;
        QTimer::singleShot(30, &settle, &QEventLoop::quit);
        settle.exec();
    };
    click();
    for (int i = 0; i < clicks; ++i)
        click();
    if (clicks > 0)
        return 0;

    ListOfRows list;
    list.setAnew(0);
    std::vector<double> ours;
    std::vector<double> theirs;
    std::vector<double> ratios;
    for (int round = 1; round <= kRounds; ++round) {
        double begin = processorMilliseconds();
        click();
        ours.push_back(processorMilliseconds() - begin);
        begin = processorMilliseconds();
        list.setAnew(round);
        theirs.push_back(processorMilliseconds() - begin);
        ratios.push_back(ours.back() / theirs.back());
    }
    std::printf("a click in the pane: %.2f ms of CPU; 29 rows set anew: %.2f ms; ratio %.2f\n", bvbench::median(ours),
                bvbench::median(theirs), bvbench::median(ratios));
    return 0;
}
