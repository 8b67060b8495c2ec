#pragma once

#include <QChar>

#include <optional>

namespace zafro {

// The region's decimal mark, as the system locale gives it. The runtime's text forms
// (CStr, Format) write it and the strict conversions read it; Val never looks at it.
// Only the mark is taken from the locale: numbers are never formatted with QLocale.
QChar decimalMark();

// The region's thousands mark: the locale's group separator when it is a single
// character other than the decimal mark, else the other of "." and ",".
QChar thousandsMark();

// For tests: make the region a point region ('.') or a comma region (','), whatever the
// system says, until restoreDecimalMark().
void forceDecimalMark(QChar mark);
void restoreDecimalMark();

// The mark that forceDecimalMark set, none while the system decides.
std::optional<QChar> forcedDecimalMark();

// Forces a mark for the length of a scope, then gives back whatever was in force before,
// so that scopes nest.
class ScopedDecimalMark {
public:
    explicit ScopedDecimalMark(QChar mark) : previous_(forcedDecimalMark())
    {
        forceDecimalMark(mark);
    }
    ~ScopedDecimalMark()
    {
        if (previous_)
            forceDecimalMark(*previous_);
        else
            restoreDecimalMark();
    }
    ScopedDecimalMark(const ScopedDecimalMark &) = delete;
    ScopedDecimalMark &operator=(const ScopedDecimalMark &) = delete;

private:
    std::optional<QChar> previous_;
};

} // namespace zafro
