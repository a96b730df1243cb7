// SPDX-License-Identifier: GPL-2.0-or-later
// The choices of a command line on our pane and PPD, without a print server: what is taken, what is refused and why.
#include "support/BatchProcess.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bvtest::BatchProcess;
using ::testing::HasSubstr;

const QString kPpd = QStringLiteral(BV_SOURCE_DIR "/resources/QL70.ppd");
const QString kDocument = QStringLiteral(BV_SOURCE_DIR "/LICENSE");

struct Answer
{
    int status = -1;
    QJsonObject json;
    std::string text;
    std::string said; // on standard error
};

Answer run(const QStringList &arguments, const QByteArray &ticket = {})
{
    BatchProcess program;
    program.setVariable("LC_ALL", "en_US.UTF-8");
    QStringList all{"--ppd", kPpd};
    if (!ticket.isEmpty()) {
        QFile file(program.home() + "/ticket.json");
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(ticket);
        all << "--ticket" << file.fileName();
    }
    program.runToEnd(all + arguments);
    Answer answer;
    answer.status = program.finish();
    const QByteArray output = program.restOfOutput();
    answer.json = QJsonDocument::fromJson(output).object();
    answer.text = output.toStdString();
    answer.said = program.standardError().toStdString();
    return answer;
}

QStringList asOptions(const QStringList &words)
{
    QStringList arguments;
    for (const QString &word : words)
        arguments << "-o" << word;
    return arguments;
}

TEST(CommandLineChoices, AreTakenOrRefusedByTheRulesInWhateverOrderTheyCome)
{
    struct Row
    {
        QByteArray ticket; // what the choices start from
        QStringList words;
        const char *refused; // a part of what is said; null: all is taken
    };
    const char *const gray = "BVColorSeparation=True: Not available while Color as Grayscale is on.";
    const QByteArray separated = R"({"BVColorSeparation":"True"})";
    const Row rows[] = {
        {{}, {"BVImageHalftone=Detail", "BVQuickColor=Manual"}, nullptr},
        {{}, {"BVImageHalftone=Detail"}, "BVImageHalftone=Detail: Available only while Quick Color is set to Manual."},
        {{}, {"BVImageHalftone=Gradation", "BVQuickColor=Photo"}, nullptr}, // Photo has it
        {{}, {"BVImageHalftone=Detail", "BVQuickColor=Photo"}, "BVImageHalftone=Detail: Available only"},
        {{}, {"BVColorAsGray=True", "BVColorSeparation=True"}, gray},
        {{}, {"BVQuickColor=Manual", "BVColorAsGray=True", "BVImageRGBSource=None"}, "Color as Grayscale is on"},
        {{}, {"BVQuickColor=Manual", "BVColorAsGray=True", "BVImageRGBSource=sRGB"}, nullptr}, // has it already
        {{}, {"BVSimGrayTreatment=BlackOnly", "BVQuickColor=Manual"}, "Simulation Profile"},
        {separated, {"BVColorAsGray=True"}, "BVColorAsGray=True: Not available while Color Separation is on."},
        {separated, {"BVColorAsGray=True", "BVColorSeparation=False"}, nullptr},
        {{}, {"Resolution=1200dpi", "BVEconoMode=True"}, "Economy Print “On” and Resolution “1200 dpi” do not go"},
        {{}, {"Duplex=DuplexTumble", "MediaType=Labels", "InputSlot=MultiPurpose"}, "do not go together"},
    };
    for (const Row &row : rows) {
        QStringList words = row.words;
        std::sort(words.begin(), words.end());
        do {
            const std::string which = words.join(u' ').toStdString();
            const Answer answer = run(QStringList{"--print", kDocument, "--json"} + asOptions(words), row.ticket);
            EXPECT_EQ(answer.status, row.refused ? 3 : 0) << which << answer.said;
            EXPECT_THAT(answer.said, HasSubstr(row.refused ? row.refused : "")) << which;
            EXPECT_EQ(answer.json.isEmpty(), row.refused != nullptr) << which;
            EXPECT_EQ(std::count(answer.said.begin(), answer.said.end(), '\n'), row.refused ? 1 : 0) << answer.said;
            for (const QString &word : row.refused ? QStringList() : words)
                EXPECT_EQ(answer.json["options"][word.section('=', 0, 0)], word.section('=', 1)) << which;
        } while (std::next_permutation(words.begin(), words.end()));
    }
}

TEST(CommandLineChoices, WithForceAreMadeAsFarAsTheRulesLeaveThem)
{
    const Answer both = run({"--print", kDocument, "--json", "--force", "-o", "Resolution=1200dpi BVEconoMode=True"});
    EXPECT_EQ(both.status, 0);
    EXPECT_THAT(both.said, HasSubstr("do not go together"));
    EXPECT_EQ(both.json["options"]["Resolution"], "1200dpi");
    EXPECT_EQ(both.json["options"]["BVEconoMode"], "True");
    const Answer gray =
        run({"--print", kDocument, "--json", "--force", "-o", "BVColorSeparation=True", "-o", "BVColorAsGray=True"});
    EXPECT_EQ(gray.status, 0);
    EXPECT_EQ(gray.json["options"]["BVColorAsGray"], "True");
    EXPECT_EQ(gray.json["options"]["BVColorSeparation"], "False");
}

TEST(CommandLineChoices, AreReadInAnySpellingAndByTheNamesThatLpKnows)
{
    struct Row
    {
        QStringList arguments;
        std::map<QString, QJsonValue> options; // undefined: not sent
    };
    const QJsonValue none(QJsonValue::Undefined);
    const Row rows[] = {
        {{"-o", "bvquickcolor=photo", "-o", "BVEconoMode"}, {{"BVQuickColor", "Photo"}, {"BVEconoMode", "True"}}},
        {{"-o", "media=A5,Tray2", "-o", "sides=two-sided-long-edge"},
         {{"PageSize", "A5"}, {"InputSlot", "Tray2"}, {"Duplex", "DuplexNoTumble"}, {"sides", none}, {"media", none}}},
        {{"-o", "Duplex=DuplexTumble", "-o", "sides=one-sided"}, {{"Duplex", "None"}}}, // the last one counts
        {{"-o", "PageRegion=A3"}, {{"PageSize", "A3"}, {"PageRegion", none}}},
        {{"-o", "print-color-mode=monochrome"}, {{"BVColorAsGray", "True"}, {"print-color-mode", "monochrome"}}},
        {{"-o", "BVColorAsGray=True", "-o", "print-color-mode=color"},
         {{"BVColorAsGray", "False"}, {"print-color-mode", "color"}}},
        {{"-o", "print-color-mode=color", "-o", "BVColorAsGray=True"},
         {{"BVColorAsGray", "True"}, {"print-color-mode", "monochrome"}}},
        {{"-n", "2", "-P", "3-4, 1", "-o", "fit-to-page nowrap", "-o", "job-hold-until=18:30"},
         {{"copies", "2"},
          {"page-ranges", "1,3-4"},
          {"fit-to-page", "true"},
          {"wrap", "false"},
          {"job-hold-until", "18:30"}}},
        {{"-o", "copies=3", "-n", "1"}, {{"copies", none}}},
    };
    for (const Row &row : rows) {
        const Answer answer = run(QStringList{"--print", kDocument, "--json"} + row.arguments);
        EXPECT_EQ(answer.status, 0) << answer.said;
        for (const auto &[keyword, value] : row.options)
            EXPECT_EQ(answer.json["options"].toObject().value(keyword), value)
                << row.arguments.join(u' ').toStdString() << ' ' << keyword.toStdString();
    }
    const Answer ticket = run({"--print", kDocument, "--json"}, R"({"copies":4,"BVQuickColor":"Photo"})");
    EXPECT_EQ(ticket.json["options"]["copies"], "4");
    EXPECT_EQ(ticket.json["options"]["BVQuickColor"], "Photo");
}

TEST(CommandLineChoices, ThatNobodyHasAreErrorsThatNameWhatThereIs)
{
    const std::pair<const char *, const char *> rows[] = {
        {"BVQuckColor=Photo", "Did you mean BVQuickColor?"},
        {"edgeenhance=On", "BVTextEdgeEnhance"},
        {"\x1b[2J=1", "“\\x1b[2J”. bvprint --list"},
        {"BVQuickColor=Foto", "Choose one of: General, Photo, Presentation, Manual"},
        {"media=A5,Tray9", "“Tray9”"},
        {"number-up=3", "1, 2, 4, 6, 9, 16"},
        {"job-priority=0", "1-100"},
        {"copies=1000", "1-999"},
        {"page-ranges=4-2", "runs backwards"},
        {"sides=three-sided", "“three-sided”"},
        {"BVImageRGBSourceCustom=True BVImageRGBSourceCustomFilename=x BVQuickColor=Manual", "no such profile"},
        {" ", "KEYWORD=CHOICE"},
    };
    for (const auto &[word, said] : rows) {
        const Answer answer = run({"--print", kDocument, "-o", word});
        EXPECT_EQ(answer.status, 2) << word;
        EXPECT_THAT(answer.said, HasSubstr(said));
        EXPECT_EQ(answer.text, "");
    }
    const Answer missing = run({"--print", "/no/such file"});
    EXPECT_EQ(missing.status, 2);
    EXPECT_THAT(missing.said, HasSubstr("/no/such file"));
}

TEST(CommandLineChoices, AreListedWithWhereTheyComeFromAndWhyTheyAreGray)
{
    const QStringList chosen = {"-o", "BVQuickColor=Photo", "-o", "BVColorAsGray=True"};
    const QByteArray ticket = R"({"BVEdgeType":"High","MediaType":"Heavy"})";
    const Answer list = run(QStringList{"--list", "--json"} + chosen, ticket);
    EXPECT_EQ(list.status, 0) << list.said;
    std::map<QString, QJsonObject> options;
    for (const QJsonValue &one : list.json["options"].toArray())
        options[one["option"].toString()] = one.toObject();
    EXPECT_EQ(options.count("PageRegion"), 0U);
    const std::tuple<const char *, const char *, const char *, const char *> rows[] = {
        {"BVQuickColor", "Photo", "given", ""},
        {"BVEdgeType", "High", "ticket", ""},
        {"MediaType", "Heavy", "ticket", ""},
        {"PageSize", "A4", "printer", ""},
        {"BVTextHalftone", "Gradation", "rules", "Available only while Quick Color is set to Manual."},
        {"BVColorSeparation", "False", "printer", "Not available while Color as Grayscale is on."},
    };
    for (const auto &[keyword, choice, origin, gray] : rows) {
        EXPECT_EQ(options[keyword]["choice"], choice) << keyword;
        EXPECT_EQ(options[keyword]["origin"], origin) << keyword;
        EXPECT_THAT(options[keyword]["gray"].toString().toStdString(), HasSubstr(gray)) << keyword;
        EXPECT_EQ(options[keyword]["gray"].isNull(), *gray == '\0') << keyword;
    }
    EXPECT_EQ(options["BVQuickColor"]["choices"].toArray().size(), 4);
    // What it says of the job is what --print sends.
    const Answer print = run(QStringList{"--print", kDocument, "--json"} + chosen, ticket);
    EXPECT_EQ(list.json["job"], print.json["options"]);

    const Answer text = run(QStringList{"--list"} + chosen, ticket);
    EXPECT_THAT(text.text, HasSubstr("\n  BVQuickColor                  Quick Color\n"));
    EXPECT_THAT(text.text, HasSubstr("\n    * Photo"));
    EXPECT_THAT(text.text, HasSubstr("General (default)\n"));
    EXPECT_THAT(text.text, HasSubstr("Given on the command line."));
    const Answer summary = run(QStringList{"--summary", "-n", "2"} + chosen, ticket);
    EXPECT_EQ(summary.text.find("Changed\n"), 0U) << summary.text;
    EXPECT_THAT(summary.text, HasSubstr("BVTextHalftone=Gradation "));
    EXPECT_THAT(summary.text, HasSubstr("MediaType=Heavy "));
    EXPECT_THAT(summary.text, HasSubstr("copies=2"));

    const Answer refused = run({"--list", "--json", "-o", "BVImageHalftone=Detail"});
    EXPECT_EQ(refused.status, 3);
    EXPECT_EQ(refused.json["refused"][0]["options"], "BVImageHalftone=Detail");
}

TEST(CommandLineChoices, WorkWithAnyPanelAndWithoutOne)
{
    for (const char *panel : {BV_BUILD_DIR "/tests/testpanel.so", BV_BUILD_DIR "/lib/bvco/bvco.so"}) {
        BatchProcess program;
        program.runToEnd(
            {"--print", kDocument, "--json", "--plugin", panel, "--ppd", BV_SOURCE_DIR "/tests/support/small.ppd"});
        EXPECT_EQ(program.finish(), 0) << panel << program.standardError().toStdString();
        EXPECT_THAT(program.restOfOutput().toStdString(), HasSubstr("\"PageSize\":")) << panel;
    }
}

} // namespace
