// The longest numbers the box takes, spelled. Run by hand: bench_numletras

#include "maths/numeros.h"

#include <benchmark/benchmark.h>

namespace zafro {
namespace {

void nroEnLetrasTrece(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(NroEnLetras(9999999999999));
}
BENCHMARK(nroEnLetrasTrece)->Unit(benchmark::kMicrosecond);

void englishWordsTrece(benchmark::State &state)
{
    const QString numero = QStringLiteral("9999999999999");
    for (auto _ : state)
        benchmark::DoNotOptimize(EnglishWords(numero));
}
BENCHMARK(englishWordsTrece)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace zafro

BENCHMARK_MAIN();
