// libFuzzer target: the lenient and the strict number readings on any text, in a point
// region and in a comma region. A first byte "," makes a comma region; the rest is the text.
// A reading may give a number or raise the platform's run-time error, and nothing else.

#include "runtime/convert.h"
#include "runtime/region.h"
#include "runtime/runtime_error.h"

#include <QString>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const zafro::ScopedDecimalMark region(data[0] == ',' ? QChar(u',') : QChar(u'.'));
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1));
    (void)zafro::Val(text);
    (void)zafro::IsNumeric(text);
    for (auto read : {+[](const QString &t) { (void)zafro::CDbl(t); },
                      +[](const QString &t) { (void)zafro::CLng(t); },
                      +[](const QString &t) { (void)zafro::CInt(t); }}) {
        try {
            read(text);
        } catch (const zafro::RuntimeError &) {
        }
    }
    return 0;
}
