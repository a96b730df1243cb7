// The names of the helper's requests and the marks of its answers, as both sides of the pipe use them. Free of Qt.
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

// What stands behind "NAME=" in an answer. Behind the walk's mark comes its status, a decimal number.
inline constexpr std::string_view kTrueMark = "TRUE";
inline constexpr std::string_view kFalseMark = "FALSE";
inline constexpr std::string_view kWalkMark = "iRet=";

} // namespace bv
