// SPDX-License-Identifier: GPL-2.0-or-later
// The text field under real keys, the clipboard, undo, drops and an input method.
#include "profileui/BVTextField.h"

#include "profileui/KeyFilters.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

const QString kStem27 = QStringLiteral("abcdefghijklmnopqrstuvwxyz1");

// A window with a file name field, the button it controls, and another widget that can take the focus.
class TextField : public testing::Test
{
protected:
    void SetUp() override
    {
        auto *layout = new QVBoxLayout(&window);
        for (QWidget *widget : std::initializer_list<QWidget *>{&field, &button, &elsewhere})
            layout->addWidget(widget);
        field.setMaxLength(31, 3);
        field.setInputKey(kFilterFileName);
        field.setOperateControl(&button);
        button.setEnabled(false);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        field.setFocus();
    }
    void asProfileName()
    {
        field.setMaxLength(30, 0);
        field.setInputKey(kFilterAscii);
        field.setOperateControl(nullptr);
    }
    void put(const QString &text, int caret)
    {
        field.putText(text);
        field.setCursorPosition(caret);
    }
    void type(const QString &text)
    {
        for (const QChar unit : text)
            QTest::keyClick(&field, unit.toLatin1());
    }
    void key(QKeySequence::StandardKey standard) { QTest::keySequence(&field, QKeySequence(standard)); }
    void paste(const QString &text)
    {
        QApplication::clipboard()->setText(text);
        key(QKeySequence::Paste);
    }
    // Drops a text from another widget before the UTF-16 unit at that position.
    void drop(const QString &text, int at)
    {
        int x = 0;
        while (x < field.width() && field.cursorPositionAt({x, field.height() / 2}) < at)
            ++x;
        QMimeData data;
        data.setText(text);
        const QPoint where(x, field.height() / 2);
        QDragEnterEvent enter(where, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&field, &enter);
        QDropEvent event(where, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&field, &event);
    }
    void compose(const QString &preedit, const QString &commit = {})
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QApplication::sendEvent(&field, &event);
    }

    QWidget window;
    BVTextField field;
    QPushButton button{QStringLiteral("OK")};
    QLineEdit elsewhere;
};

#define EXPECT_FIELD(expectedText, expectedCaret)                                                                      \
    EXPECT_EQ(field.text(), expectedText);                                                                             \
    EXPECT_EQ(field.cursorPosition(), expectedCaret);                                                                  \
    EXPECT_FALSE(field.hasSelectedText())

TEST_F(TextField, AFileNameHas27UnitsThenADotThenThreeMore)
{
    paste(QStringLiteral(".."));
    EXPECT_FIELD(QString(), 0);
    type(kStem27 + u'2');
    EXPECT_FIELD(kStem27, 27);
    type(QStringLiteral(".iccx"));
    EXPECT_FIELD(kStem27 + QStringLiteral(".icc"), 31);
    // A second dot at any position, or a longer stem.
    for (const int caret : {0, 5, 27, 28, 31}) {
        field.setCursorPosition(caret);
        type(QStringLiteral("."));
        EXPECT_FIELD(kStem27 + QStringLiteral(".icc"), caret);
    }
    field.setCursorPosition(3);
    type(QStringLiteral("x"));
    EXPECT_FIELD(kStem27 + QStringLiteral(".icc"), 3);
}

TEST_F(TextField, ARefusedChangeLeavesTheCaretWhereItStood)
{
    struct Row
    {
        const char *name;
        QString text;
        int anchor; // selection from here
        int caret;  // to here
        QString pasted;
    };
    const Row rows[] = {
        {"in the middle", kStem27, 13, 13, QStringLiteral("xyz")},
        {"over a selection", kStem27, 3, 10, QString(40, u'x')},
        {"far too long", QStringLiteral("ab.c"), 1, 1, QString(30000, u'x')},
        {"extension too long", QStringLiteral("ab.icc"), 6, 6, QStringLiteral("m")},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        put(row.text, row.anchor);
        field.setSelection(row.anchor, row.caret - row.anchor);
        paste(row.pasted);
        EXPECT_FIELD(row.text, row.caret);
    }
}

TEST_F(TextField, TakingTheDotAwayFromALongNameIsRefused)
{
    const QString name = kStem27 + QStringLiteral(".ab");
    put(name, 28);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_FIELD(name, 28);
    // The caret counts from the end of the text, so Delete moves it behind what it would have taken.
    field.setCursorPosition(27);
    QTest::keyClick(&field, Qt::Key_Delete);
    EXPECT_FIELD(name, 28);
    field.setSelection(27, 1);
    key(QKeySequence::Cut);
    EXPECT_FIELD(name, 28);
}

TEST_F(TextField, RefusedCharactersVanishAndTheCaretStaysBehindTheRest)
{
    paste(QStringLiteral("My Profile: new.icc"));
    EXPECT_FIELD(QStringLiteral("MyProfilenew.icc"), 16);
    field.setCursorPosition(2);
    paste(QStringLiteral(": 1 :"));
    EXPECT_FIELD(QStringLiteral("My1Profilenew.icc"), 3);
    type(QStringLiteral("/ "));
    EXPECT_FIELD(QStringLiteral("My1Profilenew.icc"), 3);
}

TEST_F(TextField, UnitsAreCountedBeforeTheyAreFiltered)
{
    asProfileName();
    // 15 characters beyond the BMP are 30 units; one more unit breaks the limit, so nothing is taken at all.
    const QString face = QString::fromUtf8("\xF0\x9F\x98\x80");
    paste(face.repeated(15) + u'x');
    EXPECT_FIELD(QString(), 0);
    paste(face.repeated(14) + u'x');
    EXPECT_FIELD(QStringLiteral("x"), 1);
    paste(QString::fromUtf16(u"e\x0301 \x202E\x0627z"));
    EXPECT_FIELD(QStringLiteral("xe z"), 4);
    paste(QString(QChar(0)) + u'n');
    EXPECT_EQ(field.text().left(4), QStringLiteral("xe z"));
    EXPECT_EQ(field.text().back(), u'n');
    type(QString(30, u'y'));
    EXPECT_EQ(field.text().size(), 30);
}

TEST_F(TextField, TheControlledButtonFollowsTheText)
{
    struct Row
    {
        const char *keys;
        bool enabled;
    };
    for (const Row &row : {Row{"a", true}, Row{".", false}, Row{"a.", true}, Row{".a", false}, Row{"a.b", true}}) {
        SCOPED_TRACE(row.keys);
        put({}, 0);
        button.setEnabled(!row.enabled);
        type(QString::fromLatin1(row.keys));
        EXPECT_EQ(button.isEnabled(), row.enabled);
    }
    // Also after a refusal.
    put(kStem27, 27);
    type(QStringLiteral("x"));
    EXPECT_TRUE(button.isEnabled());
}

TEST_F(TextField, ATextSetByCodeIsNotCheckedAndIsRestoredByARefusal)
{
    const QString odd = QString::fromUtf8("\xC3\xA9t\xC3\xA9 .a.b ") + kStem27;
    button.setEnabled(false);
    put(odd, 2);
    EXPECT_EQ(field.text(), odd);
    EXPECT_FALSE(button.isEnabled());
    type(QStringLiteral("x"));
    EXPECT_FIELD(odd, 2);
    // While the focus stays, a refusal restores the text set with setOldString.
    field.setText(QStringLiteral("abc"));
    field.setOldString(QStringLiteral("old"));
    paste(kStem27);
    EXPECT_EQ(field.text(), QStringLiteral("old"));
    // A new editing session starts from the current text.
    elsewhere.setFocus();
    field.setText(QStringLiteral("new"));
    field.setFocus();
    paste(kStem27);
    EXPECT_EQ(field.text(), QStringLiteral("new"));
}

TEST_F(TextField, ACheckOutsideAnEditingSessionRestoresTheOldString)
{
    elsewhere.setFocus();
    for (const QString &forbidden : {kStem27 + u'2', QStringLiteral("a.icc4"), QStringLiteral("a.b.c")}) {
        field.setOldString(QStringLiteral("ok.icc"));
        field.setText(forbidden);
        field.textDidChange();
        EXPECT_EQ(field.text(), QStringLiteral("ok.icc")) << forbidden.toStdString();
        EXPECT_TRUE(button.isEnabled());
    }
    field.setText(QStringLiteral("a:b"));
    field.textDidChange();
    EXPECT_EQ(field.text(), QStringLiteral("ab"));
    field.setText(kStem27 + u'2');
    field.textDidChange();
    EXPECT_EQ(field.text(), QStringLiteral("ab")) << "the checked text is what is remembered";
}

TEST_F(TextField, UndoAfterARefusalSkipsTheRefusedTextAndEnds)
{
    put({}, 0);
    type(QStringLiteral("ab"));
    field.setCursorPosition(1);
    type(QStringLiteral("12"));
    paste(kStem27); // refused
    EXPECT_FIELD(QStringLiteral("a12b"), 3);
    // Every step shows an earlier text or a part of it, and the steps end.
    int steps = 0;
    for (; field.isUndoAvailable() && steps < 10; ++steps) {
        key(QKeySequence::Undo);
        EXPECT_LE(field.text().size(), 4);
    }
    EXPECT_LT(steps, 10);
    EXPECT_EQ(field.text(), QString());
    EXPECT_FALSE(button.isEnabled());
    for (steps = 0; field.isRedoAvailable() && steps < 10; ++steps)
        key(QKeySequence::Redo);
    EXPECT_EQ(field.text(), QStringLiteral("a12b"));
}

TEST_F(TextField, UndoIntoATextThatTheRulesRefuseIsRefused)
{
    put(QString(40, u'x'), 40);
    field.selectAll();
    paste(QStringLiteral("ok.icc"));
    EXPECT_EQ(field.text(), QStringLiteral("ok.icc"));
    key(QKeySequence::Undo);
    EXPECT_EQ(field.text(), QStringLiteral("ok.icc"));
    // Filtered pastes are one step.
    field.putText({});
    paste(QStringLiteral("a:b"));
    key(QKeySequence::Undo);
    EXPECT_EQ(field.text(), QString());
}

TEST_F(TextField, DropsAreCheckedAlsoWithoutTheFocus)
{
    put(QStringLiteral("ab"), 2);
    elsewhere.setFocus();
    drop(QStringLiteral(": c"), 2);
    EXPECT_EQ(field.text(), QStringLiteral("abc"));
    drop(kStem27, 3);
    EXPECT_FIELD(QStringLiteral("abc"), 3);
}

TEST_F(TextField, AnInputMethodsTextIsCheckedWhenItIsCommitted)
{
    type(QStringLiteral("a"));
    compose(QString::fromUtf8("\xE3\x81\x82"));
    EXPECT_EQ(field.text(), QStringLiteral("a"));
    compose({}, QString::fromUtf8("\xE3\x81\x82z"));
    EXPECT_FIELD(QStringLiteral("az"), 2);
    compose({}, kStem27);
    EXPECT_FIELD(QStringLiteral("az"), 2);
    // A commit followed by more composing, and one that replaces the text before it.
    compose(QStringLiteral("next"), QStringLiteral("b:"));
    EXPECT_EQ(field.text(), QStringLiteral("azb"));
    QInputMethodEvent replacing;
    replacing.setCommitString(QStringLiteral("Q/"), -1, 1);
    QApplication::sendEvent(&field, &replacing);
    EXPECT_EQ(field.text(), QStringLiteral("azQ"));
}

TEST_F(TextField, PuttingATextDropsWhatIsBeingComposed)
{
    compose(QStringLiteral("half"));
    EXPECT_EQ(field.displayText(), QString());
    field.putText({});
    EXPECT_EQ(field.inputMethodQuery(Qt::ImSurroundingText).toString(), QString());
    type(QStringLiteral("x"));
    EXPECT_FIELD(QStringLiteral("x"), 1);
}

} // namespace
