// The kinds of connection between a print queue and its printer. Free of Qt and libcups.
#pragma once

#include <cstdint>

namespace bv {

inline constexpr int16_t kProtocolLpd = 0;
inline constexpr int16_t kProtocolBonjour = 1;
inline constexpr int16_t kProtocolAppleTalk = 2;
inline constexpr int16_t kProtocolUsb = 3;
inline constexpr int16_t kProtocolUnknown = -1; // any other, and a session without printer or device URI

// Whether the printer hangs on this computer as the management window sees it: no walk ever asks it for its profiles.
constexpr bool isLocalProtocol(int32_t code)
{
    return code == kProtocolAppleTalk || code == kProtocolUsb;
}

} // namespace bv
