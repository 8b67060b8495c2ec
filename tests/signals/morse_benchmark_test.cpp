// Both translations of a 100,000-character text. Run by hand: bench_morse

#include "signals/morsemod.h"

#include <benchmark/benchmark.h>

namespace zafro {
namespace {

const QString &textoLargo()
{
    static const QString texto = [] {
        const QString frase = QStringLiteral("Zafro Suite 4.6, (prueba) ¿sí? ");
        QString t;
        while (t.size() < 100000)
            t += frase;
        return t.left(100000);
    }();
    return texto;
}

void BM_TextoAMorse(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(TextoAMorse(textoLargo()));
}
BENCHMARK(BM_TextoAMorse)->Unit(benchmark::kMillisecond);

void BM_MorseATexto(benchmark::State &state)
{
    const QString code = TextoAMorse(textoLargo());
    for (auto _ : state)
        benchmark::DoNotOptimize(MorseATexto(code));
}
BENCHMARK(BM_MorseATexto)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zafro

BENCHMARK_MAIN();
