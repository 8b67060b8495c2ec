#include "formulas/polares1_window.h"

#include "formulas/coordenadas_ui.h"
#include "formulas/polares.h"
#include "runtime/convert.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

using graficas::kEnter;

namespace {

QLineEdit *coefficient(QWidget *parent, const char *name, int top)
{
    return place(new QLineEdit(QStringLiteral("0"), parent), name, 4560, top, 2400, 345);
}

QLabel *caption(QWidget *parent, const char *name, int top)
{
    return place(new QLabel(parent), name, 240, top, 4200, 345);
}

float leer(const QLineEdit *box)
{
    return CSng(Val(box->text()));
}

} // namespace

Polares1Window::Polares1Window()
    : combo1_(place(new QComboBox(this), "Combo1", 240, 240, 6720, 345)),
      label1_(caption(this, "Label1", 840)), label2_(caption(this, "Label2", 1380)),
      label3_(caption(this, "Label3", 1920)), constante_(coefficient(this, "constante", 840)),
      seno_(coefficient(this, "seno", 1380)), coseno_(coefficient(this, "coseno", 1920)),
      label4_(place(new QLabel(this), "Label4", 240, 2520, 6720, 1200)),
      command3_(place(new QPushButton(this), "Command3", 240, 3960, 2100, 495)),
      command2_(place(new QPushButton(this), "Command2", 2550, 3960, 2100, 495)),
      command1_(place(new QPushButton(this), "Command1", 4860, 3960, 2100, 495))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(7200, 4800);
    combo1_->setEditable(true);
    combo1_->setInsertPolicy(QComboBox::NoInsert);
    combo1_->addItems(textosPolares());
    combo1_->setEditText(kEspiral);
    label4_->setWordWrap(true);
    label4_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    graficas::onKeyPress(constante_, [this](int &k) { constanteKeyPress(k); });
    graficas::onKeyPress(seno_, [this](int &k) { senoKeyPress(k); });
    graficas::onKeyPress(coseno_, [this](int &k) { cosenoKeyPress(k); });
    // Typing only: a choice from the list does not count as a change here.
    connect(combo1_->lineEdit(), &QLineEdit::textEdited, this, &Polares1Window::combo1Change);
    connect(command2_, &QPushButton::clicked, this, &Polares1Window::command2Click);
    setTabOrder(combo1_, constante_);
    setTabOrder(constante_, seno_);
    setTabOrder(seno_, coseno_);
    setTabOrder(coseno_, command2_);
    setTabOrder(command2_, command1_);
    setTabOrder(command1_, command3_);
    centreOnScreen();
}

void Polares1Window::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    setWindowTitle(texto(slot::PolaresTitulo));
    label1_->setText(texto(slot::ValorConstante));
    label2_->setText(texto(slot::CoeficienteSeno));
    label3_->setText(texto(slot::CoeficienteCoseno));
    label4_->setText(texto(slot::PolaresConsejo));
    command2_->setText(texto(slot::VerLaGrafica));
    command1_->setText(texto(slot::Cerrar));
    command3_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command1_);
    frame_->connectAbout(command3_);
}

void Polares1Window::combo1Change(const QString &text)
{
    // kept: nothing gives the two boxes back while the window lives
    if (text == kEspiral) {
        seno_->setEnabled(false);
        coseno_->setEnabled(false);
    }
}

void Polares1Window::constanteKeyPress(int &keyAscii)
{
    if (keyAscii != kEnter)
        return;
    polaress().c = leer(constante_);
    if (seno_->isEnabled())
        seno_->setFocus();
    else
        dibujar();
}

void Polares1Window::senoKeyPress(int &keyAscii)
{
    if (keyAscii != kEnter)
        return;
    polaress().s = leer(seno_);
    coseno_->setFocus();
}

void Polares1Window::cosenoKeyPress(int &keyAscii)
{
    if (keyAscii != kEnter)
        return;
    polaress().k = leer(coseno_);
    dibujar();
}

void Polares1Window::command2Click()
{
    Polaress &modulo = polaress();
    modulo.k = leer(coseno_);
    modulo.s = leer(seno_);
    modulo.c = leer(constante_);
    dibujar();
}

void Polares1Window::dibujar()
{
    constante_->setFocus();
    if (const qint16 ecuacion = ecuacionPolarDeTexto(combo1_->currentText()))
        polaress().ecuacion = ecuacion;
    forms().show(QStringLiteral("polares2"));
}

} // namespace zafro
