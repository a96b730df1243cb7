// SPDX-License-Identifier: GPL-2.0-or-later
// Markup in texts of others (print server, PPD, file names) is shown letter by letter.
#include "DialogWorld.h"
#include "support/MarkupProbe.h"

#include "widgets/MessageBar.h"

#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace bvtest {
namespace {

using ForeignText = DialogTest;

TEST_F(ForeignText, IsNeverTakenForMarkup)
{
    QWidget careless;
    careless.setToolTip(kMarkup);
    ASSERT_EQ(imagesShown(&careless).size(), 1) << "the probe sees nothing";

    QByteArray ppd = panelPpd();
    for (const char *text : {"A4 paper", "Postcard", "Long edge", "Off", "Media Size"})
        ppd.replace(text, kMarkup);
    source.listed.clear();
    source.add("Marked", write("marked.ppd", ppd));
    source.add("Bare", QString());
    for (bv::PrintQueue &queue : source.listed)
        queue.description = queue.location = queue.stateMessage = QString::fromLatin1(kMarkup);
    const QString oddDocument = write(QString::fromLatin1(kMarkup) + ".pdf", "%PDF-1.4\n");
    open({"Marked", std::nullopt, {document, oddDocument}});
    EXPECT_TRUE(find<QWidget>("row_PageSize")->toolTip().contains("img")) << "the text is not shown at all";
    EXPECT_EQ(imagesShown(dialog.get()), QStringList());

    // A conflict, a refused job and a queue that cannot be opened put such texts into sentences.
    find<QComboBox>("row_PageSize")->setCurrentIndex(1);
    find<QComboBox>("row_Duplex")->setCurrentIndex(1);
    sink.refusal = QString::fromLatin1(kMarkup);
    EXPECT_EQ(imagesShown(dialog.get()), QStringList());
    QTimer::singleShot(0, dialog.get(), [] {
        auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_NE(question, nullptr);
        EXPECT_EQ(imagesShown(question), QStringList());
        for (QAbstractButton *button : question->buttons())
            if (question->buttonRole(button) == QMessageBox::AcceptRole)
                button->click();
    });
    find<QPushButton>("print")->click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return dialog->messageText().contains("img"); }));
    EXPECT_EQ(imagesShown(dialog.get()), QStringList());
    QSignalSpy ready(dialog.get(), &bv::PrintDialog::ready);
    find<QComboBox>("printer")->setCurrentIndex(1);
    ASSERT_TRUE(ready.wait());
    EXPECT_EQ(imagesShown(dialog.get()), QStringList());
}

} // namespace
} // namespace bvtest
