// Operations on the stored profile lists. Free of Qt and libcups. Lists belong to the caller, who zeroes them before a
// read. Each operation reads or writes the whole file anew; what it cannot do it reports by its result and one line in
// the diagnostic log, never to the user.
#pragma once

#include "profiles/ProfileList.h"

#include <cstdint>

// ---- Reading (ProfileListRead.cpp) ----

// Reads the three lists of the current user's file. 0, or -1 (file missing, unreadable or incomplete; lists untouched).
int32_t BVPListReadProfile_All(ProfileList *rgb, ProfileList *sim, ProfileList *dst);
// Reads one class (a ProfileClassIndex). 0 or -1.
int32_t BVPListReadProfile_Dict(ProfileList *list, int32_t which);
// Reads one class for the management window of a local queue: what is only on the printer is left out, what is in the
// menus too becomes an own entry. 0 or -1.
int32_t BVPListReadProfile_Dict_Pap(ProfileList *list, int32_t which);
// Makes the count the number of records in use and clears every record from there on.
void BVPlistCheckWithInMenu_Dict(ProfileList *list);

// ---- Writing (ProfileListWrite.cpp) ----

// Writes the three lists through the helper. 0 written, -1 not written (then the old file stands).
int32_t BVPListWriteProfile_All(const ProfileList *rgb, const ProfileList *sim, const ProfileList *dst);
// Merges the edited lists with the file, leaving out the excluded records, and writes the result. 0 or -1.
int32_t BVPListWriteProfile_All_Pap(const ProfileList *rgb, const ProfileList *sim, const ProfileList *dst,
                                    const ProfileList *rgbDelete, const ProfileList *simDelete,
                                    const ProfileList *dstDelete);
// Writes one class and keeps the other two as the file has them; the outputs that are given receive the three lists.
int32_t BVPListWriteProfile_Dict(const ProfileList *list, int32_t which, ProfileList *rgb, ProfileList *sim,
                                 ProfileList *dst);

// ---- Merging (ProfileListMerge.cpp) ----

// The merge alone, into three zeroed outputs; a file that cannot be read counts as empty. Always 0.
int32_t BVPListMappingProfile_All_Pap(const ProfileList *rgb, const ProfileList *sim, const ProfileList *dst,
                                      ProfileList *rgbOut, ProfileList *simOut, ProfileList *dstOut,
                                      const ProfileList *rgbDelete, const ProfileList *simDelete,
                                      const ProfileList *dstDelete);
// Merge of one class: file entries on the printer that are neither edited nor excluded, then the edited list, cut at
// 500.
void BVPListMapping_Pap(const ProfileList *edited, const ProfileList *fromFile, ProfileList *out,
                        const ProfileList *excluded);

// ---- Questions and orders to the helper (ProfileQueries.cpp) ----

// Questions to the helper: 1 yes, 0 no (also without a helper).
int32_t BVPListIsAdminProfile();
int32_t BVPListExistProfile();
// Removes the current (3) or the previous (2) file: 1 removed, 0 not.
int32_t BVPListRemove(int32_t which);
// Has the helper copy current to previous (2) or previous to current (3). No result.
void BVPListSwapProfile(int32_t code);

// ---- Tidying after a refresh (ProfileListTidy.cpp); none of them reports anything ----

void BVPListCleanProfile_Dict(ProfileList *list);
void BVPListSalvage_Dict(ProfileList *list);
void BVPListPaddingProfile_Dict(ProfileList *list);
