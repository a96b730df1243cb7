// SPDX-License-Identifier: GPL-2.0-or-later
// Names of the helper's requests and marks of its answers, shared by the plug-in and the helper. Free of Qt.
#pragma once

#include <string_view>

namespace bv {

inline constexpr std::string_view kIsAdminRequest = "bvPListIsAdminProfile_XPC";
inline constexpr std::string_view kExistRequest = "bvPListExistProfile_XPC";
inline constexpr std::string_view kRemoveRequest = "bvPListRemove_XPC";
inline constexpr std::string_view kSwapRequest = "bvPListSwapProfile_XPC";
inline constexpr std::string_view kPieceRequest = "writeDataToPlistFile_XPC";
inline constexpr std::string_view kCommitRequest = "writeDataToPlistFileRename_XPC";
inline constexpr std::string_view kWalkRequest = "mibwalk_XPC";

// The marks that follow "NAME=" in an answer. The walk's mark is followed by its status, a decimal number.
inline constexpr std::string_view kTrueMark = "TRUE";
inline constexpr std::string_view kFalseMark = "FALSE";
inline constexpr std::string_view kWalkMark = "iRet=";

} // namespace bv
