#include "plates/matriculas.h"

#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/language.h"
#include "shell/settings.h"

namespace zafro::matriculas {

namespace {

// No vowels, no Ñ and no Q, so that no plate spells a word.
constexpr char16_t kConsonantes[] = u"BCDFGHJKLMNPRSTVWXYZ";

QString subclave()
{
    return QString::fromUtf16(kSubclave);
}

// Day or month of the data: read as a number, a "0" ahead of 9 and below.
QString dosCifras(const QString &valor)
{
    const double n = Val(readConfig(valor, subclave()));
    return (n <= 9 ? QStringLiteral("0") : QString()) + CStr(n);
}

} // namespace

int valorConsonante(const QString &letra)
{
    if (letra.size() != 1)
        return -1;
    const QString todas = QString::fromUtf16(kConsonantes);
    return int(todas.indexOf(letra.at(0)));
}

bool letraAdmitida(const QString &texto)
{
    return texto.isEmpty() || valorConsonante(texto.toUpper()) >= 0;
}

double numeroCoche(double digitos, int l1, int l2, int l3)
{
    return l1 * 4000000.0 + l2 * 200000.0 + l3 * 10000.0 + digitos;
}

QString rellenarCifras(const QString &texto)
{
    // Each test reads the text the previous one wrote; only the last that applies
    // decides the number of zeros.
    QString t = texto;
    if (Val(t) < 1000)
        t = QStringLiteral("0") + CStr(Val(t));
    if (Val(t) < 100)
        t = QStringLiteral("00") + CStr(Val(t));
    if (Val(t) < 10)
        t = QStringLiteral("000") + CStr(Val(t));
    return t;
}

QString nombreValorMes(int k)
{
    const int desdeEnero = 8 + k; // September 2000 is month 8 of 2000, counting from 0
    const int ano = 2000 + desdeEnero / 12;
    const int mes = desdeEnero % 12 + 1;
    return QStringLiteral("%1%2").arg(ano).arg(mes, 2, 10, QLatin1Char('0'));
}

Acumulados cargarAcumulados()
{
    Acumulados acumulados{};
    double total = 0;
    for (int k = 0; k < kMeses; ++k) {
        total += Val(readConfig(nombreValorMes(k), subclave()));
        acumulados[std::size_t(k)] = total;
    }
    return acumulados;
}

int mesDelOrdinal(const Acumulados &acumulados, double numero)
{
    for (int k = 0; k < kMeses; ++k)
        if (acumulados[std::size_t(k)] >= numero)
            return k;
    return -1;
}

QString fechaDelMes(int k)
{
    const int desdeEnero = 8 + k;
    return texto(slot::Enero + desdeEnero % 12) + texto(slot::MesDelAno) +
           CStr(2000 + desdeEnero / 12);
}

bool datosEntrados()
{
    return readConfigNumber(QStringLiteral("entrado"), subclave()) == 1;
}

QString fechaDatos(bool mesPrimero)
{
    const QString dia = dosCifras(QStringLiteral("act1"));
    const QString mes = dosCifras(QStringLiteral("act2"));
    const QString ano = CStr(readConfigNumber(QStringLiteral("act3"), subclave()));
    return (mesPrimero ? mes + u'/' + dia : dia + u'/' + mes) + u'/' + ano;
}

int idiomaCargado()
{
    return int(Val(texto(slot::CodigoIdioma)));
}

void cargarIdioma(int codigo)
{
    if (codigo == 2)
        CargarIngles();
    else if (codigo == 4)
        CargarValenciano();
    else
        CargarEspanol();
}

} // namespace zafro::matriculas
