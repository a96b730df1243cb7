// SPDX-License-Identifier: GPL-2.0-or-later
// Reads a document piece by piece while it is sent.
#pragma once

#include "platform/FileDescriptor.h"
#include "platform/Result.h"
#include "queues/CallControl.h"

#include <QStringList>
#include <functional>
#include <span>

namespace bv {

// An open document. What is read is what the file held when it was opened: bytes that are added later are left out.
class DocumentReader
{
public:
    // Opens a regular file that is not empty. The sentence of a failure names it.
    static Result<DocumentReader> open(const QString &path);

    qint64 size() const { return m_size; }
    // Hands all bytes to `take`, in pieces, until it returns false or the call is over. Counts the progress. Returns a
    // sentence for the user when the document cannot be read to its end; empty also when `take` or the call ended it.
    QString readAll(CallControl &control, const std::function<bool(std::span<const char>)> &take);

private:
    DocumentReader(QString path, FileDescriptor file, qint64 size);

    QString m_path;
    FileDescriptor m_file;
    qint64 m_size;
};

// Sets the control's sum to the size of all documents, and its time limit accordingly.
void allowForDocuments(CallControl &control, const QStringList &documents);

} // namespace bv
