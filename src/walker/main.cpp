// SPDX-License-Identifier: GPL-2.0-or-later
// QL70Walk: walks the printer's profile table. QL70Helper replaces itself by this program for a walk request, so the
// caller keeps reading from the same process. Nothing else starts it.
#include "helper/RequestProgram.h"
#include "walker/Walk.h"

#include <unistd.h>

int main(int argc, char **argv)
{
    // The pieces that the walk writes belong to this process, not to its parent.
    return bv::runRequestProgram(argc, argv, getpid(), bv::runWalk);
}
