#pragma once

namespace zafro {

// Makes the online windows known to the forms registry by their names.
void registerOnlineForms();

} // namespace zafro
