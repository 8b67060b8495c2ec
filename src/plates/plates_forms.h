#pragma once

namespace zafro {

// Makes the plates windows known to the forms registry by their names.
void registerPlatesForms();

} // namespace zafro
