#pragma once

// Currency rates: the 36 currencies of the converter, the conversion itself and
// the values the rate update stores. Every rate is units of a currency per euro,
// kept in the store as the feed's own decimal text.

#include <QDate>
#include <QString>

#include <array>
#include <optional>

namespace zafro {

struct Moneda {
    const char *codigo; // empty for the euro, whose rate is 1
    int slot;           // its name in the language table
};

inline constexpr int kNumeroMonedas = 36;
const std::array<Moneda, kNumeroMonedas> &monedas();
QString nombreMoneda(int index); // in the loaded language

// The store's subkey of the rates, Entrado and Fecha.
inline constexpr char16_t kDivisasKey[] = u"Divisas";
// The bank's page of reference rates, opened from both windows.
inline constexpr char16_t kPaginaBanco[] =
    u"https://www.ecb.europa.eu/stats/policy_and_exchange_rates/euro_reference_exchange_rates/"
    u"html/index.en.html";

// amount × target rate ÷ source rate, all read leniently, rounded to three
// decimals with halves to even; nothing when either rate reads 0.
std::optional<double> convertirDivisa(const QString &cantidad, const QString &tasaOrigen,
                                      const QString &tasaDestino);

// The result line: "<amount> <source> = <value> <target>", or the value alone
// when the rates were typed by hand.
QString resultadoDivisa(const QString &cantidad, const QString &origen, double valor,
                        const QString &destino, bool manual);

// The date of an update as stored, day first with two-digit day and month.
QString fechaActualizacion(const QDate &date);

// A stored text up to its terminating NUL, as a control shows it.
QString hastaNulo(const QString &text);

} // namespace zafro
