#pragma once

// The data behind the language table.
//
// language_table.txt is compiled in as bytes. parseLanguageTable() reads its
// rows, checkLanguageTable() checks that they make a whole table, and
// loaderRun() turns them into the flat run of assignments that one loader
// performs. The loaders in language.cpp do this once and keep the runs.

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <vector>

namespace zafro {

// The three text columns of the table, in file order.
enum class Idioma { Espanol = 0, Ingles = 1, Valenciano = 2 };
inline constexpr int kLanguageColumns = 3;

struct LanguageRow {
    int line = 0; // line of the data file, for messages
    int slot = 0;
    bool earlier = false; // written first, then overwritten by the slot's own row
    QString name;         // the slot's constant; empty for earlier rows
    // One text per column; nullopt where that language's loader leaves the slot alone.
    std::array<std::optional<QString>, kLanguageColumns> texts;
};

struct LanguageTableData {
    std::vector<LanguageRow> rows; // in file order
    QStringList errors;            // "line N: ..." for each row that could not be read
};

struct Assignment {
    int slot = 0;
    QString text;
};

// The bytes of language_table.txt as compiled into the program.
QByteArrayView compiledLanguageTable();

LanguageTableData parseLanguageTable(QByteArrayView bytes);

// What keeps the rows from being a table of slots 1..slotCount: a slot without its
// own row or with two, a slot out of range, a name used twice, an earlier row
// for a slot that has no row of its own.
QStringList checkLanguageTable(const LanguageTableData &table, int slotCount);

// The assignments of one loader, in the order it makes them: slot by slot in
// number order, each slot's earlier rows before its own row, cells marked as
// left alone skipped, and the Spanish-only notice last.
std::vector<Assignment> loaderRun(const LanguageTableData &table, Idioma idioma);

} // namespace zafro
