// SPDX-License-Identifier: GPL-2.0-or-later
// The window as the panel opens it: the advanced pane's menus and rules are updated after OK.
#include "platform/Bundle.h"
#include "plugin/PDEPlugInInterface.h"
#include "profileui/ProfileWindowFixture.h"

#include <QComboBox>
#include <QPushButton>

namespace bvtest {
namespace {

class PanelWindow : public ProfileWindow
{
protected:
    void SetUp() override
    {
        ProfileWindow::SetUp();
        writeFile();
        // A network queue of a kind whose printer is not asked.
        useUri("socket://192.0.2.1");
        callback.settings = &ticket;
        callback.session = &session;
        callback.ppd = ppd.get();
        setPluginBundle({QStringLiteral("/bundle"), {}});
        panel = std::make_unique<PDEPlugInInterface>(&callback);
        view = panel->panelView();
        ASSERT_TRUE(view);
        panel->willShow();
        QString error;
        panel->restoreValuesAndReturnError(&error);
        manage = view->findChild<QPushButton *>(QStringLiteral("button_ManageProfile"));
        ASSERT_TRUE(manage);
    }
    QComboBox *menu(const char *name) const
    {
        auto *found = panel->panelView()->findChild<QComboBox *>(QString::fromLatin1(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    static QStringList profileItems(const QComboBox *menu)
    {
        QStringList items;
        for (int i = 0; i < menu->count(); ++i) {
            if (menu->itemText(i).contains(QLatin1String(".icc(")))
                items += menu->itemText(i);
        }
        return items;
    }
    void manageProfiles(const std::function<void()> &steps)
    {
        QTimer::singleShot(0, panel.get(), [&] {
            window = qobject_cast<bv::ManagementWindow *>(QApplication::activeModalWidget());
            ASSERT_TRUE(window);
            steps();
        });
        manage->click();
        EXPECT_FALSE(window->isVisible());
    }

    TestPpd ppd;
    TestCallback callback;
    std::unique_ptr<PDEPlugInInterface> panel;
    QWidget *view = nullptr;
    QPushButton *manage = nullptr;
};

TEST_F(PanelWindow, MenusFollowAtOnceAndKeepAChoiceThatStillExists)
{
    QComboBox *source = menu("menu_iRGBSource");
    QComboBox *text = menu("menu_tRGBSource");
    const QStringList before = profileItems(source);
    ASSERT_EQ(before.size(), 3);
    EXPECT_EQ(before.join(u' '), QStringLiteral("three.icc(Three)Disk four.icc(Four)Disk six.icc(Six)Card"));
    source->setCurrentText(before[1]);
    text->setCurrentText(before[2]);
    manageProfiles([&] {
        clickRow(5);
        press(c()._deleteButton);
        clickCell(0, bv::ProfileTableModel::kInMenu);
        add(QStringLiteral("new.icc"), QStringLiteral("New"));
        press(c()._localOK);
        press(c()._windowOK);
    });
    const QString after = QStringLiteral("one.icc(One)Disk three.icc(Three)Disk four.icc(Four)Disk new.icc(New)Disk");
    for (QComboBox *each : {source, text, menu("menu_gRGBSource")})
        EXPECT_EQ(profileItems(each).join(u' '), after);
    EXPECT_EQ(source->currentText(), QStringLiteral("four.icc(Four)Disk"));
    // The PPD's default replaces the deleted profile.
    EXPECT_FALSE(text->currentText().contains(u'('));
    EXPECT_GE(text->currentIndex(), 0);
}

TEST_F(PanelWindow, WithoutAHelperTheMenusStillShowTheFile)
{
    QComboBox *source = menu("menu_iRGBSource");
    const QStringList before = profileItems(source);
    const std::string file = fileBytes();
    manageProfiles([&] {
        clickRow(5);
        press(c()._deleteButton);
        QFile::remove(helperFile());
        press(c()._windowOK);
    });
    EXPECT_EQ(profileItems(source), before);
    EXPECT_EQ(fileBytes(), file);
}

TEST_F(PanelWindow, BelongsToTheWindowThatCurrentlyHoldsThePane)
{
    QDialog dialog;
    for (QWidget *holder : {view, static_cast<QWidget *>(&dialog)}) {
        view->setParent(holder == view ? nullptr : holder);
        manageProfiles([&] {
            EXPECT_EQ(window->parentWidget(), holder);
            press(c()._windowCancel);
        });
    }
    view->setParent(nullptr);
}

TEST_F(PanelWindow, TheRulesRunAgainAfterOkAndNotAfterCancel)
{
    // Under a preset nothing can be adjusted in the advanced pane, so its button is greyed out and says why.
    auto *toAdvanced = view->findChild<QPushButton *>(QStringLiteral("button_AdvanceColorOptions"));
    ASSERT_TRUE(toAdvanced);
    ASSERT_FALSE(toAdvanced->isEnabled());
    toAdvanced->setEnabled(true);
    toAdvanced->setToolTip({});
    manageProfiles([&] { press(c()._windowCancel); });
    EXPECT_TRUE(toAdvanced->isEnabled());
    manageProfiles([&] { press(c()._windowOK); });
    EXPECT_FALSE(toAdvanced->isEnabled());
    EXPECT_FALSE(toAdvanced->toolTip().isEmpty());
}

} // namespace
} // namespace bvtest
