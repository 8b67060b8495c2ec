#include "platform/cd_door.h"
#include "shell/language.h"
#include "shell/launcher_services.h"

#include <gtest/gtest.h>

namespace zafro {
namespace {

QDateTime at(int y, int mo, int d, int h = 12, int mi = 0, int s = 0)
{
    return QDateTime(QDate(y, mo, d), QTime(h, mi, s));
}

TEST(LauncherServices, ClockAndDateFormats)
{
    CargarEspanol();
    const struct {
        const char *name;
        QDateTime now;
        double hora, fecha;
        const char *label4, *label8;
    } rows[] = {
        {"format2JustAfterMidnight", at(2006, 3, 7, 0, 7, 3), 2, 2, "00:07", "03/07/2006"},
        {"format3BeforeMidnight", at(2006, 3, 7, 23, 59, 59), 3, 3, "11:59:59 PM",
         "Martes 07/03/2006"},
        {"noonIsZeroPm", at(2006, 3, 7, 12, 0, 0), 3, 1, "0:00:00 PM", "07/03/2006"},
        {"format4HalfPastMidnight", at(2006, 3, 7, 0, 30, 0), 4, 1, "0:30 AM", "07/03/2006"},
        {"outOfRangeIsFormat1", at(2006, 12, 24, 21, 5, 7), 7, 9, "21:05:07", "24/12/2006"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        RelojIndex reloj;
        reloj.refrescar(row.now);
        EXPECT_EQ(reloj.hora(row.hora), QString::fromUtf8(row.label4));
        EXPECT_EQ(reloj.fecha(row.fecha), QString::fromUtf8(row.label8));
    }
    RelojIndex reloj;
    reloj.refrescar(at(2006, 3, 5, 9, 5, 7));
    EXPECT_EQ(reloj.tipHora(), QStringLiteral("Domingo - 09:05:07"));
    EXPECT_EQ(reloj.tipFecha(), QStringLiteral("Domingo - 05/03/2006"));
    // The day's and the month's zeros outlive the refresh; the time's do not.
    reloj.refrescar(at(2006, 9, 30, 9, 0, 0));
    reloj.refrescar(at(2006, 10, 1, 10, 10, 10));
    EXPECT_EQ(reloj.fecha(1), QStringLiteral("01/010/2006"));
    EXPECT_EQ(reloj.hora(1), QStringLiteral("10:10:10"));
}

TEST(LauncherServices, FormatStepsCommentsAndGreetings)
{
    const double hora[][2] = {{0, 2}, {1, 2}, {2, 3}, {3, 4}, {4, 1}, {7, 1}};
    for (const auto &h : hora)
        EXPECT_EQ(siguienteFormatoHora(h[0]), h[1]) << "hora " << h[0];
    const double fecha[][2] = {{0, 2}, {1, 2}, {2, 3}, {3, 1}, {9, 1}};
    for (const auto &f : fecha)
        EXPECT_EQ(siguienteFormatoFecha(f[0]), f[1]) << "fecha " << f[0];

    CargarEspanol();
    EXPECT_EQ(comentarioVisitas(99), QString());
    EXPECT_EQ(comentarioVisitas(100), QStringLiteral("Vas a batir un record..."));
    EXPECT_EQ(comentarioVisitas(750), QStringLiteral("Eres de los que más a entrado !!!"));
    EXPECT_TRUE(comentarioVisitas(1000000).startsWith(QStringLiteral("Seguro que has hecho")));

    const struct {
        const char *name;
        QDate date;
        const char *label5, *mensaje;
    } days[] = {
        {"newYear", QDate(2026, 1, 1), "Feliz año 2026", ""},
        {"secondOfJanuary", QDate(2026, 1, 2), "Feliz Navidad", ""},
        {"hispanidad2015", QDate(2015, 10, 12), "Feliz día de la Hispanidad", ""},
        {"november2015", QDate(2015, 11, 1), "Se acerca el 10 del 12", ""},
        {"reminder2015", QDate(2015, 12, 5), "Se acerca el 10 del 12", ""},
        {"theDay2015", QDate(2015, 12, 10), "Hoy es el día !!",
         "A las 22h en el Mercado de Colon... s/c  xDxDxD"},
        {"theDay2014", QDate(2014, 12, 10), "", ""},
        {"christmas2015", QDate(2015, 12, 25), "Feliz Navidad", ""},
        {"newYearsEve", QDate(2026, 12, 31), "Feliz Navidad, disfruta la nochevieja!", ""},
        {"ordinaryDay", QDate(2026, 3, 3), "", ""},
    };
    for (const auto &d : days) {
        const SaludoDelDia s = saludoDelDia(d.date);
        EXPECT_EQ(s.label5, QString::fromUtf8(d.label5)) << d.name;
        EXPECT_EQ(s.mensaje, QString::fromUtf8(d.mensaje)) << d.name;
    }
}

TEST(LauncherServices, PopupStepsChaseAndDoorCommands)
{
    int left = 980;
    EXPECT_FALSE(pasoPopupDerecha(left, 1000));
    EXPECT_EQ(left, 1000);
    EXPECT_TRUE(pasoPopupDerecha(left, 1000)) << "at the limit it still steps, and turns";
    EXPECT_EQ(left, 1020);
    left = 10;
    EXPECT_TRUE(pasoPopupIzquierda(left));
    EXPECT_EQ(left, -10);
    EXPECT_TRUE(pasoPopupIzquierda(left)) << "below 0 it stays and turns again";
    EXPECT_EQ(left, -10);
    left = 0;
    EXPECT_FALSE(pasoPopupIzquierda(left)) << "exactly 0 neither moves nor turns";
    EXPECT_EQ(left, 0);

    std::vector<PuntoTwips> clip(3);
    pasoPersecucion(clip, QPoint(600, 120), 6);
    EXPECT_DOUBLE_EQ(clip[0].left, 100);
    EXPECT_DOUBLE_EQ(clip[0].top, 20);
    EXPECT_DOUBLE_EQ(clip[1].left, 110.0 / 6) << "after the moved member before it, 10 right";
    EXPECT_DOUBLE_EQ(clip[2].top, 20.0 / 36);

    EXPECT_EQ(cdDoorAction(QStringLiteral("set Cdaudio door open")), CdDoorAction::Open);
    EXPECT_EQ(cdDoorAction(QStringLiteral("SET  cdaudio DOOR closed")), CdDoorAction::Close);
    EXPECT_EQ(cdDoorAction(QStringLiteral("set Cdaudio door ajar")), CdDoorAction::None);
    EXPECT_EQ(cdDoorAction(QStringLiteral("play cdaudio")), CdDoorAction::None);
}

} // namespace
} // namespace zafro
