#include "runtime/numtext.h"

#include "runtime/region.h"

#include <QStringList>

#include <charconv>
#include <cmath>
#include <string>
#include <vector>

namespace zafro {

namespace {

constexpr int kDoubleDigits = 15;
constexpr int kSingleDigits = 7;

// The value's first `significant` decimal digits, correctly rounded, and the decimal
// exponent of the first one: 1234.5 at 3 digits is {"123", 3}.
struct Digits {
    std::string digits;
    int exponent = 0;
};

Digits decimalDigits(double magnitude, int significant)
{
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, magnitude,
                                      std::chars_format::scientific, significant - 1);
    const std::string text(buffer, result.ptr);
    const std::size_t e = text.find('e');
    Digits d;
    for (std::size_t i = 0; i < e; ++i) {
        if (text[i] != '.')
            d.digits.push_back(text[i]);
    }
    d.exponent = std::stoi(text.substr(e + 1));
    return d;
}

QString specialForm(double x, QChar mark)
{
    // What the original's C library printed for values its arithmetic should never let
    // through; kept only so that such a value is still visible.
    if (std::isnan(x))
        return QStringLiteral("-1") + mark + QStringLiteral("#IND");
    return (x < 0 ? QStringLiteral("-1") : QStringLiteral("1")) + mark + QStringLiteral("#INF");
}

QString generalForm(double x, int significant, QChar mark)
{
    if (!std::isfinite(x))
        return specialForm(x, mark);
    if (x == 0.0)
        return QStringLiteral("0");
    Digits d = decimalDigits(std::fabs(x), significant);
    while (d.digits.size() > 1 && d.digits.back() == '0')
        d.digits.pop_back();
    const QString digits = QString::fromLatin1(d.digits);
    const int e = d.exponent;
    QString text = x < 0 ? QStringLiteral("-") : QString();
    if (e < -4 || e >= significant) {
        text += digits.left(1);
        if (digits.size() > 1)
            text += mark + digits.mid(1);
        text += (e < 0 ? QStringLiteral("E-") : QStringLiteral("E+")) +
                QString::number(std::abs(e)).rightJustified(2, QLatin1Char('0'));
    } else if (e >= 0) {
        text += digits.left(e + 1).leftJustified(e + 1, QLatin1Char('0'));
        if (digits.size() > e + 1)
            text += mark + digits.mid(e + 1);
    } else {
        text += QLatin1Char('0') + mark + QString(-e - 1, QLatin1Char('0')) + digits;
    }
    return text;
}

QString plainForm(double x, int significant)
{
    QString text = generalForm(x, significant, QLatin1Char('.'));
    // kept: Str writes 0.5 as " .5", without the leading zero that CStr keeps
    if (text.startsWith(QLatin1String("0.")))
        text.remove(0, 1);
    else if (text.startsWith(QLatin1String("-0.")))
        text.remove(1, 1);
    return x >= 0 ? QLatin1Char(' ') + text : text;
}

// --- Format masks ---

struct Token {
    enum Kind { Zero, Hash, Point, Comma, Literal } kind;
    QString text;
    bool isDigit() const { return kind == Zero || kind == Hash; }
};

struct Section {
    std::vector<Token> whole;    // before the decimal point
    std::vector<Token> fraction; // after it
    bool hasPoint = false;
    bool percent = false;
    bool grouping = false;
    int thousandsScale = 0;
};

QStringList splitSections(const QString &mask)
{
    QStringList sections;
    QString current;
    bool quoted = false;
    for (qsizetype i = 0; i < mask.size(); ++i) {
        const QChar c = mask.at(i);
        if (c == QLatin1Char('\\') && !quoted && i + 1 < mask.size()) {
            current += c;
            current += mask.at(++i);
            continue;
        }
        if (c == QLatin1Char('"'))
            quoted = !quoted;
        if (c == QLatin1Char(';') && !quoted) {
            sections << current;
            current.clear();
            continue;
        }
        current += c;
    }
    sections << current;
    return sections;
}

Section parseSection(const QString &mask)
{
    Section section;
    std::vector<Token> *part = &section.whole;
    for (qsizetype i = 0; i < mask.size(); ++i) {
        const QChar c = mask.at(i);
        switch (c.unicode()) {
        case u'0':
            part->push_back({Token::Zero, {}});
            break;
        case u'#':
            part->push_back({Token::Hash, {}});
            break;
        case u'.':
            if (section.hasPoint) {
                part->push_back({Token::Literal, QStringLiteral(".")});
            } else {
                section.hasPoint = true;
                part->push_back({Token::Point, {}});
                part = &section.fraction;
            }
            break;
        case u',':
            part->push_back({Token::Comma, {}});
            break;
        case u'%':
            section.percent = true;
            part->push_back({Token::Literal, QStringLiteral("%")});
            break;
        case u'\\':
            if (i + 1 < mask.size())
                part->push_back({Token::Literal, mask.at(++i)});
            break;
        case u'"': {
            const qsizetype close = mask.indexOf(QLatin1Char('"'), i + 1);
            const qsizetype stop = close < 0 ? mask.size() : close;
            part->push_back({Token::Literal, mask.mid(i + 1, stop - i - 1)});
            i = stop;
            break;
        }
        default:
            part->push_back({Token::Literal, c});
            break;
        }
    }
    // A comma with digit placeholders on both sides groups thousands; commas after the
    // last digit of the whole part divide by 1000 each.
    bool digitBefore = false;
    for (std::size_t i = 0; i < section.whole.size(); ++i) {
        const Token &t = section.whole[i];
        if (t.isDigit()) {
            digitBefore = true;
        } else if (t.kind == Token::Comma) {
            bool digitAfter = false;
            for (std::size_t j = i + 1; j < section.whole.size(); ++j)
                digitAfter = digitAfter || section.whole[j].isDigit();
            if (digitAfter && digitBefore)
                section.grouping = true;
            else if (!digitAfter && digitBefore)
                ++section.thousandsScale;
        }
    }
    return section;
}

// The digits of the magnitude scaled by 10^fractionDigits and rounded half away from
// zero, taken from its first `significant` decimal digits; "" for zero.
std::string scaledDigits(double magnitude, int significant, int shift, int fractionDigits)
{
    if (magnitude == 0.0)
        return {};
    const Digits d = decimalDigits(magnitude, significant);
    const long last = long(d.exponent) + shift + fractionDigits; // index of the last kept digit
    if (last < -1)
        return {};
    if (last == -1)
        return d.digits[0] >= '5' ? "1" : "";
    const std::size_t keep = std::size_t(last) + 1;
    std::string kept = d.digits.substr(0, std::min(keep, d.digits.size()));
    if (keep > d.digits.size()) {
        kept.append(keep - d.digits.size(), '0');
    } else if (keep < d.digits.size() && d.digits[keep] >= '5') {
        std::size_t i = kept.size();
        while (i > 0 && kept[i - 1] == '9')
            kept[--i] = '0';
        if (i == 0)
            kept.insert(kept.begin(), '1');
        else
            ++kept[i - 1];
    }
    return kept;
}

QString renderSection(const Section &section, double magnitude, int significant, bool minus)
{
    int fractionDigits = 0;
    for (const Token &t : section.fraction)
        fractionDigits += t.isDigit() ? 1 : 0;
    int minimumWhole = 0;
    bool zeroSeen = false;
    for (const Token &t : section.whole) {
        zeroSeen = zeroSeen || t.kind == Token::Zero;
        minimumWhole += zeroSeen && t.isDigit() ? 1 : 0;
    }
    const int shift = (section.percent ? 2 : 0) - 3 * section.thousandsScale;
    const QString digits =
        QString::fromLatin1(scaledDigits(magnitude, significant, shift, fractionDigits));
    QString whole = digits.left(std::max<qsizetype>(0, digits.size() - fractionDigits));
    const QString fraction = digits.right(std::min<qsizetype>(digits.size(), fractionDigits))
                                 .rightJustified(fractionDigits, QLatin1Char('0'));
    whole = whole.rightJustified(minimumWhole, QLatin1Char('0'));

    // The whole part, filled from the right; the leftmost placeholder takes every digit
    // left over.
    const QChar separator = thousandsMark();
    qsizetype leftmost = -1;
    for (std::size_t i = 0; i < section.whole.size(); ++i) {
        if (section.whole[i].isDigit()) {
            leftmost = qsizetype(i);
            break;
        }
    }
    QString wholeText;
    qsizetype next = whole.size(); // digits of `whole` not yet placed are [0, next)
    auto placeDigit = [&]() {
        --next;
        const qsizetype fromRight = whole.size() - 1 - next;
        if (section.grouping && fromRight > 0 && fromRight % 3 == 0)
            wholeText.prepend(separator);
        wholeText.prepend(whole.at(next));
    };
    for (qsizetype i = qsizetype(section.whole.size()) - 1; i >= 0; --i) {
        const Token &t = section.whole[std::size_t(i)];
        if (t.kind == Token::Literal) {
            wholeText.prepend(t.text);
        } else if (t.kind == Token::Point) {
            wholeText.prepend(decimalMark());
            // With no placeholder before the point, the whole digits still go in front
            // of it: ".00" writes 12.5 as "12.50".
            if (leftmost < 0) {
                while (next > 0)
                    placeDigit();
            }
        } else if (t.isDigit()) {
            if (i == leftmost) {
                while (next > 0)
                    placeDigit();
            } else if (next > 0) {
                placeDigit();
            }
        }
    }

    qsizetype shown = fractionDigits;
    {
        std::vector<Token::Kind> kinds;
        for (const Token &t : section.fraction) {
            if (t.isDigit())
                kinds.push_back(t.kind);
        }
        while (shown > 0 && fraction.at(shown - 1) == QLatin1Char('0') &&
               kinds[std::size_t(shown - 1)] == Token::Hash)
            --shown;
    }
    QString fractionText;
    qsizetype f = 0;
    for (const Token &t : section.fraction) {
        if (t.kind == Token::Literal) {
            fractionText += t.text;
        } else if (t.isDigit()) {
            if (f < shown)
                fractionText += fraction.at(f);
            ++f;
        }
    }
    return (minus ? QStringLiteral("-") : QString()) + wholeText + fractionText;
}

QString namedMask(const QString &mask)
{
    if (mask.compare(QLatin1String("Fixed"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("0.00");
    if (mask.compare(QLatin1String("Standard"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("#,##0.00");
    if (mask.compare(QLatin1String("Percent"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("0.00%");
    return mask;
}

QString formatNumber(double x, const QString &rawMask, int significant)
{
    if (!std::isfinite(x) || rawMask.isEmpty() ||
        rawMask.compare(QLatin1String("General Number"), Qt::CaseInsensitive) == 0)
        return generalForm(x, significant, decimalMark());
    const QStringList sections = splitSections(namedMask(rawMask));
    QString chosen = sections.at(0);
    bool minus = x < 0;
    if (x < 0 && sections.size() >= 2 && !sections.at(1).isEmpty()) {
        chosen = sections.at(1);
        minus = false;
    } else if (x == 0 && sections.size() >= 3 && !sections.at(2).isEmpty()) {
        chosen = sections.at(2);
    }
    return renderSection(parseSection(chosen), std::fabs(x), significant, minus);
}

} // namespace

QString CStr(double x)
{
    return generalForm(x, kDoubleDigits, decimalMark());
}

QString CStr(float x)
{
    return generalForm(double(x), kSingleDigits, decimalMark());
}

QString Str(double x)
{
    return plainForm(x, kDoubleDigits);
}

QString Str(float x)
{
    return plainForm(double(x), kSingleDigits);
}

QString Format(double x, const QString &mask)
{
    return formatNumber(x, mask, kDoubleDigits);
}

QString Format(float x, const QString &mask)
{
    return formatNumber(double(x), mask, kSingleDigits);
}

} // namespace zafro
