#include "runtime/classic_random.h"

#include "platform/services.h"

#include <bit>

namespace zafro {

float ClassicRandom::rnd()
{
    state_ = (state_ * 1140671485u + 12820163u) & 0xFFFFFFu;
    return static_cast<float>(state_) / 16777216.0f;
}

void ClassicRandom::randomize()
{
    const Clock *clock = services().clock;
    randomize(clock ? static_cast<double>(clock->timer()) : 0.0);
}

void ClassicRandom::randomize(double seed)
{
    const auto high = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(seed) >> 32);
    const std::uint32_t mixed = ((high ^ (high >> 16)) & 0xFFFFu) << 8;
    state_ = (state_ & 0xFF0000FFu) | mixed;
}

} // namespace zafro
