// SPDX-License-Identifier: GPL-2.0-or-later
// From a program's settings to the dialog's choices and back, with our PPD.
#include "portal/DialogRequest.h"
#include "portal/ProgramSettings.h"
#include "queues/PpdFile.h"

#include <gtest/gtest.h>

using namespace bv;

namespace {

class Settings : public ::testing::Test
{
protected:
    Settings()
    {
        Result<PpdFile> opened = PpdFile::open(QStringLiteral(BV_SOURCE_DIR "/resources/QL70.ppd"));
        if (opened)
            ppd.emplace(std::move(opened.value()));
    }
    DialogCaller caller(const QVariantMap &settings, const QVariantMap &pageSetup = {})
    {
        return callerFrom(settings, pageSetup, ppd->handle());
    }
    static std::string choice(const DialogCaller &caller, const char *keyword)
    {
        const PrintValue value = caller.choices.value(QString::fromLatin1(keyword));
        return value.string() ? value.string()->toStdString() : "-";
    }

    std::optional<PpdFile> ppd;
};

TEST_F(Settings, BecomeChoicesOfThePpd)
{
    const DialogCaller got = caller({{"n-copies", "3"},
                                     {"print-pages", "ranges"},
                                     {"page-ranges", "0-2,4"},
                                     {"duplex", "vertical"},
                                     {"resolution", "600"},
                                     {"collate", "true"},
                                     {"use-color", "false"},
                                     {"cups-bvquickcolor", "photo"}, // libcups takes any case
                                     {"cups-BVTextRGBSourceCustomFilename", "3132"},
                                     {"cups-job-priority", "70"}},
                                    {{"PPDName", "nonsense"}, {"Width", 148.0}, {"Height", 210.0}});
    EXPECT_EQ(got.copies, 3);
    EXPECT_EQ(got.pageRange, "1-3,5");
    const std::map<const char *, const char *> expected = {
        {"Duplex", "DuplexTumble"}, {"Resolution", "600dpi"},  {"Collate", "true"},
        {"BVColorAsGray", "True"},  {"BVQuickColor", "Photo"}, {"BVTextRGBSourceCustomFilename", "3132"},
        {"job-priority", "70"},     {"PageSize", "A5"}};
    for (const auto &[keyword, value] : expected)
        EXPECT_EQ(choice(got, keyword), value) << keyword;
    EXPECT_EQ(got.choices.entries.size(), expected.size());
}

TEST_F(Settings, ThatAreNonsenseChangeNothing)
{
    const DialogCaller got = caller({{"n-copies", "-3"},
                                     {"print-pages", "ranges"},
                                     {"page-ranges", "2-x"},
                                     {"duplex", "both"},
                                     {"resolution", "1"},
                                     {"cups-BVQuickColor", "No such"},
                                     {"cups-copies", "9"},
                                     {"cups-number-up", "4"},
                                     {"cups-page-ranges", "7"},
                                     {"default-source", "Cellar"}},
                                    {{"Width", 1.0}, {"Height", -1.0}});
    EXPECT_EQ(got.copies, 1);
    EXPECT_EQ(got.pageRange, "");
    EXPECT_TRUE(got.choices.entries.empty());
    EXPECT_TRUE(callerFrom({{"cups-PageSize", "A4"}, {"use-color", "false"}}, {}, nullptr).choices.entries.empty());
}

// What a program gives back the next time leads to the same choices.
TEST_F(Settings, ComeBackFromAJobAndAreUnderstoodAgain)
{
    const JobOptions job = {
        {"copies", "3"},           {"page-ranges", "2-3"},    {"Duplex", "DuplexNoTumble"},      {"PageSize", "A5"},
        {"BVQuickColor", "Photo"}, {"BVColorAsGray", "True"}, {"print-color-mode", "monochrome"}};
    const QVariantMap before = {{"cups-old", "x"}, {"number-up", "4"}, {"quality", "high"}, {"page-ranges", "1-2"}};
    const QVariantMap settings = settingsFor(before, "QL70", job, ppd->handle());
    for (const auto &[key, value] : std::map<QString, const char *>{{"printer", "QL70"},
                                                                    {"n-copies", "1"},
                                                                    {"print-pages", "all"},
                                                                    {"duplex", "horizontal"},
                                                                    {"use-color", "false"},
                                                                    {"paper-format", "iso_a5"},
                                                                    {"quality", "high"},
                                                                    {"cups-BVQuickColor", "Photo"}})
        EXPECT_EQ(settings.value(key).toString().toStdString(), value) << key.toStdString();
    for (const char *key : {"cups-old", "cups-copies", "cups-page-ranges", "number-up", "page-ranges"})
        EXPECT_FALSE(settings.contains(QLatin1String(key))) << key;
    const DialogCaller again = caller(settings);
    for (const auto &[keyword, value] : job) {
        const bool isOption = keyword != u"copies" && keyword != u"page-ranges" && keyword != u"print-color-mode";
        EXPECT_EQ(choice(again, keyword.toLatin1()), isOption ? value.toStdString() : "-") << keyword.toStdString();
    }
}

TEST_F(Settings, PageSetupFollowsThePaperOnly)
{
    const QVariantMap before = {
        {"PPDName", "A4"}, {"Width", 210.0}, {"Height", 297.0}, {"MarginTop", 20.0}, {"Orientation", "landscape"}};
    EXPECT_EQ(pageSetupFor(before, {{"PageSize", "A4"}}, ppd->handle()), before);
    const QVariantMap other = pageSetupFor(before, {{"PageSize", "A5"}}, ppd->handle());
    EXPECT_EQ(other.value("PPDName"), "A5");
    EXPECT_NEAR(other.value("Width").toDouble(), 148, 0.5);
    EXPECT_LT(other.value("MarginTop").toDouble(), 20);
    EXPECT_EQ(other.value("Orientation"), "landscape");
}

TEST_F(Settings, OfWrongTypesAreLeftOut)
{
    const QVariantMap got = plainEntries({{"a", "text"},
                                          {"b", 3},
                                          {"c", QVariantList{1}},
                                          {"d", QVariantMap{{"e", 1}}},
                                          {"f", QString(100000, u'x')},
                                          {"g", QByteArray("bytes")}},
                                         true);
    EXPECT_EQ(got, (QVariantMap{{"a", "text"}, {"b", 3.0}}));
    EXPECT_EQ(plainEntries(got, false), (QVariantMap{{"a", "text"}}));
    // Whole numbers stay of the type that the portal wants.
    DialogAnswer answer;
    answer.pageSetup = {{"Width", 210.0}};
    answer.job = {"QL70", {{"a", "ü"}}};
    const std::optional<DialogAnswer> back = DialogAnswer::fromLine(answer.toLine());
    ASSERT_TRUE(back);
    EXPECT_EQ(back->pageSetup.value("Width").typeId(), QMetaType::Double);
    EXPECT_EQ(back->job.options, answer.job.options);
    EXPECT_FALSE(DialogAnswer::fromLine("{\"response\":7}"));
    EXPECT_FALSE(DialogRequest::fromLine("[1]"));
}

} // namespace
