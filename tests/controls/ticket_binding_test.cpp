// SPDX-License-Identifier: GPL-2.0-or-later
// Control values written to the ticket and read back: the carried value, and tickets of unusual structure.
#include "common/PDECommon.h"
#include "support/PaneFixture.h"

#include <QCheckBox>
#include <QComboBox>

using bvtest::ppdOption;
using bvtest::TestPpd;
using bvtest::TestSession;
using bvtest::TestTicket;

namespace {

class TicketBinding : public testing::Test
{
protected:
    TicketBinding()
        : ppd(ppdOption("BVA", "One Two Three", "PickOne", "Two") + ppdOption("BVOn", "False True", "Boolean") +
                  ppdOption("BVZ", "One Two", "PickOne", "Two") + ppdOption("BVOdd", "Yes No", "Boolean"),
              nullptr)
    {
        addRow(&menuA, kPDEControlPopUp, "BVA");
        addRow(&box, kPDEControlCheckBox, "BVOn");
        addRow(&menuZ, kPDEControlPopUp, "BVZ");
        addRow(&oddBox, kPDEControlCheckBox, "BVOdd");
        rows.push_back(endControlItem());
        PDECommon::commonBuildPDEItem(rows.data(), ppd.get());
    }
    void addRow(QWidget *control, PDEControlKind kind, const char *key)
    {
        rows.push_back({control, kind, key, nullptr, nullptr, "", 0, nullptr});
        PDECommon::commonGetPPDArrayForUIOption(ppd.get(), key, &rows.back().ppdChoices);
    }
    int32_t save() { return PDECommon::commonSyncTicketFromPane(&ticket, &session, rows.data()); }
    int32_t restore()
    {
        PDECommon::commonDefaultFromPPDInfo(rows.data());
        return PDECommon::commonSyncPaneFromTicket(&ticket, &session, rows.data());
    }

    TestPpd ppd;
    TestTicket ticket;
    TestSession session;
    QComboBox menuA, menuZ;
    QCheckBox box, oddBox;
    std::vector<PDEControlItem> rows;
};

TEST_F(TicketBinding, FreshTicketGetsEveryBoundRowAndItsCopy)
{
    menuA.setCurrentIndex(2);
    box.setChecked(true);
    EXPECT_EQ(save(), noErr);
    EXPECT_EQ(ticket.inQueue("BVA"), "Three");
    EXPECT_EQ(ticket.atTop("BVA"), "Three");
    EXPECT_EQ(ticket.atTop("BVOn"), "True");
    EXPECT_EQ(ticket.atTop("BVOdd"), "-") << "no True or False in the PPD: nothing is written";
    EXPECT_EQ(ticket.atTop("BVACustom"), "-") << "no profile row";

    menuA.setCurrentIndex(0);
    box.setChecked(false);
    EXPECT_EQ(restore(), noErr);
    EXPECT_EQ(menuA.currentIndex(), 2);
    EXPECT_TRUE(box.isChecked());

    ticket.putInQueue("BVA", bv::PrintValue("Four"));
    EXPECT_EQ(restore(), noErr);
    EXPECT_EQ(menuA.currentIndex(), 1) << "an unknown choice leaves the PPD's default";
}

TEST_F(TicketBinding, CheckBoxSpellings)
{
    for (const auto &[text, on] :
         {std::pair("True", true), {"TRUE", true}, {"true", true}, {"tRUE", false}, {"", false}}) {
        ticket.putInQueue("BVOn", bv::PrintValue(text));
        restore();
        EXPECT_EQ(box.isChecked(), on) << text;
    }
}

TEST_F(TicketBinding, ANumberInTheTicketTakesTheValueOfTheRowBefore)
{
    ticket.putInQueue("BVA", bv::PrintValue("One"));
    ticket.putInQueue("BVOn", bv::PrintValue::integer(5));
    ticket.putInQueue("BVZ", bv::PrintValue(bv::PrintArray{bv::PrintValue("Two")}));
    restore();
    EXPECT_FALSE(box.isChecked());
    EXPECT_EQ(menuZ.currentIndex(), 0);

    ticket.putInQueue("BVA", bv::PrintValue("Three")); // index 2: on for a check box, beyond the two items of BVZ
    restore();
    EXPECT_TRUE(box.isChecked());
    EXPECT_EQ(menuZ.currentIndex(), 1) << "an index beyond the menu changes nothing";

    ticket.putInQueue("BVA", bv::PrintValue::boolean(true)); // the first row has no previous row
    restore();
    EXPECT_EQ(menuA.currentIndex(), 1);
    EXPECT_FALSE(box.isChecked());

    ticket.putInQueue("BVA", bv::PrintValue("Three"));
    ticket.putInQueue("BVOn", bv::PrintValue("False"));
    rows[1].ppdKey = "BVOn\xE9"; // a keyword that is not ASCII has no value of its own either
    restore();
    EXPECT_TRUE(box.isChecked());
    QStringList keys;
    EXPECT_EQ(PDECommon::commonAddPPDArray(&keys, rows.data()), paramErr);
    EXPECT_EQ(keys, QStringList({"BVA", "BVZ", "BVOdd"}));
}

TEST_F(TicketBinding, MirrorsEveryEntryOfTheQueueAndOnlyOfThisQueue)
{
    ticket.putInQueue("Other", bv::PrintValue("from the other pane"));
    ticket.putInQueue("List", bv::PrintValue(bv::PrintArray{bv::PrintValue::integer(1)}));
    const auto other = std::make_shared<bv::PrintDictionary>();
    other->setValue("BVA", bv::PrintValue("One"));
    ticket.top.value("QL70").dictionary()->setValue("Hall", other);
    EXPECT_EQ(save(), noErr);
    EXPECT_EQ(ticket.atTop("Other"), "from the other pane");
    EXPECT_TRUE(ticket.value("List").array());
    EXPECT_EQ(other->entries.size(), 1U);
    EXPECT_EQ(*other->value("BVA").string(), "One");

    ticket.putInQueue("Other", bv::PrintValue("changed"));
    EXPECT_EQ(restore(), noErr);
    EXPECT_EQ(ticket.atTop("Other"), "changed") << "restoring mirrors as well";
}

TEST_F(TicketBinding, TicketsOfAnyShapeAreLeftAlone)
{
    ticket.setValue("QL70", bv::PrintValue("text"));
    EXPECT_EQ(save(), noErr);
    EXPECT_EQ(restore(), noErr);
    EXPECT_EQ(ticket.top.entries.size(), 1U);

    ticket.top.entries.clear();
    const auto product = std::make_shared<bv::PrintDictionary>();
    product->setValue("Lab", bv::PrintValue::integer(3));
    ticket.setValue("QL70", product);
    EXPECT_EQ(save(), noErr);
    EXPECT_EQ(*product->value("Lab").integer(), 3);

    // An entry under the product key replaces the dictionary being walked.
    ticket.top.entries.clear();
    ticket.putInQueue("QL70", bv::PrintValue("text"));
    EXPECT_EQ(save(), noErr);
    EXPECT_EQ(ticket.atTop("QL70"), "text");
}

TEST_F(TicketBinding, WithoutAPrinterOnlyTheEmptyProductEntryIsMade)
{
    session.hasPrinter = false;
    EXPECT_EQ(save(), noErr);
    ASSERT_EQ(ticket.top.entries.size(), 1U);
    EXPECT_TRUE(ticket.value("QL70").dictionary()->entries.empty());
    EXPECT_EQ(PDECommon::commonSyncTicketFromPane(nullptr, nullptr, rows.data()), noErr);
    EXPECT_EQ(PDECommon::commonGetPrintQueueName(nullptr), QString());
}

TEST_F(TicketBinding, ValueResetClearsTheControl)
{
    box.setChecked(true);
    const PDEControlItem row{&box, kPDEControlValueReset, "BVOn", nullptr, nullptr, "", 0, nullptr};
    EXPECT_EQ(PDECommon::commonGetTicketValueWithSInt32(&row, "BVOn", bv::PrintValue("True")), 0);
    EXPECT_FALSE(box.isChecked());
}

TEST_F(TicketBinding, SessionDataMustBeANumber)
{
    session.items.setValue("n", bv::PrintValue::integer(70));
    session.items.setValue("t", bv::PrintValue("70"));
    session.items.setValue("lowest", bv::PrintValue::integer(INT32_MIN));
    session.items.setValue("wide", bv::PrintValue::integer(int64_t{INT32_MAX} + 1));
    int32_t handle = 1;
    EXPECT_EQ(PDECommon::commonGetTicket(&session, "lowest", &handle), noErr);
    EXPECT_EQ(handle, INT32_MIN);
    for (const char *key : {"t", "wide"}) {
        EXPECT_EQ(PDECommon::commonGetTicket(&session, "n", &handle), noErr);
        EXPECT_EQ(handle, 70);
        EXPECT_EQ(PDECommon::commonGetTicket(&session, key, &handle), kPMInvalidValue) << key;
        EXPECT_EQ(handle, 0);
    }
    EXPECT_EQ(PDECommon::commonGetTicket(&session, "absent", &handle), kPMKeyNotFound);
}

} // namespace
