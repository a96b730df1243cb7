// SPDX-License-Identifier: GPL-2.0-or-later
// Creates the requested session from a PPD file alone or from a queue of the print server.
#pragma once

#include "queues/QueueSession.h"
#include "queues/SessionRequest.h"

namespace bv {

// If the request names a PPD file, no print server is contacted; else this waits for one, up to
// CallControl::kUsualLimit. The sentence of a failure says what to do about it.
Result<std::unique_ptr<QueueSession>> startSession(const SessionRequest &request);

} // namespace bv
