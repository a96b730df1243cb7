// SPDX-License-Identifier: GPL-2.0-or-later
// Guesses which word somebody meant.
#pragma once

#include <QStringList>

namespace bv {

// The words, at most three, that look most like this one or contain it, the best first. Case does not matter.
QStringList nearestWords(const QString &word, const QStringList &words);

} // namespace bv
