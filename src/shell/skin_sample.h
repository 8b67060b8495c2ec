#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

namespace zafro {

// A colour number of the store (0xBBGGRR) as a colour, and back.
QColor colourFromNumber(quint32 bgr);
quint32 numberFromRgb(int red, int green, int blue);

// Sets one colour of a widget's palette, leaving the others alone.
void setPaletteRole(QWidget *widget, QPalette::ColorRole role, const QColor &colour);

// Paints one part of a skin sample: a surface's background, a label's text, a button's face.
void paintBackground(QWidget *widget, const QColor &colour);
void paintText(QWidget *widget, const QColor &colour);
void paintButton(QWidget *widget, const QColor &colour);

} // namespace zafro
