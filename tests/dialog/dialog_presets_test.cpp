// SPDX-License-Identifier: GPL-2.0-or-later
// Presets in the window: the menu at the top with what choices can start from.
#include "DialogWorld.h"

#include "presets/PresetMenu.h"
#include "support/MarkupProbe.h"

#include <QAction>
#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

using namespace bv;

namespace {

class Presets : public bvtest::DialogTest
{
protected:
    void SetUp() override
    {
        qputenv("XDG_CONFIG_HOME", folder.filePath("config").toUtf8());
        DialogTest::SetUp();
    }
    void TearDown() override
    {
        DialogTest::TearDown();
        qunsetenv("XDG_CONFIG_HOME");
    }

    QComboBox *toner() { return find<QComboBox>("tonerMenu"); }
    // The button's words without the mark of its letter; a mark that is doubled is a character of the words.
    QString shown()
    {
        const QChar stand(0x1);
        return find<QPushButton>("presets")->text().replace("&&", stand).remove('&').replace(stand, "&");
    }
    QString message() { return dialog->messageText(); }

    // An entry of the menu, as it is when the menu opens. A menu that is really open would block the test.
    QAction *entry(const QString &name)
    {
        auto *menu = find<PresetMenu>("presets")->menu();
        emit menu->aboutToShow();
        for (QAction *action : menu->actions())
            if (action->objectName() == name)
                return action;
        ADD_FAILURE() << name.toStdString();
        return nullptr;
    }
    // Chooses an entry that asks for a name, and answers.
    void answer(const QString &name, const QString &text)
    {
        QTimer::singleShot(0, this->dialog.get(), [this, text] {
            auto *question = dialog->findChild<QInputDialog *>();
            ASSERT_NE(question, nullptr);
            question->setTextValue(text);
            question->accept();
        });
        entry(name)->trigger();
    }
};

TEST_F(Presets, AreSavedAndUsedAgain)
{
    open();
    EXPECT_EQ(shown(), "Preset: Printer's defaults");
    EXPECT_FALSE(entry("presetLastTime")->isEnabled());
    EXPECT_FALSE(entry("presetRename")->isEnabled());
    QTest::keyClick(toner(), Qt::Key_Down);
    find<QComboBox>("row_Duplex")->setCurrentIndex(1);
    find<QSpinBox>("copies")->setValue(3);
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown().endsWith(", changed"); })) << qPrintable(shown());
    answer("presetSave", " Draft & co ");
    EXPECT_EQ(shown(), "Preset: “Draft & co”");

    entry("presetDefaults")->trigger();
    EXPECT_EQ(toner()->currentIndex(), 0);
    EXPECT_EQ(find<QComboBox>("row_Duplex")->currentIndex(), 0);
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 3) << "copies belong to the job";
    EXPECT_EQ(message(), "Printer's defaults: 2 settings changed.");
    entry("preset_Draft & co")->trigger();
    EXPECT_EQ(toner()->currentIndex(), 1);
    EXPECT_EQ(find<QComboBox>("row_Duplex")->currentIndex(), 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(shown(), "Preset: “Draft & co”") << "nothing has changed since";
    EXPECT_TRUE(entry("preset_Draft & co")->isChecked());
    answer("presetRename", "Draft");
    EXPECT_EQ(shown(), "Preset: “Draft”");

    // The other printer has presets of its own.
    QSignalSpy ready(dialog.get(), &PrintDialog::ready);
    auto *printers = find<QComboBox>("printer");
    printers->setCurrentIndex(printers->findData("Second"));
    ASSERT_TRUE(ready.wait());
    EXPECT_EQ(shown(), "Preset: Printer's defaults");
    for (const QAction *action : find<PresetMenu>("presets")->menu()->actions())
        EXPECT_FALSE(action->objectName().startsWith("preset_"));
    printers->setCurrentIndex(printers->findData("Paper"));
    EXPECT_EQ(shown(), "Preset: “Draft”");
}

TEST_F(Presets, FromTheCommandLineAreUsedOrReported)
{
    PresetStore().store("Paper", {"Draft", {}, [] {
                                      PrintDictionary options;
                                      options.setValue("TPToner", "Save");
                                      options.setValue("Folding", "Half");
                                      return options;
                                  }()});
    bv::PrintDialogStart start{QString(), std::nullopt, {document}};
    start.preset = "draft";
    open(start);
    EXPECT_EQ(toner()->currentIndex(), 1);
    EXPECT_EQ(message(), "“Draft”: one setting changed.\nNot used:\nFolding: this printer has no such setting.");
    QSignalSpy printed(dialog.get(), &PrintDialog::printed);
    find<QPushButton>("print")->click();
    ASSERT_TRUE(printed.wait());
    EXPECT_EQ(sink.jobs.at(0).options.at("TPToner"), "Save");

    start.preset = "Nothing";
    open(start);
    EXPECT_EQ(message(), "There is no preset “Nothing” for the printer “Paper”.");
    EXPECT_EQ(shown(), "Preset: As last time");
    entry("presetDefaults")->trigger();
    EXPECT_EQ(toner()->currentIndex(), 0);
    entry("presetLastTime")->trigger();
    EXPECT_EQ(toner()->currentIndex(), 1);
    EXPECT_EQ(shown(), "Preset: As last time");
}

TEST_F(Presets, NamesOfOthersAreNeitherMarkupNorPlaceHolders)
{
    const QString name = QString("50%1 ") + bvtest::kMarkup;
    PresetStore().store("Paper", {name, {}, [] {
                                      PrintDictionary options;
                                      options.setValue("TPToner", "Save");
                                      options.setValue("Duplex", "DuplexNoTumble");
                                      return options;
                                  }()});
    open();
    entry("preset_" + name)->trigger();
    EXPECT_EQ(message(), "“" + name + "”: 2 settings changed.");
    int questions = 0;
    const auto refuse = [&] {
        auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_NE(question, nullptr);
        ++questions;
        EXPECT_TRUE(question->text().contains(name));
        EXPECT_EQ(bvtest::imagesShown(question), QStringList());
        question->reject();
    };
    QTimer::singleShot(0, dialog.get(), refuse);
    entry("presetDelete")->trigger();
    QTimer::singleShot(0, dialog.get(), [&] { QTimer::singleShot(0, dialog.get(), refuse); });
    answer("presetSave", name);
    EXPECT_EQ(questions, 2);
    EXPECT_TRUE(PresetStore().contains("Paper", name));
}

} // namespace
