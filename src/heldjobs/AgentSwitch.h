// SPDX-License-Identifier: GPL-2.0-or-later
// Switches the agent on and off for a user, and keeps it to one in a session.
#pragma once

#include "platform/FileDescriptor.h"

#include <QString>
#include <sys/types.h>
#include <vector>

namespace bv {

// The user's file that starts the agent with each session (freedesktop.org, Desktop Application Autostart):
// XDG_CONFIG_HOME where that is an absolute path, else ~/.config.
QString agentAutostartFile();

// Writes that file for a program, and removes it. Each returns a sentence for the user on a failure.
QString switchAgentOn(const QString &program);
QString switchAgentOff();

// The processes of the user's agents, in all of his sessions on this computer.
std::vector<pid_t> runningAgents();

// Holds the place of this session's agent while it exists; a process that ends gives it back.
class AgentPlace
{
public:
    AgentPlace();
    // False: another agent has the place, or there is no folder to mark it in.
    explicit operator bool() const { return bool(m_file); }

private:
    FileDescriptor m_file;
};

} // namespace bv
