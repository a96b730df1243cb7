// SPDX-License-Identifier: GPL-2.0-or-later
// The names on the bus that the portal and its back ends use.
#pragma once

namespace bv {

inline constexpr char kBackendName[] = "org.freedesktop.impl.portal.desktop.bvprint";
inline constexpr char kBackendPath[] = "/org/freedesktop/portal/desktop";
inline constexpr char kPrintInterface[] = "org.freedesktop.impl.portal.Print";
inline constexpr char kRequestInterface[] = "org.freedesktop.impl.portal.Request";

} // namespace bv
