// SPDX-License-Identifier: GPL-2.0-or-later
// Presets as files, and what using one does to ticket and panel.
#include "presets/PresetStore.h"
#include "presets/PresetUse.h"
#include "queues/PanelLoader.h"
#include "queues/QueueSession.h"
#include "queues/TicketJson.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace bv;
using ::testing::HasSubstr;

namespace {

PrintDictionary ticket(const QByteArray &json)
{
    const auto read = ticketFromJson(json);
    EXPECT_TRUE(read) << read.error().toStdString();
    return read ? read.value() : PrintDictionary();
}

TEST(PresetFile, CarriesChoicesButNothingOfOneJob)
{
    const Preset preset{"Draft ü", "Paper, 1.0",
                        presetOptions(ticket(R"({"Duplex":"None","n":2,"copies":"3","page-ranges":"1","Copies":"4",)"
                                             R"("own":{"Duplex":"None"},"r":1.5,"b":true})"))};
    const auto read = presetFromJson(presetToJson(preset), "The preset x");
    ASSERT_TRUE(read) << read.error().toStdString();
    EXPECT_EQ(read.value().name, "Draft ü");
    EXPECT_EQ(read.value().printer, "Paper, 1.0");
    EXPECT_EQ(toJson(read.value().options), (QJsonObject{{"Duplex", "None"}, {"n", 2}}));
    const auto foreign =
        presetFromJson(R"({"bvprintPreset":1,"name":" A ","options":{"copies":9,"x":"y"},"more":[]})", "x");
    ASSERT_TRUE(foreign);
    EXPECT_EQ(foreign.value().name, "A");
    EXPECT_EQ(toJson(foreign.value().options), (QJsonObject{{"x", "y"}}));
}

TEST(PresetFile, IsRefusedInASentence)
{
    const std::pair<QByteArray, const char *> rows[] = {
        {"", "JSON"},
        {R"({"name":"A","options":{}})", "no preset"},
        {R"({"bvprintPreset":2,"name":"A","options":{}})", "newer"},
        {R"({"bvprintPreset":1,"options":{}})", "missing"},
        {R"({"bvprintPreset":1,"name":"A","options":[]})", "missing"},
        {R"({"bvprintPreset":1,"name":" ","options":{}})", "needs a name"},
        {R"({"bvprintPreset":1,"name":"A\nB","options":{}})", "one line"},
        {R"({"bvprintPreset":1,"name":")" + QByteArray(61, 'a') + R"(","options":{}})", "60"}};
    for (const auto &[json, named] : rows) {
        const auto read = presetFromJson(json, "The preset x.json");
        ASSERT_FALSE(read) << json.constData();
        EXPECT_THAT(read.error().toStdString(), ::testing::StartsWith("The preset x.json cannot be used"));
        EXPECT_THAT(read.error().toStdString(), HasSubstr(named));
    }
}

class Presets : public ::testing::Test
{
protected:
    QTemporaryDir m_folder;
    PresetStore m_store{m_folder.filePath("presets")};
};

TEST_F(Presets, AreStoredRenamedAndDeletedForEachPrinter)
{
    const QString strange = "../../" + QString(40, u'字') + "/x";
    for (const char *name : {"Draft", "b", "A&B"})
        EXPECT_EQ(m_store.store("Office", {name, "m", ticket(R"({"a":"1"})")}), "");
    EXPECT_EQ(m_store.store("Office", {strange, "m", ticket(R"({"a":"2"})")}), "");
    EXPECT_EQ(m_store.names("Office").size(), 4);
    EXPECT_EQ(m_store.names("Lab"), QStringList());
    EXPECT_EQ(*m_store.load("Office", strange).value().options.value("a").string(), "2");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"presets"});

    // Case makes no other name.
    EXPECT_EQ(m_store.store("Office", {"DRAFT", "m", ticket(R"({"a":"3"})")}), "");
    EXPECT_EQ(m_store.names("Office").size(), 4);
    EXPECT_EQ(*m_store.load("Office", "draft").value().options.value("a").string(), "3");
    EXPECT_EQ(m_store.freeName("Office", "draft"), "draft 2");
    EXPECT_EQ(m_store.store("Office", {QString(60, 'x'), "m", {}}), "");
    EXPECT_EQ(m_store.freeName("Office", QString(60, 'x')), QString(58, 'x') + " 2");
    EXPECT_EQ(m_store.remove("Office", QString(60, 'x')), "");
    EXPECT_THAT(m_store.rename("Office", "b", "Draft").toStdString(), HasSubstr("already"));
    EXPECT_NE(m_store.rename("Office", "b", ""), "");
    EXPECT_EQ(m_store.rename("Office", "b", "B"), "");
    EXPECT_EQ(m_store.rename("Office", "DRAFT", "Proof"), "");
    EXPECT_FALSE(m_store.load("Office", "draft"));
    EXPECT_EQ(m_store.remove("Office", "proof"), "");
    EXPECT_THAT(m_store.remove("Office", "Proof").toStdString(), HasSubstr("no preset “Proof”"));
    EXPECT_EQ(m_store.names("Office").filter("B"), (QStringList{"A&B", "B"}));
    QFile broken(m_folder.filePath("presets/Office/x.json"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    EXPECT_EQ(m_store.names("Office").size(), 3);
}

// The file of a preset keeps its name when the preset gets another.
TEST_F(Presets, ReplaceNoPresetThatWasRenamedAndNoFileThatCannotBeRead)
{
    const QString longest(60, u'n');
    for (const QString &name : {QStringLiteral("Draft"), longest})
        EXPECT_EQ(m_store.store("Office", {name, "m", ticket(R"({"a":"1"})")}), "");
    EXPECT_EQ(m_store.rename("Office", "Draft", "Proof"), "");
    QFile newer(m_folder.filePath("presets/Office/Later.json"));
    ASSERT_TRUE(newer.open(QIODevice::WriteOnly) && newer.write(R"({"bvprintPreset":2})") > 0);
    newer.close();
    for (const char *name : {"Draft", "Later"})
        EXPECT_EQ(m_store.store("Office", {name, "m", ticket(R"({"a":"2"})")}), "");
    EXPECT_EQ(m_store.store("Office", {m_store.freeName("Office", longest), "m", {}}), "");
    for (const QString &name : {QStringLiteral("Draft"), QStringLiteral("Later"), longest, longest.left(58) + " 2"})
        EXPECT_TRUE(m_store.contains("Office", name)) << name.toStdString();
    EXPECT_EQ(m_store.names("Office").size(), 5);
    EXPECT_EQ(*m_store.load("Office", "Proof").value().options.value("a").string(), "1");
    ASSERT_TRUE(newer.open(QIODevice::ReadOnly));
    EXPECT_EQ(newer.readAll(), R"({"bvprintPreset":2})");
}

TEST_F(Presets, ThatCannotBeStoredSaySo)
{
    QFile file(m_folder.filePath("presets"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_THAT(m_store.store("Office", {"Draft", {}, {}}).toStdString(),
                ::testing::AllOf(HasSubstr("could not be saved"), HasSubstr("Draft.json: Not a directory."),
                                 HasSubstr("Check that")));
}

// A session with a panel that is not ours.
class PresetUse : public ::testing::Test
{
protected:
    void SetUp() override
    {
        const auto text = PpdText::from(R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*ModelName: "Paper"
*NickName: "Paper, 1.0"
*OpenUI *TPToner/Toner: PickOne
*DefaultTPToner: Normal
*TPToner Normal/Normal: ""
*TPToner Save/Save: ""
*CloseUI: *TPToner
*OpenUI *Duplex/Two-Sided Printing: PickOne
*DefaultDuplex: None
*Duplex None/Off: ""
*Duplex DuplexNoTumble/Long edge: ""
*CloseUI: *Duplex
)ppd",
                                        "p.ppd");
        ASSERT_TRUE(text);
        Result<PpdFile> ppd = PpdFile::open(text.value());
        ASSERT_TRUE(ppd) << ppd.error().toStdString();
        m_session = std::make_unique<QueueSession>(QueueIdentity{"Office", {}, true}, std::move(ppd.value()));
        ASSERT_TRUE(m_loader.load(QStringLiteral(BV_BUILD_DIR "/tests/testpanel.so"), {}));
        m_panel = m_loader.printerPanel(m_session.get());
    }
    QString value(const char *key) const
    {
        const PrintValue value = m_session->ticket().value(key);
        return value.integer() ? QString::number(*value.integer()) : value.string() ? *value.string() : QString();
    }

    PanelLoader m_loader;
    std::unique_ptr<QueueSession> m_session;
    std::unique_ptr<PrintPanel> m_panel;
};

TEST_F(PresetUse, ReplacesAllChoicesAndCountsThem)
{
    m_session->ticket().replace(ticket(R"({"TPToner":"Save","TPSheets":3,"number-up":"2"})"));
    m_panel->restoreValuesAndReturnError(nullptr);
    PresetOutcome outcome =
        useChoices(*m_session, m_panel.get(), ticket(R"({"Duplex":"DuplexNoTumble","TPSheets":5,"sides":"x"})"));
    EXPECT_EQ(outcome.changed, 5) << "toner, sheets, two-sided, and both attributes";
    EXPECT_EQ(outcome.misfits, QStringList());
    EXPECT_EQ(value("TPToner"), "Normal");
    EXPECT_EQ(value("TPSheets"), "5");
    EXPECT_EQ(value("Duplex"), "DuplexNoTumble");
    EXPECT_EQ(value("number-up"), "");
    outcome = useChoices(*m_session, m_panel.get(), presetOptions(m_session->ticket().entries()));
    EXPECT_EQ(outcome.changed, 0);
    // An option without an entry has the printer's default.
    outcome = useChoices(*m_session, nullptr, ticket(R"({"Duplex":"None"})"));
    EXPECT_EQ(value("TPSheets"), "");
    EXPECT_EQ(useChoices(*m_session, nullptr, {}).changed, 0);
}

TEST_F(PresetUse, ListsWhatDoesNotFitWithTheReason)
{
    const PresetOutcome outcome =
        useChoices(*m_session, m_panel.get(),
                   ticket(R"({"Duplex":"Tumble","TPToner":"Gone","Folding":"Half","TPSheets":1000,"lower":"1"})"));
    EXPECT_EQ(outcome.misfits, (QStringList{"Folding: this printer has no such setting.",
                                            "TPSheets: the saved choice is not there any more.",
                                            "Toner: this printer does not offer “Gone”.",
                                            "Two-Sided Printing: this printer does not offer “Tumble”."}));
    EXPECT_EQ(value("Duplex"), "");
    EXPECT_EQ(value("Folding"), "");
    EXPECT_EQ(value("lower"), "1");
}

} // namespace
