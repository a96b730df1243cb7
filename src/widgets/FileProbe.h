// SPDX-License-Identifier: GPL-2.0-or-later
// What is known of files, without ever waiting long for a disk that does not answer.
#pragma once

#include <QStringList>
#include <vector>

namespace bv {

struct FileFacts
{
    bool isKnown = false; // false: the disk has not answered, and nothing below counts
    bool exists = false;
    bool isFolder = false;
    bool isReadable = false;
    qint64 size = 0; // in bytes
};

// The facts in the order of the paths. Takes at most kProbeMilliseconds for all of them together.
std::vector<FileFacts> probeFiles(const QStringList &paths);
inline constexpr int kProbeMilliseconds = 300;

} // namespace bv
