// SPDX-License-Identifier: GPL-2.0-or-later
// A list of profiles that could not be written: the profile window closes in silence, and then the dialog speaks.
#include "DialogWorld.h"
#include "support/ListRoot.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

class ListFailure : public bvtest::DialogTest
{
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        loadPlugin(QStringLiteral(BV_BUILD_DIR "/lib/bvco/bvco.so"));
        source.add("Ours", BV_SOURCE_DIR "/resources/QL70.ppd");
        open({"Ours", std::nullopt, {document}});
        QTest::keyClick(find<QComboBox>("menu_QuickColor"), Qt::Key_End);
        QTest::mouseClick(find<QPushButton>("button_AdvanceColorOptions"), Qt::LeftButton);
    }

    // Opens the profile window and closes it by OK.
    void manageProfiles(const std::function<void()> &meanwhile)
    {
        QTimer::singleShot(0, dialog.get(), [&] {
            QWidget *window = QApplication::activeModalWidget();
            ASSERT_NE(window, nullptr);
            meanwhile();
            QTest::mouseClick(window->findChild<QPushButton *>("_windowOK"), Qt::LeftButton);
            EXPECT_FALSE(window->isVisible());
            EXPECT_EQ(dialog->messageText(), QString()) << "not before the window has closed";
        });
        QTest::mouseClick(find<QPushButton>("button_ManageProfile"), Qt::LeftButton);
        QCoreApplication::processEvents();
    }

    const bvtest::ListRoot root;
};

TEST_F(ListFailure, IsSaidOnceTheProfileWindowHasClosed)
{
    manageProfiles([] {});
    EXPECT_EQ(dialog->messageText(), QString());
    manageProfiles([] { std::filesystem::remove(bv::mapRootPath(kHelperPath)); });
    EXPECT_TRUE(dialog->messageText().contains("not saved")) << qPrintable(dialog->messageText());
}

} // namespace
