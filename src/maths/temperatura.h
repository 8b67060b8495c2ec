#pragma once

// Temperatures between Celsius, Fahrenheit and Kelvin, with the tool's own factors.

#include <QString>
#include <QStringList>

#include <iterator>

namespace zafro {

// One entry of the list, in list order. The spelling "Farenhait" is the tool's own
// and the same in every language.
struct ConversionTemperatura {
    const char16_t *nombre;
    const char16_t *desde; // unit letter beside the input
    const char16_t *hasta; // unit letter beside the result
};

inline constexpr ConversionTemperatura kConversionesTemperatura[] = {
    {u"Celsius - Farenhait", u"C", u"F"}, {u"Celsius - Kelvin", u"C", u"K"},
    {u"Farenhait - Celsius", u"F", u"C"}, {u"Farenhait - Kelvin", u"F", u"K"},
    {u"Kelvin - Celsius", u"K", u"C"},    {u"Kelvin - Farenhait", u"K", u"F"},
};
inline constexpr int kNumeroConversionesTemperatura = int(std::size(kConversionesTemperatura));

QStringList nombresConversionesTemperatura();

// The entry's formula applied to x, unrounded. The factors are not the textbook
// ones (1.8001, 32.0018, 0.5555, 17.7778, 273.1244) and must stay: 100 C gives
// 212.0118 F. A result beyond the double range is an overflow.
double convertirTemperatura(int entrada, double x);

} // namespace zafro
