// What composing a sketch costs: all 35 cases, for either sign, in the window's room and in that of the report.
#include <benchmark/benchmark.h>

#include "spacing/Catalogue.h"
#include "spacing/sketch/Sketch.h"

namespace tarnvik {

namespace {

// Width and height of the room in pixels. An iteration is one sketch.
void Compose_sketch(benchmark::State& state) {
    const auto width = static_cast<double>(state.range(0));
    const auto height = static_cast<double>(state.range(1));
    int next = 0;
    for (auto _ : state) {
        const Sketch sketch = Draw_sketch(next / 2, next % 2 == 1, width, height);
        if (!sketch.fits) {
            state.SkipWithError("a sketch does not fit");
            return;
        }
        benchmark::DoNotOptimize(sketch.drawing.shapes.data());
        next = (next + 1) % (2 * case_count);
    }
}
BENCHMARK(Compose_sketch)->Args({264, 165})->Args({246, 255})->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tarnvik
