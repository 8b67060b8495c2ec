#include "online/divisasactualizando_window.h"

#include "shell/language.h"

#include <QLabel>

namespace zafro {

DivisasActualizandoWindow::DivisasActualizandoWindow() : label1_(new QLabel(this))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    setWindowFlag(Qt::WindowStaysOnTopHint);
    label1_->setObjectName(QStringLiteral("Label1"));
    label1_->setGeometry(twipsRect(120, 240, 2760, 480));
    label1_->setAlignment(Qt::AlignCenter);
    QFont font = label1_->font();
    font.setBold(true);
    font.setPointSize(12);
    label1_->setFont(font);
    resizeTwips(3000, 960);
    centreOnScreen();
}

void DivisasActualizandoWindow::formLoad()
{
    label1_->setText(texto(slot::DivisasActualizando));
}

} // namespace zafro
