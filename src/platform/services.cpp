#include "platform/services.h"

namespace zafro {

Services &services()
{
    static Services current{};
    return current;
}

} // namespace zafro
