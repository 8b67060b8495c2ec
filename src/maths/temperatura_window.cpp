#include "maths/temperatura_window.h"

#include "maths/temperatura.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

TemperaturaWindow::TemperaturaWindow()
    : label10_(place(new QLabel(this), "Label10", 120, 120, 5160, 540)),
      label11_(place(new QLabel(this), "Label11", 360, 780, 4800, 300)),
      label12_(place(new QLabel(this), "Label12", 360, 1710, 1200, 300)),
      label13_(place(new QLabel(this), "Label13", 360, 2250, 1200, 300)),
      label15_(place(new QLabel(this), "Label15", 4080, 2250, 480, 300)),
      label17_(place(new QLabel(this), "Label17", 4080, 1710, 480, 300)),
      combo1_(place(new QComboBox(this), "Combo1", 360, 1080, 3600, 345)),
      text8_(place(new QLineEdit(this), "Text8", 1560, 1680, 2400, 375)),
      text9_(place(new QLineEdit(this), "Text9", 1560, 2220, 2400, 375)),
      command1_(place(new QPushButton(this), "Command1", 3360, 2880, 1800, 435)),
      command2_(place(new QPushButton(this), "Command2", 360, 2880, 1800, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5400, 3600);
    label10_->setAlignment(Qt::AlignCenter);
    setBold(label10_, 14);
    for (QLabel *unidad : {label15_, label17_})
        setBold(unidad, 10);
    for (QLineEdit *box : {text8_, text9_})
        setBold(box, 10);
    combo1_->addItems(nombresConversionesTemperatura());
    combo1_->setCurrentIndex(-1); // nothing chosen until the user picks an entry
    text8_->installEventFilter(this);
    setTabOrder(combo1_, text8_);
    setTabOrder(text8_, text9_);
    setTabOrder(text9_, command2_);
    setTabOrder(command2_, command1_);
    connect(text8_, &QLineEdit::textChanged, this, &TemperaturaWindow::text8Change);
    connect(combo1_, &QComboBox::activated, this, &TemperaturaWindow::combo1Click);
    centreOnScreen();
}

void TemperaturaWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label10_->setText(texto(slot::Temperatura));
    label11_->setText(texto(slot::SeleccionaConversion));
    label12_->setText(texto(slot::Inicial));
    label13_->setText(texto(slot::Final));
    text9_->setText(texto(slot::TemperaturaResultado));
    command1_->setText(texto(slot::Cerrar));
    command2_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command1_);
    frame_->connectAbout(command2_);
}

void TemperaturaWindow::convertir()
{
    const int entrada = combo1_->currentIndex();
    if (entrada < 0 || entrada >= kNumeroConversionesTemperatura)
        return;
    const ConversionTemperatura &conversion = kConversionesTemperatura[entrada];
    text9_->setText(CStr(convertirTemperatura(entrada, Val(text8_->text()))));
    label17_->setText(QString::fromUtf16(conversion.desde));
    label15_->setText(QString::fromUtf16(conversion.hasta));
}

void TemperaturaWindow::text8Change()
{
    convertir();
}

void TemperaturaWindow::combo1Click()
{
    convertir();
}

void TemperaturaWindow::limpiarSiCero()
{
    if (Val(text8_->text()) != 0)
        return;
    text8_->clear();
    label17_->clear();
    label15_->clear();
    text9_->setText(texto(slot::TemperaturaResultado));
}

void TemperaturaWindow::text8Click()
{
    limpiarSiCero();
}

void TemperaturaWindow::formClick()
{
    limpiarSiCero();
}

bool TemperaturaWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == text8_ && isBoxClick(event))
        text8Click();
    return Form::eventFilter(watched, event);
}

void TemperaturaWindow::mouseReleaseEvent(QMouseEvent *event)
{
    Form::mouseReleaseEvent(event);
    if (isBackgroundClick(this, event))
        formClick();
}

} // namespace zafro
