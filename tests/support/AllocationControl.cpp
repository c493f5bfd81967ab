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

// The failing allocation of a nothrow new answers null, as a real one does; the caller may then
// go on without it (a stable sort without its buffer), so that failure does not count as thrown.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    if (++allocations == failingAllocation) {
        failingAllocation = 0;
        return nullptr;
    }
    return std::malloc(size == 0 ? 1 : size);
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept { return ::operator new(size, tag); }

void operator delete(void* memory) noexcept { std::free(memory); }

void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

void* operator new[](std::size_t size) { return ::operator new(size); }

void operator delete[](void* memory) noexcept { std::free(memory); }

void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
