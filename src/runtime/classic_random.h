#pragma once

#include "platform/random.h"

#include <cstdint>

namespace zafro {

// The generator of the original runtime: a 24-bit linear congruential sequence
// returned in single precision. Randomize mixes the upper half of a double's bits
// into the middle of the state, so equal seeds give equal sequences only from the
// same state, just as there.
class ClassicRandom : public Random {
public:
    float rnd() override;
    void randomize() override; // seeded from the clock's Timer
    void randomize(double seed) override;

    std::uint32_t state() const { return state_; }

private:
    std::uint32_t state_ = 0x50000;
};

} // namespace zafro
