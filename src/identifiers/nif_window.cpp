#include "identifiers/nif_window.h"

#include "identifiers/nif.h"
#include "platform/desktop.h"
#include "platform/services.h"
#include "runtime/convert.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

namespace {

const QString kDni = QStringLiteral("DNI");

// The boxes start greyed, and grey counts as ticked as much as a tick does.
bool marcada(const QCheckBox *box)
{
    return box->checkState() != Qt::Unchecked;
}

QCheckBox *casillaGris(QCheckBox *box)
{
    box->setTristate(true);
    box->setCheckState(Qt::PartiallyChecked);
    // Once the user has chosen, the box only ticks and unticks.
    QObject::connect(box, &QCheckBox::stateChanged, box, [box](int state) {
        if (state != Qt::PartiallyChecked)
            box->setTristate(false);
    });
    return box;
}

} // namespace

NifWindow::NifWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 120, 5160, 540)),
      text10_(place(new QLineEdit(this), "Text10", 360, 840, 1800, 375)),
      text11_(place(new QLineEdit(this), "Text11", 2280, 840, 480, 375)),
      text1_(place(new QLineEdit(this), "Text1", 360, 1440, 4680, 375)),
      command1_(place(new QPushButton(this), "Command1", 3360, 810, 1680, 435)),
      check1_(casillaGris(place(new QCheckBox(this), "Check1", 360, 2040, 4680, 300))),
      check2_(casillaGris(place(new QCheckBox(this), "Check2", 360, 2400, 4680, 300))),
      command2_(place(new QPushButton(this), "Command2", 3480, 2940, 1560, 435)),
      command7_(place(new QPushButton(this), "Command7", 360, 2940, 1560, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5400, 3660);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 14);
    for (QLineEdit *box : {text10_, text11_, text1_})
        setBold(box, 10);
    text11_->setAlignment(Qt::AlignCenter);
    text1_->setAlignment(Qt::AlignCenter);
    text10_->setMaxLength(8);
    text11_->setMaxLength(1);
    text10_->setText(kDni);
    text1_->setText(QStringLiteral("NIF"));
    text10_->installEventFilter(this);
    setTabOrder(text10_, text11_);
    setTabOrder(text11_, command1_);
    setTabOrder(command1_, text1_);
    setTabOrder(text1_, check1_);
    setTabOrder(check1_, check2_);
    setTabOrder(check2_, command7_);
    setTabOrder(command7_, command2_);
    connect(text10_, &QLineEdit::textChanged, this, &NifWindow::text10Change);
    connect(command1_, &QPushButton::clicked, this, &NifWindow::command1Click);
    centreOnScreen();
}

void NifWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label1_->setText(texto(slot::CalculoNif));
    command1_->setText(texto(slot::Auto));
    check1_->setText(texto(slot::LimitesLogicos));
    check2_->setText(texto(slot::CopiarAutomaticamente));
    command2_->setText(texto(slot::Cerrar));
    command7_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command2_);
    frame_->connectAbout(command7_);
}

void NifWindow::text10Change()
{
    const ResultadoNif resultado = calcularNif(Val(text10_->text()));
    text11_->setText(resultado.letra);
    text1_->setText(resultado.nif);
    if (marcada(check2_))
        services().desktop->setClipboardText(text1_->text());
}

void NifWindow::text10Click()
{
    if (Val(text10_->text()) <= 0)
        text10_->clear();
}

void NifWindow::command1Click()
{
    text10_->setText(QString::number(dniAlAzar(*services().random, marcada(check1_))));
}

void NifWindow::formClick()
{
    if (Val(text10_->text()) > 0)
        return;
    text10_->setText(kDni);
    text11_->clear();
    text1_->clear();
}

bool NifWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == text10_ && isBoxClick(event))
        text10Click();
    return Form::eventFilter(watched, event);
}

void NifWindow::mouseReleaseEvent(QMouseEvent *event)
{
    Form::mouseReleaseEvent(event);
    if (isBackgroundClick(this, event))
        formClick();
}

} // namespace zafro
