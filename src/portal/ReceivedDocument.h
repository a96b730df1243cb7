// SPDX-License-Identifier: GPL-2.0-or-later
// Takes the document that a program hands over as an open file, and keeps a copy of it.
#pragma once

#include "queues/CallControl.h"

#include <QTemporaryDir>

namespace bv {

// The place of the copy. It is removed with this object.
class ReceivedDocument
{
public:
    // `title` becomes the file's name, as far as it can be one.
    explicit ReceivedDocument(const QString &title);

    QString path() const { return m_path; }
    void remove() { m_folder.remove(); }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

inline constexpr qint64 kMostDocumentBytes = 2LL * 1024 * 1024 * 1024;

// Copies a document to a path, from its beginning, wherever the program's own reading stands. Called on a background
// thread. Takes regular files and pipes of at most kMostDocumentBytes that are open for reading; from a pipe something
// must come every half a minute. Returns a sentence for the user on a failure.
QString copyDocument(int descriptor, const QString &path, CallControl &control);

} // namespace bv
