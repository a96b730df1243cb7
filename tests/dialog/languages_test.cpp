// SPDX-License-Identifier: GPL-2.0-or-later
// The window with our pane in every language: each text has its place, and no two have the same mnemonic. A process can
// load the plug-in in one language only, so each case needs one of its own, which CTest gives it.
#include "DialogWorld.h"
#include "TextsInSight.h"

#include "texts/WindowTexts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <optional>

using namespace bv;

namespace {

class Languages : public bvtest::DialogTest, public ::testing::WithParamInterface<const char *>
{
protected:
    void SetUp() override
    {
        qputenv("BVCO_ROOT", folder.path().toUtf8());
        // For the PPD's words.
        qputenv("LC_ALL", QByteArray(GetParam()) + ".UTF-8");
        DialogTest::SetUp();
        m_texts.emplace(QString::fromLatin1(GetParam()));
        loadPlugin(QStringLiteral(BV_BUILD_DIR "/lib/bvco/bvco.so"), QString::fromLatin1(GetParam()));
        source.add("Ours", BV_SOURCE_DIR "/resources/QL70.ppd");
    }
    void TearDown() override
    {
        DialogTest::TearDown();
        m_texts.reset();
        qputenv("LC_ALL", "C");
        qunsetenv("BVCO_ROOT");
    }

    // No text is cut off: labels and buttons have the width that they ask for.
    void expectRoom(const char *where)
    {
        QTest::qWait(50); // mnemonics and layout come in turns, and on a busy machine not all of them by then
        QStringList cut;
        const auto hasRoom = [&] {
            cut.clear();
            bvtest::eachTextInSight(*dialog, [&](const QWidget *owner, const QString &text) {
                const int wanted = owner->minimumSizeHint().width();
                if (owner->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored && owner->width() < wanted)
                    cut << QStringLiteral("%1 has %2 of %3").arg(text).arg(owner->width()).arg(wanted);
            });
            return cut.isEmpty();
        };
        EXPECT_TRUE(QTest::qWaitFor(hasRoom)) << where << ": " << cut.join(u'\n').toStdString();
        bvtest::countWrongMnemonics(*dialog);
    }

    void walkThrough()
    {
        expectRoom("Color Options");
        find<QCheckBox>("check_ColorAsGrayscale")->click();
        expectRoom("Color as Grayscale");
        find<QCheckBox>("check_ColorAsGrayscale")->click();
        QTest::keyClick(find<QComboBox>("menu_QuickColor"), Qt::Key_End);
        find<QPushButton>("button_AdvanceColorOptions")->click();
        auto *tabs = find<QTabWidget>("tab_SwitchVew");
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            expectRoom("Advanced");
        }
    }

    std::optional<WindowTexts> m_texts;
};

TEST_P(Languages, HaveRoomAndMnemonics)
{
    open({"Ours", std::nullopt, {document}});
    EXPECT_NE(find<QPushButton>("cancel")->text().remove(u'&'), "Cancel");
    dialog->resize(1200, 800);
    walkThrough();
}

TEST_P(Languages, HaveRoomAt200Percent)
{
    // What a full-HD screen at 200 % has room for.
    open({"Ours", std::nullopt, {document}});
    dialog->resize(960, 500);
    walkThrough();
}

TEST_P(Languages, HaveRoomWithLargeLetters)
{
    QFont font = QApplication::font();
    const QFont before = font;
    font.setPointSizeF(2 * font.pointSizeF());
    QApplication::setFont(font);
    open({"Ours", std::nullopt, {document}});
    dialog->resize(1800, 1000);
    walkThrough();
    dialog.reset();
    QApplication::setFont(before);
}

INSTANTIATE_TEST_SUITE_P(All, Languages, ::testing::Values("ar", "de", "es", "fr", "ja", "zh_CN"),
                         [](const auto &info) { return std::string(info.param); });

} // namespace
