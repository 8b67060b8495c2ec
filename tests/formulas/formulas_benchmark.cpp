// How long the evaluator takes: every input of the fuzzing corpus, reporting the
// slowest, and the long and runaway formulas that its guards are about. Run by hand:
// bench_formulas

#include "formulas/cformulas.h"
#include "runtime/runtime_error.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

namespace zafro {
namespace {

QString evaluar(const QString &formula)
{
    try {
        cFormulas formulas;
        return formulas.Formula(formula);
    } catch (const RuntimeError &error) {
        return QStringLiteral("error %1").arg(error.number());
    }
}

QString cadenaDeVariables(int eslabones)
{
    QString texto = QStringLiteral("v0=1");
    for (int i = 1; i < eslabones; ++i)
        texto += QStringLiteral(":v%1=v%2").arg(i).arg(i - 1);
    return texto + QStringLiteral(":v%1").arg(eslabones - 1);
}

void BM_Formula(benchmark::State &state, const QString &formula)
{
    QString resultado;
    for (auto _ : state)
        benchmark::DoNotOptimize(resultado = evaluar(formula));
    state.SetLabel(resultado.left(40).toStdString());
}

BENCHMARK_CAPTURE(BM_Formula, IntRndNum, QStringLiteral("Int(+Rnd1Num6)"))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Formula, ExponentialChain,
                  QStringLiteral("a=1:b=a*a*a:c=b*b*b:d=c*c*c:e=d*d*d:f=e*e*e:g=f*f*f:h=g*g*g:"
                                 "i=h*h*h:j=i*i*i:j"))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Formula, SelfReference, QStringLiteral("y=y:y"))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Formula, RepeatingRewrite, QStringLiteral("2*-4+1*3/5"))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Formula, Sum10000, QStringList(10000, QStringLiteral("1")).join(u'+'))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Formula, Chain1000, cadenaDeVariables(1000))->Unit(benchmark::kMillisecond);

// Every corpus input once per iteration; the slowest one and its time are reported.
void BM_CorpusSlowest(benchmark::State &state)
{
    QStringList entradas;
    const QDir carpeta(QStringLiteral(ZAFRO_FORMULAS_CORPUS));
    for (const QString &nombre : carpeta.entryList(QDir::Files, QDir::Name)) {
        QFile archivo(carpeta.filePath(nombre));
        if (archivo.open(QIODevice::ReadOnly))
            entradas << QString::fromUtf8(archivo.readAll());
    }
    double peor = 0;
    QString cual;
    for (auto _ : state) {
        for (const QString &entrada : entradas) {
            QElapsedTimer reloj;
            reloj.start();
            evaluar(entrada);
            const double ms = double(reloj.nsecsElapsed()) / 1e6;
            if (ms > peor) {
                peor = ms;
                cual = entrada;
            }
        }
    }
    state.counters["inputs"] = double(entradas.size());
    state.counters["slowest_ms"] = peor;
    state.SetLabel(cual.left(40).toStdString());
}
BENCHMARK(BM_CorpusSlowest)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
} // namespace zafro

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
