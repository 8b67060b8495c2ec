#pragma once

namespace zafro {

// Makes the Morse and stopwatch windows known to the forms registry by their names.
void registerSignalsForms();

} // namespace zafro
