#pragma once

// Allocations per operation beside each benchmark's timing. The benchmark program links the
// allocation control of the test support, which counts each thread's allocations; the benchmarks
// run on one thread.

#include "AllocationControl.h"

#include <benchmark/benchmark.h>

#include <cstdint>

namespace OrvikBenchmarks {

using Orvik::Testing::AllocationCount;

/// Runs the benchmark loop body `operation` and reports "allocs/op" beside the timing.
template <typename Operation>
void MeasureAllocations(benchmark::State& state, Operation operation)
{
    const uint64_t before = AllocationCount();
    for (auto _ : state)
        operation();
    state.counters["allocs/op"] =
        benchmark::Counter(static_cast<double>(AllocationCount() - before), benchmark::Counter::kAvgIterations);
}

}  // namespace OrvikBenchmarks
