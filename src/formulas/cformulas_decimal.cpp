#include "formulas/cformulas_decimal.h"

#include "runtime/region.h"
#include "runtime/runtime_error.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace zafro {

namespace {

using Integer = boost::multiprecision::cpp_int;

constexpr int kMaxScale = 28;
constexpr int kMaxDigits = 29; // 2^96 - 1 has 29 digits

const Integer &limit()
{
    static const Integer value = Integer(1) << 96;
    return value;
}

const Integer &pow10(int n)
{
    // Quotients reach 10^(2 * 28) and a little more; nothing asks beyond 10^120.
    static const std::vector<Integer> table = [] {
        std::vector<Integer> t(121);
        t[0] = 1;
        for (std::size_t i = 1; i < t.size(); ++i)
            t[i] = t[i - 1] * 10;
        return t;
    }();
    return table.at(std::size_t(n));
}

int decimalDigits(const Integer &value)
{
    return value == 0 ? 0 : int(value.str().size());
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

} // namespace

ScaledDecimal ScaledDecimal::fromInteger(qint64 value)
{
    return fromRatio(Integer(value), Integer(1));
}

ScaledDecimal ScaledDecimal::fromRatio(Integer numerator, Integer denominator)
{
    ScaledDecimal result;
    if (numerator == 0)
        return result;
    const bool negative = numerator < 0;
    if (negative)
        numerator = -numerator;

    const int wholeDigits = decimalDigits(numerator / denominator);
    if (wholeDigits > kMaxDigits)
        throw RuntimeError::overflow();
    int scale = std::min(kMaxScale, kMaxDigits - wholeDigits);
    Integer rounded;
    for (;;) {
        Integer remainder;
        divide_qr(numerator * pow10(scale), denominator, rounded, remainder);
        const Integer twice = remainder * 2;
        if (twice > denominator || (twice == denominator && bit_test(rounded, 0)))
            ++rounded;
        if (rounded < limit())
            break;
        if (scale == 0)
            throw RuntimeError::overflow();
        --scale;
    }
    while (scale > 0 && rounded != 0 && rounded % 10 == 0) {
        rounded /= 10;
        --scale;
    }
    result.mantissa_ = negative ? Integer(-rounded) : rounded;
    result.scale_ = rounded == 0 ? 0 : scale;
    return result;
}

ScaledDecimal ScaledDecimal::fromScaled(Integer numerator, int scale)
{
    // The same value fromRatio gives, reached the short way: a mantissa that fits needs
    // no rounding, only its trailing zeros dropped.
    if (scale < 0 || scale > kMaxScale || (numerator < 0 ? -numerator : numerator) >= limit())
        return fromRatio(std::move(numerator), pow10(std::max(scale, 0)));
    ScaledDecimal result;
    while (scale > 0 && numerator != 0 && numerator % 10 == 0) {
        numerator /= 10;
        --scale;
    }
    result.scale_ = numerator == 0 ? 0 : scale;
    result.mantissa_ = std::move(numerator);
    return result;
}

ScaledDecimal ScaledDecimal::fromText(const QString &text)
{
    qsizetype i = 0;
    qsizetype end = text.size();
    while (i < end && isBlank(text[i]))
        ++i;
    while (end > i && isBlank(text[end - 1]))
        --end;
    auto at = [&](qsizetype k) { return k < end ? text[k] : QChar(); };

    bool negative = false;
    if (at(i) == u'-' || at(i) == u'+')
        negative = text[i++] == u'-';
    std::string digits;
    qint64 exponent = 0;
    bool anyDigit = false;
    for (; at(i).isDigit() && at(i).unicode() < 128; ++i, anyDigit = true)
        digits.push_back(char(at(i).unicode()));
    if (i < end && at(i) == decimalMark()) {
        for (++i; at(i).isDigit() && at(i).unicode() < 128; ++i, anyDigit = true) {
            digits.push_back(char(at(i).unicode()));
            --exponent;
        }
    }
    if (!anyDigit)
        throw RuntimeError::typeMismatch();
    if (i < end && (at(i) == u'E' || at(i) == u'e')) {
        ++i;
        bool negativeExponent = false;
        if (at(i) == u'-' || at(i) == u'+')
            negativeExponent = text[i++] == u'-';
        qint64 written = 0;
        const qsizetype first = i;
        for (; at(i).isDigit() && at(i).unicode() < 128; ++i)
            written = std::min<qint64>(written * 10 + (at(i).unicode() - u'0'), 1'000'000'000);
        if (i == first)
            throw RuntimeError::typeMismatch();
        exponent += negativeExponent ? -written : written;
    }
    if (i != end)
        throw RuntimeError::typeMismatch();

    const auto firstNonZero = digits.find_first_not_of('0');
    if (firstNonZero == std::string::npos)
        return {};
    digits.erase(0, firstNonZero);
    const qint64 magnitude = qint64(digits.size()) + exponent; // digits before the point
    if (magnitude > kMaxDigits)
        throw RuntimeError::overflow();
    if (magnitude < -(kMaxScale + 1))
        return {}; // rounds to zero at 28 decimals
    // Only the digits that can reach the 28th decimal matter, and one more for rounding.
    const qint64 keep = std::max<qint64>(1, magnitude + kMaxScale + 2);
    bool sticky = false;
    if (qint64(digits.size()) > keep) {
        sticky = digits.find_first_not_of('0', std::size_t(keep)) != std::string::npos;
        exponent += qint64(digits.size()) - keep;
        digits.resize(std::size_t(keep));
    }
    Integer mantissa(digits);
    if (sticky) // a tail beyond the kept digits must still break a tie upwards
        mantissa = mantissa * 10 + 1, --exponent;
    if (negative)
        mantissa = -mantissa;
    if (exponent >= 0)
        return fromScaled(mantissa * pow10(int(exponent)), 0);
    return fromScaled(mantissa, int(-exponent));
}

QString ScaledDecimal::toText() const
{
    const bool negative = mantissa_ < 0;
    std::string digits = (negative ? Integer(-mantissa_) : mantissa_).str();
    if (scale_ > 0) {
        if (int(digits.size()) <= scale_)
            digits.insert(0, std::size_t(scale_ + 1) - digits.size(), '0');
        digits.insert(digits.size() - std::size_t(scale_), 1, '\x01');
    }
    QString text = QString::fromLatin1(digits.data(), qsizetype(digits.size()));
    text.replace(QChar(1), decimalMark());
    return negative ? QLatin1Char('-') + text : text;
}

double ScaledDecimal::toDouble() const
{
    const std::string form = mantissa_.str() + "e-" + std::to_string(scale_);
    // No decimal point in the form, so the process locale cannot change the reading.
    return std::strtod(form.c_str(), nullptr);
}

ScaledDecimal operator+(const ScaledDecimal &a, const ScaledDecimal &b)
{
    const int scale = std::max(a.scale_, b.scale_);
    return ScaledDecimal::fromScaled(
        a.mantissa_ * pow10(scale - a.scale_) + b.mantissa_ * pow10(scale - b.scale_), scale);
}

ScaledDecimal operator-(const ScaledDecimal &a, const ScaledDecimal &b)
{
    const int scale = std::max(a.scale_, b.scale_);
    return ScaledDecimal::fromScaled(
        a.mantissa_ * pow10(scale - a.scale_) - b.mantissa_ * pow10(scale - b.scale_), scale);
}

ScaledDecimal operator*(const ScaledDecimal &a, const ScaledDecimal &b)
{
    return ScaledDecimal::fromScaled(a.mantissa_ * b.mantissa_, a.scale_ + b.scale_);
}

ScaledDecimal operator/(const ScaledDecimal &a, const ScaledDecimal &b)
{
    if (b.isZero())
        throw RuntimeError::divisionByZero();
    ScaledDecimal::Integer numerator = a.mantissa_ * pow10(b.scale_);
    ScaledDecimal::Integer denominator = b.mantissa_ * pow10(a.scale_);
    if (denominator < 0) {
        numerator = -numerator;
        denominator = -denominator;
    }
    return ScaledDecimal::fromRatio(numerator, denominator);
}

bool operator==(const ScaledDecimal &a, const ScaledDecimal &b)
{
    return a.scale_ == b.scale_ && a.mantissa_ == b.mantissa_;
}

} // namespace zafro
