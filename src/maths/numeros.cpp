#include "maths/numeros.h"

#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "runtime/rounding.h"

#include <cmath>

namespace zafro {

namespace {

const char *const kUnidades[21] = {
    "",        "UN",     "DOS",       "TRES",       "CUATRO",    "CINCO",      "SEIS",
    "SIETE",   "OCHO",   "NUEVE",     "DIEZ",       "ONCE",      "DOCE",       "TRECE",
    "CATORCE", "QUINCE", "DIECISEIS", "DIECISIETE", "DIECIOCHO", "DIECINUEVE", "VEINTE"};

// Entries 0 and 1 are never used: a single ten is DIEZ and 11 to 20 stay whole.
const char *const kDecenas[11] = {"",         "",          "VEINTI",  "TREINTA",
                                  "CUARENTA", "CINCUENTA", "SESENTA", "SETENTA",
                                  "OCHENTA",  "NOVENTA",   "CIEN"};

const char *const kCentenas[10] = {
    "",           "CIENTO",      "DOSCIENTOS",  "TRESCIENTOS", "CUATROCIENTOS",
    "QUINIENTOS", "SEISCIENTOS", "SETECIENTOS", "OCHOCIENTOS", "NOVECIENTOS"};

// kept: "Elevan", "fifteen" and "Ninteen" are spelled as they always were.
const char *const kWords[21] = {
    "",         "One",     "Two",     "Three",     "Four",     "Five",    "Six",
    "Seven",    "Eight",   "Nine",    "Ten",       "Elevan",   "Twelve",  "Thirteen",
    "Fourteen", "fifteen", "Sixteen", "Seventeen", "Eighteen", "Ninteen", "Twenty"};

const char *const kTens[10] = {"",      "",      "Twenty",  "Thirty", "Forty",
                               "Fifty", "Sixty", "Seventy", "Eighty", "Ninety"};

QString centesimas(double fraccion)
{
    // kept: halves go to the even hundredth, and 0,999 reads 100/100.
    return QStringLiteral(" CON ") + Format(Round(fraccion * 100), QStringLiteral("00")) +
           QStringLiteral("/100");
}

// The value of the last n characters of a text, as the digit groups are read.
double derecha(const QString &s, int n)
{
    return Val(s.right(n));
}

QString word(double x)
{
    return QLatin1String(kWords[int(x)]);
}

} // namespace

QString NroEnLetras(double numero, bool masculino)
{
    QString resultado;
    // kept: a value between -1 and 0 floors to -1, so it gets no "CERO".
    if (Int(numero) == 0)
        resultado = QStringLiteral("CERO");
    const bool negativo = numero < 0;
    if (negativo)
        numero = -numero;
    double fraccion = 0;
    if (numero != Int(numero)) {
        fraccion = numero - Int(numero);
        numero = Int(numero);
    }

    // The same counts that repeated subtraction gives, exact below 2^53; above, the
    // rounding keeps the count of millions whole.
    const double restoMillones = std::fmod(numero, 1e6);
    const double millones = std::round((numero - restoMillones) / 1e6);
    int resto = int(restoMillones);
    const int miles = resto / 1000;
    resto %= 1000;
    const int centenas = resto / 100;
    resto %= 100;
    int decenas = 0;
    if (!(resto > 10 && resto <= 20)) {
        decenas = resto / 10;
        resto %= 10;
    }

    if (millones > 0) {
        // kept: a million millions is "UN MILLON MILLONES"; there is no larger word.
        resultado = (resultado + NroEnLetras(millones, false)).trimmed() +
                    QStringLiteral(" MILLON") +
                    (millones >= 2 ? QStringLiteral("ES ") : QStringLiteral(" "));
    }
    if (miles > 0)
        resultado = (resultado + NroEnLetras(miles, false)).trimmed() + QStringLiteral(" MIL ");
    if (centenas > 0) {
        if (centenas == 1 && decenas == 0 && resto == 0)
            resultado += QStringLiteral("CIEN");
        else
            resultado += QLatin1String(kCentenas[centenas]) + QLatin1Char(' ');
    }
    const QString o = masculino && resto == 1 ? QStringLiteral("O") : QString();
    if (decenas == 0) {
        // kept: this way out never puts a negative number in brackets.
        resultado += QLatin1String(kUnidades[resto]) + o;
        if (fraccion > 0)
            resultado = resultado.trimmed() + centesimas(fraccion);
        return resultado;
    }
    resultado += QLatin1String(decenas == 1 ? kUnidades[10] : kDecenas[decenas]);
    if (decenas >= 3 && resto > 0)
        resultado += QStringLiteral(" Y ");
    if (resto > 0)
        resultado += QLatin1String(kUnidades[resto]) + o;
    if (fraccion > 0)
        resultado += centesimas(fraccion);
    if (negativo)
        resultado = QLatin1Char('(') + resultado + QLatin1Char(')');
    return resultado;
}

QString UnitWord(double x)
{
    return word(derecha(CStr(x), 1));
}

QString TensWord(double x)
{
    return x >= 2 && x <= 9 && x == Int(x) ? QLatin1String(kTens[int(x)]) : QString();
}

QString TwoDigitWords(double x)
{
    if (x > 9 && x < 21 && x == Int(x))
        return word(x);
    if (x == 0)
        return {};
    const double unidad = derecha(CStr(x), 1);
    const QString units = UnitWord(unidad);
    if (x - unidad != 0)
        return TensWord((x - unidad) / 10) + QLatin1Char(' ') + units;
    return units;
}

QString EnglishWords(const QString &value)
{
    if (value.isEmpty())
        return {};
    if (!IsNumeric(value))
        return QStringLiteral("Non Numeric text");
    QString sinSigno = value;
    const auto esSigno = [](QChar c) { return c == u'+' || c == u'-'; };
    if (esSigno(sinSigno.front()))
        sinSigno.remove(0, 1);
    else if (esSigno(sinSigno.back()))
        sinSigno.chop(1);
    const double numero = CDbl(sinSigno);
    const QString s = Format(numero, QStringLiteral("#################0"));

    const double r = derecha(s, 2);
    const double ultima = derecha(s, 1);
    QString units;
    QString tens;
    if (r <= 9 || r >= 21) {
        units = UnitWord(ultima);
        tens = TensWord((r - ultima) / 10);
    } else {
        units = word(r);
    }
    // kept: every group adds its blank even when empty, so blanks pile up.
    QString resultado = tens + QLatin1Char(' ') + units;

    QString hundred = UnitWord((derecha(s, 3) - derecha(s, 2)) / 100);
    if (!hundred.isEmpty())
        hundred += QStringLiteral(" Hundred");
    resultado = hundred + QLatin1Char(' ') + resultado;

    QString thousand = TwoDigitWords((derecha(s, 5) - derecha(s, 3)) / 1000);
    if (!thousand.isEmpty())
        thousand += QStringLiteral(" Thousand");
    resultado = thousand + QLatin1Char(' ') + resultado;

    // kept: the Indian grouping, two digits at a time above the thousands.
    if (numero > 99999) {
        QString lakhs = TwoDigitWords((derecha(s, 7) - derecha(s, 5)) / 100000);
        if (!lakhs.isEmpty())
            lakhs += QStringLiteral(" Lakhs ");
        resultado = lakhs + QLatin1Char(' ') + resultado;
    }
    // kept: the group of ten millions is named "millions".
    if (numero > 9999999) {
        const QString millions = TwoDigitWords((derecha(s, 9) - derecha(s, 7)) / 10000000) +
                                 QStringLiteral(" millions ");
        resultado = millions + QLatin1Char(' ') + resultado;
    }
    if (numero > 999999999) {
        const QString hundredMillions = UnitWord((derecha(s, 10) - derecha(s, 9)) / 1000000000);
        if (!hundredMillions.isEmpty())
            resultado = hundredMillions + QStringLiteral(" hundred ") + resultado;
    }
    if (numero > 9999999999)
        resultado = QStringLiteral("More than 999 millions");
    if (value.front() == u'-')
        resultado = QStringLiteral(" Minus ") + resultado;
    return resultado;
}

} // namespace zafro
