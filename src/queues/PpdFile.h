// SPDX-License-Identifier: GPL-2.0-or-later
// A PPD file: its text, and the file as libcups opens it, ready for a panel (texts in UTF-8, defaults marked,
// localized).
#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <cups/ppd.h>
#include <memory>
#include <vector>

namespace bv {

// The text of a PPD that is neither too large nor cut off. Each panel gets a PpdFile of its own made of it.
struct PpdText
{
    static constexpr qsizetype kMost = qsizetype{8} * 1024 * 1024; // bytes; real ones have some hundred thousand

    QByteArray text;
    QString name; // for sentences: the path, or another name that people know

    // Reads a regular file, decompressed if necessary. The sentence of a failure contains the path.
    static Result<PpdText> read(const QString &path);
    // The same for bytes from elsewhere.
    static Result<PpdText> from(const QByteArray &bytes, const QString &name);
    // The sentence for a PPD above the limit.
    static QString tooLarge(const QString &name);
};

class PpdFile
{
public:
    // The sentence of a failure contains the PPD's name, and the line if libcups reports one. The PPD's texts are
    // localized for the locale of messages, unless that is "C", "POSIX" or "C.UTF-8".
    static Result<PpdFile> open(const PpdText &text);
    // Opens a file.
    static Result<PpdFile> open(const QString &path);

    // Owned by this object; never null.
    ppd_file_t *handle() const { return m_file.get(); }

private:
    struct Close
    {
        void operator()(ppd_file_t *file) const { ppdClose(file); }
    };
    explicit PpdFile(ppd_file_t *file) : m_file(file) {}

    std::unique_ptr<ppd_file_t, Close> m_file;
};

// The options of a PPD, by keyword; none for null. Of two whose keywords differ in case only, the one that libcups
// finds. Owned by the PPD. libcups' own walk (ppdFirstOption, ppdNextOption) starts over at such a pair whenever an
// option is looked up on the way, and so never ends.
std::vector<ppd_option_t *> ppdOptions(ppd_file_t *ppd);

} // namespace bv
