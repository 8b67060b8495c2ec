#include "runtime/convert.h"

#include "runtime/region.h"
#include "runtime/runtime_error.h"

#include <cfloat>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <locale.h>
#include <string>

namespace zafro {

namespace {

bool isDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

int digitValue(char16_t c)
{
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10;
    return 99;
}

// Which radix an "&" prefix letter selects, 0 for none.
int radixOf(char16_t letter)
{
    if (letter == u'H' || letter == u'h')
        return 16;
    if (letter == u'O' || letter == u'o')
        return 8;
    return 0;
}

// kept: "&HFFFF" is -1 and "&HFFFFFFFF" is -1 too, read as signed integers
double radixValue(quint32 value)
{
    if (value <= 0xFFFFu)
        return double(qint16(quint16(value)));
    return double(qint32(value));
}

// Qt has set the process locale from the environment, and strtod in a comma locale
// would stop at the point: numbers are always handed to strtod in the C form.
double readCNumber(const std::string &number)
{
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", locale_t(nullptr));
    return strtod_l(number.c_str(), nullptr, cLocale);
}

enum class Parse { Ok, Mismatch, Overflow };

bool isBlank(char16_t c)
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

// The grammar of the strict conversions; see convert.h.
Parse parseStrict(const QString &text, double &out)
{
    QStringView s(text);
    const qsizetype nul = s.indexOf(QChar(0));
    if (nul >= 0)
        s = s.left(nul);
    qsizetype begin = 0;
    qsizetype end = s.size();
    while (begin < end && isBlank(s[begin].unicode()))
        ++begin;
    while (end > begin && isBlank(s[end - 1].unicode()))
        --end;
    if (begin == end)
        return Parse::Mismatch;
    auto at = [&](qsizetype i) -> char16_t { return i < end ? s[i].unicode() : u'\0'; };

    if (at(begin) == u'&') {
        const int radix = radixOf(at(begin + 1));
        qsizetype i = begin + 2;
        if (radix == 0 || i == end)
            return Parse::Mismatch;
        quint64 value = 0;
        for (; i < end; ++i) {
            const int digit = digitValue(at(i));
            if (digit >= radix)
                return Parse::Mismatch;
            value = value * quint64(radix) + quint64(digit);
            if (value > 0xFFFFFFFFu)
                return Parse::Overflow;
        }
        out = radixValue(quint32(value));
        return Parse::Ok;
    }

    bool negative = false;
    bool signSeen = false;
    if (at(begin) == u'(' && at(end - 1) == u')') {
        negative = signSeen = true;
        ++begin;
        --end;
        while (begin < end && isBlank(at(begin)))
            ++begin;
        while (end > begin && isBlank(at(end - 1)))
            --end;
    }
    if (at(begin) == u'+' || at(begin) == u'-') {
        if (signSeen)
            return Parse::Mismatch;
        negative = at(begin) == u'-';
        signSeen = true;
        ++begin;
        while (begin < end && isBlank(at(begin)))
            ++begin;
    }
    if (end > begin && (at(end - 1) == u'+' || at(end - 1) == u'-')) {
        if (signSeen)
            return Parse::Mismatch;
        negative = at(end - 1) == u'-';
        --end;
        while (end > begin && isBlank(at(end - 1)))
            --end;
    }

    const char16_t decimal = decimalMark().unicode();
    const char16_t thousands = thousandsMark().unicode();
    std::string number = negative ? "-" : "";
    qsizetype i = begin;
    bool anyDigit = false;
    for (; i < end; ++i) {
        const char16_t c = at(i);
        if (isDigit(c)) {
            number.push_back(char(c));
            anyDigit = true;
        } else if (c == thousands && anyDigit) {
            continue;
        } else {
            break;
        }
    }
    if (i < end && at(i) == decimal) {
        number.push_back('.');
        for (++i; i < end && isDigit(at(i)); ++i) {
            number.push_back(char(at(i)));
            anyDigit = true;
        }
    }
    if (!anyDigit)
        return Parse::Mismatch;
    const char16_t e = at(i);
    if (i < end && (e == u'E' || e == u'e' || e == u'D' || e == u'd')) {
        number.push_back('e');
        ++i;
        if (at(i) == u'+' || at(i) == u'-')
            number.push_back(char(at(i++)));
        const qsizetype firstDigit = i;
        for (; i < end && isDigit(at(i)); ++i)
            number.push_back(char(at(i)));
        if (i == firstDigit)
            return Parse::Mismatch;
    }
    if (i != end)
        return Parse::Mismatch;
    out = readCNumber(number);
    return std::isfinite(out) ? Parse::Ok : Parse::Overflow;
}

double strictValue(const QString &text)
{
    double value = 0.0;
    switch (parseStrict(text, value)) {
    case Parse::Ok:
        return value;
    case Parse::Overflow:
        throw RuntimeError::overflow();
    case Parse::Mismatch:
        break;
    }
    throw RuntimeError::typeMismatch();
}

} // namespace

double Val(const QString &text)
{
    // kept: blanks, tabs and line feeds count for nothing anywhere, " 1 2 3" reads 123
    std::u16string s;
    s.reserve(std::size_t(text.size()));
    for (const QChar ch : text) {
        const char16_t u = ch.unicode();
        if (u == u' ' || u == u'\t' || u == u'\n')
            continue;
        if (u == 0)
            break;
        s.push_back(u);
    }
    auto at = [&](std::size_t i) -> char16_t { return i < s.size() ? s[i] : u'\0'; };

    if (at(0) == u'&') {
        const int radix = radixOf(at(1));
        quint32 value = 0;
        for (std::size_t i = 2; radix != 0 && digitValue(at(i)) < radix; ++i)
            value = value * quint32(radix) + quint32(digitValue(at(i)));
        return radixValue(value);
    }

    std::size_t i = 0;
    std::string number;
    if (at(i) == u'+' || at(i) == u'-')
        number.push_back(char(at(i++)));
    bool anyDigit = false;
    for (; isDigit(at(i)); ++i, anyDigit = true)
        number.push_back(char(at(i)));
    if (at(i) == u'.') {
        number.push_back('.');
        for (++i; isDigit(at(i)); ++i, anyDigit = true)
            number.push_back(char(at(i)));
    }
    if (!anyDigit)
        return 0.0;
    const char16_t e = at(i);
    if (e == u'E' || e == u'e' || e == u'D' || e == u'd') {
        std::size_t j = i + 1;
        std::string exponent = "e";
        if (at(j) == u'+' || at(j) == u'-')
            exponent.push_back(char(at(j++)));
        const std::size_t firstDigit = j;
        for (; isDigit(at(j)); ++j)
            exponent.push_back(char(at(j)));
        if (j > firstDigit)
            number += exponent;
    }

    const double value = readCNumber(number);
    if (value > DBL_MAX)
        return DBL_MAX;
    if (value < -DBL_MAX)
        return -DBL_MAX;
    return value;
}

double CDbl(const QString &text)
{
    return strictValue(text);
}

float CSng(const QString &text)
{
    return CSng(strictValue(text));
}

qint32 CLng(const QString &text)
{
    return CLng(strictValue(text));
}

qint16 CInt(const QString &text)
{
    return CInt(strictValue(text));
}

qint32 CLng(double x)
{
    const double r = std::nearbyint(x);
    if (!(r >= -2147483648.0 && r <= 2147483647.0))
        throw RuntimeError::overflow();
    return qint32(r);
}

qint16 CInt(double x)
{
    const double r = std::nearbyint(x);
    if (!(r >= -32768.0 && r <= 32767.0))
        throw RuntimeError::overflow();
    return qint16(r);
}

float CSng(double x)
{
    // Half an ulp above FLT_MAX a double no longer rounds to a finite single.
    if (std::isnan(x) || std::fabs(x) >= 0x1.ffffffp127)
        throw RuntimeError::overflow();
    return float(x);
}

bool IsNumeric(const QString &text)
{
    double ignored = 0.0;
    return parseStrict(text, ignored) == Parse::Ok;
}

} // namespace zafro
