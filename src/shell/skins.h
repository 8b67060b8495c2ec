#pragma once

// Skins: the four colours every tool window takes at load, kept in the store
// under Colores\ in two faces (the colours, and their twelve components).

#include <QString>

#include <array>

namespace zafro {

struct Rgb {
    int red;
    int green;
    int blue;
};

struct BuiltInSkin {
    int tipo;
    const char16_t *name; // the option's caption
    quint32 backColor;    // colour numbers, 0xBBGGRR
    quint32 tituloForeColor;
    quint32 foreColor;
    quint32 commandBackColor;
    bool storedAsHex;                     // "&H" text rather than decimal
    Rgb background, text, title, buttons; // the components as stored
};

const std::array<BuiltInSkin, 9> &builtInSkins();
const BuiltInSkin *builtInSkin(int tipo); // nullptr outside 1..9

// The colour as the store keeps it for this skin: "&H80C0FF" or "14846691".
QString skinColourText(const BuiltInSkin &skin, quint32 colour);

// What a skin button of the skin window does: the four colours and Tipo, then
// Visitado raised to 1 if below, then the twelve components.
void guardarSkin(int tipo);

inline constexpr char16_t kColoresKey[] = u"Colores";
inline constexpr char16_t kIntegroKey[] = u"Colores\\Integro";

} // namespace zafro
