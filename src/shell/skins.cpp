#include "shell/skins.h"

#include "shell/settings.h"

namespace zafro {

const std::array<BuiltInSkin, 9> &builtInSkins()
{
    // kept: two rows do not match their colours (skin 3's text green, skin 9's
    // text and title exchanged); nothing ever checks the two faces agree.
    static const std::array<BuiltInSkin, 9> skins{{
        {1,
         u"Dark 1",
         0x010101,
         0x0101FF,
         0xFFFFFF,
         0x01FF01,
         true,
         {1, 1, 1},
         {255, 255, 255},
         {255, 1, 1},
         {1, 255, 1}},
        {2,
         u"Rojos",
         0x80C0FF,
         0xFF0101,
         0x018001,
         0x0101FF,
         true,
         {255, 192, 128},
         {1, 128, 1},
         {1, 1, 255},
         {255, 1, 1}},
        {3,
         u"Azul claro",
         0xFFC0C0,
         0x0101FF,
         0x0140C0,
         0xFF0101,
         true,
         {192, 192, 255},
         {192, 128, 1},
         {255, 1, 1},
         {1, 1, 255}},
        {4,
         u"Rosas",
         0xE28AE3,
         0xFFFF01,
         0x0101FF,
         0x018BFF,
         false,
         {227, 138, 226},
         {255, 1, 1},
         {1, 255, 255},
         {255, 139, 1}},
        {5,
         u"Azul - Amarillo",
         0xB20000,
         0x004BFF,
         0x00B7FF,
         0x01FFFF,
         false,
         {1, 1, 178},
         {255, 183, 1},
         {255, 75, 1},
         {255, 255, 1}},
        {6,
         u"Amarillo - Naranja",
         0x60FFFF,
         0x2534FF,
         0xBA424B,
         0x267EFF,
         false,
         {255, 255, 96},
         {75, 66, 186},
         {255, 52, 37},
         {255, 126, 38}},
        {7,
         u"Dark 2",
         0x010101,
         0x017CFF,
         0xE645FF,
         0x012CFF,
         false,
         {1, 1, 1},
         {255, 69, 230},
         {255, 124, 1},
         {255, 44, 1}},
        {8,
         u"Marrón",
         0x404080,
         0xFF5762,
         0x71D701,
         0x16D1FF,
         false,
         {128, 64, 64},
         {1, 215, 113},
         {98, 87, 255},
         {255, 209, 22}},
        {9,
         u"Naranja",
         0x017CFF,
         0xFF5C01,
         0xE6E6E5,
         0x64E20F,
         false,
         {255, 124, 1},
         {1, 92, 255},
         {229, 230, 230},
         {15, 226, 100}},
    }};
    return skins;
}

const BuiltInSkin *builtInSkin(int tipo)
{
    if (tipo < 1 || tipo > 9)
        return nullptr;
    return &builtInSkins()[static_cast<std::size_t>(tipo - 1)];
}

QString skinColourText(const BuiltInSkin &skin, quint32 colour)
{
    if (skin.storedAsHex)
        return QStringLiteral("&H") +
               QString::number(colour, 16).rightJustified(6, QLatin1Char('0')).toUpper();
    return QString::number(colour);
}

void guardarSkin(int tipo)
{
    const BuiltInSkin *skin = builtInSkin(tipo);
    if (!skin)
        return;
    const QString colores = QString::fromUtf16(kColoresKey);
    writeConfig(QStringLiteral("BackColor"), skinColourText(*skin, skin->backColor), colores);
    writeConfig(QStringLiteral("TituloForeColor"), skinColourText(*skin, skin->tituloForeColor),
                colores);
    writeConfig(QStringLiteral("ForeColor"), skinColourText(*skin, skin->foreColor), colores);
    writeConfig(QStringLiteral("CommandBackColor"), skinColourText(*skin, skin->commandBackColor),
                colores);
    writeConfig(QStringLiteral("Tipo"), QString::number(skin->tipo), colores);
    if (readConfigNumber(QStringLiteral("Visitado")) < 1)
        writeConfig(QStringLiteral("Visitado"), QStringLiteral("1"));

    const QString integro = QString::fromUtf16(kIntegroKey);
    const auto group = [&](const char *prefix, const Rgb &c) {
        const QString p = QLatin1String(prefix);
        writeConfig(p + QStringLiteral("rojo"), QString::number(c.red), integro);
        writeConfig(p + QStringLiteral("verde"), QString::number(c.green), integro);
        writeConfig(p + QStringLiteral("azul"), QString::number(c.blue), integro);
    };
    group("Fon", skin->background);
    group("Txt", skin->text);
    group("Tit", skin->title);
    group("Bot", skin->buttons);
}

} // namespace zafro
