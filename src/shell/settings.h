#pragma once

// The settings store.
//
// All persistent state of the suite is text addressed by hive, key path and value
// name, kept in one SQLite file. Key and value names compare without case, a key
// path may end in a backslash or not, writes create what is missing and fail in
// silence. The four entry points keep the names and results the windows expect,
// the trailing NUL of LeerClave included.

#include <QString>
#include <QStringList>

namespace zafro {

QString LeerClave(const QString &hive, const QString &keyPath, const QString &valueName,
                  qint32 &valueType);
QString LeerClaveShell(const QString &fullPath);
void EscribirClave(const QString &fullPath, const QString &value);
void BorrarClave(const QString &fullPath);

// Points the store at another database file (tests, a store of their own);
// an empty path goes back to the default file under the user's config folder.
void useSettingsFile(const QString &path);

// The key path of the suite's own settings under HKLM, without the hive.
inline constexpr char16_t kConfigKey[] = u"Software\\Tirsamontes\\Software\\Zafro\\Configuracion";

// The value that starts the suite with the session, kept as the desktop's
// autostart entry zafrosuite.desktop rather than in the file.
inline constexpr char16_t kRunValuePath[] =
    u"HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Run\\ZafroSuite";

// Shorthands for values directly under the suite's root (or a subkey of it, such as
// "Colores" or "Matriculas"), read with LeerClave on HKLM like the windows do.
QString configPath(const QString &valueName, const QString &subkey = {});
QString readConfig(const QString &valueName, const QString &subkey = {});
double readConfigNumber(const QString &valueName, const QString &subkey = {}); // Val() of it
void writeConfig(const QString &valueName, const QString &value, const QString &subkey = {});

// The values the uninstall removes, as full paths, in the order it removes them.
QStringList uninstallValuePaths();
void removeUninstallValues();

} // namespace zafro
