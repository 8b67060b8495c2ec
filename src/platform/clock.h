#pragma once

#include <QDateTime>

namespace zafro {

class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;    // local date and time of day
    virtual qint32 tickCount() const = 0; // milliseconds, wraps like the original
    virtual float timer() const = 0;      // seconds since midnight, single precision
};

} // namespace zafro
