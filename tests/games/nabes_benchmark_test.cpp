// The game's work in one event, which must stay far below the 1 ms timers' period.
// Run by hand: bench_nabes

#include "games/nabes_state.h"

#include <benchmark/benchmark.h>

namespace zafro::nabes {
namespace {

// A key with a shot: both shots' whole flight and the hit tests, on a fresh game.
void teclaConDisparo(benchmark::State &state)
{
    NabesState inicial;
    inicial.formLoad();
    for (auto _ : state) {
        NabesState juego = inicial;
        benchmark::DoNotOptimize(juego.keyDown(TeclaA, 0));
        benchmark::DoNotOptimize(juego.label1);
    }
}
BENCHMARK(teclaConDisparo);

// One tick of the big shot in the ship's row: a flight of about 1,300 steps.
void balas(benchmark::State &state)
{
    NabesState juego;
    juego.boss.top = juego.nave1.top;
    for (auto _ : state) {
        juego.balasTimer();
        benchmark::DoNotOptimize(juego.estela3.left);
    }
}
BENCHMARK(balas);

} // namespace
} // namespace zafro::nabes

BENCHMARK_MAIN();
