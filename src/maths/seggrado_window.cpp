#include "maths/seggrado_window.h"

#include "maths/seggrado.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

namespace {

QLabel *signo(QWidget *parent, const char *name, const char *text, int left, int width)
{
    auto *label = place(new QLabel(QString::fromUtf8(text), parent), name, left, 390, width, 300);
    label->setAlignment(Qt::AlignCenter);
    setBold(label, 11);
    return label;
}

} // namespace

SeggradoWindow::SeggradoWindow()
    : label1_(signo(this, "Label1", "X²", 1320, 480)),
      label2_(signo(this, "Label2", "+", 1800, 300)),
      label3_(signo(this, "Label3", "X", 3180, 420)),
      label4_(signo(this, "Label4", "+", 3600, 300)),
      label5_(signo(this, "Label5", "= 0", 4980, 600)),
      label6_(place(new QLabel(QStringLiteral("X1="), this), "Label6", 240, 1140, 540, 300)),
      label7_(place(new QLabel(QStringLiteral("X2="), this), "Label7", 3600, 1140, 540, 300)),
      text1_(place(new QLineEdit(this), "Text1", 240, 360, 1080, 375)),
      text2_(place(new QLineEdit(this), "Text2", 2100, 360, 1080, 375)),
      text3_(place(new QLineEdit(this), "Text3", 3900, 360, 1080, 375)),
      text4_(place(new QLineEdit(this), "Text4", 840, 1110, 2520, 375)),
      text5_(place(new QLineEdit(this), "Text5", 4140, 1110, 2700, 375)),
      text7_(place(new QLineEdit(this), "Text7", 240, 1740, 6600, 375)),
      command1_(place(new QPushButton(this), "Command1", 5280, 2400, 1560, 435)),
      command2_(place(new QPushButton(this), "Command2", 240, 2400, 1560, 435)),
      command3_(place(new QPushButton(this), "Command3", 5640, 330, 1200, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(7080, 3060);
    for (QLabel *label : {label6_, label7_})
        setBold(label, 10);
    for (QLineEdit *box : {text1_, text2_, text3_, text4_, text5_}) {
        setBold(box, 10);
        box->setAlignment(Qt::AlignCenter);
    }
    text7_->setAlignment(Qt::AlignCenter);
    setTabOrder(text1_, text2_);
    setTabOrder(text2_, text3_);
    setTabOrder(text3_, command3_);
    setTabOrder(command3_, text4_);
    setTabOrder(text4_, text5_);
    setTabOrder(text5_, text7_);
    setTabOrder(text7_, command2_);
    setTabOrder(command2_, command1_);
    connect(command3_, &QPushButton::clicked, this, &SeggradoWindow::command3Click);
    centreOnScreen();
}

void SeggradoWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    command3_->setText(texto(slot::RadianCalcular));
    command1_->setText(texto(slot::Cerrar));
    command2_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command1_);
    frame_->connectAbout(command2_);
}

void SeggradoWindow::command3Click()
{
    if (coeficienteANulo(text1_->text())) {
        services().dialogs->msgBox(texto(slot::CoeficienteANoCero), 0, QStringLiteral("Error"));
        return;
    }
    for (QLineEdit *box : {text4_, text5_, text7_})
        box->clear();
    const RaicesSegundoGrado raices =
        resolverSegundoGrado(text1_->text(), text2_->text(), text3_->text());
    text4_->setText(raices.x1);
    text5_->setText(raices.x2);
    if (raices.imaginarias)
        text7_->setText(texto(slot::NumeroImaginario));
}

void SeggradoWindow::formClick()
{
    for (QLineEdit *box : {text1_, text2_, text3_, text4_, text5_, text7_})
        box->clear();
}

void SeggradoWindow::mouseReleaseEvent(QMouseEvent *event)
{
    Form::mouseReleaseEvent(event);
    if (isBackgroundClick(this, event))
        formClick();
}

} // namespace zafro
