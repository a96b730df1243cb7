// SPDX-License-Identifier: GPL-2.0-or-later
// The messages of a window: what stands, what goes, how much room they take, and what a screen reader gets.
#include "widgets/MessageBar.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace bv;

namespace {

class Messages : public ::testing::Test
{
protected:
    void SetUp() override
    {
        auto *column = new QVBoxLayout(&window);
        column->addWidget(bar);
        column->addStretch(1);
        window.resize(500, 400);
        window.show();
    }

    // The names of the alerts that a screen reader finds.
    QStringList alerts() const
    {
        QStringList names;
        for (QFrame *row : bar->findChildren<QFrame *>("message")) {
            QAccessibleInterface *one = QAccessible::queryAccessibleInterface(row);
            if (row->isVisible() && one->role() == QAccessible::AlertMessage)
                names << one->text(QAccessible::Name);
        }
        return names;
    }

    void say(const QString &text, const QString &topic = QString())
    {
        bar->say(MessageBar::Kind::Problem, text, QString(), {}, topic);
        QCoreApplication::processEvents();
    }
    // The part of that name in the only, or the first, message that has one.
    QAbstractButton *button(const char *name) { return bar->findChild<QAbstractButton *>(QLatin1String(name)); }

    QWidget window;
    MessageBar *bar = new MessageBar;
};

TEST_F(Messages, StandBelowEachOtherAndGoOneByOne)
{
    say("One.");
    say("Two.", "topic");
    say("One."); // now the newest
    say("Three.", "topic");
    EXPECT_EQ(bar->text(), "One.\nThree.");
    EXPECT_EQ(alerts(), (QStringList{"One.", "Three."}));
    int done = 0;
    bar->say(MessageBar::Kind::Note, "Four.", "Do It", [&] { done += bar->text().contains("Four.") ? 100 : 1; });
    QTest::mouseClick(button("messageAction"), Qt::LeftButton);
    EXPECT_EQ(done, 1) << "the message goes first";
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::mouseClick(button("messageClose"), Qt::LeftButton);
    EXPECT_EQ(bar->text(), "Three.");
    bar->clear();
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(Messages, OfALongListTheFirstLinesShowAndTheRestOnDemand)
{
    QStringList failures;
    for (int i = 1; i <= 61; ++i)
        failures << QStringLiteral("<b>“%1.pdf” was not found.").arg(i);
    say(failures.join('\n'));
    const auto *shown = bar->findChild<QLabel *>("messageText");
    EXPECT_TRUE(shown->text().endsWith("4.pdf” was not found.\nand 57 more")) << qPrintable(shown->text());
    QTest::keyClick(button("messageMore"), Qt::Key_Space);
    EXPECT_EQ(shown->text(), failures.join('\n'));
    // It is read from its first line on, by keys as well, and can be closed or folded without scrolling back.
    EXPECT_TRUE(QTest::qWaitFor([this] { return bar->verticalScrollBar()->maximum() > 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(bar->verticalScrollBar()->value(), 0);
    EXPECT_LE(bar->height(), window.height() / 2);
    for (const char *name : {"messageMore", "messageClose"})
        EXPECT_TRUE(bar->rect().contains(button(name)->mapTo(bar, button(name)->rect().bottomRight()))) << name;
    QTest::keyClick(button("messageMore"), Qt::Key_PageDown);
    EXPECT_GT(bar->verticalScrollBar()->value(), 0);
    QTest::keyClick(button("messageMore"), Qt::Key_Space);
    EXPECT_TRUE(shown->text().endsWith("and 57 more"));
}

TEST_F(Messages, NeverMakeTheWindowGrow)
{
    const QSize before = window.size();
    const int usual = window.minimumSizeHint().height();
    for (int i = 0; i < 30; ++i)
        say(QString(5000, QChar('a' + i % 26)));
    EXPECT_EQ(window.size(), before);
    EXPECT_LE(bar->height(), before.height() / 4 + 1);
    EXPECT_LE(window.minimumSizeHint().height() - usual, window.fontMetrics().height() * 4);
    const auto *text = bar->findChild<QLabel *>("messageText");
    EXPECT_GT(text->height(), 5 * text->fontMetrics().height()) << "long words break";
}

} // namespace
