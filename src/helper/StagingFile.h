// The one file that gathers the pieces of a list until they are committed.
#pragma once

#include "helper/Caller.h"
#include "helper/ListFolder.h"

#include <string>
#include <string_view>

namespace bv {

// The staging file of one user's list, in a locked folder. Behind its text stands a note of fixed size that says which
// process the sequence belongs to; it begins with a NUL, which no argument of a process can hold, so no piece can be
// taken for a note. A file without a whole note is the wreck of a request that was killed, and nobody's.
class StagingFile
{
public:
    // The longest text that is gathered, in bytes; a full list has about 518,000.
    static constexpr size_t kTextLimit = size_t{4} << 20;

    // Borrows all three for its lifetime.
    StagingFile(const ListFolder &folder, const Caller &caller, const ListTarget &target);

    // Takes one piece: one that begins with "<?xml" starts the text anew for the caller's sequence, any other is put
    // behind the text of his own sequence. When a piece cannot be written, the sequence ends and the file goes.
    bool add(std::string_view piece);
    // Checks the text of the caller's own sequence and makes it the current list. The staging file of his sequence, or
    // a wreck, is gone afterwards in either case; another process's stays.
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
    std::optional<ProcessIdentity> m_owner; // of the caller's sequences
    std::string m_name;
};

} // namespace bv
