// SPDX-License-Identifier: GPL-2.0-or-later
// Merges any result of a walk into any stored lists, as the helper does after a walk.
// The first byte is the walk's status; records of the stored lists and of the spool follow, 8 bytes each.
#include "Fuzzing.h"
#include "discovery/FileNameRule.h"
#include "discovery/ProfileSpool.h"
#include "discovery/Reconciliation.h"
#include "profiles/MenuState.h"
#include "profiles/ProfileOperations.h"

#include <cstring>
#include <memory>
#include <set>

using fuzz::require;

namespace {

// Few names, so that the two sides meet: good ones, one that the rule refuses, one that is not UTF-8.
constexpr std::string_view kNames[] = {"A.ICC",  "B.ICC", "C",        "LONGNAMELONGNAMELONGNAMELON.ICC",
                                       "D.ICCX", "",      "\xFF.ICC", "E F.ICC"};

ProfileRecord recordOf(std::string_view bytes)
{
    std::array<uint8_t, 8> b{};
    std::copy(bytes.begin(), bytes.end(), b.begin());
    ProfileRecord record{};
    record.IndexOnDevice = fuzz::signedNumber(b[0]);
    record.InMenu = b[1] & 0x80 ? fuzz::signedNumber(b[1]) : b[1] % 8;
    record.ProfileClass = b[2] % 5;
    record.Location = 3 + b[3] % 4;
    bv::setFieldText(record.FileName, kNames[b[4] % std::size(kNames)]);
    if (b[5] != 0) // more names, of any character
        record.FileName[b[4] % 4] = static_cast<char>(b[5]);
    bv::setFieldText(record.ProfileName, bytes.substr(std::min<size_t>(6, bytes.size())));
    return record;
}

using Files = std::set<std::pair<std::string, int32_t>>;

Files filesOf(const ProfileList &list, bool (*wanted)(const ProfileRecord &))
{
    Files files;
    for (const ProfileRecord &record : list.records)
        if (bv::isUsed(record.InMenu) && wanted(record))
            files.emplace(std::string(bv::fieldText(record.FileName)), record.Location);
    return files;
}

bool isGood(const ProfileRecord &record)
{
    return bJudgement8point3Format(bv::fieldText(record.FileName));
}

// What must hold for each list that is written.
void checkList(const ProfileList &list)
{
    require(list.count >= 0 && list.count <= kProfileSlots);
    for (int slot = 0; slot < kProfileSlots; ++slot) {
        const ProfileRecord &record = list.records[slot];
        require(bv::isUsed(record.InMenu) == (slot < list.count)); // no gaps
        const std::string_view name = bv::fieldText(record.FileName);
        require(name.empty() || !bv::isUsed(record.InMenu) || bJudgement8point3Format(name));
        require(record.InMenu != bv::kMissingInMenu || record.IndexOnDevice == 0 || name.empty());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const auto lists = std::make_unique<ProfileLists>();
    static const auto before = std::make_unique<ProfileLists>();
    ProfileList *const all[] = {&lists->rgb, &lists->sim, &lists->dst};
    const ProfileList *const old[] = {&before->rgb, &before->sim, &before->dst};

    fuzz::Input input(data, size);
    const int32_t status = input.byte() % 3;
    *lists = {};
    vSpoolPlist(nullptr, 0, nullptr, 1);
    PlistForSpool.count = fuzz::signedNumber(input.byte());
    while (!input.atEnd()) {
        const uint8_t where = input.byte();
        const uint8_t slot = input.byte();
        const ProfileRecord record = recordOf(input.text(8));
        ProfileList &list = where % 4 < 3 ? *all[where % 4] : PlistForSpool;
        list.records[where & 0x80 ? kProfileSlots - 1 - slot : slot % 32] = record;
    }
    // As after a read of a list with gaps.
    for (ProfileList *list : all)
        list->count =
            static_cast<int32_t>(std::count_if(std::begin(list->records), std::end(list->records),
                                               [](const ProfileRecord &one) { return bv::isUsed(one.InMenu); }));
    *before = *lists;

    bv::mergeSpool(status, lists.get());
    for (size_t i = 0; i < std::size(all); ++i) {
        // The count that is written may be too large; every reader corrects it.
        BVPlistCheckWithInMenu_Dict(all[i]);
        checkList(*all[i]);
        // What is in the user's menus stays there, if the printer can name such a file at all.
        const Files menu = filesOf(*old[i], [](const ProfileRecord &one) {
            return one.InMenu == bv::kOwnInMenu && one.IndexOnDevice != 0 && isGood(one);
        });
        const Files kept = filesOf(*all[i], [](const ProfileRecord &one) { return bv::isInMenu(one.InMenu); });
        require(std::includes(kept.begin(), kept.end(), menu.begin(), menu.end()));
    }
    return 0;
}
