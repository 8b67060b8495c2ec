#include "fakes.h"
#include "games/tresenraya_window.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/register_forms.h"
#include "shell/skin_sample.h"

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
        T *found = window->findChild<T *>(name);
        EXPECT_NE(found, nullptr) << qPrintable(name);
        return found;
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
        return get<QLabel>(QStringLiteral("lblTurno"))->palette().color(QPalette::WindowText);
    }

    TresenrayaWindow *window = nullptr;
};

TEST_F(TresenrayaWindowTest, ALineWhilePlacingScoresAndEndsTheClickBeforeTheCountGrows)
{
    jugar("10427"); // player 1 holds 1, 4 and 7
    auto *linea = get(QStringLiteral("lneVertical"));
    EXPECT_FALSE(linea->isHidden());
    EXPECT_EQ(linea->property("X1").toInt(), 1920);
    EXPECT_EQ(linea->property("X2").toInt(), 1920);
    EXPECT_EQ(caption("lblPuntosJ1"), QStringLiteral("01"));
    EXPECT_EQ(window->juego().contadorFichas, 4);
    EXPECT_EQ(window->juego().turno, QStringLiteral("j2"));
    // The last click wrote no turn: player 1's name stays from the click before.
    EXPECT_EQ(caption("lblTurno"), QStringLiteral("Jugador1"));
    EXPECT_TRUE(get<QTimer>(QStringLiteral("Timer1"))->isActive());
    EXPECT_TRUE(get<QRadioButton>(QStringLiteral("optInicia_1"))->isChecked());
    EXPECT_FALSE(get<QRadioButton>(QStringLiteral("optInicia_2"))->isEnabled());
}

TEST_F(TresenrayaWindowTest, PlayerTwoWinsByAMoveAndKeepsTheTurn)
{
    jugar("021457"); // 1: 0 1 5, 2: 2 4 7
    EXPECT_EQ(window->juego().contadorFichas, 6);
    jugar("58"); // player 1 moves 5 to 8
    EXPECT_TRUE(shown("shp1", 8));
    EXPECT_FALSE(shown("shp1", 5));
    EXPECT_EQ(caption("lblTurno"), QStringLiteral("Jugador2"));
    EXPECT_EQ(turnoColour(), QColor(0, 0, 255));
    jugar("76");
    auto *linea = get(QStringLiteral("lneDiagonal"));
    EXPECT_FALSE(linea->isHidden());
    EXPECT_EQ(linea->property("X1").toInt(), 3600);
    EXPECT_EQ(linea->property("X2").toInt(), 240);
    EXPECT_EQ(window->juego().fichasJ2, QStringLiteral("246"));
    EXPECT_EQ(caption("lblPuntosJ2"), QStringLiteral("01"));
    EXPECT_EQ(window->juego().turno, QStringLiteral("j2"));
    EXPECT_TRUE(window->juego().origenElegido);
}

TEST_F(TresenrayaWindowTest, UndoTakesBackOneStepOnly)
{
    jugar("44"); // the second click finds the square taken
    EXPECT_EQ(caption("lblTurno"), QStringLiteral("Jugador1"));
    EXPECT_EQ(window->juego().turno, QStringLiteral("j2"));
    auto *undo = get<QAction>(QStringLiteral("mnuUndo"));
    undo->trigger();
    EXPECT_FALSE(shown("shp1", 4));
    EXPECT_EQ(window->juego().fichasJ1, QStringLiteral("4"));
    EXPECT_FALSE(undo->isEnabled());

    window->cmdNuevaClick();
    jugar("0153780"); // all six placed without a line, then player 1 chooses 0
    EXPECT_TRUE(shown("shpSel1", 0));
    undo->trigger();
    EXPECT_FALSE(shown("shpSel1", 0));
    EXPECT_TRUE(shown("shp1", 0));
    EXPECT_FALSE(window->juego().origenElegido);
    jugar("04"); // a whole move, undone
    undo->trigger();
    EXPECT_TRUE(shown("shp1", 0));
    EXPECT_FALSE(shown("shp1", 4));
    EXPECT_EQ(window->juego().fichasJ1, QStringLiteral("057"));
    EXPECT_EQ(window->juego().turno, QStringLiteral("j1"));
}

TEST_F(TresenrayaWindowTest, StartChoiceKeyboardAndTheThreeResets)
{
    auto *opt1 = get<QRadioButton>(QStringLiteral("optInicia_1"));
    auto *opt2 = get<QRadioButton>(QStringLiteral("optInicia_2"));
    QTest::mouseClick(opt2, Qt::LeftButton);
    EXPECT_EQ(window->juego().turno, QStringLiteral("j2"));
    EXPECT_FALSE(opt1->isEnabled());
    EXPECT_EQ(turnoColour(), QColor(0, 0, 255));

    auto *nueva = get<QPushButton>(QStringLiteral("cmdNueva"));
    QTest::keyClick(nueva, Qt::Key_7); // square 0, player 2 starts
    EXPECT_TRUE(shown("shp2", 0));
    QTest::keyClick(nueva, Qt::Key_A);
    EXPECT_EQ(window->juego().contadorFichas, 1);

    get<QAction>(QStringLiteral("mnuReiniciar"))->trigger();
    EXPECT_TRUE(opt2->isChecked());
    EXPECT_EQ(window->juego().turno, QStringLiteral("j1"));
    EXPECT_FALSE(shown("shp2", 0));
    EXPECT_EQ(turnoColour(), colourFromNumber(0xC0FFC0));

    get<QLabel>(QStringLiteral("lblPuntosJ1"))->setText(QStringLiteral("07"));
    window->cmdReiniciarClick();
    EXPECT_EQ(caption("lblPuntosJ1"), QStringLiteral("00"));
    EXPECT_EQ(window->juego().turno, QStringLiteral("j2"));

    nueva->click();
    EXPECT_FALSE(opt1->isChecked() || opt2->isChecked());
    EXPECT_TRUE(opt1->isEnabled() && opt2->isEnabled());
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(TresenrayaWindowTest, ScoresPast99ClearBothAndLampsBlink)
{
    get<QLabel>(QStringLiteral("lblPuntosJ1"))->setText(QStringLiteral("99"));
    get<QLabel>(QStringLiteral("lblPuntosJ2"))->setText(QStringLiteral("05"));
    jugar("01326"); // player 1 holds 0, 3 and 6
    EXPECT_EQ(caption("lblPuntosJ1") + caption("lblPuntosJ2"), QStringLiteral("0000"));
    window->timer1Timer();
    EXPECT_EQ(caption("lblTateti"), QStringLiteral("3 EN RAYA"));
    EXPECT_TRUE(shown("shpAmarillo", 33) && !shown("shpRojo", 0));
    window->timer1Timer();
    EXPECT_EQ(caption("lblTateti"), QString());
    EXPECT_TRUE(!shown("shpAmarillo", 0) && shown("shpRojo", 33));
}

TEST_F(TresenrayaWindowTest, NamesHelpAndTheSpanishOnlyNotice)
{
    fakes().dialogs.inputs << QStringLiteral("Ana") << QString();
    get<QAction>(QStringLiteral("mnuIngreso"))->trigger();
    EXPECT_EQ(fakes().dialogs.prompts, QStringList({QStringLiteral("Nombre del primer jugador"),
                                                    QStringLiteral("Nombre del segundo jugador")}));
    EXPECT_EQ(caption("lblJugador1") + QLatin1Char('/') + caption("lblJugador2"),
              QStringLiteral("Ana/"));

    get<QAction>(QStringLiteral("mnuContenido"))->trigger();
    auto *ayuda = forms().find(QStringLiteral("tresenrayaayuda"));
    ASSERT_NE(ayuda, nullptr);
    const QStringList lineas =
        ayuda->findChild<QPlainTextEdit *>(QStringLiteral("txtAyuda"))->toPlainText().split('\n');
    EXPECT_EQ(lineas.size(), 21) << "every line ends with a break";
    EXPECT_EQ(lineas.at(1), QString());
    EXPECT_EQ(lineas.at(17),
              QStringLiteral("   o seleccionar la opción del menú JUEGO-REINICIAR PARTIDA"));

    get<QAction>(QStringLiteral("acercadeee"))->trigger();
    EXPECT_NE(forms().find(QStringLiteral("acercade")), nullptr);

    // Only the game's own timer: the captions stay as the game set them.
    EXPECT_EQ(window->findChildren<QTimer *>(QStringLiteral("Timer1")).size(), 1);
    EXPECT_EQ(get<QTimer>(QStringLiteral("Timer1"))->interval(), 300);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Zafro Suite: 3 en Raya"));

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
