// SPDX-License-Identifier: GPL-2.0-or-later
// Finds the kind of connection and the host address of a print queue.
#include "platform/ClassNames.h"

#include "discovery/DeviceAddress.h"

#include "common/PDECommon.h"
#include "platform/Log.h"
#include "platform/Percent.h"
#include "platform/TextConverter.h"
#include "platform/Utf8.h"

#include <array>
#include <cstdio>

namespace {

struct ProtocolPrefix
{
    const char *prefix;
    int16_t code;
};

// Compared in this order with the beginning of the URI, case-sensitively.
// clang-format off
constexpr ProtocolPrefix kPrefixes[] = {
    {"mdns://",  bv::kProtocolBonjour},
    {"dnssd://", bv::kProtocolBonjour},
    {"lpd://",   bv::kProtocolLpd},
    {"pap://",   bv::kProtocolAppleTalk},
    {"usb://",   bv::kProtocolUsb},
};
// clang-format on

constexpr size_t kHostBytes = 255; // including the terminating NUL
constexpr std::chrono::milliseconds kResolveLimit{1000};

std::nullopt_t noHost(const std::string &reason)
{
    bv::diagnosticLine("Device address: " + reason);
    return std::nullopt;
}

// Converts the text to another encoding. Nothing when that encoding lacks a character.
std::optional<std::string> converted(std::string_view text, const char *from, const char *to)
{
    bv::TextConverter converter(to, from);
    std::string out;
    if (!converter || !converter.append(&out, text))
        return std::nullopt;
    return out;
}

// The host of an LPD queue: the network location up to the first ":", cut to the buffer's size in Mac OS Roman.
std::optional<std::string> lpdHost(std::string_view uri)
{
    const std::optional<std::string> location = bv::networkLocation(uri);
    if (!location)
        return noHost("the queue's URI names no host");
    std::optional<std::string> roman = converted(*location, "UTF-8", "MACINTOSH");
    if (!roman)
        return noHost("the queue's host has a character outside Mac OS Roman");
    if (roman->size() >= kHostBytes)
        roman->resize(kHostBytes - 1);
    return converted(std::string_view(*roman).substr(0, roman->find(':')), "MACINTOSH", "UTF-8");
}

std::optional<std::string> bonjourHost(std::string_view uri, const bv::ServiceResolver &resolve)
{
    const std::optional<std::string> host = bv::hostOfUri(uri);
    const std::optional<bv::ServiceName> service = host ? bv::serviceOfHost(*host) : std::nullopt;
    if (!service)
        return noHost("the queue's URI names no service");
    const std::optional<std::vector<bv::AddressRecord>> addresses = resolve(*service);
    if (!addresses || addresses->empty())
        return noHost("the service \"" + service->name + "\" does not resolve");
    return bv::dottedAddress(addresses->front());
}

// The device URI of the session's printer; a null string when there is none.
QString deviceUri(PMPrintSession session)
{
    PMPrinter printer = nullptr;
    QString uri;
    if (!session || PMSessionGetCurrentPrinter(session, &printer) != noErr ||
        PMPrinterCopyDeviceURI(printer, &uri) != noErr)
        return {};
    return uri;
}

} // namespace

std::optional<std::string> bv::networkLocation(std::string_view uri)
{
    constexpr std::string_view kMark = "://";
    const size_t mark = uri.find(kMark);
    if (mark == uri.npos)
        return std::nullopt;
    std::string_view authority = uri.substr(mark + kMark.size());
    authority = authority.substr(0, authority.find_first_of("/?#"));
    authority = authority.substr(authority.rfind('@') + 1); // without "@", npos + 1 is 0
    if (authority.empty())
        return std::nullopt;
    return std::string(authority);
}

std::optional<std::string> bv::hostOfUri(std::string_view uri)
{
    std::optional<std::string> location = networkLocation(uri);
    if (!location)
        return std::nullopt;
    // An IP literal in brackets contains colons that do not begin a port.
    const size_t end = location->front() == '[' ? location->find(']') : 0;
    location->resize(std::min(location->find(':', end == location->npos ? 0 : end), location->size()));
    if (location->empty())
        return std::nullopt;
    return location;
}

std::optional<std::string> bv::percentUnescaped(std::string_view text)
{
    std::optional<std::string> plain = percentDecoded(text);
    if (plain && (plain->find('\0') != plain->npos || !isUtf8(*plain)))
        plain.reset();
    return plain;
}

std::optional<bv::ServiceName> bv::serviceOfHost(std::string_view host)
{
    std::array<std::string_view, 4> parts;
    size_t count = 0;
    for (size_t begin = 0; count < parts.size() && begin <= host.size(); ++count) {
        const size_t end = std::min(host.find('.', begin), host.size());
        parts[count] = host.substr(begin, end - begin);
        begin = end + 1;
    }
    const std::optional<std::string> name = percentUnescaped(parts[0]);
    if (count < parts.size() || !name)
        return std::nullopt;
    return ServiceName{*name, std::string(parts[1]) + '.' + std::string(parts[2]), std::string(parts[3])};
}

std::optional<std::string> bv::dottedAddress(std::span<const std::byte> record)
{
    if (record.size() < 8)
        return std::nullopt;
    std::array<char, kHostBytes> text{};
    std::snprintf(text.data(), text.size(), "%d.%d.%d.%d", std::to_integer<int>(record[4]),
                  std::to_integer<int>(record[5]), std::to_integer<int>(record[6]), std::to_integer<int>(record[7]));
    return text.data();
}

std::optional<std::vector<bv::AddressRecord>> bv::resolveWithinOneSecond(const ServiceName &service)
{
    return resolveService(service.name, service.type, service.domain, kResolveLimit);
}

std::optional<std::string> bv::walkHost(const QString &deviceUri, const ServiceResolver &resolve)
{
    const std::string uri = deviceUri.toStdString();
    std::optional<std::string> host;
    switch (PDECommon::commoniGetProtocolByUrl(deviceUri)) {
    case kProtocolBonjour:
        host = bonjourHost(uri, resolve);
        break;
    case kProtocolLpd:
        host = lpdHost(uri);
        break;
    default:
        return noHost("the queue is no network queue that a walk can reach");
    }
    if (host && (host->empty() || host->front() == '-'))
        return noHost("the queue's host is empty or begins with \"-\"");
    return host;
}

std::optional<std::string> bv::walkHost(PMPrintSession session)
{
    const QString uri = deviceUri(session);
    if (uri.isNull())
        return noHost("the session has no printer with a device URI");
    return walkHost(uri);
}

int32_t PDECommon::commoniGetProtocol(PMPrintSession session)
{
    return commoniGetProtocolByUrl(deviceUri(session));
}

int32_t PDECommon::commoniGetProtocolByUrl(const QString &url)
{
    for (const ProtocolPrefix &row : kPrefixes) {
        if (url.startsWith(QLatin1String(row.prefix)))
            return row.code;
    }
    return bv::kProtocolUnknown;
}
