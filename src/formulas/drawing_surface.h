#pragma once

// A surface to set dots on in logical coordinates.
//
// The client area is declared to be a rectangle of logical coordinates, and
// the mapping to pixels is linear. The dots live in a backing image of the
// client area's size, so that nothing drawn is lost when another window passes
// over the surface; a dot outside the rectangle simply is not seen.

#include "formulas/coordenadas_muestreo.h"

#include <QColor>
#include <QImage>
#include <QWidget>

#include <functional>
#include <optional>

namespace zafro {

class DrawingSurface : public QWidget {
    Q_OBJECT
public:
    explicit DrawingSurface(QWidget *parent, const QColor &fondo);

    // The left, top, right and bottom logical edges of the client area.
    void setScale(float left, float top, float right, float bottom);
    void clear();
    void setForeColor(const QColor &colour) { tinta_ = colour.rgb(); }

    void dot(const Punto &punto);
    void dots(const QList<Punto> &puntos);

    // The pixel that the logical point falls in, or nothing outside the client area.
    std::optional<QPoint> pixelOf(const Punto &punto) const;

    const QImage &image() const
    {
        ajustar();
        return imagen_;
    }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void ajustar() const;

    mutable QImage imagen_;
    QRgb fondo_;
    QRgb tinta_;
    double left_ = 0;
    double top_ = 0;
    double right_ = 1;
    double bottom_ = 1;
};

// Runs a sampling into the surface a slice at a time and lets the application's
// events through between slices, so that a sampling that never ends (a step of 0,
// or one that no longer moves the counter) keeps its window alive. `seguir` is
// asked after each pause; the run stops when it says no or the surface is gone.
// True when the sampling reached its end.
bool trazar(DrawingSurface *surface, Muestreo &muestreo, const std::function<bool()> &seguir);

} // namespace zafro
