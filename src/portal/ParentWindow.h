// SPDX-License-Identifier: GPL-2.0-or-later
// Puts a dialog in front of a window of another program.
#pragma once

#include <QByteArray>
#include <QString>

class QWidget;

namespace bv {

// The window system for the dialog, as for Qt's option -platform: X11 where the other window is there and X11 can be
// had; empty: Qt's own choice.
QByteArray platformFor(const QString &parent);

// Makes the dialog belong to the window: `parent` is "x11:" and its number in hexadecimal. Anything else, and a window
// that does not exist, leaves the dialog by itself, with a line in the log. Call it before the dialog is shown.
void setParentWindow(QWidget &dialog, const QString &parent, bool isModal);

} // namespace bv
