#pragma once

// Tres en raya: two players place three pieces each on a 3 by 3 board and then take
// turns moving one along the board's lines to an empty neighbour; three in a line
// scores a point.
//
// There is no board array: the position is the two strings of square digits, one
// per player, plus which pieces and marks are shown. The score is not here at all:
// it lives in the window's captions.

#include <QString>

#include <array>

namespace zafro {

// A line drawn through a winning row, in twips of the window.
struct Linea {
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    bool visible = false;
};

// What a click or an undo asks of the window besides the shapes.
struct Jugada {
    QString lblTurno; // "j1" or "j2": whose name lblTurno shows now; empty leaves it alone
    QString punto;    // the player who made a line and scores; empty when nobody did
};

class TresEnRaya {
public:
    using Casillas = std::array<bool, 9>;

    QString turno = QStringLiteral("j1");
    QString fichasJ1;
    QString fichasJ2;
    qint32 contadorFichas = 0;
    bool origenElegido = false;
    qint16 casillaOrigen = 0;
    qint16 ultimaCasilla = 0;
    qint16 casillaDeshacer = 0;
    QString turnoAnterior;
    QString fichasJ1Anterior;
    QString fichasJ2Anterior;
    qint32 contadorAnterior = 0;
    bool origenAnterior = false;
    bool soloSeleccion = false;

    // Which shapes are shown, by square.
    Casillas shp1{};
    Casillas shp2{};
    Casillas shpBlanco = Casillas{true, true, true, true, true, true, true, true, true};
    Casillas shpSel1{};
    Casillas shpSel2{};

    Linea lneHorizontal;
    Linea lneVertical;
    Linea lneDiagonal;

    // The board part of the game's reset; the other fields keep their values.
    void reiniciar();

    // A click on a square once the starting player is settled.
    Jugada imgPosicionClick(int casilla);
    // One level of undo; lblTurno always shows the player whose action it was.
    Jugada mnuUndoClick();

    bool colocarFicha(int casilla, const QString &turnoDe);
    void moverEnCadena(int casillaNueva, int casillaOrigenDe, const QString &cadena,
                       const QString &turnoDe);
    // Draws the line of a winning string of exactly three squares.
    bool comprobarRaya(const QString &cadena);

private:
    QString &fichasDe(const QString &jugador);
    QString &anterioresDe(const QString &jugador);
    Casillas &fichaDe(const QString &jugador);
    Casillas &seleccionDe(const QString &jugador);
};

QString otroJugador(const QString &jugador);

// Whether the piece at casillaOrigen may go to casilla: the destination is empty
// and joined to the origin by one of the board's lines.
bool movimientoValido(int casilla, const QString &fichasJ1, const QString &fichasJ2,
                      const QString &turno, int casillaOrigen);

// The score caption after a point: two digits, and "00" past 99.
QString sumarPunto(const QString &puntos);

// The square of a digit key, laid out as a numeric keypad; -1 for any other key.
int teclaACasilla(int codigoTecla);

} // namespace zafro
