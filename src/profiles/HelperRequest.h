// SPDX-License-Identifier: GPL-2.0-or-later
// Requests to the helper, over a transport that can be replaced. Free of Qt and libcups. In the dialog the transport is
// a child process; inside the helper it is a direct call.
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
    // Whether the transport can reach a helper.
    virtual bool available() = 0;
    // Sends one request and returns the text of the answer. Nothing when the helper could not be asked.
    virtual std::optional<std::string> run(std::string_view request, std::span<const std::string> arguments) = 0;
};

// Replaces the transport. It is borrowed and must stay alive while it is set; null means the child process. Returns the
// transport set before, or null.
HelperTransport *setHelperTransport(HelperTransport *transport);

// Whether the transport can reach a helper. For the child process: whether a file exists at the helper's path.
bool helperAvailable();

// Sends one request and returns the answer. Nothing when the helper is missing or cannot be run.
std::optional<std::string> runHelper(std::string_view request, std::span<const std::string> arguments);

// Looks anywhere in the answer for the request's name, "=" and the mark. Returns the rest of the answer after them, or
// nothing when there is no answer or no such text. The view points into `answer`.
std::optional<std::string_view> behindMark(const std::optional<std::string> &answer, std::string_view request,
                                           std::string_view mark);

// Whether the answer to the request is TRUE.
bool answerIsTrue(const std::optional<std::string> &answer, std::string_view request);

} // namespace bv
