#pragma once

// Vehicle plates: the dating of the national format in use since September 2000.
//
// A plate of four digits and three consonants is one vehicle of a single national
// sequence: the consonants count in base twenty and the digits run inside each
// letter group, which gives the plate's ordinal (numeroCoche). The settings store
// keeps, for each of the 124 months from September 2000 to December 2010, how many
// vehicles were registered in that month alone; summed month by month they become
// the running totals (acumulados), and a plate belongs to the first month whose
// running total reaches its ordinal. The counts arrive from the maker's server or a
// saved copy of its document; nothing is built in, so with no data every month is 0.
//
// The year lists of the two provincial formats are fixed data of their own.

#include <QString>

#include <array>

namespace zafro::matriculas {

inline constexpr int kMeses = 124; // September 2000 to December 2010
using Acumulados = std::array<double, kMeses>;

// The store's subkey under the suite's root that holds every plates value.
inline constexpr char16_t kSubclave[] = u"Matriculas";

// Value of one consonant of the national format, B = 0 to Z = 19, upper case only;
// -1 for anything that is not exactly one of the twenty (vowels, Ñ, Q, empty text).
int valorConsonante(const QString &letra);

// What a letter box accepts while typing: nothing, or one consonant in either case.
bool letraAdmitida(const QString &texto);

// The ordinal of a plate: 0000 BBB is 0 and 9999 ZZZ is 79999999.
double numeroCoche(double digitos, int l1, int l2, int l3);

// Zero-fills the digits box the way Calculate does: three tests on the number read
// from the current text, each one rewriting it, so "7" ends as "0007" and a text
// with no number as "0000".
QString rellenarCifras(const QString &texto);

// Name in the store of month k (0 is "200009", 123 is "201012").
QString nombreValorMes(int k);

// The running totals from the stored month counts, read leniently (a missing or
// unreadable count is 0).
Acumulados cargarAcumulados();

// The first month whose running total reaches the ordinal, or -1 if none does.
int mesDelOrdinal(const Acumulados &acumulados, double numero);

// Month k in the loaded language: "Septiembre del 2000", "September 2000".
QString fechaDelMes(int k);

// Whether a data set has been stored ("entrado" reads 1).
bool datosEntrados();

// The data's date from act1, act2 and act3, day and month zero-filled below 10 and
// every part read as a number, so that with no data it reads "00/00/0". The month
// goes first when asked (English).
QString fechaDatos(bool mesPrimero);

// The code of the loaded language table: 1 Spanish, 2 English, 4 Valencian.
int idiomaCargado();
inline bool inglesCargado()
{
    return idiomaCargado() == 2;
}

// Loads the language table of a plates language code; anything but 2 or 4 is Spanish.
void cargarIdioma(int codigo);

// Texts of the window's controls and messages that the language table does not hold.
inline constexpr char16_t kAvisoPosterior2010[] =
    u"La versión de programa que usa no puede datar matrículas posteriores a 2010.";
inline constexpr char16_t kTituloError[] = u"Error";
// The version the window reports when it runs under the suite's launcher.
inline constexpr char16_t kVersionPropia[] = u"1.4.3";

} // namespace zafro::matriculas
