// libFuzzer target: any line of text given to a fresh evaluator may end in a result or
// in a run-time error of the platform, and in nothing else.

#include "formulas/cformulas.h"
#include "platform/services.h"
#include "runtime/classic_random.h"
#include "runtime/runtime_error.h"

#include <QString>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static zafro::ClassicRandom random;
    zafro::services().random = &random;
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    try {
        zafro::cFormulas formulas;
        formulas.Formula(text);
    } catch (const zafro::RuntimeError &) {
    }
    return 0;
}
