#pragma once

// What every tool window's frame decides, apart from the window: the animated
// title's captions and the key filter of the numeric fields.

#include <QString>

namespace zafro {

// The caption for a step of the title animation, 1 to 19: the letters close up in
// the first six steps, rest for seven and open again in the last six.
QString tituloAnimado(int paso);

// One tick of the title: the step that follows pasoTitulo (empty at load) while the
// animation is on. Step 20 is never shown: it wraps round to 1.
QString siguientePasoTitulo(const QString &pasoTitulo);

// The key to keep, or 0 to drop it: backspace, "." and digits pass.
int solooonumeros(int keyAscii, int ignored = 0);

} // namespace zafro
