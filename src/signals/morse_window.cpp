#include "signals/morse_window.h"

#include "platform/services.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/controls.h"
#include "shell/language.h"
#include "shell/toolframe.h"
#include "signals/morsemod.h"
#include "signals/tone_player.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

namespace zafro {

namespace {

QScrollBar *scrollBar(QWidget *parent, int minimum, int maximum, int largeStep, int value)
{
    auto *bar = new QScrollBar(Qt::Horizontal, parent);
    bar->setRange(minimum, maximum);
    bar->setPageStep(largeStep);
    bar->setValue(value);
    // The change comes when the thumb is let go, not at every step of a drag.
    bar->setTracking(false);
    return bar;
}

} // namespace

MorseWindow::MorseWindow()
    : player_(new TonePlayer(this)),
      label1_(place(new QLabel(this), "Label1", 120, 120, 7080, 540)),
      label2_(place(new QLabel(this), "Label2", 3840, 2760, 3240, 255)),
      label3_(place(new QLabel(this), "Label3", 240, 1515, 1440, 300)),
      lblFreq_(place(new QLabel(this), "lblFreq", 240, 2760, 3240, 255)),
      txttext_(place(new QLineEdit(this), "txttext", 240, 840, 6840, 405)),
      txtmorse_(place(new QLineEdit(this), "txtmorse", 240, 2070, 6840, 405)),
      cmdcode_(place(new QPushButton(this), "cmdcode", 1740, 1440, 1560, 435)),
      cmddecode_(place(new QPushButton(this), "cmddecode", 3420, 1440, 1560, 435)),
      command1_(place(new QPushButton(this), "Command1", 5340, 1440, 1740, 435)),
      command2_(place(new QPushButton(this), "Command2", 240, 3600, 2160, 435)),
      command7_(place(new QPushButton(this), "Command7", 2580, 3600, 2160, 435)),
      command8_(place(new QPushButton(this), "Command8", 4920, 3600, 2160, 435)),
      hsFreq_(place(scrollBar(this, 0, 20000, 200, 2100), "hsFreq", 240, 3060, 3240, 255)),
      hScroll1_(place(scrollBar(this, 1500, 4500, 50, 3000), "HScroll1", 3840, 3060, 3240, 255)),
      timer2_(makeTimer(this, QStringLiteral("Timer2"), 100, false, [this] { timer2Timer(); }))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(7320, 4320);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 14);
    for (QLineEdit *box : {txttext_, txtmorse_}) {
        setBold(box, 10);
        box->setMaxLength(1 << 24); // a long text is still one code
    }
    setTabOrder(txttext_, cmdcode_);
    setTabOrder(cmdcode_, cmddecode_);
    setTabOrder(cmddecode_, command1_);
    setTabOrder(command1_, txtmorse_);
    setTabOrder(txtmorse_, hsFreq_);
    setTabOrder(hsFreq_, hScroll1_);
    setTabOrder(hScroll1_, command2_);
    setTabOrder(command2_, command7_);
    setTabOrder(command7_, command8_);
    connect(cmdcode_, &QPushButton::clicked, this, &MorseWindow::cmdcodeClick);
    connect(cmddecode_, &QPushButton::clicked, this, &MorseWindow::cmddecodeClick);
    connect(command1_, &QPushButton::clicked, this, &MorseWindow::command1Click);
    connect(command2_, &QPushButton::clicked, this, &MorseWindow::command2Click);
    connect(hsFreq_, &QScrollBar::valueChanged, this, &MorseWindow::hsFreqChange);
    connect(hScroll1_, &QScrollBar::valueChanged, this, &MorseWindow::hScroll1Change);
    connect(player_, &TonePlayer::toneEnded, this, &MorseWindow::tonoTerminado);
    centreOnScreen();
}

void MorseWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label1_->setText(texto(slot::CodigoMorse));
    label2_->setText(texto(slot::Velocidad) + QStringLiteral(":"));
    label3_->setText(texto(slot::ConvertirA));
    lblFreq_->setText(texto(slot::Frecuencia) + QStringLiteral(": 2100hz"));
    cmdcode_->setText(QStringLiteral("Morse"));
    cmddecode_->setText(texto(slot::MorseTexto));
    command1_->setText(texto(slot::MorseExplicacion));
    command2_->setText(texto(slot::Reproducir));
    command7_->setText(texto(slot::AcercaDe));
    command8_->setText(texto(slot::Cerrar));
    frame_->connectClose(command8_);
    frame_->connectAbout(command7_);
}

void MorseWindow::formUnload()
{
    timer2_->stop();
    tickEnEspera_ = false;
    player_->stop();
}

bool MorseWindow::tonoEnCurso() const
{
    return player_->playing();
}

void MorseWindow::cmdcodeClick()
{
    txtmorse_->setText(TextoAMorse(txttext_->text()));
}

void MorseWindow::cmddecodeClick()
{
    txttext_->setText(MorseATexto(txtmorse_->text()));
}

void MorseWindow::command1Click()
{
    services().dialogs->msgBox(texto(slot::MorseAyuda), 0, QString());
}

void MorseWindow::command2Click()
{
    // kept: the switch knows its state only by its caption.
    const QString caption = command2_->text();
    if (caption == texto(slot::Reproducir) || caption == texto(slot::Continuar)) {
        timer2_->start();
        command2_->setText(texto(slot::Parar));
    } else {
        command2_->setText(texto(slot::Continuar));
        timer2_->stop();
        tickEnEspera_ = false;
    }
}

void MorseWindow::hsFreqChange()
{
    lblFreq_->setText(texto(slot::Frecuencia) + QStringLiteral(": ") + CStr(hsFreq_->value()) +
                      QStringLiteral("hz"));
}

void MorseWindow::hScroll1Change()
{
    // kept: the first interval is 100 ms whatever the speed, until the speed moves.
    timer2_->setInterval(intervaloMorse(hScroll1_->value()));
}

void MorseWindow::timer2Timer()
{
    // A tick that comes during a tone runs at its end, as it did when the tone held
    // the whole window; later ones merge into it.
    if (player_->playing()) {
        tickEnEspera_ = true;
        return;
    }
    avanzar();
}

void MorseWindow::tonoTerminado()
{
    if (!tickEnEspera_)
        return;
    tickEnEspera_ = false;
    avanzar();
}

void MorseWindow::avanzar()
{
    const QString morse = txtmorse_->text();
    // kept: the position is text and outlives stops and edits of the code; each
    // tick measures it against the code as it stands.
    const qint32 posicion = CLng(posicionMorse_);
    if (posicion < morse.size()) {
        posicionMorse_ = CStr(posicion + 1);
        if (const auto tono = tonoMorse(morse.at(posicion), hsFreq_->value(), hScroll1_->value()))
            player_->play(tono->frecuencia, tono->milisegundos);
        return;
    }
    posicionMorse_ = QStringLiteral("0");
    timer2_->stop();
    command2_->setText(texto(slot::Reproducir));
}

} // namespace zafro
