#include "games/nabes_window.h"

#include "platform/services.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QTimer>

namespace zafro {

using nabes::NabesState;
using nabes::Picture;

namespace {

const QString kTitulo = QStringLiteral("Zafro Suite: La conquista de Jupiter");
const QString kInstrucciones =
    QStringLiteral("Usa las teclas de dirección para moverte, la barra espaciadora para el turbo, "
                   "y 'a' para disparar");

QPixmap dibujo(const QString &name)
{
    return QPixmap(QStringLiteral(":/games/nabes/%1.png").arg(name));
}

QLabel *imagen(QWidget *parent, const QString &name, const QString &file, const QRect &rect)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setPixmap(dibujo(file));
    label->setScaledContents(true);
    label->setGeometry(rect);
    return label;
}

// Asteroids only decorate: the game never moves or tests them.
struct Asteroide {
    int left, top, size;
};
const Asteroide kAsteroides1[] = {
    {1200, 1320, 960}, {6000, 7560, 1200}, {9480, 1560, 840}, {2280, 8040, 720}};
const Asteroide kAsteroides2[] = {
    {4560, 1080, 480}, {8160, 2880, 360}, {10680, 7080, 540}, {600, 6000, 420}, {7080, 5160, 300}};

// The shift state as it stands once the event is through: a modifier's own press
// already counts, its own release no longer does.
int estadoShift(const QKeyEvent *event)
{
    Qt::KeyboardModifiers mods = event->modifiers();
    Qt::KeyboardModifier own = Qt::NoModifier;
    switch (event->key()) {
    case Qt::Key_Shift:
        own = Qt::ShiftModifier;
        break;
    case Qt::Key_Control:
        own = Qt::ControlModifier;
        break;
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
        own = Qt::AltModifier;
        break;
    default:
        break;
    }
    if (event->type() == QEvent::KeyPress)
        mods |= own;
    else
        mods &= ~Qt::KeyboardModifiers(own);
    return (mods & Qt::ShiftModifier ? 1 : 0) | (mods & Qt::ControlModifier ? 2 : 0) |
           (mods & Qt::AltModifier ? 4 : 0);
}

// The key codes the game knows; the rest only need to differ from them.
int codigoTecla(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return nabes::TeclaIzquierda;
    case Qt::Key_Up:
        return nabes::TeclaArriba;
    case Qt::Key_Right:
        return nabes::TeclaDerecha;
    case Qt::Key_Down:
        return nabes::TeclaAbajo;
    case Qt::Key_Shift:
        return 16;
    case Qt::Key_Control:
        return 17;
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
        return 18;
    default:
        break;
    }
    if (key == Qt::Key_Space || (key >= Qt::Key_0 && key <= Qt::Key_9) ||
        (key >= Qt::Key_A && key <= Qt::Key_Z))
        return key;
    return 0;
}

bool mismaVista(const Picture &x, const Picture &y)
{
    return x.left == y.left && x.top == y.top && x.width == y.width && x.height == y.height &&
           x.visible == y.visible;
}

} // namespace

NabesWindow::NabesWindow() : estrellas_(dibujo(QStringLiteral("estrellas")))
{
    setWindowTitle(kTitulo);
    resizeTwips(nabes::kAncho, nabes::kAlto);
    setFixedSize(size());
    setFocusPolicy(Qt::StrongFocus);

    int n = 0;
    for (const Asteroide &r : kAsteroides1)
        imagen(this, QStringLiteral("asteroide1_%1").arg(n++), QStringLiteral("asteroide1"),
               twipsRect(r.left, r.top, r.size, r.size));
    n = 0;
    for (const Asteroide &r : kAsteroides2)
        imagen(this, QStringLiteral("asteroide2_%1").arg(n++), QStringLiteral("asteroide2"),
               twipsRect(r.left, r.top, r.size, r.size));

    // Built from the back to the front: the trails and the ray under the ships,
    // the shield and the explosions over them.
    static const char *const kOrden[] = {"rayo",       "estela1",   "estela2",    "estela3",
                                         "a",          "b",         "flama1",     "flama2",
                                         "nave1",      "boss",      "shield",     "explosion1",
                                         "explosion2", "explosion", "explosion3", "danger"};
    const auto &names = NabesState::pictureNames();
    for (const char *wanted : kOrden)
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (qstrcmp(names[i].name, wanted) != 0)
                continue;
            const Picture &p = state_.*names[i].picture;
            pictures_[i] = imagen(this, QLatin1String(wanted), QLatin1String(wanted),
                                  twipsRect(p.left, p.top, p.width, p.height));
            pictures_[i]->setVisible(p.visible);
            shown_[i] = p;
        }

    const auto etiqueta = [this](const char *name, const QString &text, int left, int width) {
        auto *label = place(new QLabel(text, this), name, left, 120, width, 360);
        setBold(label, 11);
        QPalette palette = label->palette();
        palette.setColor(QPalette::WindowText, QColor(0xf0, 0xf0, 0xff));
        label->setPalette(palette);
        return label;
    };
    etiqueta("Label5", QStringLiteral("VIDA:"), 240, 900);
    label3_ = etiqueta("Label3", QStringLiteral("-"), 1140, 1080);
    etiqueta("Label6", QStringLiteral("ESCUDO:"), 2400, 1320);
    label2_ = etiqueta("Label2", QStringLiteral("-"), 3720, 1080);
    label1_ = etiqueta("Label1", QStringLiteral("-"), 12840, 1320);
    label1_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    const nabes::Timers &t = state_.timers;
    // kept: 1 ms asks for as fast as the timers go; the game has no clock of its own
    espera_ = makeTimer(this, QStringLiteral("espera"), 3000, t.espera, [this] { esperaTimer(); });
    disparar1_ =
        makeTimer(this, QStringLiteral("disparar1"), 1, t.disparar1, [this] { disparar1Timer(); });
    disparar2_ =
        makeTimer(this, QStringLiteral("disparar2"), 1, t.disparar2, [this] { disparar2Timer(); });
    rayo1_ = makeTimer(this, QStringLiteral("rayo1"), 1, t.rayo1, [this] { rayo1Timer(); });
    adelante_ =
        makeTimer(this, QStringLiteral("adelante"), 1, t.adelante, [this] { adelanteTimer(); });
    balas_ = makeTimer(this, QStringLiteral("balas"), 3000, t.balas, [this] { balasTimer(); });
    misiles_ = new QTimer(this); // kept: never started and with nothing to do
    misiles_->setObjectName(QStringLiteral("misiles"));
    timer1_ = makeTimer(this, QStringLiteral("Timer1"), 1500, t.timer1, [this] { timer1Timer(); });
    timer2_ = makeTimer(this, QStringLiteral("Timer2"), 1500, t.timer2, [this] { timer2Timer(); });
    centreOnScreen();
}

void NabesWindow::formLoad()
{
    Dialogs *dialogs = services().dialogs;
    if (readConfigNumber(QStringLiteral("idioma")) != 1)
        dialogs->msgBox(texto(slot::SoloEspanol), 0, QString());
    dialogs->msgBox(kInstrucciones, 0, QStringLiteral("Instrucciones"));
    state_.formLoad();
    mirror();
    setFocus();
}

void NabesWindow::formUnload()
{
    // An unloaded game must not tick again: a late end delay would open a second
    // end window.
    for (QTimer *timer : findChildren<QTimer *>())
        timer->stop();
}

bool NabesWindow::event(QEvent *event)
{
    // Every key is the game's, Tab included, whatever holds the focus.
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (event->type() == QEvent::KeyPress)
            formKeyDown(codigoTecla(key->key()), estadoShift(key));
        else if (!key->isAutoRepeat()) // X11 lets go of a held key at every repeat
            formKeyUp(codigoTecla(key->key()), estadoShift(key));
        return true;
    }
    return Form::event(event);
}

void NabesWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.drawPixmap(rect(), estrellas_);
}

void NabesWindow::formKeyDown(int keyCode, int shift)
{
    const bool fin = state_.keyDown(keyCode, shift);
    mirror();
    if (fin)
        services().desktop->endProgram(0);
}

void NabesWindow::formKeyUp(int, int shift)
{
    state_.keyUp(shift);
    mirror();
}

void NabesWindow::esperaTimer()
{
    state_.esperaTimer();
    mirror();
}

void NabesWindow::disparar1Timer()
{
    state_.disparar1Timer();
    mirror();
}

void NabesWindow::disparar2Timer()
{
    state_.disparar2Timer();
    mirror();
}

void NabesWindow::rayo1Timer()
{
    state_.rayo1Timer();
    mirror();
}

void NabesWindow::adelanteTimer()
{
    state_.adelanteTimer();
    mirror();
}

void NabesWindow::balasTimer()
{
    state_.balasTimer();
    mirror();
}

void NabesWindow::timer1Timer()
{
    forms().show(QStringLiteral("nabesp"));
    forms().unload(QStringLiteral("nabes"));
}

void NabesWindow::timer2Timer()
{
    forms().show(QStringLiteral("nabesg"));
    forms().unload(QStringLiteral("nabes"));
}

void NabesWindow::mirror()
{
    const auto &names = NabesState::pictureNames();
    for (std::size_t i = 0; i < names.size(); ++i) {
        const Picture &p = state_.*names[i].picture;
        if (mismaVista(p, shown_[i]))
            continue;
        pictures_[i]->setGeometry(twipsRect(p.left, p.top, p.width, p.height));
        pictures_[i]->setVisible(p.visible);
        shown_[i] = p;
    }
    for (auto [label, text] :
         {std::pair{label1_, &state_.label1}, std::pair{label2_, &state_.label2},
          std::pair{label3_, &state_.label3}})
        if (label->text() != *text)
            label->setText(*text);
    const nabes::Timers &t = state_.timers;
    mirrorTimer(espera_, t.espera);
    mirrorTimer(disparar1_, t.disparar1);
    mirrorTimer(disparar2_, t.disparar2);
    mirrorTimer(rayo1_, t.rayo1);
    mirrorTimer(adelante_, t.adelante);
    mirrorTimer(balas_, t.balas);
    mirrorTimer(misiles_, t.misiles);
    mirrorTimer(timer1_, t.timer1);
    mirrorTimer(timer2_, t.timer2);
}

void NabesWindow::mirrorTimer(QTimer *timer, bool enabled)
{
    // Switching on a running timer leaves its count alone, as the original's does.
    if (enabled && !timer->isActive())
        timer->start();
    else if (!enabled && timer->isActive())
        timer->stop();
}

} // namespace zafro
