// What a search over all 7,680 choices of fasteners costs.
#include <benchmark/benchmark.h>

#include "session/Search.h"
#include "tests/support/Calculation.h"

namespace tarnvik {

namespace {

// Members of 48 mm on 48 mm, member 1 double, in tension.
std::unique_ptr<ConnectionState> Joint(const char* height) {
    auto s = test::New_project();
    test::Pick_variant(*s, 1, 2);
    s->P = -12.0F;
    s->Standard = false;
    s->Txt_b1 = s->Txt_b2 = "48";
    s->Txt_h1 = s->Txt_h2 = height;
    return s;
}

void Search_all(benchmark::State& bench, const ConnectionState& joint, bool faults) {
    SearchLimits limits;
    limits.with_connectors = true;
    const SearchResult once = Search_fasteners(joint, limits, true);
    if (once.choices != 7680 || once.found.empty() != faults) {
        bench.SkipWithError("not the choices that are meant");
        return;
    }
    for ([[maybe_unused]] auto _ : bench) {
        benchmark::DoNotOptimize(Search_fasteners(joint, limits, true).holding);
    }
}

void Search(benchmark::State& bench) {
    Search_all(bench, *Joint("223"), false);
}
BENCHMARK(Search)->Unit(benchmark::kMillisecond);

// The members are too low for any: a fault ends every pass that a refused connector does not.
void Search_of_faults(benchmark::State& bench) {
    Search_all(bench, *Joint("30"), true);
}
BENCHMARK(Search_of_faults)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tarnvik
