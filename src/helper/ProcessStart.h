// SPDX-License-Identifier: GPL-2.0-or-later
// Prepares the helper's own process before a request is read.
#pragma once

namespace bv {

// Opens /dev/null for missing standard descriptors, so that no list file gets their numbers. Ignores SIGPIPE and
// SIGXFSZ, so that a closed output or a file size limit is an error and does not kill the process. If real and
// effective ids differ, clears the environment and drops the effective ids for good; then only the rights of the real
// user count. False on a failure; the process must then do nothing.
bool prepareProcess();

} // namespace bv
