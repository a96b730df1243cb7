// SPDX-License-Identifier: GPL-2.0-or-later
// Opens a file that the user named.
#pragma once

#include "platform/FileDescriptor.h"
#include "platform/Result.h"

#include <QByteArray>

namespace bv {

// Opens a regular file for reading. Anything else (a folder, a device, a pipe) and a file above `maximum` bytes is
// refused at once, without waiting for it. `called` begins the sentence of a failure, as in "The PPD x.ppd".
Result<FileDescriptor> openInputFile(const QString &path, const QString &called, qint64 maximum);

// The whole contents of such a file.
Result<QByteArray> readInputFile(const QString &path, const QString &called, qint64 maximum);

// The size as shown in sentences about a file that is too large: "8 MB".
QString sizeInWords(qint64 bytes);

} // namespace bv
