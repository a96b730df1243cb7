// SPDX-License-Identifier: GPL-2.0-or-later
// The dialog when another program has the user print: its choices, its documents, and settings without a document.
#include "DialogWorld.h"

#include "preview/PagePreview.h"
#include "widgets/DocumentList.h"
#include "widgets/Mnemonics.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>

using namespace bv;

namespace {

class CalledDialog : public bvtest::DialogTest
{
protected:
    void openFor(DialogCaller caller, const QStringList &documents)
    {
        PrintDialogStart start{QString(), std::nullopt, documents};
        start.caller = std::move(caller);
        open(std::move(start));
    }
    bool print()
    {
        QSignalSpy printed(dialog.get(), &PrintDialog::printed);
        find<QPushButton>("print")->click();
        return !printed.isEmpty() || printed.wait();
    }
};

TEST_F(CalledDialog, ShowsTheProgramsChoicesBeforeWhatIsRemembered)
{
    PrintDictionary before;
    before.setValue("PageSize", PrintValue("A6"));
    before.setValue("Duplex", PrintValue("DuplexNoTumble"));
    remembered->store("Paper", before);
    DialogCaller caller;
    caller.title = "Program";
    caller.acceptText = "Save & print";
    caller.note = "Look again.";
    caller.copies = 3;
    caller.pageRange = "2-3";
    caller.choices.setValue("Duplex", PrintValue("None"));
    openFor(caller, {document});
    EXPECT_EQ(dialog->windowTitle(), "Program");
    EXPECT_EQ(bv::withoutMnemonic(find<QPushButton>("print")->text()), "Save & print");
    EXPECT_EQ(dialog->messageText(), "Look again.");
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 3);
    EXPECT_EQ(find<QLineEdit>("pageRange")->text(), "2-3");
    EXPECT_EQ(find<QComboBox>("row_PageSize")->currentData(), "A6");
    EXPECT_EQ(find<QComboBox>("row_Duplex")->currentData(), "None");
    // The document is the program's.
    EXPECT_FALSE(find<QPushButton>("documentAdd")->isVisible());
    EXPECT_FALSE(find<QPushButton>("documentRemove")->isVisible());
    QTest::keyClick(find<QWidget>("documentList"), Qt::Key_Delete);
    EXPECT_EQ(dialog->parts().documents->documents(), QStringList{document});
    ASSERT_TRUE(print());
    EXPECT_EQ(sink.jobs.front().options["copies"], "3");
    EXPECT_EQ(sink.jobs.front().options["page-ranges"], "2-3");
    EXPECT_EQ(sink.jobs.front().options["Duplex"], "None");
    EXPECT_EQ(remembered->load("Paper")->value("Duplex").string()->toStdString(), "None");
}

TEST_F(CalledDialog, AgreesOnSettingsWithoutADocument)
{
    DialogCaller caller;
    sink.needsDocuments = false;
    openFor(caller, {});
    EXPECT_EQ(dialog->printReason(), "");
    EXPECT_FALSE(dialog->parts().documents->isVisible());
    EXPECT_FALSE(dialog->parts().preview->isVisible());
    find<QRadioButton>("somePages")->setChecked(true);
    find<QLineEdit>("pageRange")->setText("x");
    EXPECT_NE(dialog->printReason(), "");
    find<QLineEdit>("pageRange")->setText("2-");
    ASSERT_TRUE(print());
    ASSERT_EQ(sink.jobs.size(), 1U);
    EXPECT_EQ(sink.jobs.front().queue, "Paper");
    EXPECT_TRUE(sink.jobs.front().documents.isEmpty());
    EXPECT_EQ(sink.jobs.front().options["page-ranges"], "2-");
}

} // namespace
