#pragma once

// Screen readers and the keyboard, for every window at once: each button, box and
// list gets a name a screen reader can say, and Tab walks the controls in reading
// order (rows from the top, left to right in a row). The tools' own key handling
// is left alone.

class QWidget;

namespace zafro {

// Names the unnamed controls of one window and orders its Tab chain.
void makeAccessible(QWidget *window);

// Runs makeAccessible on every window of the suite each time it shows.
void installAccessibilityPass();

} // namespace zafro
