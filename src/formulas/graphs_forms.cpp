#include "formulas/graphs_forms.h"

#include "shell/forms.h"

namespace zafro {

void registerGraphForms() {}

} // namespace zafro
