#include "shell/language.h"
#include "shell/language/language_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

namespace zafro {
namespace {

using Loader = void (*)();
struct Language {
    const char *name;
    Loader load;
};
const Language kEspanol{"Spanish", CargarEspanol};
const Language kIngles{"English", CargarIngles};
const Language kValenciano{"Valencian", CargarValenciano};
const Language kLanguages[] = {kEspanol, kIngles, kValenciano};

QString q(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

class LanguageTable : public ::testing::Test {
protected:
    void SetUp() override { clearLanguageTable(); }
    void TearDown() override
    {
        setLanguageAssignmentHook({});
        clearLanguageTable();
    }

    // Every assignment of one loader run, in order.
    std::vector<std::pair<int, QString>> record(const Language &language)
    {
        std::vector<std::pair<int, QString>> made;
        setLanguageAssignmentHook([&](int slot, const QString &text) {
            made.push_back({slot, text});
        });
        language.load();
        setLanguageAssignmentHook({});
        return made;
    }

    std::array<QString, kLanguageSlots + 1> snapshot()
    {
        std::array<QString, kLanguageSlots + 1> texts;
        for (int slot = 1; slot <= kLanguageSlots; ++slot)
            texts[slot] = texto(slot);
        return texts;
    }
};

TEST_F(LanguageTable, TellingRowsInAllThreeLanguages)
{
    struct Row {
        int slot;
        const char *text[3];
    };
    const Row rows[] = {
        {1, {"1", "2", "4"}},
        {2, {"Zafro Suite", "Zafro Suite", "Zafro Suite"}},
        {3, {"Bienvenido", "Welcome", "Benvingut"}},
        {33, {"Cerrar", "Close", "Tancar"}},
        {34, {"Acerca de", "About", "Quant a"}},
        {43, {"has estado aqui ", "you have been here ", "has estat açi "}},
        {44, {" veces", " times", " voltes"}},
        {45,
         {"Vas a batir un record...", "You are going to set a record...",
          "Vas a batre un récord..."}},
        {46,
         {"Me he quedado con la boca abierta!! has entrado 100 veces !!",
          "I'm surprised!! You have entered 100 times!!",
          "M'he quedat amb la bocabadat!! has entrat 100 voltes !!"}},
        {51, {"Lunes", "Monday", "Dilluns"}},
        {57, {"Domingo", "Sunday", "Diumenge"}},
        {72, {"Aceptar", "Ok", "Acceptar"}},
        {73, {"Pausar", "Stop", "Pausar"}},
        {74, {"Reanudar", "Play", "Reanudar"}},
        {106,
         {"Solo puedes poner valores entre 0 y 255", "You can only put numbers between 0 and 255",
          "Sols pots ficar valors entre 0 i 255"}},
        {398,
         {"Conectando con el servidor de noticias de Zafro.....",
          "Connecting with the Zafro News Server.....",
          "Conectant amb el servidor de noticies de Zafro....."}},
    };
    for (int column = 0; column < 3; ++column) {
        clearLanguageTable();
        kLanguages[column].load();
        for (const Row &row : rows)
            EXPECT_EQ(texto(row.slot), q(row.text[column]))
                << kLanguages[column].name << " slot " << row.slot;
    }
}

TEST_F(LanguageTable, TextsQuotedByTheWindowsStandWordForWord)
{
    struct Row {
        const Language &language;
        int slot;
        const char *text;
    };
    const Row rows[] = {
        {kEspanol, 4, "Bienvenido a "},
        {kEspanol, 15, "Generar  PI"},
        {kEspanol, 50,
         "Seguro que has hecho trampas modificando el registro!!!!!; no me chupo el dedo"},
        {kEspanol, 84,
         "Lo siento pero por errores de cálculo en la época romana, no se puso un año cero. Hace "
         "falta ser torpe..."},
        {kEspanol, 87, "Zafro Skin v 2.8: Elije tu configuración de colores"},
        {kEspanol, 93, "Zafro Skin v 2.8:  Haz tu configuración de colores"},
        {kEspanol, 153,
         "Al final de cada letra hay que poner una barra: '/'    Al final de cada palabra se ponen "
         "dos barras: '//'"},
        {kEspanol, 178,
         "Este método es bastante sencillo de utilizar. Utilizamos la formula: PI/4 = 4.arctag 1/5 "
         "- arctag 1/239. El número de decimales obtenidos, dependerá de la precisión con la que "
         "realicemos los cálculos... Si ponemos un número abusivo de decimales es posible que "
         "sobrecarguemos el procesador y el programa no responda..."},
        {kEspanol, 179, " Se ha tardado "},
        {kEspanol, 183,
         "Escoge una ecuación para ver las gráficas. Te recomiendo poner valores menores a 9 en la "
         "constante. Puedes ingresar también valores fraccionarios, los mejores resultados se "
         "obtienen con valores fraccionarios para los coeficientes."},
        {kEspanol, 243,
         "Ten en cuenta que este generador de tarjetas de crédito solo tiene la función de enseñar "
         "cual es el algoritmo utilizado para la codificación. Cualquier otro uso que se le de, no "
         "estará bajo la responsabilidad de Zafro.  Los números generados son verdaderos, otra "
         "cosa es que realmente existan..."},
        {kEspanol, 262,
         "Puesto que nunca as ejecutado esta sección, vamos a proceder a la actualización de datos "
         "con el servidor... Sería conveniente que los datos fueran actualizados periódicamente "
         "para obtener mejores resultados en las operaciones"},
        {kEspanol, 279,
         "Todavía no hemos establecido conexión con el servidor, espere a recibir confirmación. "
         "Recuerde que tiene que estar conectado a internet para actualizar los datos. Si la "
         "confirmación no llegará, por favor, informe aqui: "},
        {kEspanol, 385, "Volver   "},
        {kEspanol, 396, "En número de filas no es correcto. Este puede ser desde 2 hasta 6!"},
        {kEspanol, 399,
         "No ha sido posible la conexión con el servidor de noticias... Esto puede deberse a que "
         "no "
         "estes conectado o a un fallo en la conexión de internet..."},
        {kEspanol, 403, "Lo siento pero esta sección solo está disponible en Español"},
        {kEspanol, 421,
         "El dígito introducido en la primera letra es inválido. Ten en cuenta que las matrículas "
         "solo llevan consonantes."},
        {kEspanol, 446, " del "},
        {kEspanol, 473,
         "El fichero seleccionado no existe... Por favor, asegúrate de haber introducido "
         "correctamente la ruta. Si no tienes el archivo de datos actualiza directamente o entra "
         "en "},
        {kIngles, 10, "Integration Calculations"},
        {kIngles, 17, "Sucesions"},
        {kIngles, 28, "Three on line"},
        {kIngles, 94, "Title"},
        {kIngles, 116, "Horizontal Parable"},
        {kIngles, 118, "Hiperble"},
        {kIngles, 269, "Not connected with server"},
        {kIngles, 274, "Not connected to server"},
        {kIngles, 446, " "},
        {kIngles, 447, " "},
        {kValenciano, 446, " del "},
    };
    for (const Language &language : kLanguages) {
        clearLanguageTable();
        language.load();
        for (const Row &row : rows) {
            if (row.language.load == language.load) {
                EXPECT_EQ(texto(row.slot), q(row.text)) << language.name << " slot " << row.slot;
            }
        }
    }
    CargarEspanol();
    EXPECT_EQ(texto(4) + texto(2), q("Bienvenido a Zafro Suite")) << "slot 4 keeps its blank";
}

TEST_F(LanguageTable, EachLoaderFillsEverySlotButEnglishSlot93)
{
    EXPECT_TRUE(texto(2).isEmpty()) << "a fresh table is empty";
    for (const Language &language : kLanguages) {
        clearLanguageTable();
        language.load();
        for (int slot = 1; slot <= kLanguageSlots; ++slot) {
            const bool left = language.load == CargarIngles && slot == 93;
            EXPECT_EQ(texto(slot).isEmpty(), left) << language.name << " slot " << slot;
        }
        EXPECT_TRUE(texto(0).isEmpty() && texto(kLanguageSlots + 1).isEmpty()) << language.name;
    }
}

TEST_F(LanguageTable, LaterAssignmentsOfASlotWin)
{
    const auto assignmentsOf = [](const std::vector<std::pair<int, QString>> &run, int slot) {
        QStringList texts;
        for (const auto &[s, text] : run) {
            if (s == slot)
                texts.append(text);
        }
        return texts;
    };
    const auto ingles = record(kIngles);
    EXPECT_EQ(assignmentsOf(ingles, 446), QStringList({q(" of "), q(" ")}));
    EXPECT_EQ(assignmentsOf(ingles, 94),
              QStringList({q("Zafro Skin v 2.8: Do your own color configuration"), q("Title")}));
    EXPECT_EQ(texto(94), q("Title"));
    const auto valenciano = record(kValenciano);
    EXPECT_EQ(assignmentsOf(valenciano, 33), QStringList({q("Tanca"), q("Tancar")}));
    EXPECT_EQ(texto(33), q("Tancar"));
    EXPECT_EQ(record(kEspanol).size(), std::size_t(kLanguageSlots)) << "Spanish writes each once";
}

TEST_F(LanguageTable, SlotsGoInNumberOrderAndTheSpanishOnlyNoticeLast)
{
    for (const Language &language : kLanguages) {
        const auto run = record(language);
        ASSERT_FALSE(run.empty()) << language.name;
        EXPECT_EQ(run.back().first, 403) << language.name;
        EXPECT_EQ(texto(403), run.back().second) << language.name;
        int previous = 0;
        for (std::size_t i = 0; i + 1 < run.size(); ++i) {
            EXPECT_NE(run[i].first, 403) << language.name << " at assignment " << i;
            EXPECT_GE(run[i].first, previous) << language.name << " at assignment " << i;
            previous = run[i].first;
        }
    }
}

TEST_F(LanguageTable, ASecondLoaderLeavesNothingOfTheFormerButEnglishSlot93)
{
    for (const Language &to : kLanguages) {
        clearLanguageTable();
        to.load();
        const auto fresh = snapshot();
        for (const Language &from : kLanguages) {
            clearLanguageTable();
            from.load();
            const QString former93 = texto(93);
            to.load();
            for (int slot = 1; slot <= kLanguageSlots; ++slot) {
                const bool left = to.load == CargarIngles && slot == 93;
                const QString expected = left ? former93 : fresh[slot];
                EXPECT_EQ(texto(slot), expected)
                    << from.name << " then " << to.name << ", slot " << slot;
            }
        }
    }
}

TEST(LanguageTableData, CompiledTableIsWholeAndNamed)
{
    const LanguageTableData data = parseLanguageTable(compiledLanguageTable());
    EXPECT_EQ(data.errors, QStringList());
    EXPECT_EQ(checkLanguageTable(data, kLanguageSlots), QStringList());
}

TEST(LanguageTableData, ReadsRowsEscapesAndMarkers)
{
    const LanguageTableData data =
        parseLanguageTable("# a comment\r\n"
                           "\n"
                           "  1 Uno \"a\\r\\nb\" \"tab\\there\" \"q\\\"\\\\\"\r\n"
                           "2\tDos \" lead\" \"trail \" -\n"
                           "earlier 2 - \"x\" -");
    ASSERT_EQ(data.errors, QStringList());
    ASSERT_EQ(data.rows.size(), 3u);
    const LanguageRow &uno = data.rows[0];
    EXPECT_EQ(uno.line, 3);
    EXPECT_EQ(uno.name, q("Uno"));
    EXPECT_EQ(uno.texts[0], q("a\r\nb"));
    EXPECT_EQ(uno.texts[1], q("tab\there"));
    EXPECT_EQ(uno.texts[2], q("q\"\\"));
    const LanguageRow &dos = data.rows[1];
    EXPECT_EQ(dos.texts[0], q(" lead"));
    EXPECT_EQ(dos.texts[1], q("trail "));
    EXPECT_FALSE(dos.texts[2].has_value());
    const LanguageRow &earlier = data.rows[2];
    EXPECT_TRUE(earlier.earlier);
    EXPECT_EQ(earlier.slot, 2);
    EXPECT_TRUE(earlier.name.isEmpty());
    EXPECT_EQ(earlier.texts[1], q("x"));
}

TEST(LanguageTableData, RejectsMalformedRows)
{
    const struct {
        const char *row;
        const char *error;
    } cases[] = {
        {"x Uno \"a\" \"b\" \"c\"", "slot number"},
        {"1 9Uno \"a\" \"b\" \"c\"", "name"},
        {"1 Uno \"a\" \"b\"", "missing"},
        {"1 Uno \"a\" \"b\" \"c\" \"d\"", "more than"},
        {"1 Uno a \"b\" \"c\"", "double quotes"},
        {"1 Uno \"a\"\"b\" \"c\"", "separated"},
        {"1 Uno \"a\" \"b\" \"c", "closing quote"},
        {"1 Uno \"a\\q\" \"b\" \"c\"", "escape"},
        {"1 Uno \"a\tb\" \"b\" \"c\"", "control character"},
        {"1 Uno \"\xC3\" \"b\" \"c\"", "UTF-8"},
    };
    for (const auto &c : cases) {
        const LanguageTableData data = parseLanguageTable(QByteArrayView(c.row));
        EXPECT_TRUE(data.rows.empty()) << c.row;
        ASSERT_EQ(data.errors.size(), 1) << c.row;
        EXPECT_TRUE(data.errors[0].contains(QLatin1String(c.error)))
            << c.row << ": " << data.errors[0].toStdString();
    }
}

TEST(LanguageTableData, CheckNamesEveryGapAndClash)
{
    const LanguageTableData data = parseLanguageTable("1 Uno \"a\" \"a\" \"a\"\n"
                                                      "1 Otro \"b\" \"b\" \"b\"\n"
                                                      "3 Uno \"c\" \"c\" \"c\"\n"
                                                      "5 Cinco \"d\" \"d\" \"d\"\n"
                                                      "earlier 4 \"e\" - -\n");
    ASSERT_EQ(data.errors, QStringList());
    const QString problems = checkLanguageTable(data, 4).join(QLatin1Char('\n'));
    for (const char *expected :
         {"slot 1 has a second row", "the name Uno is used twice", "slot 2 has no row",
          "slot 4 has no row", "slot 5 is outside 1 to 4",
          "slot 4 has an earlier row but no row of its own"})
        EXPECT_TRUE(problems.contains(QLatin1String(expected))) << expected << " in\n"
                                                                << problems.toStdString();
}

TEST(LanguageTableData, RunFollowsSlotOrderWhateverTheFileOrder)
{
    const LanguageTableData data = parseLanguageTable("403 Aviso \"n\" \"n\" \"n\"\n"
                                                      "7 Siete \"7\" - \"7\"\n"
                                                      "earlier 7 \"7a\" \"7a\" -\n"
                                                      "earlier 7 - \"7b\" -\n"
                                                      "404 Otro \"o\" \"o\" \"o\"\n"
                                                      "2 Dos \"2\" \"2\" \"2\"\n");
    const auto texts = [&](Idioma idioma) {
        QStringList made;
        for (const Assignment &a : loaderRun(data, idioma))
            made.append(QString::number(a.slot) + QLatin1Char('=') + a.text);
        return made.join(QLatin1Char(' '));
    };
    EXPECT_EQ(texts(Idioma::Espanol), q("2=2 7=7a 7=7 404=o 403=n"));
    EXPECT_EQ(texts(Idioma::Ingles), q("2=2 7=7a 7=7b 404=o 403=n"));
    EXPECT_EQ(texts(Idioma::Valenciano), q("2=2 7=7 404=o 403=n"));
}

} // namespace
} // namespace zafro
