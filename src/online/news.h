#pragma once

// The news ticker's logic: what each item adds to the text, the scroll limit that
// the document itself carries at node 9, and the hover scroll's two steps. The top
// of the text is kept in twips, as the launcher's design gives it.

#include <QString>

#include <pugixml.hpp>

#include <optional>

namespace zafro {

inline constexpr int kNoticiasTopInicial = -480; // Textn2's design top
inline constexpr int kNoticiasAltura = 10000;    // and its design height
inline constexpr int kNoticiasPaso = 50;
inline constexpr int kPosicionLimite = 9;

// Two line breaks, the date, a line break and the text.
QString itemNoticia(const QString &fecha, const QString &noticia);

// The walk that reads the limit. Its counter starts at the launcher's load and
// never again, so the limit is read at the first walk and later walks only count on.
class LimiteNoticias {
public:
    void walk(const pugi::xml_node &parent);

    QString limite() const { return limite_; }
    void setLimite(const QString &text) { limite_ = text; }
    qint64 contadorNumero() const { return contadorNumero_; }
    // The limit as the scroll compares it: strict, as a text that is no number
    // cannot be compared with a position.
    double limiteNumero() const;

private:
    void walk(const pugi::xml_node &parent, int depth);

    qint64 contadorNumero_ = 0;
    QString limite_;
};

// One step of the scroll. Each arrow is either switched (true on, false off) or
// left as it was.
struct PasoNoticias {
    int top;
    bool movido; // Labeln1 shows the new top
    std::optional<bool> flechaSubir;
    std::optional<bool> flechaBajar;
};
PasoNoticias pasoSubir(int top, double limite); // Commandn4
PasoNoticias pasoBajar(int top, double limite); // Commandn5

} // namespace zafro
