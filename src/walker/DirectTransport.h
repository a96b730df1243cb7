// Answers the list requests of code that runs inside the helper, without a further process.
#pragma once

#include "helper/Caller.h"
#include "profiles/HelperRequest.h"

namespace bv {

class DirectTransport : public HelperTransport
{
public:
    explicit DirectTransport(const Caller &caller);

    bool available() override;
    // The answer line to a list request; the walk is refused, since it is what runs.
    std::optional<std::string> run(std::string_view request, std::span<const std::string> arguments) override;

private:
    Caller m_caller;
};

} // namespace bv
