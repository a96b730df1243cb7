// SPDX-License-Identifier: GPL-2.0-or-later
// Looks up a Bonjour service with the Avahi client library.
#include "resolver/ServiceLookup.h"

#include <arpa/inet.h>
#include <avahi-client/client.h>
#include <avahi-client/lookup.h>
#include <avahi-common/simple-watch.h>

#include <array>
#include <memory>

namespace {

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
    std::string line;
};

void resolved(AvahiServiceResolver * /*resolver*/, AvahiIfIndex /*interface*/, AvahiProtocol /*protocol*/,
              AvahiResolverEvent event, const char * /*name*/, const char * /*type*/, const char * /*domain*/,
              const char * /*host*/, const AvahiAddress *address, uint16_t port, AvahiStringList * /*text*/,
              AvahiLookupResultFlags /*flags*/, void *context)
{
    auto *resolution = static_cast<Resolution *>(context);
    resolution->done = true;
    std::array<char, INET_ADDRSTRLEN> dotted{};
    if (event == AVAHI_RESOLVER_FOUND && address && address->proto == AVAHI_PROTO_INET &&
        inet_ntop(AF_INET, &address->data.ipv4.address, dotted.data(), dotted.size()))
        resolution->line = std::string(dotted.data()) + ' ' + std::to_string(port) + '\n';
}

// Ends the wait when the daemon goes away. The resolver's callback would then never come.
void clientChanged(AvahiClient * /*client*/, AvahiClientState state, void *context)
{
    if (state == AVAHI_CLIENT_FAILURE)
        static_cast<Resolution *>(context)->done = true;
}

} // namespace

std::string bv::lookUpService(const std::string &name, const std::string &type, const std::string &domain)
{
    Resolution resolution; // outlives the client, whose callbacks write to it
    const std::unique_ptr<AvahiSimplePoll, FreePoll> poll(avahi_simple_poll_new());
    if (!poll)
        return {};
    const std::unique_ptr<AvahiClient, FreeClient> client(
        avahi_client_new(avahi_simple_poll_get(poll.get()), AvahiClientFlags{}, clientChanged, &resolution, nullptr));
    if (!client)
        return {};
    // The client frees its resolvers. One answer is enough: only the first address is ever used.
    if (!avahi_service_resolver_new(client.get(), AVAHI_IF_UNSPEC, AVAHI_PROTO_UNSPEC, name.c_str(), type.c_str(),
                                    domain.c_str(), AVAHI_PROTO_INET, AvahiLookupFlags{}, resolved, &resolution))
        return {};
    while (!resolution.done && avahi_simple_poll_iterate(poll.get(), -1) == 0) {
    }
    return resolution.line;
}
