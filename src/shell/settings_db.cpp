#include "shell/settings_db.h"

#include "runtime/runtime_error.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <cstdio>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zafro {
namespace {

// Long enough for another instance of the suite to finish its write, short enough
// that the windows' title timers, which read ten times a second, never hang for long.
constexpr int kBusyTimeoutMs = 1000;

// NOCASE folds ASCII only; every name the suite uses is ASCII.
const char kSchema[] = "CREATE TABLE IF NOT EXISTS registry_values ("
                       " hive TEXT NOT NULL COLLATE NOCASE,"
                       " key_path TEXT NOT NULL COLLATE NOCASE,"
                       " value_name TEXT NOT NULL COLLATE NOCASE,"
                       " value_text TEXT NOT NULL,"
                       " PRIMARY KEY (hive, key_path, value_name)) WITHOUT ROWID";

const char *const kStatements[] = {
    "SELECT value_text FROM registry_values"
    " WHERE hive = ?1 AND key_path = ?2 AND value_name = ?3",
    // The first spelling of a name stays, as it does in the registry.
    "INSERT INTO registry_values VALUES (?1, ?2, ?3, ?4)"
    " ON CONFLICT (hive, key_path, value_name) DO UPDATE SET value_text = excluded.value_text",
    "DELETE FROM registry_values WHERE hive = ?1 AND key_path = ?2 AND value_name = ?3",
    // The paths from "key\" up to "key]" are exactly those below the key.
    "DELETE FROM registry_values WHERE hive = ?1 AND key_path = ?2 AND NOT EXISTS ("
    " SELECT 1 FROM registry_values WHERE hive = ?1 AND CASE WHEN ?2 = '' THEN key_path <> ''"
    " ELSE key_path >= ?2 || '\\' AND key_path < ?2 || ']' END)",
};

bool isDamage(int rc)
{
    rc &= 0xff;
    return rc == SQLITE_CORRUPT || rc == SQLITE_NOTADB;
}

QByteArray fileName(const QString &path)
{
    return QFile::encodeName(path);
}

void report(const QString &line)
{
    std::fprintf(stderr, "zafrosuite: %s\n", line.toLocal8Bit().constData());
    std::fflush(stderr);
}

void makeFolder(const QString &folder)
{
    if (QFileInfo::exists(folder) || !QDir().mkpath(folder))
        return;
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// The settings are the user's alone. SQLite gives its journal files the mode the
// database file has when it makes them, so creating that one 0600 covers them too. A
// file that others may read is narrowed to its owner, keeping what the owner had (a
// read-only file stays so), and journal files left by a read-only spell follow the
// file again, or they would keep it read-only.
void makePrivate(const QString &path)
{
    const QByteArray name = fileName(path);
    const int fd = ::open(name.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
    if (fd >= 0) {
        ::close(fd);
        return;
    }
    struct stat st {};
    if (::stat(name.constData(), &st) != 0)
        return;
    const mode_t mode = st.st_mode & 0700;
    for (const char *suffix : {"", "-wal", "-shm"}) {
        const QByteArray file = name + suffix;
        if (::stat(file.constData(), &st) == 0 && (st.st_mode & 0777) != mode)
            ::chmod(file.constData(), mode);
    }
}

void bindText(sqlite3_stmt *statement, int index, const QString &text)
{
    sqlite3_bind_text16(statement, index, text.utf16(), int(text.size() * sizeof(char16_t)),
                        SQLITE_TRANSIENT);
}

RuntimeError readError(int rc)
{
    rc &= 0xff;
    if (rc == SQLITE_BUSY || rc == SQLITE_LOCKED)
        return {70, QStringLiteral("Permiso denegado")};
    return {57, QStringLiteral("Error de E/S de dispositivo")};
}

} // namespace

SettingsDatabase::SettingsDatabase(QString path) : path_(std::move(path)) {}

SettingsDatabase::~SettingsDatabase()
{
    close();
}

std::optional<QString> SettingsDatabase::value(const ValueAddress &at)
{
    if (!ensureOpen())
        return std::nullopt;
    std::optional<QString> row;
    const Outcome outcome = run(Select, {at.hive, at.keyPath, at.name}, &row);
    if (outcome == Outcome::Done)
        return row;
    if (outcome == Outcome::Damaged) {
        recover();
        return std::nullopt; // the new file holds nothing yet
    }
    const int rc = lastError_;
    dropConnection();
    throw readError(rc);
}

bool SettingsDatabase::setValue(const ValueAddress &at, const QString &text)
{
    return write(Upsert, {at.hive, at.keyPath, at.name, text});
}

bool SettingsDatabase::removeValue(const ValueAddress &at)
{
    return write(DeleteValue, {at.hive, at.keyPath, at.name});
}

bool SettingsDatabase::removeKey(const QString &hive, const QString &keyPath)
{
    return write(DeleteKey, {hive, keyPath});
}

bool SettingsDatabase::ensureOpen()
{
    if (db_)
        return true;
    if (path_.isEmpty()) {
        openInMemory(QStringLiteral("there is no folder for the settings file"));
        return db_ != nullptr;
    }
    for (bool movedAside = false;;) {
        Outcome outcome = openFile(Access::ReadWrite);
        // A file the user may read but not write still answers; so does one in a
        // folder where SQLite cannot make its shared-memory index.
        if (outcome == Outcome::Failed)
            outcome = openFile(Access::ReadOnly);
        if (outcome == Outcome::Failed)
            outcome = openFile(Access::Immutable);
        if (outcome == Outcome::Done)
            return true;
        if (outcome == Outcome::Failed || movedAside || !moveAside())
            break;
        movedAside = true;
    }
    openInMemory(QStringLiteral("the settings file %1 cannot be used").arg(path_));
    return db_ != nullptr;
}

SettingsDatabase::Outcome SettingsDatabase::openFile(Access access)
{
    QByteArray name;
    int flags = 0;
    if (access == Access::ReadWrite) {
        makeFolder(QFileInfo(path_).absolutePath());
        makePrivate(path_);
        name = fileName(path_);
        flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    } else {
        if (!QFileInfo::exists(path_))
            return Outcome::Failed;
        name = QUrl::fromLocalFile(QFileInfo(path_).absoluteFilePath()).toEncoded() +
               (access == Access::ReadOnly ? "?mode=ro" : "?immutable=1");
        flags = SQLITE_OPEN_READONLY | SQLITE_OPEN_URI;
    }
    const int rc = sqlite3_open_v2(name.constData(), &db_, flags, nullptr);
    const Outcome outcome = rc == SQLITE_OK ? prepare() : Outcome::Failed;
    if (outcome != Outcome::Done)
        close();
    return outcome;
}

SettingsDatabase::Outcome SettingsDatabase::prepare()
{
    auto failed = [this](int rc) {
        lastError_ = rc;
        return isDamage(rc) ? Outcome::Damaged : Outcome::Failed;
    };
    sqlite3_busy_timeout(db_, kBusyTimeoutMs);
    // With a write-ahead log a killed process leaves every committed write in place,
    // and readers never wait for a writer. NORMAL skips the sync at each commit: a
    // crash of the whole system may lose the last writes, never the file.
    int rc = sqlite3_exec(db_, "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL", nullptr,
                          nullptr, nullptr);
    if (rc != SQLITE_OK && (rc & 0xff) != SQLITE_READONLY)
        return failed(rc);

    sqlite3_stmt *check = nullptr;
    rc = sqlite3_prepare_v2(db_, "PRAGMA quick_check(1)", -1, &check, nullptr);
    bool healthy = false;
    if (rc == SQLITE_OK && (rc = sqlite3_step(check)) == SQLITE_ROW) {
        healthy = qstrcmp(reinterpret_cast<const char *>(sqlite3_column_text(check, 0)), "ok") == 0;
        rc = SQLITE_OK;
    }
    sqlite3_finalize(check);
    if (rc != SQLITE_OK)
        return failed(rc);
    if (!healthy)
        return failed(SQLITE_CORRUPT);

    // A read-only file that has the table already is fine; the statements tell.
    rc = sqlite3_exec(db_, kSchema, nullptr, nullptr, nullptr);
    if (rc != SQLITE_OK && (rc & 0xff) != SQLITE_READONLY)
        return failed(rc);
    for (int i = 0; i < StatementCount; ++i) {
        rc = sqlite3_prepare_v3(db_, kStatements[i], -1, SQLITE_PREPARE_PERSISTENT, &statements_[i],
                                nullptr);
        if (rc != SQLITE_OK)
            return failed(rc);
    }
    return Outcome::Done;
}

void SettingsDatabase::openInMemory(const QString &why)
{
    if (sqlite3_open(":memory:", &db_) == SQLITE_OK && prepare() == Outcome::Done) {
        inMemory_ = true;
        report(why + QStringLiteral("; settings will last until the program ends"));
        return;
    }
    close();
}

// Renames the damaged file out of the way, with its log, so that a new one can start
// under the same name and the old one stays for whoever wants to look into it.
bool SettingsDatabase::moveAside()
{
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString target = path_ + QStringLiteral(".corrupt-") + stamp;
    for (int n = 2; QFileInfo::exists(target); ++n)
        target = path_ + QStringLiteral(".corrupt-") + stamp + u'-' + QString::number(n);
    if (std::rename(fileName(path_).constData(), fileName(target).constData()) != 0)
        return false;
    // Left in place, the old log would be replayed into the new file.
    const QByteArray log = fileName(path_ + QStringLiteral("-wal"));
    if (std::rename(log.constData(), fileName(target + QStringLiteral("-wal")).constData()) != 0)
        std::remove(log.constData());
    std::remove(fileName(path_ + QStringLiteral("-shm")).constData());
    report(QStringLiteral("the settings file %1 was damaged; it was moved to %2 and a new one "
                          "started")
               .arg(path_, target));
    return true;
}

void SettingsDatabase::recover()
{
    close();
    if (!moveAside())
        openInMemory(QStringLiteral("the damaged settings file %1 cannot be moved").arg(path_));
}

// After an unexpected failure a fresh connection at the next call starts clean
// (and puts back a table that was dropped by hand). A store in memory has no
// second chance: closing it would lose it.
void SettingsDatabase::dropConnection()
{
    if (!inMemory_)
        close();
}

void SettingsDatabase::close()
{
    for (sqlite3_stmt *&statement : statements_) {
        sqlite3_finalize(statement);
        statement = nullptr;
    }
    sqlite3_close_v2(db_);
    db_ = nullptr;
}

SettingsDatabase::Outcome SettingsDatabase::run(Statement which, const QStringList &arguments,
                                                std::optional<QString> *row)
{
    sqlite3_stmt *statement = statements_[which];
    for (int i = 0; i < arguments.size(); ++i)
        bindText(statement, i + 1, arguments[i]);
    int rc = sqlite3_step(statement);
    if (rc == SQLITE_ROW && row) {
        const auto *text = static_cast<const char16_t *>(sqlite3_column_text16(statement, 0));
        const int bytes = sqlite3_column_bytes16(statement, 0);
        *row = QString::fromUtf16(text, bytes / qsizetype(sizeof(char16_t)));
        rc = SQLITE_DONE; // one row at most, by the primary key
    }
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    lastError_ = rc;
    if (rc == SQLITE_DONE)
        return Outcome::Done;
    return isDamage(rc) ? Outcome::Damaged : Outcome::Failed;
}

// A statement that fails is rolled back whole by SQLite, so a refused write leaves
// the old state. A write that meets a damaged file goes to the new one instead.
bool SettingsDatabase::write(Statement which, const QStringList &arguments)
{
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (!ensureOpen())
            return false;
        const Outcome outcome = run(which, arguments, nullptr);
        if (outcome == Outcome::Done)
            return true;
        if (outcome == Outcome::Failed) {
            if ((lastError_ & 0xff) == SQLITE_ERROR)
                dropConnection();
            return false;
        }
        recover();
    }
    return false;
}

} // namespace zafro
