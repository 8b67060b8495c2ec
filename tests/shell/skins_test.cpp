#include "shell/settings.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

namespace zafro {
namespace {

QString colour(const char *name)
{
    return LeerClaveShell(configPath(QLatin1String(name), QStringLiteral("Colores")));
}
QString component(const char *name)
{
    return LeerClaveShell(configPath(QLatin1String(name), QStringLiteral("Colores\\Integro")));
}

TEST(Skins, EachBuiltInSkinStoresItsColoursInItsOwnFormAndItsComponents)
{
    struct Row {
        int tipo;
        const char *back, *title, *fore, *button;
        const char *fondo[3], *texto[3];
    };
    const Row rows[] = {
        {1, "&H010101", "&H0101FF", "&HFFFFFF", "&H01FF01", {"1", "1", "1"}, {"255", "255", "255"}},
        {3,
         "&HFFC0C0",
         "&H0101FF",
         "&H0140C0",
         "&HFF0101",
         {"192", "192", "255"},
         {"192", "128", "1"}},
        {4, "14846691", "16776961", "66047", "101375", {"227", "138", "226"}, {"255", "1", "1"}},
        {5, "11665408", "19455", "47103", "131071", {"1", "1", "178"}, {"255", "183", "1"}},
        {9, "97535", "16735233", "15132389", "6611471", {"255", "124", "1"}, {"1", "92", "255"}},
    };
    for (const Row &r : rows) {
        guardarSkin(r.tipo);
        SCOPED_TRACE(r.tipo);
        EXPECT_EQ(colour("BackColor"), QLatin1String(r.back));
        EXPECT_EQ(colour("TituloForeColor"), QLatin1String(r.title));
        EXPECT_EQ(colour("ForeColor"), QLatin1String(r.fore));
        EXPECT_EQ(colour("CommandBackColor"), QLatin1String(r.button));
        EXPECT_EQ(colour("Tipo"), QString::number(r.tipo));
        EXPECT_EQ(component("Fonrojo"), QLatin1String(r.fondo[0]));
        EXPECT_EQ(component("Fonverde"), QLatin1String(r.fondo[1]));
        EXPECT_EQ(component("Fonazul"), QLatin1String(r.fondo[2]));
        EXPECT_EQ(component("Txtrojo"), QLatin1String(r.texto[0]));
        EXPECT_EQ(component("Txtverde"), QLatin1String(r.texto[1]));
        EXPECT_EQ(component("Txtazul"), QLatin1String(r.texto[2]));
    }
    // kept mismatch: skin 9's title components are the text colour's
    EXPECT_EQ(component("Titrojo"), QStringLiteral("229"));
    EXPECT_EQ(component("Botazul"), QStringLiteral("100"));
}

TEST(Skins, StoringASkinRaisesAnAbsentVisitCountToOneButNoHigher)
{
    guardarSkin(7);
    EXPECT_EQ(LeerClaveShell(configPath(QStringLiteral("Visitado"))), QStringLiteral("1"));
    writeConfig(QStringLiteral("Visitado"), QStringLiteral("9"));
    guardarSkin(6);
    EXPECT_EQ(LeerClaveShell(configPath(QStringLiteral("Visitado"))), QStringLiteral("9"));
}

TEST(Skins, NumbersOutsideTheNineStoreNothing)
{
    guardarSkin(0);
    guardarSkin(55);
    EXPECT_EQ(colour("Tipo"), QString());
    EXPECT_EQ(builtInSkin(10), nullptr);
}

} // namespace
} // namespace zafro
