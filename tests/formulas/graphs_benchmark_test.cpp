// How long one curve's dots take to reach a surface's backing image, mapping
// included. Run by hand: QT_QPA_PLATFORM=offscreen bench_graphs

#include "formulas/coordenadas.h"
#include "formulas/drawing_surface.h"
#include "formulas/polares.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace zafro {
namespace {

QList<Punto> curvaCartesiana()
{
    Coordenadas seno;
    seno.a = 1;
    seno.ecuacion = Seno;
    seno.densidad = QStringLiteral("0.01");
    return MuestreoCartesiano(seno).todos();
}

QList<Punto> curvaPolar()
{
    Polaress espiral{1, 0, 0, 1};
    return MuestreoPolar(espiral).todos();
}

void dibujarPuntos(benchmark::State &state, const QList<Punto> &puntos, float lado)
{
    DrawingSurface surface(nullptr, Qt::white);
    surface.resize(540, 540);
    surface.setScale(-lado, lado, lado, -lado);
    for (auto _ : state) {
        surface.dots(puntos);
        benchmark::DoNotOptimize(surface.image().constBits());
    }
    state.SetItemsProcessed(state.iterations() * puntos.size());
    state.counters["dots"] = double(puntos.size());
}

void BM_SenoEnLaSuperficie(benchmark::State &state)
{
    dibujarPuntos(state, curvaCartesiana(), 10);
}
BENCHMARK(BM_SenoEnLaSuperficie)->Unit(benchmark::kMillisecond);

void BM_EspiralEnLaSuperficie(benchmark::State &state)
{
    dibujarPuntos(state, curvaPolar(), 4);
}
BENCHMARK(BM_EspiralEnLaSuperficie)->Unit(benchmark::kMillisecond);

// The whole drawing: sampling the curve as well as setting its dots.
void BM_SenoMuestreadoYDibujado(benchmark::State &state)
{
    DrawingSurface surface(nullptr, Qt::white);
    surface.resize(540, 540);
    surface.setScale(-10, 10, 10, -10);
    for (auto _ : state)
        surface.dots(curvaCartesiana());
}
BENCHMARK(BM_SenoMuestreadoYDibujado)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zafro

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
