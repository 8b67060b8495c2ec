#pragma once

// Cartesian graphs: the state that passes from the input window to the graph
// window, and the nine equations, each coded by hand.
//
// The input window reads its boxes into the module state; the graph window
// samples t from -100 to 100 in steps of the density and sets the dots that the
// chosen equation gives for each t. Some equations are computed otherwise than
// their text reads, and that is how they are drawn.

#include "formulas/coordenadas_muestreo.h"

#include <QString>
#include <QStringList>

namespace zafro {

// The equations in list order.
enum Ecuacion : qint16 {
    Recta = 1,
    Circunferencia,
    Elipse,
    ParabolaHorizontal,
    ParabolaVertical,
    Hiperbola,
    Seno,
    Coseno,
    Tangente,
};

struct Coordenadas {
    float a = 0;
    float b = 0;
    float c = 0;
    float e = 0;
    float d = 0;
    qint16 ecuacion = 0; // 0 while none was ever chosen
    QString densidad;
};

// The module's one copy, shared by the two windows.
Coordenadas &coordenadas();

// The list entries in the loaded language, in list order.
QStringList textosDeEcuaciones();
// The equation whose list entry the text is, or 0.
qint16 ecuacionDeTexto(const QString &texto);
// The equation as the input window shows it in its `Text1`.
QString formulaDeEcuacion(qint16 ecuacion);
// The graph window's note under the axes: the trigonometric ones are in radians.
QString notaDeEcuacion(qint16 ecuacion);

// The density as the module keeps it: the box read leniently and written as text.
QString densidadDeTexto(const QString &box);

// The sampling of the module's current equation. Before the loop it mends the
// coefficients that the equation mends, in the module copy itself.
class MuestreoCartesiano : public Muestreo {
public:
    explicit MuestreoCartesiano(Coordenadas &estado);

protected:
    void muestra(float t, QList<Punto> &puntos) const override;

private:
    const Coordenadas &estado_;
};

} // namespace zafro
