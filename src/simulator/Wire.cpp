// SPDX-License-Identifier: GPL-2.0-or-later
// Decodes an SNMP message by the Basic Encoding Rules (X.690) and encodes it again.
#include "simulator/Wire.h"

#include <optional>

namespace sim {

namespace {

constexpr u_char kSequence = 0x30;
constexpr u_char kGetResponse = 0xa2;

using Bytes = std::span<const u_char>;

// The element at the front of some bytes: header and contents.
struct Element
{
    Bytes whole;
    Bytes contents;
};

std::optional<Element> firstElement(Bytes bytes)
{
    if (bytes.size() < 2)
        return std::nullopt;
    size_t header = 2;
    size_t length = bytes[1];
    if (length & 0x80) {
        const size_t digits = length & 0x7f;
        header += digits;
        if (digits > 4 || bytes.size() < header)
            return std::nullopt;
        length = 0;
        for (const u_char digit : bytes.subspan(2, digits))
            length = length << 8 | digit;
    }
    if (bytes.size() - header < length)
        return std::nullopt;
    return Element{bytes.first(header + length), bytes.subspan(header, length)};
}

// The bytes of the first `count` elements.
std::optional<Bytes> firstElements(Bytes bytes, int count)
{
    size_t size = 0;
    for (int i = 0; i < count; ++i) {
        const std::optional<Element> element = firstElement(bytes.subspan(size));
        if (!element)
            return std::nullopt;
        size += element->whole.size();
    }
    return bytes.first(size);
}

// Encodes an element with fewer than 128 bytes of contents.
std::vector<u_char> element(u_char tag, Bytes first, Bytes second)
{
    std::vector<u_char> bytes = {tag, static_cast<u_char>(first.size() + second.size())};
    bytes.insert(bytes.end(), first.begin(), first.end());
    bytes.insert(bytes.end(), second.begin(), second.end());
    return bytes;
}

} // namespace

std::vector<u_char> withoutVariables(std::span<const u_char> message)
{
    const std::optional<Element> outer = firstElement(message);
    const std::optional<Bytes> head = outer ? firstElements(outer->contents, 2) : std::nullopt; // version, community
    if (!head || outer->contents.size() == head->size() || outer->contents[head->size()] != kGetResponse)
        return {};
    const std::optional<Element> pdu = firstElement(outer->contents.subspan(head->size()));
    const std::optional<Bytes> numbers = pdu ? firstElements(pdu->contents, 3) : std::nullopt; // id, status, index
    if (!numbers || head->size() + numbers->size() > 100)
        return {};
    constexpr u_char kEmptyList[] = {kSequence, 0};
    return element(kSequence, *head, element(kGetResponse, *numbers, kEmptyList));
}

} // namespace sim
