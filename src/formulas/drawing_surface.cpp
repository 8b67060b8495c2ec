#include "formulas/drawing_surface.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>

#include <cmath>

namespace zafro {

DrawingSurface::DrawingSurface(QWidget *parent, const QColor &fondo)
    : QWidget(parent), fondo_(fondo.rgb()), tinta_(QColor(Qt::black).rgb())
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void DrawingSurface::setScale(float left, float top, float right, float bottom)
{
    left_ = left;
    top_ = top;
    right_ = right;
    bottom_ = bottom;
}

void DrawingSurface::clear()
{
    ajustar();
    imagen_.fill(fondo_);
    update();
}

std::optional<QPoint> DrawingSurface::pixelOf(const Punto &punto) const
{
    if (imagen_.size() != size())
        return std::nullopt;
    // A rectangle of no width or height shows nothing; NaN fails both tests too.
    const double px = (punto.x - left_) / (right_ - left_) * imagen_.width();
    const double py = (top_ - punto.y) / (top_ - bottom_) * imagen_.height();
    if (!(px >= 0 && px < imagen_.width() && py >= 0 && py < imagen_.height()))
        return std::nullopt;
    return QPoint(int(px), int(py));
}

void DrawingSurface::dot(const Punto &punto)
{
    dots({punto});
}

void DrawingSurface::dots(const QList<Punto> &puntos)
{
    ajustar();
    const double sx = imagen_.width() / (right_ - left_);
    const double sy = imagen_.height() / (top_ - bottom_);
    const double w = imagen_.width();
    const double h = imagen_.height();
    for (const Punto &p : puntos) {
        const double px = (p.x - left_) * sx;
        const double py = (top_ - p.y) * sy;
        if (!(px >= 0 && px < w && py >= 0 && py < h))
            continue;
        reinterpret_cast<QRgb *>(imagen_.scanLine(int(py)))[int(px)] = tinta_;
    }
    update();
}

void DrawingSurface::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.drawImage(event->rect(), imagen_, event->rect());
}

void DrawingSurface::resizeEvent(QResizeEvent *)
{
    ajustar();
}

void DrawingSurface::ajustar() const
{
    // A hidden widget hears of its size only when shown, so the image follows the
    // size wherever it is used. What was drawn stays where it was; new room shows
    // the background.
    if (imagen_.size() == size())
        return;
    QImage nueva(size(), QImage::Format_RGB32);
    nueva.fill(fondo_);
    if (!imagen_.isNull()) {
        QPainter painter(&nueva);
        painter.drawImage(0, 0, imagen_);
    }
    imagen_ = nueva;
}

bool trazar(DrawingSurface *surface, Muestreo &muestreo, const std::function<bool()> &seguir)
{
    constexpr int kLote = 2048;
    QPointer<DrawingSurface> vivo(surface);
    QList<Punto> lote;
    lote.reserve(2 * kLote);
    while (!muestreo.terminado()) {
        lote.clear();
        muestreo.avanzar(kLote, lote);
        vivo->dots(lote);
        if (muestreo.terminado())
            break;
        // A counter that no longer moves repeats its dots for ever: wait for events
        // rather than spin, since nothing new can appear.
        QCoreApplication::processEvents(muestreo.sinAvance() ? QEventLoop::WaitForMoreEvents
                                                             : QEventLoop::AllEvents);
        if (!vivo || !seguir())
            return false;
    }
    return true;
}

} // namespace zafro
