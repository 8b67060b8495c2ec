#include "maths/loga_window.h"

#include "maths/diferencial.h"
#include "maths/loga.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

LogaWindow::LogaWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 120, 5400, 540)),
      label2_(place(new QLabel(this), "Label2", 240, 930, 1920, 300)),
      label3_(place(new QLabel(this), "Label3", 240, 1470, 1920, 300)),
      label4_(place(new QLabel(this), "Label4", 240, 2010, 1920, 300)),
      text1_(place(new QLineEdit(kPalabraNumero, this), "Text1", 2160, 900, 1800, 375)),
      text4_(place(new QLineEdit(kBaseInicial, this), "Text4", 2160, 1440, 720, 375)),
      text2_(place(new QLineEdit(this), "Text2", 3000, 1440, 2400, 375)),
      text3_(place(new QLineEdit(this), "Text3", 3000, 1980, 2400, 375)),
      command1_(place(new QPushButton(this), "Command1", 240, 2640, 1560, 435)),
      command2_(place(new QPushButton(this), "Command2", 3840, 2640, 1560, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5640, 3300);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 14);
    for (QLineEdit *box : {text1_, text4_, text2_, text3_}) {
        setBold(box, 10);
        box->setAlignment(Qt::AlignCenter);
    }
    text2_->setReadOnly(true);
    text3_->setReadOnly(true);
    text1_->installEventFilter(this);
    setTabOrder(text1_, text4_);
    setTabOrder(text4_, text2_);
    setTabOrder(text2_, text3_);
    setTabOrder(text3_, command1_);
    setTabOrder(command1_, command2_);
    connect(text1_, &QLineEdit::textChanged, this, &LogaWindow::recalcular);
    connect(text4_, &QLineEdit::textChanged, this, &LogaWindow::recalcular);
    centreOnScreen();
}

void LogaWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label1_->setText(texto(slot::Logaritmos));
    label2_->setText(texto(slot::Numero));
    label3_->setText(texto(slot::LogaritmoEnBase));
    label4_->setText(texto(slot::LogaritmoNeperiano));
    command1_->setText(texto(slot::AcercaDe));
    command2_->setText(texto(slot::Cerrar));
    frame_->connectAbout(command1_);
    frame_->connectClose(command2_);
}

void LogaWindow::recalcular()
{
    const Logaritmos resultado = logaritmos(text1_->text(), text4_->text());
    text2_->setText(resultado.enBase);
    text3_->setText(resultado.neperiano);
}

void LogaWindow::text1Click()
{
    text1_->clear();
}

void LogaWindow::formClick()
{
    text1_->setText(kPalabraNumero);
    text4_->setText(kBaseInicial);
}

bool LogaWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == text1_ && isBoxClick(event))
        text1Click();
    return Form::eventFilter(watched, event);
}

void LogaWindow::mouseReleaseEvent(QMouseEvent *event)
{
    Form::mouseReleaseEvent(event);
    if (isBackgroundClick(this, event))
        formClick();
}

} // namespace zafro
