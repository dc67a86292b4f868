// What a batch of the headless tool costs, JSON in and JSON out, and how often it asks for memory.
#include <sstream>

#include <benchmark/benchmark.h>

#include "bench/Allocations.h"
#include "check/Check.h"

namespace tarnvik {

namespace {

// Loads, angles, bolts and connection types in turn; two of three with connectors.
std::string Cases(int count) {
    std::string lines;
    for (int i = 0; i < count; ++i) {
        const int type = 1 + i % 5;
        lines +=
            R"({"P":)" + std::to_string(i % 200 - 100) + R"(.5,"Con_type":)" + std::to_string(type) + R"(,"alp":)" +
            std::to_string(type < 4 ? 15 + i % 70 : 90) + R"(,"Bolt_index":)" + std::to_string(i % 8) +
            R"(,"Ant_index":)" + std::to_string(i % 4) +
            (i % 3 == 0 ? R"(,"Kun_bolt":true,"Med_bulldog":false})" : R"(,"Kun_bolt":false,"Med_bulldog":true})") +
            "\n";
    }
    return lines;
}

void Batch(benchmark::State& bench, const std::vector<std::string>& arguments) {
    const auto count = static_cast<int>(bench.range(0));
    const std::string lines = Cases(count);
    for ([[maybe_unused]] auto _ : bench) {
        std::istringstream in{lines};
        std::ostringstream out;
        std::ostringstream err;
        const long before = Allocations();
        benchmark::DoNotOptimize(Run_check(arguments, TARNVIK_DATA_DIR, in, out, err));
        bench.counters["allocations a line"] = static_cast<double>(Allocations() - before) / count;
        if (!err.view().empty()) {
            bench.SkipWithError("the batch has a line that cannot be read");
            return;
        }
        bench.counters["bytes out"] = static_cast<double>(out.view().size());
    }
    bench.SetItemsProcessed(bench.iterations() * count);
}

BENCHMARK_CAPTURE(Batch, three_fields, {"--batch", "--fields", "uf,Tverr_kontroll,Rd_bolt"})
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Batch, all_fields, {"--batch"})->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Batch, all_fields_and_screen, {"--batch", "--with", "screen"})
    ->Arg(10'000)
    ->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tarnvik
