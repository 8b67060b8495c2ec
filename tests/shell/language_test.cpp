#include "shell/language.h"
#include "shell/language/language_table.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace zafro {
namespace {

struct Language {
    const char *name;
    void (*load)();
};
const Language kLanguages[] = {
    {"Spanish", CargarEspanol}, {"English", CargarIngles}, {"Valencian", CargarValenciano}};

class LanguageTable : public ::testing::Test {
protected:
    void SetUp() override { clearLanguageTable(); }
    void TearDown() override
    {
        setLanguageAssignmentHook({});
        clearLanguageTable();
    }

    // Every assignment of one loader run, in order.
    static std::vector<std::pair<int, QString>> record(const Language &language)
    {
        std::vector<std::pair<int, QString>> made;
        setLanguageAssignmentHook([&](int slot, const QString &text) {
            made.push_back({slot, text});
        });
        language.load();
        setLanguageAssignmentHook({});
        return made;
    }
    static QString run(const LanguageTableData &data, Idioma idioma)
    {
        QStringList made;
        for (const Assignment &a : loaderRun(data, idioma))
            made.append(QString::number(a.slot) + u'=' + a.text);
        return made.join(u' ');
    }
};

TEST_F(LanguageTable, TellingRowsInAllThreeLanguages)
{
    const struct {
        const char *name;
        int slot;
        const char *text[3];
    } rows[] = {
        {"language code", 1, {"1", "2", "4"}},
        {"trailing blank kept", 4, {"Bienvenido a ", "Welcome to ", "Benvingut a "}},
        {"double blank kept", 15, {"Generar  PI", "Generate  PI", "Generar  PI"}},
        {"earlier row overwritten", 33, {"Cerrar", "Close", "Tancar"}},
        {"accents",
         45,
         {"Vas a batir un record...", "You are going to set a record...",
          "Vas a batre un récord..."}},
        {"English later row", 94, {"Título", "Title", "Títol"}},
        {"English blank month joiner", 446, {" del ", " ", " del "}},
    };
    for (const Language &language : kLanguages) {
        clearLanguageTable();
        language.load();
        const auto column = &language - kLanguages;
        for (const auto &row : rows) {
            SCOPED_TRACE(std::string(language.name) + ": " + row.name);
            EXPECT_EQ(texto(row.slot), row.text[column]);
        }
    }
    EXPECT_EQ(texto(0), QString());
    EXPECT_EQ(texto(kLanguageSlots + 1), QString());
}

// Switching languages leaves nothing of the former one, except the English
// loader never writing slot 93 (kept: the former language's caption stays there).
TEST_F(LanguageTable, EachLoaderFillsEverySlotAndASecondLeavesOnlySlot93OfTheFormer)
{
    for (const Language &to : kLanguages) {
        clearLanguageTable();
        to.load();
        std::array<QString, kLanguageSlots + 1> fresh;
        for (int slot = 1; slot <= kLanguageSlots; ++slot) {
            fresh[slot] = texto(slot);
            const bool left = to.load == CargarIngles && slot == 93;
            EXPECT_EQ(fresh[slot].isEmpty(), left) << to.name << " slot " << slot;
        }
        for (const Language &from : kLanguages) {
            clearLanguageTable();
            from.load();
            const QString former93 = texto(93);
            to.load();
            for (int slot = 1; slot <= kLanguageSlots; ++slot) {
                const bool left = to.load == CargarIngles && slot == 93;
                EXPECT_EQ(texto(slot), left ? former93 : fresh[slot])
                    << from.name << " then " << to.name << ", slot " << slot;
            }
        }
    }
}

TEST_F(LanguageTable, SlotsGoInNumberOrderLaterAssignmentsWinAndTheNoticeIsLast)
{
    for (const Language &language : kLanguages) {
        const auto made = record(language);
        ASSERT_FALSE(made.empty()) << language.name;
        EXPECT_EQ(made.back().first, 403) << language.name;
        for (std::size_t i = 0; i + 2 < made.size(); ++i)
            EXPECT_LE(made[i].first, made[i + 1].first) << language.name << " at " << i;
    }
    EXPECT_EQ(record(kLanguages[0]).size(), std::size_t(kLanguageSlots)) << "Spanish: once each";
    QStringList ingles;
    for (const auto &[slot, text] : record(kLanguages[1]))
        if (slot == 94 || slot == 446)
            ingles << text;
    EXPECT_EQ(ingles, QStringList({"Zafro Skin v 2.8: Do your own color configuration", "Title",
                                   " of ", " "}));
}

TEST_F(LanguageTable, TheCompiledDataIsWholeAndNamed)
{
    const LanguageTableData data = parseLanguageTable(compiledLanguageTable());
    EXPECT_EQ(data.errors, QStringList());
    EXPECT_EQ(checkLanguageTable(data, kLanguageSlots), QStringList());
}

TEST_F(LanguageTable, TheReaderTakesRowsEscapesAndMarkers)
{
    const LanguageTableData data =
        parseLanguageTable("# a comment\r\n"
                           "\n"
                           "  1 Uno \"a\\r\\nb\" \"tab\\there\" \"q\\\"\\\\\"\r\n"
                           "2\tDos \" lead\" \"trail \" -\n"
                           "earlier 2 - \"x\" -");
    ASSERT_EQ(data.errors, QStringList());
    ASSERT_EQ(data.rows.size(), 3u);
    const LanguageRow &uno = data.rows[0], &dos = data.rows[1], &earlier = data.rows[2];
    EXPECT_EQ(uno.line, 3);
    EXPECT_EQ(uno.name, "Uno");
    EXPECT_EQ(uno.texts[0], "a\r\nb");
    EXPECT_EQ(uno.texts[1], "tab\there");
    EXPECT_EQ(uno.texts[2], "q\"\\");
    EXPECT_EQ(dos.texts[0], " lead");
    EXPECT_EQ(dos.texts[1], "trail ");
    EXPECT_FALSE(dos.texts[2].has_value());
    EXPECT_TRUE(earlier.earlier);
    EXPECT_EQ(earlier.slot, 2);
    EXPECT_TRUE(earlier.name.isEmpty());
    EXPECT_EQ(earlier.texts[1], "x");
}

TEST_F(LanguageTable, TheReaderRejectsMalformedRows)
{
    const struct {
        const char *row, *error;
    } rows[] = {
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
    for (const auto &row : rows) {
        SCOPED_TRACE(row.error);
        const LanguageTableData data = parseLanguageTable(QByteArrayView(row.row));
        EXPECT_TRUE(data.rows.empty());
        ASSERT_EQ(data.errors.size(), 1);
        EXPECT_TRUE(data.errors[0].contains(QLatin1String(row.error)))
            << data.errors[0].toStdString();
    }
}

TEST_F(LanguageTable, TheCheckNamesEveryGapAndClash)
{
    const LanguageTableData data = parseLanguageTable("1 Uno \"a\" \"a\" \"a\"\n"
                                                      "1 Otro \"b\" \"b\" \"b\"\n"
                                                      "3 Uno \"c\" \"c\" \"c\"\n"
                                                      "5 Cinco \"d\" \"d\" \"d\"\n"
                                                      "earlier 4 \"e\" - -\n");
    ASSERT_EQ(data.errors, QStringList());
    const QString problems = checkLanguageTable(data, 4).join(u'\n');
    for (const char *expected :
         {"slot 1 has a second row", "the name Uno is used twice", "slot 2 has no row",
          "slot 4 has no row", "slot 5 is outside 1 to 4",
          "slot 4 has an earlier row but no row of its own"})
        EXPECT_TRUE(problems.contains(QLatin1String(expected))) << expected << " in\n"
                                                                << problems.toStdString();
}

TEST_F(LanguageTable, ARunFollowsSlotOrderWhateverTheFileOrder)
{
    const LanguageTableData data = parseLanguageTable("403 Aviso \"n\" \"n\" \"n\"\n"
                                                      "7 Siete \"7\" - \"7\"\n"
                                                      "earlier 7 \"7a\" \"7a\" -\n"
                                                      "earlier 7 - \"7b\" -\n"
                                                      "404 Otro \"o\" \"o\" \"o\"\n"
                                                      "2 Dos \"2\" \"2\" \"2\"\n");
    EXPECT_EQ(run(data, Idioma::Espanol), "2=2 7=7a 7=7 404=o 403=n");
    EXPECT_EQ(run(data, Idioma::Ingles), "2=2 7=7a 7=7b 404=o 403=n");
    EXPECT_EQ(run(data, Idioma::Valenciano), "2=2 7=7 404=o 403=n");
}

} // namespace
} // namespace zafro
