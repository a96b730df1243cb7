// SPDX-License-Identifier: GPL-2.0-or-later
// Texts with the keywords in reserve.
#include "options/PpdWords.h"

namespace bv {

namespace {

QString wordsOr(const char *text, const char *keyword)
{
    const QString words = QString::fromUtf8(text);
    return words.isEmpty() ? QString::fromUtf8(keyword) : words;
}

} // namespace

QString optionText(const ppd_option_t &option)
{
    return wordsOr(option.text, option.keyword);
}

QString choiceText(const ppd_choice_t &choice)
{
    return wordsOr(choice.text, choice.choice);
}

QString choiceText(const ppd_option_t &option, const QString &keyword)
{
    for (int i = 0; i < option.num_choices; ++i)
        if (keyword == QString::fromUtf8(option.choices[i].choice))
            return choiceText(option.choices[i]);
    return keyword;
}

QString groupText(const ppd_group_t &group)
{
    return wordsOr(group.text, group.name);
}

} // namespace bv
