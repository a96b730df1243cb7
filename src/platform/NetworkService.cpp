// SPDX-License-Identifier: GPL-2.0-or-later
// Resolves a Bonjour service with the Avahi client library.
#include "platform/NetworkService.h"

#include <avahi-client/client.h>
#include <avahi-client/lookup.h>
#include <avahi-common/simple-watch.h>

#include <cstring>
#include <memory>
#include <netinet/in.h>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

struct FreePoll
{
    void operator()(AvahiSimplePoll *poll) const { avahi_simple_poll_free(poll); }
};
struct FreeClient
{
    void operator()(AvahiClient *client) const { avahi_client_free(client); }
};

struct Resolution
{
    bool done = false;
    std::vector<bv::AddressRecord> addresses;
};

bv::AddressRecord recordOf(const AvahiAddress &address, uint16_t port)
{
    sockaddr_in record{};
    record.sin_family = AF_INET;
    record.sin_port = htons(port);
    record.sin_addr.s_addr = address.data.ipv4.address; // already in network byte order
    bv::AddressRecord bytes(sizeof(record));
    std::memcpy(bytes.data(), &record, sizeof(record));
    return bytes;
}

void resolved(AvahiServiceResolver * /*resolver*/, AvahiIfIndex /*interface*/, AvahiProtocol /*protocol*/,
              AvahiResolverEvent event, const char * /*name*/, const char * /*type*/, const char * /*domain*/,
              const char * /*host*/, const AvahiAddress *address, uint16_t port, AvahiStringList * /*text*/,
              AvahiLookupResultFlags /*flags*/, void *context)
{
    auto *resolution = static_cast<Resolution *>(context);
    resolution->done = true;
    if (event == AVAHI_RESOLVER_FOUND && address && address->proto == AVAHI_PROTO_INET)
        resolution->addresses.push_back(recordOf(*address, port));
}

// Ends the wait when the daemon goes away. The resolver's callback would then never come.
void clientChanged(AvahiClient * /*client*/, AvahiClientState state, void *context)
{
    if (state == AVAHI_CLIENT_FAILURE)
        static_cast<Resolution *>(context)->done = true;
}

} // namespace

std::optional<std::vector<bv::AddressRecord>> bv::resolveService(const std::string &name, const std::string &type,
                                                                 const std::string &domain, milliseconds limit)
{
    const Clock::time_point deadline = Clock::now() + limit;
    Resolution resolution; // outlives the client, whose callbacks write to it
    const std::unique_ptr<AvahiSimplePoll, FreePoll> poll(avahi_simple_poll_new());
    if (!poll)
        return std::nullopt;
    const std::unique_ptr<AvahiClient, FreeClient> client(
        avahi_client_new(avahi_simple_poll_get(poll.get()), AvahiClientFlags{}, clientChanged, &resolution, nullptr));
    if (!client)
        return std::nullopt;
    // The client frees its resolvers. One answer is enough: only the first address is ever used.
    if (!avahi_service_resolver_new(client.get(), AVAHI_IF_UNSPEC, AVAHI_PROTO_UNSPEC, name.c_str(), type.c_str(),
                                    domain.c_str(), AVAHI_PROTO_INET, AvahiLookupFlags{}, resolved, &resolution))
        return std::nullopt;
    while (!resolution.done) {
        const auto left = std::chrono::ceil<milliseconds>(deadline - Clock::now()).count();
        if (left <= 0 || avahi_simple_poll_iterate(poll.get(), static_cast<int>(left)) != 0)
            break;
    }
    if (resolution.addresses.empty())
        return std::nullopt;
    return std::move(resolution.addresses);
}
