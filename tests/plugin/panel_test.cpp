// SPDX-License-Identifier: GPL-2.0-or-later
// The panel as a dialog drives it, with the project's own PPD and with incomplete ones.
#include "plugin/PDEPlugInInterface.h"
#include "support/PaneFixture.h"
#include "support/TestRoot.h"

#include "platform/Bundle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

using bvtest::TestPpd;

namespace {

class Panel : public testing::Test
{
protected:
    Panel() : Panel(std::make_unique<TestPpd>()) {}
    explicit Panel(std::unique_ptr<TestPpd> file) : ppd(std::move(file))
    {
        qputenv("BVCO_ROOT", root.path().toUtf8()); // no helper, no list file
        setPluginBundle({QStringLiteral("/plugin"), QString()});
        callback.settings = &ticket;
        callback.session = &session;
        callback.ppd = ppd->get();
        panel = std::make_unique<PDEPlugInInterface>(&callback);
    }
    void open()
    {
        view = panel->panelView();
        panel->restoreValuesAndReturnError(nullptr);
        panel->willShow();
    }
    template <typename Control> Control *control(const char *name) const
    {
        auto *found = view->findChild<Control *>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    // Chooses an item as a user does, with its action.
    void choose(const char *name, int index)
    {
        auto *menu = control<QComboBox>(name);
        menu->setCurrentIndex(index);
        emit menu->activated(index);
    }
    QString summary(const char *key) const
    {
        const bv::PrintValue value = panel->summaryInfo().value(QLatin1String(key));
        return value.string() ? *value.string() : QStringLiteral("-");
    }
    QStringList order() const
    {
        QStringList names;
        const bv::PrintValue list = panel->summaryInfo().value(bv::kSummaryDisplayOrder);
        for (const bv::PrintValue &name : *list.array())
            names.append(*name.string());
        return names;
    }

    QTemporaryDir root;
    std::unique_ptr<TestPpd> ppd;
    bvtest::TestTicket ticket;
    bvtest::TestSession session;
    bvtest::TestCallback callback;
    std::unique_ptr<PDEPlugInInterface> panel;
    QWidget *view = nullptr;
};

TEST_F(Panel, AnswersTheSameBeforeAndAfterTheViewIsAskedFor)
{
    const QStringList keys = panel->supportedPPDOptionKeys();
    EXPECT_EQ(keys.size(), 29);
    EXPECT_EQ(keys.first(), "BVImageRGBSource") << "the advanced pane comes first";
    EXPECT_EQ(keys.last(), "BVBlackOverprint");
    const auto before = order();
    view = panel->panelView();
    EXPECT_EQ(panel->panelView(), view);
    EXPECT_EQ(panel->supportedPPDOptionKeys(), keys);
    EXPECT_EQ(order(), before);
    EXPECT_EQ(panel->panelName(), "Color Options");
    EXPECT_EQ(panel->panelKind(), "vnd.brevane.pde.QL70.bvco");
}

TEST_F(Panel, OpensOnTheColorOptionsPaneWithThePpdsDefaults)
{
    open();
    for (const auto *option : {"BVQuickColor", "BVBrightness", "BVEdgeType", "BVBlackOverprint"}) {
        const QString menu = QString(option).replace("BVEdgeType", "BVEdgeStrength").replace("BV", "menu_");
        EXPECT_EQ(control<QComboBox>(qPrintable(menu))->currentData().toString(),
                  ppdFindOption(ppd->get(), option)->defchoice);
    }
    EXPECT_FALSE(control<QWidget>("onAdvancedView")->isVisibleTo(view));
    EXPECT_TRUE(control<QWidget>("onColorView")->isVisibleTo(view));
    EXPECT_FALSE(control<QPushButton>("button_AdvanceColorOptions")->isEnabled());
    EXPECT_EQ(control<QTabWidget>("tab_SwitchVew")->count(), 3);
    EXPECT_EQ(control<QTabWidget>("tab_SwitchVew")->tabText(2), "Graphics");
    EXPECT_FALSE(control<QPushButton>("button_ManageProfile")->isEnabled()) << "no helper: nobody may manage profiles";
    EXPECT_FALSE(control<QPushButton>("button_ManageProfile")->toolTip().isEmpty());
}

TEST_F(Panel, OnlyAdministratorsManageProfilesAndHaveThemRefreshed)
{
    session.uri = "lpd://192.0.2.1/lp";
    for (const char *answer : {"FALSE", "TRUE"}) {
        bvtest::TestRoot::installHelper(std::string(R"(echo "$1" >> "${0%%/Library/*}/asked"; echo "$1=)") + answer +
                                        '"');
        panel = std::make_unique<PDEPlugInInterface>(&callback);
        view = panel->panelView();
        QFile asked(root.filePath("asked"));
        ASSERT_TRUE(asked.open(QIODevice::ReadOnly));
        const bool allowed = answer == std::string("TRUE");
        EXPECT_EQ(asked.readAll().contains("mibwalk_XPC"), allowed);
        EXPECT_EQ(control<QPushButton>("button_ManageProfile")->isEnabled(), allowed);
    }
}

TEST_F(Panel, StartsTheDownloadManagerFromItsBundle)
{
    open();
    auto *download = control<QPushButton>("button_DownloadManager");
    download->click(); // it is not installed: nothing happens
    const QString folder =
        root.filePath("Applications/Download Manager QL70/BREVANE Download Manager.app/Contents/MacOS/");
    ASSERT_TRUE(QDir().mkpath(folder));
    QFile program(folder + "BREVANE Download Manager");
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\n: > \"$0.ran\"\n");
    program.close();
    program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    download->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(program.fileName() + ".ran"); }));
}

TEST_F(Panel, GoesToTheAdvancedPaneAndBack)
{
    open();
    choose("menu_QuickColor", 3);
    auto *toAdvanced = control<QPushButton>("button_AdvanceColorOptions");
    ASSERT_TRUE(toAdvanced->isEnabled());
    control<QCheckBox>("check_ColorAsGrayscale")->click();
    EXPECT_FALSE(control<QCheckBox>("check_ColorSeparation")->isEnabled());
    EXPECT_TRUE(control<QComboBox>("menu_iRGBSource")->isEnabled()) << "the rules of a change stay in its pane";
    toAdvanced->click();
    EXPECT_TRUE(control<QWidget>("onAdvancedView")->isVisibleTo(view));
    EXPECT_FALSE(control<QComboBox>("menu_iRGBSource")->isEnabled()) << "the pane is right the moment it shows";
    control<QPushButton>("button_HideAdvancedOptions")->click();
    EXPECT_TRUE(control<QWidget>("onColorView")->isVisibleTo(view));
    control<QCheckBox>("check_ColorAsGrayscale")->click();
    toAdvanced->click();
    EXPECT_TRUE(control<QComboBox>("menu_iRGBIntent")->isEnabled());
    choose("menu_iRGBSource", 0);
    EXPECT_FALSE(control<QComboBox>("menu_iRGBIntent")->isEnabled()) << "a choice greys what depends on it at once";
    panel->willShow();
    EXPECT_TRUE(control<QWidget>("onColorView")->isVisibleTo(view));
    EXPECT_FALSE(control<QWidget>("onAdvancedView")->isVisibleTo(view));
}

TEST_F(Panel, SavesBothPanesAndFindsThemAgain)
{
    open();
    choose("menu_QuickColor", 3);
    choose("menu_gHalftone", 2);
    control<QCheckBox>("check_AutoTrapping")->click();
    const QString trapping = control<QCheckBox>("check_AutoTrapping")->isChecked() ? "True" : "False";
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(ticket.atTop("BVQuickColor"), "Manual");
    EXPECT_EQ(ticket.inQueue("BVAutoTrapping"), trapping);
    EXPECT_EQ(ticket.atTop("BVSimSourceCustom"), "False");

    panel = std::make_unique<PDEPlugInInterface>(&callback);
    open();
    EXPECT_EQ(control<QComboBox>("menu_gHalftone")->currentIndex(), 2);
    EXPECT_EQ(control<QCheckBox>("check_AutoTrapping")->isChecked(), trapping == "True");
    EXPECT_TRUE(control<QPushButton>("button_AdvanceColorOptions")->isEnabled()) << "restoring ends with the rules";
}

// Checks the three edge menus, which Economy does not treat alike, and one menu of each other kind.
TEST_F(Panel, OnlyPrintingAppliesThePreset)
{
    struct
    {
        int quickColor;
        bool economy;
        int imageEdge, textEdge, graphicsEdge, imageHalftone, textHalftone;
    } const rows[] = {
        {0, false, 0, 1, 1, 1, 2}, {0, true, 0, 1, 0, 1, 2}, {1, false, 0, 0, 0, 1, 1}, {1, true, 0, 0, 0, 1, 1},
        {2, false, 1, 1, 1, 2, 2}, {2, true, 0, 1, 0, 2, 2}, {3, true, 1, 0, 1, 3, 3},
    };
    open();
    for (const auto &row : rows) {
        for (const auto &[menu, index] : {std::pair("menu_iEdgeEnhancement", 1),
                                          {"menu_tEdgeEnhancement", 0},
                                          {"menu_gEdgeEnhancement", 1},
                                          {"menu_iHalftone", 3},
                                          {"menu_tHalftone", 3}})
            control<QComboBox>(menu)->setCurrentIndex(index);
        choose("menu_QuickColor", row.quickColor);
        control<QCheckBox>("check_EconomyPrint")->setChecked(row.economy);
        panel->saveValuesAndReturnError(nullptr);
        EXPECT_EQ(control<QComboBox>("menu_iHalftone")->currentIndex(), 3) << "saving applies no preset";
        const QString edgeBefore = summary("Graphics EdgeEnhance");
        EXPECT_TRUE(panel->shouldPrint());
        EXPECT_EQ(control<QComboBox>("menu_iEdgeEnhancement")->currentIndex(), row.imageEdge) << row.quickColor;
        EXPECT_EQ(control<QComboBox>("menu_tEdgeEnhancement")->currentIndex(), row.textEdge) << row.quickColor;
        EXPECT_EQ(control<QComboBox>("menu_gEdgeEnhancement")->currentIndex(), row.graphicsEdge) << row.quickColor;
        EXPECT_EQ(control<QComboBox>("menu_iHalftone")->currentIndex(), row.imageHalftone) << row.quickColor;
        EXPECT_EQ(control<QComboBox>("menu_tHalftone")->currentIndex(), row.textHalftone) << row.quickColor;
        EXPECT_EQ(ticket.atTop("BVImageHalftone"), control<QComboBox>("menu_iHalftone")->currentData().toString());
        EXPECT_EQ(edgeBefore, control<QComboBox>("menu_gEdgeEnhancement")->currentText())
            << "the summary told beforehand what would be printed";
    }
}

TEST_F(Panel, SummaryFollowsThePresetUntilTheFreeChoice)
{
    open();
    const QStringList own = {"Quick Color", "Brightness", "Color as Grayscale", "Color Separation",
                             "EconoMode",   "EdgeType",   "AutoTrapping",       "BlackOverprint"};
    for (const auto &[quickColor, economy, items] :
         {std::tuple(0, false, 29), {0, true, 30}, {1, true, 29}, {2, false, 29}, {2, true, 31}, {3, true, 29}}) {
        choose("menu_QuickColor", quickColor);
        control<QCheckBox>("check_EconomyPrint")->setChecked(economy);
        const QStringList names = order();
        EXPECT_EQ(names.size(), items) << quickColor << economy;
        EXPECT_EQ(names.mid(0, 8), own);
        EXPECT_EQ(names[8], "Image RGB Source");
        if (items > 29) {
            EXPECT_EQ(names.last(), "Graphics EdgeEnhance") << "Economy comes last";
        }
    }
    choose("menu_QuickColor", 1);
    choose("menu_iRGBIntent", 3);
    EXPECT_EQ(summary("Image RGB Intent"), control<QComboBox>("menu_iRGBIntent")->itemText(0));
    choose("menu_QuickColor", 3);
    EXPECT_EQ(summary("Image RGB Intent"), control<QComboBox>("menu_iRGBIntent")->itemText(3));
}

TEST_F(Panel, WithoutSettingsOrSessionItShowsDefaultsAndAnEmptySummary)
{
    callback.settings = nullptr;
    callback.session = nullptr;
    for (bv::PrintPanelCallback *given :
         {static_cast<bv::PrintPanelCallback *>(&callback), static_cast<bv::PrintPanelCallback *>(nullptr)}) {
        panel = std::make_unique<PDEPlugInInterface>(given);
        open();
        EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
        EXPECT_TRUE(panel->shouldPrint());
        EXPECT_TRUE(panel->shouldHide());
        EXPECT_TRUE(order().isEmpty());
        if (given) {
            choose("menu_Brightness", 0);
            panel->restoreValuesAndReturnError(nullptr);
            EXPECT_EQ(control<QComboBox>("menu_Brightness")->currentData().toString(),
                      ppdFindOption(ppd->get(), "BVBrightness")->defchoice);
        }
        panel->terminate();
    }
    EXPECT_TRUE(ticket.top.entries.empty());
}

TEST_F(Panel, SurvivesADialogThatDestroyedTheView)
{
    open();
    delete view;
    panel->constraints();
    panel->selectItem();
    panel->willShow();
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel->shouldPrint());
    panel.reset();
}

// PPDs that lack options of the pane.
class PoorPanel : public Panel, public testing::WithParamInterface<QByteArray>
{
protected:
    PoorPanel() : Panel(std::make_unique<TestPpd>(GetParam(), nullptr)) {}
};

TEST_P(PoorPanel, OpensSavesAndSummarisesTheExistingOptions)
{
    open();
    choose("menu_Brightness", 0);
    control<QCheckBox>("check_EconomyPrint")->click();
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    for (const QString &name : order())
        EXPECT_NE(summary(qPrintable(name)), "-");
    EXPECT_EQ(ticket.atTop("BVSimSource"), "-");
    EXPECT_EQ(ticket.atTop("BVSimSourceCustom"), "False")
        << "a profile row without a selection is flagged all the same";
}

INSTANTIATE_TEST_SUITE_P(PoorPpds, PoorPanel,
                         testing::Values(QByteArray(), bvtest::ppdOption("BVQuickColor", "A B"),
                                         bvtest::ppdOption("BVQuickColor", "") +
                                             bvtest::ppdOption("BVImageHalftone", "One"),
                                         bvtest::ppdOption("BVQuickColor", "A B C D", "PickOne", "C") +
                                             bvtest::ppdOption("BVEconoMode", "On Off", "Boolean") +
                                             bvtest::ppdOption("BVBrightness", "Only", "PickOne", "Lost")));

TEST_F(Panel, SaysWhatABoxSwitchedOffAndTurnsItOff)
{
    open();
    choose("menu_QuickColor", 3);
    control<QPushButton>("button_AdvanceColorOptions")->click();
    const int height = view->sizeHint().height();
    auto *gray = control<QCheckBox>("check_ColorAsGrayscale");
    auto *text = control<QLabel>("text_SwitchedOff");
    auto *turnOff = control<QPushButton>("button_TurnOff");
    EXPECT_TRUE(text->isHidden() && turnOff->isHidden());
    gray->click();
    EXPECT_FALSE(text->isHidden() || turnOff->isHidden());
    EXPECT_TRUE(text->text().contains(QStringLiteral("Color as Grayscale"))) << qPrintable(text->text());
    EXPECT_EQ(turnOff->accessibleDescription(), text->text());
    const auto greyed = [&](const char *name) {
        const auto *of = control<QLabel>(name);
        return of->palette().color(QPalette::Active, QPalette::WindowText) ==
               of->palette().color(QPalette::Disabled, QPalette::WindowText);
    };
    const auto *hidden = control<QComboBox>("menu_tRGBIntent");
    EXPECT_EQ(hidden->property(bv::kSummaryNameProperty).toString(), "Text RGB Intent");
    EXPECT_EQ(hidden->property(bv::kSummaryGroupProperty).toString(), "Text");
    EXPECT_TRUE(hidden->property(bv::kSummaryOffProperty).toString().contains("Color as Grayscale"));
    EXPECT_EQ(gray->property(bv::kSummaryGroupProperty).toString(), "General settings");
    panel->constraints();
    EXPECT_TRUE(greyed("text_iRGBIntent"));
    EXPECT_TRUE(control<QLabel>("text_iRGBIntent")->isEnabled());
    turnOff->click();
    EXPECT_FALSE(gray->isChecked());
    EXPECT_TRUE(hidden->property(bv::kSummaryOffProperty).toString().isEmpty());
    EXPECT_TRUE(text->isHidden() && turnOff->isHidden());
    EXPECT_FALSE(greyed("text_iRGBIntent"));
    EXPECT_TRUE(control<QComboBox>("menu_iRGBIntent")->isEnabled());
    EXPECT_EQ(view->sizeHint().height(), height) << "nothing moved";
}

} // namespace
