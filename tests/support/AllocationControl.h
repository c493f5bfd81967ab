#pragma once

// Counts the heap allocations of the calling thread and makes a chosen one fail. A program that
// uses this links the OrvikAllocationControl library, which replaces the global operator new and
// operator delete; the count is kept per thread, without an atomic operation that would slow
// every allocation of a benchmark.

#include <cstdint>
#include <new>
#include <stdexcept>
#include <string>

namespace Orvik::Testing {

/// Allocations made through operator new by the calling thread so far.
uint64_t AllocationCount();

/// Makes the calling thread's `n`-th allocation from now on throw std::bad_alloc, once.
void FailAllocation(uint64_t n);

/// Disarms FailAllocation; true when the failure it armed has been thrown since.
bool DisarmAllocationFailure();

/// Runs `operation` with its first allocation failing, then its second, and so on, until it
/// completes without meeting the failure. After each failure that reaches here as
/// std::bad_alloc, `afterFailure(n)` runs with nothing armed, to check what the failed attempt
/// left behind. Any other exception passes to the caller, and an operation that completes
/// although its allocation threw (it swallowed std::bad_alloc) makes this throw
/// std::logic_error. A failing nothrow new answers null, and the operation may go on without it. Returns the number of
/// failures injected, which is the number of allocations the completed run made.
template <typename Operation, typename AfterFailure>
uint64_t FailEachAllocationInTurn(Operation operation, AfterFailure afterFailure)
{
    for (uint64_t n = 1;; ++n) {
        FailAllocation(n);
        try {
            operation();
        } catch (const std::bad_alloc&) {
            DisarmAllocationFailure();
            afterFailure(n);
            continue;
        } catch (...) {
            DisarmAllocationFailure();
            throw;
        }
        if (DisarmAllocationFailure())
            throw std::logic_error("allocation " + std::to_string(n) + " failed but the operation completed");
        return n - 1;
    }
}

}  // namespace Orvik::Testing
