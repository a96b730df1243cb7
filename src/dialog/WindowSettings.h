// SPDX-License-Identifier: GPL-2.0-or-later
// What the window remembers of itself, for all printers: kept in a file of the user's state folder.
#pragma once

namespace bv {

// Whether the user folded the preview away. False where the file says nothing.
bool previewWasFolded();
// A failure leaves a line in the log.
void rememberPreviewFolded(bool folded);

} // namespace bv
