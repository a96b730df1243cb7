// SPDX-License-Identifier: GPL-2.0-or-later
// Running the helper: as a child process, unless another transport is set.
#include "profiles/HelperRequest.h"

#include "profiles/RequestNames.h"

#include "platform/ChildProcess.h"
#include "platform/Log.h"
#include "platform/NoThrow.h"
#include "platform/RootPath.h"
#include "platform/Utf8.h"

#include <sys/stat.h>
#include <utility>
#include <vector>

namespace bv {

namespace {

class ChildTransport : public HelperTransport
{
public:
    bool available() override
    {
        struct stat about = {};
        return stat(mapRootPath(kHelperPath).c_str(), &about) == 0;
    }

    std::optional<std::string> run(std::string_view request, std::span<const std::string> arguments) override
    {
        std::vector<std::string> words;
        words.reserve(arguments.size() + 1);
        words.emplace_back(request);
        words.insert(words.end(), arguments.begin(), arguments.end());
        std::optional<ChildResult> result = runChild(mapRootPath(kHelperPath), words);
        if (!result)
            return std::nullopt;
        if (!isUtf8(result->output)) {
            diagnosticLine(formatLog("%@: the answer is not UTF-8", {request}));
            return std::nullopt;
        }
        return std::move(result->output);
    }
};

HelperTransport *&chosenTransport()
{
    static HelperTransport *transport = nullptr;
    return transport;
}

HelperTransport &transport()
{
    static ChildTransport child;
    return chosenTransport() ? *chosenTransport() : child;
}

} // namespace

HelperTransport *setHelperTransport(HelperTransport *transport)
{
    return std::exchange(chosenTransport(), transport);
}

bool helperAvailable()
{
    return transport().available();
}

std::optional<std::string> runHelper(std::string_view request, std::span<const std::string> arguments)
{
    return withoutThrowing(std::nullopt, [&]() -> std::optional<std::string> {
        if (!helperAvailable()) {
            diagnosticLine(formatLog("%@: no helper", {request}));
            return std::nullopt;
        }
        return transport().run(request, arguments);
    });
}

std::optional<std::string_view> behindMark(const std::optional<std::string> &answer, std::string_view request,
                                           std::string_view mark)
{
    const std::string text = std::string(request).append("=").append(mark);
    const size_t found = answer ? answer->find(text) : std::string::npos;
    if (found == std::string::npos)
        return std::nullopt;
    return std::string_view(*answer).substr(found + text.size());
}

bool answerIsTrue(const std::optional<std::string> &answer, std::string_view request)
{
    return behindMark(answer, request, kTrueMark).has_value();
}

} // namespace bv
