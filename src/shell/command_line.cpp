#include "shell/command_line.h"

#include "shell/launcher.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace zafro {

namespace {

const QString kVersion = QStringLiteral("Zafro Suite %1.%2.%3")
                             .arg(ZAFRO_VERSION_MAJOR)
                             .arg(ZAFRO_VERSION_MINOR)
                             .arg(ZAFRO_VERSION_REVISION);

// Qt reads these itself when the application starts; they only need to get past us.
const char *const kQtValueOptions[] = {
    "platform",     "platformpluginpath", "platformtheme", "plugin",     "qwindowgeometry",
    "qwindowtitle", "qwindowicon",        "style",         "stylesheet", "display",
    "session"};
const char *const kQtFlagOptions[] = {"reverse", "widgetcount", "nograb", "dograb"};

QString toolList()
{
    return toolNames().join(u'\n') + u'\n';
}

QString helpText(const QString &program)
{
    return QStringLiteral("Usage: %1 [options]\n"
                          "Twenty-eight small tools behind one launcher window.\n"
                          "\n"
                          "Options:\n"
                          "  -t, --tool <name>  Open the tool <name> once the launcher has\n"
                          "                     loaded; --tool help lists the names.\n"
                          "  -h, --help         Show this help and end.\n"
                          "  -v, --version      Show the version and end.\n"
                          "\n"
                          "Settings live in ~/.config/zafro/registry.sqlite3.\n")
        .arg(program);
}

CommandLine ending(int status, const QString &out, const QString &err = {})
{
    CommandLine line;
    line.done = true;
    line.status = status;
    line.out = out;
    line.err = err;
    return line;
}

} // namespace

QStringList toolNames()
{
    QStringList names;
    for (const LauncherLabel &label : launcherLabels())
        if (*label.opens)
            names << QLatin1String(label.opens);
    return names;
}

CommandLine parseCommandLine(const QStringList &arguments)
{
    const QString program =
        arguments.isEmpty() ? QStringLiteral("zafrosuite") : QFileInfo(arguments[0]).fileName();
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QString());
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, QString());
    const QCommandLineOption tool({QStringLiteral("t"), QStringLiteral("tool")}, QString(),
                                  QStringLiteral("name"));
    parser.addOptions({help, version, tool});
    for (const char *name : kQtValueOptions)
        parser.addOption(
            QCommandLineOption(QLatin1String(name), QString(), QStringLiteral("value")));
    for (const char *name : kQtFlagOptions)
        parser.addOption(QCommandLineOption(QLatin1String(name)));

    const QString tryHelp = QStringLiteral("Try '%1 --help' for more information.\n").arg(program);
    if (!parser.parse(arguments))
        return ending(2, {}, program + QStringLiteral(": ") + parser.errorText() + u'\n' + tryHelp);
    if (!parser.positionalArguments().isEmpty())
        return ending(2, {},
                      program + QStringLiteral(": unexpected argument '") +
                          parser.positionalArguments().first() + QStringLiteral("'\n") + tryHelp);
    if (parser.isSet(help))
        return ending(0, helpText(program));
    if (parser.isSet(version))
        return ending(0, kVersion + u'\n');

    CommandLine line;
    if (!parser.isSet(tool))
        return line;
    const QString wanted = parser.value(tool);
    if (wanted == QLatin1String("help"))
        return ending(0, toolList());
    for (const QString &name : toolNames())
        if (name.compare(wanted, Qt::CaseInsensitive) == 0) {
            line.tool = name;
            return line;
        }
    return ending(2, {},
                  program + QStringLiteral(": no tool is called '") + wanted +
                      QStringLiteral("'; the tools are:\n") + toolList());
}

} // namespace zafro
