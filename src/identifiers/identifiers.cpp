#include "identifiers/identifiers.h"

#include "platform/random.h"
#include "runtime/rounding.h"

namespace zafro {

int digitoAlAzar(Random &random)
{
    const float escalado = random.rnd() * 10.0f;
    return static_cast<int>(Round(static_cast<double>(escalado)));
}

} // namespace zafro
