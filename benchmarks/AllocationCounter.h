#pragma once

// Counts the heap allocations of the benchmark program (its operator new is replaced), so that
// each benchmark can report allocations per operation. The count is kept per thread, without an
// atomic operation that would slow every allocation being timed; the benchmarks run on one thread.

#include <benchmark/benchmark.h>

#include <cstdint>

namespace OrvikBenchmarks {

uint64_t AllocationCount();

/// Runs the benchmark loop body `operation` and reports "allocs/op" beside the timing.
template <typename Operation>
void MeasureAllocations(benchmark::State& state, Operation operation)
{
    const uint64_t before = AllocationCount();
    for (auto _ : state)
        operation();
    state.counters["allocs/op"] = benchmark::Counter(static_cast<double>(AllocationCount() - before),
                                                     benchmark::Counter::kAvgIterations);
}

}  // namespace OrvikBenchmarks
