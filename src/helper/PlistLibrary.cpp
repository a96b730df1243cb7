// The library for property lists, loaded when it is needed first: only a walk reads lists as such, and with the
// mathematics that it brings, the library is a third of what the helper adds to the start of an empty program. Its
// functions are defined here, under its own names, and pass each call on.
#include "helper/PlistLibrary.h"

#include "helper/Diagnostics.h"

#include <dlfcn.h>
#include <string>

#include <plist/plist.h>

namespace {

// What dlsym(3) found, as the function pointer that it is.
struct Address
{
    void *address;
    template <typename Function> operator Function() const // NOLINT(google-explicit-constructor): for initialisers
    {
        return reinterpret_cast<Function>(address);
    }
};

class Library
{
public:
    void *const handle = dlopen(BV_PLIST_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    std::string problem = handle ? std::string() : dlerror(); // empty: all is there

    decltype(&::plist_copy) copy = find("plist_copy");
    decltype(&::plist_dict_get_item) dictGetItem = find("plist_dict_get_item");
    decltype(&::plist_dict_set_item) dictSetItem = find("plist_dict_set_item");
    decltype(&::plist_free) free = find("plist_free");
    decltype(&::plist_from_xml) fromXml = find("plist_from_xml");
    decltype(&::plist_get_node_type) getNodeType = find("plist_get_node_type");
    decltype(&::plist_get_real_val) getRealVal = find("plist_get_real_val");
    decltype(&::plist_get_string_ptr) getStringPtr = find("plist_get_string_ptr");
    decltype(&::plist_get_uint_val) getUintVal = find("plist_get_uint_val");
    decltype(&::plist_new_dict) newDict = find("plist_new_dict");
    decltype(&::plist_new_string) newString = find("plist_new_string");
    decltype(&::plist_new_uint) newUint = find("plist_new_uint");
    decltype(&::plist_to_xml) toXml = find("plist_to_xml");
    decltype(&::plist_to_xml_free) toXmlFree = find("plist_to_xml_free");

private:
    Address find(const char *name)
    {
        void *address = handle ? dlsym(handle, name) : nullptr;
        if (!address && problem.empty())
            problem = name;
        return {address};
    }
};

const Library &library()
{
    static const Library loaded;
    return loaded;
}

} // namespace

bool bv::loadPlistLibrary()
{
    if (!library().problem.empty())
        complain("no library for property lists: " + library().problem);
    return library().problem.empty();
}

extern "C" {

plist_t plist_copy(plist_t node)
{
    return library().copy(node);
}

plist_t plist_dict_get_item(plist_t node, const char *key)
{
    return library().dictGetItem(node, key);
}

void plist_dict_set_item(plist_t node, const char *key, plist_t item)
{
    library().dictSetItem(node, key, item);
}

void plist_free(plist_t plist)
{
    library().free(plist);
}

void plist_from_xml(const char *xml, uint32_t length, plist_t *plist)
{
    library().fromXml(xml, length, plist);
}

plist_type plist_get_node_type(plist_t node)
{
    return library().getNodeType(node);
}

void plist_get_real_val(plist_t node, double *value)
{
    library().getRealVal(node, value);
}

const char *plist_get_string_ptr(plist_t node, uint64_t *length)
{
    return library().getStringPtr(node, length);
}

void plist_get_uint_val(plist_t node, uint64_t *value)
{
    library().getUintVal(node, value);
}

plist_t plist_new_dict()
{
    return library().newDict();
}

plist_t plist_new_string(const char *value)
{
    return library().newString(value);
}

plist_t plist_new_uint(uint64_t value)
{
    return library().newUint(value);
}

void plist_to_xml(plist_t plist, char **xml, uint32_t *length)
{
    library().toXml(plist, xml, length);
}

void plist_to_xml_free(char *xml)
{
    library().toXmlFree(xml);
}

} // extern "C"
