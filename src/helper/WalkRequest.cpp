// SPDX-License-Identifier: GPL-2.0-or-later
// The request to walk the printer's profile table. It is a program of its own, because only this one of the seven
// requests needs the SNMP library. That library would more than double the start time of the others.
#include "helper/WalkRequest.h"

#include "discovery/WalkWords.h"
#include "helper/Diagnostics.h"
#include "profiles/RequestNames.h"

#include <array>
#include <cerrno>
#include <climits>
#include <unistd.h>
#include <vector>

namespace bv {

namespace {

constexpr std::string_view kProgram = "QL70Walk";

bool isWalk(RequestArguments arguments)
{
    if (arguments.size() != kWalkArguments || arguments[0] != kWalkModel)
        return false;
    const RequestArguments words = arguments.subspan(kWalkWordsBegin);
    for (size_t i = 0; i < kWalkWords.size(); ++i) {
        if (kWalkWords[i] == kAnyHost) {
            if (words[i].empty() || words[i].starts_with('-'))
                return false;
        } else if (words[i] != kWalkWords[i]) {
            return false;
        }
    }
    return true;
}

// Path of QL70Walk in the folder of this program, taken only from the kernel (/proc/PID/exe, see proc(5)). Empty when
// it is not available.
std::string programBeside()
{
    std::array<char, PATH_MAX> path;
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    if (length <= 0 || static_cast<size_t>(length) == path.size())
        return {};
    const std::string_view own(path.data(), static_cast<size_t>(length));
    return std::string(own.substr(0, own.rfind('/') + 1)).append(kProgram);
}

} // namespace

std::optional<Outcome> walkRefusal(const Caller &caller, RequestArguments arguments)
{
    if (!isWalk(arguments)) {
        complain("those are not the words of a walk");
        return unknownRequest();
    }
    if (!caller.listOfLogin(arguments[1])) {
        complain("the caller may not walk for that login name");
        return outcomeOf(false);
    }
    return std::nullopt;
}

Outcome answerWalk(const Caller &caller, RequestArguments arguments)
{
    if (const auto refusal = walkRefusal(caller, arguments))
        return *refusal;

    std::vector<std::string> words = {std::string(kProgram), std::string(kWalkRequest)};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char *> vector;
    vector.reserve(words.size() + 1);
    for (std::string &word : words)
        vector.push_back(word.data());
    vector.push_back(nullptr);
    execv(programBeside().c_str(), vector.data());
    complain("cannot start QL70Walk", errno);
    return outcomeOf(false);
}

} // namespace bv
