#include "maths/romanos.h"

#include "runtime/arith.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"

namespace zafro {

namespace {

// The symbols of one decimal place: as units, fives and tens.
struct Lugar {
    char16_t uno;
    char16_t cinco;
    char16_t diez;
};

// By the number of digits left: 1 the units .. 4 the thousands; nullptr beyond.
const Lugar *lugarDe(qsizetype cifrasQuedan)
{
    static constexpr Lugar lugares[] = {
        {u'I', u'V', u'X'}, // units
        {u'X', u'L', u'C'}, // tens
        {u'C', u'D', u'M'}, // hundreds
        {u'M', u'Q', u'H'}, // thousands
    };
    if (cifrasQuedan < 1 || cifrasQuedan > 4)
        return nullptr;
    return &lugares[cifrasQuedan - 1];
}

QString cifraRomana(int cifra, const Lugar &lugar)
{
    const QChar uno(lugar.uno), cinco(lugar.cinco), diez(lugar.diez);
    if (cifra >= 1 && cifra <= 3)
        return QString(cifra, uno);
    if (cifra == 4)
        return QString(uno) + cinco;
    if (cifra >= 5 && cifra <= 8)
        return cinco + QString(cifra - 5, uno);
    if (cifra == 9)
        return QString(uno) + diez;
    return {};
}

// Trim takes off blanks only, not tabs or line breaks.
QString sinBlancos(const QString &text)
{
    qsizetype begin = 0, end = text.size();
    while (begin < end && text.at(begin) == u' ')
        ++begin;
    while (end > begin && text.at(end - 1) == u' ')
        --end;
    return text.mid(begin, end - begin);
}

bool esCifra(QChar c)
{
    return c >= u'0' && c <= u'9';
}

} // namespace

QString ConvertirRomano(qint16 numero)
{
    QString cifras = CStr(numero);
    QString romano;
    const qsizetype vueltas = cifras.size();
    for (qsizetype i = 0; i < vueltas; ++i) {
        // kept: the leading character is read strictly, so the "-" of a negative
        // number stops the program with a type mismatch.
        const qint16 cifra = CInt(cifras.left(1));
        const Lugar *lugar = lugarDe(cifras.size());
        // kept: a fifth digit has no place and is never taken off, so a number of
        // five digits gives empty text rather than the numeral of its last four.
        if (!lugar)
            continue;
        romano += cifraRomana(cifra, *lugar);
        cifras.remove(0, 1);
    }
    return romano;
}

qint16 VerValor(const QString &letra)
{
    static const struct {
        char16_t letra;
        qint16 valor;
    } valores[] = {
        {u'I', 1},   {u'V', 5},    {u'X', 10},   {u'L', 50},    {u'C', 100},
        {u'D', 500}, {u'M', 1000}, {u'Q', 5000}, {u'H', 10000},
    };
    if (letra.size() != 1)
        return 0;
    for (const auto &v : valores)
        if (letra.at(0) == v.letra)
            return v.valor;
    return 0;
}

qint16 ConvertirArabe(const QString &romano)
{
    QString resto = sinBlancos(romano);
    qint16 total = 0;
    while (!resto.isEmpty()) {
        const qint16 v = VerValor(resto.left(1));
        resto.remove(0, 1);
        const qint16 w = VerValor(resto.left(1));
        total = v >= w ? add16(total, v) : sub16(total, v);
    }
    return total;
}

double HexADec(const QString &hexa)
{
    double suma = 0;
    const qsizetype largo = hexa.size();
    for (qsizetype k = largo - 1; k >= 0; --k) {
        const qsizetype lugar = largo - k;
        const QChar c = hexa.at(k);
        int valor = 0;
        if (esCifra(c)) {
            valor = c.unicode() - u'0';
        } else {
            const QChar minuscula = c.toLower();
            // kept: a character that is no hexadecimal digit is skipped, but its
            // place still counts, so "1G" reads 16.
            if (minuscula < u'a' || minuscula > u'f')
                continue;
            valor = minuscula.unicode() - u'a' + 10;
        }
        if (lugar == 1)
            suma = valor;
        else
            suma = checkDouble(suma + checkDouble(valor * power(16, double(lugar - 1))));
    }
    return suma;
}

qint32 BinADec(const QString &binario)
{
    qint32 suma = 0;
    const qsizetype largo = binario.size();
    for (qsizetype k = largo - 1; k >= 0; --k) {
        const qsizetype lugar = largo - k;
        const double cifra = CDbl(QString(binario.at(k)));
        suma = CLng(checkDouble(suma + checkDouble(cifra * power(2, double(lugar - 1)))));
    }
    return suma;
}

QString DecABin(qint32 valor)
{
    // kept: the remainder takes the sign of the value, so a negative value is
    // written with "-1" digits.
    QString binario = CStr(mod32(valor, 2));
    while (div32(valor, 2) != 0) {
        valor = div32(valor, 2);
        binario.prepend(CStr(mod32(valor, 2)));
    }
    return binario;
}

} // namespace zafro
