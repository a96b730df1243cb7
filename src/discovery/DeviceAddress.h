// From a print queue's device URI to the printer's host: parts of a URI, and the host that a walk is to ask.
#pragma once

#include "discovery/ProtocolCodes.h"
#include "platform/NetworkService.h"
#include "platform/PrintSettings.h"

#include <QString>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace bv {

// The network location of a URI (RFC 3986, 3.2): host and optional port, as they stand, percent escapes too; without
// user information. Nothing when the URI has no authority or an empty one.
std::optional<std::string> networkLocation(std::string_view uri);

// The host alone, percent escapes as they stand.
std::optional<std::string> hostOfUri(std::string_view uri);

// The text with its percent escapes taken out; nothing when one is broken or the result is not UTF-8 or holds a NUL.
std::optional<std::string> percentUnescaped(std::string_view text);

// A Bonjour service as a URI's host names it.
struct ServiceName
{
    std::string name;
    std::string type;
    std::string domain;
};

// Splits a host at every "."; component 0 is the name, 1 and 2 the type, 3 the domain, whatever follows is left out. A
// dot inside the name must be escaped, else the components shift. Nothing with fewer than four components.
std::optional<ServiceName> serviceOfHost(std::string_view host);

// Bytes 4 to 7 of a socket address record as "%d.%d.%d.%d"; of a record that is not IPv4 as well. Nothing for a shorter
// record.
std::optional<std::string> dottedAddress(std::span<const std::byte> record);

// How a service is resolved: resolveService, or what a test puts in its place.
using ServiceResolver = std::function<std::optional<std::vector<AddressRecord>>(const ServiceName &)>;
std::optional<std::vector<AddressRecord>> resolveWithinOneSecond(const ServiceName &service);

// The host that the walk of a queue asks, UTF-8: of an LPD queue the network location up to its first ":" and to 254
// bytes of Mac OS Roman, of a Bonjour queue the dotted address. Nothing for other queues, a host that cannot be had,
// and one that is empty or begins with "-": the host is data, and no option of the walk. The reason goes to the log.
std::optional<std::string> walkHost(const QString &deviceUri, const ServiceResolver &resolve = resolveWithinOneSecond);

// The same for the session's current printer.
std::optional<std::string> walkHost(PMPrintSession session);

} // namespace bv
