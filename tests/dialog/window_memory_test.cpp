// SPDX-License-Identifier: GPL-2.0-or-later
// The window as a whole: its title, and what it keeps for the next time.
#include "DialogWorld.h"

#include "widgets/DocumentList.h"

#include <QComboBox>
#include <QPushButton>
#include <QTest>

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

} // namespace
