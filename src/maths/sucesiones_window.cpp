#include "maths/sucesiones_window.h"

#include "maths/sucesiones.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

namespace {

QLabel *nombre(QWidget *parent, const char *name, const char *text, int left, int top)
{
    auto *label = place(new QLabel(QLatin1String(text), parent), name, left, top, 540, 300);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setBold(label, 10);
    return label;
}

} // namespace

SucesionesWindow::SucesionesWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 120, 5640, 540)),
      label2_(nombre(this, "Label2", "A1=", 120, 1530)),
      label3_(nombre(this, "Label3", "n=", 1980, 1530)),
      label5_(nombre(this, "Label5", "D=", 3840, 1530)),
      label6_(nombre(this, "Label6", "An=", 2700, 2130)),
      label8_(nombre(this, "Label8", "Sn=", 2700, 2670)),
      label4_(place(new QLabel(this), "Label4", 4080, 900, 1680, 300)),
      label7_(place(new QLabel(this), "Label7", 240, 3210, 5400, 300)),
      text1_(place(new QLineEdit(this), "Text1", 720, 1500, 1200, 375)),
      text2_(place(new QLineEdit(this), "Text2", 2580, 1500, 1200, 375)),
      text3_(place(new QLineEdit(this), "Text3", 4440, 1500, 1200, 375)),
      text4_(place(new QLineEdit(this), "Text4", 3300, 2100, 2340, 375)),
      text5_(place(new QLineEdit(this), "Text5", 3300, 2640, 2340, 375)),
      command1_(place(new QPushButton(this), "Command1", 240, 840, 1800, 435)),
      command3_(place(new QPushButton(this), "Command3", 2160, 840, 1800, 435)),
      command5_(place(new QPushButton(this), "Command5", 240, 2070, 2340, 435)),
      command4_(place(new QPushButton(this), "Command4", 240, 2610, 2340, 435)),
      command2_(place(new QPushButton(this), "Command2", 240, 3660, 1560, 435)),
      command6_(place(new QPushButton(this), "Command6", 4080, 3660, 1560, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5880, 4320);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 14);
    label4_->setAlignment(Qt::AlignCenter);
    setBold(label4_, 10);
    label7_->setAlignment(Qt::AlignCenter);
    setBold(label7_, 10);
    for (QLineEdit *box : {text1_, text2_, text3_, text4_, text5_}) {
        setBold(box, 10);
        box->setAlignment(Qt::AlignCenter);
    }
    setTabOrder(command1_, command3_);
    setTabOrder(command3_, text1_);
    setTabOrder(text1_, text2_);
    setTabOrder(text2_, text3_);
    setTabOrder(text3_, command5_);
    setTabOrder(command5_, text4_);
    setTabOrder(text4_, command4_);
    setTabOrder(command4_, text5_);
    setTabOrder(text5_, command2_);
    setTabOrder(command2_, command6_);
    connect(command1_, &QPushButton::clicked, this, &SucesionesWindow::command1Click);
    connect(command3_, &QPushButton::clicked, this, &SucesionesWindow::command3Click);
    connect(command5_, &QPushButton::clicked, this, &SucesionesWindow::command5Click);
    connect(command4_, &QPushButton::clicked, this, &SucesionesWindow::command4Click);
    centreOnScreen();
}

void SucesionesWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label1_->setText(texto(slot::Sucesiones));
    label4_->setText(texto(slot::Aritmetica));
    command1_->setText(texto(slot::Aritmeticas));
    command3_->setText(texto(slot::Geometricas));
    command5_->setText(texto(slot::TerminoAn));
    command4_->setText(texto(slot::SumaNTerminos));
    command2_->setText(texto(slot::AcercaDe));
    command6_->setText(texto(slot::Cerrar));
    frame_->connectAbout(command2_);
    frame_->connectClose(command6_);
}

void SucesionesWindow::command1Click()
{
    label5_->setText(QStringLiteral("D="));
    label4_->setText(texto(slot::Aritmetica));
}

void SucesionesWindow::command3Click()
{
    label5_->setText(QStringLiteral("R="));
    label4_->setText(texto(slot::Geometrica));
    services().dialogs->msgBox(texto(slot::GeometricasNoDisponibles), 0, QString());
}

void SucesionesWindow::command5Click()
{
    const std::optional<QString> an = terminoAn(text1_->text(), text2_->text(), text3_->text());
    label7_->setText(an ? QString() : texto(slot::NoHayDatos));
    text4_->setText(an.value_or(QString()));
}

void SucesionesWindow::command4Click()
{
    label7_->clear();
    const SumaSucesion suma =
        sumaNTerminos(text1_->text(), text2_->text(), text3_->text(), text4_->text());
    if (suma.sinDatos) {
        label7_->setText(texto(slot::NoHayDatos));
        return;
    }
    if (!suma.an.isEmpty())
        text4_->setText(suma.an);
    text5_->setText(suma.sn);
    if (!suma.d.isEmpty())
        text3_->setText(suma.d);
}

} // namespace zafro
