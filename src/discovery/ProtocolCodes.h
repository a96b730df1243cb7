// SPDX-License-Identifier: GPL-2.0-or-later
// The kinds of connection between a print queue and its printer. Free of Qt and libcups.
#pragma once

#include <cstdint>

namespace bv {

inline constexpr int16_t kProtocolLpd = 0;
inline constexpr int16_t kProtocolBonjour = 1;
inline constexpr int16_t kProtocolAppleTalk = 2;
inline constexpr int16_t kProtocolUsb = 3;
inline constexpr int16_t kProtocolUnknown = -1; // any other connection, or no printer or device URI

// Whether the management window treats the printer as local. Local printers are not walked.
constexpr bool isLocalProtocol(int32_t code)
{
    return code == kProtocolAppleTalk || code == kProtocolUsb;
}

} // namespace bv
