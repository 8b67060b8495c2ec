#include "maths/figura_svg.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <QStack>
#include <QXmlStreamReader>

namespace zafro {

namespace {

struct Estilo {
    QString fill = QStringLiteral("black");
    QString stroke = QStringLiteral("none");
    double strokeWidth = 1;
    QString dash;
    double fillOpacity = 1;
    double fontSize = 12;
    bool italic = false;
    bool bold = false;
    QString anchor = QStringLiteral("start");
};

Estilo heredar(Estilo estilo, const QXmlStreamAttributes &a)
{
    const auto texto = [&a](const char *nombre, QString &destino) {
        if (a.hasAttribute(QLatin1String(nombre)))
            destino = a.value(QLatin1String(nombre)).toString();
    };
    const auto numero = [&a](const char *nombre, double &destino) {
        if (a.hasAttribute(QLatin1String(nombre)))
            destino = a.value(QLatin1String(nombre)).toDouble();
    };
    texto("fill", estilo.fill);
    texto("stroke", estilo.stroke);
    texto("stroke-dasharray", estilo.dash);
    texto("text-anchor", estilo.anchor);
    numero("stroke-width", estilo.strokeWidth);
    numero("fill-opacity", estilo.fillOpacity);
    numero("font-size", estilo.fontSize);
    if (a.hasAttribute(QLatin1String("font-style")))
        estilo.italic = a.value(QLatin1String("font-style")) == QLatin1String("italic");
    if (a.hasAttribute(QLatin1String("font-weight")))
        estilo.bold = a.value(QLatin1String("font-weight")) == QLatin1String("bold");
    return estilo;
}

QList<double> numeros(QStringView texto)
{
    static const QRegularExpression patron(QStringLiteral("[-+]?(\\d+\\.?\\d*|\\.\\d+)"));
    QList<double> lista;
    for (const QRegularExpressionMatch &m : patron.globalMatch(texto))
        lista << m.captured().toDouble();
    return lista;
}

QPolygonF puntos(QStringView texto)
{
    const QList<double> n = numeros(texto);
    QPolygonF poligono;
    for (qsizetype k = 0; k + 1 < n.size(); k += 2)
        poligono << QPointF(n[k], n[k + 1]);
    return poligono;
}

QPainterPath trazado(const QString &d)
{
    static const QRegularExpression orden(QStringLiteral("([MLHVCQZ])([^MLHVCQZ]*)"));
    QPainterPath path;
    for (const QRegularExpressionMatch &m : orden.globalMatch(d)) {
        const QList<double> n = numeros(m.capturedView(2));
        const QChar c = m.captured(1).at(0);
        const QPointF actual = path.currentPosition();
        if (c == u'Z') {
            path.closeSubpath();
            continue;
        }
        if (c == u'H' || c == u'V') {
            for (double v : n)
                path.lineTo(c == u'H' ? QPointF(v, actual.y()) : QPointF(actual.x(), v));
            continue;
        }
        const int paso = c == u'C' ? 6 : c == u'Q' ? 4 : 2;
        for (qsizetype k = 0; k + paso <= n.size(); k += paso) {
            if (c == u'C')
                path.cubicTo(n[k], n[k + 1], n[k + 2], n[k + 3], n[k + 4], n[k + 5]);
            else if (c == u'Q')
                path.quadTo(n[k], n[k + 1], n[k + 2], n[k + 3]);
            else if (c == u'M' && k == 0)
                path.moveTo(n[k], n[k + 1]);
            else
                path.lineTo(n[k], n[k + 1]);
        }
    }
    return path;
}

void preparar(QPainter &p, const Estilo &e)
{
    if (e.stroke == QLatin1String("none")) {
        p.setPen(Qt::NoPen);
    } else {
        QPen pen(QColor(e.stroke), e.strokeWidth);
        pen.setJoinStyle(Qt::RoundJoin);
        pen.setCapStyle(Qt::RoundCap);
        const QList<double> trazos = numeros(e.dash);
        if (!trazos.isEmpty() && e.strokeWidth > 0) {
            QList<qreal> relativos;
            for (double t : trazos)
                relativos << t / e.strokeWidth;
            pen.setDashPattern(relativos);
        }
        p.setPen(pen);
    }
    QColor relleno(e.fill);
    relleno.setAlphaF(relleno.alphaF() * e.fillOpacity);
    p.setBrush(e.fill == QLatin1String("none") ? QBrush(Qt::NoBrush) : QBrush(relleno));
}

void dibujarTexto(QPainter &p, const Estilo &e, QPointF en, const QString &texto)
{
    QFont font = p.font();
    font.setPointSizeF(e.fontSize * 0.75); // SVG sizes are in pixels
    font.setItalic(e.italic);
    font.setBold(e.bold);
    p.setFont(font);
    const double ancho = p.fontMetrics().horizontalAdvance(texto);
    if (e.anchor == QLatin1String("middle"))
        en.rx() -= ancho / 2;
    else if (e.anchor == QLatin1String("end"))
        en.rx() -= ancho;
    p.setPen(QColor(e.fill));
    p.drawText(en, texto);
}

void dibujarElemento(QPainter &p, const Estilo &e, QXmlStreamReader &xml)
{
    const QXmlStreamAttributes a = xml.attributes();
    const auto v = [&a](const char *nombre) { return a.value(QLatin1String(nombre)).toDouble(); };
    const QStringView nombre = xml.name();
    preparar(p, e);
    if (nombre == u"line") {
        p.drawLine(QPointF(v("x1"), v("y1")), QPointF(v("x2"), v("y2")));
    } else if (nombre == u"polyline") {
        p.drawPolyline(puntos(a.value(QLatin1String("points"))));
    } else if (nombre == u"polygon") {
        p.drawPolygon(puntos(a.value(QLatin1String("points"))));
    } else if (nombre == u"rect") {
        p.drawRoundedRect(QRectF(v("x"), v("y"), v("width"), v("height")), v("rx"), v("rx"));
    } else if (nombre == u"circle") {
        p.drawEllipse(QPointF(v("cx"), v("cy")), v("r"), v("r"));
    } else if (nombre == u"ellipse") {
        p.drawEllipse(QPointF(v("cx"), v("cy")), v("rx"), v("ry"));
    } else if (nombre == u"path") {
        p.drawPath(trazado(a.value(QLatin1String("d")).toString()));
    } else if (nombre == u"text") {
        const QPointF en(v("x"), v("y"));
        dibujarTexto(p, e, en, xml.readElementText(QXmlStreamReader::IncludeChildElements));
    }
}

} // namespace

QPixmap dibujarSvg(const QByteArray &svg, QSize size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    QXmlStreamReader xml(svg);
    QStack<Estilo> estilos;
    estilos.push(Estilo{});
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement && xml.name() != u"text") {
            if (estilos.size() > 1)
                estilos.pop();
            continue;
        }
        if (token != QXmlStreamReader::StartElement)
            continue;
        const Estilo estilo = heredar(estilos.top(), xml.attributes());
        if (xml.name() == u"svg") {
            const QList<double> caja = numeros(xml.attributes().value(QLatin1String("viewBox")));
            if (caja.size() == 4 && caja[2] > 0 && caja[3] > 0) {
                p.scale(size.width() / caja[2], size.height() / caja[3]);
                p.translate(-caja[0], -caja[1]);
            }
        }
        if (xml.name() == u"text") {
            dibujarElemento(p, estilo, xml); // reads up to its end element
            continue;
        }
        estilos.push(estilo);
        dibujarElemento(p, estilo, xml);
    }
    return pixmap;
}

} // namespace zafro
