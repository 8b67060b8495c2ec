#include "games/tresenrayaayuda_window.h"

#include <QPlainTextEdit>
#include <QPushButton>

namespace zafro {

namespace {

// kept: item 7 names the game menu's restart entry for the score as well.
const char *const kAyuda[] = {
    "*****************************AYUDA DE ZAFRO: 3 EN RAYA******************************",
    "",
    "1) Antes de comenzar la partida debe ingresar el nombre de los jugadores",
    "   mediante la opción Juego - Especificar jugadores",
    "2) Debe marcar quien inicia la partida seleccionando la casilla para tal",
    "   fin debajo del puntaje de cada jugador.",
    "3) El jugador N°1 juega con las fichas moradas y el N°2 con las azules",
    "4) La partida comienza marcando las casillas habilitadas (color blanco), una vez",
    "   ubicada las 3 fichas de cada jugador debera moverlas de la posicion de origen",
    "   a las habilitadas de acuerdo a las reglas del juego.",
    "   El primero que las alinee vertical, horizontal o diagonalmente ganara la partida",
    "   y se le adjudicará un punto.",
    "5) Cuando esten todas las fichas en juego, para mover la que se desee (mientras sea "
    "posible), se deberá marcar",
    "   la que se quiera mover y luego hacer un click en la casilla de destino",
    "6) Para reiniciar la partida debe presionar el botón NUEVA PARTIDA o seleccionarlo",
    "   del menú JUEGO-REINICIAR PARTIDA.",
    "7) Si desea reiniciar la puntuación debera presionar el boton REINICIAR PUNTUACION",
    "   o seleccionar la opción del menú JUEGO-REINICIAR PARTIDA",
    "8) mediante el menu EDICION-DESHACER ULTIMA JUGADA, se regresa a la posición anterior",
    "   a la jugada realizada.",
};

} // namespace

TresenrayaayudaWindow::TresenrayaayudaWindow()
    : txtAyuda_(place(new QPlainTextEdit(this), "txtAyuda", 120, 120, 11160, 4560)),
      cmdRegresar_(place(new QPushButton(QStringLiteral("Aceptar"), this), "cmdRegresar", 9720,
                         4800, 1560, 435))
{
    setWindowTitle(QStringLiteral("Ayuda del Tres en Raya"));
    resizeTwips(11400, 5400);
    txtAyuda_->setReadOnly(true);
    connect(cmdRegresar_, &QPushButton::clicked, this, &Form::unloadMe);
    centreOnScreen();
}

void TresenrayaayudaWindow::formLoad()
{
    QString texto;
    for (const char *linea : kAyuda)
        texto += QString::fromUtf8(linea) + QLatin1Char('\n');
    txtAyuda_->setPlainText(texto);
}

} // namespace zafro
