// SPDX-License-Identifier: GPL-2.0-or-later
// What a screen reader and the keyboard find in the window with our pane: names, mnemonics, and the reasons of what is
// gray. Prints the whole tree, for people to read.
#include "DialogWorld.h"
#include "TextsInSight.h"

#include "widgets/WhyGreyed.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>
#include <map>

using namespace bv;

namespace {

class Access : public bvtest::DialogTest
{
protected:
    void SetUp() override
    {
        qputenv("BVCO_ROOT", folder.path().toUtf8());
        DialogTest::SetUp();
        loadPlugin(QStringLiteral(BV_BUILD_DIR "/lib/bvco/bvco.so"));
        source.add("Ours", BV_SOURCE_DIR "/resources/QL70.ppd");
        make({"Ours", std::nullopt, {document}});
        dialog->resize(1400, 1000);
        QSignalSpy ready(dialog.get(), &PrintDialog::ready);
        dialog->show();
        ASSERT_TRUE(ready.isEmpty());
        expectMnemonics(); // while it waits
        if (ready.isEmpty()) {
            ASSERT_TRUE(ready.wait());
        }
    }
    void TearDown() override
    {
        DialogTest::TearDown();
        qunsetenv("BVCO_ROOT");
    }

    // Prints a line for the object and those below it, and counts what is wrong.
    void dump(QAccessibleInterface *one, int depth)
    {
        if (!one || one->state().invisible)
            return;
        const QString name = one->text(QAccessible::Name);
        const auto *widget = qobject_cast<const QWidget *>(one->object());
        const bool takesKeys = widget && (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() &&
                               !widget->focusProxy() &&
                               !(widget->parentWidget() && widget->parentWidget()->focusProxy() == widget) &&
                               !QString::fromLatin1(widget->metaObject()->className()).startsWith("QScrollBar");
        const bool isPart = widget && (qobject_cast<QComboBox *>(widget->parentWidget()) ||
                                       widget->objectName().startsWith("qt_spinbox"));
        if (takesKeys && !isPart) {
            ++m_controls;
            std::printf("%*s%s \"%s\" %s\n", depth * 2, "", widget->metaObject()->className(), qPrintable(name),
                        qPrintable(one->text(QAccessible::Accelerator)));
            if (name.isEmpty()) {
                ++m_nameless;
                ADD_FAILURE() << "no name: " << widget->metaObject()->className() << " "
                              << widget->objectName().toStdString();
            }
        }
        for (int i = 0; i < one->childCount(); ++i)
            dump(one->child(i), depth + 1);
    }

    // Each text has a mnemonic of its own, and keeps it.
    void expectMnemonics()
    {
        for (int turn = 0; turn < 3; ++turn)
            QCoreApplication::processEvents();
        m_clashes += bvtest::countWrongMnemonics(*dialog);
        bvtest::eachTextInSight(*dialog, [&](const QWidget *owner, const QString &text) {
            const QChar letter = mnemonicOf(text);
            const auto [seen, isNew] =
                m_letters.try_emplace({owner, withoutMnemonic(text).section(u'(', 0, 0)}, letter);
            EXPECT_EQ(seen->second, letter) << text.toStdString() << " changed its letter";
        });
    }

    // Letters that people know from other programs.
    void expectFixedLetters()
    {
        EXPECT_EQ(mnemonicOf(find<QPushButton>("cancel")->text()), u'C');
        EXPECT_EQ(mnemonicOf(find<QPushButton>("print")->text()), u'P');
    }

    void check(const char *where)
    {
        expectMnemonics();
        expectFixedLetters();
        std::printf("--- %s\n", where);
        dump(QAccessible::queryAccessibleInterface(dialog.get()), 0);
    }

    std::map<std::pair<const QWidget *, QString>, QChar> m_letters; // by control and text
    int m_controls = 0;
    int m_nameless = 0;
    int m_clashes = 0;
};

TEST_F(Access, EveryControlHasANameAndAMnemonicOfItsOwn)
{
    check("Color Options");
    find<QCheckBox>("check_ColorAsGrayscale")->click();
    check("Color as Grayscale");
    find<QCheckBox>("check_ColorAsGrayscale")->click();
    auto *resolution = find<QComboBox>("row_Resolution");
    resolution->setCurrentIndex(resolution->findData(QStringLiteral("1200dpi")));
    find<QCheckBox>("check_EconomyPrint")->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return find<QWidget>("conflictBar")->isVisible(); }));
    check("a conflict");
    find<QCheckBox>("check_EconomyPrint")->click();
    QTest::keyClick(find<QComboBox>("menu_QuickColor"), Qt::Key_End);
    find<QPushButton>("button_AdvanceColorOptions")->click();
    auto *tabs = find<QTabWidget>("tab_SwitchVew");
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        check(qPrintable("Advanced, " + tabs->tabText(tab)));
    }
    find<QPushButton>("button_HideAdvancedOptions")->click();
    check("Color Options again");
    std::printf("%d controls seen, without a name %d, clashes %d\n", m_controls, m_nameless, m_clashes);
    EXPECT_GT(m_controls, 100);
}

TEST_F(Access, TheReasonOfEveryGreyedControlIsReachedByKeys)
{
    find<QCheckBox>("check_ColorAsGrayscale")->click();
    QCoreApplication::processEvents();
    auto *why = find<WhyGreyed>("whyGreyed");
    ASSERT_TRUE(why->isVisible());
    why->setFocus();
    QTest::keyClick(why, Qt::Key_Space);
    auto *list = find<QListWidget>("greyedReasons");
    ASSERT_TRUE(list->isVisible());
    QStringList lines;
    for (int row = 0; row < list->count(); ++row)
        lines << list->item(row)->text();
    const QString all = lines.join('\n');
    for (QWidget *widget : dialog->findChildren<QWidget *>()) {
        const bool isGreyed = widget->isVisible() && !widget->isEnabled() && widget->parentWidget()->isEnabled() &&
                              widget->focusPolicy() != Qt::NoFocus;
        if (isGreyed && !widget->accessibleDescription().isEmpty()) {
            EXPECT_TRUE(all.contains(widget->accessibleDescription())) << widget->objectName().toStdString();
        } else if (isGreyed) {
            ADD_FAILURE() << "no reason: " << widget->objectName().toStdString();
        }
    }
    EXPECT_GE(lines.size(), 3) << qPrintable(all);
    EXPECT_FALSE(all.contains(QRegularExpression("[&(]")))
        << "marks of mnemonics are no part of a name: " << qPrintable(all);
}

} // namespace
