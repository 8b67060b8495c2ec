#include "identifiers/moviles_window.h"

#include "identifiers/moviles.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/skin_sample.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

MovilesWindow::MovilesWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 120, 5160, 540)),
      label2_(place(new QLabel(this), "Label2", 240, 720, 4920, 960)),
      label6_(place(new QLabel(QStringLiteral("+34"), this), "Label6", 240, 1830, 480, 300)),
      text1_(place(new QLineEdit(this), "Text1", 720, 1800, 720, 375)),
      text2_(place(new QLineEdit(this), "Text2", 1560, 1800, 1440, 375)),
      label5_(place(new QLabel(this), "Label5", 240, 2370, 1200, 300)),
      text3_(place(new QLineEdit(this), "Text3", 1440, 2340, 3720, 375)),
      label4_(place(new QLabel(this), "Label4", 240, 2820, 4920, 300)),
      label7_(place(new QLabel(this), "Label7", 240, 3180, 4920, 480)),
      command7_(place(new QPushButton(this), "Command7", 360, 3840, 1560, 435)),
      command8_(place(new QPushButton(this), "Command8", 3480, 3840, 1560, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5400, 4560);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 14);
    for (QLabel *label : {label2_, label7_})
        label->setWordWrap(true);
    for (QWidget *w : {static_cast<QWidget *>(label6_), static_cast<QWidget *>(text1_),
                       static_cast<QWidget *>(text2_), static_cast<QWidget *>(text3_)})
        setBold(w, 10);
    setBold(label4_, 8);
    text1_->setMaxLength(3);
    text2_->setMaxLength(6);
    text1_->setText(QStringLiteral("6"));
    setTabOrder(text1_, text2_);
    setTabOrder(text2_, text3_);
    setTabOrder(text3_, command7_);
    setTabOrder(command7_, command8_);
    connect(text1_, &QLineEdit::textChanged, this, &MovilesWindow::text1Change);
    centreOnScreen();
}

void MovilesWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label1_->setText(texto(slot::CompaniaMoviles));
    label2_->setText(texto(slot::MovilesInstrucciones));
    label5_->setText(texto(slot::Compania));
    label7_->setText(texto(slot::PrefijosAnadidos));
    command8_->setText(texto(slot::Cerrar));
    command7_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command8_);
    frame_->connectAbout(command7_);
}

void MovilesWindow::text1Change()
{
    const std::optional<Operadora> operadora = operadoraDePrefijo(text1_->text());
    if (!operadora) {
        text3_->clear();
        label4_->setText(texto(slot::PrefijoValido));
        return;
    }
    setPaletteRole(text3_, QPalette::Text, colourFromNumber(operadora->color));
    text3_->setText(operadora->nombre);
    label4_->clear();
}

void MovilesWindow::formClick()
{
    text1_->setText(QStringLiteral("6"));
    text3_->clear();
}

void MovilesWindow::mouseReleaseEvent(QMouseEvent *event)
{
    Form::mouseReleaseEvent(event);
    if (isBackgroundClick(this, event))
        formClick();
}

} // namespace zafro
