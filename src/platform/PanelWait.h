// SPDX-License-Identifier: GPL-2.0-or-later
// What a dialog may offer to the panels of a plug-in, so that it stays alive while they wait for the printer. Free of
// Qt and libcups. A dialog that offers nothing has panels that block, and ask the printer each time.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

namespace bv {

// All calls come from the dialog's main thread, inside a call of the dialog to a panel. None throws.
class PanelWait
{
public:
    // How a wait ended.
    enum class End {
        Input,    // there is something to read from the descriptor, or its other end is closed
        TimeOver, // the deadline has come
        GaveUp,   // the user no longer wants to wait; the panel goes on with what it has
    };
    // Waits for the descriptor; the dialog lives on meanwhile. Without a deadline there is no limit.
    virtual End waitForInput(int descriptor, std::optional<std::chrono::steady_clock::time_point> deadline) = 0;
    // Whether the panel is to ask the device at this address now.
    virtual bool wantsDevice(std::string_view device) = 0;
    // Tells whether the device answered. `storedSince` is when the stored answer is from, in seconds since 1970; 0 when
    // there is none.
    virtual void deviceAsked(std::string_view device, bool answered, int64_t storedSince) = 0;

protected:
    ~PanelWait() = default;
};

// What is offered in this program or plug-in; null, as at first: nothing. Borrowed.
PanelWait *panelWait();
void setPanelWait(PanelWait *wait);

} // namespace bv
