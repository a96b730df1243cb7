// SPDX-License-Identifier: GPL-2.0-or-later
// Switches the back end on and off for the user who runs the program.
#pragma once

#include "platform/Result.h"

namespace bv {

// The portal asks the back ends that are for the first desktop in XDG_CURRENT_DESKTOP first, and ours is for none but
// "bvprint". Switched on, a file of the user's has the bus start the portal with "bvprint" in front of the desktop's
// name. All take effect when the portal is started the next time, at the next login. The sentences are for the user.
class PortalSwitch
{
public:
    PortalSwitch();

    bool isOn() const;
    // Where the portal goes by files of its own (portals.conf), nothing is written, and the failure says what to do.
    Result<QString> switchOn() const;
    Result<QString> switchOff() const;

private:
    QString m_file; // of the user
};

} // namespace bv
