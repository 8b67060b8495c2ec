#include "shell/command_line.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

namespace zafro {
namespace {

struct Row {
    const char *name;
    QStringList arguments; // after the program's path
    int status;            // -1: the suite starts
    const char *tool;
    const char *out; // a part of standard output
    const char *err; // a part of standard error
};

const Row kRows[] = {
    {"NoArguments", {}, -1, "", "", ""},
    {"LongHelp", {"--help"}, 0, "", "Usage: zafrosuite [options]", ""},
    {"Version", {"--version"}, 0, "", "Zafro Suite 4.6.32\n", ""},
    {"ToolWithEquals", {"--tool=pi"}, -1, "pi", "", ""},
    {"ToolSeparate", {"--tool", "matriculasselect"}, -1, "matriculasselect", "", ""},
    {"ShortTool", {"-t", "divisas"}, -1, "divisas", "", ""},
    {"ToolNameInAnyCase", {"--tool", "isbn"}, -1, "ISBN", "", ""},
    {"ToolHelpLists", {"--tool", "help"}, 0, "", "coordenadas1\nseggrado\n", ""},
    {"UnknownTool", {"--tool", "nada"}, 2, "", "", "no tool is called 'nada'"},
    {"PlaceHeldIsNoTool", {"--tool", ""}, 2, "", "", "morse\n"},
    {"ToolWithoutName", {"--tool"}, 2, "", "", "Missing value after '--tool'"},
    {"UnknownOption", {"--colour"}, 2, "", "", "Unknown option 'colour'"},
    {"StrayArgument", {"matrices"}, 2, "", "", "unexpected argument 'matrices'"},
    {"QtOptionsPassThrough", {"-platform", "offscreen", "-reverse", "-t", "pi"}, -1, "pi", "", ""},
};

class CommandLineRows : public ::testing::TestWithParam<Row> {};

TEST_P(CommandLineRows, ParseAsDocumented)
{
    const Row &row = GetParam();
    const CommandLine line =
        parseCommandLine(QStringList{QStringLiteral("/usr/bin/zafrosuite")} + row.arguments);
    EXPECT_EQ(line.done, row.status >= 0);
    if (row.status >= 0) {
        EXPECT_EQ(line.status, row.status);
    }
    EXPECT_EQ(line.tool, QLatin1String(row.tool));
    EXPECT_TRUE(line.out.contains(QString::fromUtf8(row.out))) << line.out.toStdString();
    EXPECT_TRUE(line.err.contains(QString::fromUtf8(row.err))) << line.err.toStdString();
    EXPECT_EQ(line.out.isEmpty(), !*row.out);
    EXPECT_EQ(line.err.isEmpty(), !*row.err);
}

INSTANTIATE_TEST_SUITE_P(Arguments, CommandLineRows, ::testing::ValuesIn(kRows),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(ToolOption, OpensTheToolThroughItsLabelOnceTheLauncherShows)
{
    CargarEspanol();
    writeConfig(QStringLiteral("Visitado"), QStringLiteral("5"));
    guardarSkin(4);
    openToolOnceLauncherShows(QStringLiteral("matriculasselect"));
    QCoreApplication::processEvents();
    EXPECT_EQ(forms().find(QStringLiteral("matriculasselect")), nullptr)
        << "not before the launcher";
    forms().show(QStringLiteral("index"));
    QTRY_VERIFY(forms().find(QStringLiteral("matriculasselect")) != nullptr);
    QWidget *plates = forms().find(QStringLiteral("matriculasselect"));
    EXPECT_TRUE(plates->isVisible());
    EXPECT_EQ(plates->findChild<QLabel *>(QStringLiteral("ls"))->text(), QStringLiteral("1"))
        << "told that it runs under the launcher, as its label tells it";
}

} // namespace
} // namespace zafro
