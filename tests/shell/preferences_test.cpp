#include "fakes.h"
#include "shell/acercade_window.h"
#include "shell/au_window.h"
#include "shell/forms.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "shell/launcher.h"
#include "shell/limpia_window.h"
#include "shell/preferencias_window.h"
#include "shell/settings.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

class ShellWindows : public ::testing::Test {
protected:
    void SetUp() override { CargarEspanol(), writeConfig("idioma", "1"); }
    static QString stored(const char *name) { return LeerClaveShell(configPath(name)); }
    QString entry(const char *name = "zafrosuite") { return autostart + name + ".desktop"; }
    template <typename T = PreferenciasWindow> T *open(const char *name = "preferencias")
    {
        return qobject_cast<T *>(forms().show(name));
    }
    QCheckBox *check(const char *name) { return open()->findChild<QCheckBox *>(name); }
    void apply(const char *box, bool on) { check(box)->setChecked(on), open()->command8Click(); }
    const QString autostart =
        QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) + "/autostart/";
    const QString run = QString::fromUtf16(kRunValuePath);
};

TEST_F(ShellWindows, FlagsTickAsReadAndApplyWritesThemBackClean)
{
    const char *const flags[] = {"internetinicio", "tituloanimado", "programainicio", "pregcerrar"};
    const struct {
        const char *text; // in all five flags; null: absent
        bool ticked, check4;
    } rows[] = {{"1", true, false},     {"1abc", true, false}, {"0", false, true},
                {nullptr, false, true}, {"0.0", false, true},  {"si", false, true},
                {"3", false, false},    {"0.5", false, false}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.text ? row.text : "absent");
        for (const char *flag : {flags[0], flags[1], flags[2], flags[3], "precarga"})
            row.text ? writeConfig(flag, row.text) : BorrarClave(configPath(flag));
        for (const char *box : {"Check1", "Check2", "Check3", "Check5"})
            EXPECT_EQ(check(box)->isChecked(), row.ticked) << box;
        EXPECT_EQ(check("Check4")->isChecked(), row.check4);
        open()->command8Click();
        for (const char *flag : flags)
            EXPECT_EQ(stored(flag), row.ticked ? "1" : "0") << flag;
        EXPECT_EQ(stored("precarga"), row.check4 ? "0" : "1");
        EXPECT_EQ(QFile::exists(entry()), row.ticked);
        EXPECT_EQ(forms().loadedNames(), QStringList{"preferencias"}) << "it stays open";
        forms().unload("preferencias");
    }
    EXPECT_EQ(fakes().dialogs.messages.last().text, "La nueva configuración ha sido guardada");
    EXPECT_EQ(fakes().dialogs.messages.last().title, "¡Guardado!");
    EXPECT_EQ(LeerClaveShell(startPagePath()), "http://www.zafrosuite.com") << "never restored";
}

TEST_F(ShellWindows, TheLaunchersPreferencesButtonOpensThemAndTheirCloseQuestionHolds)
{
    open<IndexWindow>("index")->command4Click();
    apply("Check5", true);
    open<IndexWindow>("index")->command8Click();
    EXPECT_NE(forms().find("au"), nullptr) << "the close asks";
    open<AuWindow>("au")->command2Click(); // "Al cerrar ir a la web" unticked
    EXPECT_TRUE(fakes().desktop.openedUrls.isEmpty());
    EXPECT_TRUE(fakes().desktop.ended());
}

TEST_F(ShellWindows, TheAutostartEntryStartsThisProgramFromAnyFolderAndGoesAlone)
{
    QDir().mkpath(entry("other").section(u'/', 0, -2));
    ASSERT_TRUE(QFile(entry("other")).open(QIODevice::WriteOnly));
    for (const char *folder : {"a b$%\"c", "it's `x` \\ (v2) & ~;#*?<>|"}) {
        QTemporaryDir dir;
        fakes().desktop.folder = dir.filePath(QString::fromUtf8(folder));
        QDir().mkpath(fakes().desktop.folder);
        QFile::link("/bin/true", fakes().desktop.folder + "/zafrosuite");
        apply("Check3", true);
        // Once the entry's string escapes and "%%" are undone, its quoting is the shell's.
        QFile file(entry());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QString exec = QString::fromUtf8(file.readAll()).section("\nExec=", 1).section(u'\n', 0, 0);
        exec.replace("\\\\", "\\").replace("%%", "%");
        EXPECT_EQ(QProcess::execute("sh", {"-c", exec}), 0) << folder << " " << exec.toStdString();
        // The entry is the value: it reads back as written, under any spelling of its key.
        const QString program = fakes().desktop.folder + "\\zafrosuite.exe";
        EXPECT_EQ(LeerClaveShell(run), program);
        qint32 type = 0;
        EXPECT_EQ(LeerClave("HKLM", "software\\microsoft\\windows\\currentversion\\run",
                            "zafrosuite", type),
                  program + QChar(0));
        apply("Check3", false);
        apply("Check3", false); // the absent value goes in silence
        EXPECT_FALSE(QFile::exists(entry()));
        EXPECT_EQ(LeerClaveShell(run), QString());
        EXPECT_TRUE(QFile::exists(entry("other")));
        forms().unload("preferencias");
    }
    EXPECT_EQ(fakes().dialogs.messages.size(), 6);
}

TEST_F(ShellWindows, AboutIsOneWindowWhoseCreditsRollAndPause)
{
    open<IndexWindow>("index")->command7Click();
    auto *about = open<AcercadeWindow>("acercade");
    about->timer1Timer();
    forms().show("acercade");
    EXPECT_EQ(forms().find("acercade"), about);
    EXPECT_EQ(about->label3Top(), 1432) << "raised, not loaded again";
    EXPECT_EQ(about->findChild<QLabel *>("Label4")->text(), "v: 4.6.32");
    while (about->label3Top() > -about->label3HeightTwips())
        about->timer1Timer();
    EXPECT_LT(about->findChild<QLabel *>("Label3")->geometry().bottom(), 0);
    about->timer1Timer();
    EXPECT_EQ(about->label3Top(), 2000);
    about->label6Click();
    EXPECT_FALSE(about->findChild<QTimer *>("Timer1")->isActive());
    about->label5Click();
    EXPECT_EQ(fakes().desktop.openedUrls, QStringList{"http://www.zafrosuite.com"});
}

TEST_F(ShellWindows, TheUninstallRemovesOnlyTheSuitesListAndTheNextStartIsAFirstRun)
{
    const QStringList kept = {configPath("BackColor", "Colores"),
                              configPath("Fonrojo", "Colores\\Integro"),
                              configPath("200009", "Matriculas"), configPath("USD", "Divisas"),
                              configPath("desconocido")};
    CargarIngles();
    for (const QString &path : kept + uninstallValuePaths())
        EscribirClave(path, "7");
    forms().show("index");
    open()->command3Click();
    for (int run = 1; run <= 2; ++run) { // the second finds nothing left to remove
        open<LimpiaWindow>("limpia")->command1Click();
        ASSERT_EQ(fakes().dialogs.messages.size(), run);
        EXPECT_EQ(fakes().dialogs.messages.last().text,
                  "Todas las entradas de Zafro Suite en el registro han sido borradas "
                  "corréctamente. Un saludo");
        EXPECT_EQ(fakes().dialogs.messages.last().title, "Desinstalado");
        EXPECT_EQ(fakes().desktop.endStatuses.size(), run);
    }
    EXPECT_EQ(LeerClaveShell(configPath("Tipo", "Colores")), QString());
    EXPECT_FALSE(QFile::exists(entry()));
    for (const QString &path : kept)
        EXPECT_EQ(LeerClaveShell(path), "7") << path.toStdString();
    forms().unloadAll();
    forms().show("inicio");
    EXPECT_NE(forms().find("idiomaa"), nullptr) << "a first run";
}

} // namespace
} // namespace zafro
