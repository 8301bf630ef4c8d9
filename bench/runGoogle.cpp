#include "bench/allocations.h"
#include "bench/measure.h"

#include <benchmark/benchmark.h>

// The main program of the benchmarks, with Google Benchmark and its options.

void Pelmora::Bench::add(std::string name, Batch batch)
{
    benchmark::RegisterBenchmark(name.c_str(), [batch = std::move(batch)](benchmark::State& state) {
        const std::size_t before = allocationCount();
        while (state.KeepRunningBatch(state.max_iterations))
            batch(state.max_iterations);
        state.counters["allocations"] = benchmark::Counter(
            static_cast<double>(allocationCount() - before), benchmark::Counter::kAvgIterations);
    });
}

BENCHMARK_MAIN();
