#pragma once

// What the launcher hosts from tools that stand above the shell. The shell declares
// the hooks; the place where the program is put together installs them, so the
// launcher never needs a tool's header.

#include <QString>

#include <functional>

class QWidget;

namespace zafro {

// The news panel the launcher carries: its controls are made on the launcher when
// the panel is made, and the launcher drives it through these steps.
class LauncherNews {
public:
    virtual ~LauncherNews() = default;
    // A new fetch of the news, at every load.
    virtual void start() = 0;
    // The mouse over the launcher's bare surface: both scrolls stop, the arrows go white.
    virtual void surfaceMoved() = 0;
    // Takes the lower end off the scroll (the hidden "oo" button).
    virtual void sinLimite() = 0;
};

struct LauncherHooks {
    // The hidden formula bench: a formula in, its result text out. Unset, it answers
    // with an empty text.
    std::function<QString(const QString &)> formulaBench;
    // Makes the news panel on the launcher; unset, the launcher has no news.
    std::function<LauncherNews *(QWidget *launcher)> newsPanel;
};

LauncherHooks &launcherHooks();

} // namespace zafro
