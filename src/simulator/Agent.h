// SPDX-License-Identifier: GPL-2.0-or-later
// The SNMP agent of the simulated printer, built on the Net-SNMP agent library. The library has global state, so a
// process can have only one agent.
#pragma once

#include "simulator/Fault.h"

#include <functional>
#include <string>

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>
#include <net-snmp/agent/net-snmp-agent-includes.h>

namespace sim {

class Agent
{
public:
    // Borrows the fault's row. Null for a printer without a fault.
    explicit Agent(const Fault *fault);
    ~Agent();
    Agent(const Agent &) = delete;
    Agent &operator=(const Agent &) = delete;

    // Opens a UDP port on an IPv4 or IPv6 address; port 0 means any free port. On a failure returns false and sets
    // *problem to a sentence.
    bool listen(const std::string &address, int port, std::string *problem);
    // The open port.
    int port() const { return m_port; }

    // Replaces the rows that are served.
    void serve(std::span<const ProfileRow> rows);

    // Calls `readable` from inside run() whenever the descriptor can be read.
    void watch(int descriptor, std::function<void()> readable);

    // Answers requests until stop() is called from a callback of watch(), or until the fault ends the program.
    void run();
    void stop() { m_stopped = true; }

    // Number of datagrams received.
    long requests() const { return m_requests; }

private:
    static int handleRequests(netsnmp_mib_handler *handler, netsnmp_handler_registration *registration,
                              netsnmp_agent_request_info *info, netsnmp_request_info *requests);
    static int receive(netsnmp_transport *transport, void *bytes, int size, void **opaque, int *opaqueLength);
    static int send(netsnmp_transport *transport, const void *bytes, int size, void **opaque, int *opaqueLength);

    void answerGet(netsnmp_agent_request_info *info, netsnmp_request_info *request) const;
    void answerGetNext(netsnmp_agent_request_info *info, netsnmp_request_info *request);

    const Fault *m_fault;
    Cells m_cells;
    std::function<void()> m_readable;
    int (*m_libraryReceive)(netsnmp_transport *, void *, int, void **, int *) = nullptr;
    int (*m_librarySend)(netsnmp_transport *, const void *, int, void **, int *) = nullptr;
    int m_port = 0;
    long m_requests = 0;
    bool m_stopped = false;
    bool m_emptyNextAnswer = false;
};

} // namespace sim
