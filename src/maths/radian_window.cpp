#include "maths/radian_window.h"

#include "maths/radian.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

RadianWindow::RadianWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 120, 4800, 540)),
      label2_(place(new QLabel(this), "Label2", 3000, 870, 1800, 300)),
      label3_(place(new QLabel(this), "Label3", 3000, 1470, 1800, 300)),
      text1_(place(new QLineEdit(this), "Text1", 360, 840, 2520, 375)),
      text2_(place(new QLineEdit(this), "Text2", 360, 1440, 2520, 375)),
      command1_(place(new QPushButton(this), "Command1", 360, 2040, 2040, 435)),
      command2_(place(new QPushButton(this), "Command2", 2640, 2040, 2040, 435)),
      command3_(place(new QPushButton(this), "Command3", 2640, 2640, 2040, 435)),
      command4_(place(new QPushButton(this), "Command4", 360, 2640, 2040, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5040, 3360);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 14);
    for (QLineEdit *box : {text1_, text2_})
        setBold(box, 10);
    setTabOrder(text1_, command1_);
    setTabOrder(command1_, command2_);
    setTabOrder(command2_, text2_);
    connect(command1_, &QPushButton::clicked, this, &RadianWindow::command1Click);
    connect(command2_, &QPushButton::clicked, this, &RadianWindow::command2Click);
    centreOnScreen();
}

void RadianWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label1_->setText(texto(slot::GradosRadianes));
    label2_->setText(texto(slot::Grados));
    label3_->setText(texto(slot::Radianes));
    command1_->setText(texto(slot::ARadianes));
    command2_->setText(texto(slot::AGrados));
    command3_->setText(texto(slot::Cerrar));
    command4_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command3_);
    frame_->connectAbout(command4_);
}

void RadianWindow::command1Click()
{
    label2_->setText(texto(slot::Grados));
    label3_->setText(texto(slot::Radianes));
    text2_->setText(CStr(aRadianes(Val(text1_->text()))));
}

void RadianWindow::command2Click()
{
    label2_->setText(texto(slot::Radianes));
    label3_->setText(texto(slot::Grados));
    text2_->setText(CStr(aGrados(Val(text1_->text()))));
}

void RadianWindow::formClick()
{
    text1_->clear();
    text2_->clear();
    label2_->clear();
    label3_->clear();
}

void RadianWindow::mouseReleaseEvent(QMouseEvent *event)
{
    Form::mouseReleaseEvent(event);
    if (isBackgroundClick(this, event))
        formClick();
}

} // namespace zafro
