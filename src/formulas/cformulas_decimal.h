#pragma once

// The scaled decimal type that the formula evaluator computes with.
//
// A value is a whole number of at most 96 bits, with its sign, divided by a power of
// ten from 10^0 to 10^28: the platform's own decimal type, with its 28 to 29
// significant digits and its range of +-79228162514264337593543950335. Every result is
// worked out exactly and then rounded (a half to the even neighbour) to the largest
// number of decimals that still fits the 96 bits; a whole part beyond them is an
// overflow, run-time error 6.
//
// It is emulated rather than taken from a floating decimal library because the exact
// 96-bit limit, the rounding of quotients to 28 decimals and a plain text form without
// exponent are what the evaluator shows; the exact intermediate values use
// Boost.Multiprecision's cpp_int.

#include <QString>
#include <QtGlobal>

#include <boost/multiprecision/cpp_int.hpp>

namespace zafro {

class ScaledDecimal {
public:
    ScaledDecimal() = default;
    static ScaledDecimal fromInteger(qint64 value);

    // Text in the region's form: an optional sign, digits with the region's decimal
    // mark, and an optional exponent ("1E+20", "1,5E-05"). Blanks around it are allowed.
    // Anything else raises 13, a value beyond the range 6.
    static ScaledDecimal fromText(const QString &text);

    // All digits, the region's decimal mark, no exponent and no trailing zeros.
    QString toText() const;
    double toDouble() const;
    bool isZero() const { return mantissa_ == 0; }
    int scale() const { return scale_; }

    friend ScaledDecimal operator+(const ScaledDecimal &a, const ScaledDecimal &b);
    friend ScaledDecimal operator-(const ScaledDecimal &a, const ScaledDecimal &b);
    friend ScaledDecimal operator*(const ScaledDecimal &a, const ScaledDecimal &b);
    // A zero divisor raises 11; callers that want 0 test for it first.
    friend ScaledDecimal operator/(const ScaledDecimal &a, const ScaledDecimal &b);
    friend bool operator==(const ScaledDecimal &a, const ScaledDecimal &b);

private:
    using Integer = boost::multiprecision::cpp_int;

    // numerator / denominator (denominator > 0), rounded into the type.
    static ScaledDecimal fromRatio(Integer numerator, Integer denominator);
    // numerator / 10^scale: exact, without a division, whenever it fits as it stands.
    static ScaledDecimal fromScaled(Integer numerator, int scale);

    Integer mantissa_ = 0; // signed; |mantissa_| < 2^96
    int scale_ = 0;        // 0..28
};

} // namespace zafro
