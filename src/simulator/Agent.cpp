// SPDX-License-Identifier: GPL-2.0-or-later
// Serves the cells of the profile table with the agent library.
#include "simulator/Agent.h"

#include "simulator/Wire.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <thread>
#include <utility>

#include <netinet/in.h>
#include <sys/socket.h>

#include <net-snmp/library/fd_event_manager.h>

extern "C" void add_to_init_list(char *module);

namespace sim {

namespace {

constexpr char kProgram[] = "ql70sim";
constexpr std::chrono::milliseconds kSlowAnswer{100};

Agent *theAgent = nullptr;

Misbehaviour misbehaviourOf(const Fault *fault)
{
    return fault ? fault->misbehaviour : Misbehaviour::None;
}

void setCell(netsnmp_request_info *request, const Cell &cell)
{
    netsnmp_variable_list *variable = request->requestvb;
    snmp_set_var_objid(variable, cell.name.data(), cell.name.size());
    if (cell.type == ASN_INTEGER)
        snmp_set_var_typed_integer(variable, ASN_INTEGER, cell.number);
    else
        snmp_set_var_typed_value(variable, cell.type, cell.text.data(), cell.text.size());
}

std::span<const oid> requestedName(const netsnmp_request_info *request)
{
    return {request->requestvb->name, request->requestvb->name_length};
}

// The port that a socket is bound to, or 0 on a failure.
int boundPort(int socket)
{
    sockaddr_storage address{};
    socklen_t length = sizeof(address);
    if (getsockname(socket, reinterpret_cast<sockaddr *>(&address), &length) != 0)
        return 0;
    return ntohs(address.ss_family == AF_INET6 ? reinterpret_cast<const sockaddr_in6 &>(address).sin6_port
                                               : reinterpret_cast<const sockaddr_in &>(address).sin_port);
}

} // namespace

Agent::Agent(const Fault *fault) : m_fault(fault)
{
    theAgent = this;
    // Loads no MIB files, searches none of the library's folders, and writes nothing to its persistent folder.
    for (const char *variable : {"MIBS", "MIBDIRS"})
        setenv(variable, "", 1);
    setenv("SNMP_PERSISTENT_DIR", "/dev/null", 1);
    for (const int flag : {NETSNMP_DS_LIB_DONT_READ_CONFIGS, NETSNMP_DS_LIB_DISABLE_PERSISTENT_LOAD,
                           NETSNMP_DS_LIB_DISABLE_PERSISTENT_SAVE})
        netsnmp_ds_set_boolean(NETSNMP_DS_LIBRARY_ID, flag, 1);
    netsnmp_ds_set_boolean(NETSNMP_DS_APPLICATION_ID, NETSNMP_DS_AGENT_ROLE, 0); // master agent, not a subagent
    netsnmp_ds_set_boolean(NETSNMP_DS_APPLICATION_ID, NETSNMP_DS_AGENT_DONT_LOG_TCPWRAPPERS_CONNECTS, 1);
    // Only the access control module is needed. Other modules would open ports of their own.
    static char module[] = "vacm_conf";
    add_to_init_list(module);
    init_agent(kProgram);
    const std::span<const oid> root = printerRoot();
    netsnmp_register_handler(
        netsnmp_create_handler_registration("profiles", handleRequests, root.data(), root.size(), HANDLER_CAN_RONLY));
    for (const char *line :
         {"rocommunity mirror default .1.3.6.1.4.1.39847", "rocommunity6 mirror default .1.3.6.1.4.1.39847"}) {
        std::string text(line);
        netsnmp_config(text.data());
    }
    init_snmp(kProgram);
}

Agent::~Agent()
{
    snmp_shutdown(kProgram);
    theAgent = nullptr;
}

bool Agent::listen(const std::string &address, int port, std::string *problem)
{
    const bool version6 = address.find(':') != std::string::npos;
    const std::string place =
        version6 ? "udp6:[" + address + "]:" + std::to_string(port) : "udp:" + address + ":" + std::to_string(port);
    netsnmp_transport *transport = netsnmp_transport_open_server(kProgram, place.c_str());
    if (!transport) {
        *problem = "cannot listen on " + place;
        return false;
    }
    // The library reads and writes datagrams through these functions. They are replaced to count requests and to change
    // answers.
    m_libraryReceive = transport->f_recv;
    m_librarySend = transport->f_send;
    transport->f_recv = receive;
    transport->f_send = send;
    m_port = boundPort(transport->sock);
    if (netsnmp_register_agent_nsap(transport) == 0) {
        *problem = "the agent library refuses " + place;
        return false;
    }
    return true;
}

void Agent::serve(std::span<const ProfileRow> rows)
{
    m_cells = cellsOf(rows);
    if (m_fault && m_fault->alter)
        m_fault->alter(&m_cells);
}

void Agent::watch(int descriptor, std::function<void()> readable)
{
    m_readable = std::move(readable);
    register_readfd(
        descriptor, [](int, void *agent) { static_cast<Agent *>(agent)->m_readable(); }, this);
}

void Agent::run()
{
    while (!m_stopped)
        agent_check_and_process(1);
}

int Agent::receive(netsnmp_transport *transport, void *bytes, int size, void **opaque, int *opaqueLength)
{
    const int length = theAgent->m_libraryReceive(transport, bytes, size, opaque, opaqueLength);
    if (length > 0)
        ++theAgent->m_requests;
    return length;
}

int Agent::send(netsnmp_transport *transport, const void *bytes, int size, void **opaque, int *opaqueLength)
{
    const Misbehaviour misbehaviour = misbehaviourOf(theAgent->m_fault);
    if (misbehaviour == Misbehaviour::Silent)
        return size;
    if (misbehaviour == Misbehaviour::Slow)
        std::this_thread::sleep_for(kSlowAnswer);
    if (!std::exchange(theAgent->m_emptyNextAnswer, false))
        return theAgent->m_librarySend(transport, bytes, size, opaque, opaqueLength);
    const std::vector<u_char> empty = withoutVariables({static_cast<const u_char *>(bytes), static_cast<size_t>(size)});
    theAgent->m_librarySend(transport, empty.data(), static_cast<int>(empty.size()), opaque, opaqueLength);
    return size;
}

int Agent::handleRequests(netsnmp_mib_handler * /*handler*/, netsnmp_handler_registration * /*registration*/,
                          netsnmp_agent_request_info *info, netsnmp_request_info *requests)
{
    for (netsnmp_request_info *request = requests; request; request = request->next) {
        if (request->processed)
            continue;
        if (info->mode == MODE_GET)
            theAgent->answerGet(info, request);
        else if (info->mode == MODE_GETNEXT)
            theAgent->answerGetNext(info, request);
        else
            netsnmp_set_request_error(info, request, SNMP_ERR_NOTWRITABLE);
    }
    return SNMP_ERR_NOERROR;
}

void Agent::answerGet(netsnmp_agent_request_info *info, netsnmp_request_info *request) const
{
    if (const Cell *cell = findCell(m_cells, requestedName(request)))
        setCell(request, *cell);
    else
        netsnmp_set_request_error(info, request, SNMP_NOSUCHINSTANCE);
}

void Agent::answerGetNext(netsnmp_agent_request_info *info, netsnmp_request_info *request)
{
    const Step step = nextStep(m_cells, misbehaviourOf(m_fault), requestedName(request));
    switch (step.kind) {
    case Step::Found:
        setCell(request, step.cell);
        break;
    case Step::Empty:
        m_emptyNextAnswer = true;
        setCell(request, step.cell);
        break;
    case Step::Error:
        netsnmp_set_request_error(info, request, SNMP_ERR_GENERR);
        break;
    case Step::Die:
        std::_Exit(0); // ends without an answer
    case Step::End:
        break; // unchanged: the library then answers noSuchName, as version 1 wants
    }
}

} // namespace sim
