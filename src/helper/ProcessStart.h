// What the helper does to its own process before it looks at a request.
#pragma once

namespace bv {

// Opens /dev/null in the place of missing standard descriptors, so that no list file becomes one of them; ignores
// SIGPIPE and SIGXFSZ, so that a lost reader or a file size limit is an error and no sudden end. Where real and
// effective ids differ, empties the environment and gives the effective ids up for good: what a caller may do is
// what the folder grants to him. False when that fails; then nothing may be done.
bool prepareProcess();

} // namespace bv
