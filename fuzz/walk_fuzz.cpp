// SPDX-License-Identifier: GPL-2.0-or-later
// Takes any bytes as the variables of a walk and merges the resulting spool into a list. Memory outside the slots must
// not change, and no list may get a profile with a name that the name rule refuses.
#include "Fuzzing.h"
#include "discovery/FileNameRule.h"
#include "discovery/ProfileSpool.h"
#include "discovery/Reconciliation.h"

#include <cstring>
#include <vector>

using fuzz::require;

namespace {

// Reads one variable: column, row, length of the identifier, type, value.
void spoolOne(fuzz::Input *input)
{
    std::vector<oid> name(bv::kProfileEntryOid.begin(), bv::kProfileEntryOid.end());
    name.push_back(input->byte() % 9);
    name.push_back(1);
    name.push_back(static_cast<oid>(input->byte()) << 1 | (input->byte() & 1U));
    name.resize(input->byte() % 8 == 0 ? input->byte() % 24 : name.size());
    long number = fuzz::signedNumber(input->byte());
    const uint8_t kind = input->byte();
    std::string text(input->text(kind >> 1));
    netsnmp_variable_list variable{};
    if (kind & 1) {
        variable.type = ASN_INTEGER;
        variable.val.integer = &number;
        variable.val_len = sizeof(number);
    } else {
        variable.type = ASN_OCTET_STR;
        variable.val.string = reinterpret_cast<u_char *>(text.data());
        variable.val_len = text.size();
    }
    vSpoolPlist(name.data(), name.size(), &variable, 0);
}

struct Guarded
{
    char before[64];
    ProfileList list;
    char after[64];
};

Guarded guarded;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::Input input(data, size);
    vSpoolPlist(nullptr, 0, nullptr, 1);
    guarded = {};
    guarded.list.count = fuzz::signedNumber(input.byte()) * 8; // any count, also an invalid one
    const int32_t status = input.byte() & 1;
    while (!input.atEnd())
        spoolOne(&input);
    vDeleteMIBprofilesTemporary(status, &guarded.list);
    for (int32_t row = 0; row < kProfileSlots; ++row) {
        if (bJudgement8point3Format(bv::fieldText(PlistForSpool.records[row].FileName)))
            vRestructDetail(row, &guarded.list);
    }
    for (const ProfileRecord &record : guarded.list.records)
        require(record.InMenu == 0 || bJudgement8point3Format(bv::fieldText(record.FileName)));
    const Guarded clean{};
    require(std::memcmp(guarded.before, clean.before, sizeof(clean.before)) == 0);
    require(std::memcmp(guarded.after, clean.after, sizeof(clean.after)) == 0);
    return 0;
}
