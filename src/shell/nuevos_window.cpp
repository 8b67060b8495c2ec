#include "shell/nuevos_window.h"

#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/window_shape.h"

#include <QLabel>
#include <QPushButton>

namespace zafro {

NuevosWindow::NuevosWindow()
    : label1_(new QLabel(this)), label2_(new QLabel(this)), command1_(new QPushButton(this))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5880, 3720);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral(
        "zafro--NuevosWindow { background: #123a63; }"
        "QLabel { color: #ffffff; }"
        "QLabel#Label1 { font-size: 13pt; font-weight: bold; }"
        "QLabel#Label2 { font-size: 10pt; color: #d6e6f7; }"
        "QPushButton { background: #f0b429; color: #1b1b1b; font-weight: bold; border-radius: 4px;"
        " padding: 4px 12px; }"));
    label1_->setObjectName(QStringLiteral("Label1"));
    label2_->setObjectName(QStringLiteral("Label2"));
    command1_->setObjectName(QStringLiteral("Command1"));
    for (QLabel *label : {label1_, label2_}) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignCenter);
    }
    label1_->setGeometry(twipsRect(480, 450, 4920, 1200));
    label2_->setGeometry(twipsRect(480, 1800, 4920, 600));
    command1_->setGeometry(twipsRect(3480, 2700, 1920, 480));
    connect(command1_, &QPushButton::clicked, this, &NuevosWindow::command1Click);
    applyWindowShape(this, QStringLiteral("nuevos"));
    centreOnScreen();
}

void NuevosWindow::formLoad()
{
    writeConfig(QStringLiteral("tituloanimado"), QStringLiteral("0"));
    writeConfig(QStringLiteral("perseguir"), QStringLiteral("0"));
    writeConfig(QStringLiteral("acceso"), QStringLiteral("40271653"));
    writeConfig(QStringLiteral("Inicio"), QStringLiteral("1"));
    label1_->setText(texto(slot::PrimeraVez));
    label2_->setText(texto(slot::ContinuarParaConfigurar));
    command1_->setText(texto(slot::ContinuarFlecha));
}

void NuevosWindow::command1Click()
{
    forms().show(QStringLiteral("colores"));
}

} // namespace zafro
