// SPDX-License-Identifier: GPL-2.0-or-later
// The batch, driven from outside with a test panel in place of the color options.
#include "batch/ControlActions.h"
#include "batch/ControlCatalog.h"
#include "support/BatchProcess.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QLineEdit>
#include <QPushButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bvtest::BatchProcess;
using ::testing::HasSubstr;

const QStringList kStart = {"--plugin", BV_BUILD_DIR "/tests/testpanel.so", "--ppd",
                            BV_SOURCE_DIR "/tests/support/small.ppd"};

TEST(Controls, AreDescribedAloneAndTypingAppendsToTheirText)
{
    QWidget view;
    QWidget box(&view);
    QPushButton button("Save && &X", &box);
    QLineEdit field("ab", &view);
    box.setEnabled(false);
    const QJsonObject described = bv::describeControl({&view, false}, &button);
    EXPECT_EQ(described["enabled"], true);
    EXPECT_EQ(described["text"], "Save & X");
    field.setCursorPosition(0);
    EXPECT_EQ(bv::typeIntoControl(&field, "c"), "");
    EXPECT_EQ(field.text(), "abc");
    QApplication::clipboard()->setText("kept");
    EXPECT_EQ(bv::setControl(&field, "new"), "");
    EXPECT_EQ(QApplication::clipboard()->text(), "kept");
}

class Batch : public ::testing::Test
{
protected:
    void start(const QStringList &more = {})
    {
        m_batch.setVariable("TESTPANEL_LOG", logPath());
        m_batch.start(kStart + more);
    }
    void startWithView()
    {
        start();
        ASSERT_EQ(result("panelView"), "paperView");
    }

    QJsonValue result(const QString &command) { return m_batch.result(command); }
    QString error(const QString &command) { return m_batch.error(command); }
    QJsonValue value(const QString &control) { return result("control " + control).toObject()["value"]; }
    // Whether a command succeeds with a null result.
    bool does(const QString &command) { return result(command).isNull(); }

    QString logPath() const { return m_batch.home() + "/log"; }
    QStringList log() const
    {
        QFile file(logPath());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)
                                              : QStringList();
    }
    QString write(const QString &name, const QByteArray &text)
    {
        QFile file(m_batch.home() + '/' + name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }

    BatchProcess m_batch;
};

TEST_F(Batch, TheSecondPanelAnswersThroughTheSameCommands)
{
    start();
    EXPECT_EQ(result("panelName"), "Paper Stamp");
    EXPECT_EQ(result("panelKind"), "example.paper.stamp");
    EXPECT_EQ(result("supportedPPDOptionKeys"), (QJsonArray{"TPToner", "TPStamp"}));
    EXPECT_TRUE(does("willShow"));
    EXPECT_EQ(result("shouldHide"), true);
    EXPECT_EQ(result("restoreValues"), true);
    EXPECT_EQ(result("saveValues"), true);
    EXPECT_EQ(result("shouldPrint"), true);
    EXPECT_EQ(result("summaryInfo").toObject()["Toner"], "Normal");
    EXPECT_TRUE(does("terminate"));
    EXPECT_EQ(m_batch.finish(), 0);
    EXPECT_EQ(m_batch.standardError(), "");
}

TEST_F(Batch, OnePanelServesTheBatchAndGetsOnlyTheCallsOfCommands)
{
    start();
    result("ticket");
    EXPECT_EQ(log(), QStringList{"initWithBundle "}); // the locale C gives no language
    result("panelView");
    result("control tonerMenu");
    EXPECT_TRUE(does("set tonerMenu 1"));
    EXPECT_EQ(m_batch.finish(), 0);
    EXPECT_EQ(log(), (QStringList{"initWithBundle ", "made", "panelView", "toner 1", "gone"}));
}

TEST_F(Batch, PanelsOfATypeAreCountedAndDestroyed)
{
    start();
    EXPECT_EQ(result("panels BDB091F4-E57F-11D3-B5CC-0050E4603277"), 1);
    EXPECT_EQ(result("panels two"), 2);
    EXPECT_TRUE(does("panels none"));
    EXPECT_EQ(log().count("made"), 3);
    EXPECT_EQ(log().count("gone"), 3);
}

TEST_F(Batch, ControlsNeedTheView)
{
    start();
    for (const char *command : {"controls", "control tonerMenu", "set tonerMenu 1", "type stampText a",
                                "select paperTable 0", "press editButton", "screenshot x.png"})
        EXPECT_FALSE(error(command).isEmpty()) << command;
    EXPECT_EQ(m_batch.finish(), 1);
}

TEST_F(Batch, EveryNamedControlIsDescribedByItsKind)
{
    startWithView();
    QJsonObject byName;
    for (const auto &control : result("controls").toArray())
        byName[control.toObject()["name"].toString()] = control;
    EXPECT_EQ(QStringList(byName.keys()), (QStringList{"editButton", "paperTable", "sheetSpin", "stampCheck",
                                                       "stampText", "tabs", "tonerLabel", "tonerMenu"}));
    EXPECT_EQ(byName["tonerMenu"].toObject(), (QJsonObject{{"name", "tonerMenu"},
                                                           {"class", "QComboBox"},
                                                           {"enabled", true},
                                                           {"visible", true},
                                                           {"value", 0},
                                                           {"items", QJsonArray{"Normal", "Save", "Rich"}}}));
    EXPECT_EQ(byName["stampText"].toObject()["class"], "PaperField");
    EXPECT_EQ(byName["stampText"].toObject()["enabled"], false);
    EXPECT_EQ(byName["tonerLabel"].toObject()["text"], "Toner:");
    EXPECT_EQ(byName["editButton"].toObject()["visible"], false);
    EXPECT_FALSE(byName["editButton"].toObject().contains("value"));
    EXPECT_EQ(byName["paperTable"].toObject()["columns"], (QJsonArray{"icon", "paper", "used"}));
    EXPECT_EQ(byName["paperTable"].toObject()["rows"],
              (QJsonArray{QJsonArray{0, "Plain", 1}, QJsonArray{1, "Thick", 0}, QJsonArray{0, "Film", 1}}));
    EXPECT_EQ(byName["paperTable"].toObject()["selected"], -1);
}

TEST_F(Batch, SettingAControlTriggersItsAction)
{
    startWithView();
    EXPECT_TRUE(does("set tonerMenu 2"));
    EXPECT_TRUE(does("set tonerMenu 2"));
    EXPECT_EQ(log().count("toner 2"), 2);
    EXPECT_TRUE(does("set stampCheck 1"));
    EXPECT_EQ(result("control stampText").toObject()["enabled"], true);
    EXPECT_TRUE(does("set sheetSpin 4")); // on a tab that is not shown
    EXPECT_EQ(value("sheetSpin"), 4);
    EXPECT_TRUE(does("set tabs 1"));
    EXPECT_EQ(result("control sheetSpin").toObject()["visible"], true);
    EXPECT_TRUE(does("set paperTable.used 1 1"));
    EXPECT_TRUE(does("select paperTable 1"));
    const QJsonObject table = result("control paperTable").toObject();
    EXPECT_EQ(table["rows"].toArray()[1], (QJsonArray{1, "Thick", 1}));
    EXPECT_EQ(table["selected"], 1);
    EXPECT_TRUE(does("select paperTable -1"));
    EXPECT_EQ(result("control paperTable").toObject()["selected"], -1);
}

TEST_F(Batch, PastingAndTypingRunTheFieldsOwnChecks)
{
    startWithView();
    EXPECT_TRUE(does("set stampCheck 1"));
    EXPECT_TRUE(does("set stampText \"a1 b\""));
    EXPECT_EQ(value("stampText"), "a b");
    EXPECT_TRUE(does("type stampText c2d€"));
    EXPECT_EQ(value("stampText"), "a bcd€");
    EXPECT_TRUE(does("set stampText \"\""));
    EXPECT_EQ(value("stampText"), "");
}

TEST_F(Batch, AModalWindowIsSearchedFirstAndCommandsWorkInNestedWindows)
{
    startWithView();
    EXPECT_FALSE(error("controls modal").isEmpty());
    EXPECT_TRUE(does("press editButton"));
    EXPECT_EQ(result("controls modal").toArray().size(), 5);
    EXPECT_EQ(result("control stampCheck").toObject()["text"], "Stamp in the editor");
    EXPECT_EQ(result("control tonerMenu").toObject()["name"], "tonerMenu");
    EXPECT_FALSE(error("choose x").isEmpty());
    for (const char *command : {"set tonerMenu 1", "type stampText x", "select paperTable 1", "press editButton"})
        EXPECT_THAT(error(command).toStdString(), HasSubstr("modal window")) << command;
    const QString file = write("picked file.txt", "x");
    EXPECT_TRUE(does("press editBrowse"));
    EXPECT_THAT(error("press editOK").toStdString(), HasSubstr("modal window"));
    EXPECT_FALSE(error("choose " + file + "-not").isEmpty());
    EXPECT_FALSE(error("choose \"" + m_batch.home() + "\"").isEmpty());
    EXPECT_TRUE(does("choose \"" + file + "\""));
    EXPECT_EQ(value("editName"), "picked file.txt");
    EXPECT_TRUE(does("press editBrowse"));
    EXPECT_TRUE(does("choose -"));
    EXPECT_EQ(value("editName"), "");
    EXPECT_TRUE(does("type editName Hi"));
    EXPECT_TRUE(does("press editOK"));
    EXPECT_EQ(log().count("editor confirmed"), 1) << "answered before the click was carried out";
    EXPECT_EQ(value("stampText"), "Hi");
    for (const char *command : {"control editName", "press editOK", "controls modal"})
        EXPECT_FALSE(error(command).isEmpty()) << command;
    EXPECT_TRUE(does("set tonerMenu 1"));
    EXPECT_EQ(log().count("editor confirmed"), 1) << "a window that was closed";
    EXPECT_EQ(log().count("editor closes"), 1);
}

TEST_F(Batch, TheEndOfInputClosesOpenWindows)
{
    startWithView();
    EXPECT_TRUE(does("press editButton"));
    EXPECT_TRUE(does("press editBrowse"));
    EXPECT_EQ(m_batch.finish(), 0);
    EXPECT_EQ(m_batch.restOfOutput(), "");
    EXPECT_EQ(log().last(), "gone");
}

// Separated by bars.
const QString kWrongCommands =
    R"(bogus|PanelName|panelName x|set tonerMenu|set tonerMenu 3|set tonerMenu -1|set tonerMenu one|)"
    R"(set tonerMenu ""|set stampCheck 2|set stampText x|type stampText x|set nothing 1|set tabs 2|)"
    R"(set sheetSpin 17|set tonerLabel 1|set editButton 1|set paperTable 1|set paperTable.used 3 1|)"
    R"(set paperTable.used 1 x|set paperTable.used 2 0|set paperTable.size 1 1|set paperTable.paper 1 1|)"
    R"(set tonerMenu 1 1|type tonerMenu x|select paperTable 3|select paperTable -2|select tonerMenu 0|)"
    R"(press nothing|press tonerMenu|control nothing|control qt_spinbox_lineedit|controls window|choose x|)"
    R"(set tonerMenu "1|setTicket|setTicket {"a":null}|setTicket [1]|print|print /nonexistent|print /dev/null|)"
    R"(screenshot ""|screenshot /nonexistent/x.png)";

TEST_F(Batch, AWrongCommandIsAnErrorThatChangesNothingAndDoesNotEndTheBatch)
{
    startWithView();
    const QJsonValue before = result("controls");
    for (const QString &command : kWrongCommands.split('|')) {
        const QJsonObject answer = m_batch.send(command);
        SCOPED_TRACE(command.toStdString());
        EXPECT_FALSE(answer["error"].toString().isEmpty());
        EXPECT_FALSE(answer.contains("result"));
        EXPECT_EQ(answer["command"], command.section(' ', 0, 0));
        EXPECT_EQ(result("controls"), before);
    }
    EXPECT_EQ(result("ticket"), QJsonObject());
    EXPECT_EQ(m_batch.finish(), 1);
}

TEST_F(Batch, PicturesShowTheViewOrTheModalWindow)
{
    startWithView();
    const QString view = m_batch.home() + "/view.dat"; // PNG for any file name
    const QString window = m_batch.home() + "/window.png";
    EXPECT_TRUE(does("screenshot " + view));
    EXPECT_TRUE(does("press editButton"));
    EXPECT_TRUE(does("screenshot " + window));
    QImage first(view, "PNG");
    QImage second(window, "PNG");
    EXPECT_GT(first.width(), 50);
    EXPECT_GT(second.width(), 50);
    EXPECT_NE(first, second);
}

TEST(BatchOnOurPane, APictureHasThePanesSizeAtOnceAfterASwap)
{
    BatchProcess batch;
    batch.start({"--ppd", BV_SOURCE_DIR "/resources/QL70.ppd"});
    ASSERT_EQ(batch.result("panelView"), "pdeMainView");
    std::vector<QSize> sizes;
    for (const char *command :
         {"restoreValues", "set menu_QuickColor 3", "press button_AdvanceColorOptions", "panelName", "willShow"}) {
        const QString picture = QString("%1/%2.png").arg(batch.home()).arg(sizes.size());
        EXPECT_EQ(batch.error(command), "");
        EXPECT_EQ(batch.error("screenshot " + picture), "");
        sizes.push_back(QImage(picture).size());
    }
    EXPECT_GT(sizes[2].height(), sizes[1].height());
    EXPECT_EQ(sizes[2], sizes[3]);
    EXPECT_EQ(sizes[4], sizes[0]);
}

TEST(BatchOnOurPane, ALocaleChangesTheWordsOfThePaneAndOfThePpd)
{
    // clang-format off
    const std::tuple<const char *, const char *, const char *> rows[] = {
        {"C", "EconoMode", "Photo"}, {"de_DE.UTF-8", "Tonersparmodus", "Foto"}, {"nl_NL", "Economy Print", "Photo"}};
    // clang-format on
    for (const auto &[locale, title, choice] : rows) {
        SCOPED_TRACE(locale);
        BatchProcess batch;
        batch.setVariable("LC_ALL", locale);
        batch.start({"--ppd", BV_SOURCE_DIR "/resources/QL70.ppd"});
        ASSERT_EQ(batch.result("panelView"), "pdeMainView");
        EXPECT_EQ(batch.result("control check_EconomyPrint").toObject()["text"].toString().toStdString(), title);
        EXPECT_EQ(batch.result("control menu_QuickColor").toObject()["items"].toArray()[1].toString().toStdString(),
                  choice);
    }
}

TEST_F(Batch, PrintSavesAsksAndAnswersWithWhatIsSent)
{
    const QString document = write("a b.txt", "text");
    start();
    EXPECT_TRUE(does(R"(setTicket {"x":":;<=>?","n":7,"BVColorAsGray":"True","keep":{"a":"b"},"yes":true})"));
    EXPECT_EQ(result("print \"" + document + "\"").toObject(),
              (QJsonObject{{"job", QJsonValue::Null},
                           {"options", QJsonObject{{"x", ":;<=>?"},
                                                   {"n", "7"},
                                                   {"BVColorAsGray", "True"},
                                                   {"print-color-mode", "monochrome"},
                                                   {"TPToner", "Normal"},
                                                   {"TPStamp", ""},
                                                   {"TPSheets", "1"}}}}));
    EXPECT_EQ(log().mid(2), (QStringList{"saveValues", "shouldPrint"}));
}

TEST_F(Batch, APanelThatRefusesStopsTheJobWithItsOwnWords)
{
    const QString document = write("a.txt", "text");
    startWithView();
    EXPECT_TRUE(does("set stampCheck 1"));
    EXPECT_TRUE(does("set stampText refuse"));
    EXPECT_EQ(error("saveValues"), "The stamp is not to be used.");
    EXPECT_EQ(error("print " + document), "The stamp is not to be used.");
    EXPECT_TRUE(does("set stampText hold"));
    EXPECT_EQ(result("shouldPrint"), false);
    EXPECT_FALSE(error("print " + document).isEmpty());
    EXPECT_TRUE(does(R"(setTicket {"page-ranges":"1-3"})"));
    EXPECT_EQ(error("print \"" BV_SOURCE_DIR "/resources/demo/sample.pdf\""),
              "sample.pdf has 1 page; there is no page 3.");
}

TEST_F(Batch, StartsFromTheTicketThatIsNamedAndChangesItInPlace)
{
    const QString ticket = write("t.json", R"({"TPToner":"Rich","TPStamp":"Draft","TPSheets":3})");
    start({"--ticket", ticket});
    EXPECT_EQ(result("restoreValues"), true);
    EXPECT_EQ(result("summaryInfo").toObject()["Stamp"], "Draft");
    EXPECT_TRUE(does(R"(setTicket {"TPToner":"Save"})"));
    EXPECT_EQ(result("restoreValues"), true);
    EXPECT_EQ(result("summaryInfo").toObject()["Toner"], "Save");
    EXPECT_EQ(result("summaryInfo").toObject()["Stamp"], "none");
}

TEST_F(Batch, PresetsAreSavedListedAndUsed)
{
    start();
    EXPECT_EQ(result("presets"), QJsonArray());
    EXPECT_EQ(error("preset Draft"), "There is no preset “Draft” for the printer “QL70”.");
    EXPECT_TRUE(does(R"(setTicket {"TPToner":"Rich","TPSheets":3,"copies":"2"})"));
    EXPECT_EQ(result("restoreValues"), true);
    EXPECT_TRUE(does("savePreset \"My draft\""));
    EXPECT_EQ(result("presets"), (QJsonArray{"My draft"}));
    EXPECT_TRUE(does(R"(setTicket {"TPSheets":3,"copies":"2"})"));
    EXPECT_EQ(result("restoreValues"), true);
    EXPECT_EQ(result("preset \"my draft\"").toObject(), (QJsonObject{{"changed", 1}, {"unused", QJsonArray()}}));
    EXPECT_EQ(result("summaryInfo").toObject()["Toner"], "Rich");
    EXPECT_EQ(result("ticket").toObject()["TPToner"], "Rich");
    EXPECT_FALSE(error("savePreset \"\"").isEmpty());
}

TEST_F(Batch, AScriptFileWithoutALastLineEndIsCarriedOutWhole)
{
    const QString script = write("script", "# what it is\n\n  ticket\r\nsetTicket {\"a\":1}\nticket");
    m_batch.runToEnd(kStart + QStringList{"--batch", script});
    EXPECT_EQ(m_batch.finish(), 0);
    EXPECT_EQ(m_batch.restOfOutput(),
              "{\"command\":\"ticket\",\"result\":{}}\n{\"command\":\"setTicket\",\"result\":null}\n"
              "{\"command\":\"ticket\",\"result\":{\"a\":1}}\n");
}

TEST_F(Batch, ABadStartEndsAtOnceWithStatus2AndOneLineOnStandardError)
{
    const QString home = m_batch.home();
    write("bad.json", "{\"a\":null}");
    write("cut.ppd", "*PPD-Adobe: \"4.3\"\n*OpenUI *A: PickOne\n");
    write("no-plugin.so", "text");
    const std::vector<QStringList> rows = {
        {"--colour"},
        {"--plugin", home + "/no-plugin.so"},
        {"--plugin", BV_BUILD_DIR "/tests/testpanel.so"}, // and no print server
        kStart + QStringList{"--plugin", home + "/none.so"},
        kStart + QStringList{"--ppd", home + "/none.ppd"},
        kStart + QStringList{"--ppd", home + "/cut.ppd"},
        kStart + QStringList{"--ticket", home + "/bad.json"},
        kStart + QStringList{"--ticket", home + "/none.json"},
        kStart + QStringList{"--batch", home + "/none"},
        kStart + QStringList{"--batch", home},
    };
    for (QStringList arguments : rows) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        if (!arguments.contains("--batch"))
            arguments << QStringList{"--batch", "/dev/null"};
        BatchProcess batch;
        batch.runToEnd(arguments);
        EXPECT_EQ(batch.finish(), 2);
        EXPECT_EQ(batch.restOfOutput(), "");
        const QByteArray message = batch.standardError();
        EXPECT_TRUE(message.startsWith("bvprint: ")) << message.toStdString();
        EXPECT_TRUE(message.count('\n') == 1 && message.endsWith('\n')) << message.toStdString();
    }
    m_batch.setVariable("TESTPANEL_REFUSES_START", "1");
    start();
    EXPECT_EQ(m_batch.finish(), 2);
}

TEST_F(Batch, AClosedStandardInputIsAnEmptyBatch)
{
    const QString program = BV_BUILD_DIR "/bin/bvprint";
    QProcess shell;
    shell.start("/bin/sh",
                {"-c", "exec \"$0\" \"$@\" --batch - <&-", program, kStart[0], kStart[1], kStart[2], kStart[3]});
    ASSERT_TRUE(shell.waitForFinished());
    EXPECT_EQ(shell.exitCode(), 0);
    EXPECT_EQ(shell.readAllStandardError(), "");
}

} // namespace
