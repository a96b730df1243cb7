// SPDX-License-Identifier: GPL-2.0-or-later
// What the window itself keeps between runs, in "bvprint/window.ini" in the user's state folder. What cannot be written
// is not kept, with a line in the diagnostic log.
#pragma once

#include <QSize>
#include <QStringList>

namespace bv {

// Whether the user folded the preview away the last time.
bool previewWasFolded();
void rememberPreviewFolded(bool folded);

// The window's size when it was closed the last time; invalid when that is not known.
QSize lastWindowSize();
void rememberWindowSize(const QSize &size);

// Names of the printers that were printed on, the last one first.
QStringList lastPrinters();
void rememberPrinter(const QString &queue);

} // namespace bv
