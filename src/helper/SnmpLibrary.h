// The SNMP library, loaded when a walk is asked for and not before.
#pragma once

namespace bv {

// Loads the library and finds the functions that the walk calls. False, with the reason on standard error, when that
// fails; then no walk may be begun. To be called before the first of them; the library stays loaded.
bool loadSnmpLibrary();

} // namespace bv
