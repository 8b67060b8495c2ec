#pragma once

// Polar graphs: ten fixed curves r(z) for z from 0 to 200 in steps of 0.01,
// about 32 turns, drawn at a fixed scale of -4 to 4. Each curve is coded by hand;
// the list texts are only names, and some curves are computed otherwise than
// their name reads.

#include "formulas/coordenadas_muestreo.h"

#include <QString>
#include <QStringList>

namespace zafro {

struct Polaress {
    float c = 0;         // the constant
    float s = 0;         // the sine coefficient
    float k = 0;         // the cosine coefficient
    qint16 ecuacion = 0; // 0 while none was ever matched
};

// The module's one copy, shared by the two windows.
Polaress &polaress();

// The list entries; part of the window's design, the same in every language.
const QStringList &textosPolares();
// The curve whose list entry is exactly this text (case counts), or 0.
qint16 ecuacionPolarDeTexto(const QString &texto);

// The text that makes the input window give up its sine and cosine boxes.
inline const QString kEspiral = QStringLiteral("z/c");

// The sampling of the module's current curve. The spiral mends a constant of 0
// to 1 in the module copy before the loop.
class MuestreoPolar : public Muestreo {
public:
    explicit MuestreoPolar(Polaress &estado);

protected:
    void muestra(float z, QList<Punto> &puntos) const override;

private:
    const Polaress &estado_;
};

} // namespace zafro
