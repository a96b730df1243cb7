// SPDX-License-Identifier: GPL-2.0-or-later
// From tickets to jobs: the options of a job, page ranges, and the sink that stores jobs in a folder.
#include "jobs/DocumentArguments.h"
#include "jobs/FolderSink.h"
#include "jobs/PageRange.h"
#include "jobs/PrintJob.h"
#include "jobs/StandardAttributes.h"
#include "queues/PpdFile.h"
#include "queues/TicketJson.h"
#include "support/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bv::JobOptions;
using bv::ticketFromJson;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

TEST(JobOptions, AreTheTopLevelStringsAndIntegers)
{
    const auto ticket = ticketFromJson(R"({"a":":;<=>?","b":"","n":-42,"r":1.5,"t":true,"l":["x"],"d":{"x":"y"}})");
    EXPECT_THAT(bv::ticketOptions(ticket.value()),
                UnorderedElementsAre(Pair("a", ":;<=>?"), Pair("b", ""), Pair("n", "-42")));
}

TEST(JobOptions, ExtraOptionsOverrideTheTicket)
{
    const auto ticket = ticketFromJson(R"({"copies":5,"page-ranges":"1","x":"y"})");
    EXPECT_THAT(bv::jobOptions(ticket.value(), nullptr, {{"copies", "2"}, {"page-ranges", "3-4"}}),
                UnorderedElementsAre(Pair("copies", "2"), Pair("page-ranges", "3-4"), Pair("x", "y")));
}

TEST(JobOptions, IncludeTheColorModeOfTheChoice)
{
    const std::pair<JobOptions, QString> rows[] = {
        {{}, ""},
        {{{"BVColorAsGray", "True"}}, "monochrome"},
        {{{"BVColorAsGray", "false"}}, "color"},
        {{{"BVColorAsGray", "Perhaps"}}, ""},
        {{{"BVColorAsGray", "True"}, {"print-color-mode", "color"}}, "color"}};
    for (auto [options, mode] : rows) {
        bv::addStandardAttributes(options, nullptr);
        const auto found = options.find("print-color-mode");
        EXPECT_EQ(found == options.end() ? QString() : found->second, mode);
    }
}

// The printer's own default is no choice: a default of the print server would be overruled.
TEST(JobOptions, IncludeNoColorModeOfADefault)
{
    const auto ppd = bv::PpdFile::open(BV_SOURCE_DIR "/resources/QL70.ppd");
    ASSERT_TRUE(ppd);
    ppd_option_t *gray = ppdFindOption(ppd.value().handle(), "BVColorAsGray");
    for (const std::string standard : {"False", "True"}) {
        standard.copy(gray->defchoice, sizeof gray->defchoice);
        for (const QString choice : {"", "False", "True"}) {
            JobOptions options;
            if (!choice.isEmpty())
                options["BVColorAsGray"] = choice;
            bv::addStandardAttributes(options, ppd.value().handle());
            const QString expected = choice == u"True"                          ? "monochrome"
                                     : choice == u"False" && standard == "True" ? "color"
                                                                                : "";
            const auto found = options.find("print-color-mode");
            EXPECT_EQ(found == options.end() ? QString() : found->second, expected) << standard;
        }
    }
}

TEST(FolderSink, StoresOptionsAndDocumentsWithEqualNames)
{
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath("x");
    for (const char *name : {"a.txt", "x/a.txt"}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(name);
    }
    bv::FolderSink sink(folder.filePath("jobs"));
    const bv::JobRequest request{"Q", "t", {folder.filePath("a.txt"), folder.filePath("x/a.txt")}, {{"k", "a b"}}};
    bv::CallControl control;
    ASSERT_TRUE(sink.submit(request, control));
    const auto second = sink.submit(request, control);
    ASSERT_TRUE(second);
    EXPECT_EQ(second.value().id, 2);
    EXPECT_THAT(second.value().note.toStdString(), ::testing::HasSubstr("job-2"));
    EXPECT_EQ(control.done(), 2 * control.sum());
    const QDir job(folder.filePath("jobs/job-1"));
    QFile options(job.filePath("options.json"));
    QFile copy(job.filePath("2-a.txt"));
    ASSERT_TRUE(options.open(QIODevice::ReadOnly) && copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(QJsonDocument::fromJson(options.readAll()).object(), (QJsonObject{{"k", "a b"}}));
    EXPECT_EQ(copy.readAll(), "x/a.txt");
    qputenv("BVPRINT_OUTPUT", "/var/jobs");
    EXPECT_EQ(bv::demoOutputFolder(), "/var/jobs");
    qunsetenv("BVPRINT_OUTPUT");
}

TEST(FolderSink, LeavesNoFolderOfAJobThatFailed)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("text") == 4);
    file.close();
    QFile(folder.filePath("empty")).open(QIODevice::WriteOnly);
    const bv::FolderSink sink(folder.filePath("jobs"));
    for (const char *bad : {"missing.txt", "empty", "jobs"}) {
        bv::CallControl control;
        EXPECT_FALSE(sink.submit({"Q", "t", {folder.filePath("a.txt"), folder.filePath(bad)}, {}}, control)) << bad;
    }
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(QByteArray(3000, 'x')) == 3000);
    file.close();
    for (const rlim_t room : {1000, 10}) { // for the options and a part of the document; for a part of the options
        const bvtest::FileSizeLimit full(room);
        bv::CallControl control;
        const auto sent = sink.submit({"Q", "t", {folder.filePath("a.txt")}, {{"keyword", "value"}}}, control);
        ASSERT_FALSE(sent);
        EXPECT_THAT(sent.error().toStdString(), ::testing::EndsWith(": File too large."));
    }
    bv::CallControl canceled;
    canceled.cancel();
    EXPECT_FALSE(sink.submit({"Q", "t", {folder.filePath("a.txt")}, {}}, canceled));
    EXPECT_EQ(QDir(folder.filePath("jobs")).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList());
}

TEST(Documents, AreNamedByPathsAndFileUrls)
{
    bv::DocumentArguments arguments(false);
    const auto paths = arguments.paths({"a b.txt", "file:///tmp/a%20b.txt", "FILE://localhost/x%25y"});
    ASSERT_TRUE(paths);
    EXPECT_EQ(paths.value(), (QStringList{"a b.txt", "/tmp/a b.txt", "/x%y"}));
    for (const char *refused : {"-", "file://elsewhere/a", "file://", "https://example.org/a.pdf"})
        EXPECT_FALSE(arguments.paths({refused})) << refused;
}

TEST(PageRanges, AreCheckedAgainstThePages)
{
    const auto four = [](const QString &) { return std::optional<int>(4); };
    const std::pair<const char *, const char *> rows[] = {
        {"1-4", ""}, {"2-", ""}, {"5-", "page 5"}, {"1,3-9", "page 9"}, {"", ""}};
    for (const auto &[range, words] : rows) {
        const JobOptions options = *range ? JobOptions{{"page-ranges", range}} : JobOptions();
        const std::string said = bv::checkRange(options, {"/x/s.pdf"}, four).toStdString();
        EXPECT_EQ(said.empty(), *words == '\0') << range;
        EXPECT_THAT(said, ::testing::HasSubstr(words));
        EXPECT_EQ(bv::checkRange(options, {"/x/s.pdf"}, {}), QString()) << "no count is known";
        EXPECT_EQ(bv::checkRange(options, {"a", "b"}, four).isEmpty(), options.empty());
    }
    EXPECT_EQ(bv::checkRange({{"page-ranges", "9"}}, {"/x/50%1.pdf"}, four),
              "50%1.pdf has 4 pages; there is no page 9.");
}

// Each text with the resulting option; an empty option means that the text is refused.
TEST(PageRanges, AcceptTheUsualSpellings)
{
    // clang-format off
    const std::pair<const char *, const char *> rows[] = {
        {"3", "3"}, {" 1 - 3 , 8- ", "1-3,8-"}, {"-2", "1-2"}, {"9, 1-4; 3-6", "1-6,9"}, {"1-2,3", "1-3"}, {"1,3", "1,3"},
        {"5-, 7-9", "5-"}, {"1,,2-2", "1-2"}, {"2–4، ٧", "2-4,7"},
        {"\u20661-3\u2069、5〜6", "1-3,5-6"}, {"99999999999999999999", "2147483647"}, {"", ""}, {" , ", ""}, {"-", ""},
        {"0-3", ""}, {"5-2", ""}, {"1-2-3", ""}, {"a", ""}, {"1 2", ""}, {"+1", ""},
    };
    // clang-format on
    for (const auto &[text, option] : rows) {
        const bv::PageRange range = bv::parsePageRange(QString::fromUtf8(text));
        EXPECT_EQ(range.toOption().toStdString(), option) << text;
        EXPECT_EQ(range.isValid(), *option != '\0') << text;
    }
}

} // namespace
