#pragma once

namespace zafro {

// Round to a number of decimals, a half going to the even neighbour. The value is
// scaled by 10^decimals in binary first and the scaled double is rounded, as the
// original runtime did: Round(2.675, 2) is 2.68 (267.5 exactly after scaling) while
// Round(1233.715, 2) is 1233.71 (123371.49999999999). Negative decimals raise error 5.
double Round(double x, int decimals = 0);

// The largest whole number not above x.
double Int(double x);

// x with its fraction cut off, towards zero.
double Fix(double x);

} // namespace zafro
