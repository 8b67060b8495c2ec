#include "maths/bisiesto_window.h"

#include "maths/bisiesto.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

BisiestoWindow::BisiestoWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 120, 5160, 540)),
      label2_(place(new QLabel(this), "Label2", 360, 870, 1080, 300)),
      text1_(place(new QLineEdit(this), "Text1", 1440, 840, 1800, 375)),
      text2_(place(new QLineEdit(this), "Text2", 360, 1440, 4680, 375)),
      command1_(place(new QPushButton(this), "Command1", 3360, 810, 1680, 435)),
      command2_(place(new QPushButton(this), "Command2", 3600, 2040, 1440, 435)),
      command3_(place(new QPushButton(this), "Command3", 360, 2040, 1440, 435)),
      command4_(place(new QPushButton(this), "Command4", 1980, 2040, 1440, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5400, 2760);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 14);
    for (QLineEdit *box : {text1_, text2_})
        setBold(box, 10);
    text2_->setAlignment(Qt::AlignCenter);
    setTabOrder(text1_, command1_);
    setTabOrder(command1_, text2_);
    setTabOrder(text2_, command3_);
    setTabOrder(command3_, command4_);
    setTabOrder(command4_, command2_);
    connect(command1_, &QPushButton::clicked, this, &BisiestoWindow::command1Click);
    connect(command3_, &QPushButton::clicked, this, &BisiestoWindow::command3Click);
    centreOnScreen();
}

void BisiestoWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label1_->setText(texto(slot::AnosBisiestos));
    label2_->setText(texto(slot::BisiestoAno));
    command1_->setText(texto(slot::BisiestoComprobar));
    command3_->setText(texto(slot::BisiestoAclaracion));
    command2_->setText(texto(slot::Cerrar));
    command4_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command2_);
    frame_->connectAbout(command4_);
}

void BisiestoWindow::command1Click()
{
    switch (esBisiesto(leerAno(text1_->text()))) {
    case Bisiesto::Si:
        text2_->setText(texto(slot::SiEsBisiesto));
        break;
    case Bisiesto::No:
        text2_->setText(texto(slot::NoEsBisiesto));
        break;
    case Bisiesto::Error:
        text2_->setText(kBisiestoError);
        if (avisarAnoCero(text1_->text()))
            services().dialogs->msgBox(texto(slot::AnoCero), 0, kBisiestoError);
        break;
    }
}

void BisiestoWindow::command3Click()
{
    services().dialogs->msgBox(texto(slot::BisiestoExplicacion), 0,
                               texto(slot::BisiestoAclaracion));
}

} // namespace zafro
