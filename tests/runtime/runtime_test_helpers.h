#pragma once

#include "runtime/runtime_error.h"

#include <QString>

#include <utility>

namespace zafro::test {

// The number of the RuntimeError that `f` raises, 0 when it returns normally. Anything
// else thrown escapes to the test, which then fails.
template <typename F> int errorNumber(F &&f)
{
    try {
        std::forward<F>(f)();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}

// `before`, a NUL and `after`: the form in which the settings store hands texts back.
inline QString withNul(const char *before, const char *after = "")
{
    return QString::fromLatin1(before) + QChar(u'\0') + QString::fromLatin1(after);
}

} // namespace zafro::test
