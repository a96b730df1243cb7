// SPDX-License-Identifier: GPL-2.0-or-later
// Writes pieces and their note, and commits the text.
#include "helper/StagingFile.h"

#include "helper/Diagnostics.h"
#include "helper/ListCheck.h"
#include "helper/UnreadableList.h"

#include <array>
#include <cerrno>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

namespace bv {

namespace {

constexpr std::string_view kFirstPieceBegin = "<?xml";
constexpr std::string_view kNoteBegin{"\0bvco-sequence ", 15};
constexpr size_t kNoteBytes = 96;

// The note after a text of this length: process id, its start time, the length, and line ends as padding.
std::string noteOf(const ProcessIdentity &owner, size_t textBytes)
{
    std::array<char, kNoteBytes> numbers = {};
    std::snprintf(numbers.data(), numbers.size(), "%jd %" PRIu64 " %zu", static_cast<intmax_t>(owner.id),
                  owner.startTime, textBytes);
    std::string note(kNoteBegin);
    note += numbers.data();
    note.resize(kNoteBytes, '\n');
    return note;
}

} // namespace

StagingFile::StagingFile(const ListFolder &folder, const Caller &caller, const ListTarget &target)
    : m_folder(folder), m_caller(caller), m_target(target), m_locker(folder, caller, target),
      m_owner(caller.sequenceOwner()), m_name(target.stagingName())
{}

StagingFile::Staged StagingFile::open() const
{
    FoundFile found = m_locker.open(m_name);
    Staged staged;
    if (found.standing != Standing::Usable) {
        staged.sequence = found.standing == Standing::Missing ? Sequence::None : Sequence::Unusable;
        return staged;
    }
    staged.file = std::move(found.file);
    staged.sequence = Sequence::Wreck;
    const auto size = static_cast<size_t>(found.status.st_size);
    if (size < kNoteBytes || size > kTextLimit + kNoteBytes)
        return staged;
    staged.textBytes = size - kNoteBytes;
    const auto note = readAt(staged.file.get(), staged.textBytes, kNoteBytes);
    if (note && note->starts_with(kNoteBegin)) {
        staged.sequence = m_owner && *note == noteOf(*m_owner, staged.textBytes) ? Sequence::Own : Sequence::Others;
    }
    return staged;
}

bool StagingFile::write(const FileDescriptor &file, size_t offset, std::string_view piece) const
{
    std::string bytes(piece);
    bytes += noteOf(*m_owner, offset + piece.size());
    if (offset + piece.size() > kTextLimit)
        complain("the list is too long");
    else if (writeAllAt(file.get(), offset, bytes))
        return true;
    else
        complain("cannot write a piece", errno);
    m_folder.removeIfNamed(m_name, file);
    return false;
}

bool StagingFile::start(std::string_view piece)
{
    const FileDescriptor file = m_locker.makeNew(m_name);
    return file && write(file, 0, piece);
}

bool StagingFile::add(std::string_view piece)
{
    if (!m_owner) {
        complain("the calling process cannot be told apart from others");
        return false;
    }
    if (piece.starts_with(kFirstPieceBegin))
        return start(piece);
    const Staged staged = open();
    if (staged.sequence != Sequence::Own) {
        complain("a later piece without a sequence of the same process");
        return false;
    }
    return write(staged.file, staged.textBytes, piece);
}

bool StagingFile::commit()
{
    const Staged staged = open();
    switch (staged.sequence) {
    case Sequence::Own:
        if (promote(staged))
            return true;
        break;
    case Sequence::Wreck:
        complain("the pieces are incomplete");
        break;
    case Sequence::None:
    case Sequence::Others:
    case Sequence::Unusable:
        complain("a commit without a sequence of the same process");
        return false;
    }
    if (m_folder.stillNamed(m_name, staged.file))
        m_folder.removeIfNamed(m_name, staged.file);
    return false;
}

bool StagingFile::promote(const Staged &staged) const
{
    const auto text = readAt(staged.file.get(), 0, staged.textBytes);
    if (!text) {
        complain("cannot read the pieces", errno);
        return false;
    }
    if (const auto fault = faultOfListText(*text)) {
        complain(*fault);
        return false;
    }
    if (m_folder.find(m_target.currentName(), O_PATH, m_caller, m_target).standing == Standing::Foreign)
        return false;
    if (ftruncate(staged.file.get(), static_cast<off_t>(staged.textBytes)) != 0) {
        complain("cannot finish the new list", errno);
        return false;
    }
    if (!m_folder.replace(m_name, staged.file, m_target.currentName()))
        return false;
    noteReadableWritten(m_folder, m_caller, m_target);
    return true;
}

} // namespace bv
