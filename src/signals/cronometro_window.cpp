#include "signals/cronometro_window.h"

#include "platform/services.h"
#include "shell/controls.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace zafro {

namespace {

// The clocks keep their own dark face whatever the skin: the frame paints only the
// window, its title and its buttons here.
QLabel *reloj(QWidget *parent, int pointSize)
{
    auto *label = new QLabel(kCronometroCero, parent);
    label->setAlignment(Qt::AlignCenter);
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label->setAutoFillBackground(true);
    QPalette palette = label->palette();
    palette.setColor(QPalette::Window, QColor(24, 32, 28));
    palette.setColor(QPalette::WindowText, QColor(120, 240, 140));
    label->setPalette(palette);
    setBold(label, pointSize);
    return label;
}

} // namespace

CronometroWindow::CronometroWindow()
    : label3_(place(new QLabel(this), "Label3", 120, 120, 4560, 540)),
      digitalUno_(place(reloj(this, 22), "DigitalUno", 360, 780, 4080, 720)),
      lblTotal_(place(reloj(this, 12), "lblTotal", 1080, 1620, 2640, 420)),
      inicioParada_(place(new QPushButton(this), "InicioParada", 360, 2220, 1980, 435)),
      reInicio_(place(new QPushButton(this), "ReInicio", 2460, 2220, 1980, 435)),
      command2_(place(new QPushButton(this), "Command2", 2460, 2760, 1980, 435)),
      command7_(place(new QPushButton(this), "Command7", 360, 2760, 1980, 435)),
      controlDelTiempo_(makeTimer(this, QStringLiteral("ControlDelTiempo"), 100, false,
                                  [this] { controlDelTiempoTimer(); }))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(4800, 3420);
    label3_->setAlignment(Qt::AlignCenter);
    setBold(label3_, 14);
    setTabOrder(inicioParada_, reInicio_);
    setTabOrder(reInicio_, command7_);
    setTabOrder(command7_, command2_);
    connect(inicioParada_, &QPushButton::clicked, this, &CronometroWindow::inicioParadaClick);
    connect(reInicio_, &QPushButton::clicked, this, &CronometroWindow::reInicioClick);
    centreOnScreen();
}

void CronometroWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label3_->setText(texto(slot::Cronometro));
    inicioParada_->setText(texto(slot::CronometroInicio));
    reInicio_->setText(texto(slot::CronometroReset));
    command2_->setText(texto(slot::Cerrar));
    command7_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command2_);
    frame_->connectAbout(command7_);
}

void CronometroWindow::inicioParadaClick()
{
    // kept: the button knows whether it runs only by its caption.
    if (inicioParada_->text() == texto(slot::CronometroInicio)) {
        reInicio_->hide();
        command2_->hide();
        inicioParada_->setText(texto(slot::CronometroParada));
        medida_.inicio(services().clock->tickCount());
        controlDelTiempo_->start();
    } else if (inicioParada_->text() == texto(slot::CronometroParada)) {
        medida_.parada(services().clock->tickCount());
        controlDelTiempo_->stop();
        inicioParada_->setText(texto(slot::CronometroInicio));
        reInicio_->show();
        command2_->show();
    }
}

void CronometroWindow::reInicioClick()
{
    medida_.reinicio();
    digitalUno_->setText(kCronometroCero);
    lblTotal_->setText(kCronometroCero);
    reInicio_->hide();
}

void CronometroWindow::controlDelTiempoTimer()
{
    const qint32 ticks = services().clock->tickCount();
    digitalUno_->setText(medida_.marcha(ticks));
    lblTotal_->setText(medida_.total(ticks));
}

} // namespace zafro
