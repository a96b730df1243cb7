// The SNMP agent of the simulated printer on the agent library. The library is global, so one agent a process.
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
    // Borrows the fault's row; null: the printer behaves.
    explicit Agent(const Fault *fault);
    ~Agent();
    Agent(const Agent &) = delete;
    Agent &operator=(const Agent &) = delete;

    // Opens the UDP port (0: a free one) on an IPv4 or IPv6 address. False, with a sentence, when it cannot.
    bool listen(const std::string &address, int port, std::string *problem);
    // The port that is open.
    int port() const { return m_port; }

    // Serves these rows from now on.
    void serve(std::span<const ProfileRow> rows);

    // Calls back when the descriptor can be read, from inside run.
    void watch(int descriptor, std::function<void()> readable);

    // Answers requests until stop is called, from a call-back of watch, or the fault ends it.
    void run();
    void stop() { m_stopped = true; }

    // Datagrams that came in so far.
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
