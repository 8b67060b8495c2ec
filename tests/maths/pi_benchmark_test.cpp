// The digits of pi, computed and printed. Run by hand: bench_pi, or scripts/bench-pi to
// set it against bc.

#include "maths/pi.h"

#include <benchmark/benchmark.h>

namespace zafro {
namespace {

void digitosDePi(benchmark::State &state)
{
    const PiTamano tamano = tamanoPi(double(state.range(0)));
    std::vector<qint32> suma;
    for (auto _ : state) {
        calcularSumaPi(tamano.grupos, suma);
        benchmark::DoNotOptimize(imprimirPi(suma, tamano.grupos));
    }
}
BENCHMARK(digitosDePi)->Arg(5000)->Arg(100000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zafro

BENCHMARK_MAIN();
