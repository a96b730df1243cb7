// SPDX-License-Identifier: GPL-2.0-or-later
// Presets in the window: the menu at the top with what choices can start from.
#include "DialogWorld.h"

#include "presets/PresetMenu.h"
#include "support/MarkupProbe.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <algorithm>

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

    // An entry of the menu or of one below it, as it is when the menu opens. A menu that is really open would block the
    // test.
    QAction *entry(const QString &name)
    {
        auto *menu = find<PresetMenu>("presets")->menu();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        emit menu->aboutToShow();
        QList<QAction *> actions = menu->actions();
        for (const QAction *action : menu->actions())
            if (action->menu())
                actions += action->menu()->actions();
        for (QAction *action : actions)
            if (action->objectName() == name)
                return action;
        ADD_FAILURE() << name.toStdString();
        return nullptr;
    }
    // Chooses an entry that asks things, and answers each question in its turn.
    using Answer = std::function<void(QWidget *question)>;
    void answer(const QString &name, std::vector<Answer> answers)
    {
        std::function<void()> next = [&] {
            QWidget *question = QApplication::activeModalWidget();
            ASSERT_NE(question, nullptr);
            ASSERT_FALSE(answers.empty());
            const Answer one = answers.front();
            answers.erase(answers.begin());
            if (!answers.empty())
                QTimer::singleShot(0, dialog.get(), next);
            one(question);
        };
        QTimer::singleShot(0, dialog.get(), next);
        entry(name)->trigger();
        EXPECT_TRUE(answers.empty()) << "not asked";
    }
    static Answer text(const QString &text)
    {
        return [text](QWidget *question) {
            question->findChild<QLineEdit *>()->setText(text);
            QTest::keyClick(question->findChild<QLineEdit *>(), Qt::Key_Return);
        };
    }
    // Checks what is asked or said, then goes on with another answer.
    static Answer after(const QString &words, const Answer &then)
    {
        return [words, then](QWidget *question) {
            const auto labels = question->findChildren<QLabel *>();
            EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
                return label->text().contains(words) && label->textFormat() == Qt::PlainText;
            })) << words.toStdString();
            then(question);
        };
    }
    static Answer press(const QString &button)
    {
        return [button](QWidget *question) {
            for (QAbstractButton *one : question->findChildren<QAbstractButton *>())
                if (QString(one->text()).remove('&') == button)
                    return one->click();
            ADD_FAILURE() << button.toStdString();
        };
    }
    static Answer file(const QString &path)
    {
        return [path](QWidget *question) {
            auto *files = qobject_cast<QFileDialog *>(question);
            ASSERT_NE(files, nullptr);
            files->findChild<QLineEdit *>("fileNameEdit")->setText(path);
            QTest::keyClick(files->findChild<QLineEdit *>("fileNameEdit"), Qt::Key_Return);
        };
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
    answer("presetSave", {text(" Draft & co ")});
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
    answer("presetRename_Draft & co", {text("Draft")});
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

TEST_F(Presets, TheButtonKnowsThePrintersDefaults)
{
    PrintDictionary last;
    last.setValue("Duplex", "DuplexNoTumble");
    remembered->store("Paper", last);
    open();
    EXPECT_EQ(shown(), "Preset: As last time");
    find<QPushButton>("restoreDefaults")->click();
    EXPECT_EQ(shown(), "Preset: Printer's defaults");
    EXPECT_TRUE(entry("presetDefaults")->isChecked());
    entry("presetLastTime")->trigger();
    // The same, setting by setting.
    QTest::keyClick(toner(), Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown() == "Preset: As last time, changed"; })) << qPrintable(shown());
    find<QComboBox>("row_Duplex")->setCurrentIndex(0);
    QTest::keyClick(toner(), Qt::Key_Up);
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown() == "Preset: Printer's defaults"; })) << qPrintable(shown());
    find<QComboBox>("row_Duplex")->setCurrentIndex(1);
    EXPECT_EQ(shown(), "Preset: As last time");
}

TEST_F(Presets, AreManagedWithoutBeingUsed)
{
    open();
    find<QComboBox>("row_Duplex")->setCurrentIndex(1);
    const QString bold = "<b>Draft";
    answer("presetSave", {text(bold)});
    answer("presetSave", {text("Other")});
    // A name that cannot be taken is asked for again, with what was typed.
    answer("presetRename_" + bold, {text("other"), after("There is a preset “other” already", text(" ")),
                                    after("A preset needs a name", press("Cancel"))});
    // Another one of that name is replaced only on demand.
    answer("presetSave", {text(bold), after("“<b>Draft” already. Replace it?", press("Cancel")), press("Cancel")});
    EXPECT_EQ(shown(), "Preset: “Other”");

    const QString path = folder.filePath("my file");
    answer("presetExport_" + bold, {file(path)});
    EXPECT_EQ(message(), "The preset “<b>Draft” is exported to " + path + ".json.");
    answer("presetExport_" + bold, {file(document + "/x.json")});
    EXPECT_TRUE(message().contains("could not be exported: " + document + "/x.json: ")) << qPrintable(message());
    answer("presetDelete_" + bold, {after("Delete the preset “<b>Draft” of “Paper”?", press("Cancel"))});
    answer("presetImport", {file(path + ".json")});
    EXPECT_EQ(message(), "“<b>Draft” is imported and used as “<b>Draft 2”, since there is one of that name: all "
                         "settings were so already.");
    EXPECT_EQ(shown(), "Preset: “<b>Draft 2”");
    answer("presetDelete_" + bold, {press("Delete")});
    EXPECT_EQ(message(), "The preset “<b>Draft” is deleted.");
    EXPECT_EQ(shown(), "Preset: “<b>Draft 2”");
    EXPECT_EQ(PresetStore().names("Paper"), (QStringList{"<b>Draft 2", "Other"}));

    answer("presetImport", {file(document)});
    EXPECT_TRUE(message().startsWith("The preset " + document + " cannot be used: ")) << qPrintable(message());
    EXPECT_TRUE(message().endsWith("Choose a file that was exported as a preset.")) << qPrintable(message());
    answer("presetSave", {text(QString(60, 'W'))});
    EXPECT_LT(shown().size(), 60) << "a long name leaves room for the printer";
    EXPECT_TRUE(find<QPushButton>("presets")->toolTip().contains(QString(60, 'W')));
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
    const Answer refuse = [&name](QWidget *question) {
        auto *box = qobject_cast<QMessageBox *>(question);
        ASSERT_NE(box, nullptr);
        EXPECT_TRUE(box->text().contains(name));
        EXPECT_EQ(bvtest::imagesShown(box), QStringList());
        box->reject();
    };
    answer("presetDelete_" + name, {refuse});
    answer("presetSave", {text(name), refuse, press("Cancel")});
    EXPECT_TRUE(PresetStore().contains("Paper", name));
}

} // namespace
