#pragma once

#include <QPoint>
#include <QSize>
#include <QString>

namespace zafro {

class Desktop {
public:
    virtual ~Desktop() = default;
    virtual void openUrl(const QString &url) = 0; // ShellExecuteA
    virtual QString clipboardText() const = 0;
    virtual void setClipboardText(const QString &text) = 0;
    virtual bool fileExists(const QString &path) const = 0; // FindFirstFileA
    virtual void deleteFile(const QString &path) = 0;       // DeleteFileA
    virtual QString programFolder() const = 0;
    virtual QString programFileName() const = 0;
    // Where a read-only data file of the suite is: beside the program unless the
    // platform keeps such files elsewhere.
    virtual QString dataFile(const QString &name) const { return programFolder() + u'/' + name; }
    virtual QSize screenSizeTwips() const = 0;
    virtual QPoint cursorPos() const = 0;            // GetCursorPos
    virtual void cdDoor(const QString &command) = 0; // mciSendStringA
    virtual void endProgram(int status) = 0;         // how the suite ends itself; fakes record it
};

} // namespace zafro
