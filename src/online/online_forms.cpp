#include "online/online_forms.h"

#include "shell/forms.h"

namespace zafro {

void registerOnlineForms() {}

} // namespace zafro
