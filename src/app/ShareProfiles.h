// SPDX-License-Identifier: GPL-2.0-or-later
// Gives one user's list of profiles to other users (--share-profiles).
#pragma once

#include <QStringList>

namespace bv {

struct ShareRequest
{
    QStringList users;    // login names
    QString from;         // whose list is given; empty: that of the administrator, see shareProfiles()
    bool replace = false; // also to users who have a list; theirs becomes their previous list
};

// Each user's list is written by the helper, so its rules hold: root may write for every user of the system, everybody
// else only for himself. Without `from` the list is that of the user who called sudo(8), else that of the caller.
// Prints one line for each user. Returns the exit status: 0 when every user has the list now, 1 when one was refused or
// has a list that was kept, 2 when there is no list to give, or no helper.
int shareProfiles(const ShareRequest &request);

} // namespace bv
