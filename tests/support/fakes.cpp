#include "fakes.h"

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

} // namespace zafro::test
