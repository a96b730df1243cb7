// SPDX-License-Identifier: GPL-2.0-or-later
// A held job on a print server that misbehaves: what is said of its documents, and of its release.
#include "support/HostileServer.h"

#include "heldjobs/HeldJobCopies.h"
#include "heldjobs/HeldJobSink.h"

#include <QFile>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bvtest::HostileServer;
using ::testing::HasSubstr;

bv::HeldJob aJob()
{
    bv::HeldJob job;
    job.id = 7;
    job.queue = QStringLiteral("QL70");
    job.documents = 1;
    return job;
}

struct Row
{
    std::vector<std::string> behaviors;
    const char *words; // null: it succeeds
};

// libcups keeps the server for each thread.
void use(const HostileServer &server)
{
    qputenv("CUPS_SERVER", server.address().toUtf8());
    cupsSetServer(server.address().toUtf8().constData());
}

TEST(HostileDocument, IsNoPreviewButASentence)
{
    const Row rows[] = {
        {{}, nullptr},
        {{"document=refused"}, "does not give the document out"},
        {{"document=403"}, "does not let you in"},
        {{"document=cut"}, "broke off"},
        {{"document=closes"}, "does not answer"},
        {{"document=mixed-up"}, "broke off"},
        {{"document=deep"}, "broke off"},
        {{"document=endless"}, "broke off"},
        {{"document=unreadable"}, "broke off"},
        {{"document=huge"}, "too large"},
    };
    for (const Row &row : rows) {
        const HostileServer server(row.behaviors);
        use(server);
        const auto folder = std::make_shared<QTemporaryDir>();
        bv::CallControl control;
        constexpr qint64 kSpace = 1024LL * 1024;
        const auto copies = bv::copyDocuments(aJob(), folder, control, kSpace);
        ASSERT_EQ(bool(copies), row.words == nullptr) << copies.error().toStdString();
        if (row.words) {
            EXPECT_THAT(copies.error().toStdString(), HasSubstr(row.words)) << row.behaviors[0];
            continue;
        }
        QFile copy(copies.value().at(0));
        ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
        EXPECT_EQ(copy.readAll(), "%PDF-");
    }
}

TEST(HostileRelease, IsSaidToBeHeldOrUnsure)
{
    const Row rows[] = {
        {{}, nullptr},
        {{"job=missing"}, "has no job 7"},
        {{"set=refused"}, "stays held: No. "},
        {{"set=closes"}, "Job 7 stays held."},
        {{"release=refused"}, "stays held: No. "},
        {{"release=closes"}, "did not confirm that job 7 is released"},
        {{"release=unreadable"}, "did not confirm that job 7 is released"},
    };
    for (const Row &row : rows) {
        HostileServer server(row.behaviors);
        use(server);
        bv::CallControl control;
        const auto sent = bv::HeldJobSink(aJob()).submit({"QL70", {}, {}, {{"BVQuickColor", "Photo"}}}, control);
        ASSERT_EQ(bool(sent), row.words == nullptr) << sent.error().toStdString();
        EXPECT_THAT(sent.error().toStdString(), HasSubstr(row.words ? row.words : ""));
        EXPECT_EQ(server.count("cancel"), 0);
    }
}

} // namespace
