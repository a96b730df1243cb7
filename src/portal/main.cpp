// SPDX-License-Identifier: GPL-2.0-or-later
// bvportal: the print dialog for programs that print through the desktop portal.
#include "platform/FileDescriptor.h"
#include "portal/DialogProcess.h"
#include "portal/PortalSwitch.h"
#include "portal/PrintBackend.h"
#include "queues/BackgroundCall.h"
#include "queues/Complaint.h"

#include <QCoreApplication>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>

namespace {

constexpr int kBadStart = 2;
constexpr std::chrono::seconds kIdle{60};

constexpr char kHelp[] = "Usage: bvportal on|off|status\n"
                         "Switches on or off, for you, that programs which print through the desktop portal show\n"
                         "bvprint's dialog; says whether it is on.\n\n"
                         "Exit status: 0 done, or it is on; 1 it is off; 2 bad arguments, or it cannot be switched.\n"
                         "The message bus starts \"bvportal --service [SECONDS]\", which ends when nobody has printed\n"
                         "for so long.\n";

int say(const bv::Result<QString> &outcome)
{
    if (!outcome) {
        bv::complain(outcome.error());
        return kBadStart;
    }
    return bv::tell(outcome.value() + u'\n') ? 0 : 1;
}

int runService(int argc, char **argv, std::chrono::milliseconds idle)
{
    const QCoreApplication application(argc, argv);
    bv::PrintBackend backend(QDBusConnection::sessionBus(), idle);
    if (!backend.start()) {
        bv::complain(QStringLiteral("There is no message bus, or another bvportal serves it already."));
        return kBadStart;
    }
    return QCoreApplication::exec();
}

// Zero when the text is no number of seconds.
int secondsOf(const char *text)
{
    constexpr int kMost = 86400;
    const int seconds = QByteArray(text).toInt();
    return seconds > 0 && seconds <= kMost ? seconds : 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (!bv::openStandardDescriptors(O_RDONLY))
        return kBadStart;
    const QByteArray word(argc > 1 ? argv[1] : "");
    std::signal(SIGPIPE, SIG_IGN);
    if (argc == 2 && word == "--dialog") {
        const int status = bv::runDialogProcess(argv[0]);
        // A call to a print server that hangs must not hold up the end.
        if (!bv::detachedThreadsEnded()) {
            std::fflush(nullptr);
            std::_Exit(status);
        }
        return status;
    }
    if (word == "--service" && argc <= 3) {
        const int seconds = argc == 3 ? secondsOf(argv[2]) : int(kIdle.count());
        if (seconds != 0)
            return runService(argc, argv, std::chrono::seconds(seconds));
    }
    const QCoreApplication application(argc, argv);
    const bv::PortalSwitch portal;
    if (argc == 2 && word == "on")
        return say(portal.switchOn());
    if (argc == 2 && word == "off")
        return say(portal.switchOff());
    if (argc == 2 && word == "status") {
        bv::tell(portal.isOn() ? QStringLiteral("on\n") : QStringLiteral("off\n"));
        return portal.isOn() ? 0 : 1;
    }
    if (argc == 2 && word == "--help")
        return bv::tell(QString::fromLatin1(kHelp)) ? 0 : 1;
    if (argc == 2 && word == "--version")
        return bv::tell(QStringLiteral("bvportal " BVPRINT_VERSION "\n")) ? 0 : 1;
    bv::complain(QStringLiteral("bvportal takes one word: on, off or status. See bvportal --help."));
    return kBadStart;
}
