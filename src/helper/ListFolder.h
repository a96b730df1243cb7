// The folder of the list files, held open: everything is done relative to its descriptor.
#pragma once

#include "helper/Caller.h"
#include "platform/FileDescriptor.h"

#include <optional>
#include <string>
#include <sys/stat.h>

namespace bv {

// What stands at a name: nothing, a file that may be used, or something that is to be left alone.
enum class Standing { Missing, Usable, Foreign };

struct FoundFile
{
    Standing standing = Standing::Missing;
    FileDescriptor file; // open as asked for when usable
    struct stat status = {};
};

class ListFolder
{
public:
    // Opens the folder under the root; nothing when it is not there or cannot be read.
    static std::optional<ListFolder> open();

    // Whether the real user may make and remove files here: the one question that decides who manages profiles.
    bool writableByCaller() const;
    // Keeps other writers out until this object goes. False when another one has it for longer than the limit, or on
    // a file system without locks.
    bool lock();

    // Opens what stands at a name and judges the open descriptor: a regular file with one link, of an owner that the
    // caller accepts for the target. Links are not followed, and nothing but such a file is opened for its contents.
    // `access` is O_PATH, O_RDONLY or O_RDWR.
    FoundFile find(const std::string &name, int access, const Caller &caller, const ListTarget &target) const;

    // Makes a new file of mode 0644 whatever the umask, open for reading and writing, which the target's user owns
    // when root is the caller. Fails when the name is taken. The reason of a failure goes to standard error.
    FileDescriptor create(const std::string &name, const Caller &caller, const ListTarget &target) const;
    // Whether the name still stands for the open file.
    bool stillNamed(const std::string &name, const FileDescriptor &file) const;
    // Removes the name if it still stands for the open file.
    bool removeIfNamed(const std::string &name, const FileDescriptor &file) const;
    // Flushes the file, renames it over another name and flushes the folder. False with the reason on standard error
    // when a step fails; the other name then stands for its old or its new file, whole.
    bool replace(const std::string &name, const FileDescriptor &file, const std::string &target) const;
    // Flushes the folder's entries to disk.
    bool flush() const;

private:
    explicit ListFolder(FileDescriptor folder) : m_folder(std::move(folder)) {}

    FileDescriptor m_folder;
};

} // namespace bv
