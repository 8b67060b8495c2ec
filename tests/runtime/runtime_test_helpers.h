#pragma once

#include "error_number.h"

#include <QString>

namespace zafro::test {

// `before`, a NUL and `after`: the form in which the settings store hands texts back.
inline QString withNul(const char *before, const char *after = "")
{
    return QString::fromLatin1(before) + QChar(u'\0') + QString::fromLatin1(after);
}

} // namespace zafro::test
