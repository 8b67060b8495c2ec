// The game's work in one event, which must stay far below the 1 ms timers' period.
// Run by hand: bench_nabes

#include "games/nabes_state.h"
#include "games/nabes_window.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace zafro {
using namespace nabes;
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

// The same two events through the window, which copies the state onto its pictures.
void ventana(benchmark::State &state, void (*evento)(NabesWindow &))
{
    NabesWindow juego;
    juego.show();
    for (auto _ : state)
        evento(juego);
}
BENCHMARK_CAPTURE(ventana, teclaConDisparo, [](NabesWindow &w) { w.formKeyDown(TeclaA, 0); });
BENCHMARK_CAPTURE(ventana, balas, [](NabesWindow &w) { w.balasTimer(); });

} // namespace
} // namespace zafro

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
