#pragma once

// The real implementations of the platform services, on Qt and PulseAudio.

#include "platform/services.h"

namespace zafro {

class QtDialogs : public Dialogs {
public:
    int msgBox(const QString &text, int style, const QString &title) override;
    QString inputBox(const QString &prompt, const QString &title,
                     const QString &defaultText) override;
};

class QtDesktop : public Desktop {
public:
    void openUrl(const QString &url) override;
    QString clipboardText() const override;
    void setClipboardText(const QString &text) override;
    bool fileExists(const QString &path) const override;
    void deleteFile(const QString &path) override;
    QString programFolder() const override;
    QString programFileName() const override;
    QString dataFile(const QString &name) const override;
    QSize screenSizeTwips() const override;
    QPoint cursorPos() const override;
    void cdDoor(const QString &command) override;
    void endProgram(int status) override;
};

class SystemClock : public Clock {
public:
    QDateTime now() const override;
    qint32 tickCount() const override;
    float timer() const override;
};

class PulseSound : public Sound {
public:
    void beep(int frequency, int milliseconds) override;
    void playSound(const QString &buffer, int flags) override;
};

// Installs these and the classic generator into services() for the life of the process.
void installQtServices();

} // namespace zafro
