#include "games/parejass_window.h"

#include "platform/services.h"
#include "runtime/arith.h"
#include "runtime/numtext.h"
#include "shell/controls.h"
#include "shell/language.h"

#include <QEvent>
#include <QPushButton>

namespace zafro {

namespace {

constexpr int kLado = 1080; // a card, in twips
constexpr int kPaso = 1200; // from one card to the next
constexpr int kMargen = 240;
constexpr int kPanel = kMargen + 4 * kPaso + 120;

const char *const kFrutas[] = {"manzana", "platano", "uvas",   "fresa",
                               "naranja", "pera",    "cereza", "sandia"};

// sndPlaySound's flags: asynchronous, and with no default sound for an empty buffer.
constexpr int kSonidoFallo = 5;
constexpr int kSonidoAcierto = 4;

QString nombre(const char *base, int indice)
{
    return QLatin1String(base) + QLatin1Char('_') + QString::number(indice);
}

QLabel *imagen(QLabel *label, const QString &recurso)
{
    label->setPixmap(QPixmap(recurso));
    label->setScaledContents(true);
    return label;
}

} // namespace

ParejassWindow::ParejassWindow()
    : imgBack_(imagen(place(new QLabel(this), "imgBack", kPanel, kMargen, kLado, kLado),
                      QStringLiteral(":/games/reverso.png"))),
      juegos_(place(new QLabel(QStringLiteral("0"), this), "Juegos", kPanel, 1560, 1800, 720)),
      label1_(place(new QLabel(this), "Label1", kPanel, 600, 1800, 600)),
      nuevo_(place(new QPushButton(this), "Nuevo", kPanel, 3480, 1800, 435)),
      salir_(place(new QPushButton(this), "Salir", kPanel, 4080, 1800, 435))
{
    resizeTwips(kPanel + 1800 + kMargen, 2 * kMargen + 4 * kPaso - (kPaso - kLado));
    setAutoFillBackground(true);
    QPalette colores = palette();
    colores.setColor(QPalette::Window, QColor(0x2E, 0x6B, 0x3F));
    colores.setColor(QPalette::WindowText, QColor(0xFF, 0xF4, 0xC8));
    setPalette(colores);
    imgBack_->hide();
    for (int i = 0; i < 8; ++i) {
        igCambia_ << imagen(
            place(new QLabel(this), nombre("igCambia", i), kPanel, kMargen, kLado, kLado),
            QStringLiteral(":/games/%1.png").arg(QLatin1String(kFrutas[i])));
        igCambia_.last()->hide();
    }
    for (int i = 0; i < kCartas; ++i) {
        auto *carta = place(new ClickLabel(this), nombre("OcultarImagen", i),
                            kMargen + kPaso * (i % 4), kMargen + kPaso * (i / 4), kLado, kLado);
        carta->setScaledContents(true);
        connect(carta, &ClickLabel::clicked, this, [this, i] { ocultarImagenClick(i); });
        ocultarImagen_ << carta;
    }
    for (QLabel *label : {label1_, juegos_}) {
        QFont font = label->font();
        font.setBold(true);
        font.setPointSize(label == juegos_ ? 26 : 14);
        label->setFont(font);
        label->setAlignment(Qt::AlignCenter);
    }
    connect(nuevo_, &QPushButton::clicked, this, &ParejassWindow::nuevoClick);
    connect(salir_, &QPushButton::clicked, this, &ParejassWindow::salirClick);
    centreOnScreen();
}

void ParejassWindow::formLoad()
{
    setWindowTitle(texto(slot::ParejasTitulo));
    label1_->setText(texto(slot::AJugar));
    nuevo_->setText(texto(slot::NuevoJuego));
    salir_->setText(texto(slot::ParejasSalir));
    for (ClickLabel *carta : ocultarImagen_)
        carta->setPixmap(imgBack_->pixmap());
}

bool ParejassWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        formActivate();
    return Form::event(event);
}

void ParejassWindow::formActivate()
{
    services().random->randomize();
}

void ParejassWindow::nuevoClick()
{
    intentos_ = 0;
    pendientes_ = 8;
    juegos_->setText(QStringLiteral("0"));
    for (ClickLabel *carta : ocultarImagen_) {
        carta->setPixmap(imgBack_->pixmap());
        carta->show();
    }
    cartas_ = repartirCartas();
    estado_ = 1;
    nuevo_->hide();
    salir_->setText(texto(slot::ParejasParada));
}

void ParejassWindow::ocultarImagenClick(int i)
{
    if (!nuevo_->isHidden() || (estado_ == 2 && i == elegidas_[1]) || cartas_[i] == -1)
        return;
    ocultarImagen_[i]->setPixmap(igCambia_[cartas_[i]]->pixmap());
    // The wait below lets no event through, so the card must be painted now.
    ocultarImagen_[i]->repaint();
    if (estado_ == 1) {
        elegidas_[1] = short(i);
        estado_ = 2;
        return;
    }
    intentos_ = add16(intentos_, 1);
    juegos_->setText(CStr(intentos_));
    elegidas_[2] = short(i);
    const int primera = elegidas_[1];
    if (cartas_[primera] != cartas_[i]) {
        services().sound->playSound(sonidoFallo_, kSonidoFallo);
        Esperar(1.0f);
        ocultarImagen_[primera]->setPixmap(imgBack_->pixmap());
        ocultarImagen_[i]->setPixmap(imgBack_->pixmap());
    } else {
        services().sound->playSound(sonidoAcierto_, kSonidoAcierto);
        cartas_[primera] = cartas_[i] = -1;
        pendientes_ = sub16(pendientes_, 1);
    }
    estado_ = 1;
    if (pendientes_ == 0) {
        salirClick();
        nuevo_->setFocus();
    }
}

void ParejassWindow::salirClick()
{
    if (salir_->text() == texto(slot::ParejasSalir)) {
        unloadMe();
        return;
    }
    salir_->setText(texto(slot::ParejasSalir));
    nuevo_->show();
}

} // namespace zafro
