// The spool: what a walk of the printer's profile table has brought, row by row, and the columns that it keeps.
// Process globals without locks: one walk at a time, on one thread.
#pragma once

#include "profiles/ProfileList.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

namespace bv {

// The entry of the profile table; a column has one sub-identifier more, an instance two indexes behind that.
inline constexpr std::array<oid, 15> kProfileEntryOid = {1, 3, 6, 1, 4, 1, 39847, 1, 1, 1, 1, 6, 13, 1, 1};
inline constexpr size_t kColumnOidLength = kProfileEntryOid.size() + 1;
inline constexpr size_t kInstanceOidLength = kColumnOidLength + 2;

} // namespace bv

// The rows of the latest walk, zeroed at its start. The count is the number of column-1 values stored: it can pass 500
// when the printer sends one for a row twice, so readers stop at the last slot.
extern ProfileList PlistForSpool;

// Variables taken from the table's subtree since the process started. Never reset, not even between walks.
extern int32_t numprinted;

// With `clear` 1 zeroes the whole spool. Otherwise stores the value of an instance (its `length` sub-identifiers at
// `name`) in the slot that its eighteenth sub-identifier, from 1 to 500, names. Ignored: other columns, values of
// another type than the column's, rows out of range, identifiers that are too short for an instance.
void vSpoolPlist(const oid *name, size_t length, const netsnmp_variable_list *variable, int32_t clear);
