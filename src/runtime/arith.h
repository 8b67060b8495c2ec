#pragma once

#include <QtGlobal>

namespace zafro {

// Checked arithmetic of the original runtime. Its 16-bit and 32-bit integers raise
// error 6 (overflow) on a result out of range and error 11 on a division by zero; a
// double raises 6 where IEEE arithmetic would give an infinity.

qint16 add16(qint16 a, qint16 b);
qint16 sub16(qint16 a, qint16 b);
qint16 mul16(qint16 a, qint16 b);
qint16 div16(qint16 a, qint16 b); // the "\" operator: quotient truncated towards zero
qint16 mod16(qint16 a, qint16 b); // the sign follows the dividend
qint16 neg16(qint16 a);

qint32 add32(qint32 a, qint32 b);
qint32 sub32(qint32 a, qint32 b);
qint32 mul32(qint32 a, qint32 b);
qint32 div32(qint32 a, qint32 b);
qint32 mod32(qint32 a, qint32 b);
qint32 neg32(qint32 a);

// "\" and Mod on fractional operands: both are first rounded to 32-bit integers (half to
// even), which raises 6 beyond that range.
qint32 intDiv(double a, double b);
qint32 modulo(double a, double b);

// The "/" operator: x/0 raises 11, an infinite quotient raises 6, and so does 0/0.
double divide(double a, double b);

// A double result of +, -, * checked as the runtime checks it: an infinity or NaN
// raises 6.
double checkDouble(double x);

// The "^" operator: a result with no real value (a negative base with a fractional
// exponent, 0 to a negative power) raises 5, an infinite one raises 6.
double power(double base, double exponent);

// Square root, natural logarithm and e^x: an argument out of their domain raises 5, a
// result beyond the double range raises 6.
double Sqr(double x);
double Log(double x);
double Exp(double x);

} // namespace zafro
