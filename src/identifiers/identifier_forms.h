#pragma once

namespace zafro {

// Makes the identifier tools' windows known to the forms registry by their names.
void registerIdentifierForms();

} // namespace zafro
