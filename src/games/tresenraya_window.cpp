#include "games/tresenraya_window.h"

#include "platform/services.h"
#include "runtime/convert.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/skin_sample.h"
#include "shell/toolframe.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace zafro {

namespace {

// Colours as the platform numbers them, blue in the high byte.
constexpr quint32 kColorJugador1 = 0xFF00FF;
constexpr quint32 kColorJugador2 = 0xFF0000;
constexpr quint32 kColorTurnoVacio = 0xC0FFC0;

constexpr int kClientWidth = 7680;
constexpr int kClientHeight = 5760;
constexpr int kLamparas = 34;

// The centre of a square's point on the board, in twips.
QPoint centroCasilla(int casilla)
{
    return {480 + 1440 * (casilla % 3), 2280 + 1320 * (casilla / 3)};
}

// The lamps stand round the board: ten along the top and the bottom, seven down each side.
QPoint centroLampara(int i)
{
    const int izquierda = 90, derecha = 3750, arriba = 1770, abajo = 5430;
    if (i < 10)
        return {izquierda + (derecha - izquierda) * i / 9, arriba};
    if (i < 17)
        return {derecha, arriba + (abajo - arriba) * (i - 9) / 8};
    if (i < 27)
        return {derecha - (derecha - izquierda) * (i - 17) / 9, abajo};
    return {izquierda, abajo - (abajo - arriba) * (i - 26) / 8};
}

QLabel *figura(QWidget *parent, const QString &name, const QPoint &centro, int lado,
               const char *imagen)
{
    auto *label =
        place(new QLabel(parent), name, centro.x() - lado / 2, centro.y() - lado / 2, lado, lado);
    label->setPixmap(QPixmap(QLatin1String(imagen)));
    label->setScaledContents(true);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->hide();
    return label;
}

QString nombre(const char *base, int indice)
{
    return QLatin1String(base) + QLatin1Char('_') + QString::number(indice);
}

QLabel *etiqueta(QWidget *parent, const char *name, const QString &text, QRect twips, int puntos,
                 bool negrita)
{
    auto *label =
        place(new QLabel(text, parent), name, twips.x(), twips.y(), twips.width(), twips.height());
    QFont font = label->font();
    font.setPointSize(puntos);
    font.setBold(negrita);
    label->setFont(font);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

struct MenuRow {
    const char *menu;
    const char *name;
    const char *text;
    void (TresenrayaWindow::*handler)();
};

const MenuRow kMenus[] = {
    {nullptr, "mnuJuego", "Juego", nullptr},
    {"mnuJuego", "mnuIngreso", "Especificar jugadores", &TresenrayaWindow::mnuIngresoClick},
    {"mnuJuego", "mnuPuntos", "Reiniciar puntuación", &TresenrayaWindow::mnuPuntosClick},
    {"mnuJuego", "mnuReiniciar", "Reiniciar partida", &TresenrayaWindow::mnuReiniciarClick},
    {"mnuJuego", "mnuSeparador1", nullptr, nullptr},
    {"mnuJuego", "salirr", "Salir", &TresenrayaWindow::unloadMe},
    {nullptr, "mnuEdicion", "Edición", nullptr},
    {"mnuEdicion", "mnuUndo", "Deshacer última jugada", &TresenrayaWindow::mnuUndoClick},
    {nullptr, "mnuAyuda", "Ayuda", nullptr},
    {"mnuAyuda", "mnuContenido", "Información", &TresenrayaWindow::mnuContenidoClick},
    {"mnuAyuda", "mnuSeparador2", nullptr, nullptr},
    {"mnuAyuda", "acercadeee", "Acerca de...", nullptr},
};

} // namespace

TresenrayaWindow::TresenrayaWindow()
    : menuBar_(new QMenuBar(this)), client_(new QWidget(this)),
      lneHorizontal_(new LineaTablero(client_, QStringLiteral("lneHorizontal"))),
      lneVertical_(new LineaTablero(client_, QStringLiteral("lneVertical"))),
      lneDiagonal_(new LineaTablero(client_, QStringLiteral("lneDiagonal"))),
      lblTateti_(etiqueta(client_, "lblTateti", {}, {0, 360, 3840, 960}, 26, true)),
      lblTurno_(etiqueta(client_, "lblTurno", {}, {4080, 600, 3360, 480}, 16, true)),
      lblJugador1_(etiqueta(client_, "lblJugador1", QStringLiteral("Jugador1"),
                            {4080, 2040, 1680, 300}, 10, true)),
      lblJugador2_(etiqueta(client_, "lblJugador2", QStringLiteral("Jugador2"),
                            {5760, 2040, 1680, 300}, 10, true)),
      lblPuntosJ1_(etiqueta(client_, "lblPuntosJ1", QStringLiteral("00"), {4080, 2400, 1680, 720},
                            28, true)),
      lblPuntosJ2_(etiqueta(client_, "lblPuntosJ2", QStringLiteral("00"), {5760, 2400, 1680, 720},
                            28, true)),
      optInicia1_(place(new QRadioButton(QStringLiteral("Inicia partida"), client_), "optInicia_1",
                        4260, 3240, 1500, 300)),
      optInicia2_(place(new QRadioButton(QStringLiteral("Inicia partida"), client_), "optInicia_2",
                        5940, 3240, 1500, 300)),
      cmdNueva_(place(new QPushButton(QStringLiteral("Nueva partida"), client_), "cmdNueva", 4080,
                      4080, 3360, 435)),
      cmdReiniciar_(place(new QPushButton(QStringLiteral("Reiniciar puntuación"), client_),
                          "cmdReiniciar", 4080, 4560, 3360, 435)),
      command1_(place(new QPushButton(QStringLiteral("Salir"), client_), "Command1", 4080, 5040,
                      3360, 435)),
      timer1_(makeTimer(this, QStringLiteral("Timer1"), 300, false, [this] { timer1Timer(); }))
{
    setWindowTitle(QStringLiteral("Zafro Suite: 3 en Raya"));
    client_->setAutoFillBackground(true);
    QPalette colores = client_->palette();
    colores.setColor(QPalette::Window, QColor(0xF3, 0xEE, 0xDC));
    colores.setColor(QPalette::WindowText, Qt::black);
    client_->setPalette(colores);

    auto *tablero = place(new QLabel(client_), "imgTablero", 0, 1680, 3840, 3840);
    tablero->setPixmap(QPixmap(QStringLiteral(":/games/tablero.png")));
    tablero->setScaledContents(true);
    for (int i = 0; i < kLamparas; ++i) {
        shpAmarillo_ << figura(client_, nombre("shpAmarillo", i), centroLampara(i), 150,
                               ":/games/lampara_amarilla.png");
        shpRojo_ << figura(client_, nombre("shpRojo", i), centroLampara(i), 150,
                           ":/games/lampara_roja.png");
    }
    for (int c = 0; c < 9; ++c) {
        const QPoint centro = centroCasilla(c);
        shpBlanco_ << figura(client_, nombre("shpBlanco", c), centro, 480, ":/games/blanco.png");
        shp1_ << figura(client_, nombre("shp1", c), centro, 720, ":/games/ficha1.png");
        shp2_ << figura(client_, nombre("shp2", c), centro, 720, ":/games/ficha2.png");
        shpSel1_ << figura(client_, nombre("shpSel1", c), centro, 900, ":/games/seleccion1.png");
        shpSel2_ << figura(client_, nombre("shpSel2", c), centro, 900, ":/games/seleccion2.png");
    }
    for (LineaTablero *linea : {lneHorizontal_, lneVertical_, lneDiagonal_})
        linea->raise();
    for (int c = 0; c < 9; ++c) {
        const QPoint centro = centroCasilla(c);
        auto *destino = place(new ClickLabel(client_), nombre("imgPosicion", c), centro.x() - 480,
                              centro.y() - 480, 960, 960);
        connect(destino, &ClickLabel::clicked, this, [this, c] { imgPosicionClick(c); });
        imgPosicion_ << destino;
    }
    etiqueta(client_, "Label1", QStringLiteral("Turno jugador :"), {4080, 240, 3360, 300}, 10,
             false);
    etiqueta(client_, "Label2", QStringLiteral("PUNTUACIÓN"), {4080, 1560, 3360, 360}, 12, true);
    setPaletteRole(lblTateti_, QPalette::WindowText, QColor(0xD0, 0x10, 0x10));
    setPaletteRole(lblJugador1_, QPalette::WindowText, colourFromNumber(kColorJugador1));
    setPaletteRole(lblJugador2_, QPalette::WindowText, colourFromNumber(kColorJugador2));

    // kept: both options can end up cleared, which a group of radio buttons forbids.
    for (QRadioButton *opcion : {optInicia1_, optInicia2_}) {
        opcion->setAutoExclusive(false);
        connect(opcion, &QRadioButton::clicked, this,
                [this, opcion] { marcarOpcion(opcion == optInicia1_ ? 1 : 2); });
    }
    for (QWidget *w : {static_cast<QWidget *>(cmdNueva_), static_cast<QWidget *>(cmdReiniciar_),
                       static_cast<QWidget *>(optInicia1_), static_cast<QWidget *>(optInicia2_)})
        w->installEventFilter(this);
    connect(cmdNueva_, &QPushButton::clicked, this, &TresenrayaWindow::cmdNuevaClick);
    connect(cmdReiniciar_, &QPushButton::clicked, this, &TresenrayaWindow::cmdReiniciarClick);

    construirMenus();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setMenuBar(menuBar_);
    client_->setFixedSize(twipsToPixelsX(kClientWidth), twipsToPixelsY(kClientHeight));
    layout->addWidget(client_);
    centreOnScreen();
}

void TresenrayaWindow::construirMenus()
{
    menuBar_->setObjectName(QStringLiteral("menubar"));
    menuBar_->setNativeMenuBar(false);
    for (const MenuRow &row : kMenus) {
        const QString name = QLatin1String(row.name);
        if (!row.menu) {
            QMenu *menu = menuBar_->addMenu(QString::fromUtf8(row.text));
            menu->setObjectName(name);
            menu->menuAction()->setObjectName(name);
            continue;
        }
        QMenu *menu = menuBar_->findChild<QMenu *>(QLatin1String(row.menu));
        QAction *entry =
            row.text ? menu->addAction(QString::fromUtf8(row.text)) : menu->addSeparator();
        entry->setObjectName(name);
        if (row.handler)
            connect(entry, &QAction::triggered, this, row.handler);
    }
    mnuUndo_ = menuBar_->findChild<QAction *>(QStringLiteral("mnuUndo"));
}

void TresenrayaWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->connectClose(command1_);
    connect(menuBar_->findChild<QAction *>(QStringLiteral("acercadeee")), &QAction::triggered, this,
            [] { forms().show(QStringLiteral("acercade")); });
    reiniciarPartida();
}

void TresenrayaWindow::reiniciarPartida()
{
    // kept: the game speaks only Spanish; other languages get a notice and play on.
    if (Val(texto(slot::CodigoIdioma)) != 1)
        services().dialogs->msgBox(texto(slot::SoloEspanol), 0, QString());
    juego_.reiniciar();
    lblTateti_->clear();
    lblTurno_->clear();
    setPaletteRole(lblTurno_, QPalette::WindowText, colourFromNumber(kColorTurnoVacio));
    timer1_->stop();
    for (int i = 0; i < kLamparas; ++i) {
        shpAmarillo_[i]->hide();
        shpRojo_[i]->hide();
    }
    optInicia1_->setEnabled(true);
    optInicia2_->setEnabled(true);
    mnuUndo_->setEnabled(false);
    mostrarTablero();
}

void TresenrayaWindow::mostrarTablero()
{
    for (int c = 0; c < 9; ++c) {
        shpBlanco_[c]->setVisible(juego_.shpBlanco[c]);
        shp1_[c]->setVisible(juego_.shp1[c]);
        shp2_[c]->setVisible(juego_.shp2[c]);
        shpSel1_[c]->setVisible(juego_.shpSel1[c]);
        shpSel2_[c]->setVisible(juego_.shpSel2[c]);
    }
    lneHorizontal_->set(juego_.lneHorizontal);
    lneVertical_->set(juego_.lneVertical);
    lneDiagonal_->set(juego_.lneDiagonal);
}

void TresenrayaWindow::mostrarTurno(const QString &jugador)
{
    const bool uno = jugador == QLatin1String("j1");
    lblTurno_->setText((uno ? lblJugador1_ : lblJugador2_)->text());
    setPaletteRole(lblTurno_, QPalette::WindowText,
                   colourFromNumber(uno ? kColorJugador1 : kColorJugador2));
}

void TresenrayaWindow::aplicar(const Jugada &jugada)
{
    mostrarTablero();
    if (!jugada.lblTurno.isEmpty())
        mostrarTurno(jugada.lblTurno);
    if (jugada.punto.isEmpty())
        return;
    QLabel *puntos = jugada.punto == QLatin1String("j1") ? lblPuntosJ1_ : lblPuntosJ2_;
    const QString nuevos = sumarPunto(puntos->text());
    // kept: past 99 the count starts again for both players.
    if (nuevos == QLatin1String("00")) {
        lblPuntosJ1_->setText(nuevos);
        lblPuntosJ2_->setText(nuevos);
    }
    puntos->setText(nuevos);
    if (!timer1_->isActive())
        timer1_->start();
}

void TresenrayaWindow::imgPosicionClick(int casilla)
{
    mnuUndo_->setEnabled(true);
    if (!optInicia1_->isChecked() && !optInicia2_->isChecked()) {
        marcarOpcion(1);
        optInicia2_->setEnabled(false);
    }
    aplicar(juego_.imgPosicionClick(casilla));
}

void TresenrayaWindow::marcarOpcion(int indice)
{
    (indice == 1 ? optInicia1_ : optInicia2_)->setChecked(true);
    (indice == 1 ? optInicia2_ : optInicia1_)->setChecked(false);
    optIniciaClick();
}

void TresenrayaWindow::optIniciaClick()
{
    if (optInicia1_->isChecked()) {
        juego_.turno = QStringLiteral("j1");
        optInicia2_->setEnabled(false);
        mostrarTurno(juego_.turno);
    } else if (optInicia2_->isChecked()) {
        juego_.turno = QStringLiteral("j2");
        optInicia1_->setEnabled(false);
        mostrarTurno(juego_.turno);
    }
}

void TresenrayaWindow::cmdNuevaClick()
{
    reiniciarPartida();
    for (QRadioButton *opcion : {optInicia1_, optInicia2_}) {
        opcion->setEnabled(true);
        opcion->setChecked(false);
    }
}

void TresenrayaWindow::cmdReiniciarClick()
{
    mnuPuntosClick();
    optIniciaClick();
}

void TresenrayaWindow::mnuIngresoClick()
{
    const QString titulo = QStringLiteral("Ingreso de jugadores");
    lblJugador1_->setText(services().dialogs->inputBox(QStringLiteral("Nombre del primer jugador"),
                                                       titulo, QStringLiteral("Jugador1")));
    lblJugador2_->setText(services().dialogs->inputBox(QStringLiteral("Nombre del segundo jugador"),
                                                       titulo, QStringLiteral("Jugador2")));
}

void TresenrayaWindow::mnuPuntosClick()
{
    lblPuntosJ1_->setText(QStringLiteral("00"));
    lblPuntosJ2_->setText(QStringLiteral("00"));
}

void TresenrayaWindow::mnuReiniciarClick()
{
    reiniciarPartida();
}

void TresenrayaWindow::mnuUndoClick()
{
    mnuUndo_->setEnabled(false);
    aplicar(juego_.mnuUndoClick());
}

void TresenrayaWindow::mnuContenidoClick()
{
    forms().show(QStringLiteral("tresenrayaayuda"));
}

void TresenrayaWindow::timer1Timer()
{
    const bool encender = lblTateti_->text().isEmpty();
    lblTateti_->setText(encender ? QStringLiteral("3 EN RAYA") : QString());
    for (int i = 0; i < kLamparas; ++i) {
        shpAmarillo_[i]->setVisible(encender);
        shpRojo_[i]->setVisible(!encender);
    }
}

bool TresenrayaWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const QString tecla = static_cast<QKeyEvent *>(event)->text();
        const int casilla = tecla.size() == 1 ? teclaACasilla(tecla.at(0).unicode()) : -1;
        if (casilla >= 0) {
            imgPosicionClick(casilla);
            return true;
        }
    }
    return Form::eventFilter(watched, event);
}

} // namespace zafro
