#include "shell/skin_sample.h"

#include <QWidget>

namespace zafro {

QColor colourFromNumber(quint32 bgr)
{
    return QColor(int(bgr & 0xFF), int((bgr >> 8) & 0xFF), int((bgr >> 16) & 0xFF));
}

quint32 numberFromRgb(int red, int green, int blue)
{
    return quint32(red) + quint32(green) * 256u + quint32(blue) * 65536u;
}

void setPaletteRole(QWidget *widget, QPalette::ColorRole role, const QColor &colour)
{
    QPalette palette = widget->palette();
    palette.setColor(role, colour);
    widget->setPalette(palette);
}

void paintBackground(QWidget *widget, const QColor &colour)
{
    widget->setAutoFillBackground(true);
    setPaletteRole(widget, QPalette::Window, colour);
}

void paintText(QWidget *widget, const QColor &colour)
{
    setPaletteRole(widget, QPalette::WindowText, colour);
}

void paintButton(QWidget *widget, const QColor &colour)
{
    setPaletteRole(widget, QPalette::Button, colour);
}

} // namespace zafro
