// Keeps the one exception that can arise here, no memory, inside the operations: it becomes their failure result.
#pragma once

#include "platform/Log.h"

#include <cstdint>
#include <new>

namespace bv {

template <typename Operation> int32_t withoutThrowing(int32_t failure, Operation operation)
{
    try {
        return operation();
    } catch (const std::bad_alloc &) {
        diagnosticLine("no memory for an operation on the profile lists");
        return failure;
    }
}

} // namespace bv
