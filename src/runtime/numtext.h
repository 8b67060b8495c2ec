#pragma once

#include <QString>

#include <concepts>

namespace zafro {

// Numbers to text as the original runtime writes them.
//
// CStr is the general number form: at most 15 significant digits for a double and 7
// for a single, trailing zeros dropped, the exponent form ("1E+20", "1.5E-05") when
// the decimal exponent is below -4 or at least the digit count, the region's decimal
// mark, and negative zero written as "0".
QString CStr(double x);
QString CStr(float x);
template <std::integral T>
requires(!std::same_as<T, bool>) QString CStr(T x)
{
    return QString::number(x);
}

// Str is the same form with a point whatever the region, a blank in front of a number
// that is not negative, and no zero before the point of a number below 1: 0.5 is " .5"
// and -0.5 is "-.5".
QString Str(double x);
QString Str(float x);
template <std::integral T>
requires(!std::same_as<T, bool>) QString Str(T x)
{
    return x < 0 ? QString::number(x) : QLatin1Char(' ') + QString::number(x);
}

// Format with a number mask: "0" shows a digit or a zero, "#" a digit or nothing, the
// first "." the region's decimal mark, "," between digit placeholders groups thousands
// with the region's thousands mark (right before the decimal mark it divides by 1000),
// "%" multiplies by 100, "\" shows the next character and "..." its text as they are;
// any other character stands for itself. Up to three sections split by ";" serve
// positive, negative and zero values. "" and "General Number" give CStr; "Fixed",
// "Standard" and "Percent" are the named masks. The exponent placeholders are not
// supported. The shown value is rounded half away from zero from its 15 (double) or 7
// (single) significant decimal digits.
QString Format(double x, const QString &mask);
QString Format(float x, const QString &mask);
template <std::integral T>
requires(!std::same_as<T, bool>) QString Format(T x, const QString &mask)
{
    return Format(double(x), mask);
}

} // namespace zafro
