#include "fakes.h"
#include "shell/acercade_window.h"
#include "shell/au_window.h"
#include "shell/forms.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "shell/limpia_window.h"
#include "shell/preferencias_window.h"
#include "shell/settings.h"
#include "shell/skins.h"
#include "shell/toolframe.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

QString stored(const QString &path)
{
    return LeerClaveShell(path.contains(u'\\') ? path : configPath(path));
}

QString autostartFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) + "/autostart/";
}

// The program and arguments of a desktop entry's Exec line, unescaped and unquoted
// the way a session starts it.
QStringList execArguments(const QString &entryFile)
{
    QFile file(entryFile);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString exec;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n'))
        if (line.startsWith("Exec="))
            exec = line.mid(5);
    QString plain;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar c = exec[i] == u'\\' && i + 1 < exec.size() ? exec[++i] : QChar();
        plain += c.isNull() ? exec[i] : c == u's' ? QChar(u' ') : c;
    }
    QStringList args{QString()};
    bool quoted = false;
    for (qsizetype i = 0; i < plain.size(); ++i) {
        if (plain[i] == u'"')
            quoted = !quoted;
        else if (plain[i] == u' ' && !quoted)
            args << QString();
        else
            args.last() += quoted && plain[i] == u'\\' ? plain[++i] : plain[i];
    }
    return args.replaceInStrings("%%", "%");
}

// A tool with nothing but the frame's about button.
class AboutButtonTool : public Form {
public:
    AboutButtonTool() { (new ToolFrame(this))->connectAbout(new QPushButton(this)); }
};

class ShellWindows : public ::testing::Test {
protected:
    void SetUp() override
    {
        CargarEspanol();
        writeConfig("idioma", "1");
        writeConfig("Visitado", "5");
        guardarSkin(4);
        QDir(autostartFolder()).removeRecursively();
    }
    PreferenciasWindow *preferencias() { return findOrShow<PreferenciasWindow>("preferencias"); }
    template <typename T> T *findOrShow(const char *name)
    {
        return qobject_cast<T *>(forms().show(QLatin1String(name)));
    }
    QCheckBox *check(const char *name) { return preferencias()->findChild<QCheckBox *>(name); }
};

TEST_F(ShellWindows, FlagsTickAsReadAndApplyWritesThemBackClean)
{
    const struct {
        const char *name, *text; // the text stored in all five flags; null: absent
        bool ticked, check4;
    } rows[] = {{"one", "1", true, false},
                {"zero", "0", false, true},
                {"absent", nullptr, false, true},
                {"three", "3", false, false},
                {"half", "0.5", false, false},
                {"words", "si", false, true},
                {"zeroPointZero", "0.0", false, true},
                {"oneAndText", "1abc", true, false}};
    for (const auto &row : rows) {
        for (const char *flag :
             {"internetinicio", "tituloanimado", "programainicio", "pregcerrar", "precarga"})
            row.text ? writeConfig(flag, row.text) : BorrarClave(configPath(flag));
        for (const char *box : {"Check1", "Check2", "Check3", "Check5"})
            EXPECT_EQ(check(box)->isChecked(), row.ticked) << row.name << " " << box;
        EXPECT_EQ(check("Check4")->isChecked(), row.check4) << row.name;
        for (int apply = 0; apply < 2; ++apply)
            preferencias()->command8Click();
        const QString one = row.ticked ? "1" : "0";
        for (const char *flag : {"internetinicio", "tituloanimado", "programainicio", "pregcerrar"})
            EXPECT_EQ(stored(flag), one) << row.name << " " << flag;
        EXPECT_EQ(stored("precarga"), row.check4 ? "0" : "1") << row.name;
        EXPECT_EQ(QFile::exists(autostartFolder() + "zafrosuite.desktop"), row.ticked) << row.name;
        ASSERT_EQ(fakes().dialogs.messages.size(), 2) << row.name;
        EXPECT_EQ(fakes().dialogs.messages[1].text, "La nueva configuración ha sido guardada");
        EXPECT_EQ(fakes().dialogs.messages[1].title, "¡Guardado!");
        EXPECT_EQ(forms().loadedNames(), QStringList{"preferencias"}) << "it stays open";
        forms().unload("preferencias");
        fakes().dialogs.messages.clear();
    }
    EXPECT_EQ(stored("HKCU\\Software\\Microsoft\\Internet Explorer\\Main\\Start Page"),
              "http://www.zafrosuite.com")
        << "unticking never restores the start page";
}

TEST_F(ShellWindows, PreferencesDecideTheNextStartAndTheClose)
{
    writeConfig("precarga", "1");
    findOrShow<IndexWindow>("index")->command4Click();
    EXPECT_FALSE(check("Check4")->isChecked());
    check("Check4")->setChecked(true);
    check("Check5")->setChecked(true);
    preferencias()->command8Click();
    findOrShow<IndexWindow>("index")->command8Click();
    EXPECT_NE(forms().find("au"), nullptr) << "the close asks";
    EXPECT_EQ(forms().find("index"), nullptr);
    findOrShow<AuWindow>("au")->command2Click(); // "Al cerrar ir a la web" unticked
    EXPECT_TRUE(fakes().desktop.openedUrls.isEmpty());
    EXPECT_TRUE(fakes().desktop.ended());

    forms().unloadAll();
    forms().show("inicio");
    EXPECT_NE(forms().find("intro"), nullptr) << "preload ticked shows the splash";
    forms().unloadAll();
    check("Check4")->setChecked(false);
    preferencias()->command8Click();
    forms().show("inicio");
    EXPECT_EQ(forms().find("intro"), nullptr);
    EXPECT_NE(forms().find("index"), nullptr);
}

TEST_F(ShellWindows, TheAutostartEntryStartsThisProgramFromAnyFolder)
{
    QDir().mkpath(autostartFolder());
    QFile other(autostartFolder() + "other.desktop");
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.close();
    for (const char *folder : {"a b$%\"c", "it's `x` \\ (v2) & ~;#*?<>|"}) {
        QTemporaryDir dir;
        const QString where = dir.filePath(QString::fromUtf8(folder));
        ASSERT_TRUE(QDir().mkpath(where));
        QFile program(where + "/zafrosuite");
        ASSERT_TRUE(program.open(QIODevice::WriteOnly));
        program.write("#!/bin/sh\ntouch \"$0.started\"\n");
        program.setPermissions(program.permissions() | QFileDevice::ExeOwner);
        program.close();
        fakes().desktop.folder = where;
        check("Check3")->setChecked(true);
        preferencias()->command8Click();
        const QStringList args = execArguments(autostartFolder() + "zafrosuite.desktop");
        ASSERT_FALSE(args.isEmpty()) << folder;
        EXPECT_EQ(QProcess::execute(args[0], args.mid(1)), 0) << folder;
        EXPECT_TRUE(QFile::exists(where + "/zafrosuite.started")) << args.join(u'|').toStdString();
        check("Check3")->setChecked(false);
        preferencias()->command8Click();
        preferencias()->command8Click(); // the absent value goes in silence
        EXPECT_FALSE(QFile::exists(autostartFolder() + "zafrosuite.desktop"));
        EXPECT_TRUE(QFile::exists(autostartFolder() + "other.desktop"));
        forms().unload("preferencias");
    }
    EXPECT_EQ(fakes().dialogs.messages.size(), 6);
}

TEST_F(ShellWindows, AboutIsOneWindowWhoseCreditsRollAndPause)
{
    for (const char *tool : {"herramienta1", "herramienta2"}) {
        forms().registerForm(tool, [] { return new AboutButtonTool; });
        forms().show(tool);
    }
    forms().find("herramienta1")->findChild<QPushButton *>()->click();
    auto *about = findOrShow<AcercadeWindow>("acercade");
    EXPECT_EQ(about->findChild<QLabel *>("Label4")->text(), "v: 4.6.32");
    EXPECT_EQ(about->windowTitle(), "Acerca de Zafro Suite...");
    const int top = about->label3Top();
    about->timer1Timer();
    forms().find("herramienta2")->findChild<QPushButton *>()->click();
    EXPECT_EQ(forms().find("acercade"), about);
    EXPECT_EQ(about->label3Top(), top - 8) << "the same load, not a new one";

    int ticks = 0;
    while (about->label3Top() > -about->label3HeightTwips() && ++ticks < 1000)
        about->timer1Timer();
    const QLabel *credits = about->findChild<QLabel *>("Label3");
    EXPECT_LT(credits->geometry().bottom(), 0) << "it left its window";
    about->timer1Timer();
    EXPECT_EQ(about->label3Top(), 2000);

    about->label6Click();
    EXPECT_EQ(about->findChild<QLabel *>("Label6")->text(), "Reanudar");
    EXPECT_FALSE(about->findChild<QTimer *>("Timer1")->isActive());
    about->label6Click();
    EXPECT_TRUE(about->findChild<QTimer *>("Timer1")->isActive());
    about->label5Click();
    EXPECT_EQ(fakes().desktop.openedUrls, QStringList{"http://www.zafrosuite.com"});
    about->label2Click();
    EXPECT_EQ(forms().find("acercade"), nullptr);
}

TEST_F(ShellWindows, TheUninstallRemovesOnlyTheSuitesListAndTheNextStartIsAFirstRun)
{
    const QStringList survivors = {configPath("topopen"), configPath("Fonrojo", "Colores\\Integro"),
                                   configPath("USD", "Divisas"), configPath("200009", "Matriculas"),
                                   configPath("desconocido")};
    const QString colour = stored(configPath("BackColor", "Colores"));
    QTemporaryDir emptyStore;
    for (const bool full : {true, false}) {
        SCOPED_TRACE(full ? "full store, from the preferences" : "empty store, at start");
        if (full) {
            CargarIngles();
            for (const QString &path : survivors + uninstallValuePaths())
                EscribirClave(path, "7");
            forms().show("index");
            preferencias()->command3Click();
            EXPECT_EQ(forms().find("preferencias"), nullptr);
        } else {
            clearLanguageTable();
            useSettingsFile(emptyStore.filePath("registry.sqlite3"));
        }
        findOrShow<LimpiaWindow>("limpia")->command1Click();
        ASSERT_EQ(fakes().dialogs.messages.size(), 1);
        EXPECT_EQ(fakes().dialogs.messages[0].text,
                  "Todas las entradas de Zafro Suite en el registro han sido borradas "
                  "corréctamente. Un saludo");
        EXPECT_EQ(fakes().dialogs.messages[0].title, "Desinstalado");
        EXPECT_TRUE(fakes().desktop.ended());
        EXPECT_EQ(forms().find("limpia"), nullptr);
        for (const QString &path : uninstallValuePaths())
            EXPECT_EQ(stored(path), QString()) << path.toStdString();
        for (const QString &path : full ? survivors : QStringList())
            EXPECT_EQ(stored(path), "7") << path.toStdString();
        EXPECT_EQ(stored(configPath("BackColor", "Colores")), full ? colour : QString());

        forms().unloadAll();
        forms().show("inicio");
        EXPECT_NE(forms().find("idiomaa"), nullptr) << "a first run";
        forms().unloadAll();
        fakes().dialogs.messages.clear();
        fakes().desktop.endStatuses.clear();
    }
    forms().show("index");
    findOrShow<LimpiaWindow>("limpia")->command2Click();
    EXPECT_EQ(forms().loadedNames(), QStringList{"index"});
    EXPECT_FALSE(fakes().desktop.ended());
}

} // namespace
} // namespace zafro
