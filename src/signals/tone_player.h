#pragma once

#include <QObject>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace zafro {

class Sound;

// Sounds one tone at a time through the sound service on a worker thread of its
// own, so that the window keeps answering while a tone blocks. The worker touches
// nothing but the sound service; the end of each tone comes back as toneEnded() on
// the player's thread.
class TonePlayer : public QObject {
    Q_OBJECT
public:
    explicit TonePlayer(QObject *parent = nullptr);
    // Waits for the tone in progress, if any; no other starts.
    ~TonePlayer() override;

    // Starts a tone; refused (false) while one plays or once stopped.
    bool play(int frequency, int milliseconds);
    // Whether a tone has started whose end has not yet been reported.
    bool playing() const { return playing_; }
    // No tone starts after this; the one in progress runs out.
    void stop();

Q_SIGNALS:
    void toneEnded();

private:
    struct Tone {
        Sound *sound;
        int frequency;
        int milliseconds;
    };

    void run();
    void toneFinished();

    std::mutex mutex_;
    std::condition_variable wake_;
    std::optional<Tone> next_; // guarded by mutex_
    bool stopping_ = false;    // guarded by mutex_
    bool playing_ = false;     // the player's own thread only
    std::thread worker_;
};

} // namespace zafro
