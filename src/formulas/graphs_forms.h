#pragma once

namespace zafro {

// Makes the graph windows known to the forms registry by their names.
void registerGraphForms();

} // namespace zafro
