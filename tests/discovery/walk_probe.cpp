// Runs walks in a process of its own and prints what they left: statuses, counters, message and spool.
// Usage: walk_probe [--answers N] [--milliseconds N] [--word WORD]... [--root OID] HOST...
// One walk a host, one after the other; the extra words stand before the host. No list file is touched.
#include "discovery/ProfileSpool.h"
#include "discovery/ProfileWalk.h"
#include "profiles/HelperRequest.h"

#include <cstdio>
#include <string>
#include <vector>

// The library's argument parser loses the community of each walk but the last (under the leak checker only).
extern "C" [[gnu::visibility("default")]] const char *__lsan_default_suppressions()
{
    return "leak:netsnmp_parse_args\n";
}

namespace {

// The reconciliation asks for a helper and finds none.
class NoHelper : public bv::HelperTransport
{
public:
    bool available() override { return false; }
    std::optional<std::string> run(std::string_view /*request*/, std::span<const std::string> /*arguments*/) override
    {
        return std::nullopt;
    }
};

void printBytes(const char *label, std::string_view bytes)
{
    std::printf("%s", label);
    for (const char byte : bytes)
        std::printf("%02x", static_cast<unsigned char>(byte));
}

int32_t walkOnce(const std::string &host, const std::string &root, const std::vector<std::string> &extra,
                 const bv::WalkLimits &limits)
{
    std::vector<std::string> words = {"snmpwalk", "-Os", "-c", "mirror", "-v", "1"};
    words.insert(words.end(), extra.begin(), extra.end());
    words.push_back(host);
    words.push_back(root);
    std::vector<char *> vector;
    for (std::string &word : words)
        vector.push_back(word.data());
    vector.push_back(nullptr);
    return bv::walkProfileTable(static_cast<int32_t>(words.size()), vector.data(), limits);
}

} // namespace

int main(int argc, char **argv)
{
    NoHelper noHelper;
    bv::setHelperTransport(&noHelper);
    bv::WalkLimits limits;
    std::string root = "1.3.6.1.4.1.39847.1.1.1.1.6.13.1.1";
    std::vector<std::string> extra;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--answers")
            limits.answers = std::stoi(argv[++i]);
        else if (word == "--milliseconds")
            limits.time = std::chrono::milliseconds(std::stoi(argv[++i]));
        else if (word == "--word")
            extra.emplace_back(argv[++i]);
        else if (word == "--root")
            root = argv[++i];
        else
            std::printf("status %d\n", walkOnce(word, root, extra, limits));
    }
    std::printf("count %d\nnumprinted %d\n", PlistForSpool.count, numprinted);
    printBytes("message ", sDEBUGmsg);
    std::puts("");
    for (int slot = 0; slot < kProfileSlots; ++slot) {
        const ProfileRecord &record = PlistForSpool.records[slot];
        if (std::string_view(reinterpret_cast<const char *>(&record), sizeof(record)) ==
            std::string(sizeof(record), '\0'))
            continue;
        std::printf("row %d %d %d %d %d %d", slot + 1, record.IndexOnDevice, record.InMenu, record.Location,
                    record.ProfileClass, record.Availability);
        printBytes(" ", bv::fieldText(record.FileName));
        printBytes(". ", bv::fieldText(record.ProfileName));
        std::puts(".");
    }
    return 0;
}
