// SPDX-License-Identifier: GPL-2.0-or-later
// From a print queue's device URI to the printer's host: parts of a URI, and the host for a walk.
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

// The network location of a URI (RFC 3986, 3.2): host and optional port, without user information. Percent escapes are
// kept. Nothing when the URI has no authority or an empty one.
std::optional<std::string> networkLocation(std::string_view uri);

// The host alone. Percent escapes are kept. Nothing as for networkLocation.
std::optional<std::string> hostOfUri(std::string_view uri);

// Decodes percent escapes. Nothing when an escape is malformed, or the result is not UTF-8 or contains a NUL.
std::optional<std::string> percentUnescaped(std::string_view text);

// A Bonjour service, as the host of a URI names it.
struct ServiceName
{
    std::string name;
    std::string type;
    std::string domain;
};

// Splits a host at every "."; component 0 is the name, 1 and 2 the type, 3 the domain; the rest is ignored. A dot in
// the name must be percent-escaped, or the components shift. Nothing when there are fewer than four components.
std::optional<ServiceName> serviceOfHost(std::string_view host);

// Formats bytes 4 to 7 of a socket address record as "%d.%d.%d.%d". The address family is not checked. Nothing for a
// shorter record.
std::optional<std::string> dottedAddress(std::span<const std::byte> record);

// Resolves a service. Tests pass their own.
using ServiceResolver = std::function<std::optional<std::vector<AddressRecord>>(const ServiceName &)>;
std::optional<std::vector<AddressRecord>> resolveWithinOneSecond(const ServiceName &service);

// The host (UTF-8) to walk for a queue. LPD: the network location up to its first ":", cut to 254 bytes of Mac OS
// Roman. Bonjour: the dotted address. Nothing, with the reason in the diagnostic log, for other queues, for a host that
// cannot be determined, and for one that is empty or begins with "-", which the walk would take for an option.
std::optional<std::string> walkHost(const QString &deviceUri, const ServiceResolver &resolve = resolveWithinOneSecond);

// The same for the session's current printer.
std::optional<std::string> walkHost(PMPrintSession session);

} // namespace bv
