// SPDX-License-Identifier: GPL-2.0-or-later
// The window as a whole: its title, and what it keeps for the next time.
#include "DialogWorld.h"

#include "widgets/DocumentList.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QPushButton>
#include <QTest>
#include <map>

using namespace bv;

namespace {

using Window = bvtest::DialogTest;

TEST_F(Window, IsCalledByItsDocuments)
{
    open({QString(), std::nullopt, {}});
    EXPECT_EQ(dialog->windowTitle(), "Print");
    const QString odd = write("new\nline[*] & more.txt", "text");
    dialog->parts().documents->addDocuments({odd});
    EXPECT_EQ(dialog->windowTitle(), "Print – new line[*][*] & more.txt");
    dialog->parts().documents->addDocuments({document, write("b.txt", "text")});
    EXPECT_EQ(dialog->windowTitle(), "Print – 3 documents");
}

TEST_F(Window, OpensAsLargeAsItWasAndOnThePrinterThatPrintedLast)
{
    const auto chosen = [this] { return find<QComboBox>("printer")->currentData().toString(); };
    open();
    const QSize usual = dialog->size();
    dialog->resize(usual - QSize(100, 100));
    dialog->reject();
    open({"Second", std::nullopt, {document}});
    EXPECT_EQ(dialog->size(), usual - QSize(100, 100));
    dialog->resize(3000, 3000);
    QSignalSpy printed(dialog.get(), &PrintDialog::printed);
    find<QPushButton>("print")->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !printed.isEmpty(); }, 30000));
    open();
    EXPECT_LT(dialog->width(), 3000) << "no larger than the screen";
    EXPECT_EQ(chosen(), "Second");
    open({"Paper", std::nullopt, {document}});
    EXPECT_EQ(chosen(), "Paper");
    dialog->reject();
    open();
    EXPECT_EQ(chosen(), "Second") << "a window that was canceled changes nothing";
    source.listed.erase(source.listed.begin() + 1);
    open();
    EXPECT_EQ(chosen(), "Paper") << "it is gone";
}

// What stands in the window while the print server is silent stands there still when the pane has come.
class FirstLayout : public bvtest::DialogTest, public ::testing::WithParamInterface<QSize>
{
protected:
    static void settle()
    {
        for (int turn = 0; turn < 5; ++turn)
            QCoreApplication::processEvents();
    }

    QRect placeOf(const QWidget *widget) const { return {widget->mapTo(dialog.get(), QPoint(0, 0)), widget->size()}; }

    std::map<QString, QRect> places()
    {
        std::map<QString, QRect> found;
        for (const char *name : {"documentAdd", "documentRemove", "copies", "allPages", "pageRange", "previewToggle",
                                 "previewPage", "summaryView", "paneTitle", "cancel", "print"}) {
            const auto *widget = find<QWidget>(name);
            QRect &place = found[QLatin1String(name)];
            place = widget->isVisible() ? placeOf(widget) : QRect();
            for (const QWidget *parent = widget; parent != dialog.get(); parent = parent->parentWidget()) {
                const QRect around = placeOf(parent);
                EXPECT_TRUE(place.isNull() || (place.left() >= around.left() && place.right() <= around.right()))
                    << name << " is cut: " << place.left() << "-" << place.right() << " in " << around.left() << "-"
                    << around.right();
            }
        }
        return found;
    }
};

TEST_P(FirstLayout, Stays)
{
    qputenv("BVCO_ROOT", folder.path().toUtf8());
    loadPlugin(QStringLiteral(BV_BUILD_DIR "/lib/bvco/bvco.so"));
    source.add("Ours", BV_SOURCE_DIR "/resources/QL70.ppd");
    source.isSilent = true;
    make({"Ours", std::nullopt, {document}});
    dialog->resize(GetParam());
    QSignalSpy ready(dialog.get(), &PrintDialog::ready);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
    settle();
    const std::map<QString, QRect> before = places();
    source.isSilent = false;
    ASSERT_TRUE(ready.wait(30000));
    settle();
    for (const auto &[name, place] : places())
        EXPECT_TRUE(place == before.at(name))
            << name.toStdString() << " moved from " << before.at(name).left() << "," << before.at(name).top() << " "
            << before.at(name).width() << "x" << before.at(name).height() << " to " << place.left() << ","
            << place.top() << " " << place.width() << "x" << place.height();
    qunsetenv("BVCO_ROOT");
}

INSTANTIATE_TEST_SUITE_P(Windows, FirstLayout,
                         ::testing::Values(QSize(682, 400), QSize(800, 700), QSize(1200, 760), QSize(1500, 1000)),
                         [](const auto &info) { return "Width" + std::to_string(info.param.width()); });

} // namespace
