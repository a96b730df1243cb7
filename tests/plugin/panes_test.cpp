// SPDX-License-Identifier: GPL-2.0-or-later
// The view switching controller before and after the panes have their tables.
#include "plugin/PainChangeController.h"

#include <QPushButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

class Panes : public testing::Test
{
protected:
    Panes()
    {
        auto *layout = new QVBoxLayout(&container);
        color = new ColorOptions(&container);
        advanced = new AdvancedColorOptions(&container);
        layout->addWidget(color);
        advanced->hide();
        controller.onMainCustomView = &container;
        controller.onColorView = color;
        controller.onAdvancedView = advanced;
    }
    QWidget container;
    ColorOptions *color;
    AdvancedColorOptions *advanced;
    PainChangeController controller;
};

TEST_F(Panes, AreNotSwappedBeforeTheirTablesExist)
{
    controller.ColorToAdvancedView();
    EXPECT_FALSE(advanced->isVisibleTo(&container));
    controller.creatPDEControlTableEachView();
    controller.ColorToAdvancedView();
    EXPECT_TRUE(advanced->isVisibleTo(&container));
    EXPECT_FALSE(color->isVisibleTo(&container));
    controller.ColorToAdvancedView(); // a second call changes nothing
    EXPECT_TRUE(advanced->isVisibleTo(&container));
    color->deallocPDEControlTable();
    controller.AdvancedToColorView();
    EXPECT_FALSE(color->isVisibleTo(&container));
}

TEST_F(Panes, HandTheFocusOnToTheFirstControlThatCanTakeIt)
{
    QPushButton outside(&container);
    QPushButton first(color);
    QPushButton greyed(advanced);
    QPushButton second(advanced);
    greyed.setEnabled(false);
    controller.creatPDEControlTableEachView();
    container.show();
    first.setFocus();
    controller.ColorToAdvancedView();
    EXPECT_EQ(container.focusWidget(), &second);
    controller.AdvancedToColorView();
    EXPECT_EQ(container.focusWidget(), &first);
    outside.setFocus();
    controller.ColorToAdvancedView();
    EXPECT_EQ(container.focusWidget(), &outside) << "a focus elsewhere stays there";
}

TEST_F(Panes, GatherTwoTablesAndTheirRecords)
{
    controller.creatPDEControlTableEachView();
    PDEControlItem marker;
    PDEControlTable slots_[5] = {&marker, &marker, &marker, &marker, &marker};
    EXPECT_EQ(controller.getControlDataEachView(slots_, 5), 2);
    EXPECT_EQ(slots_[0], color->getControlData());
    EXPECT_EQ(slots_[1], advanced->getControlData());
    for (int slot = 2; slot < 5; ++slot)
        EXPECT_EQ(slots_[slot], nullptr);
    slots_[2] = &marker;
    EXPECT_EQ(controller.getControlDataEachView(slots_, -1), 2) << "the tables are written whatever the count";
    EXPECT_EQ(slots_[2], &marker);
    EXPECT_EQ(controller.getControlCountEachView(), 14 + 47);
}

TEST_F(Panes, MissingOnesAreSkippedAndTheOthersServed)
{
    const auto askForAll = [this] {
        QStringList keys;
        bv::PrintDictionary summary;
        bv::PrintArray order;
        controller.setPMPrintEachView(nullptr, nullptr);
        controller.setPPDFileEachView(nullptr);
        controller.creatPDEControlTableEachView();
        controller.createPDEItemForPPDKeyEachView();
        controller.defaultFromPPDInfoEachView();
        controller.getControlValueFromTickettEachView();
        controller.setControlValueToTicketEachView();
        controller.changeAdvancedItemAccodingQuickColor();
        controller.getSummaryTextEachView(&summary, &order);
        controller.addPPDArrayEachView(&keys);
        controller.ColorToAdvancedView();
        controller.SHowColorToAdvancedView();
        controller.AdvancedToColorView();
        controller.ShowAdvancedToColorView();
    };
    container.resize(300, 200);

    controller.onColorView = nullptr;
    advanced->setParent(nullptr);
    controller.creatPDEControlTableEachView();
    EXPECT_EQ(controller.getControlCountEachView(), 47);
    controller.ColorToAdvancedView();
    EXPECT_EQ(advanced->parentWidget(), &container);
    EXPECT_TRUE(advanced->isVisibleTo(&container));
    askForAll();

    controller.onAdvancedView = nullptr;
    askForAll();

    controller.onColorView = color;
    color->setParent(nullptr);
    controller.ShowAdvancedToColorView();
    EXPECT_EQ(color->parentWidget(), &container);
    askForAll();

    controller.onAdvancedView = advanced;
    controller.onMainCustomView = nullptr;
    advanced->setGeometry(5, 5, 50, 50);
    controller.SHowColorToAdvancedView();
    EXPECT_TRUE(advanced->geometry().topLeft().isNull());
    EXPECT_NE(advanced->size(), QSize(50, 50)) << "the bounds of no container are those of an empty rectangle";
    EXPECT_FALSE(advanced->isWindow());
    askForAll();
}

} // namespace
