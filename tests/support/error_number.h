#pragma once

#include "runtime/runtime_error.h"

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

} // namespace zafro::test
