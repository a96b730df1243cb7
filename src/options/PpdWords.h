// SPDX-License-Identifier: GPL-2.0-or-later
// What options and choices of a PPD are called on screen.
#pragma once

#include <QString>
#include <cups/ppd.h>

namespace bv {

// The PPD's texts, or the keywords where it has none. A text is plain; a label needs its ampersands doubled.
QString optionText(const ppd_option_t &option);
QString choiceText(const ppd_choice_t &choice);
// The text of an option's choice by its keyword, or the keyword of one that the option does not have.
QString choiceText(const ppd_option_t &option, const QString &keyword);
QString groupText(const ppd_group_t &group);

} // namespace bv
