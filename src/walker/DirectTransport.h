// SPDX-License-Identifier: GPL-2.0-or-later
// Answers list requests inside the helper's own process, without starting another one.
#pragma once

#include "helper/Caller.h"
#include "profiles/HelperRequest.h"

namespace bv {

class DirectTransport : public HelperTransport
{
public:
    explicit DirectTransport(const Caller &caller);

    bool available() override;
    // Returns the answer line of a list request. Refuses a walk, since one is running already.
    std::optional<std::string> run(std::string_view request, std::span<const std::string> arguments) override;

private:
    Caller m_caller;
};

} // namespace bv
