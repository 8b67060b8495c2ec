#include "online/divisas.h"

#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "runtime/rounding.h"
#include "shell/language.h"

namespace zafro {

const std::array<Moneda, kNumeroMonedas> &monedas()
{
    // The feed's order from USD on, which the lists have always followed.
    static const std::array<Moneda, kNumeroMonedas> table{{
        {"", slot::Euro},
        {"USD", slot::DolarEeuu},
        {"JPY", slot::YenJapones},
        {"CYP", slot::LibraChipriota},
        {"CZK", slot::CoronaChequia},
        {"DKK", slot::CoronaDanesa},
        {"EEK", slot::CoronaEstonia},
        {"GBP", slot::LibraEsterlina},
        {"HUF", slot::FlorinHungaro},
        {"LTL", slot::LitaLeton},
        {"LVL", slot::LatLeton},
        {"MTL", slot::LiraMaltesa},
        {"PLN", slot::ZlotyPolaco},
        {"SEK", slot::CoronaSueca},
        {"SIT", slot::TolarEsloveno},
        {"SKK", slot::CoronaEslovaca},
        {"CHF", slot::FrancoSuizo},
        {"ISK", slot::CoronaIslandesa},
        {"NOK", slot::CoronaNoruega},
        {"BGN", slot::LevBulgaro},
        {"HRK", slot::KunaCroata},
        {"ROL", slot::LeiRumano},
        {"RUB", slot::RubloRuso},
        {"TRY", slot::NuevaLiraTurca},
        {"AUD", slot::DolarAustraliano},
        {"CAD", slot::DolarCanadiense},
        {"CNY", slot::YuanChino},
        {"HKD", slot::DolarHongKong},
        {"IDR", slot::RupiaIndonesia},
        {"KRW", slot::WonSurcoreano},
        {"MYR", slot::RinggitMalasia},
        {"NZD", slot::DolarNeozelandes},
        {"PHP", slot::PesoFilipino},
        {"SGD", slot::DolarSingapur},
        {"THB", slot::BahtTailandes},
        {"ZAR", slot::RandSudafricano},
    }};
    return table;
}

QString nombreMoneda(int index)
{
    return texto(monedas().at(static_cast<size_t>(index)).slot);
}

std::optional<double> convertirDivisa(const QString &cantidad, const QString &tasaOrigen,
                                      const QString &tasaDestino)
{
    const double r1 = Val(tasaOrigen);
    const double r2 = Val(tasaDestino);
    if (r1 == 0 || r2 == 0)
        return std::nullopt;
    return Round(Val(cantidad) * r2 / r1, 3);
}

QString resultadoDivisa(const QString &cantidad, const QString &origen, double valor,
                        const QString &destino, bool manual)
{
    if (manual)
        return CStr(valor);
    return cantidad + u' ' + origen + QStringLiteral(" = ") + CStr(valor) + u' ' + destino;
}

QString fechaActualizacion(const QDate &date)
{
    const auto dosCifras = [](int n) {
        return (n < 10 ? QStringLiteral("0") : QString()) + CStr(n);
    };
    return dosCifras(date.day()) + u'/' + dosCifras(date.month()) + u'/' + CStr(date.year());
}

QString hastaNulo(const QString &text)
{
    const qsizetype nul = text.indexOf(QChar(0));
    return nul < 0 ? text : text.left(nul);
}

} // namespace zafro
