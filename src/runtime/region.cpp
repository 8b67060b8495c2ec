#include "runtime/region.h"

#include <QLocale>
#include <QString>

#include <optional>

namespace zafro {

namespace {

struct Marks {
    QChar decimal;
    QChar thousands;
};

Marks marksFor(QChar decimal, const QString &group)
{
    if (group.size() == 1 && group.at(0) != decimal)
        return {decimal, group.at(0)};
    return {decimal, decimal == QLatin1Char(',') ? QLatin1Char('.') : QLatin1Char(',')};
}

const Marks &systemMarks()
{
    // The locale of a running process does not change under it; read it once.
    static const Marks marks = [] {
        const QLocale locale = QLocale::system();
        const QString point = locale.decimalPoint();
        const QChar decimal = point.size() == 1 ? point.at(0) : QLatin1Char('.');
        return marksFor(decimal, locale.groupSeparator());
    }();
    return marks;
}

std::optional<Marks> &forcedMarks()
{
    static std::optional<Marks> forced;
    return forced;
}

const Marks &currentMarks()
{
    const std::optional<Marks> &forced = forcedMarks();
    return forced ? *forced : systemMarks();
}

} // namespace

QChar decimalMark()
{
    return currentMarks().decimal;
}

QChar thousandsMark()
{
    return currentMarks().thousands;
}

void forceDecimalMark(QChar mark)
{
    forcedMarks() = marksFor(mark, QString());
}

void restoreDecimalMark()
{
    forcedMarks().reset();
}

std::optional<QChar> forcedDecimalMark()
{
    const std::optional<Marks> &forced = forcedMarks();
    if (!forced)
        return std::nullopt;
    return forced->decimal;
}

} // namespace zafro
