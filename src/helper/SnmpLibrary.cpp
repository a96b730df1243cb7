// The SNMP library, loaded when a walk is asked for and not before: with the cryptography that it brings, it makes the
// start of the helper more than twice as long, and six requests out of seven need none of it. The functions that the
// walk calls are defined here, under the library's own names, and pass each call on; a new one that the walk begins to
// use fails at link time until it has its row and its function.
#include "helper/SnmpLibrary.h"

#include "helper/Diagnostics.h"

#include <dlfcn.h>
#include <string>

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

namespace {

struct Functions
{
    decltype(&::netsnmp_ds_get_boolean) dsGetBoolean;
    decltype(&::netsnmp_ds_register_config) dsRegisterConfig;
    decltype(&::netsnmp_ds_set_boolean) dsSetBoolean;
    decltype(&::netsnmp_ds_toggle_boolean) dsToggleBoolean;
    decltype(&::print_variable) printVariable;
    decltype(&::snmp_add_null_var) addNullVar;
    decltype(&::snmp_close) close;
    decltype(&::snmp_free_pdu) freePdu;
    decltype(&::snmp_oid_compare) oidCompare;
    decltype(&::snmp_open) open;
    decltype(&::snmp_parse_args) parseArgs;
    decltype(&::snmp_parse_oid) parseOid;
    decltype(&::snmp_pdu_create) pduCreate;
    decltype(&::snmp_perror) perror;
    decltype(&::snmp_sess_perror) sessPerror;
    decltype(&::snmp_synch_response) synchResponse;
};

Functions library;

// Stores an address that dlsym(3) found as the function pointer that it is.
template <auto Member> void store(void *address)
{
    library.*Member = reinterpret_cast<decltype(+(library.*Member))>(address);
}

struct FunctionRow
{
    const char *name;
    void (*store)(void *address);
};

// clang-format off
constexpr FunctionRow kFunctions[] = {
    {"netsnmp_ds_get_boolean",     store<&Functions::dsGetBoolean>},
    {"netsnmp_ds_register_config", store<&Functions::dsRegisterConfig>},
    {"netsnmp_ds_set_boolean",     store<&Functions::dsSetBoolean>},
    {"netsnmp_ds_toggle_boolean",  store<&Functions::dsToggleBoolean>},
    {"print_variable",             store<&Functions::printVariable>},
    {"snmp_add_null_var",          store<&Functions::addNullVar>},
    {"snmp_close",                 store<&Functions::close>},
    {"snmp_free_pdu",              store<&Functions::freePdu>},
    {"snmp_oid_compare",           store<&Functions::oidCompare>},
    {"snmp_open",                  store<&Functions::open>},
    {"snmp_parse_args",            store<&Functions::parseArgs>},
    {"snmp_parse_oid",             store<&Functions::parseOid>},
    {"snmp_pdu_create",            store<&Functions::pduCreate>},
    {"snmp_perror",                store<&Functions::perror>},
    {"snmp_sess_perror",           store<&Functions::sessPerror>},
    {"snmp_synch_response",        store<&Functions::synchResponse>},
};
// clang-format on

} // namespace

bool bv::loadSnmpLibrary()
{
    void *handle = dlopen(BV_SNMP_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    for (const FunctionRow &function : kFunctions) {
        void *address = handle ? dlsym(handle, function.name) : nullptr;
        if (!address) {
            const char *reason = dlerror();
            complain(std::string("no SNMP library: ").append(reason ? reason : function.name));
            return false;
        }
        function.store(address);
    }
    return true;
}

extern "C" {

int netsnmp_ds_get_boolean(int store, int which)
{
    return library.dsGetBoolean(store, which);
}

int netsnmp_ds_register_config(u_char type, const char *file, const char *token, int store, int which)
{
    return library.dsRegisterConfig(type, file, token, store, which);
}

int netsnmp_ds_set_boolean(int store, int which, int value)
{
    return library.dsSetBoolean(store, which, value);
}

int netsnmp_ds_toggle_boolean(int store, int which)
{
    return library.dsToggleBoolean(store, which);
}

void print_variable(const oid *name, size_t length, const netsnmp_variable_list *variable)
{
    library.printVariable(name, length, variable);
}

netsnmp_variable_list *snmp_add_null_var(netsnmp_pdu *pdu, const oid *name, size_t length)
{
    return library.addNullVar(pdu, name, length);
}

int snmp_close(netsnmp_session *session)
{
    return library.close(session);
}

void snmp_free_pdu(netsnmp_pdu *pdu)
{
    library.freePdu(pdu);
}

int snmp_oid_compare(const oid *name1, size_t length1, const oid *name2, size_t length2)
{
    return library.oidCompare(name1, length1, name2, length2);
}

netsnmp_session *snmp_open(netsnmp_session *session)
{
    return library.open(session);
}

int snmp_parse_args(int argc, char **argv, netsnmp_session *session, const char *options,
                    void (*option)(int, char *const *, int))
{
    return library.parseArgs(argc, argv, session, options, option);
}

oid *snmp_parse_oid(const char *text, oid *name, size_t *length)
{
    return library.parseOid(text, name, length);
}

netsnmp_pdu *snmp_pdu_create(int type)
{
    return library.pduCreate(type);
}

void snmp_perror(const char *text)
{
    library.perror(text);
}

void snmp_sess_perror(const char *text, netsnmp_session *session)
{
    library.sessPerror(text, session);
}

int snmp_synch_response(netsnmp_session *session, netsnmp_pdu *pdu, netsnmp_pdu **response)
{
    return library.synchResponse(session, pdu, response);
}

} // extern "C"
