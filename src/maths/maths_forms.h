#pragma once

namespace zafro {

// Makes the maths tools' windows known to the forms registry by their names.
void registerMathsForms();

} // namespace zafro
