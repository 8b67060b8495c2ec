// One tick of the chasing letters, asleep and awake; run by hand.

#include "platform/qt_services.h"
#include "shell/index_window.h"
#include "shell/settings.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>

namespace {

void tick(benchmark::State &state, const char *perseguir)
{
    zafro::writeConfig(QStringLiteral("perseguir"), QLatin1String(perseguir));
    zafro::IndexWindow index;
    index.crearLetras(QStringLiteral("abcdefghijklmnopqrst")); // 20 letters
    for (auto _ : state)
        index.tmrPosTimer();
    benchmark::DoNotOptimize(index.clip().back().left);
}

void BM_TmrPosAsleep(benchmark::State &state)
{
    tick(state, "0");
}
void BM_TmrPosTwentyLetters(benchmark::State &state)
{
    tick(state, "1");
}
BENCHMARK(BM_TmrPosAsleep)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_TmrPosTwentyLetters)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    QTemporaryDir home;
    qputenv("XDG_RUNTIME_DIR", home.filePath(QStringLiteral("run")).toLocal8Bit());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    zafro::installQtServices();
    zafro::useSettingsFile(home.filePath(QStringLiteral("registry.sqlite3")));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
