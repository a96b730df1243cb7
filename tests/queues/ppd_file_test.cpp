// Opening PPD files: what the loader settles for later readers, and what it refuses.
#include "queues/PpdFile.h"

#include <QFile>
#include <QTemporaryDir>
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

TEST_F(PpdFileTest, TextsAreUtf8AndSaidToBeEvenWithoutALanguageEncoding)
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
    // From behind the line that opens the option to before the line that closes it.
    const qsizetype from = whole.indexOf("PickOne\n") + 8;
    const qsizetype to = whole.indexOf("*CloseUI");
    for (qsizetype length = from; length <= to; ++length)
        EXPECT_FALSE(open(whole.left(length))) << length;
    EXPECT_FALSE(open(kHead + "*JCLOpenUI *JCLEcono: Boolean\n*DefaultJCLEcono: True\n"));
}

TEST_F(PpdFileTest, WhatIsNoPpdIsNamedInASentence)
{
    EXPECT_THAT(open("%PDF-1.4\n").error().toStdString(), HasSubstr("test.ppd"));
    EXPECT_THAT(open(kHead + "*OpenUI *A: PickOne\n*OpenUI\n").error().toStdString(), HasSubstr("test.ppd"));
    EXPECT_THAT(PpdFile::open(m_folder.path()).error().toStdString(), HasSubstr("no file"));
    EXPECT_FALSE(PpdFile::open(m_folder.filePath("missing.ppd")));
}

} // namespace
