#pragma once

namespace zafro {

// The original runtime's generator
class Random {
public:
    virtual ~Random() = default;
    virtual float rnd() = 0;      // next value in [0, 1)
    virtual void randomize() = 0; // seed from the clock
    virtual void randomize(double seed) = 0;
};

} // namespace zafro
