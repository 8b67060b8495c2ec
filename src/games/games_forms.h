#pragma once

namespace zafro {

// Makes the games' windows known to the forms registry by their names.
void registerGamesForms();

} // namespace zafro
