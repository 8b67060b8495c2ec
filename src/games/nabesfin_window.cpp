#include "games/nabesfin_window.h"

#include "shell/forms.h"

#include <QLabel>
#include <QPushButton>

namespace zafro {

NabesFinWindow::NabesFinWindow(bool ganada)
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5400, 3360);
    setFixedSize(size());
    setAutoFillBackground(true);
    // The end windows keep their own night colours, whatever the skin.
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor(0x10, 0x14, 0x30));
    colours.setColor(QPalette::WindowText, QColor(0xf0, 0xf0, 0xff));
    setPalette(colours);

    auto *image = place(new QLabel(this), "Image1", 240, 240, 1440, 1440);
    image->setPixmap(QPixmap(ganada ? QStringLiteral(":/games/nabes/ganaste.png")
                                    : QStringLiteral(":/games/nabes/perdiste.png")));
    image->setScaledContents(true);
    auto *label1 = place(
        new QLabel(ganada ? QStringLiteral("Ganaste...") : QStringLiteral("Perdiste..."), this),
        "Label1", 1920, 360, 3240, 600);
    setBold(label1, 18);
    auto *label2 = place(new QLabel(QStringLiteral("Quieres Jugar otra partida ??"), this),
                         "Label2", 1920, 1080, 3240, 480);
    setBold(label2, 10);
    auto *command2 =
        place(new QPushButton(QStringLiteral("Aceptar"), this), "Command2", 1920, 2280, 1500, 480);
    auto *command7 =
        place(new QPushButton(QStringLiteral("Cancelar"), this), "Command7", 3660, 2280, 1500, 480);
    connect(command2, &QPushButton::clicked, this, &NabesFinWindow::command2Click);
    connect(command7, &QPushButton::clicked, this, &NabesFinWindow::command7Click);
    centreOnScreen();
}

void NabesFinWindow::formLoad()
{
    forms().unload(QStringLiteral("nabes"));
}

void NabesFinWindow::command2Click()
{
    forms().unload(QStringLiteral("nabes"));
    forms().show(QStringLiteral("nabes"));
    unloadMe();
}

void NabesFinWindow::command7Click()
{
    unloadMe();
}

} // namespace zafro
