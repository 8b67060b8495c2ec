#include "online/news.h"

#include "online/fetch_cycle.h"
#include "runtime/convert.h"
#include "runtime/runtime_error.h"

namespace zafro {

namespace {
const QString kLineBreak = QStringLiteral("\r\n");
constexpr int kMaxDepth = 10000;
} // namespace

QString itemNoticia(const QString &fecha, const QString &noticia)
{
    return kLineBreak + kLineBreak + fecha + kLineBreak + noticia;
}

void LimiteNoticias::walk(const pugi::xml_node &parent)
{
    walk(parent, 0);
}

void LimiteNoticias::walk(const pugi::xml_node &parent, int depth)
{
    if (depth > kMaxDepth)
        throw RuntimeError::outOfStackSpace();
    for (const pugi::xml_node &node : parent.children()) {
        if (++contadorNumero_ == kPosicionLimite)
            limite_ = attributeText(node, "numero");
        if (node.first_child())
            walk(node, depth + 1);
    }
}

double LimiteNoticias::limiteNumero() const
{
    return CDbl(limite_);
}

PasoNoticias pasoSubir(int top, double limite)
{
    PasoNoticias paso{top, false, top < kNoticiasTopInicial, std::nullopt};
    if (top < kNoticiasTopInicial) {
        paso.top = top + kNoticiasPaso;
        paso.movido = true;
    }
    paso.flechaBajar = limite < paso.top;
    return paso;
}

PasoNoticias pasoBajar(int top, double limite)
{
    PasoNoticias paso{top, false, top < kNoticiasTopInicial, std::nullopt};
    if (limite < top) {
        paso.top = top - kNoticiasPaso;
        paso.movido = true;
    } else {
        paso.flechaBajar = false;
    }
    return paso;
}

} // namespace zafro
