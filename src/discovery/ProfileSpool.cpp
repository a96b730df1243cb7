// SPDX-License-Identifier: GPL-2.0-or-later
// Fills the spool from the variables of a walk.
#include "discovery/ProfileSpool.h"

#include <algorithm>
#include <span>

ProfileList PlistForSpool;
int32_t numprinted = 0;

namespace {

using Number = int32_t ProfileRecord::*;
using Text = char (ProfileRecord::*)[kProfileTextBytes];

// A kept column and its field in the record. Of `number` and `text`, one is null, depending on the type of the values.
struct Column
{
    const bv::ColumnOid &id;
    Number number;
    Text text;
    bool countsRow;
};

// clang-format off
constexpr Column kColumns[] = {
    // column                  number                         text                         counts the row
    {iOidIndexOnDevice,       &ProfileRecord::IndexOnDevice, nullptr,                     true },
    {iOidSourceType,          &ProfileRecord::Location,      nullptr,                     false},
    {iOidProfileName,         nullptr,                       &ProfileRecord::ProfileName, false},
    {iOidFileName,            nullptr,                       &ProfileRecord::FileName,    false},
    {iOidProfileClass,        &ProfileRecord::ProfileClass,  nullptr,                     false},
    {iOidProfileAvailability, &ProfileRecord::Availability,  nullptr,                     false},
};
// clang-format on

// Copies a text up to its first NUL, cut at the field's 32 bytes. No NUL is added: the field was zeroed with the spool.
// A shorter text that comes later for the same cell keeps the tail of the older one. This is intended: stored lists
// hold such names, and the comparison over all 32 bytes must find them again.
void storeText(char (&field)[kProfileTextBytes], std::span<const u_char> value)
{
    value = value.first(std::min(value.size(), kProfileTextBytes));
    std::copy(value.begin(), std::find(value.begin(), value.end(), u_char{0}), field);
}

} // namespace

void vSpoolPlist(const oid *name, size_t length, const netsnmp_variable_list *variable, int32_t clear)
{
    if (clear == 1) {
        PlistForSpool = {};
        return;
    }
    if (length < bv::kInstanceOidLength)
        return;
    const auto column = std::find_if(std::begin(kColumns), std::end(kColumns), [name](const Column &candidate) {
        return std::equal(candidate.id.begin(), candidate.id.end(), name);
    });
    if (column == std::end(kColumns))
        return;
    const oid row = name[bv::kInstanceOidLength - 1];
    if (row < 1 || row > oid{kProfileSlots})
        return;
    ProfileRecord &record = PlistForSpool.records[row - 1];
    if (column->text && variable->type == ASN_OCTET_STR) {
        storeText(record.*column->text, {variable->val.string, variable->val_len});
    } else if (column->number && variable->type == ASN_INTEGER && variable->val.integer) {
        record.*column->number = static_cast<int32_t>(*variable->val.integer);
        // A second value for the same row counts too. The reconciliation then looks at one row too many and skips it,
        // because it has no name.
        if (column->countsRow)
            ++PlistForSpool.count;
    }
}
