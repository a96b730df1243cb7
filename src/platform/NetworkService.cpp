// SPDX-License-Identifier: GPL-2.0-or-later
// Has QL70Resolve look up a service, and ends it at the limit.
#include "platform/NetworkService.h"

#include "platform/Bundle.h"
#include "platform/ChildProcess.h"

#include <arpa/inet.h>
#include <array>
#include <charconv>
#include <cstring>
#include <netinet/in.h>

namespace {

// The record of a line "ADDRESS PORT". Nothing for any other text.
std::optional<bv::AddressRecord> recordOf(const std::string &line)
{
    sockaddr_in record{};
    uint16_t port = 0;
    const size_t blank = line.find(' ');
    if (blank == std::string::npos || line.back() != '\n')
        return std::nullopt;
    const char *const end = line.data() + line.size() - 1;
    const auto parsed = std::from_chars(line.data() + blank + 1, end, port);
    if (parsed.ec != std::errc() || parsed.ptr != end ||
        inet_pton(AF_INET, line.substr(0, blank).c_str(), &record.sin_addr) != 1)
        return std::nullopt;
    record.sin_family = AF_INET;
    record.sin_port = htons(port);
    bv::AddressRecord bytes(sizeof(record));
    std::memcpy(bytes.data(), &record, sizeof(record));
    return bytes;
}

} // namespace

std::string bv::resolverPath()
{
    const bv::Bundle *bundle = pluginBundle();
    const std::string plugin = bundle ? bundle->path().toStdString() : std::string();
    return plugin.substr(0, plugin.find_last_of('/') + 1) + "QL70Resolve";
}

std::optional<std::vector<bv::AddressRecord>> bv::resolveService(const std::string &name, const std::string &type,
                                                                 const std::string &domain,
                                                                 std::chrono::milliseconds limit)
{
    const std::array<std::string, 4> words = {std::to_string(limit.count()), name, type, domain};
    const std::optional<ChildResult> result = runChild(resolverPath(), words, limit);
    const std::optional<AddressRecord> record = result ? recordOf(result->output) : std::nullopt;
    if (!record)
        return std::nullopt;
    return std::vector<AddressRecord>{*record};
}
