// SPDX-License-Identifier: GPL-2.0-or-later
// Copies of a job's documents, for the preview.
#pragma once

#include "heldjobs/HeldJob.h"

#include <QTemporaryDir>
#include <memory>

namespace bv {

// More than this is not fetched for a picture, in bytes, of all documents of a job.
inline constexpr qint64 kLargestCopies = qint64{256} * 1024 * 1024;

// The paths of the copies, in printing order, as many as the job has documents. The folder is the caller's; a call that
// was given up may go on writing there for a moment. The sentence of a failure says why there is no preview. `space` is
// in bytes.
Result<QStringList> copyDocuments(const HeldJob &job, const std::shared_ptr<QTemporaryDir> &folder,
                                  CallControl &control, qint64 space = kLargestCopies);

// The name of a copy: that of the document without its folders and with an ending that tells its format; `number`
// counts the documents from 1, and is part of the name where an earlier document has the same.
QString copyName(const QString &document, const QString &format, int number, const QStringList &taken);

} // namespace bv
