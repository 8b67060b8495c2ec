#pragma once

// What the launcher decides apart from its window: which label opens which tool,
// the visit count, the values it writes at every load and its closing shrink.

#include <QString>

#include <array>

namespace zafro {

struct LauncherLabel {
    const char *name;  // the label, "Labelcom14b"
    int slot;          // its caption's language slot; 0 keeps the design text
    const char *opens; // the window it shows; empty for a place held for later
    bool resetsFirst;  // runs the colour reset before opening
};

inline constexpr char kPaLuego[] = "pa luego -->";

const std::array<LauncherLabel, 30> &launcherLabels();
const LauncherLabel *launcherLabel(const QString &name);

// Reads a clock, date or popup setting; one that reads 0 becomes 1, in the store too.
double formatoGuardado(const QString &valueName);

// Visitado plus one, written back, and the text of the counter label.
double contarVisita();
QString textoVisitas(double visitas);

// The load's writes outside the user's own settings: the maker's values, the
// messenger's warning cleared if it is still the maker's, the browser's start page.
void escribirValoresDelAutor();
void limpiarAvisoMensajero();
void ponerPaginaDeInicio();
QString messengerWarningPath();
QString startPagePath();

// One tick of the closing shrink, in twips: false when the suite ends instead.
bool pasoEncoger(int &widthTwips, int &heightTwips);

// The change list that the version label shows; not translated.
QString listaDeCambios();

} // namespace zafro
