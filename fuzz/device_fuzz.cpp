// SPDX-License-Identifier: GPL-2.0-or-later
// Takes any text for a queue's device URI. What comes out may be given to the walk as a host: never an option, never
// empty, never with a character that ends a word or a text.
#include "Fuzzing.h"
#include "discovery/DeviceAddress.h"
#include "platform/Utf8.h"

using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const fuzz::Scratch scratch;
    // The first 16 bytes are what a name service says.
    fuzz::Input input(data, size);
    const std::string_view said = input.text(input.byte() % 17);
    const std::string uri(input.rest());

    std::optional<bv::ServiceName> asked;
    const bv::ServiceResolver resolver =
        [&](const bv::ServiceName &service) -> std::optional<std::vector<bv::AddressRecord>> {
        asked = service;
        bv::AddressRecord record;
        for (const char one : said)
            record.push_back(static_cast<std::byte>(one));
        return std::vector<bv::AddressRecord>{record};
    };
    const std::optional<std::string> host = bv::walkHost(QString::fromStdString(uri), resolver);
    if (host) {
        require(!host->empty() && host->front() != '-' && host->size() <= size_t{254} * 3);
        require(bv::isUtf8(*host));
        require(host->find_first_of("/?#@:") == host->npos);
    }
    if (asked) {
        require(asked->name.find('\0') == asked->name.npos && bv::isUtf8(asked->name));
        require(asked->domain.find('.') == asked->domain.npos);
    }

    const std::optional<std::string> location = bv::networkLocation(uri);
    const std::optional<std::string> name = bv::hostOfUri(uri);
    require(!name || (location && location->starts_with(*name)));
    bv::serviceOfHost(uri);
    if (const std::optional<std::string> plain = bv::percentUnescaped(uri))
        require(plain->size() <= uri.size());
    bv::dottedAddress(std::as_bytes(std::span(said)));
    return 0;
}
