#pragma once

#include <QString>
#include <QtGlobal>

namespace zafro {

// Lenient reading of a number, as the original's Val: blanks, tabs and line feeds are
// ignored anywhere in the text, then the longest leading number is read with a point as
// the decimal mark whatever the region ("1,5" reads 1), with an exponent after E or D.
// "&H" hexadecimal and "&O" octal read as 16-bit signed integers while they fit 16 bits
// and as 32-bit ones after that ("&HFFFF" is -1, "&H10000" is 65536); longer ones keep
// their low 32 bits. Anything else ends the number, a NUL too (the store returns texts
// ending in one, and "5\0" reads 5); no number reads 0. Never raises: a number beyond
// the double range reads as the largest double of its sign.
double Val(const QString &text);

// Strict conversions. The text may have blanks around it and anything after a NUL is
// ignored (the store returns texts ending in one). It is "&H" or "&O" digits, or decimal
// digits with one sign (leading, trailing, or brackets for a negative), the region's
// decimal mark and an exponent. Like the original runtime, the region decides: the
// decimal mark is the region's, and the region's thousands mark is allowed and ignored in
// the whole part, so a comma region reads "1.5" as 15 and a point region "1,5" as 15.
// Text that is no number raises 13; a number out of the type's range raises 6.
double CDbl(const QString &text);
float CSng(const QString &text);
qint32 CLng(const QString &text);
qint16 CInt(const QString &text);

// Doubles to integers round half to even and raise 6 out of range.
qint32 CLng(double x);
qint16 CInt(double x);
float CSng(double x); // raises 6 beyond the single range

// Whether CDbl would read the text.
bool IsNumeric(const QString &text);

} // namespace zafro
