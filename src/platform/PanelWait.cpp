// SPDX-License-Identifier: GPL-2.0-or-later
// Keeps what the dialog offers.
#include "platform/PanelWait.h"

namespace bv {

namespace {

PanelWait *offered = nullptr;

} // namespace

PanelWait *panelWait()
{
    return offered;
}

void setPanelWait(PanelWait *wait)
{
    offered = wait;
}

} // namespace bv
