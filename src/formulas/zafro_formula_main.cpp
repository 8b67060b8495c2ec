// zafro-formula: a developer's tool for trying the formula evaluator by hand.
//
// Each line of standard input is given to a fresh evaluator, as the launcher's bench
// does, and its result is printed on a line of its own. With "--keep" one evaluator
// serves every line, so that variables carry over ("x=5", then "x*2"), and so does
// the rest of its state.
// A run-time error is printed as the suite would show it and the next line is read.
// "zafro-formula --bench [count]" times the launcher's bench formula on a fresh
// evaluator per call instead.

#include "formulas/cformulas.h"
#include "platform/services.h"
#include "runtime/classic_random.h"
#include "runtime/runtime_error.h"

#include <QString>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

namespace {

int bench(int count)
{
    const QString formula = QStringLiteral("x=2:y=3:Max(x,y)*Sqr(16)");
    QString result;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < count; ++i)
        result = zafro::formulaBench(formula);
    const std::chrono::duration<double, std::micro> spent =
        std::chrono::steady_clock::now() - start;
    std::printf("%s = %s: %.1f us per call over %d calls\n", qPrintable(formula),
                qPrintable(result), spent.count() / count, count);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    zafro::ClassicRandom random;
    random.randomize();
    zafro::services().random = &random;

    if (argc > 1 && std::strcmp(argv[1], "--bench") == 0)
        return bench(argc > 2 ? std::max(1, std::atoi(argv[2])) : 10000);

    const bool keep = argc > 1 && std::strcmp(argv[1], "--keep") == 0;
    // "--work" adds the work each formula did, in the units of the evaluator's budget.
    const bool work = argc > 1 && std::strcmp(argv[argc - 1], "--work") == 0;
    zafro::cFormulas kept;
    std::string line;
    while (std::getline(std::cin, line)) {
        zafro::cFormulas fresh;
        zafro::cFormulas &formulas = keep ? kept : fresh;
        try {
            const QString result = formulas.Formula(QString::fromStdString(line));
            std::printf("%s", result.toUtf8().constData());
        } catch (const zafro::RuntimeError &error) {
            std::printf("%s", zafro::runtimeErrorMessage(error).simplified().toUtf8().constData());
        }
        if (work)
            std::printf("\t[%lld]", static_cast<long long>(formulas.trabajoRealizado()));
        std::printf("\n");
        std::fflush(stdout);
    }
    return 0;
}
