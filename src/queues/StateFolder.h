// SPDX-License-Identifier: GPL-2.0-or-later
// Where the user's programs keep state and settings between runs, and how a file is written there.
#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>
#include <span>

namespace bv {

// The user's state folder (freedesktop.org, XDG base directories): XDG_STATE_HOME where that is an absolute path, else
// ~/.local/state. It need not exist.
QString stateFolder();
// The folder of settings: XDG_CONFIG_HOME, else ~/.config.
QString configFolder();

// A name for a file, without suffix, that is safe for any text and different for each.
QString safeFileName(const QString &text);

// Writes all bytes to a file that was opened with QIODevice::Unbuffered. False on a failure; errorString() of the file
// then holds the system's words. QFile's own write() has none when the disk becomes full in the middle of it.
bool writeWhole(QFileDevice &file, std::span<const char> bytes);

// Writes a whole file, or leaves it as it was. Makes its folder. On a failure *error receives the system's words.
bool storeFile(const QString &path, const QByteArray &bytes, QString *error);

} // namespace bv
