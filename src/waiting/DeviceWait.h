// SPDX-License-Identifier: GPL-2.0-or-later
// Keeps the window alive while a panel waits for its printer: shows what is being waited for, and lets the user skip
// it.
#pragma once

#include "platform/PanelWait.h"

#include <QEventLoop>
#include <QObject>
#include <chrono>
#include <map>
#include <string>

class QWidget;

namespace bv {

class InputGate;
class WaitPanel;

// The wait runs an event loop of its own inside the panel's call. Only painting and two buttons get through it.
class DeviceWait : public QObject, public PanelWait
{
    Q_OBJECT

public:
    // A device that did not answer is not asked again for this long.
    static constexpr std::chrono::seconds kRest{60};

    // The panel shows the wait and has the button Skip; `cancel` is the dialog's own button. All are borrowed.
    DeviceWait(WaitPanel *panel, InputGate *gate, QWidget *cancel);

    // Panels may wait between these two; at other times they block. `printer` is the name that people know.
    void begin(const QString &printer);
    void end();
    // Ends the wait that is under way. Nothing else is waited for until end().
    void giveUp();

    // The device that a panel asked since begin(), or was kept from asking; empty when there was none.
    const std::string &device() const { return m_device; }
    // A sentence for the user when that device did not answer the last time; empty when it did.
    QString note(const std::string &device) const;

    End waitForInput(int descriptor, std::optional<std::chrono::steady_clock::time_point> deadline) override;
    bool wantsDevice(std::string_view device) override;
    void deviceAsked(std::string_view device, bool answered, int64_t storedSince) override;

private:
    struct Silence
    {
        std::chrono::steady_clock::time_point at; // when it did not answer
        int64_t listedAt = 0; // when it listed its profiles the last time, in seconds since 1970; 0: never
    };

    WaitPanel *m_panel;
    InputGate *m_gate;
    QWidget *m_cancel;
    QEventLoop m_loop;
    std::map<std::string, Silence> m_silent; // devices that did not answer the last time
    std::string m_device;
    QString m_printer;
    bool m_isOn = false;
    bool m_gaveUp = false;
};

} // namespace bv
