// SPDX-License-Identifier: GPL-2.0-or-later
// Operations on the stored profile lists. Free of Qt and libcups. Lists belong to the caller, who zeroes them before a
// read. Each operation reads or writes the whole file. A failure is reported by the result and one line in the
// diagnostic log, never to the user.
#pragma once

#include "profiles/ProfileList.h"

#include <cstdint>

// ---- Reading (ProfileListRead.cpp) ----

// Reads the three lists of the current user's file. Returns 0, or -1 when the file is missing, unreadable or
// incomplete; the lists are then unchanged.
int32_t BVPListReadProfile_All(ProfileList *rgb, ProfileList *sim, ProfileList *dst);
// Reads one class (a ProfileClassIndex). Returns 0 or -1.
int32_t BVPListReadProfile_Dict(ProfileList *list, int32_t which);
// Reads one class for the management window of a local queue: profiles on the printer that are not in the menus are
// left out; those in the menus become the user's own entries. Returns 0 or -1.
int32_t BVPListReadProfile_Dict_Pap(ProfileList *list, int32_t which);
// If the count is not the number of records in use, corrects it and clears every record from the new count on.
void BVPlistCheckWithInMenu_Dict(ProfileList *list);

// ---- Writing (ProfileListWrite.cpp) ----

// Writes the three lists through the helper. Returns 0, or -1 when nothing was written and the old file stays.
int32_t BVPListWriteProfile_All(const ProfileList *rgb, const ProfileList *sim, const ProfileList *dst);
// Merges the edited lists with the file, leaving out the excluded records, and writes the result. Returns 0 or -1.
int32_t BVPListWriteProfile_All_Pap(const ProfileList *rgb, const ProfileList *sim, const ProfileList *dst,
                                    const ProfileList *rgbDelete, const ProfileList *simDelete,
                                    const ProfileList *dstDelete);
// Writes one class (a ProfileClassIndex) and keeps the other two from the file. Outputs that are not null receive the
// three lists; if the write fails, they receive the file's lists. Returns 0 or -1.
int32_t BVPListWriteProfile_Dict(const ProfileList *list, int32_t which, ProfileList *rgb, ProfileList *sim,
                                 ProfileList *dst);

// ---- Merging (ProfileListMerge.cpp) ----

// Merges as BVPListWriteProfile_All_Pap does, without writing. The caller zeroes the outputs. A file that cannot be
// read counts as empty. Always returns 0.
int32_t BVPListMappingProfile_All_Pap(const ProfileList *rgb, const ProfileList *sim, const ProfileList *dst,
                                      ProfileList *rgbOut, ProfileList *simOut, ProfileList *dstOut,
                                      const ProfileList *rgbDelete, const ProfileList *simDelete,
                                      const ProfileList *dstDelete);
// Merges one class: first the file's records on the printer that are neither edited nor excluded, then the edited list.
// The result is cut at 500 records.
void BVPListMapping_Pap(const ProfileList *edited, const ProfileList *fromFile, ProfileList *out,
                        const ProfileList *excluded);

// ---- Questions and orders to the helper (ProfileQueries.cpp) ----

// Whether the user may manage profiles, and whether the list file exists. 1 yes; 0 no, or no helper.
int32_t BVPListIsAdminProfile();
int32_t BVPListExistProfile();
// Removes the current (3) or the previous (2) file. Returns 1 when it was removed, else 0.
int32_t BVPListRemove(int32_t which);
// Has the helper copy the current file to the previous one (2) or the previous one to the current one (3).
void BVPListSwapProfile(int32_t code);

// ---- Tidying after a refresh (ProfileListTidy.cpp); none of them reports anything ----

void BVPListCleanProfile_Dict(ProfileList *list);
void BVPListSalvage_Dict(ProfileList *list);
void BVPListPaddingProfile_Dict(ProfileList *list);
