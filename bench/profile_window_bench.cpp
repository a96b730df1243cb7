// SPDX-License-Identifier: GPL-2.0-or-later
// Opens the profile management window with three full lists and with empty ones, and changes its class menu with 500
// rows. Prints medians and ratios. Full and empty lists take turns, so the machine's load affects both alike.
#include "profileui/ManagementWindow.h"
#include "profileui/ProfileControl.h"
#include "profiles/ProfileListFile.h"
#include "support/SampleLists.h"
#include "support/TestRoot.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

constexpr int kRounds = 21;

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Time from pressing the button to the first painted window. `inWindow` runs in the window before it is closed.
template <typename Steps> double openingTime(Steps inWindow)
{
    ProfileControl control;
    double opened = 0;
    const auto start = Clock::now();
    QTimer::singleShot(0, &control, [&] {
        auto *window = qobject_cast<bv::ManagementWindow *>(QApplication::activeModalWidget());
        QApplication::processEvents();
        opened = millisecondsSince(start);
        inWindow(window->controls);
        window->reject();
    });
    control.showProfileManagementWindow();
    return opened;
}

// Time from choosing a class in the menu to the painted table.
double classChangeTime(const Ui::ProfileManagement &controls, int item)
{
    const auto start = Clock::now();
    controls._profileMenu->setCurrentIndex(item);
    emit controls._profileMenu->activated(item);
    controls._profileTableView->viewport()->repaint();
    return millisecondsSince(start);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const bvtest::TestRoot root;
    auto lists = bvtest::makeLists();
    const std::string empty = bv::profileListXml(lists->rgb, lists->sim, lists->dst).value();
    for (ProfileList *list : {&lists->rgb, &lists->sim, &lists->dst})
        bvtest::fill(*list);
    const std::string full = bv::profileListXml(lists->rgb, lists->sim, lists->dst).value();

    std::vector<double> fullTimes;
    std::vector<double> emptyTimes;
    std::vector<double> changes;
    for (int round = 0; round < kRounds; ++round) {
        bvtest::TestRoot::writeList(full);
        fullTimes.push_back(openingTime([&](const Ui::ProfileManagement &controls) {
            for (const int item : {1, 2, 0})
                changes.push_back(classChangeTime(controls, item));
        }));
        bvtest::TestRoot::writeList(empty);
        emptyTimes.push_back(openingTime([](const Ui::ProfileManagement &) {}));
    }
    std::printf("opening the window: three full lists %.1f ms, empty lists %.1f ms, ratio %.2f (aim 1.5)\n",
                median(fullTimes), median(emptyTimes), median(fullTimes) / median(emptyTimes));
    std::printf("class menu change with 500 rows: %.1f ms (aim 16)\n", median(changes));
    return 0;
}
