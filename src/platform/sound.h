#pragma once

#include <QString>

namespace zafro {

class Sound {
public:
    virtual ~Sound() = default;
    virtual void beep(int frequency, int milliseconds) = 0; // blocks for the duration
    virtual void playSound(const QString &buffer, int flags) = 0;
};

} // namespace zafro
