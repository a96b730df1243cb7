// Out of memory becomes the status of an operation that has one. Free of Qt and libcups.
#pragma once

#include "platform/Log.h"

#include <new>
#include <source_location>
#include <type_traits>

namespace bv {

// The operation's result, or `failure`, with a line in the diagnostic log, when it runs out of memory.
template <typename Operation>
std::invoke_result_t<Operation> withoutThrowing(std::type_identity_t<std::invoke_result_t<Operation>> failure,
                                                Operation operation,
                                                std::source_location where = std::source_location::current())
{
    try {
        return operation();
    } catch (const std::bad_alloc &) {
        diagnosticLine(std::string("no memory: ") + where.function_name());
        return failure;
    }
}

} // namespace bv
