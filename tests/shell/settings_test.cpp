#include "fakes.h"
#include "shell/settings.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>
#include <optional>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zafro {
namespace {

using test::fakes;

const QString kRoot = QString::fromUtf16(kConfigKey);
const QString kNul(QChar(0));

// Runs one statement on its own connection and gives the first column of the first row.
QString sideQuery(const QString &file, const char *sql)
{
    sqlite3 *db = nullptr;
    sqlite3_stmt *statement = nullptr;
    QString result = "<failed>";
    if (sqlite3_open(QFile::encodeName(file).constData(), &db) == SQLITE_OK &&
        sqlite3_prepare_v2(db, sql, -1, &statement, nullptr) == SQLITE_OK) {
        const int rc = sqlite3_step(statement);
        if (rc == SQLITE_ROW)
            result = QString::fromUtf8((const char *)sqlite3_column_text(statement, 0));
        else if (rc == SQLITE_DONE)
            result.clear();
    }
    sqlite3_finalize(statement);
    sqlite3_close(db);
    return result;
}

int modeOf(const QString &path)
{
    struct stat st {};
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? int(st.st_mode & 0777) : -1;
}

QString hklm(const QString &key, const QString &value, qint32 &type)
{
    return LeerClave("HKLM", key, value, type);
}

// What the code writes on standard error meanwhile.
class StderrCapture {
public:
    StderrCapture() { testing::internal::CaptureStderr(); }
    ~StderrCapture() { finish(); }
    QString finish()
    {
        if (capturing_)
            text_ = QString::fromStdString(testing::internal::GetCapturedStderr());
        capturing_ = false;
        return text_;
    }

private:
    bool capturing_ = true;
    QString text_;
};

class SettingsTest : public ::testing::Test {
protected:
    void SetUp() override { useSettingsFile(path_); }
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
        return QDir(dir_.path()).entryList({"registry.sqlite3.corrupt-*"}, QDir::Files);
    }
    QString count() const { return sideQuery(path_, "SELECT count(*) FROM registry_values"); }

    QTemporaryDir dir_;
    QString path_ = dir_.filePath("registry.sqlite3");
    qint32 type = 0;
};

TEST_F(SettingsTest, ValuesRoundTripAsTextAndLeerClaveAddsOneNul)
{
    EscribirClave(configPath("idioma"), "2");
    EscribirClave(configPath("idioma"), "4");
    EXPECT_EQ(LeerClaveShell(configPath("idioma")), "4");
    EXPECT_EQ(hklm(kRoot, "idioma", type), "4" + kNul);
    EXPECT_EQ(type, 1);

    const QString text = "Año ñ € 𝄞 \"&H80C0FF\"";
    writeConfig("Copyright", text);
    writeConfig("vacio", QString());
    writeConfig("Visitado", "12abc");
    writeConfig("cortado", "7" + kNul + "9");
    reopen();
    EXPECT_EQ(readConfig("Copyright"), text + kNul);
    EXPECT_EQ(readConfig("vacio"), kNul) << "present but empty";
    EXPECT_EQ(LeerClaveShell(configPath("vacio")), QString());
    EXPECT_EQ(readConfigNumber("Visitado"), 12.0);
    EXPECT_EQ(readConfig("cortado"), "7" + kNul) << "a value ends at its first NUL";
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(SettingsTest, NamesCompareWithoutCaseAndKeyPathsAreNormalised)
{
    EscribirClave(configPath("Fonrojo", "Colores\\Integro\\"), "10");
    const QString lower = kRoot.toLower();
    EXPECT_EQ(LeerClaveShell("hklm\\" + lower + "\\colores\\integro\\FONROJO"), "10");
    EXPECT_EQ(LeerClaveShell("HKEY_LOCAL_MACHINE\\\\" + kRoot + "\\\\Colores\\Integro\\Fonrojo"),
              "10");
    for (const QString &key :
         {lower + "\\colores\\integro", "\\" + kRoot + "\\Colores\\\\Integro\\"}) {
        EXPECT_EQ(hklm(key, "fonROJO", type), "10" + kNul) << key.toStdString();
        EXPECT_EQ(LeerClave("HKEY_LOCAL_MACHINE", key, "Fonrojo", type), "10" + kNul);
    }
    // Another spelling writes the same value; another hive is another place.
    writeConfig("FONROJO", "11", "colores\\integro");
    EXPECT_EQ(readConfigNumber("Fonrojo", "Colores\\Integro"), 11.0);
    EXPECT_EQ(count(), "1");
    EXPECT_EQ(LeerClaveShell("HKCU\\" + kRoot + "\\Colores\\Integro\\Fonrojo"), QString());
}

TEST_F(SettingsTest, AbsentValuesAndUnknownHivesReadEmptyAndLeaveTheTypeAlone)
{
    type = 77;
    EXPECT_EQ(hklm(kRoot, "idioma", type), QString());
    EXPECT_EQ(readConfigNumber("idioma"), 0.0);
    writeConfig("idioma", "1");
    for (const char *hive : {"hklm", "HKXX", "", "HKEY_LOCAL_MACHINE\\"})
        EXPECT_EQ(LeerClave(hive, kRoot, "idioma", type), QString()) << hive;
    EXPECT_EQ(type, 77);

    EscribirClave("HKXX\\Software\\idioma", "1");
    EscribirClave("idioma", "1");
    EXPECT_EQ(LeerClaveShell("HKXX\\Software\\idioma"), QString());
    EXPECT_EQ(count(), "1");
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(SettingsTest, BorrarClaveRemovesAValueOrAKeyWithoutSubkeys)
{
    const QString colores = "HKLM\\" + kRoot + "\\Colores\\";
    EscribirClave(colores + "Tipo", "5");
    EscribirClave(colores + "BackColor", "0");
    EscribirClave(colores, "por defecto");
    EscribirClave(colores + "Integro\\Fonrojo", "10");
    EscribirClave(colores.chopped(1) + "X\\Otro", "1");
    EXPECT_EQ(hklm(kRoot + "\\Colores", QString(), type), "por defecto" + kNul)
        << "a path ending in a backslash names the key's default value";

    BorrarClave(colores + "tipo");
    BorrarClave(colores + "Tipo");
    BorrarClave("HKLM\\Nada\\Nunca");
    EXPECT_EQ(LeerClaveShell(colores + "Tipo"), QString());
    BorrarClave(colores);
    EXPECT_EQ(LeerClaveShell(colores + "BackColor"), "0") << "a key that still has subkeys stays";
    BorrarClave(colores + "INTEGRO\\");
    BorrarClave(colores);
    EXPECT_EQ(LeerClaveShell(colores + "BackColor"), QString());
    EXPECT_EQ(LeerClaveShell(colores), QString());
    EXPECT_EQ(LeerClaveShell(colores.chopped(1) + "X\\Otro"), "1")
        << "a sibling whose name starts alike is no subkey";
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(SettingsTest, AReadThatFailsShowsTheRegistryBoxAndTheNextCallStartsClean)
{
    writeConfig("idioma", "1");
    ASSERT_EQ(sideQuery(path_, "DROP TABLE registry_values"), QString());
    EXPECT_EQ(hklm(kRoot, "idioma", type), QString());
    EXPECT_EQ(type, -1);
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    const test::MsgBoxCall box = fakes().dialogs.messages.first();
    EXPECT_EQ(box.text, "57>  Error de E/S de dispositivo");
    EXPECT_EQ(box.style, 16);
    EXPECT_EQ(box.title, "GenUtils/GetRegEntry");

    type = 0;
    EXPECT_EQ(hklm(kRoot, "idioma", type), QString());
    EXPECT_EQ(type, 0);
    writeConfig("idioma", "2");
    EXPECT_EQ(readConfigNumber("idioma"), 2.0);
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
            writeConfig(QString("v%1").arg(i), QString::number(i * 7), "Prueba");
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

    for (int i = 0; i <= committed; ++i)
        ASSERT_EQ(readConfigNumber(QString("v%1").arg(i), "Prueba"), i * 7.0) << i;
    writeConfig("despues", "1");
    EXPECT_EQ(readConfigNumber("despues"), 1.0);
    useSettingsFile(QString());
    EXPECT_EQ(sideQuery(path_, "PRAGMA integrity_check"), "ok");
    EXPECT_TRUE(corruptCopies().isEmpty());
}

TEST_F(SettingsTest, ADamagedFileIsMovedAsideWithOneLineAndAFreshStoreStarts)
{
    for (const bool inside : {false, true}) {
        SCOPED_TRACE(inside ? "a page damaged inside" : "not a database");
        useSettingsFile(path_);
        QFile file(path_);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        if (inside) {
            for (int i = 0; i < 200; ++i)
                writeConfig(QString::number(200009 + i), QString::number(i), "Matriculas");
            useSettingsFile(QString());
            ASSERT_GT(file.size(), 3 * 4096);
            file.seek(4096 + 8);
            file.write(QByteArray(4000, '\x5a'));
        } else {
            quint32 x = 12345;
            for (int i = 0; i < 8192; ++i)
                file.putChar(char((x = x * 1103515245u + 12345u) >> 24));
        }
        file.seek(0);
        const QByteArray damaged = file.readAll();
        file.close();

        StderrCapture errors;
        useSettingsFile(path_);
        if (inside) { // the first use a read, or else a write
            EXPECT_EQ(readConfigNumber("200009", "Matriculas"), 0.0);
        }
        writeConfig("idioma", "2");
        EXPECT_EQ(readConfigNumber("idioma"), 2.0);
        reopen();
        EXPECT_EQ(readConfigNumber("idioma"), 2.0);
        const QString said = errors.finish();
        EXPECT_EQ(said.count(u'\n'), 1) << said.toStdString();
        const QStringList moved = corruptCopies();
        ASSERT_EQ(moved.size(), 1);
        EXPECT_TRUE(said.contains(moved.first())) << said.toStdString();
        QFile copy(dir_.filePath(moved.first()));
        ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
        EXPECT_EQ(copy.readAll(), damaged);
        useSettingsFile(QString());
        QFile::remove(path_);
        QFile::remove(copy.fileName());
    }
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(SettingsTest, ALockedDownStoreStillAnswersAndRefusesWritesInSilence)
{
    // File modes do not bind the superuser: as one, the case runs as nobody in a child.
    struct EndChild {
        ~EndChild() { ::_exit(::testing::Test::HasFailure() ? 1 : 0); }
    };
    std::optional<EndChild> asChild;
    if (::geteuid() == 0) {
        useSettingsFile(QString());
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child > 0) {
            int status = 0;
            ::waitpid(child, &status, 0);
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the child's lines tell";
            return;
        }
        asChild.emplace();
        const QByteArray dir = QFile::encodeName(dir_.path());
        ASSERT_TRUE(::chown(dir.constData(), 65534, 65534) == 0 && ::setgid(65534) == 0 &&
                    ::setuid(65534) == 0);
        useSettingsFile(path_);
    }
    writeConfig("idioma", "2");
    const QFile::Permissions owner = QFile::ReadOwner | QFile::WriteOwner;
    StderrCapture errors;
    for (const bool lockFolder : {true, false}) {
        SCOPED_TRACE(lockFolder ? "read-only folder" : "read-only file");
        useSettingsFile(QString());
        ASSERT_TRUE(lockFolder
                        ? QFile::setPermissions(dir_.path(), QFile::ReadOwner | QFile::ExeOwner)
                        : QFile::setPermissions(path_, QFile::ReadOwner));
        useSettingsFile(path_);
        writeConfig("idioma", "3");
        writeConfig("nuevo", "1");
        BorrarClave(configPath("idioma"));
        EXPECT_EQ(readConfigNumber("idioma"), 2.0);
        EXPECT_EQ(readConfig("nuevo"), QString());

        // Once the user gives the rights back, the store writes again.
        useSettingsFile(QString());
        QFile::setPermissions(dir_.path(), owner | QFile::ExeOwner);
        QFile::setPermissions(path_, owner);
        useSettingsFile(path_);
        writeConfig("nuevo", "1");
        EXPECT_EQ(readConfigNumber("nuevo"), 1.0);
        BorrarClave(configPath("nuevo"));
    }
    useSettingsFile(QString());
    EXPECT_EQ(sideQuery(path_, "PRAGMA integrity_check"), "ok");
    EXPECT_EQ(errors.finish(), QString());
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
    EXPECT_TRUE(corruptCopies().isEmpty());
}

TEST_F(SettingsTest, TheFileIsPrivateAndKeptWithAWriteAheadLog)
{
    path_ = dir_.filePath("nueva/carpeta/registry.sqlite3");
    useSettingsFile(path_);
    writeConfig("idioma", "1");
    EXPECT_EQ(modeOf(path_), 0600);
    EXPECT_EQ(modeOf(path_ + "-wal"), 0600);
    EXPECT_EQ(modeOf(dir_.filePath("nueva/carpeta")), 0700);
    EXPECT_EQ(sideQuery(path_, "PRAGMA journal_mode"), "wal");

    // An empty path is the default file in the user's config folder.
    const QString defaultFile =
        QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/registry.sqlite3";
    QFile::remove(defaultFile);
    useSettingsFile(QString());
    writeConfig("idioma", "4");
    EXPECT_EQ(readConfigNumber("idioma"), 4.0);
    useSettingsFile(path_);
    EXPECT_EQ(readConfigNumber("idioma"), 1.0);
    EXPECT_EQ(sideQuery(defaultFile, "SELECT value_text FROM registry_values"), "4");
    QFile::remove(defaultFile);
}

} // namespace
} // namespace zafro
