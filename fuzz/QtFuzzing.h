// SPDX-License-Identifier: GPL-2.0-or-later
// The application object of targets that need one. It has no display.
#pragma once

#include "Fuzzing.h"

#include <QApplication>

namespace fuzz {

inline QApplication &application()
{
    static int count = 3;
    static char program[] = "fuzz";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static char *words[] = {program, option, platform, nullptr};
    // Never deleted: the fuzzer ends the program where it stands.
    static auto *const application = new QApplication(count, words);
    return *application;
}

inline QString wordsOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace fuzz
