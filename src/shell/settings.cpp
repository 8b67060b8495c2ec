#include "shell/settings.h"

#include "platform/services.h"
#include "runtime/convert.h"
#include "runtime/runtime_error.h"
#include "shell/settings_db.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QScopedValueRollback>
#include <QStandardPaths>

#include <memory>
#include <optional>

namespace zafro {
namespace {

constexpr qint32 kStringType = 1; // the registry's plain string type

struct Hive {
    QStringView longName;
    QStringView shortName;
};
constexpr Hive kHives[] = {
    {u"HKEY_CLASSES_ROOT", u"HKCR"},     {u"HKEY_CURRENT_USER", u"HKCU"},
    {u"HKEY_LOCAL_MACHINE", u"HKLM"},    {u"HKEY_USERS", u"HKUS"},
    {u"HKEY_PERFORMANCE_DATA", u"HKPD"}, {u"HKEY_CURRENT_CONFIG", u"HKCC"},
    {u"HKEY_DYN_DATA", u"HKDD"},
};

// LeerClave matches the hive name exactly; the full paths of the other three
// procedures take either name in any case. Both end at the short name.
QString hiveName(QStringView name, Qt::CaseSensitivity cs)
{
    for (const Hive &hive : kHives) {
        if (name.compare(hive.longName, cs) == 0 || name.compare(hive.shortName, cs) == 0)
            return hive.shortName.toString();
    }
    return {};
}

QString normalisedKeyPath(QStringView keyPath)
{
    QStringList parts;
    for (QStringView part : keyPath.split(u'\\', Qt::SkipEmptyParts))
        parts << part.toString();
    return parts.join(u'\\');
}

struct FullPath {
    ValueAddress address;
    bool namesKey; // the path ended in a backslash
};

// "HKLM\Software\...\name" names a value, "HKLM\Software\...\" a key (and its
// default value, the one without a name).
std::optional<FullPath> parseFullPath(const QString &path)
{
    const qsizetype hiveEnd = path.indexOf(u'\\');
    if (hiveEnd < 0)
        return std::nullopt;
    QString hive = hiveName(QStringView(path).left(hiveEnd), Qt::CaseInsensitive);
    if (hive.isEmpty())
        return std::nullopt;
    const QStringView rest = QStringView(path).mid(hiveEnd + 1);
    if (rest.isEmpty() || rest.endsWith(u'\\'))
        return FullPath{{std::move(hive), normalisedKeyPath(rest), QString()}, true};
    const qsizetype nameStart = rest.lastIndexOf(u'\\') + 1;
    return FullPath{
        {std::move(hive), normalisedKeyPath(rest.left(nameStart)), rest.mid(nameStart).toString()},
        false};
}

// Values are C strings to the registry: what follows a NUL never gets in.
QString untilNul(const QString &text)
{
    const qsizetype nul = text.indexOf(QChar(0));
    return nul < 0 ? text : text.left(nul);
}

struct Store {
    QString path; // empty: the default file
    std::unique_ptr<SettingsDatabase> database;
};

Store &store()
{
    static Store current;
    return current;
}

SettingsDatabase &database()
{
    Store &s = store();
    if (!s.database) {
        QString path = s.path;
        if (path.isEmpty()) {
            const QString folder =
                QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
            if (!folder.isEmpty())
                path = folder + QStringLiteral("/registry.sqlite3");
        }
        s.database = std::make_unique<SettingsDatabase>(path);
    }
    return *s.database;
}

// The value that starts the program with the session is an XDG autostart entry
// here. The entry is the value: it keeps the text as written, and removing the
// entry by other means removes the value.
namespace autostart {

QString entryFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) +
           QStringLiteral("/autostart/zafrosuite.desktop");
}

bool holds(const ValueAddress &at)
{
    constexpr QStringView runKey = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run";
    return (at.hive == u"HKLM" || at.hive == u"HKCU") &&
           at.keyPath.compare(runKey, Qt::CaseInsensitive) == 0 &&
           at.name.compare(u"ZafroSuite", Qt::CaseInsensitive) == 0;
}

const QString textKey = QStringLiteral("X-Zafro-Run=");

QString escaped(QString text)
{
    return text.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'\n', QStringLiteral("\\n"))
        .replace(u'\r', QStringLiteral("\\r"))
        .replace(u'\t', QStringLiteral("\\t"));
}

QString unescaped(QStringView text)
{
    QString out;
    for (qsizetype i = 0; i < text.size(); ++i) {
        QChar c = text[i];
        if (c == u'\\' && i + 1 < text.size()) {
            const char16_t next = text[++i].unicode();
            c = next == u'n'   ? u'\n'
                : next == u'r' ? u'\r'
                : next == u't' ? u'\t'
                : next == u's' ? u' '
                               : next;
        }
        out += c;
    }
    return out;
}

// The stored text names a Windows program, "folder\zafrosuite.exe"; the entry
// starts the same program here, quoted as the entry's Exec key wants.
QString execLine(const QString &text)
{
    QString program = text;
    // A path of this system keeps its own backslashes, which are legal in a folder's
    // name: only the one put before the file name separates.
    const qsizetype last = program.lastIndexOf(u'\\');
    if (program.startsWith(u'/') && last >= 0)
        program[last] = u'/';
    else
        program.replace(u'\\', u'/');
    if (program.endsWith(QStringLiteral(".exe"), Qt::CaseInsensitive))
        program.chop(4);
    static const QString reserved = QStringLiteral(" \t\n\"'\\><~|&;$*?#()`");
    QString argument;
    bool quote = program.isEmpty();
    for (const QChar c : program) {
        quote = quote || reserved.contains(c);
        if (c == u'"' || c == u'`' || c == u'$' || c == u'\\')
            argument += u'\\';
        argument += c;
    }
    if (quote)
        argument = u'"' + argument + u'"';
    return argument.replace(u'%', QStringLiteral("%%"));
}

void write(const QString &text)
{
    const QString file = entryFile();
    QDir().mkpath(QFileInfo(file).absolutePath());
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        return;
    const QString entry = QStringLiteral("[Desktop Entry]\nType=Application\nName=Zafro Suite\n") +
                          QStringLiteral("Exec=") + escaped(execLine(text)) + u'\n' + textKey +
                          escaped(text) + QStringLiteral("\nX-GNOME-Autostart-enabled=true\n");
    out.write(entry.toUtf8());
    out.commit();
}

std::optional<QString> read()
{
    QFile in(entryFile());
    if (!in.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QString entry = QString::fromUtf8(in.readAll());
    for (QStringView line : QStringView(entry).split(u'\n')) {
        if (line.startsWith(textKey))
            return unescaped(line.mid(textKey.size()));
    }
    return QString(); // an entry made by other means: there, without our text
}

void remove()
{
    QFile::remove(entryFile());
}

} // namespace autostart

std::optional<QString> lookup(const ValueAddress &at)
{
    return autostart::holds(at) ? autostart::read() : database().value(at);
}

void showReadError(const RuntimeError &error)
{
    // Timers go on reading while the box is open; one box is enough.
    static bool showing = false;
    Dialogs *dialogs = services().dialogs;
    if (showing || !dialogs)
        return;
    const QScopedValueRollback<bool> guard(showing, true);
    dialogs->msgBox(QString::number(error.number()) + QStringLiteral(">  ") + error.description(),
                    msg::Critical, QStringLiteral("GenUtils/GetRegEntry"));
}

} // namespace

QString LeerClave(const QString &hive, const QString &keyPath, const QString &valueName,
                  qint32 &valueType)
{
    QString root = hiveName(hive, Qt::CaseSensitive);
    if (root.isEmpty())
        return {};
    try {
        const std::optional<QString> text =
            lookup({std::move(root), normalisedKeyPath(keyPath), valueName});
        if (!text)
            return {}; // an absent key or value is no error, and leaves the type alone
        valueType = kStringType;
        // kept: the size the registry reports counts the terminating NUL, and so does the text
        return *text + QChar(0);
    } catch (const RuntimeError &error) {
        valueType = -1;
        showReadError(error);
        return {};
    }
}

QString LeerClaveShell(const QString &fullPath)
{
    const std::optional<FullPath> path = parseFullPath(fullPath);
    if (!path)
        return {};
    try {
        return lookup(path->address).value_or(QString());
    } catch (const RuntimeError &) {
        return {};
    }
}

void EscribirClave(const QString &fullPath, const QString &value)
{
    const std::optional<FullPath> path = parseFullPath(fullPath);
    if (!path)
        return;
    if (autostart::holds(path->address))
        autostart::write(untilNul(value));
    else
        database().setValue(path->address, untilNul(value));
}

void BorrarClave(const QString &fullPath)
{
    const std::optional<FullPath> path = parseFullPath(fullPath);
    if (!path)
        return;
    const ValueAddress &at = path->address;
    if (path->namesKey)
        database().removeKey(at.hive, at.keyPath);
    else if (autostart::holds(at))
        autostart::remove();
    else
        database().removeValue(at);
}

void useSettingsFile(const QString &path)
{
    Store &s = store();
    s.database.reset();
    s.path = path;
}

QString configPath(const QString &valueName, const QString &subkey)
{
    QString path = QStringLiteral("HKLM\\") + QString::fromUtf16(kConfigKey) + u'\\';
    if (!subkey.isEmpty())
        path += subkey + u'\\';
    return path + valueName;
}

QString readConfig(const QString &valueName, const QString &subkey)
{
    qint32 type = 0;
    QString key = QString::fromUtf16(kConfigKey);
    if (!subkey.isEmpty())
        key += u'\\' + subkey;
    return LeerClave(QStringLiteral("HKLM"), key, valueName, type);
}

double readConfigNumber(const QString &valueName, const QString &subkey)
{
    return Val(readConfig(valueName, subkey)); // Val stops at the trailing NUL
}

void writeConfig(const QString &valueName, const QString &value, const QString &subkey)
{
    EscribirClave(configPath(valueName, subkey), value);
}

QStringList uninstallValuePaths()
{
    static const char16_t *const rootValues[] = {
        u"Visitado", u"Inicio",    u"internetinicio", u"programainicio", u"tituloanimado",
        u"Version",  u"perseguir", u"idioma",         u"pregcerrar",     u"precarga",
        u"hora",     u"fecha",     u"borra",          u"acceso"};
    static const char16_t *const plateValues[] = {u"entrado", u"auto", u"idioma",
                                                  u"act1",    u"act2", u"act3"};
    QStringList paths;
    for (const char16_t *name : rootValues)
        paths << configPath(QString::fromUtf16(name));
    paths << configPath(QStringLiteral("Tipo"), QStringLiteral("Colores"));
    for (const char16_t *name : plateValues)
        paths << configPath(QString::fromUtf16(name), QStringLiteral("Matriculas"));
    paths << QString::fromUtf16(kRunValuePath);
    return paths;
}

void removeUninstallValues()
{
    for (const QString &path : uninstallValuePaths())
        BorrarClave(path);
}

} // namespace zafro
