#include "maths/pi_window.h"

#include "maths/pi.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "runtime/runtime_error.h"
#include "shell/language.h"
#include "shell/skin_sample.h"
#include "shell/toolframe.h"

#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

#include <cmath>

namespace zafro {

PiWindow::PiWindow()
    : calculo_(new CalculoPi(this)),
      label10_(place(new QLabel(this), "Label10", 120, 120, 9360, 540)),
      label2_(place(new QLabel(this), "Label2", 240, 780, 5280, 495)),
      text1_(place(new QLineEdit(this), "Text1", 5640, 840, 1200, 375)),
      label1_(place(new QLabel(this), "Label1", 6960, 870, 960, 300)),
      command1_(place(new QPushButton(this), "Command1", 8040, 810, 1320, 435)),
      text2_(place(new QPlainTextEdit(this), "Text2", 240, 1440, 9120, 5400)),
      progressBar1_(place(new QProgressBar(this), "ProgressBar1", 1440, 3660, 6720, 375)),
      command5_(place(new QPushButton(this), "Command5", 3960, 4260, 1680, 435)),
      command4_(place(new QPushButton(this), "Command4", 240, 7020, 1800, 435)),
      command3_(place(new QPushButton(this), "Command3", 5520, 7020, 1800, 435)),
      command2_(place(new QPushButton(this), "Command2", 7560, 7020, 1800, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(9600, 7680);
    label10_->setAlignment(Qt::AlignCenter);
    setBold(label10_, 14);
    label2_->setWordWrap(true);
    setBold(text1_, 10);
    text1_->setText(QStringLiteral("5000"));
    // Blocks of three digits line up only in a fixed-width font.
    text2_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text2_->setReadOnly(true);
    text2_->setLineWrapMode(QPlainTextEdit::NoWrap);
    text2_->setPlainText(QStringLiteral(" PI = 3, \n"));
    progressBar1_->setRange(0, 100);
    progressBar1_->setAlignment(Qt::AlignCenter);
    progressBar1_->hide();
    command5_->hide();
    setTabOrder(text1_, command1_);
    setTabOrder(command1_, text2_);
    setTabOrder(text2_, command4_);
    setTabOrder(command4_, command3_);
    setTabOrder(command3_, command2_);
    connect(command1_, &QPushButton::clicked, this, &PiWindow::command1Click);
    connect(command4_, &QPushButton::clicked, this, &PiWindow::command4Click);
    connect(command5_, &QPushButton::clicked, this, &PiWindow::command5Click);
    connect(calculo_, &CalculoPi::progreso, progressBar1_, &QProgressBar::setValue);
    connect(calculo_, &CalculoPi::terminado, this, &PiWindow::calculoTerminado);
    connect(calculo_, &CalculoPi::fallado, this, &PiWindow::calculoFallado);
    centreOnScreen();
}

PiWindow::~PiWindow()
{
    calculo_->parar();
}

void PiWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    // The frame paints line edits only; the result box is a text box too.
    setPaletteRole(text2_, QPalette::Text, skinColour(QStringLiteral("ForeColor")));
    setPaletteRole(text2_, QPalette::Base, skinColour(QStringLiteral("BackColor")));
    setPaletteRole(text2_, QPalette::Window, text2_->palette().color(QPalette::Text));
    // The title has always read with one blank, unlike the launcher's label.
    label10_->setText(QStringLiteral("Generar PI"));
    label2_->setText(texto(slot::PiSelecciona));
    label1_->setText(texto(slot::Digitos));
    command1_->setText(texto(slot::PiCalcular));
    command4_->setText(texto(slot::PiExplicacion));
    command5_->setText(texto(slot::Parar));
    command2_->setText(texto(slot::Cerrar));
    command3_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command2_);
    frame_->connectAbout(command3_);
}

void PiWindow::formUnload()
{
    calculo_->parar();
}

void PiWindow::command1Click()
{
    if (calculo_->enCurso())
        return;
    setCursor(Qt::WaitCursor);
    text2_->hide();
    text1_->setText(CStr(std::abs(CDbl(text1_->text()))));
    const PiTamano tamano = tamanoPi(CDbl(text1_->text()));
    inicioReloj_ = services().clock->timer();
    digitosPedidos_ = text1_->text();
    text1_->setEnabled(false);
    command1_->setEnabled(false);
    progressBar1_->setValue(0);
    progressBar1_->show();
    command5_->show();
    calculo_->iniciar(tamano.grupos);
}

void PiWindow::calculoTerminado(const QString &digitos)
{
    const QString tiempo = tiempoPi(inicioReloj_, services().clock->timer());
    text2_->setPlainText(digitos + QLatin1Char('\n') + texto(slot::SeHaTardado) + tiempo +
                         texto(slot::SegundosEnGenerar) + digitosPedidos_ + QLatin1Char(' ') +
                         texto(slot::Digitos));
    finDelCalculo();
}

void PiWindow::calculoFallado(const RuntimeError &error)
{
    finDelCalculo();
    throw error;
}

void PiWindow::command5Click()
{
    calculo_->parar();
    finDelCalculo();
}

void PiWindow::finDelCalculo()
{
    progressBar1_->hide();
    command5_->hide();
    text1_->setEnabled(true);
    command1_->setEnabled(true);
    text2_->show();
    unsetCursor();
}

void PiWindow::command4Click()
{
    services().dialogs->msgBox(texto(slot::PiMetodo), 0, texto(slot::Digitos));
}

} // namespace zafro
