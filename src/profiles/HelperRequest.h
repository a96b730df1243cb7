// Requests to the helper tool: one operation "run helper" over a transport that can be exchanged. Free of Qt and
// libcups. In the dialog the transport is a child process; inside the helper it is a direct call.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

// The helper's fixed logical path.
inline constexpr char kHelperPath[] =
    "/Library/Application Support/BREVANE/QL70/Helpers/QL70Helper.app/Contents/MacOS/QL70Helper";

namespace bv {

class HelperTransport
{
public:
    virtual ~HelperTransport() = default;
    // Whether a helper is there at all.
    virtual bool available() = 0;
    // The answer text to one request, or nothing when it could not be asked.
    virtual std::optional<std::string> run(std::string_view request, std::span<const std::string> arguments) = 0;
};

// Uses another transport from now on (borrowed; null: the child process again). Returns the one before, or null.
HelperTransport *setHelperTransport(HelperTransport *transport);

// Whether the helper is there: exactly when a file exists at its path (under the root).
bool helperAvailable();

// One request; nothing when the helper is missing or cannot be run.
std::optional<std::string> runHelper(std::string_view request, std::span<const std::string> arguments);

// What stands in the answer behind the request's name, "=" and the mark, wherever in the answer that is; nothing where
// there is no answer or no such text in it.
std::optional<std::string_view> behindMark(const std::optional<std::string> &answer, std::string_view request,
                                           std::string_view mark);

// Whether the answer says TRUE to that request.
bool answerIsTrue(const std::optional<std::string> &answer, std::string_view request);

} // namespace bv
