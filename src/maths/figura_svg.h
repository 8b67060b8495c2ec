#pragma once

// The figure drawings are our own, hand-written in a small part of SVG: the shapes
// line, polyline, polygon, rect, circle, ellipse, path (absolute M, L, H, V, C, Q, Z)
// and text, grouped by g, with the painting attributes fill, stroke, stroke-width,
// stroke-dasharray, fill-opacity and the text's font-size, font-style, font-weight
// and text-anchor, inherited from groups. Anything else is skipped.

#include <QByteArray>
#include <QPixmap>
#include <QSize>

namespace zafro {

// The drawing scaled from its viewBox into a transparent pixmap of the given size.
QPixmap dibujarSvg(const QByteArray &svg, QSize size);

} // namespace zafro
