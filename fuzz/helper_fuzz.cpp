// SPDX-License-Identifier: GPL-2.0-or-later
// Reads lines as requests to the helper, of two processes of one user, while somebody else puts things in the way.
//   process TAB request TAB argument...     process: "1" or "2"
//   ! TAB name TAB kind                     puts a link, folder, FIFO, text or list where the helper has a file
// In arguments, $U $C $P stand for the URL and the two paths of the user's list, and $L for a whole list.
// Whatever comes, the list that is in use is one that a reader can read, and nothing outside the folder changes.
#include "Fuzzing.h"
#include "helper/ListCheck.h"
#include "helper/RequestTable.h"
#include "platform/FileUrl.h"
#include "platform/RootPath.h"
#include "platform/UserName.h"
#include "profiles/ProfilePaths.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using fuzz::require;

namespace {

constexpr int kMostRequests = 40;

std::string wholeList(std::string_view mark)
{
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>";
    for (const char *one : {"RGB", "SIM", "DST"}) {
        text.append("<key>").append(one).append("</key><dict><key>iNum</key><integer>0</integer>");
        for (const char *field : {"IndexOnDevice", "InMenu", "ProfileClass", "Location", "FileName", "ProfileName"})
            text.append("<key>").append(field).append("</key><dict/>");
        text += "</dict>";
    }
    return text.append("<key>mark</key><string>").append(mark).append("</string></dict></plist>\n");
}

class World
{
public:
    World()
    {
        const bv::ProfilePaths paths = bv::profilePathsFor(bv::loginName());
        m_current = paths.current;
        m_previous = paths.previous;
        m_folder = bv::mapRootPath(bv::kProfileFolder);
        std::filesystem::create_directories(m_folder);
        m_outside = m_scratch.folder() / "outside";
        fuzz::writeFile(m_outside, kUntouched);
        const std::string current = m_current.substr(m_current.rfind('/') + 1);
        const std::string stem = current.substr(0, current.rfind(".plist"));
        m_names = {current, m_previous.substr(m_previous.rfind('/') + 1), current + ".part", current + ".copy",
                   stem + ".unreadable.plist"};
    }

    void clear()
    {
        for (const std::string &name : m_names)
            std::filesystem::remove_all(m_folder / name);
    }

    void putInTheWay(const std::vector<std::string_view> &words)
    {
        if (words.size() != 3 || words[1].empty() || words[2].empty())
            return;
        const std::filesystem::path place = m_folder / m_names[static_cast<uint8_t>(words[1][0]) % m_names.size()];
        std::filesystem::remove_all(place);
        switch (words[2][0]) {
        case 'l':
            std::filesystem::create_symlink(m_outside, place);
            break;
        case 'h':
            std::filesystem::create_hard_link(m_outside, place);
            break;
        case 'd':
            std::filesystem::create_directory(place);
            break;
        case 'f':
            require(mkfifo(place.c_str(), 0666) == 0);
            break;
        case 'g':
            fuzz::writeFile(place, wholeList(words[2]));
            break;
        case 't':
            fuzz::writeFile(place, words[2]);
            break;
        default:
            break;
        }
    }

    void ask(const std::vector<std::string_view> &words)
    {
        std::vector<std::string> arguments;
        arguments.reserve(words.size());
        for (size_t i = 2; i < words.size(); ++i)
            arguments.push_back(filledIn(words[i]));
        const std::vector<std::string_view> views(arguments.begin(), arguments.end());
        const bv::Caller caller(words[0] == "2" ? getppid() : getpid());
        const std::string before = current();
        const std::string kept = previous();
        const bv::Outcome outcome = bv::answerRequest(words[1], views, caller);
        require(outcome.exitStatus >= bv::kExitDone && outcome.exitStatus <= bv::kExitUnknown);
        require((outcome.verdict == "TRUE") == (outcome.exitStatus == bv::kExitDone));
        const std::string line = bv::answerLine(words[1], outcome);
        require(std::count(line.begin(), line.end(), '\n') == 1 && line.back() == '\n');
        const std::string after = current();
        require(after == before || after == kept || after.empty() || !bv::faultOfListText(after));
        check();
    }

    void check() const
    {
        require(fuzz::contentsOf(m_outside) == kUntouched);
        struct stat outside = {};
        require(stat(m_outside.c_str(), &outside) == 0 && (outside.st_mode & 0777) == m_mode);
        for (const auto &entry : std::filesystem::directory_iterator(m_folder))
            require(std::find(m_names.begin(), m_names.end(), entry.path().filename().string()) != m_names.end());
    }

private:
    static constexpr char kUntouched[] = "nobody wrote here";

    std::string filledIn(std::string_view word) const
    {
        std::string text;
        for (size_t i = 0; i < word.size(); ++i) {
            const char what = word[i] == '$' && i + 1 < word.size() ? word[i + 1] : '\0';
            if (what == 'U')
                text += bv::fileUrl(m_current);
            else if (what == 'C')
                text += m_current;
            else if (what == 'P')
                text += m_previous;
            else if (what == 'L')
                text += wholeList(word);
            else {
                text += word[i];
                continue;
            }
            ++i;
        }
        text.resize(std::min(text.find('\0'), text.size())); // no argument of a process holds a NUL
        return text;
    }

    // What a reader would get, who opens only regular files.
    std::string read(const std::string &name) const
    {
        const std::filesystem::path path = m_folder / name;
        return std::filesystem::is_regular_file(std::filesystem::symlink_status(path)) ? fuzz::contentsOf(path)
                                                                                       : std::string();
    }
    std::string current() const { return read(m_names[0]); }
    std::string previous() const { return read(m_names[1]); }

    fuzz::Scratch m_scratch;
    std::string m_current;
    std::string m_previous;
    std::filesystem::path m_folder;
    std::filesystem::path m_outside;
    mode_t m_mode = 0644;
    std::vector<std::string> m_names;
};

// The number that the next descriptor gets. It grows when a request leaves a file open.
int nextDescriptor()
{
    const int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    close(descriptor);
    return descriptor;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    umask(022);
    static World world;
    fuzz::Input input(data, size);
    world.clear();
    const int descriptor = nextDescriptor();
    for (int requests = 0; !input.atEnd() && requests < kMostRequests; ++requests) {
        const std::vector<std::string_view> words = fuzz::split(input.line(), '\t');
        if (words[0] == "!")
            world.putInTheWay(words);
        else if (words.size() >= 2)
            world.ask(words);
    }
    require(nextDescriptor() == descriptor);
    return 0;
}
