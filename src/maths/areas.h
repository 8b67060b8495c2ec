#pragma once

// The areas of 24 plane figures and solids. Each figure has a button, a picture, up to
// three labelled input fields and a formula; the window keeps only the chosen
// figure's number, and Calcular works from that.

#include <QString>

#include <array>
#include <optional>

namespace zafro {

// A field's label: a language slot followed by ":", or a plain letter as it stands.
struct EtiquetaArea {
    int slot = 0;
    const char *letra = "";
};

struct FiguraArea {
    int numero;         // 1 to 24, what the window remembers of the choice
    const char *boton;  // the button that chooses it
    const char *imagen; // the picture control and its drawing
    const char *antes;  // a joiner written as it stands, before the slot's
    int slotUnion;      // " del " or " de la ", 0 when the joiner is only the text above
    int slotNombre;     // the figure's name
    std::array<EtiquetaArea, 3> etiquetas;
    int campos; // Text1 to this field are enabled
};

inline constexpr int kFigurasArea = 24;
const std::array<FiguraArea, kFigurasArea> &figurasArea();

// "Área", the joiner and the name, from the loaded language table.
QString captionFigura(const FiguraArea &figura);
QString etiquetaCampo(const EtiquetaArea &etiqueta);

// The constants as the tool has always written them; the exact ones would change the
// last digits of many results.
inline constexpr double kPiAreas = 3.141593;
inline constexpr double kRaiz3Areas = 1.73205;
inline constexpr double kDodecaedroAreas = 6.88191;

// The area for the figure whose number the text holds, each field read leniently at
// each use in the formula; nothing when the text names no figure.
std::optional<QString> calcularArea(const QString &numeroFigura,
                                    const std::array<QString, 4> &campos);

// The placeholder that a background click writes into field 1 to 4 when it reads 0.
bool campoSinDato(const QString &campo);
QString datoCampo(int campo);

inline const QString kAreasResultado = QStringLiteral("RESULTADO");
inline const QString kAreasBorrar = QStringLiteral("BORRAR");
inline const QString kAreasCalcular = QStringLiteral("CALCULAR");

} // namespace zafro
