// SPDX-License-Identifier: GPL-2.0-or-later
// The texts of a window that can have a mnemonic.
#pragma once

#include "widgets/Mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTabWidget>
#include <functional>
#include <gtest/gtest.h>
#include <map>

namespace bvtest {

// Calls the function for each of them that is in sight, with the widget that has it.
inline void eachTextInSight(const QWidget &window,
                            const std::function<void(const QWidget *owner, const QString &text)> &function)
{
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->window() != &window)
            continue;
        if (const auto *label = qobject_cast<const QLabel *>(widget); label && label->buddy())
            function(label, label->text());
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget); button && !button->text().isEmpty())
            function(button, button->text());
        if (const auto *tabs = qobject_cast<const QTabWidget *>(widget))
            for (int tab = 0; tab < tabs->count(); ++tab)
                function(tabs, tabs->tabText(tab));
    }
}

// Each text in sight must have a mnemonic, and no two the same. Returns how many are wrong.
inline int countWrongMnemonics(const QWidget &window)
{
    std::map<QChar, QStringList> owners;
    eachTextInSight(window, [&](const QWidget *, const QString &text) { owners[bv::mnemonicOf(text)] << text; });
    int wrong = 0;
    for (const auto &[letter, texts] : owners) {
        if (!letter.isNull() && texts.size() == 1)
            continue;
        ++wrong;
        ADD_FAILURE() << (letter.isNull() ? "no mnemonic: " : "the same mnemonic: ") << texts.join(", ").toStdString();
    }
    return wrong;
}

} // namespace bvtest
