#pragma once

// What the launcher hosts from tools that stand above the shell. The shell declares
// the hooks; the place where the program is put together installs them, so the
// launcher never needs a tool's header.

#include <QString>

#include <functional>

namespace zafro {

struct LauncherHooks {
    // The hidden formula bench: a formula in, its result text out. Unset, it answers
    // with an empty text.
    std::function<QString(const QString &)> formulaBench;
};

LauncherHooks &launcherHooks();

} // namespace zafro
