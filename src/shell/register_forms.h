#pragma once

namespace zafro {

// Teaches the forms registry every window of the suite by its name.
void registerForms();

} // namespace zafro
