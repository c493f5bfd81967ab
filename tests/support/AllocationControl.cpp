#include "AllocationControl.h"

#include <cstdlib>

namespace {

thread_local uint64_t allocations = 0;
thread_local uint64_t failingAllocation = 0;  // the value of `allocations` that fails; 0: none
thread_local bool failed = false;

}  // namespace

uint64_t Orvik::Testing::AllocationCount() { return allocations; }

void Orvik::Testing::FailAllocation(uint64_t n)
{
    failingAllocation = allocations + n;
    failed = false;
}

bool Orvik::Testing::DisarmAllocationFailure()
{
    failingAllocation = 0;
    return failed;
}

void* operator new(std::size_t size)
{
    if (++allocations == failingAllocation) {
        failingAllocation = 0;
        failed = true;
        throw std::bad_alloc();
    }
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }

void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

void* operator new[](std::size_t size) { return ::operator new(size); }

void operator delete[](void* memory) noexcept { std::free(memory); }

void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
