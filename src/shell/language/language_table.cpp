#include "language_table.h"

#include "shell/language_slots.h"

#include <QSet>
#include <QStringDecoder>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <map>

namespace zafro {

namespace detail {
extern const unsigned char kLanguageTableBytes[];
extern const std::size_t kLanguageTableSize;
} // namespace detail

QByteArrayView compiledLanguageTable()
{
    return QByteArrayView(reinterpret_cast<const char *>(detail::kLanguageTableBytes),
                          static_cast<qsizetype>(detail::kLanguageTableSize));
}

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isNameStart(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

bool isNameChar(char c)
{
    return isNameStart(c) || (c >= '0' && c <= '9');
}

// Reads one row of the data file; every method leaves an error message behind
// when it fails, and the row is then dropped whole.
class RowReader {
public:
    explicit RowReader(QByteArrayView line) : line_(line) {}

    QString error() const { return error_; }

    void skipBlanks()
    {
        while (pos_ < line_.size() && isBlank(line_[pos_]))
            ++pos_;
    }

    bool atEnd()
    {
        skipBlanks();
        return pos_ >= line_.size();
    }

    QByteArrayView word()
    {
        skipBlanks();
        const qsizetype start = pos_;
        while (pos_ < line_.size() && !isBlank(line_[pos_]))
            ++pos_;
        return line_.sliced(start, pos_ - start);
    }

    bool slot(QByteArrayView digits, int &slot)
    {
        bool ok =
            !digits.empty() && digits.size() <= 6 &&
            std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
        if (ok)
            slot = digits.toInt(&ok);
        if (!ok)
            error_ = QStringLiteral("expected a slot number, found \"%1\"")
                         .arg(QString::fromUtf8(digits));
        return ok;
    }

    bool name(QString &name)
    {
        const QByteArrayView text = word();
        const bool ok = !text.empty() && isNameStart(text[0]) &&
                        std::all_of(text.begin(), text.end(), isNameChar);
        if (ok)
            name = QString::fromLatin1(text);
        else
            error_ = QStringLiteral("expected a name for the slot, found \"%1\"")
                         .arg(QString::fromUtf8(text));
        return ok;
    }

    bool cell(std::optional<QString> &text)
    {
        skipBlanks();
        if (pos_ >= line_.size()) {
            error_ = QStringLiteral("a text is missing");
            return false;
        }
        if (line_[pos_] == '-') {
            ++pos_;
            text.reset();
            return endOfCell();
        }
        if (line_[pos_] != '"') {
            error_ = QStringLiteral("a text must stand in double quotes, or be - to leave the "
                                    "slot alone");
            return false;
        }
        ++pos_;
        QByteArray bytes;
        while (true) {
            if (pos_ >= line_.size()) {
                error_ = QStringLiteral("a text has no closing quote");
                return false;
            }
            const char c = line_[pos_++];
            if (c == '"')
                break;
            if (static_cast<unsigned char>(c) < 0x20) {
                error_ = QStringLiteral("a control character stands in a text; write it as an "
                                        "escape");
                return false;
            }
            if (c != '\\') {
                bytes.append(c);
                continue;
            }
            if (pos_ >= line_.size()) {
                error_ = QStringLiteral("a text has no closing quote");
                return false;
            }
            switch (const char e = line_[pos_++]) {
            case 'r':
                bytes.append('\r');
                break;
            case 'n':
                bytes.append('\n');
                break;
            case 't':
                bytes.append('\t');
                break;
            case '"':
            case '\\':
                bytes.append(e);
                break;
            default:
                error_ = QStringLiteral("unknown escape \\%1").arg(QLatin1Char(e));
                return false;
            }
        }
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        text = decoder(bytes);
        if (decoder.hasError()) {
            error_ = QStringLiteral("a text is not valid UTF-8");
            return false;
        }
        return endOfCell();
    }

private:
    bool endOfCell()
    {
        if (pos_ < line_.size() && !isBlank(line_[pos_])) {
            error_ = QStringLiteral("texts must be separated by blanks");
            return false;
        }
        return true;
    }

    QByteArrayView line_;
    qsizetype pos_ = 0;
    QString error_;
};

bool readRow(QByteArrayView line, LanguageRow &row, QString &error)
{
    RowReader reader(line);
    QByteArrayView first = reader.word();
    row.earlier = first == QByteArrayView("earlier");
    if (row.earlier)
        first = reader.word();
    bool ok = reader.slot(first, row.slot) && (row.earlier || reader.name(row.name));
    for (int column = 0; ok && column < kLanguageColumns; ++column)
        ok = reader.cell(row.texts[column]);
    if (ok && !reader.atEnd()) {
        error = QStringLiteral("more than %1 texts").arg(kLanguageColumns);
        return false;
    }
    if (!ok)
        error = reader.error();
    return ok;
}

} // namespace

LanguageTableData parseLanguageTable(QByteArrayView bytes)
{
    LanguageTableData table;
    int lineNumber = 0;
    qsizetype start = 0;
    while (start < bytes.size()) {
        qsizetype end = bytes.indexOf('\n', start);
        if (end < 0)
            end = bytes.size();
        QByteArrayView line = bytes.sliced(start, end - start);
        start = end + 1;
        ++lineNumber;
        if (line.endsWith('\r'))
            line.chop(1);
        RowReader probe(line);
        if (probe.atEnd())
            continue;
        if (probe.word().startsWith('#'))
            continue;
        LanguageRow row;
        row.line = lineNumber;
        QString error;
        if (readRow(line, row, error))
            table.rows.push_back(std::move(row));
        else
            table.errors.append(QStringLiteral("line %1: %2").arg(lineNumber).arg(error));
    }
    return table;
}

QStringList checkLanguageTable(const LanguageTableData &table, int slotCount)
{
    QStringList problems;
    std::map<int, int> ownRows;
    QSet<int> earlierSlots;
    QSet<QString> names;
    for (const LanguageRow &row : table.rows) {
        if (row.slot < 1 || row.slot > slotCount) {
            problems.append(QStringLiteral("line %1: slot %2 is outside 1 to %3")
                                .arg(row.line)
                                .arg(row.slot)
                                .arg(slotCount));
            continue;
        }
        if (row.earlier) {
            earlierSlots.insert(row.slot);
            continue;
        }
        if (++ownRows[row.slot] == 2)
            problems.append(
                QStringLiteral("line %1: slot %2 has a second row").arg(row.line).arg(row.slot));
        if (names.contains(row.name))
            problems.append(
                QStringLiteral("line %1: the name %2 is used twice").arg(row.line).arg(row.name));
        names.insert(row.name);
    }
    for (int slot = 1; slot <= slotCount; ++slot) {
        if (!ownRows.contains(slot))
            problems.append(QStringLiteral("slot %1 has no row").arg(slot));
    }
    for (const int slot : earlierSlots) {
        if (!ownRows.contains(slot))
            problems.append(
                QStringLiteral("slot %1 has an earlier row but no row of its own").arg(slot));
    }
    return problems;
}

std::vector<Assignment> loaderRun(const LanguageTableData &table, Idioma idioma)
{
    const auto column = static_cast<std::size_t>(idioma);
    std::vector<const LanguageRow *> order;
    for (const LanguageRow &row : table.rows)
        order.push_back(&row);
    // kept: the Spanish-only notice was appended at the very end of each loader.
    const auto position = [](const LanguageRow *row) {
        return row->slot == slot::SoloEspanol ? std::numeric_limits<int>::max() : row->slot;
    };
    std::stable_sort(order.begin(), order.end(), [&](const LanguageRow *a, const LanguageRow *b) {
        if (position(a) != position(b))
            return position(a) < position(b);
        return a->earlier && !b->earlier;
    });
    std::vector<Assignment> run;
    for (const LanguageRow *row : order) {
        if (const auto &text = row->texts[column])
            run.push_back({row->slot, *text});
    }
    return run;
}

} // namespace zafro
