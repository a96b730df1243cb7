// SPDX-License-Identifier: GPL-2.0-or-later
// The pop-up's items and notes.
#include "options/OptionMenu.h"

#include "options/ConflictMark.h"
#include "options/PpdWords.h"
#include "platform/PlainTip.h"

#include <QSignalBlocker>
#include <algorithm>

namespace bv {

QString defaultChoice(const ppd_option_t &option)
{
    const bool isThere =
        std::any_of(option.choices, option.choices + option.num_choices,
                    [&option](const ppd_choice_t &choice) { return qstrcmp(choice.choice, option.defchoice) == 0; });
    return QString::fromUtf8(isThere || option.num_choices == 0 ? option.defchoice : option.choices[0].choice);
}

OptionMenu::OptionMenu(const ppd_option_t &option, const QString &name, QWidget *parent)
    : QComboBox(parent), m_option(option), m_name(name)
{
    setObjectName(QStringLiteral("row_") + keyword());
    setAccessibleName(name);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    constexpr int kCharacters = 12;
    setMinimumContentsLength(kCharacters);
    for (int i = 0; i < option.num_choices; ++i)
        addItem(choiceText(option.choices[i]), QString::fromUtf8(option.choices[i].choice));
    chooseDefault();
    connect(this, &QComboBox::currentIndexChanged, this, [this] {
        m_origin.clear();
        showNotes();
        emit choiceMade(keyword(), choice());
    });
}

bool OptionMenu::choose(const QString &choice)
{
    const int index = findData(choice);
    if (index < 0)
        return false;
    const QSignalBlocker quiet(this);
    setCurrentIndex(index);
    m_origin.clear();
    showNotes();
    return true;
}

void OptionMenu::chooseDefault()
{
    choose(defaultChoice(m_option));
}

void OptionMenu::explain(const QString &conflict, const QString &origin)
{
    m_conflict = conflict;
    m_origin = origin;
    showNotes();
}

void OptionMenu::showNotes()
{
    QStringList notes = {currentText(), m_conflict, m_origin};
    notes.removeAll(QString());
    setAccessibleDescription(m_conflict);
    setPlainTip(this, notes.join(u'\n'));
    markConflict(*this, !m_conflict.isEmpty());
}

} // namespace bv
