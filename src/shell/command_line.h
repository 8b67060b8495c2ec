#pragma once

// The command line: the usual GNU forms for help and version, and --tool, which
// opens one tool once the launcher is up, as a click on its label does.

#include <QString>
#include <QStringList>

namespace zafro {

struct CommandLine {
    QString tool;      // the window to open once the launcher has loaded; empty for none
    bool done = false; // nothing to start: print, then end with status
    int status = 0;
    QString out; // for standard output
    QString err; // for standard error
};

// arguments as the program received them, its own path first. Reads no display, so
// that --help and --version work anywhere.
CommandLine parseCommandLine(const QStringList &arguments);

// The windows that --tool opens, in the launcher's order.
QStringList toolNames();

// Opens a tool once the launcher window first shows, through the launcher's own
// label so that the tool starts exactly as a click would start it.
void openToolOnceLauncherShows(const QString &window);

} // namespace zafro
