// SPDX-License-Identifier: GPL-2.0-or-later
// Takes any bytes for a list that is to be committed. What the check lets through, every reader must be able to read.
#include "Fuzzing.h"
#include "helper/ListCheck.h"
#include "platform/Utf8.h"
#include "profiles/ProfileListFile.h"
#include "profiles/ProfileListRead.h"

using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static ProfileLists lists;
    const std::string_view text = fuzz::textOf(data, size);
    const std::optional<std::string> fault = bv::faultOfListText(text);
    require(!fault || !fault->empty());
    if (fault)
        return 0;
    require(bv::isUtf8(text));
    require(bv::isCompleteProfileList(text));
    require(bv::readLists(bv::PropertyList::fromXml(text), &lists.rgb, &lists.sim, &lists.dst) == 0);
    return 0;
}
