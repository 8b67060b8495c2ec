#pragma once

// Fakes of the platform services: they record what the code asked for and
// answer from queues that the test fills.

#include "platform/services.h"
#include "runtime/classic_random.h"

#include <QDateTime>
#include <QList>
#include <QQueue>
#include <QSet>
#include <QStringList>

#include <atomic>
#include <condition_variable>
#include <mutex>

namespace zafro::test {

struct MsgBoxCall {
    QString text;
    int style;
    QString title;
};

class FakeDialogs : public Dialogs {
public:
    int msgBox(const QString &text, int style, const QString &title) override;
    QString inputBox(const QString &prompt, const QString &title,
                     const QString &defaultText) override;

    QList<MsgBoxCall> messages;
    QQueue<int> answers; // msgBox answers; OK (or the first button) when empty
    QStringList prompts;
    QQueue<QString> inputs; // inputBox answers; the default text when empty
    std::function<void(const MsgBoxCall &)> onMessage; // runs inside the box, if set
};

class FakeDesktop : public Desktop {
public:
    void openUrl(const QString &url) override { openedUrls << url; }
    QString clipboardText() const override { return clipboard; }
    void setClipboardText(const QString &text) override { clipboard = text; }
    bool fileExists(const QString &path) const override { return files.contains(path); }
    void deleteFile(const QString &path) override { files.remove(path); }
    QString programFolder() const override { return folder; }
    QString programFileName() const override { return QStringLiteral("zafrosuite"); }
    QSize screenSizeTwips() const override { return screen; }
    QPoint cursorPos() const override { return cursor; }
    void cdDoor(const QString &command) override { cdCommands << command; }
    void endProgram(int status) override { endStatuses << status; }

    bool ended() const { return !endStatuses.isEmpty(); }

    QStringList openedUrls;
    QString clipboard;
    QSet<QString> files;
    QString folder;
    QSize screen{19200, 14400};
    QPoint cursor;
    QStringList cdCommands;
    QList<int> endStatuses;
};

class FakeClock : public Clock {
public:
    QDateTime now() const override { return current; }
    qint32 tickCount() const override { return ticks; }
    float timer() const override;

    QDateTime current{QDate(2026, 11, 23), QTime(12, 0)};
    qint32 ticks = 0;
    // Seconds that timer() moves on at each read, so that a busy wait on it ends.
    float timerStep = 0.0f;

private:
    mutable float timerAdvance_ = 0.0f;
};

// The real generator, unless the test queues the values rnd() must return.
class FakeRandom : public Random {
public:
    float rnd() override { return values.isEmpty() ? classic.rnd() : values.dequeue(); }
    void randomize() override
    {
        ++randomizeCalls;
        classic.randomize();
    }
    void randomize(double seed) override { classic.randomize(seed); }

    QQueue<float> values;
    int randomizeCalls = 0;
    ClassicRandom classic;
};

// Beeps come from a worker: read `beeps` after the tone's end or `playing` rising.
class FakeSound : public Sound {
public:
    void beep(int frequency, int milliseconds) override;
    void playSound(const QString &buffer, int flags) override
    {
        sounds << qMakePair(buffer, flags);
    }
    void releaseBeeps(); // ends the held ones

    QList<QPair<int, int>> beeps;
    QList<QPair<QString, int>> sounds;
    std::atomic<bool> realWait = false; // a beep lasts as long as it says, as the real one
    std::atomic<bool> hold = false;     // a beep lasts until released (ten seconds at most)
    std::atomic<int> playing = 0;       // beeps in progress now
    std::atomic<int> mostAtOnce = 0;

private:
    std::mutex mutex_;
    std::condition_variable released_;
};

// The fakes of the current test, installed into services() by the test main
// before each test and reset after it.
struct Fakes {
    FakeDialogs dialogs;
    FakeDesktop desktop;
    FakeClock clock;
    FakeSound sound;
    FakeRandom random;
};
Fakes &fakes();

} // namespace zafro::test
