#include "maths/trigo_window.h"

#include "maths/trigo.h"
#include "runtime/convert.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

TrigoWindow::TrigoWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 120, 5160, 540)),
      label2_(place(new QLabel(this), "Label2", 240, 870, 2520, 300)),
      label3_(place(new QLabel(this), "Label3", 240, 1500, 1560, 300)),
      label4_(place(new QLabel(this), "Label4", 1920, 1500, 1560, 300)),
      label5_(place(new QLabel(this), "Label5", 3600, 1500, 1560, 300)),
      text1_(place(new QLineEdit(this), "Text1", 2880, 840, 2280, 375)),
      text2_(place(new QLineEdit(this), "Text2", 240, 1800, 1560, 375)),
      text3_(place(new QLineEdit(this), "Text3", 1920, 1800, 1560, 375)),
      text4_(place(new QLineEdit(this), "Text4", 3600, 1800, 1560, 375)),
      command1_(place(new QPushButton(this), "Command1", 3600, 2520, 1560, 435)),
      command2_(place(new QPushButton(this), "Command2", 240, 2520, 1560, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5400, 3240);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 14);
    setBold(text1_, 10);
    for (QLabel *label : {label3_, label4_, label5_})
        label->setAlignment(Qt::AlignCenter);
    for (QLineEdit *box : {text2_, text3_, text4_})
        box->setAlignment(Qt::AlignCenter);
    text1_->installEventFilter(this);
    setTabOrder(text1_, text2_);
    setTabOrder(text2_, text3_);
    setTabOrder(text3_, text4_);
    setTabOrder(text4_, command2_);
    setTabOrder(command2_, command1_);
    connect(text1_, &QLineEdit::textChanged, this, &TrigoWindow::text1Change);
    centreOnScreen();
}

void TrigoWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label1_->setText(texto(slot::Trigonometria));
    label2_->setText(texto(slot::NumeroDeGrados));
    label3_->setText(texto(slot::TrigoSeno));
    label4_->setText(texto(slot::TrigoCoseno));
    label5_->setText(texto(slot::TrigoTangente));
    for (QLineEdit *box : {text2_, text3_, text4_})
        box->setText(texto(slot::TrigoResultado));
    command1_->setText(texto(slot::Cerrar));
    command2_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command1_);
    frame_->connectAbout(command2_);
}

void TrigoWindow::text1Change()
{
    const RazonesTrigonometricas razones = razonesTrigonometricas(Val(text1_->text()));
    text2_->setText(razones.seno);
    text3_->setText(razones.coseno);
    text4_->setText(razones.tangente);
    resultadoSiVacio();
}

void TrigoWindow::resultadoSiVacio()
{
    if (!text1_->text().isEmpty())
        return;
    for (QLineEdit *box : {text2_, text3_, text4_})
        box->setText(texto(slot::TrigoResultado));
}

void TrigoWindow::text1Click()
{
    resultadoSiVacio();
}

void TrigoWindow::formClick()
{
    resultadoSiVacio();
}

bool TrigoWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == text1_ && isBoxClick(event))
        text1Click();
    return Form::eventFilter(watched, event);
}

void TrigoWindow::mouseReleaseEvent(QMouseEvent *event)
{
    Form::mouseReleaseEvent(event);
    if (isBackgroundClick(this, event))
        formClick();
}

} // namespace zafro
