// SPDX-License-Identifier: GPL-2.0-or-later
// From the words that name documents on a command line, or in a batch, to files.
#pragma once

#include "platform/Result.h"

#include <QStringList>
#include <memory>

class QTemporaryDir;

namespace bv {

// Keeps a document that came by standard input in a temporary file, and removes it when it is destroyed.
class DocumentArguments
{
public:
    // `mayReadInput`: false when standard input is used for something else.
    explicit DocumentArguments(bool mayReadInput = true);
    ~DocumentArguments();
    DocumentArguments(DocumentArguments &&) noexcept;
    DocumentArguments &operator=(DocumentArguments &&) = delete;

    // The paths for the words: a path, a file URL, or "-" for standard input, which is then read to its end. The
    // sentence of a failure names the word. Does not look whether the files are there.
    Result<QStringList> paths(const QStringList &words);

private:
    Result<QString> keepInput();

    bool m_mayReadInput;
    std::unique_ptr<QTemporaryDir> m_folder; // null while nothing is kept
};

} // namespace bv
