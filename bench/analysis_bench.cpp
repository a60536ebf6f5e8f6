// Timing of a full analysis run on a beam filled to the feature limits, and its heap allocations.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <new>

#include "analysis/run.h"
#include "model/beam_model.h"
#include "model/features.h"

namespace {

// Counts every allocation of the program, so a run can be shown to allocate nothing.
long allocation_count = 0;

}  // namespace

void* operator new(std::size_t size) {
    ++allocation_count;
    if (void* block = std::malloc(size == 0 ? 1 : size)) return block;
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

namespace {

using flexley::BeamModel;

constexpr double kLength = 240.0;

// Loads spread along the beam with varied magnitudes; couples and point loads avoid the supports.
void add_loads(BeamModel& model) {
    for (int k = 0; k < 50; ++k) {
        const double at = kLength * (k + 0.37) / 50.0;
        flexley::add_point_load(model, 100.0 + 17.0 * k, at, "in", "lb");
        flexley::add_moment(model, (k % 2 == 0 ? 1.0 : -1.0) * (500.0 + 31.0 * k),
                            kLength * (k + 0.61) / 50.0, "in", "pi");
        const double start = kLength * k / 60.0;
        flexley::add_distributed_load(model, start, start + kLength / 6.0, 2.0 + 0.1 * k,
                                      5.0 - 0.05 * k, "in", "pi");
    }
}

// 20 supports: with `fixed_ends` a fixed support at each end and 18 simple ones between,
// otherwise 20 simple supports.
BeamModel make_beam(bool fixed_ends) {
    BeamModel model;
    model.beam_length = kLength;
    model.moment_of_inertia = 100.0f;
    model.elastic_modulus = 29.0e6f;
    model.fibre_distance = 5.0f;
    add_loads(model);
    const int simple_first = fixed_ends ? 1 : 0;
    const int simple_last = fixed_ends ? 18 : 19;
    if (fixed_ends) flexley::add_support(model, 0.0, "cant", "in", "lb");
    for (int j = simple_first; j <= simple_last; ++j) {
        flexley::add_support(model, kLength * j / 19.0, "simp", "in", "lb");
    }
    if (fixed_ends) flexley::add_support(model, kLength, "cant", "in", "lb");
    return model;
}

// Arguments: the resolution, then the integration method (0 exact, 1 trapezoid).
void run_benchmark(benchmark::State& state, bool fixed_ends) {
    BeamModel model = make_beam(fixed_ends);
    if (model.feature_count != flexley::kMaxFeatures) {
        state.SkipWithError("the benchmark beam lost features to the model's checks");
        return;
    }
    model.resolution = static_cast<float>(state.range(0));
    model.integration_method = state.range(1) == 0 ? flexley::IntegrationMethod::exact
                                                   : flexley::IntegrationMethod::trapezoid;
    const flexley::ContinueQuestion stop = [] { return false; };
    if (!flexley::run_calculation(model, stop).ok()) {
        state.SkipWithError("the benchmark beam does not solve");
        return;
    }
    long allocations = 0;
    for (auto _ : state) {
        const long before = allocation_count;
        const flexley::Status status = flexley::run_calculation(model, stop);
        allocations += allocation_count - before;
        benchmark::DoNotOptimize(status.ok());
        benchmark::DoNotOptimize(model.max_deflection);
    }
    state.counters["allocations_per_run"] =
        benchmark::Counter(static_cast<double>(allocations), benchmark::Counter::kAvgIterations);
}

void BM_RunFixedEnds(benchmark::State& state) {
    run_benchmark(state, true);
}
void BM_RunSimpleSupports(benchmark::State& state) {
    run_benchmark(state, false);
}

BENCHMARK(BM_RunFixedEnds)
    ->ArgsProduct({{10000, 200000}, {0, 1}})
    ->ArgNames({"N", "trapezoid"})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RunSimpleSupports)
    ->ArgsProduct({{10000, 200000}, {0, 1}})
    ->ArgNames({"N", "trapezoid"})
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
