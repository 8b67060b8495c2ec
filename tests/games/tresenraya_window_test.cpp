#include "fakes.h"
#include "games/tresenraya_window.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/register_forms.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

class TresenrayaWindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        registerForms();
        CargarEspanol();
        window = qobject_cast<TresenrayaWindow *>(forms().show(QStringLiteral("tresenraya")));
        ASSERT_NE(window, nullptr);
    }

    template <typename T = QWidget> T *get(const QString &name) const
    {
        return window->findChild<T *>(name);
    }
    QString caption(const char *name) const { return get<QLabel>(QLatin1String(name))->text(); }
    bool shown(const char *shape, int square) const
    {
        return !get(QStringLiteral("%1_%2").arg(QLatin1String(shape)).arg(square))->isHidden();
    }
    void jugar(const char *casillas)
    {
        for (const char *c = casillas; *c; ++c)
            QTest::mouseClick(get(QStringLiteral("imgPosicion_%1").arg(QLatin1Char(*c))),
                              Qt::LeftButton);
    }
    QColor turnoColour() const
    {
        return get(QStringLiteral("lblTurno"))->palette().color(QPalette::WindowText);
    }
    // The position in one line: turn, both strings, count, and the squares of each shown shape.
    QString estado() const
    {
        const TresEnRaya &j = window->juego();
        QString s = QStringLiteral("%1 %2/%3 %4")
                        .arg(j.turno, j.fichasJ1, j.fichasJ2)
                        .arg(j.contadorFichas);
        for (const char *shape : {"shp1", "shp2", "shpSel1", "shpSel2"}) {
            s += QLatin1Char(' ') + QLatin1String(shape) + QLatin1Char(':');
            for (int c = 0; c < 9; ++c)
                if (shown(shape, c))
                    s += QString::number(c);
        }
        return s;
    }

    TresenrayaWindow *window = nullptr;
};

TEST_F(TresenrayaWindowTest, ALineWhilePlacingScoresEndsTheClickAndBlinks)
{
    get<QLabel>(QStringLiteral("lblPuntosJ1"))->setText(QStringLiteral("99"));
    get<QLabel>(QStringLiteral("lblPuntosJ2"))->setText(QStringLiteral("05"));
    jugar("10427"); // player 1 holds 1, 4 and 7
    auto *linea = get(QStringLiteral("lneVertical"));
    EXPECT_FALSE(linea->isHidden());
    EXPECT_EQ(linea->property("X1").toInt() + linea->property("X2").toInt(), 2 * 1920);
    EXPECT_EQ(caption("lblPuntosJ1") + caption("lblPuntosJ2"), QStringLiteral("0000"));
    EXPECT_EQ(estado(), QStringLiteral("j2 147/02 4 shp1:147 shp2:02 shpSel1: shpSel2:"));
    // The last click wrote no turn: player 1's name stays from the click before.
    EXPECT_EQ(caption("lblTurno"), QStringLiteral("Jugador1"));
    EXPECT_TRUE(get<QTimer>(QStringLiteral("Timer1"))->isActive());
    window->timer1Timer();
    EXPECT_EQ(caption("lblTateti"), QStringLiteral("3 EN RAYA"));
    EXPECT_TRUE(shown("shpAmarillo", 33) && !shown("shpRojo", 0));
    window->timer1Timer();
    EXPECT_EQ(caption("lblTateti"), QString());
    EXPECT_TRUE(!shown("shpAmarillo", 0) && shown("shpRojo", 33));
}

TEST_F(TresenrayaWindowTest, PlayerTwoWinsByAMoveAndKeepsTheTurn)
{
    jugar("02145758"); // 1: 0 1 5, 2: 2 4 7; then player 1 moves 5 to 8
    EXPECT_EQ(estado(), QStringLiteral("j2 018/247 -1 shp1:018 shp2:247 shpSel1: shpSel2:"));
    EXPECT_EQ(caption("lblTurno"), QStringLiteral("Jugador2"));
    EXPECT_EQ(turnoColour(), QColor(0, 0, 255));
    jugar("76");
    auto *linea = get(QStringLiteral("lneDiagonal"));
    EXPECT_FALSE(linea->isHidden());
    EXPECT_EQ(QPoint(linea->property("X1").toInt(), linea->property("X2").toInt()),
              QPoint(3600, 240));
    EXPECT_EQ(caption("lblPuntosJ2"), QStringLiteral("01"));
    EXPECT_EQ(estado(), QStringLiteral("j2 018/246 -1 shp1:018 shp2:246 shpSel1: shpSel2:"));
    EXPECT_TRUE(window->juego().origenElegido);
}

TEST_F(TresenrayaWindowTest, UndoTakesBackOneStepOnly)
{
    auto *undo = get<QAction>(QStringLiteral("mnuUndo"));
    jugar("44"); // the second click finds the square taken
    EXPECT_EQ(caption("lblTurno") + window->juego().turno, QStringLiteral("Jugador1j2"));
    undo->trigger();
    EXPECT_EQ(estado(), QStringLiteral("j1 4/ 0 shp1: shp2: shpSel1: shpSel2:"));
    EXPECT_FALSE(undo->isEnabled());

    window->cmdNuevaClick();
    jugar("0153780"); // all six placed without a line, then player 1 chooses 0
    EXPECT_EQ(estado(), QStringLiteral("j1 057/138 -1 shp1:057 shp2:138 shpSel1:0 shpSel2:"));
    undo->trigger();
    EXPECT_EQ(estado(), QStringLiteral("j1 057/138 -1 shp1:057 shp2:138 shpSel1: shpSel2:"));
    jugar("04");
    EXPECT_EQ(estado(), QStringLiteral("j2 457/138 -1 shp1:457 shp2:138 shpSel1: shpSel2:"));
    undo->trigger();
    EXPECT_EQ(estado(), QStringLiteral("j1 057/138 -1 shp1:057 shp2:138 shpSel1: shpSel2:"));
}

TEST_F(TresenrayaWindowTest, StartChoiceKeyboardAndTheThreeResets)
{
    auto *opt1 = get<QRadioButton>(QStringLiteral("optInicia_1"));
    auto *opt2 = get<QRadioButton>(QStringLiteral("optInicia_2"));
    QTest::mouseClick(opt2, Qt::LeftButton);
    EXPECT_FALSE(opt1->isEnabled());
    EXPECT_EQ(turnoColour(), QColor(0, 0, 255));
    auto *nueva = get<QPushButton>(QStringLiteral("cmdNueva"));
    QTest::keyClick(nueva, Qt::Key_7); // square 0, player 2 starts
    QTest::keyClick(nueva, Qt::Key_A);
    EXPECT_EQ(estado(), QStringLiteral("j1 /0 1 shp1: shp2:0 shpSel1: shpSel2:"));

    get<QAction>(QStringLiteral("mnuReiniciar"))->trigger();
    EXPECT_TRUE(opt2->isChecked());
    EXPECT_EQ(estado(), QStringLiteral("j1 / 0 shp1: shp2: shpSel1: shpSel2:"));
    EXPECT_EQ(turnoColour(), QColor(0xC0, 0xFF, 0xC0));

    get<QLabel>(QStringLiteral("lblPuntosJ1"))->setText(QStringLiteral("07"));
    window->cmdReiniciarClick();
    EXPECT_EQ(caption("lblPuntosJ1") + window->juego().turno, QStringLiteral("00j2"));

    nueva->click();
    EXPECT_FALSE(opt1->isChecked() || opt2->isChecked());
    EXPECT_TRUE(opt1->isEnabled() && opt2->isEnabled());
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(TresenrayaWindowTest, NamesHelpAboutAndTheSpanishOnlyNotice)
{
    fakes().dialogs.inputs << QStringLiteral("Ana") << QString();
    get<QAction>(QStringLiteral("mnuIngreso"))->trigger();
    EXPECT_EQ(fakes().dialogs.prompts.join(QLatin1Char('/')),
              QStringLiteral("Nombre del primer jugador/Nombre del segundo jugador"));
    EXPECT_EQ(caption("lblJugador1") + QLatin1Char('/') + caption("lblJugador2"),
              QStringLiteral("Ana/"));

    get<QAction>(QStringLiteral("mnuContenido"))->trigger();
    auto *ayuda = forms().find(QStringLiteral("tresenrayaayuda"));
    ASSERT_NE(ayuda, nullptr);
    const QStringList lineas =
        ayuda->findChild<QPlainTextEdit *>(QStringLiteral("txtAyuda"))->toPlainText().split('\n');
    EXPECT_EQ(lineas.size(), 21) << "every line ends with a break";
    EXPECT_EQ(lineas.at(17),
              QStringLiteral("   o seleccionar la opción del menú JUEGO-REINICIAR PARTIDA"));
    get<QAction>(QStringLiteral("acercadeee"))->trigger();
    EXPECT_NE(forms().find(QStringLiteral("acercade")), nullptr);

    // Only the game's own timer, no title timer that would rewrite the caption.
    const auto timers = window->findChildren<QTimer *>(QStringLiteral("Timer1"));
    EXPECT_TRUE(timers.size() == 1 && timers.at(0)->interval() == 300);

    forms().unload(QStringLiteral("tresenraya"));
    CargarIngles();
    window = qobject_cast<TresenrayaWindow *>(forms().show(QStringLiteral("tresenraya")));
    window->mnuReiniciarClick();
    ASSERT_EQ(fakes().dialogs.messages.size(), 2);
    EXPECT_EQ(fakes().dialogs.messages.at(1).text,
              QStringLiteral("Sorry but this section is only available in Spanish"));
    EXPECT_EQ(get<QPushButton>(QStringLiteral("cmdNueva"))->text(),
              QStringLiteral("Nueva partida"));
}

} // namespace
} // namespace zafro
