// The library for property lists, loaded when a walk is asked for and not before.
#pragma once

namespace bv {

// Loads the library and finds the functions that the lists are read and written with. False, with the reason on
// standard error, when that fails; then no list may be read. The library stays loaded.
bool loadPlistLibrary();

} // namespace bv
