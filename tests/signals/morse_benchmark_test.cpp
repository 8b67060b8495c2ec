// Both translations of a 100,000-character text. Run by hand: bench_morse

#include "signals/morsemod.h"

#include <benchmark/benchmark.h>

static const QString kTexto =
    QStringLiteral("Zafro Suite 4.6, (prueba) ¿sí? ").repeated(4000).left(100000);

static void BM_TextoAMorse(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(zafro::TextoAMorse(kTexto));
}

static void BM_MorseATexto(benchmark::State &state)
{
    const QString code = zafro::TextoAMorse(kTexto);
    for (auto _ : state)
        benchmark::DoNotOptimize(zafro::MorseATexto(code));
}

BENCHMARK(BM_TextoAMorse)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MorseATexto)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
