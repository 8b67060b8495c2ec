#pragma once

// Degrees to radians and back, rounded to four decimals.

namespace zafro {

// Pi as the tool has always had it, to fourteen decimals.
inline constexpr double kPiRadian = 3.14159265358979;

// value * pi / 180 and value * 180 / pi, in that order of operations, checked like
// the runtime's doubles (an infinite product is an overflow).
double aRadianes(double grados);
double aGrados(double radianes);

} // namespace zafro
