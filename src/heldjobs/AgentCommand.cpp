// SPDX-License-Identifier: GPL-2.0-or-later
// Switches, and the agent's event loop.
#include "heldjobs/AgentCommand.h"

#include "heldjobs/AgentSwitch.h"
#include "heldjobs/JobAgent.h"
#include "queues/Complaint.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QProcess>
#include <QSessionManager>
#include <csignal>

namespace bv {

namespace {

constexpr int kBadStart = 2;

QString tr(const char *text)
{
    return QCoreApplication::translate("AgentCommand", text);
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

} // namespace

int switchAgent(const QString &word)
{
    const QString program = QCoreApplication::applicationFilePath();
    const bool isOn = word == u"on";
    const QString problem = isOn ? switchAgentOn(program) : switchAgentOff();
    if (!problem.isEmpty()) {
        complain(problem);
        return kBadStart;
    }
    if (!isOn) {
        for (const pid_t agent : runningAgents())
            kill(agent, SIGTERM);
        tell(tr("The print dialog no longer opens by itself for your waiting jobs.\n"));
    } else if (hasDisplay() && QProcess::startDetached(program, {QStringLiteral("--agent"), QStringLiteral("run")})) {
        tell(tr(
            "The print dialog opens for your jobs that the print server holds, from now on and in later sessions.\n"));
    } else {
        tell(tr("The print dialog opens for your jobs that the print server holds, from your next session on.\n"));
    }
    return 0;
}

int runAgent()
{
    const AgentPlace place;
    if (!place) {
        complain(tr("The agent runs in this session already."));
        return kBadStart;
    }
    // The autostart file alone decides whether it comes back.
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, qGuiApp,
                     [](QSessionManager &session) { session.setRestartHint(QSessionManager::RestartNever); });
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const JobAgent agent(QCoreApplication::applicationFilePath());
    return QCoreApplication::exec();
}

} // namespace bv
