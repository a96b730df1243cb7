// SPDX-License-Identifier: GPL-2.0-or-later
// A PPD file opened with libcups, ready for a panel: texts in UTF-8, defaults marked, localised.
#pragma once

#include "platform/Result.h"

#include <cups/ppd.h>
#include <memory>

namespace bv {

class PpdFile
{
public:
    // Opens a file. The sentence of a failure contains `name`, or the path if `name` is empty, and the line if libcups
    // reports one. The PPD's texts are localised for the locale of messages, unless that is "C", "POSIX" or "C.UTF-8".
    static Result<PpdFile> open(const QString &path, const QString &name = QString());

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

} // namespace bv
