// SPDX-License-Identifier: GPL-2.0-or-later
// The 32-bit statuses of the printing system that this project uses. Free of Qt and libcups.
#pragma once

#include <cstdint>

inline constexpr int32_t noErr = 0;
inline constexpr int32_t paramErr = -50;
inline constexpr int32_t memFullErr = -108;
inline constexpr int32_t kPMGeneralError = -30870;
inline constexpr int32_t kPMKeyNotFound = -30888;
inline constexpr int32_t kPMInvalidValue = -30889;
