// SPDX-License-Identifier: GPL-2.0-or-later
// The arguments of a walk request: the model, the login name, and the words of the walk. Free of Qt.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace bv {

inline constexpr std::string_view kWalkModel = "QL70";
// Placeholder for the host, the only word that differs between printers.
inline constexpr std::string_view kAnyHost;

// The words of a walk as snmpwalk(1) takes them, starting with its name. The last one is the root of the printer's
// profile table.
// clang-format off
inline constexpr std::array<std::string_view, 8> kWalkWords = {
    "snmpwalk", "-Os", "-c", "mirror", "-v", "1", kAnyHost, "1.3.6.1.4.1.39847.1.1.1.1.6.13.1.1",
};
// clang-format on

// Position of the first word in the request, after the model and the login name.
inline constexpr size_t kWalkWordsBegin = 2;
inline constexpr size_t kWalkArguments = kWalkWordsBegin + kWalkWords.size();

} // namespace bv
