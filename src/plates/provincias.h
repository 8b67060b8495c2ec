#pragma once

// Vehicle plates: the dating of the two provincial formats.
//
// Before September 2000 every province numbered its plates on its own. From 1971 a
// plate was a province code, four digits and one or two letters ("V · 6497 · GH");
// the letters count in base twenty-four above the digits, giving the plate's
// ordinal within its province. Before 1971 it was the code and a number alone
// ("M - 134973"), the number being the ordinal. Either way the ordinal is looked up
// in the province's list of year-end totals, year by year from the first, and the
// month is a straight-line share of the year in which it falls. The lists are data
// files compiled into the program (data/), one row per province and format.

#include <QString>
#include <QStringList>

#include <functional>

namespace zafro::provincias {

inline constexpr int kProvincias = 52;
inline constexpr int kSinProvincia = 52; // the index that means "none chosen"
inline constexpr int kTerritorios = 8;   // former territories, after the blank entry
inline constexpr int kAnos1971 = 30;     // 1971 to 2000
inline constexpr int kAnos1900 = 58;     // before 1914, then 1915 to 1971
// The counter of the search goes this far before a plate is declared not to exist.
inline constexpr int kUltimoPaso = 101;

struct Provincia {
    const char *codigo;
    const char16_t *nombre;
    const char *lista1971; // name of its 1971-2000 year list
    const char *lista1900; // name of its list before 1971
};

// The 52 provinces in the order of the lists, names as the plates window shows them.
const Provincia &provincia(int indice);

// The former territories of the old format, with their codes.
struct Territorio {
    const char *codigo;
    const char16_t *nombre;
};
const Territorio &territorio(int indice); // 0 to kTerritorios - 1

// The name that follows "no existe en ": two provinces are named otherwise there.
QString nombreEnMensaje(int indice);

// A year list by its name ("bprovi", "cprom"): its entries as written, decimal texts.
// Unknown names give an empty list.
QStringList lista(const QString &nombre);

// Entry i of a list read as a number; past either end it reads 0.
double entrada(const QStringList &lista, int i);

// Value of one letter of the 1971-2000 format in either case, A = 0 to Z = 23 with
// no Ñ, Q or R; -1 for anything else.
int valorLetra(QChar letra);

// The ordinal of a 1971-2000 plate from its digits and one or two letter values:
// "A" plates start at 10000, "AA" plates at 250000.
double numeroCoche(double digitos, int letra);
double numeroCoche(double digitos, int letra1, int letra2);

// The year found for an ordinal: c is the total of year `ano` (an index into the
// list), p the total of the year before (0 before the first).
struct Hallazgo {
    enum Tipo { Parada, Encontrado, NoExiste } tipo = Parada;
    int ano = -1;
    double p = 0;
    double c = 0;
};

// The search, one step per year tried: each step first runs `antesDelPaso`, which
// may stop the search (it returns false), then moves the counter `indice` (kept as
// text by the window) on by one and compares that year's total with the ordinal.
// The first year whose total reaches the ordinal wins; past the list's end totals
// read 0, so an ordinal above the last total is declared not to exist only once the
// counter has passed kUltimoPaso - 1. A finished search leaves the counter at "-1".
Hallazgo buscarAno(const QStringList &lista, double numero, QString &indice,
                   const std::function<bool()> &antesDelPaso = {});

// The month of the year, 0 for January: the ordinal's share of the year's plates
// times the factor (11 for a whole year), rounded half to even.
int mesEstimado(double numero, double p, double c, double factor);

} // namespace zafro::provincias
