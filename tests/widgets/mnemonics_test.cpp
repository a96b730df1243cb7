// SPDX-License-Identifier: GPL-2.0-or-later
// Mnemonics in windows whose texts nobody chose together.
#include "widgets/Mnemonics.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QStackedWidget>
#include <QTabBar>
#include <gtest/gtest.h>

using namespace bv;

namespace {

class MnemonicsOf : public ::testing::Test
{
protected:
    QPushButton *add(const QString &text)
    {
        auto *button = new QPushButton(text);
        form->addRow(button);
        buttons << button;
        return button;
    }
    // A new text asks for a layout, and that for new letters.
    static void settle()
    {
        for (int turn = 0; turn < 3; ++turn)
            QCoreApplication::processEvents();
    }
    QString letters() const
    {
        QString all;
        for (const QPushButton *button : buttons)
            all += mnemonicOf(button->text());
        return all;
    }

    QWidget window;
    QFormLayout *form = new QFormLayout(&window);
    QList<QPushButton *> buttons;
};

TEST_F(MnemonicsOf, NoTwoTextsShareALetter)
{
    add("Save && Print");
    add("&Print");
    add("Print &All");
    add("ppp");
    add("Печать");
    add("印刷…");
    add("");
    auto *menu = new QComboBox;
    form->addRow("Paper:", menu);
    auto *label = qobject_cast<QLabel *>(form->labelForField(menu));
    window.show();
    Mnemonics mnemonics(&window);
    mnemonics.assign();
    EXPECT_EQ(buttons[0]->text(), "&Save && Print");
    EXPECT_EQ(buttons[1]->text(), "&Print");
    EXPECT_EQ(buttons[2]->text(), "Print &All");
    EXPECT_EQ(buttons[3]->text(), "ppp (&1)");
    EXPECT_EQ(buttons[4]->text(), "&Печать");
    EXPECT_EQ(buttons[5]->text(), "印刷(&2)…");
    EXPECT_EQ(buttons[6]->text(), "");
    EXPECT_EQ(label->text(), "Pap&er:");
}

// Arabic letters change their form with their neighbors, and a marked letter is drawn by itself.
TEST_F(MnemonicsOf, AMarkTearsNoWordApart)
{
    add("ال&طابعة");
    add("س&طوع");
    add("&ورق");
    window.show();
    Mnemonics mnemonics(&window);
    mnemonics.assign();
    EXPECT_EQ(buttons[0]->text(), "&الطابعة");
    EXPECT_EQ(buttons[1]->text(), "سطو&ع");
    EXPECT_EQ(buttons[2]->text(), "&ورق");
}

TEST_F(MnemonicsOf, PagesOfAStackShareLetters)
{
    auto *stack = new QStackedWidget;
    form->addRow(stack);
    for (int page = 0; page < 2; ++page) {
        auto *button = new QPushButton("Xx");
        stack->addWidget(button);
        buttons << button;
    }
    window.show();
    const Mnemonics mnemonics(&window);
    for (const int page : {0, 1, 0}) {
        stack->setCurrentIndex(page);
        settle();
        EXPECT_EQ(mnemonicOf(buttons[page]->text()), u'X');
    }
}

TEST_F(MnemonicsOf, StayAsLongAsTheirTextsHaveThem)
{
    QPushButton *one = add("Gray");
    window.show();
    Mnemonics mnemonics(&window);
    mnemonics.assign();
    EXPECT_EQ(one->text(), "&Gray");
    QPushButton *two = add("&Go");
    two->show();
    settle();
    EXPECT_EQ(letters(), "GO") << "who has a letter keeps it";
    two->hide();
    QPushButton *three = add("oo");
    three->show();
    settle();
    EXPECT_EQ(letters(), "GO1") << "the hidden one may come back";
    one->setText("Green");
    settle();
    EXPECT_EQ(letters()[0], 'G');
    two->show();
    one->setText("Color");
    settle();
    EXPECT_EQ(letters(), "CO1");
    for (int i = 0; i < 50; ++i)
        add("eee")->show();
    mnemonics.assign();
    QSet<QChar> letters;
    int marked = 0;
    for (const QPushButton *button : std::as_const(buttons)) {
        if (!button->isVisible() || mnemonicOf(button->text()).isNull())
            continue;
        ++marked;
        letters << mnemonicOf(button->text());
    }
    EXPECT_EQ(letters.size(), marked);
    EXPECT_EQ(marked, 36) << "letters and digits";
}

} // namespace
