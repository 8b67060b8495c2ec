#include "plates/plates_forms.h"

#include "shell/forms.h"

namespace zafro {

void registerPlatesForms() {}

} // namespace zafro
