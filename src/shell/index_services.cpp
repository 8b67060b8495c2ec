// The launcher's services: clock and date, the comment and the greeting, the CD
// door on the hundredth visit, the popup's buttons, the hidden spots.

#include "shell/index_window.h"

#include "platform/services.h"
#include "runtime/numtext.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/launcher_hooks.h"
#include "shell/settings.h"

#include <QPushButton>

namespace zafro {

namespace {

QRect px(int left, int top, int width, int height)
{
    return twipsRect(left * 15, top * 15, width * 15, height * 15);
}

// Where the four hidden spots lie, in the launcher's design pixels.
constexpr QPoint kSecretos[4] = {{372, 16}, {716, 70}, {620, 452}, {112, 460}};

} // namespace

void IndexWindow::buildServices()
{
    timer2_ = makeTimer(this, QStringLiteral("Timer2"), 1000, true, [this] { command1Click(); });
    timer3_ = makeTimer(this, QStringLiteral("Timer3"), 52000, true, [this] { timer3Timer(); });
    timer4_ = makeTimer(this, QStringLiteral("Timer4"), 500, true, [this] { timer4Timer(); });
    timer7_ = makeTimer(this, QStringLiteral("Timer7"), 100, false, [this] { timer7Timer(); });
    tmrPos_ = makeTimer(this, QStringLiteral("tmr_pos"), 1, true, [this] { tmrPosTimer(); });

    connect(findChild<QPushButton *>(QStringLiteral("Command9")), &QPushButton::clicked, this,
            &IndexWindow::command9Click);
    connect(findChild<QPushButton *>(QStringLiteral("Command10")), &QPushButton::clicked, this,
            &IndexWindow::command10Click);
    auto *command13 = new QPushButton(QStringLiteral("oo"), this);
    command13->setObjectName(QStringLiteral("Command13"));
    command13->setGeometry(px(346, 306, 20, 18));
    command13->hide();
    connect(command13, &QPushButton::clicked, this, &IndexWindow::command13Click);

    for (int n = 1; n <= 4; ++n) {
        auto *spot = new ClickLabel(this, QStringLiteral("Secreto%1").arg(n));
        spot->setGeometry(px(kSecretos[n - 1].x(), kSecretos[n - 1].y(), 18, 18));
        spot->setVisible(n == 1);
        spot->setEnabled(n == 1);
        connect(spot, &ClickLabel::clicked, this, [this, n] { secretoClick(n); });
        secretos_[n - 1] = spot;
    }

    // The design member of the chasing letters, in the corner the outline cuts away.
    auto *clip0 = new QLabel(this);
    clip0->setObjectName(QStringLiteral("clip_0"));
    clip0->setGeometry(twipsRect(0, 0, 150, 240));
    QPalette yellow = clip0->palette();
    yellow.setColor(QPalette::WindowText, QColor(0xFF, 0xFF, 0x00));
    clip0->setPalette(yellow);
    setBold(clip0, 10);
    clipLabels_.push_back(clip0);
    clip_.push_back({});

    if (const auto &makeNews = launcherHooks().newsPanel)
        news_ = makeNews(this);
}

void IndexWindow::command1Click()
{
    reloj_.refrescar(services().clock->now());
    auto *label4 = findChild<QLabel *>(QStringLiteral("Label4"));
    label4->setText(reloj_.hora(hora_));
    label4->setToolTip(reloj_.tipHora());
    auto *label8 = findChild<QLabel *>(QStringLiteral("Label8"));
    label8->setText(reloj_.fecha(fecha_));
    label8->setToolTip(reloj_.tipFecha());
}

void IndexWindow::label4Click()
{
    hora_ = siguienteFormatoHora(hora_);
    writeConfig(QStringLiteral("hora"), CStr(hora_));
    command1Click();
}

void IndexWindow::label8Click()
{
    fecha_ = siguienteFormatoFecha(fecha_);
    writeConfig(QStringLiteral("fecha"), CStr(fecha_));
    command1Click();
}

void IndexWindow::ponerComentario()
{
    const QString comentario = comentarioVisitas(visitas_);
    if (!comentario.isEmpty())
        findChild<QLabel *>(QStringLiteral("Label5"))->setText(comentario);
}

void IndexWindow::ponerSaludo()
{
    const SaludoDelDia saludo = saludoDelDia(services().clock->now().date());
    if (!saludo.mensaje.isEmpty())
        services().dialogs->msgBox(saludo.mensaje, 0, QString());
    if (!saludo.label5.isEmpty())
        findChild<QLabel *>(QStringLiteral("Label5"))->setText(saludo.label5);
}

void IndexWindow::timer3Timer()
{
    timer3_->stop();
    command6Click();
}

void IndexWindow::command6Click()
{
    if (visitas_ != 100)
        return;
    services().desktop->cdDoor(QStringLiteral("set Cdaudio door open"));
    services().dialogs->msgBox(texto(slot::BocaAbierta), 0,
                               QStringLiteral("100") + texto(slot::Veces) + QStringLiteral("!!"));
    timer7_->start();
}

void IndexWindow::timer7Timer()
{
    timer7_->stop();
    services().desktop->cdDoor(QStringLiteral("set Cdaudio door closed"));
}

void IndexWindow::timer4Timer()
{
    timer4_->stop();
    forms().show(QStringLiteral("arrival"));
}

void IndexWindow::command9Click()
{
    writeConfig(QStringLiteral("topopen"), QStringLiteral("2"));
    if (QWidget *arrival = forms().find(QStringLiteral("arrival")))
        arrival->hide();
    findChild<QPushButton *>(QStringLiteral("Command10"))->show();
    findChild<QPushButton *>(QStringLiteral("Command9"))->hide();
}

void IndexWindow::command10Click()
{
    writeConfig(QStringLiteral("topopen"), QStringLiteral("1"));
    forms().show(QStringLiteral("arrival"));
    findChild<QPushButton *>(QStringLiteral("Command9"))->show();
    findChild<QPushButton *>(QStringLiteral("Command10"))->hide();
}

void IndexWindow::command13Click()
{
    if (news_)
        news_->sinLimite();
}

void IndexWindow::secretoClick(int n)
{
    ClickLabel *spot = secretos_[n - 1];
    ClickLabel *next = secretos_[n % 4];
    spot->hide();
    spot->setEnabled(false);
    next->show();
    next->setEnabled(true);
    if (n == 3) {
        if (auto *labeln1 = findChild<QLabel *>(QStringLiteral("Labeln1")))
            labeln1->show();
        findChild<QPushButton *>(QStringLiteral("Command13"))->show();
    } else if (n == 4) {
        hide(); // not an unload: the secret zone's way back finds it as it was
        forms().show(QStringLiteral("configuracion"));
    }
}

} // namespace zafro
