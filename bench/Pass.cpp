// What one whole pass costs, alone and with what the window shows.
#include <memory>

#include <benchmark/benchmark.h>

#include "calc/pass/Main_beregn.h"
#include "data/Startup.h"
#include "spacing/Catalogue.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik {

namespace {

// A new project with bolts and connectors that fit, member 1 double.
std::unique_ptr<ConnectionState> Connection() {
    auto s = std::make_unique<ConnectionState>();
    Start_state(*s, TARNVIK_DATA_DIR, "Eng");
    s->Kun_bolt = false;
    s->Med_bulldog = true;
    s->enk_1 = false;
    s->dob_1 = true;
    s->Standard = false;
    s->Txt_b1 = "48.0";
    s->Txt_h1 = "400.0";
    s->Txt_b2 = "98.0";
    s->Txt_h2 = "400.0";
    return s;
}

void Choose(ConnectionState& s, const CaseRow& row) {
    // Row of the list 1, 2, 3, 4, 6.
    s.Ant_index = static_cast<std::int16_t>(row.n_bolt == 6 ? 4 : row.n_bolt - 1);
    s.Con_type = static_cast<std::int16_t>(row.type - '0');
    s.alp = s.Con_type == 4 || s.Con_type == 5 ? 90.0F : 25.0F;
    s.Bolt_ab = std::string_view{&row.letter, 1};
}

bool Complete(const ConnectionState& s, const PassResult& result) {
    return result.end == PassEnd::normal && s.uf > 0.0F && s.Rd_for > 0.0F && s.F90_Rd > 0.0F && s.Sa1 > 0.0F &&
           s.Ca1 > 0.0F;
}

void One_case(benchmark::State& bench, Screen* screen, std::string_view code) {
    const auto s = Connection();
    Choose(*s, case_table.at(static_cast<std::size_t>(Find_case(code))));
    test::RecordingMessageBox box;
    if (!Complete(*s, Run_pass(*s, screen, box))) {
        bench.SkipWithError("the pass does not run through");
        return;
    }
    for ([[maybe_unused]] auto _ : bench) {
        const PassResult result = Run_pass(*s, screen, box);
        benchmark::DoNotOptimize(result.end);
        benchmark::DoNotOptimize(s->uf);
        benchmark::ClobberMemory();
    }
}

// Four bolts in two rows: the case that a new project is nearest to.
void Pass(benchmark::State& bench) {
    One_case(bench, nullptr, "1.4. ");
}
BENCHMARK(Pass);

// The case with the most distances.
void Pass_six_bolts(benchmark::State& bench) {
    One_case(bench, nullptr, "5.6.b");
}
BENCHMARK(Pass_six_bolts);

void Pass_with_screen(benchmark::State& bench) {
    Screen screen;
    One_case(bench, &screen, "1.4. ");
}
BENCHMARK(Pass_with_screen);

void Pass_six_bolts_with_screen(benchmark::State& bench) {
    Screen screen;
    One_case(bench, &screen, "5.6.b");
}
BENCHMARK(Pass_six_bolts_with_screen);

} // namespace

} // namespace tarnvik
