#pragma once

// Platform services.
//
// Nothing in the suite reaches the operating system directly: message boxes, the
// desktop (browser, clipboard, files, screen, the end of the program), the clock,
// sound and the random generator all go through the implementations held here.
// main() installs the real ones, test fixtures install fakes.

#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/random.h"
#include "platform/sound.h"

namespace zafro {

struct Services {
    Dialogs *dialogs;
    Desktop *desktop;
    Clock *clock;
    Sound *sound;
    Random *random;
};
Services &services();

} // namespace zafro
