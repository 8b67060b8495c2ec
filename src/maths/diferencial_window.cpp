#include "maths/diferencial_window.h"

#include "maths/diferencial.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

namespace {

QLabel *equis(QWidget *parent, const char *name, int top)
{
    auto *label = place(new QLabel(QStringLiteral("X"), parent), name, 3540, top, 300, 375);
    label->setAlignment(Qt::AlignCenter);
    setBold(label, 14);
    return label;
}

// The exponent sits up and right of its X, in a smaller box.
QLineEdit *exponente(QWidget *parent, const char *name, int top)
{
    auto *box = place(new QLineEdit(parent), name, 3840, top - 210, 720, 345);
    setBold(box, 9);
    box->setAlignment(Qt::AlignCenter);
    return box;
}

} // namespace

DiferencialWindow::DiferencialWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 120, 7200, 540)),
      label2_(place(new QLabel(this), "Label2", 240, 1035, 1440, 300)),
      label3_(equis(this, "Label3", 1000)),
      label4_(place(new QLabel(this), "Label4", 240, 1755, 1440, 300)),
      label5_(equis(this, "Label5", 1720)),
      text1_(place(new QLineEdit(kPalabraNumero, this), "Text1", 1680, 1000, 1800, 375)),
      text2_(exponente(this, "Text2", 1000)),
      text3_(place(new QLineEdit(this), "Text3", 1680, 1720, 1800, 375)),
      text4_(exponente(this, "Text4", 1720)),
      command1_(place(new QPushButton(this), "Command1", 4800, 900, 2400, 435)),
      command2_(place(new QPushButton(this), "Command2", 4800, 1620, 2400, 435)),
      command3_(place(new QPushButton(this), "Command3", 240, 2460, 1560, 435)),
      command4_(place(new QPushButton(this), "Command4", 5640, 2460, 1560, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(7440, 3120);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 12);
    for (QLineEdit *box : {text1_, text3_}) {
        setBold(box, 10);
        box->setAlignment(Qt::AlignCenter);
    }
    text3_->setReadOnly(true);
    text4_->setReadOnly(true);
    text1_->installEventFilter(this);
    text4_->installEventFilter(this);
    setTabOrder(text1_, text2_);
    setTabOrder(text2_, command1_);
    setTabOrder(command1_, command2_);
    setTabOrder(command2_, text3_);
    setTabOrder(text3_, text4_);
    setTabOrder(text4_, command3_);
    setTabOrder(command3_, command4_);
    connect(command1_, &QPushButton::clicked, this, &DiferencialWindow::command1Click);
    connect(command2_, &QPushButton::clicked, this, &DiferencialWindow::command2Click);
    centreOnScreen();
}

void DiferencialWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label1_->setText(texto(slot::DiferencialTitulo));
    label2_->setText(texto(slot::Numero));
    label4_->setText(texto(slot::ResultadoDosPuntos));
    command1_->setText(texto(slot::CalcularDerivada));
    command2_->setText(texto(slot::CalcularIntegral));
    command3_->setText(texto(slot::AcercaDe));
    command4_->setText(texto(slot::Cerrar));
    frame_->connectAbout(command3_);
    frame_->connectClose(command4_);
}

void DiferencialWindow::command1Click()
{
    const Monomio resultado = derivada(text1_->text(), text2_->text());
    text3_->setText(resultado.coeficiente);
    text4_->setText(resultado.exponente);
}

void DiferencialWindow::command2Click()
{
    const Monomio resultado = integral(text1_->text(), text2_->text());
    text4_->setText(resultado.exponente);
    text3_->setText(resultado.coeficiente);
}

void DiferencialWindow::text1Click()
{
    text1_->clear();
}

void DiferencialWindow::text4Click()
{
    text4_->clear();
}

void DiferencialWindow::formClick()
{
    text1_->setText(kPalabraNumero);
    // kept: "10" lands in the result's exponent box, as in the logarithm tool's base
    text4_->setText(kExponenteInicial);
}

bool DiferencialWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (isBoxClick(event)) {
        if (watched == text1_)
            text1Click();
        else if (watched == text4_)
            text4Click();
    }
    return Form::eventFilter(watched, event);
}

void DiferencialWindow::mouseReleaseEvent(QMouseEvent *event)
{
    Form::mouseReleaseEvent(event);
    if (isBackgroundClick(this, event))
        formClick();
}

} // namespace zafro
