#pragma once

// Shaped windows: eight windows of the shell have no rectangular outline. Each
// outline is a list of pieces in design pixels, combined one after the other, and
// scaled to the screen's density so that the shape keeps its size.

#include <QRegion>
#include <QString>

#include <vector>

class QWidget;

namespace zafro {

struct ShapePiece {
    enum class Kind { Rect, RoundRect, Ellipse };
    enum class Op { First, Union, Minus, Xor };
    Op op;
    Kind kind;
    int left, top, right, bottom;
    int cornerWidth = 0, cornerHeight = 0; // the corner ellipse of a rounded rectangle
};

// The pieces of a shaped window by its name; empty for a window with a normal frame.
const std::vector<ShapePiece> &windowShapePieces(const QString &window);

// A design pixel d becomes scale * d * 15 / twipsPerPixel + offset device pixels.
QRegion buildWindowRegion(const std::vector<ShapePiece> &pieces, double twipsPerPixelX,
                          double twipsPerPixelY, double scale = 1.0, double offset = 0.0);

// Makes the window frameless, applies its outline and lets any mouse button drag it
// by its surface.
void applyWindowShape(QWidget *window, const QString &name);

} // namespace zafro
