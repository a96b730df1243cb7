// SPDX-License-Identifier: GPL-2.0-or-later
// The spool: the rows that a walk of the printer's profile table found, and the columns that it keeps. These are
// process globals without locks: run one walk at a time, on one thread.
#pragma once

#include "profiles/ProfileList.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

namespace bv {

// The entry of the profile table; a column has one more sub-identifier, an instance two more after that.
inline constexpr std::array<oid, 15> kProfileEntryOid = {1, 3, 6, 1, 4, 1, 39847, 1, 1, 1, 1, 6, 13, 1, 1};
inline constexpr size_t kColumnOidLength = kProfileEntryOid.size() + 1;
inline constexpr size_t kInstanceOidLength = kColumnOidLength + 2;

using ColumnOid = std::array<oid, kColumnOidLength>;

// The identifier of one column of the table.
constexpr ColumnOid columnOid(oid column)
{
    ColumnOid id{};
    std::copy(kProfileEntryOid.begin(), kProfileEntryOid.end(), id.begin());
    id.back() = column;
    return id;
}

} // namespace bv

// The columns that are kept, by their identifiers.
inline constexpr bv::ColumnOid iOidIndexOnDevice = bv::columnOid(1);
inline constexpr bv::ColumnOid iOidSourceType = bv::columnOid(2);
inline constexpr bv::ColumnOid iOidProfileName = bv::columnOid(3);
inline constexpr bv::ColumnOid iOidFileName = bv::columnOid(4);
inline constexpr bv::ColumnOid iOidProfileClass = bv::columnOid(5);
inline constexpr bv::ColumnOid iOidProfileAvailability = bv::columnOid(7);

// The rows of the latest walk, zeroed at its start. The count is the number of column-1 values stored. It can exceed
// 500 when the printer sends a row twice, so readers must stop at the last slot.
extern ProfileList PlistForSpool;

// Number of variables received from the table's subtree since the process started. Not reset between walks.
extern int32_t numprinted;

// If `clear` is 1, zeroes the whole spool. Otherwise stores the value of an instance in the slot given by its
// eighteenth sub-identifier (1 to 500). `name` points to `length` sub-identifiers. Ignored are other columns, values of
// the wrong type, rows out of range, and identifiers too short for an instance.
void vSpoolPlist(const oid *name, size_t length, const netsnmp_variable_list *variable, int32_t clear);
