#pragma once

// The start-up chain: inicio dispatches (uninstall, language choice, splash or
// launcher), idiomaa stores a language and restarts the chain inside the running
// process, intro plays the splash, nuevos welcomes a first run. These are the
// decisions of that chain, apart from its windows.

#include <QString>

namespace zafro {

// Major, minor and revision joined by points: "4.6.32".
QString versionText();

// Runs the language loader for a stored code (1, 2 or 4); any other code runs
// none and leaves the table as it is. Returns whether a loader ran.
bool cargarIdiomaPorCodigo(double code);

// The splash's status line at a tick of its timer, or a null text where it does
// not change. paso is 1 on later runs and 2 on a first run.
QString introMensaje(int contador, int paso);
// Whether the splash enters the suite at this tick.
bool introEntra(int contador, int paso);

// What index does at the end of its load when the visit counter, just raised,
// shows that no skin was ever applied (the splash and welcome were skipped):
// store skin 2 as the skin window would, and hide what the first run left open.
void primeraVisitaIndex(double visitas);

} // namespace zafro
