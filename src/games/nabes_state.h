#pragma once

// La conquista de Jupiter without its window.
//
// The whole game lives in what the player sees: where each picture stands and
// whether it shows, three lives and energies kept as text in the pictures' tags,
// the three counters on screen and which timers run. The window builds this state,
// forwards its key events and timer ticks to the handlers below, and copies the
// state back onto its pictures, labels and timers after each one. Positions are in
// twips of the window's inner area, which is fixed at kAncho by kAlto.

#include <QString>

#include <array>

namespace zafro::nabes {

inline constexpr int kAncho = 14400;
inline constexpr int kAlto = 9600;

// Key codes as the handlers receive them.
enum Tecla : int {
    TeclaEspacio = 32,
    TeclaIzquierda = 37,
    TeclaArriba = 38,
    TeclaDerecha = 39,
    TeclaAbajo = 40,
    TeclaA = 65,
    TeclaH = 72,
};

struct Picture {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool visible = true;
    QString tag;
};

struct Timers {
    bool espera = true;
    bool disparar1 = true;
    bool disparar2 = false;
    bool rayo1 = false;
    bool adelante = false;
    bool balas = false;
    bool misiles = false; // never switched on, but the sweeps still look at it
    bool timer1 = false;  // defeat delay
    bool timer2 = false;  // victory delay
};

class NabesState {
public:
    NabesState();

    // The pictures the game moves, by their names, for the window to mirror.
    struct Named {
        const char *name;
        Picture NabesState::*picture;
    };
    static const std::array<Named, 16> &pictureNames();

    void formLoad();
    // Returns true when the key ends the whole program.
    bool keyDown(int keyCode, int shift);
    void keyUp(int shift);

    void esperaTimer();
    void disparar1Timer();
    void disparar2Timer();
    void rayo1Timer();
    void adelanteTimer();
    void balasTimer();

    Picture nave1, boss, shield, flama1, flama2, a, b, explosion, explosion1, explosion2,
        explosion3, estela1, estela2, estela3, rayo, danger;
    QString label1 = QStringLiteral("-");
    QString label2 = QStringLiteral("-");
    QString label3 = QStringLiteral("-");
    Timers timers;

private:
    bool barridoParado() const;
    void disparoEstela2(int alcance);
    void escudoArriba();
    void fueraDeLaVentana(Picture &p);
    bool impacto(const Picture &disparo, int alto);
};

double valorTag(const QString &tag);
void restarTag(QString &tag, double cantidad);

} // namespace zafro::nabes
