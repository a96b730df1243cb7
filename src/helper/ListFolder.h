// SPDX-License-Identifier: GPL-2.0-or-later
// The folder of the list files. It is held open, and all operations are relative to its descriptor.
#pragma once

#include "helper/Caller.h"
#include "platform/FileDescriptor.h"

#include <optional>
#include <string>
#include <sys/stat.h>

namespace bv {

// What exists under a name: nothing, a file that may be used, or something that must not be touched.
enum class Standing { Missing, Usable, Foreign };

struct FoundFile
{
    Standing standing = Standing::Foreign;
    FileDescriptor file; // open as asked for when usable
    struct stat status = {};
};

class ListFolder
{
public:
    // Opens the folder below the root (BVCO_ROOT). Nothing when it does not exist or cannot be read.
    static std::optional<ListFolder> open();

    // True if the real user may create and remove files here. This alone decides who may manage profiles.
    bool writableByCaller() const;

    // Opens a file by name. It is usable when it is a regular file with one link and an owner that the caller accepts
    // for the target. Does not follow links, and never opens any other kind of file for its contents. `access` is
    // O_PATH, O_RDONLY or O_RDWR.
    FoundFile find(const std::string &name, int access, const Caller &caller, const ListTarget &target) const;

    // Creates a file with mode 0600, whatever the umask, and opens it for reading and writing. When root is the caller,
    // the target's user becomes the owner. On a failure errno has the reason, which is also on standard error unless it
    // is that the name exists (EEXIST).
    FileDescriptor create(const std::string &name, const Caller &caller, const ListTarget &target) const;
    // True if the name still refers to the open file.
    bool stillNamed(const std::string &name, const FileDescriptor &file) const;
    // Removes the name if it still refers to the open file. False when it does not, or on a failure.
    bool removeIfNamed(const std::string &name, const FileDescriptor &file) const;
    // Gives the file mode 0644, flushes it, renames it to `target`, and flushes the folder. On a failure returns false
    // and writes the reason to standard error; `target` is then the whole old file or the whole new file.
    bool replace(const std::string &name, const FileDescriptor &file, const std::string &target) const;
    // Flushes the folder's entries to disk.
    bool flush() const;

private:
    bool findOnce(const std::string &name, int access, const Caller &caller, const ListTarget &target,
                  FoundFile *found) const;

    explicit ListFolder(FileDescriptor folder) : m_folder(std::move(folder)) {}

    FileDescriptor m_folder;
};

} // namespace bv
