// SPDX-License-Identifier: GPL-2.0-or-later
// The preview in its window: it follows documents, pages, paper and gray, and stays folded once it was folded.
#include "DialogWorld.h"

#include "dialog/PreviewBinding.h"
#include "pages/SampleDocuments.h"
#include "preview/PagePreview.h"
#include "preview/SheetView.h"
#include "widgets/DocumentList.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

using namespace bv;

namespace {

class DialogPreview : public bvtest::DialogTest
{
protected:
    void SetUp() override
    {
        // The pane must find none of the machine's own files.
        qputenv("BVCO_ROOT", folder.path().toUtf8());
        qputenv("XDG_STATE_HOME", folder.path().toUtf8());
        DialogTest::SetUp();
        loadPlugin(BV_BUILD_DIR "/lib/bvco/bvco.so");
        source.ppdPaths["Paper"] = BV_SOURCE_DIR "/resources/QL70.ppd";
        document = write("report.pdf", bvtest::pdfWithPages(std::vector<QSize>(9, {595, 842})));
        other = write("other.pdf", bvtest::pdfWithPages({{595, 842}}));
    }
    void TearDown() override
    {
        DialogTest::TearDown();
        qunsetenv("BVCO_ROOT");
        qunsetenv("XDG_STATE_HOME");
    }
    void openLarge()
    {
        open({QString(), std::nullopt, {document, other}});
        dialog->resize(1300, 900);
        QCoreApplication::processEvents();
    }
    PagePreview &preview() { return *dialog->parts().preview; }
    bool shows(const QString &sentence)
    {
        return QTest::qWaitFor([&] { return preview().sheet().accessibleName() == sentence; }, 20'000);
    }

    QString other;
};

} // namespace

TEST_F(DialogPreview, FollowsTheChoices)
{
    openLarge();
    ASSERT_FALSE(preview().isFolded());
    EXPECT_TRUE(shows("Preview, page 1 of 9 of report.pdf"));
    QTest::keyClicks(find<QLineEdit>("pageRange"), "4-");
    EXPECT_TRUE(shows("Preview, page 4 of 9 of report.pdf"));
    QTest::keyClicks(find<QLineEdit>("pageRange"), "x"); // changes nothing
    EXPECT_EQ(preview().page(), 4);
    dialog->parts().documents->list()->setCurrentRow(1);
    EXPECT_EQ(preview().document(), 1);
    dialog->parts().documents->addDocuments({write("third.txt", "text")});
    EXPECT_EQ(preview().document(), 1);

    EXPECT_EQ(preview().paper(), (Sheet{{595, 842}, {12, 12, 12, 12}}));
    auto *paper = find<QComboBox>("row_PageSize");
    paper->setCurrentIndex(paper->findData("Letter"));
    EXPECT_EQ(preview().paper().size, QSizeF(612, 792));
    EXPECT_FALSE(preview().isGray());
    auto *gray = find<QCheckBox>("check_ColorAsGrayscale");
    gray->click();
    EXPECT_TRUE(QTest::qWaitFor([this] { return preview().isGray(); }, 20'000));
    dialog->parts().restore->click();
    EXPECT_FALSE(preview().isGray());
    EXPECT_EQ(preview().paper().size, QSizeF(595, 842));
}

TEST_F(DialogPreview, StaysFoldedOnceItWasFolded)
{
    openLarge();
    ASSERT_FALSE(preview().isFolded());
    find<QToolButton>("previewToggle")->click();
    dialog->resize(1400, 900);
    EXPECT_TRUE(preview().isFolded());
    openLarge();
    EXPECT_TRUE(preview().isFolded());
    find<QToolButton>("previewToggle")->click();
    openLarge();
    EXPECT_FALSE(preview().isFolded());
    // By itself it takes no room that the settings need.
    dialog->resize(1024, 600);
    QCoreApplication::processEvents();
    EXPECT_TRUE(preview().isFolded());
    // And the settings leave the summary some: this is a screen of 1024 by 600 pixels at 150 %.
    dialog->resize(682, 400);
    QCoreApplication::processEvents();
    const auto *summary = find<QWidget>("summaryView");
    EXPECT_GT(summary->visibleRegion().boundingRect().height(), 2 * summary->fontMetrics().height());
}

TEST_F(DialogPreview, KeepsItsRoomHoweverManyDocumentsThereAre)
{
    openLarge();
    ASSERT_FALSE(preview().isFolded());
    dialog->resize(1200, 760);
    QCoreApplication::processEvents();
    ASSERT_FALSE(preview().isFolded());
    QStringList more;
    for (int i = 0; i < 12; ++i)
        more << write(QStringLiteral("%1.txt").arg(i), "text");
    dialog->parts().documents->addDocuments(more);
    QCoreApplication::processEvents();
    EXPECT_FALSE(preview().isFolded());
    const auto *list = find<QListWidget>("documentList");
    EXPECT_GE(list->viewport()->height(), 3 * list->sizeHintForRow(0));
    EXPECT_TRUE(list->verticalScrollBar()->isVisible());
    find<QToolButton>("previewToggle")->click();
    QCoreApplication::processEvents();
    EXPECT_GE(list->viewport()->height(), 10 * list->sizeHintForRow(0)) << "nothing else needs the room";
}

TEST_F(DialogPreview, KnowsPaperAndGrayFromTheJobsOptions)
{
    const auto ppd = PpdFile::open(source.ppdPaths["Paper"]);
    ASSERT_TRUE(ppd);
    ppd_file_t *file = ppd.value().handle();
    EXPECT_EQ(chosenSheet({}, file).size, QSizeF(595, 842));
    EXPECT_EQ(chosenSheet({{"PageSize", "Letter"}}, file), (Sheet{{612, 792}, {12, 12, 12, 12}}));
    EXPECT_EQ(chosenSheet({{"PageSize", "none"}}, file), Sheet());
    EXPECT_EQ(chosenSheet({{"PageSize", "A4"}}, nullptr), Sheet());
    EXPECT_TRUE(isGray({{"print-color-mode", "monochrome"}}));
    EXPECT_FALSE(isGray({{"print-color-mode", "color"}}));
}
