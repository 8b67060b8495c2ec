#include "maths/numletras_window.h"

#include "maths/numeros.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "runtime/convert.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

namespace {

constexpr int kIngles = 2;
constexpr int kValenciano = 4;
constexpr int kInformacion = 64;

int codigoIdioma()
{
    return int(Val(texto(slot::CodigoIdioma)));
}

} // namespace

NumletrasWindow::NumletrasWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 120, 6360, 540)),
      numero_(place(new QLineEdit(this), "Numero", 240, 840, 6120, 375)),
      letras_(place(new QLabel(this), "Letras", 240, 1380, 6120, 1320)),
      command3_(place(new QPushButton(this), "Command3", 4800, 2880, 1560, 435)),
      command2_(place(new QPushButton(this), "Command2", 240, 2880, 1560, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(6600, 3540);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 14);
    setBold(numero_, 10);
    numero_->setMaxLength(13);
    letras_->setWordWrap(true);
    letras_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setBold(letras_, 10);
    setTabOrder(numero_, command2_);
    setTabOrder(command2_, command3_);
    // The starting text is the design's: it is no number, and must not warn.
    numero_->setText(QStringLiteral(","));
    connect(numero_, &QLineEdit::textChanged, this, &NumletrasWindow::numeroChange);
    centreOnScreen();
}

void NumletrasWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label1_->setText(texto(slot::NumerosALetras));
    command3_->setText(texto(slot::Cerrar));
    command2_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command3_);
    frame_->connectAbout(command2_);
    if (codigoIdioma() == kValenciano)
        services().dialogs->msgBox(texto(slot::SoloEspanol), 0, QString());
}

void NumletrasWindow::numeroChange()
{
    const QString numero = numero_->text();
    if (codigoIdioma() == kIngles) {
        letras_->setText(EnglishWords(numero));
        return;
    }
    if (IsNumeric(numero))
        letras_->setText(NroEnLetras(CDbl(numero), true));
    else
        services().dialogs->msgBox(QStringLiteral("Tienes que poner algun número"), kInformacion,
                                   QStringLiteral("Atencion"));
}

void NumletrasWindow::formClick()
{
    numero_->setText(QStringLiteral("0,0"));
    letras_->clear();
}

void NumletrasWindow::mouseReleaseEvent(QMouseEvent *event)
{
    Form::mouseReleaseEvent(event);
    if (isBackgroundClick(this, event))
        formClick();
}

} // namespace zafro
