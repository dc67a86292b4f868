// What a report costs: recorded, and as a PDF file.
#include <memory>

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include "calc/pass/Main_beregn.h"
#include "data/Startup.h"
#include "frontend/painting/QtPrintTarget.h"
#include "frontend/painting/Texts.h"
#include "report/PrintReport.h"
#include "report/Recorder.h"
#include "tests/support/RecordingMessageBox.h"

namespace tarnvik {

namespace {

// The most that a report holds: six bolts with connectors, single shear.
struct Full {
    Full() {
        Start_state(*s, TARNVIK_DATA_DIR, "Nor");
        s->Kun_bolt = false;
        s->Med_bulldog = true;
        s->Bolt_index = 5;
        s->Ant_index = 4;
        test::RecordingMessageBox box;
        complete = Run_pass(*s, &screen, box).end == PassEnd::normal && s->Rd_for > 0.0F;
    }
    void Print(PrintTarget& target) {
        PrintReport(target, *s, {screen.Pic_forbindelse, screen.Pic_av_bolter}, {"21.11.2026", "08:09:10"}, texts);
    }

    std::unique_ptr<ConnectionState> s = std::make_unique<ConnectionState>();
    Screen screen;
    SpacingTexts texts;
    bool complete{};
};

void Report_recorded(benchmark::State& bench) {
    Full full;
    if (!full.complete) {
        bench.SkipWithError("the pass does not run through");
        return;
    }
    for ([[maybe_unused]] auto _ : bench) {
        Recorder recorder;
        full.Print(recorder);
        benchmark::DoNotOptimize(recorder.calls.data());
    }
}
BENCHMARK(Report_recorded)->Unit(benchmark::kMicrosecond);

void Report_pdf(benchmark::State& bench) {
    Full full;
    const QTemporaryDir folder;
    const std::filesystem::path file = U(folder.filePath(QStringLiteral("report.pdf")));
    if (!full.complete || !folder.isValid()) {
        bench.SkipWithError("the pass does not run through");
        return;
    }
    for ([[maybe_unused]] auto _ : bench) {
        full.Print(*Pdf_target(file, "Report"));
    }
    bench.counters["bytes"] = static_cast<double>(std::filesystem::file_size(file));
}
BENCHMARK(Report_pdf)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tarnvik

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application{argc, argv};
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
