// Pi computed and printed, the longest numbers spelled; by hand or by scripts/bench-pi.

#include "maths/numeros.h"
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
BENCHMARK(digitosDePi)->Arg(5000)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

void nroEnLetrasTrece(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(NroEnLetras(9999999999999));
}
BENCHMARK(nroEnLetrasTrece);

void englishWordsTrece(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(EnglishWords(QStringLiteral("9999999999999")));
}
BENCHMARK(englishWordsTrece);

} // namespace
} // namespace zafro

BENCHMARK_MAIN();
