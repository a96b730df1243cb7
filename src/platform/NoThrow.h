// SPDX-License-Identifier: GPL-2.0-or-later
// Turns running out of memory into a status. Free of Qt and libcups.
#pragma once

#include "platform/Log.h"

#include <new>
#include <type_traits>

namespace bv {

// Runs the operation and returns its result. When it runs out of memory, writes a line to the diagnostic log and
// returns `failure`. `caller` is a built-in of GCC and clang because clang 14 lacks std::source_location.
template <typename Operation>
std::invoke_result_t<Operation> withoutThrowing(std::type_identity_t<std::invoke_result_t<Operation>> failure,
                                                Operation operation, const char *caller = __builtin_FUNCTION())
{
    try {
        return operation();
    } catch (const std::bad_alloc &) {
        diagnosticLine(std::string("no memory: ") + caller);
        return failure;
    }
}

} // namespace bv
