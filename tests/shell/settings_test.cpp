#include "fakes.h"
#include "shell/settings.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zafro {
namespace {

using test::fakes;

const QString kRoot = QString::fromUtf16(kConfigKey);

// Runs one statement on its own connection and gives the first column of the first row.
QString sideQuery(const QString &file, const char *sql)
{
    sqlite3 *db = nullptr;
    QString result = QStringLiteral("<open failed>");
    if (sqlite3_open(QFile::encodeName(file).constData(), &db) == SQLITE_OK) {
        sqlite3_stmt *statement = nullptr;
        result = QStringLiteral("<failed>");
        if (sqlite3_prepare_v2(db, sql, -1, &statement, nullptr) == SQLITE_OK) {
            const int rc = sqlite3_step(statement);
            if (rc == SQLITE_ROW)
                result = QString::fromUtf8(
                    reinterpret_cast<const char *>(sqlite3_column_text(statement, 0)));
            else if (rc == SQLITE_DONE)
                result.clear();
        }
        sqlite3_finalize(statement);
    }
    sqlite3_close(db);
    return result;
}

int modeOf(const QString &path)
{
    struct stat st {};
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? int(st.st_mode & 0777) : -1;
}

// Collects what the code writes on standard error meanwhile.
class StderrCapture {
public:
    StderrCapture() : file_(std::tmpfile())
    {
        std::fflush(stderr);
        saved_ = ::dup(2);
        ::dup2(::fileno(file_), 2);
    }
    ~StderrCapture() { finish(); }
    QString finish()
    {
        if (saved_ >= 0) {
            std::fflush(stderr);
            ::dup2(saved_, 2);
            ::close(saved_);
            saved_ = -1;
            std::rewind(file_);
            char buffer[4096];
            for (size_t n; (n = std::fread(buffer, 1, sizeof buffer, file_)) > 0;)
                text_ += QString::fromLocal8Bit(buffer, qsizetype(n));
            std::fclose(file_);
        }
        return text_;
    }

private:
    FILE *file_;
    int saved_ = -1;
    QString text_;
};

class SettingsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        path_ = dir_.filePath(QStringLiteral("registry.sqlite3"));
        useSettingsFile(path_);
    }
    void TearDown() override
    {
        useSettingsFile(QString());
        QFile::setPermissions(dir_.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    // Closes the file and opens it again at the next use.
    void reopen()
    {
        useSettingsFile(QString());
        useSettingsFile(path_);
    }
    QStringList corruptCopies() const
    {
        return QDir(dir_.path())
            .entryList({QStringLiteral("registry.sqlite3.corrupt-*")}, QDir::Files);
    }

    QTemporaryDir dir_;
    QString path_;
};

TEST_F(SettingsTest, ValuesRoundTripAsTextAndLeerClaveAddsOneNul)
{
    const QString idioma = configPath(QStringLiteral("idioma"));
    EscribirClave(idioma, QStringLiteral("2"));
    EscribirClave(idioma, QStringLiteral("4"));
    EXPECT_EQ(LeerClaveShell(idioma), QStringLiteral("4"));
    qint32 type = 0;
    EXPECT_EQ(LeerClave(QStringLiteral("HKLM"), kRoot, QStringLiteral("idioma"), type),
              QStringLiteral("4") + QChar(0));
    EXPECT_EQ(type, 1);
    EXPECT_EQ(readConfigNumber(QStringLiteral("idioma")), 4.0);

    const QString text = QStringLiteral("Año ñ € 𝄞 \"&H80C0FF\"");
    writeConfig(QStringLiteral("Copyright"), text);
    writeConfig(QStringLiteral("vacio"), QString());
    writeConfig(QStringLiteral("Visitado"), QStringLiteral("12abc"));
    writeConfig(QStringLiteral("cortado"), QStringLiteral("7") + QChar(0) + QStringLiteral("9"));
    reopen();
    EXPECT_EQ(readConfig(QStringLiteral("Copyright")), text + QChar(0));
    EXPECT_EQ(readConfig(QStringLiteral("vacio")), QString(QChar(0))) << "present but empty";
    EXPECT_EQ(LeerClaveShell(configPath(QStringLiteral("vacio"))), QString());
    EXPECT_EQ(readConfigNumber(QStringLiteral("Visitado")), 12.0);
    EXPECT_EQ(readConfig(QStringLiteral("cortado")), QStringLiteral("7") + QChar(0))
        << "a value ends at its first NUL";
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(SettingsTest, NamesCompareWithoutCaseAndKeyPathsAreNormalised)
{
    EscribirClave(configPath(QStringLiteral("Fonrojo"), QStringLiteral("Colores\\Integro\\")),
                  QStringLiteral("10"));
    const QString lower = kRoot.toLower();
    EXPECT_EQ(LeerClaveShell(QStringLiteral("hklm\\") + lower +
                             QStringLiteral("\\colores\\integro\\FONROJO")),
              QStringLiteral("10"));
    EXPECT_EQ(LeerClaveShell(QStringLiteral("HKEY_LOCAL_MACHINE\\\\") + kRoot +
                             QStringLiteral("\\\\Colores\\Integro\\Fonrojo")),
              QStringLiteral("10"));
    qint32 type = 0;
    for (const QString &key :
         {lower + QStringLiteral("\\colores\\integro"),
          QStringLiteral("\\") + kRoot + QStringLiteral("\\Colores\\\\Integro\\")}) {
        EXPECT_EQ(LeerClave(QStringLiteral("HKLM"), key, QStringLiteral("fonROJO"), type),
                  QStringLiteral("10") + QChar(0))
            << key.toStdString();
        EXPECT_EQ(
            LeerClave(QStringLiteral("HKEY_LOCAL_MACHINE"), key, QStringLiteral("Fonrojo"), type),
            QStringLiteral("10") + QChar(0));
    }

    // Another spelling writes the same value; another hive is another place.
    writeConfig(QStringLiteral("FONROJO"), QStringLiteral("11"),
                QStringLiteral("colores\\integro"));
    EXPECT_EQ(readConfigNumber(QStringLiteral("Fonrojo"), QStringLiteral("Colores\\Integro")),
              11.0);
    EXPECT_EQ(sideQuery(path_, "SELECT count(*) FROM registry_values"), QStringLiteral("1"));
    EXPECT_EQ(LeerClaveShell(QStringLiteral("HKCU\\") + kRoot +
                             QStringLiteral("\\Colores\\Integro\\Fonrojo")),
              QString());
}

TEST_F(SettingsTest, AbsentValuesAndUnknownHivesReadEmptyAndLeaveTheTypeAlone)
{
    qint32 type = 77;
    EXPECT_EQ(LeerClave(QStringLiteral("HKLM"), kRoot, QStringLiteral("idioma"), type), QString());
    EXPECT_EQ(readConfigNumber(QStringLiteral("idioma")), 0.0);
    EXPECT_EQ(type, 77);

    writeConfig(QStringLiteral("idioma"), QStringLiteral("1"));
    for (const char *hive : {"hklm", "HKXX", "", "HKEY_LOCAL_MACHINE\\"}) {
        EXPECT_EQ(LeerClave(QLatin1String(hive), kRoot, QStringLiteral("idioma"), type), QString())
            << hive;
    }
    EXPECT_EQ(type, 77);

    EscribirClave(QStringLiteral("HKXX\\Software\\idioma"), QStringLiteral("1"));
    EscribirClave(QStringLiteral("idioma"), QStringLiteral("1"));
    EXPECT_EQ(LeerClaveShell(QStringLiteral("HKXX\\Software\\idioma")), QString());
    EXPECT_EQ(sideQuery(path_, "SELECT count(*) FROM registry_values"), QStringLiteral("1"));
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(SettingsTest, BorrarClaveRemovesAValueOrAKeyWithoutSubkeys)
{
    const QString colores = QStringLiteral("HKLM\\") + kRoot + QStringLiteral("\\Colores\\");
    EscribirClave(colores + QStringLiteral("Tipo"), QStringLiteral("5"));
    EscribirClave(colores + QStringLiteral("BackColor"), QStringLiteral("0"));
    EscribirClave(colores, QStringLiteral("por defecto"));
    EscribirClave(colores + QStringLiteral("Integro\\Fonrojo"), QStringLiteral("10"));
    EscribirClave(colores.chopped(1) + QStringLiteral("X\\Otro"), QStringLiteral("1"));
    qint32 type = 0;
    EXPECT_EQ(
        LeerClave(QStringLiteral("HKLM"), kRoot + QStringLiteral("\\Colores"), QString(), type),
        QStringLiteral("por defecto") + QChar(0))
        << "a path ending in a backslash names the key's default value";

    BorrarClave(colores + QStringLiteral("tipo"));
    BorrarClave(colores + QStringLiteral("Tipo"));
    BorrarClave(QStringLiteral("HKLM\\Nada\\Nunca"));
    EXPECT_EQ(LeerClaveShell(colores + QStringLiteral("Tipo")), QString());
    EXPECT_EQ(LeerClaveShell(colores + QStringLiteral("BackColor")), QStringLiteral("0"));

    BorrarClave(colores);
    EXPECT_EQ(LeerClaveShell(colores + QStringLiteral("BackColor")), QStringLiteral("0"))
        << "a key that still has subkeys stays";
    BorrarClave(colores + QStringLiteral("INTEGRO\\"));
    BorrarClave(colores);
    EXPECT_EQ(LeerClaveShell(colores + QStringLiteral("BackColor")), QString());
    EXPECT_EQ(LeerClaveShell(colores), QString());
    EXPECT_EQ(LeerClaveShell(colores.chopped(1) + QStringLiteral("X\\Otro")), QStringLiteral("1"))
        << "a sibling whose name starts alike is no subkey";
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(SettingsTest, AReadThatFailsShowsTheRegistryBoxAndTheNextCallStartsClean)
{
    writeConfig(QStringLiteral("idioma"), QStringLiteral("1"));
    ASSERT_EQ(sideQuery(path_, "DROP TABLE registry_values"), QString());

    qint32 type = 0;
    EXPECT_EQ(LeerClave(QStringLiteral("HKLM"), kRoot, QStringLiteral("idioma"), type), QString());
    EXPECT_EQ(type, -1);
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    const test::MsgBoxCall box = fakes().dialogs.messages.first();
    EXPECT_EQ(box.text, QStringLiteral("57>  Error de E/S de dispositivo"));
    EXPECT_EQ(box.style, 16);
    EXPECT_EQ(box.title, QStringLiteral("GenUtils/GetRegEntry"));

    type = 0;
    EXPECT_EQ(LeerClave(QStringLiteral("HKLM"), kRoot, QStringLiteral("idioma"), type), QString());
    EXPECT_EQ(type, 0);
    writeConfig(QStringLiteral("idioma"), QStringLiteral("2"));
    EXPECT_EQ(readConfigNumber(QStringLiteral("idioma")), 2.0);
    EXPECT_EQ(fakes().dialogs.messages.size(), 1);
}

TEST_F(SettingsTest, EveryCommittedWriteSurvivesAWriterKilledMidway)
{
    useSettingsFile(path_); // closes the file: the child must not share a connection
    int progress[2];
    ASSERT_EQ(::pipe(progress), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        ::close(progress[0]);
        for (int i = 0; i < 1000000; ++i) {
            writeConfig(QStringLiteral("v%1").arg(i), QString::number(i * 7),
                        QStringLiteral("Prueba"));
            if (::write(progress[1], &i, sizeof i) != sizeof i)
                break;
        }
        ::_exit(0);
    }
    ::close(progress[1]);
    int committed = -1;
    for (int i; committed < 400 && ::read(progress[0], &i, sizeof i) == sizeof i;)
        committed = i;
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    ::close(progress[0]);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the writer ended before it was killed";
    ASSERT_GE(committed, 400);

    for (int i = 0; i <= committed; ++i) {
        ASSERT_EQ(readConfigNumber(QStringLiteral("v%1").arg(i), QStringLiteral("Prueba")), i * 7.0)
            << "value " << i << " of " << committed;
    }
    writeConfig(QStringLiteral("despues"), QStringLiteral("1"));
    EXPECT_EQ(readConfigNumber(QStringLiteral("despues")), 1.0);
    useSettingsFile(QString());
    EXPECT_EQ(sideQuery(path_, "PRAGMA integrity_check"), QStringLiteral("ok"));
    EXPECT_TRUE(corruptCopies().isEmpty());
}

TEST_F(SettingsTest, ADamagedFileIsMovedAsideWithOneLineAndAFreshStoreStarts)
{
    QByteArray garbage(8192, '\0');
    quint32 x = 12345;
    for (char &c : garbage)
        c = char((x = x * 1103515245u + 12345u) >> 24);
    {
        QFile file(path_);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(garbage);
    }
    StderrCapture errors;
    writeConfig(QStringLiteral("idioma"), QStringLiteral("2"));
    EXPECT_EQ(readConfigNumber(QStringLiteral("idioma")), 2.0);
    reopen();
    EXPECT_EQ(readConfigNumber(QStringLiteral("idioma")), 2.0);
    const QString said = errors.finish();
    EXPECT_EQ(said.count(u'\n'), 1) << said.toStdString();
    const QStringList moved = corruptCopies();
    ASSERT_EQ(moved.size(), 1);
    EXPECT_TRUE(said.contains(moved.first())) << said.toStdString();
    QFile copy(dir_.filePath(moved.first()));
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(copy.readAll(), garbage);
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(SettingsTest, AFileDamagedInsideFailsItsCheckAndIsMovedAside)
{
    for (int i = 0; i < 200; ++i)
        writeConfig(QStringLiteral("%1").arg(200009 + i), QString::number(i),
                    QStringLiteral("Matriculas"));
    useSettingsFile(QString());
    {
        QFile file(path_);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_GT(file.size(), 3 * 4096);
        file.seek(4096 + 8);
        file.write(QByteArray(4000, '\x5a'));
    }
    StderrCapture errors;
    useSettingsFile(path_);
    EXPECT_EQ(readConfigNumber(QStringLiteral("200009"), QStringLiteral("Matriculas")), 0.0);
    writeConfig(QStringLiteral("idioma"), QStringLiteral("4"));
    EXPECT_EQ(readConfigNumber(QStringLiteral("idioma")), 4.0);
    EXPECT_EQ(errors.finish().count(u'\n'), 1);
    EXPECT_EQ(corruptCopies().size(), 1);
}

TEST_F(SettingsTest, ALockedDownStoreStillAnswersAndRefusesWritesInSilence)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "file modes do not bind the superuser";
    writeConfig(QStringLiteral("idioma"), QStringLiteral("2"));
    const QFile::Permissions owner = QFile::ReadOwner | QFile::WriteOwner;
    StderrCapture errors;
    for (const bool lockFolder : {true, false}) {
        SCOPED_TRACE(lockFolder ? "read-only folder" : "read-only file");
        useSettingsFile(QString());
        ASSERT_TRUE(lockFolder
                        ? QFile::setPermissions(dir_.path(), QFile::ReadOwner | QFile::ExeOwner)
                        : QFile::setPermissions(path_, QFile::ReadOwner));
        useSettingsFile(path_);
        writeConfig(QStringLiteral("idioma"), QStringLiteral("3"));
        writeConfig(QStringLiteral("nuevo"), QStringLiteral("1"));
        BorrarClave(configPath(QStringLiteral("idioma")));
        EXPECT_EQ(readConfigNumber(QStringLiteral("idioma")), 2.0);
        EXPECT_EQ(readConfig(QStringLiteral("nuevo")), QString());

        // Once the user gives the rights back, the store writes again.
        useSettingsFile(QString());
        QFile::setPermissions(dir_.path(), owner | QFile::ExeOwner);
        QFile::setPermissions(path_, owner);
        useSettingsFile(path_);
        writeConfig(QStringLiteral("nuevo"), QStringLiteral("1"));
        EXPECT_EQ(readConfigNumber(QStringLiteral("nuevo")), 1.0);
        BorrarClave(configPath(QStringLiteral("nuevo")));
    }
    useSettingsFile(QString());
    EXPECT_EQ(sideQuery(path_, "PRAGMA integrity_check"), QStringLiteral("ok"));
    EXPECT_EQ(errors.finish(), QString());
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
    EXPECT_TRUE(corruptCopies().isEmpty());
}

TEST_F(SettingsTest, TheFileIsPrivateAndKeptWithAWriteAheadLog)
{
    path_ = dir_.filePath(QStringLiteral("nueva/carpeta/registry.sqlite3"));
    useSettingsFile(path_);
    writeConfig(QStringLiteral("idioma"), QStringLiteral("1"));
    EXPECT_EQ(modeOf(path_), 0600);
    EXPECT_EQ(modeOf(path_ + QStringLiteral("-wal")), 0600);
    EXPECT_EQ(modeOf(dir_.filePath(QStringLiteral("nueva/carpeta"))), 0700);
    EXPECT_EQ(sideQuery(path_, "PRAGMA journal_mode"), QStringLiteral("wal"));

    // An empty path is the default file in the user's config folder.
    const QString defaultFile =
        QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
        QStringLiteral("/registry.sqlite3");
    QFile::remove(defaultFile);
    useSettingsFile(QString());
    writeConfig(QStringLiteral("idioma"), QStringLiteral("4"));
    EXPECT_EQ(readConfigNumber(QStringLiteral("idioma")), 4.0);
    useSettingsFile(path_);
    EXPECT_EQ(readConfigNumber(QStringLiteral("idioma")), 1.0);
    EXPECT_EQ(sideQuery(defaultFile, "SELECT value_text FROM registry_values"),
              QStringLiteral("4"));
    QFile::remove(defaultFile);
}

QString autostartEntry()
{
    return QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) +
           QStringLiteral("/autostart/zafrosuite.desktop");
}

TEST_F(SettingsTest, TheRunValueIsTheSessionsAutostartEntry)
{
    const QString run = QString::fromUtf16(kRunValuePath);
    const QString program = QStringLiteral("/opt/zafro 4%\\zafrosuite.exe");
    writeConfig(QStringLiteral("programainicio"), QStringLiteral("1"));
    EXPECT_EQ(LeerClaveShell(run), QString());
    EscribirClave(run, program);
    QFile entry(autostartEntry());
    ASSERT_TRUE(entry.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(entry.readAll());
    entry.close();
    EXPECT_TRUE(text.startsWith(QStringLiteral("[Desktop Entry]\n")));
    EXPECT_TRUE(text.contains(QStringLiteral("\nExec=\"/opt/zafro 4%%/zafrosuite\"\n")))
        << text.toStdString();
    EXPECT_EQ(LeerClaveShell(run), program);
    qint32 type = 0;
    EXPECT_EQ(LeerClave(QStringLiteral("HKLM"),
                        QStringLiteral("software\\microsoft\\windows\\currentversion\\run"),
                        QStringLiteral("zafrosuite"), type),
              program + QChar(0));
    EXPECT_EQ(sideQuery(path_, "SELECT count(*) FROM registry_values"), QStringLiteral("1"));

    BorrarClave(run);
    EXPECT_FALSE(QFile::exists(autostartEntry()));
    EXPECT_EQ(LeerClaveShell(run), QString());
    BorrarClave(run);
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(SettingsTest, TheUninstallRemovesItsListInOrderAndNothingElse)
{
    QStringList expected;
    for (const char *name :
         {"Visitado", "Inicio", "internetinicio", "programainicio", "tituloanimado", "Version",
          "perseguir", "idioma", "pregcerrar", "precarga", "hora", "fecha", "borra", "acceso"})
        expected << configPath(QLatin1String(name));
    expected << configPath(QStringLiteral("Tipo"), QStringLiteral("Colores"));
    for (const char *name : {"entrado", "auto", "idioma", "act1", "act2", "act3"})
        expected << configPath(QLatin1String(name), QStringLiteral("Matriculas"));
    expected << QStringLiteral(
        "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Run\\ZafroSuite");
    ASSERT_EQ(uninstallValuePaths(), expected);

    const QStringList survivors = {
        configPath(QStringLiteral("topopen")),
        configPath(QStringLiteral("Copyright")),
        configPath(QStringLiteral("BackColor"), QStringLiteral("Colores")),
        configPath(QStringLiteral("Fonrojo"), QStringLiteral("Colores\\Integro")),
        configPath(QStringLiteral("USD"), QStringLiteral("Divisas")),
        configPath(QStringLiteral("200009"), QStringLiteral("Matriculas")),
        QStringLiteral("HKLM\\Software\\Tirsamontes\\Actual\\Web\\Web1"),
    };
    for (const QString &path : expected + survivors)
        EscribirClave(path, QStringLiteral("1"));
    ASSERT_TRUE(QFile::exists(autostartEntry()));
    removeUninstallValues();
    for (const QString &path : expected)
        EXPECT_EQ(LeerClaveShell(path), QString()) << path.toStdString();
    for (const QString &path : survivors)
        EXPECT_EQ(LeerClaveShell(path), QStringLiteral("1")) << path.toStdString();
    EXPECT_FALSE(QFile::exists(autostartEntry()));
}

} // namespace
} // namespace zafro
