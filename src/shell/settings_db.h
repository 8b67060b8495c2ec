#pragma once

// The file behind the settings store: one SQLite table of text values keyed by
// hive, key path and value name, all three compared without case.
//
// The file is opened at its first use, not before, so that pointing the store
// elsewhere costs nothing. Opening falls back step by step: read-write, then
// read-only (a locked-down file or folder still answers); a damaged file is moved
// aside and a fresh one started; when no file can be had at all, a store in memory
// lives as long as the process. Only the move and the store in memory are reported,
// once each, on standard error.

#include <QString>
#include <QStringList>

#include <optional>

struct sqlite3;
struct sqlite3_stmt;

namespace zafro {

struct ValueAddress {
    QString hive;    // the short name: "HKLM"
    QString keyPath; // normalised: no leading, trailing or doubled backslash
    QString name;    // empty for the key's default value
};

class SettingsDatabase {
public:
    explicit SettingsDatabase(QString path);
    ~SettingsDatabase();
    SettingsDatabase(const SettingsDatabase &) = delete;
    SettingsDatabase &operator=(const SettingsDatabase &) = delete;

    // An absent value is nullopt. A file that fails under the read throws
    // RuntimeError; the connection is then dropped and the next call reopens.
    std::optional<QString> value(const ValueAddress &at);
    // Each write is one transaction; false when the file refused it.
    bool setValue(const ValueAddress &at, const QString &text);
    bool removeValue(const ValueAddress &at);
    // Removes the key's own values; a key that still has subkeys stays.
    bool removeKey(const QString &hive, const QString &keyPath);

private:
    enum class Outcome { Done, Damaged, Failed };
    enum class Access { ReadWrite, ReadOnly, Immutable };
    enum Statement { Select, Upsert, DeleteValue, DeleteKey, StatementCount };

    bool ensureOpen();
    Outcome openFile(Access access);
    Outcome prepare();
    void openInMemory(const QString &why);
    bool moveAside();
    void recover();
    void dropConnection();
    void close();
    Outcome run(Statement which, const QStringList &arguments, std::optional<QString> *row);
    bool write(Statement which, const QStringList &arguments);

    QString path_; // empty: no file, memory only
    sqlite3 *db_ = nullptr;
    sqlite3_stmt *statements_[StatementCount] = {};
    bool inMemory_ = false;
    int lastError_ = 0;
};

} // namespace zafro
