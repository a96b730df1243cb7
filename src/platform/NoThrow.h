// Out of memory becomes the status of an operation that has one. Free of Qt and libcups.
#pragma once

#include "platform/Log.h"

#include <new>
#include <type_traits>

namespace bv {

// The operation's result, or `failure`, with a line in the diagnostic log, when it runs out of memory.
// The caller names itself by a built-in of GCC and clang; clang 14 has no std::source_location.
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
