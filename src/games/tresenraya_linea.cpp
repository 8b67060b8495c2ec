#include "games/tresenraya_linea.h"

#include "shell/form.h"

#include <QPainter>

namespace zafro {

LineaTablero::LineaTablero(QWidget *parent, const QString &name) : QWidget(parent)
{
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void LineaTablero::set(const Linea &linea)
{
    linea_ = linea;
    const int margen = 90;
    setGeometry(twipsRect(qMin(linea.x1, linea.x2) - margen, qMin(linea.y1, linea.y2) - margen,
                          qAbs(linea.x2 - linea.x1) + 2 * margen,
                          qAbs(linea.y2 - linea.y1) + 2 * margen));
    setVisible(linea.visible);
    update();
}

void LineaTablero::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xD0, 0x10, 0x10), 5, Qt::SolidLine, Qt::RoundCap));
    const QPoint origen = geometry().topLeft();
    const auto punto = [&](int x, int y) {
        return QPoint(twipsToPixelsX(x), twipsToPixelsY(y)) - origen;
    };
    painter.drawLine(punto(linea_.x1, linea_.y1), punto(linea_.x2, linea_.y2));
}

} // namespace zafro
