#include "identifiers/visas.h"

#include "identifiers/identifiers.h"
#include "platform/random.h"
#include "runtime/arith.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "runtime/runtime_error.h"
#include "shell/language_slots.h"

namespace zafro {

namespace {

qint32 valorDe(const QString &caracter)
{
    return CLng(Val(caracter));
}

// The sum without d16, which the generator holds to the limit.
qint32 sumaSinControl(const DigitosTarjeta &d)
{
    qint32 impares = 0;
    qint32 pares = 0;
    for (int i = 0; i < 15; ++i) {
        if (i % 2 == 0)
            impares = add32(impares, d[i]);
        else
            pares = add32(pares, d[i]);
    }
    return add32(mul32(2, impares), pares);
}

} // namespace

qint32 sumaControl(const DigitosTarjeta &d)
{
    return add32(sumaSinControl(d), d[15]);
}

bool sumaValida(qint32 suma)
{
    return mod32(suma, 10) == 0 && suma <= kSumaMaxima;
}

DigitosTarjeta generarTarjeta(Random &random, double tipo, const QString &banco)
{
    for (int intento = 0; intento < kGeneracionesMaximas; ++intento) {
        random.randomize();
        DigitosTarjeta d{};
        d[0] = CLng(tipo);
        d[1] = valorDe(banco.mid(0, 1));
        d[2] = valorDe(banco.mid(1, 1));
        d[3] = valorDe(banco.right(1));
        for (int i = 4; i < 15; ++i) {
            const int digito = digitoAlAzar(random);
            d[i] = digito == 10 ? 2 : digito;
        }
        const qint32 suma = sumaSinControl(d);
        if (suma > kSumaMaxima)
            continue;
        const qint32 ultimoDigito = mod32(suma, 10);
        d[15] = ultimoDigito == 0 ? 0 : 10 - ultimoDigito;
        return d;
    }
    throw RuntimeError::outOfStackSpace();
}

QStringList gruposTarjeta(const DigitosTarjeta &d)
{
    QStringList grupos;
    for (int g = 0; g < 4; ++g) {
        QString grupo;
        for (int i = 0; i < 4; ++i)
            grupo += CStr(d[g * 4 + i]);
        grupos << grupo;
    }
    return grupos;
}

QString bancoAlAzar(Random &random)
{
    random.randomize();
    QString banco;
    for (int i = 0; i < 3; ++i) {
        const int digito = digitoAlAzar(random);
        banco += CStr(digito != 10 ? digito : i < 2 ? 2 : 0);
    }
    return banco;
}

QString digitoDeTipo(const QString &entrada)
{
    const double digito = Val(entrada);
    return digito >= 3 && digito <= 6 && digito == qint32(digito) ? CStr(digito)
                                                                  : QStringLiteral("4");
}

DigitosTarjeta leerGrupos(const QStringList &grupos)
{
    DigitosTarjeta d{};
    for (int g = 0; g < 4; ++g) {
        const QString grupo = grupos.value(g);
        for (int i = 0; i < 3; ++i)
            d[g * 4 + i] = valorDe(grupo.mid(i, 1));
        d[g * 4 + 3] = valorDe(grupo.right(1));
    }
    return d;
}

int mensajeDeTipo(qint32 primerDigito)
{
    switch (primerDigito) {
    case 3:
        return slot::EsAmericanExpress;
    case 4:
        return slot::EsVisa;
    case 5:
        return slot::EsMasterCard;
    case 6:
        return slot::EsDiscover;
    default:
        return 0;
    }
}

} // namespace zafro
