#pragma once

// What the graph windows share in building their controls.

#include "shell/form.h"

#include <QLineEdit>

#include <functional>

namespace zafro::graficas {

inline constexpr int kEnter = 13;

// Gives the box's typed keys to a key-press step as character codes (Enter as 13);
// a step that sets the code to 0 takes the key, and the box never sees it.
void onKeyPress(QLineEdit *box, std::function<void(int &keyAscii)> step);

// Where a graph window opens: beside the middle of the screen, so that the window
// that asked for it stays in view.
void placeBesideCentre(Form *window);

} // namespace zafro::graficas
