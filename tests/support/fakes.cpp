#include "fakes.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace zafro::test {

int FakeDialogs::msgBox(const QString &text, int style, const QString &title)
{
    messages.append({text, style, title});
    if (onMessage)
        onMessage(messages.last());
    if (!answers.isEmpty())
        return answers.dequeue();
    switch (style & 7) {
    case msg::YesNoCancel:
    case msg::YesNo:
        return msg::Yes;
    case msg::AbortRetryIgnore:
        return msg::Abort;
    case msg::RetryCancel:
        return msg::Retry;
    default:
        return msg::Ok;
    }
}

QString FakeDialogs::inputBox(const QString &prompt, const QString &, const QString &defaultText)
{
    prompts << prompt;
    return inputs.isEmpty() ? defaultText : inputs.dequeue();
}

float FakeClock::timer() const
{
    const float seconds = static_cast<float>(current.time().msecsSinceStartOfDay()) / 1000.0f;
    const float now = seconds + timerAdvance_;
    timerAdvance_ += timerStep;
    return now;
}

void FakeSound::beep(int frequency, int milliseconds)
{
    std::unique_lock lock(mutex_);
    beeps << qMakePair(frequency, milliseconds);
    mostAtOnce = std::max(mostAtOnce.load(), ++playing);
    released_.wait_for(lock, std::chrono::seconds(10), [this] { return !hold; });
    lock.unlock();
    if (realWait)
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    --playing;
}

void FakeSound::releaseBeeps()
{
    {
        const std::lock_guard lock(mutex_);
        hold = false;
    }
    released_.notify_all();
}

} // namespace zafro::test
