// One event of the game with its pictures' update, far below 1 ms. Run by hand.

#include "games/nabes_window.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace zafro {
namespace {

void evento(benchmark::State &state, void (*handler)(NabesWindow &))
{
    static int argc = (qputenv("QT_QPA_PLATFORM", "offscreen"), 1);
    static char name[] = "bench_nabes", *argv[] = {name, nullptr};
    static QApplication app(argc, argv);
    NabesWindow juego;
    juego.show();
    for (auto _ : state)
        handler(juego);
}
// Both shots' whole flight and their hit tests.
BENCHMARK_CAPTURE(evento, teclaConDisparo, [](NabesWindow &w) { w.formKeyDown(nabes::TeclaA, 0); });
// The big shot in the ship's row (the enemy starts in it): about 1,300 steps.
BENCHMARK_CAPTURE(evento, balas, [](NabesWindow &w) { w.balasTimer(); });

} // namespace
} // namespace zafro

BENCHMARK_MAIN();
