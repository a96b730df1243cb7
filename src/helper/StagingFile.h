// SPDX-License-Identifier: GPL-2.0-or-later
// The file that collects the pieces of a list until they are committed.
#pragma once

#include "helper/Caller.h"
#include "helper/FileLocker.h"
#include "helper/ListFolder.h"

#include <string>
#include <string_view>

namespace bv {

// The staging file of one user's list, locked while a request uses it. After the text comes a note of fixed size that
// names the process that owns the write sequence. The note begins with a NUL. No process argument can hold a NUL, so no
// piece can pass for a note. A file without a complete note was left by a killed request and belongs to no process.
class StagingFile
{
public:
    // The size limit of the text in bytes. A full list has about 518,000.
    static constexpr size_t kTextLimit = size_t{4} << 20;

    // Borrows all three; they must outlive this object.
    StagingFile(const ListFolder &folder, const Caller &caller, const ListTarget &target);

    // Adds one piece. A piece that begins with "<?xml" starts a new text and sequence; any other is appended to the
    // text of the caller's own sequence. If it cannot be written, the sequence ends and the file is removed.
    bool add(std::string_view piece);
    // Checks the text of the caller's own sequence and makes it the current list. In any case removes the staging file
    // of this sequence, or one without an owner. Keeps the file of another process.
    bool commit();

private:
    enum class Sequence { None, Own, Others, Wreck, Unusable };
    struct Staged
    {
        Sequence sequence = Sequence::None;
        FileDescriptor file;
        size_t textBytes = 0;
    };

    Staged open() const;
    bool start(std::string_view piece);
    bool write(const FileDescriptor &file, size_t offset, std::string_view piece) const;
    bool promote(const Staged &staged) const;

    const ListFolder &m_folder;
    const Caller &m_caller;
    const ListTarget &m_target;
    const FileLocker m_locker;
    std::optional<ProcessIdentity> m_owner; // owner of the caller's sequences
    std::string m_name;
};

} // namespace bv
