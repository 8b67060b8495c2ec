#include "games/tresenraya.h"

#include "runtime/convert.h"
#include "runtime/numtext.h"

#include <algorithm>

namespace zafro {

namespace {

const QString kJ1 = QStringLiteral("j1");
const QString kJ2 = QStringLiteral("j2");

QChar digito(int casilla)
{
    return QChar(u'0' + casilla);
}

struct Raya {
    const char *cifras;
    Linea TresEnRaya::*linea;
    Linea coordenadas;
};

const Raya kRayas[] = {
    {"012", &TresEnRaya::lneHorizontal, {120, 2280, 3720, 2280, true}},
    {"345", &TresEnRaya::lneHorizontal, {120, 3600, 3720, 3600, true}},
    {"678", &TresEnRaya::lneHorizontal, {120, 4920, 3720, 4920, true}},
    {"036", &TresEnRaya::lneVertical, {480, 1920, 480, 5280, true}},
    {"147", &TresEnRaya::lneVertical, {1920, 1920, 1920, 5280, true}},
    {"258", &TresEnRaya::lneVertical, {3360, 1920, 3360, 5280, true}},
    {"048", &TresEnRaya::lneDiagonal, {240, 2040, 3600, 5160, true}},
    {"246", &TresEnRaya::lneDiagonal, {3600, 2040, 240, 5160, true}},
};

// The squares joined to each square by a line of the board.
const char *const kVecinas[9] = {"134", "024", "145", "046", "01235678",
                                 "248", "347", "468", "457"};

} // namespace

QString otroJugador(const QString &jugador)
{
    return jugador == kJ1 ? kJ2 : kJ1;
}

// Whatever is not "j1" counts as player 2, as every two-way choice of the game does.
QString &TresEnRaya::fichasDe(const QString &jugador)
{
    return jugador == kJ1 ? fichasJ1 : fichasJ2;
}

QString &TresEnRaya::anterioresDe(const QString &jugador)
{
    return jugador == kJ1 ? fichasJ1Anterior : fichasJ2Anterior;
}

TresEnRaya::Casillas &TresEnRaya::fichaDe(const QString &jugador)
{
    return jugador == kJ1 ? shp1 : shp2;
}

TresEnRaya::Casillas &TresEnRaya::seleccionDe(const QString &jugador)
{
    return jugador == kJ1 ? shpSel1 : shpSel2;
}

void TresEnRaya::reiniciar()
{
    shp1.fill(false);
    shp2.fill(false);
    shpSel1.fill(false);
    shpSel2.fill(false);
    turno = kJ1;
    contadorFichas = 0;
    fichasJ1.clear();
    fichasJ2.clear();
    lneHorizontal.visible = lneVertical.visible = lneDiagonal.visible = false;
}

bool TresEnRaya::colocarFicha(int casilla, const QString &turnoDe)
{
    const QChar d = digito(casilla);
    if (fichasJ1.contains(d) || fichasJ2.contains(d))
        return false;
    if (turnoDe == kJ1)
        fichasJ1 += d;
    else if (turnoDe == kJ2)
        fichasJ2 += d;
    return true;
}

void TresEnRaya::moverEnCadena(int casillaNueva, int casillaOrigenDe, const QString &cadena,
                               const QString &turnoDe)
{
    QString nueva;
    for (const QChar c : cadena)
        nueva += Val(QString(c)) == casillaOrigenDe ? digito(casillaNueva) : c;
    (turnoDe == kJ1 ? fichasJ1 : fichasJ2) = nueva;
}

bool TresEnRaya::comprobarRaya(const QString &cadena)
{
    // kept: only a string of exactly three pieces is looked at, so a fourth piece
    // placed after an early line never scores again.
    if (cadena.size() != 3)
        return false;
    QString ordenada = cadena;
    std::sort(ordenada.begin(), ordenada.end());
    lneHorizontal.x1 = 120;
    lneHorizontal.x2 = 3720;
    lneHorizontal.y1 = 2280;
    lneVertical.y1 = 1920;
    lneVertical.y2 = 5280;
    for (const Raya &raya : kRayas)
        if (ordenada == QLatin1String(raya.cifras)) {
            this->*raya.linea = raya.coordenadas;
            return true;
        }
    return false;
}

Jugada TresEnRaya::imgPosicionClick(int casilla)
{
    Jugada jugada;
    ultimaCasilla = qint16(casilla);
    fichasJ1Anterior = fichasJ1;
    fichasJ2Anterior = fichasJ2;

    if (contadorFichas >= 0 && contadorFichas <= 5) {
        const QString alEmpezar = turno;
        if (colocarFicha(casilla, turno)) {
            fichaDe(turno)[casilla] = true;
            turnoAnterior = turno;
            turno = otroJugador(turno);
            // kept: a line ends the click before the count grows, so placing lasts
            // one piece longer.
            if (comprobarRaya(fichasDe(turnoAnterior))) {
                jugada.punto = turnoAnterior;
                return jugada;
            }
            contadorAnterior = contadorFichas;
            ++contadorFichas;
        }
        // kept: an occupied square names the other player while the turn stays.
        jugada.lblTurno = otroJugador(alEmpezar);
        origenAnterior = origenElegido;
        origenElegido = false;
        return jugada;
    }

    contadorFichas = -1;
    const bool propia = fichasDe(turno).contains(digito(casilla));
    if (!origenElegido) {
        casillaOrigen = casillaDeshacer = qint16(casilla);
        if (!propia)
            return jugada;
        seleccionDe(turno)[casilla] = true;
        origenAnterior = origenElegido;
        turnoAnterior = turno;
        origenElegido = soloSeleccion = true;
        return jugada;
    }

    if (casilla == casillaOrigen && propia) {
        seleccionDe(turno)[casilla] = false;
        fichaDe(turno)[casilla] = true;
        origenElegido = false;
        jugada.lblTurno = turno;
        return jugada;
    }
    if (!movimientoValido(casilla, fichasJ1, fichasJ2, turno, casillaOrigen)) {
        jugada.lblTurno = turno;
        return jugada;
    }
    fichaDe(turno)[casillaOrigen] = false;
    seleccionDe(turno)[casillaOrigen] = false;
    shpBlanco[casillaOrigen] = true;
    fichaDe(turno)[casilla] = true;
    moverEnCadena(casilla, casillaOrigen, fichasDe(turno), turno);
    // kept: a win locks nothing; the winner keeps the turn and the chosen origin.
    if (comprobarRaya(fichasDe(turno))) {
        jugada.punto = turno;
        return jugada;
    }
    turnoAnterior = turno;
    origenElegido = soloSeleccion = false;
    turno = otroJugador(turno);
    jugada.lblTurno = turno;
    return jugada;
}

Jugada TresEnRaya::mnuUndoClick()
{
    const QString quien = turnoAnterior;
    if (contadorFichas >= 0 && contadorFichas <= 6) {
        // kept: after a click on an occupied square this hides a piece that its
        // string still lists.
        fichaDe(quien)[ultimaCasilla] = false;
        shpBlanco[ultimaCasilla] = true;
        origenElegido = origenAnterior;
        turno = turnoAnterior;
        contadorFichas = contadorAnterior;
        fichasDe(quien) = anterioresDe(quien);
    } else if (!soloSeleccion) {
        fichasDe(quien) = anterioresDe(quien);
        shpBlanco[ultimaCasilla] = true;
        fichaDe(quien)[ultimaCasilla] = false;
        fichaDe(quien)[casillaDeshacer] = true;
        origenElegido = origenAnterior;
        turno = turnoAnterior;
    } else {
        seleccionDe(quien)[ultimaCasilla] = false;
        fichaDe(quien)[ultimaCasilla] = true;
        origenElegido = origenAnterior;
        turno = turnoAnterior;
        soloSeleccion = false;
    }
    return Jugada{quien == kJ1 ? kJ1 : kJ2, {}};
}

bool movimientoValido(int casilla, const QString &fichasJ1, const QString &fichasJ2,
                      [[maybe_unused]] const QString &turno, int casillaOrigen)
{
    const QChar d = digito(casilla);
    if (fichasJ1.contains(d) || fichasJ2.contains(d))
        return false;
    if (casillaOrigen < 0 || casillaOrigen > 8)
        return false;
    return QLatin1String(kVecinas[casillaOrigen]).contains(d);
}

QString sumarPunto(const QString &puntos)
{
    const double siguiente = Val(puntos) + 1;
    if (siguiente > 99)
        return QStringLiteral("00");
    const QString texto = CStr(siguiente);
    return texto.size() == 1 ? QLatin1Char('0') + texto : texto;
}

int teclaACasilla(int codigoTecla)
{
    static const int kCasillas[9] = {6, 7, 8, 3, 4, 5, 0, 1, 2};
    if (codigoTecla < '1' || codigoTecla > '9')
        return -1;
    return kCasillas[codigoTecla - '1'];
}

} // namespace zafro
