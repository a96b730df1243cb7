// SPDX-License-Identifier: GPL-2.0-or-later
// The walk loop: sends GETNEXT from the root of the table on, until the table ends or a limit is reached.
#include "discovery/ProfileWalk.h"

#include "discovery/FencedWalk.h"
#include "discovery/ProfileSpool.h"
#include "discovery/Reconciliation.h"
#include "discovery/SnmpEnvironment.h"
#include "platform/Log.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <csignal>
#include <cstring>
#include <memory>
#include <netinet/in.h>
#include <string>
#include <sys/socket.h>
#include <unistd.h>

char sDEBUGmsg[128];

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;

constexpr char kProgram[] = "snmpwalk";
// Root of a walk whose words name none: the standard objects (mib-2).
constexpr oid kDefaultRoot[] = {1, 3, 6, 1, 2, 1};

constexpr int32_t kWalked = 0;
constexpr int32_t kNotWalked = 1;
constexpr int32_t kDeviceError = 2;

struct WalkOption
{
    const char *name; // in the library's configuration files
    int slot;         // in the library's store, under the application's identifier
    char letter;      // in the option "-C"
};

// clang-format off
constexpr WalkOption kIncludeRequested  = {"includeRequested",  1, 'i'};
constexpr WalkOption kPrintStatistics   = {"printStatistics",   2, 'p'};
constexpr WalkOption kDontCheckOrdering = {"dontCheckOrdering", 3, 'c'};
constexpr WalkOption kOptions[]         = {kIncludeRequested, kPrintStatistics, kDontCheckOrdering};
// clang-format on

bool isOn(const WalkOption &option)
{
    return netsnmp_ds_get_boolean(NETSNMP_DS_APPLICATION_ID, option.slot) != 0;
}

struct FreePdu
{
    void operator()(netsnmp_pdu *pdu) const { snmp_free_pdu(pdu); }
};
using Answer = std::unique_ptr<netsnmp_pdu, FreePdu>;

struct CloseSession
{
    void operator()(netsnmp_session *session) const { snmp_close(session); }
};
using OpenSession = std::unique_ptr<netsnmp_session, CloseSession>;

struct Identifier
{
    std::array<oid, MAX_OID_LEN> parts{};
    size_t length = 0;

    void assign(const oid *from, size_t count)
    {
        length = std::min(count, parts.size());
        std::copy_n(from, length, parts.begin());
    }
    bool beginsWith(const Identifier &root) const
    {
        return length >= root.length && std::equal(root.parts.begin(), root.parts.begin() + root.length, parts.begin());
    }
};

// Sends one request for a name and waits for the answer. Returns the library's status.
int request(netsnmp_session *session, int type, const oid *name, size_t length, Answer *answer)
{
    netsnmp_pdu *pdu = snmp_pdu_create(type);
    netsnmp_pdu *response = nullptr;
    if (!pdu)
        return STAT_ERROR;
    snmp_add_null_var(pdu, name, length);
    const int status = snmp_synch_response(session, pdu, &response);
    answer->reset(response);
    return status;
}

bool isException(u_char type)
{
    return type == SNMP_NOSUCHOBJECT || type == SNMP_NOSUCHINSTANCE || type == SNMP_ENDOFMIBVIEW;
}

// Reads the storage of an identifier as text; of most identifiers that is only the first number, as one byte. The
// message about the order shows it this way on purpose: support searches for that text.
std::string storageText(const Identifier &name)
{
    std::array<char, 256> text{};
    std::memcpy(text.data(), name.parts.data(), std::min(text.size() - 1, name.length * sizeof(oid)));
    return text.data();
}

class Walk
{
public:
    Walk(netsnmp_session *session, const Identifier &root, const bv::WalkLimits &limits)
        : m_session(session), m_root(root), m_name(root), m_answersLeft(limits.answers),
          m_deadline(Clock::now() + limits.time), m_timeout(session->timeout), m_retries(session->retries)
    {}

    int32_t run()
    {
        const bool checkOrder = !isOn(kDontCheckOrdering);
        if (isOn(kIncludeRequested) && patience())
            snmp_get_and_print(m_session, m_root.parts.data(), m_root.length);
        while (m_running)
            step(checkOrder);
        if (numprinted == 0 && m_lastRequest == STAT_SUCCESS && patience())
            snmp_get_and_print(m_session, m_root.parts.data(), m_root.length);
        return m_status;
    }

private:
    // Fits the time-out and retries of the next request into the remaining time. False when no time is left.
    bool patience()
    {
        const long left = std::chrono::duration_cast<microseconds>(m_deadline - Clock::now()).count();
        if (left <= 0)
            return false;
        m_session->timeout = std::min(m_timeout, left);
        const long tries = m_timeout > 0 ? left / m_timeout : 1;
        m_session->retries = static_cast<int>(std::clamp(tries - 1, 0L, static_cast<long>(std::max(m_retries, 0))));
        return true;
    }

    void stop(int32_t status, const std::string &reason)
    {
        m_status = status;
        m_running = false;
        bv::diagnosticLine("Profile walk: " + reason);
    }

    void step(bool checkOrder)
    {
        if (m_answersLeft-- <= 0 || !patience()) {
            stop(kNotWalked, "the printer's table does not end");
            return;
        }
        Answer answer;
        m_lastRequest = request(m_session, SNMP_MSG_GETNEXT, m_name.parts.data(), m_name.length, &answer);
        if (m_lastRequest == STAT_TIMEOUT) {
            stop(kNotWalked, "no answer from the printer");
        } else if (m_lastRequest != STAT_SUCCESS || !answer) {
            snmp_sess_perror(kProgram, m_session);
            stop(kNotWalked, "the request failed");
        } else if (answer->errstat == SNMP_ERR_NOSUCHNAME) {
            m_running = false; // the printer has no further variables (RFC 1157, 4.1.3)
        } else if (answer->errstat != SNMP_ERR_NOERROR) {
            stop(kDeviceError, "the printer answers with error " + std::to_string(answer->errstat));
        } else {
            take(*answer, checkOrder);
        }
    }

    // An answer without any variable counts as the end of the table: another request would bring the same answer.
    void take(const netsnmp_pdu &answer, bool checkOrder)
    {
        bool more = false;
        bool ordered = true;
        for (const netsnmp_variable_list *variable = answer.variables; variable; variable = variable->next_variable) {
            more = false;
            Identifier found;
            found.assign(variable->name, variable->name_length);
            if (!found.beginsWith(m_root))
                continue;
            ++numprinted;
            vSpoolPlist(variable->name, variable->name_length, variable, 0);
            if (isException(variable->type))
                continue;
            if (checkOrder &&
                snmp_oid_compare(m_name.parts.data(), m_name.length, found.parts.data(), found.length) >= 0) {
                std::snprintf(sDEBUGmsg, sizeof(sDEBUGmsg), "[SNMP] Error: OID not increasing: %s >= %s",
                              storageText(m_name).c_str(), storageText(found).c_str());
                ordered = false;
            }
            m_name = found;
            more = true;
        }
        if (!ordered)
            stop(kNotWalked, "the printer's identifiers do not increase");
        else
            m_running = more;
    }

    netsnmp_session *m_session;
    const Identifier m_root;
    Identifier m_name;
    int m_answersLeft;
    const Clock::time_point m_deadline;
    const long m_timeout; // of one try, in microseconds
    const int m_retries;
    int m_lastRequest = STAT_SUCCESS;
    int32_t m_status = kWalked;
    bool m_running = true;
};

// Parses the root that the words name. False, with the reason reported, when it does not parse.
bool parseRoot(int argc, char **argv, int index, Identifier *root)
{
    if (index >= argc) {
        root->assign(kDefaultRoot, std::size(kDefaultRoot));
        return true;
    }
    root->length = root->parts.size();
    if (snmp_parse_oid(argv[index], root->parts.data(), &root->length))
        return true;
    snmp_perror(argv[index]);
    return false;
}

// Makes the kernel drop what does not come from the address and port that were asked. The library itself takes an
// answer from anywhere if its request id fits.
bool listenToPrinterOnly(netsnmp_session *session)
{
    const netsnmp_transport *transport = snmp_sess_transport(snmp_sess_pointer(session));
    int type = 0;
    socklen_t size = sizeof(type);
    if (!transport || getsockopt(transport->sock, SOL_SOCKET, SO_TYPE, &type, &size) != 0)
        return false;
    if (type != SOCK_DGRAM)
        return true; // a stream has one peer
    if (!transport->data || transport->data_length != sizeof(netsnmp_indexed_addr_pair))
        return false;
    const auto *addresses = static_cast<const netsnmp_indexed_addr_pair *>(transport->data);
    const sockaddr *printer = &addresses->remote_addr.sa;
    return connect(transport->sock, printer,
                   printer->sa_family == AF_INET6 ? sizeof(sockaddr_in6) : sizeof(sockaddr_in)) == 0;
}

} // namespace

int32_t bv::walkPrinter(int32_t argc, char **argv, const WalkLimits &limits, void (*sessionOpen)())
{
    for (const WalkOption &option : kOptions)
        netsnmp_ds_register_config(ASN_BOOLEAN, kProgram, option.name, NETSNMP_DS_APPLICATION_ID, option.slot);
    vSpoolPlist(nullptr, 0, nullptr, 1);

    // Static: the parser allocates texts for it that the library offers no function to free.
    static netsnmp_session parsed;
    const int index = snmp_parse_args(argc, argv, &parsed, "C:", optProc);
    if (index < 0) {
        bv::diagnosticLine("Profile walk: the arguments do not parse");
        return index;
    }
    Identifier root;
    if (!parseRoot(argc, argv, index, &root)) {
        bv::diagnosticLine("Profile walk: the root does not parse");
        return kNotWalked;
    }
    const OpenSession session(snmp_open(&parsed));
    if (!session) {
        MyDebugMessage("[UTIL-MIB] SNMP Open Err\n", 0);
        snmp_sess_perror(kProgram, &parsed);
        bv::diagnosticLine("Profile walk: no session with the printer");
        return kNotWalked;
    }
    if (!listenToPrinterOnly(session.get())) {
        bv::diagnosticLine("Profile walk: the printer's address cannot be reached");
        return kNotWalked;
    }
    if (sessionOpen)
        sessionOpen();
    const int32_t status = Walk(session.get(), root, limits).run();
    if (isOn(kPrintStatistics))
        MyDebugMessage(("[UTIL-MIB] Variables found: " + std::to_string(numprinted)).c_str(), 0);
    return status;
}

void snmp_get_and_print(netsnmp_session *session, const oid *name, size_t length)
{
    Answer answer;
    if (request(session, SNMP_MSG_GET, name, length, &answer) != STAT_SUCCESS || !answer ||
        answer->errstat != SNMP_ERR_NOERROR)
        return;
    for (const netsnmp_variable_list *variable = answer->variables; variable; variable = variable->next_variable) {
        ++numprinted;
        print_variable(variable->name, variable->name_length, variable);
    }
}

void optProc(int /*argc*/, char *const * /*argv*/, int option)
{
    if (option != 'C' || !optarg)
        return;
    for (const char *letter = optarg; *letter != '\0'; ++letter) {
        const auto known = std::find_if(std::begin(kOptions), std::end(kOptions),
                                        [letter](const WalkOption &row) { return row.letter == *letter; });
        if (known != std::end(kOptions)) {
            netsnmp_ds_toggle_boolean(NETSNMP_DS_APPLICATION_ID, known->slot);
        } else {
            std::memset(sDEBUGmsg, 0, sizeof(sDEBUGmsg));
            std::snprintf(sDEBUGmsg, sizeof(sDEBUGmsg), "Unknown flag passed to -C: %c\n", *letter);
        }
    }
}

namespace {

// A dialog whose user does not want to wait ends the walk. A list that is just being written is finished first.
class HeldTermination
{
public:
    HeldTermination()
    {
        sigset_t termination;
        sigemptyset(&termination);
        sigaddset(&termination, SIGTERM);
        sigprocmask(SIG_BLOCK, &termination, &m_before);
    }
    ~HeldTermination() { sigprocmask(SIG_SETMASK, &m_before, nullptr); }
    HeldTermination(const HeldTermination &) = delete;
    HeldTermination &operator=(const HeldTermination &) = delete;

private:
    sigset_t m_before = {};
};

} // namespace

int32_t bv::walkProfileTable(int32_t argc, char **argv, const WalkLimits &limits)
{
    prepareSnmpEnvironment();
    const int32_t status = walkBehindFence(argc, argv, limits);
    // Flush, so that the library's output comes before anything that the caller prints.
    std::fflush(stdout);
    const HeldTermination untilTheListIsWritten;
    vRestructPlistSpool2Current(status < 0 ? kNotWalked : status);
    return status;
}

int32_t mib_walk(int32_t argc, char **argv)
{
    return bv::walkProfileTable(argc, argv, {});
}
