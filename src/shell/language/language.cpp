#include "shell/language.h"

#include "language_table.h"

#include <QtGlobal>

#include <array>

namespace zafro {

namespace {

std::array<QString, kLanguageSlots + 1> &table()
{
    static std::array<QString, kLanguageSlots + 1> filled;
    return filled;
}

LanguageAssignmentHook &assignmentHook()
{
    static LanguageAssignmentHook hook;
    return hook;
}

// The compiled-in rows are read at the first load and the three runs kept for
// every later one.
const std::vector<Assignment> &runOf(Idioma idioma)
{
    static const std::array<std::vector<Assignment>, kLanguageColumns> runs = [] {
        const LanguageTableData data = parseLanguageTable(compiledLanguageTable());
        for (const QString &problem : data.errors + checkLanguageTable(data, kLanguageSlots))
            qWarning("language table: %s", qPrintable(problem));
        return std::array<std::vector<Assignment>, kLanguageColumns>{
            loaderRun(data, Idioma::Espanol), loaderRun(data, Idioma::Ingles),
            loaderRun(data, Idioma::Valenciano)};
    }();
    return runs[static_cast<std::size_t>(idioma)];
}

void cargar(Idioma idioma)
{
    auto &filled = table();
    const LanguageAssignmentHook &hook = assignmentHook();
    for (const Assignment &assignment : runOf(idioma)) {
        if (assignment.slot < 1 || assignment.slot > kLanguageSlots)
            continue;
        filled[static_cast<std::size_t>(assignment.slot)] = assignment.text;
        if (hook)
            hook(assignment.slot, assignment.text);
    }
}

} // namespace

void CargarEspanol()
{
    cargar(Idioma::Espanol);
}

void CargarIngles()
{
    cargar(Idioma::Ingles);
}

void CargarValenciano()
{
    cargar(Idioma::Valenciano);
}

QString texto(int slot)
{
    if (slot < 1 || slot > kLanguageSlots)
        return QString();
    return table()[static_cast<std::size_t>(slot)];
}

void clearLanguageTable()
{
    table().fill(QString());
}

void setLanguageAssignmentHook(LanguageAssignmentHook hook)
{
    assignmentHook() = std::move(hook);
}

} // namespace zafro
