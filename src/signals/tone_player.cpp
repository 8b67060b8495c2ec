#include "signals/tone_player.h"

#include "platform/services.h"

#include <QCoreApplication>

namespace zafro {

TonePlayer::TonePlayer(QObject *parent) : QObject(parent)
{
    // At the end of the program the sound service may go before this player does.
    if (QCoreApplication *app = QCoreApplication::instance())
        connect(app, &QCoreApplication::aboutToQuit, this, [this] {
            stop();
            if (worker_.joinable())
                worker_.join();
        });
}

TonePlayer::~TonePlayer()
{
    stop();
    if (worker_.joinable())
        worker_.join();
}

bool TonePlayer::play(int frequency, int milliseconds)
{
    if (playing_)
        return false;
    {
        const std::lock_guard lock(mutex_);
        if (stopping_)
            return false;
        next_ = Tone{services().sound, frequency, milliseconds};
    }
    playing_ = true;
    if (!worker_.joinable())
        worker_ = std::thread([this] { run(); });
    wake_.notify_one();
    return true;
}

void TonePlayer::stop()
{
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
        next_.reset();
    }
    wake_.notify_one();
}

void TonePlayer::run()
{
    for (;;) {
        Tone tone{};
        {
            std::unique_lock lock(mutex_);
            wake_.wait(lock, [this] { return stopping_ || next_.has_value(); });
            if (stopping_)
                return;
            tone = *next_;
            next_.reset();
        }
        tone.sound->beep(tone.frequency, tone.milliseconds);
        // Posted to this object: dropped unread if it is gone by then.
        QMetaObject::invokeMethod(this, &TonePlayer::toneFinished, Qt::QueuedConnection);
    }
}

void TonePlayer::toneFinished()
{
    playing_ = false;
    Q_EMIT toneEnded();
}

} // namespace zafro
