#include "shell/window_shape.h"

#include "shell/form.h"

#include <QHash>
#include <QMouseEvent>
#include <QPainterPath>
#include <QWidget>
#include <QWindow>
#include <cmath>

namespace zafro {

namespace {

using Kind = ShapePiece::Kind;
using Op = ShapePiece::Op;

ShapePiece rect(Op op, int l, int t, int r, int b)
{
    return {op, Kind::Rect, l, t, r, b};
}
ShapePiece ellipse(Op op, int l, int t, int r, int b)
{
    return {op, Kind::Ellipse, l, t, r, b};
}
ShapePiece round(Op op, int l, int t, int r, int b, int w, int h)
{
    return {op, Kind::RoundRect, l, t, r, b, w, h};
}

const QHash<QString, std::vector<ShapePiece>> &shapes()
{
    static const QHash<QString, std::vector<ShapePiece>> table{
        {QStringLiteral("index"),
         {round(Op::First, 0, 50, 750, 500, 582, 326), rect(Op::Union, 0, 40, 749, 231),
          ellipse(Op::Union, 189, 470, 564, 545), round(Op::Union, 0, 2, 749, 100, 120, 44)}},
        {QStringLiteral("idiomaa"), {round(Op::First, 8, 32, 448, 262, 56, 56)}},
        {QStringLiteral("nuevos"), {round(Op::First, 13, 10, 379, 238, 52, 50)}},
        {QStringLiteral("colores"), {round(Op::First, 14, 22, 531, 456, 50, 50)}},
        {QStringLiteral("limpia"), {round(Op::First, 4, 6, 502, 190, 50, 50)}},
        {QStringLiteral("acercade"),
         {round(Op::First, 0, 27, 555, 166, 386, 86), round(Op::Union, 153, 95, 402, 203, 52, 48)}},
        {QStringLiteral("au"),
         {round(Op::First, 9, 11, 313, 121, 64, 62), rect(Op::Union, 9, 83, 312, 130),
          rect(Op::Union, 9, 120, 21, 145), rect(Op::Union, 301, 126, 312, 143),
          rect(Op::Union, 17, 139, 311, 145), rect(Op::Union, 305, 138, 312, 145)}},
        {QStringLiteral("configuracion"),
         {ellipse(Op::First, 9, 24, 459, 354), ellipse(Op::Xor, 272, 18, 428, 170),
          ellipse(Op::Minus, 46, 263, 98, 315), ellipse(Op::Xor, 56, 49, 114, 119),
          ellipse(Op::Minus, 262, 250, 298, 288), ellipse(Op::Minus, 418, 263, 446, 287),
          ellipse(Op::Minus, 161, 339, 179, 367), ellipse(Op::Minus, 367, 36, 381, 50)}},
    };
    return table;
}

QRegion pieceRegion(const ShapePiece &p, double sx, double sy, double offset)
{
    const auto x = [&](int d) { return static_cast<int>(std::lround(sx * d + offset)); };
    const auto y = [&](int d) { return static_cast<int>(std::lround(sy * d + offset)); };
    // Right and bottom edges lie outside the piece, as in the platform's regions.
    const QRect box(QPoint(x(p.left), y(p.top)), QPoint(x(p.right) - 1, y(p.bottom) - 1));
    switch (p.kind) {
    case Kind::Rect:
        return QRegion(box);
    case Kind::Ellipse:
        return QRegion(box, QRegion::Ellipse);
    case Kind::RoundRect: {
        QPainterPath path;
        path.addRoundedRect(QRectF(box.x(), box.y(), box.width(), box.height()),
                            sx * p.cornerWidth / 2.0, sy * p.cornerHeight / 2.0);
        // Winding fill: the overlapping corner arcs must not leave holes.
        return QRegion(path.toFillPolygon().toPolygon(), Qt::WindingFill);
    }
    }
    return {};
}

// Any mouse button on the window's own surface moves the window.
class SurfaceDrag : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *window = static_cast<QWidget *>(watched);
        switch (event->type()) {
        case QEvent::MouseButtonPress: {
            auto *mouse = static_cast<QMouseEvent *>(event);
            if (window->childAt(mouse->position().toPoint()))
                return false; // a control's press, not the surface's
            QWindow *handle = window->windowHandle();
            if (handle && handle->startSystemMove())
                return false;
            // No window manager to move it for us: follow the mouse by hand.
            dragging_ = true;
            grabOffset_ = mouse->globalPosition().toPoint() - window->frameGeometry().topLeft();
            return false;
        }
        case QEvent::MouseMove:
            if (dragging_)
                window->move(static_cast<QMouseEvent *>(event)->globalPosition().toPoint() -
                             grabOffset_);
            return false;
        case QEvent::MouseButtonRelease:
            dragging_ = false;
            return false;
        default:
            return false;
        }
    }

private:
    bool dragging_ = false;
    QPoint grabOffset_;
};

} // namespace

const std::vector<ShapePiece> &windowShapePieces(const QString &window)
{
    static const std::vector<ShapePiece> none;
    const auto it = shapes().constFind(window);
    return it == shapes().constEnd() ? none : *it;
}

QRegion buildWindowRegion(const std::vector<ShapePiece> &pieces, double twipsPerPixelX,
                          double twipsPerPixelY, double scale, double offset)
{
    const double sx = scale * 15.0 / twipsPerPixelX;
    const double sy = scale * 15.0 / twipsPerPixelY;
    QRegion region;
    for (const ShapePiece &piece : pieces) {
        const QRegion part = pieceRegion(piece, sx, sy, offset);
        switch (piece.op) {
        case Op::First:
            region = part;
            break;
        case Op::Union:
            region |= part;
            break;
        case Op::Minus:
            region -= part;
            break;
        case Op::Xor:
            region ^= part;
            break;
        }
    }
    return region;
}

void applyWindowShape(QWidget *window, const QString &name)
{
    window->setWindowFlag(Qt::FramelessWindowHint);
    const auto &pieces = windowShapePieces(name);
    if (!pieces.empty())
        window->setMask(buildWindowRegion(pieces, twipsPerPixelX(), twipsPerPixelY()));
    window->installEventFilter(new SurfaceDrag(window));
}

} // namespace zafro
