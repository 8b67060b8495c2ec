#pragma once

#include "games/tresenraya.h"
#include "games/tresenraya_linea.h"
#include "shell/form.h"

#include <QVector>

class QAction;
class QLabel;
class QMenuBar;
class QPushButton;
class QRadioButton;
class QTimer;

namespace zafro {

class ClickLabel;
class ToolFrame;

// The two-player board game window; the game itself lives in TresEnRaya.
class TresenrayaWindow : public Form {
    Q_OBJECT
public:
    TresenrayaWindow();

    void formLoad() override;
    const TresEnRaya &juego() const { return juego_; }

    void imgPosicionClick(int casilla);
    void optIniciaClick();
    void cmdNuevaClick();
    void cmdReiniciarClick();
    void mnuIngresoClick();
    void mnuPuntosClick();
    void mnuReiniciarClick();
    void mnuUndoClick();
    void mnuContenidoClick();
    void timer1Timer();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void reiniciarPartida();
    void marcarOpcion(int indice);
    void mostrarTablero();
    void mostrarTurno(const QString &jugador);
    void aplicar(const Jugada &jugada);
    void construirMenus();

    TresEnRaya juego_;
    ToolFrame *frame_ = nullptr;
    QMenuBar *menuBar_;
    QWidget *client_;
    QVector<QLabel *> shp1_, shp2_, shpBlanco_, shpSel1_, shpSel2_;
    QVector<QLabel *> shpAmarillo_, shpRojo_;
    QVector<ClickLabel *> imgPosicion_;
    LineaTablero *lneHorizontal_;
    LineaTablero *lneVertical_;
    LineaTablero *lneDiagonal_;
    QLabel *lblTateti_;
    QLabel *lblTurno_;
    QLabel *lblJugador1_;
    QLabel *lblJugador2_;
    QLabel *lblPuntosJ1_;
    QLabel *lblPuntosJ2_;
    QRadioButton *optInicia1_;
    QRadioButton *optInicia2_;
    QPushButton *cmdNueva_;
    QPushButton *cmdReiniciar_;
    QPushButton *command1_;
    QAction *mnuUndo_ = nullptr;
    QTimer *timer1_;
};

} // namespace zafro
