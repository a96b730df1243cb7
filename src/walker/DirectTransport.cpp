// SPDX-License-Identifier: GPL-2.0-or-later
// Passes list requests to the helper's request table.
#include "walker/DirectTransport.h"

#include "helper/RequestTable.h"
#include "profiles/RequestNames.h"

#include <vector>

namespace bv {

DirectTransport::DirectTransport(const Caller &caller) : m_caller(caller) {}

bool DirectTransport::available()
{
    return true;
}

std::optional<std::string> DirectTransport::run(std::string_view request, std::span<const std::string> arguments)
{
    if (request == kWalkRequest)
        return std::nullopt;
    const std::vector<std::string_view> words(arguments.begin(), arguments.end());
    return answerLine(request, answerRequest(request, words, m_caller));
}

} // namespace bv
