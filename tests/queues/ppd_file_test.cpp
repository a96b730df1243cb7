// SPDX-License-Identifier: GPL-2.0-or-later
// Opening PPD files: what the loader prepares for later readers, and what it refuses.
#include "queues/PpdFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <cups/file.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bv::PpdFile;
using ::testing::HasSubstr;

const QByteArray kHead = "*PPD-Adobe: \"4.3\"\n*ModelName: \"Test\"\n";
const QByteArray kOption = "*OpenUI *Shade/Sch\xf6n \"1\": PickOne\n*DefaultShade: Two\n"
                           "*Shade One/One: \"<<\n/X 1>>\"\n*End\n*Shade Two/Two: \"\"\n*CloseUI: *Shade\n";

class PpdFileTest : public ::testing::Test
{
protected:
    bv::Result<PpdFile> open(const QByteArray &text)
    {
        QFile file(m_folder.filePath("test.ppd"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text);
        file.close();
        return PpdFile::open(file.fileName());
    }

    QTemporaryDir m_folder;
};

TEST_F(PpdFileTest, TextsAreUtf8AndMarkedSoEvenWithoutALanguageEncoding)
{
    const auto ppd = open(kHead + kOption);
    ASSERT_TRUE(ppd) << ppd.error().toStdString();
    EXPECT_STREQ(ppd.value().handle()->lang_encoding, "UTF-8");
    EXPECT_STREQ(ppdFindOption(ppd.value().handle(), "Shade")->text, "Sch\xc3\xb6n \"1\"");
    EXPECT_TRUE(ppdIsMarked(ppd.value().handle(), "Shade", "Two"));
}

TEST_F(PpdFileTest, AFileThatEndsInsideAnOptionIsRefusedWhereverItIsCut)
{
    const QByteArray whole = kHead + kOption;
    // From after the line that opens the option to before the line that closes it.
    const qsizetype from = whole.indexOf("PickOne\n") + 8;
    const qsizetype to = whole.indexOf("*CloseUI");
    for (qsizetype length = from; length <= to; ++length)
        EXPECT_FALSE(open(whole.left(length))) << length;
    EXPECT_FALSE(open(kHead + "*JCLOpenUI *JCLEcono: Boolean\n*DefaultJCLEcono: True\n"));
}

TEST_F(PpdFileTest, ACompressedFileIsJudgedByItsTextAndRefusedWhereverItIsCut)
{
    const QString path = m_folder.filePath("test.ppd.gz");
    QFile source(BV_SOURCE_DIR "/resources/QL70.ppd");
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    const QByteArray text = source.readAll();
    QByteArray whole;
    // Each compression level gives different bytes. None of them may be mistaken for the text.
    for (const char *mode : {"w1", "w6", "w9"}) {
        cups_file_t *file = cupsFileOpen(path.toUtf8().constData(), mode);
        cupsFileWrite(file, text.constData(), static_cast<size_t>(text.size()));
        cupsFileClose(file);
        const auto ppd = PpdFile::open(path);
        ASSERT_TRUE(ppd) << mode << ": " << ppd.error().toStdString();
        EXPECT_TRUE(ppdFindOption(ppd.value().handle(), "BVQuickColor"));
        QFile compressed(path);
        ASSERT_TRUE(compressed.open(QIODevice::ReadOnly));
        whole = compressed.readAll();
    }
    // Up to the check sum and length at the end; the text before them is complete.
    for (qsizetype length = 1; length < whole.size() - 8; length += 37)
        EXPECT_FALSE(open(whole.left(length))) << length;
    QByteArray damaged = whole;
    damaged[whole.size() - 6] = static_cast<char>(~damaged[whole.size() - 6]);
    EXPECT_FALSE(open(damaged));
    EXPECT_TRUE(open(whole)) << "the name says nothing";
}

TEST_F(PpdFileTest, AFileThatIsNotAPpdIsRefusedByName)
{
    EXPECT_THAT(open("%PDF-1.4\n").error().toStdString(), HasSubstr("test.ppd"));
    EXPECT_THAT(open(kHead + "*OpenUI *A: PickOne\n*OpenUI\n").error().toStdString(), HasSubstr("test.ppd"));
    QFile odd(m_folder.filePath("50%1.ppd"));
    ASSERT_TRUE(odd.open(QIODevice::WriteOnly) && odd.write("%PDF-1.4\n") > 0);
    odd.close();
    EXPECT_THAT(PpdFile::open(odd.fileName()).error().toStdString(), HasSubstr("50%1.ppd cannot be used"));
    EXPECT_THAT(PpdFile::open(m_folder.path()).error().toStdString(), HasSubstr("no file"));
    EXPECT_FALSE(PpdFile::open(m_folder.filePath("missing.ppd")));
}

} // namespace
