#include "signals/morsemod.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <string_view>

namespace zafro {

namespace {

struct CodigoMorse {
    char16_t caracter;
    std::u16string_view codigo;
    QStringView vista() const { return QStringView(codigo.data(), qsizetype(codigo.size())); }
};

// kept: "(" and ")" share a code; "(" stands first, so it is what decodes.
constexpr std::array<CodigoMorse, 48> kTabla{{
    {u'a', u".-/"},     {u'b', u"-.../"},    {u'c', u"-.-./"},   {u'd', u"-../"},
    {u'e', u"./"},      {u'f', u"..-./"},    {u'g', u"--./"},    {u'h', u"..../"},
    {u'i', u"../"},     {u'j', u".---/"},    {u'k', u"-.-/"},    {u'l', u".-../"},
    {u'm', u"--/"},     {u'n', u"-./"},      {u'o', u"---/"},    {u'p', u".--./"},
    {u'q', u"--.-/"},   {u'r', u".-./"},     {u's', u".../"},    {u't', u"-/"},
    {u'u', u"..-/"},    {u'v', u"...-/"},    {u'w', u".--/"},    {u'x', u"-..-/"},
    {u'y', u"-.--/"},   {u'z', u"--../"},    {u'1', u".----/"},  {u'2', u"..---/"},
    {u'3', u"...--/"},  {u'4', u"....-/"},   {u'5', u"...../"},  {u'6', u"-..../"},
    {u'7', u"--.../"},  {u'8', u"---../"},   {u'9', u"----./"},  {u'0', u"-----/"},
    {u'.', u".-.-.-/"}, {u',', u"--..--/"},  {u'?', u"..--../"}, {u'=', u"-...-/"},
    {u'-', u"-....-/"}, {u'(', u"-.--.-/"},  {u')', u"-.--.-/"}, {u':', u"---.../"},
    {u';', u"-.-.-./"}, {u'\'', u".----./"}, {u'/', u"-..-./"},  {u'$', u"...-..-/"},
}};

constexpr QChar kBarra = u'/';
constexpr QChar kBlanco = u' ';

// The dots and dashes of a code as bits (a dash is 1); -1 for any other character.
int marcasEnBits(QStringView marcas)
{
    int bits = 0;
    for (const QChar m : marcas) {
        if (m != u'.' && m != u'-')
            return -1;
        bits = bits * 2 + (m == u'-');
    }
    return bits;
}

// The character of each code by its number of marks and their bits; the first in
// the table wins.
const std::array<std::array<char16_t, 128>, 8> &caracterPorMarcas()
{
    static const auto tabla = [] {
        std::array<std::array<char16_t, 128>, 8> t{};
        for (const CodigoMorse &e : kTabla) {
            const QStringView marcas = e.vista().chopped(1);
            char16_t &c = t[marcas.size()][marcasEnBits(marcas)];
            if (c == 0)
                c = e.caracter;
        }
        return t;
    }();
    return tabla;
}

} // namespace

QString TextoAMorse(const QString &text)
{
    QString morse;
    morse.reserve(text.size() * 5 + 1);
    for (const QChar c : text.toLower()) {
        if (c == kBlanco) {
            morse += kBarra;
            continue;
        }
        const auto *entrada = std::find_if(kTabla.begin(), kTabla.end(),
                                           [c](const CodigoMorse &e) { return e.caracter == c; });
        if (entrada != kTabla.end())
            morse += entrada->vista();
        else
            morse += c;
    }
    morse += kBarra;
    return morse;
}

QString MorseATexto(const QString &code)
{
    QString text;
    const QStringView resto(code);
    qsizetype i = 0;
    while (i < resto.size()) {
        bool hallado = false;
        for (qsizetype largo = 8; largo >= 2 && !hallado; --largo) {
            // Every code ends in "/": only a candidate that does can match.
            if (i + largo > resto.size() || resto[i + largo - 1] != kBarra)
                continue;
            const int bits = marcasEnBits(resto.mid(i, largo - 1));
            if (bits >= 0 && caracterPorMarcas()[largo - 1][bits] != 0) {
                text += QChar(caracterPorMarcas()[largo - 1][bits]);
                i += largo;
                hallado = true;
            }
        }
        if (hallado)
            continue;
        text += resto[i] == kBarra ? kBlanco : resto[i];
        ++i;
    }
    return text;
}

int intervaloMorse(int velocidad)
{
    return 200000 / velocidad;
}

std::optional<TonoMorse> tonoMorse(QChar c, int frecuencia, int velocidad)
{
    // kept: truncated, so 3000 gives 66, 200 and 166 ms.
    if (c == u'.')
        return TonoMorse{frecuencia, 200000 / velocidad};
    if (c == u'-')
        return TonoMorse{frecuencia, 600000 / velocidad};
    if (c == kBarra)
        return TonoMorse{0, 500000 / velocidad};
    return std::nullopt;
}

} // namespace zafro
