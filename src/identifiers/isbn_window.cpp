#include "identifiers/isbn_window.h"

#include "shell/language.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

IsbnWindow::IsbnWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 120, 5160, 540)),
      label3_(place(new QLabel(this), "Label3", 120, 900, 1080, 300)),
      text1_(place(new QLineEdit(this), "Text1", 1200, 870, 480, 375)),
      text2_(place(new QLineEdit(this), "Text2", 1860, 870, 660, 375)),
      text3_(place(new QLineEdit(this), "Text3", 2700, 870, 780, 375)),
      text4_(place(new QLineEdit(this), "Text4", 3660, 870, 480, 375)),
      command1_(place(new QPushButton(this), "Command1", 4260, 840, 1020, 435)),
      command7_(place(new QPushButton(this), "Command7", 360, 1560, 1560, 435)),
      command8_(place(new QPushButton(this), "Command8", 3480, 1560, 1560, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5400, 2280);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 14);
    const struct {
        const char *name;
        int left;
    } separadores[] = {{"Label6", 1680}, {"Label7", 2520}, {"Label5", 3480}};
    for (const auto &s : separadores) {
        auto *guion = place(new QLabel(QStringLiteral("-"), this), s.name, s.left, 900, 180, 300);
        guion->setAlignment(Qt::AlignCenter);
        setBold(guion, 10);
    }
    const struct {
        QLineEdit *box;
        int largo;
    } campos[] = {{text1_, 2}, {text2_, 3}, {text3_, 4}, {text4_, 15}};
    for (const auto &c : campos) {
        setBold(c.box, 10);
        c.box->setAlignment(Qt::AlignCenter);
        c.box->setMaxLength(c.largo);
    }
    command1_->setText(QStringLiteral("Calcular"));
    setTabOrder(text1_, text2_);
    setTabOrder(text2_, text3_);
    setTabOrder(text3_, command1_);
    setTabOrder(command1_, text4_);
    setTabOrder(text4_, command7_);
    setTabOrder(command7_, command8_);
    connect(text1_, &QLineEdit::textChanged, this, &IsbnWindow::text1Change);
    connect(text2_, &QLineEdit::textChanged, this, &IsbnWindow::text2Change);
    connect(text3_, &QLineEdit::textChanged, this, &IsbnWindow::text3Change);
    connect(command1_, &QPushButton::clicked, this, &IsbnWindow::command1Click);
    centreOnScreen();
}

void IsbnWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label1_->setText(texto(slot::CalcularIsbn));
    label3_->setText(texto(slot::Numero));
    command8_->setText(texto(slot::Cerrar));
    command7_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command8_);
    frame_->connectAbout(command7_);
}

void IsbnWindow::text1Change()
{
    digitos_.leerCampo(1, text1_->text());
}

void IsbnWindow::text2Change()
{
    digitos_.leerCampo(2, text2_->text());
}

void IsbnWindow::text3Change()
{
    digitos_.leerCampo(3, text3_->text());
}

void IsbnWindow::command1Click()
{
    text4_->setText(digitos_.caracterControl());
}

} // namespace zafro
