// The spool: what a walk of the printer's profile table has brought, row by row, and the columns that it keeps.
// Process globals without locks: one walk at a time, on one thread.
#pragma once

#include "profiles/ProfileList.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

namespace bv {

// The entry of the profile table; a column has one sub-identifier more, an instance two indexes behind that.
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

// The rows of the latest walk, zeroed at its start. The count is the number of column-1 values stored: it can pass 500
// when the printer sends one for a row twice, so readers stop at the last slot.
extern ProfileList PlistForSpool;

// Variables taken from the table's subtree since the process started. Never reset, not even between walks.
extern int32_t numprinted;

// With `clear` 1 zeroes the whole spool. Otherwise stores the value of an instance (its `length` sub-identifiers at
// `name`) in the slot that its eighteenth sub-identifier, from 1 to 500, names. Ignored: other columns, values of
// another type than the column's, rows out of range, identifiers that are too short for an instance.
void vSpoolPlist(const oid *name, size_t length, const netsnmp_variable_list *variable, int32_t clear);
