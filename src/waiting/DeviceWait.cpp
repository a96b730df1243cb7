// SPDX-License-Identifier: GPL-2.0-or-later
// Waiting for a descriptor in an event loop, and remembering silent devices.
#include "waiting/DeviceWait.h"

#include "waiting/InputGate.h"
#include "waiting/ListingTimes.h"
#include "widgets/WaitPanel.h"

#include <QDateTime>
#include <QLocale>
#include <QPushButton>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <poll.h>

namespace bv {

namespace {

// Most answers come at once, and need no other picture of the window.
constexpr int kBlockingMilliseconds = 30;

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// Milliseconds until the deadline, rounded up; -1 without one.
int timeUntil(const std::optional<Clock::time_point> &deadline)
{
    return deadline ? int(std::max(std::chrono::ceil<milliseconds>(*deadline - Clock::now()), milliseconds(0)).count())
                    : -1;
}

bool hasInput(int descriptor, int limit)
{
    pollfd input = {descriptor, POLLIN, 0};
    return poll(&input, 1, limit) != 0; // an error is for the reader to see
}

} // namespace

DeviceWait::DeviceWait(WaitPanel *panel, InputGate *gate, QWidget *cancel)
    : m_panel(panel), m_gate(gate), m_cancel(cancel)
{
    connect(panel, &WaitPanel::skipped, this, &DeviceWait::giveUp);
}

void DeviceWait::begin(const QString &printer)
{
    m_printer = printer;
    m_isOn = true;
    m_gaveUp = false;
    m_device.clear();
}

void DeviceWait::end()
{
    m_isOn = false;
}

void DeviceWait::giveUp()
{
    m_gaveUp = true;
    m_loop.quit();
}

PanelWait::End DeviceWait::waitForInput(int descriptor, std::optional<Clock::time_point> deadline)
{
    if (m_isOn && m_gaveUp)
        return End::GaveUp;
    const int left = timeUntil(deadline);
    if (!m_isOn)
        return hasInput(descriptor, left) ? End::Input : End::TimeOver;
    if (hasInput(descriptor, left < 0 ? kBlockingMilliseconds : std::min(left, kBlockingMilliseconds)))
        return End::Input;
    const QString sentence = m_device.empty() ? m_panel->text() : tr("Waiting for “%1” to answer…").arg(m_printer);
    m_panel->wait(sentence, tr("S&kip"));
    m_gate->close({m_panel->skipButton(), m_cancel});
    QSocketNotifier input(descriptor, QSocketNotifier::Read);
    connect(&input, &QSocketNotifier::activated, &m_loop, &QEventLoop::quit);
    if (deadline)
        QTimer::singleShot(timeUntil(deadline), &input, [this] { m_loop.quit(); });
    m_loop.exec();
    m_gate->open();
    return m_gaveUp ? End::GaveUp : hasInput(descriptor, 0) ? End::Input : End::TimeOver;
}

bool DeviceWait::wantsDevice(std::string_view device)
{
    if (!m_isOn)
        return true;
    m_device = device;
    const auto silent = m_silent.find(m_device);
    return !m_gaveUp && (silent == m_silent.end() || std::chrono::steady_clock::now() - silent->second.at >= kRest);
}

void DeviceWait::deviceAsked(std::string_view device, bool answered, int64_t storedSince)
{
    const std::string name(device);
    const QString address = QString::fromStdString(name);
    if (answered) {
        m_silent.erase(name);
        rememberListing(address, QDateTime::currentSecsSinceEpoch());
        return;
    }
    // A refresh that fails writes the list as well, so the file's time counts only for the first one.
    const int64_t known = lastListing(address);
    const int64_t listedAt = storedSince == 0 || known == 0 ? storedSince : known;
    if (listedAt != known)
        rememberListing(address, listedAt);
    m_silent[name] = {std::chrono::steady_clock::now(), listedAt};
}

QString DeviceWait::note(const std::string &device) const
{
    const auto silent = m_silent.find(device);
    if (silent == m_silent.end())
        return {};
    if (silent->second.listedAt == 0)
        return tr("The printer did not answer. None of its profiles are known.");
    const QDateTime since = QDateTime::fromSecsSinceEpoch(silent->second.listedAt);
    const QLocale locale;
    return tr("The printer did not answer. Its profiles are shown as of %1, %2.", "date and time")
        .arg(locale.toString(since.date(), tr("d MMMM", "a date in the notation of QLocale")),
             locale.toString(since.time(), QLocale::ShortFormat));
}

} // namespace bv
