#pragma once

// Roman numerals and number bases.
//
// Roman numerals go both ways between 16-bit integers and text, with two letters of
// our own beyond M: Q for 5000 and H for 10000. The base conversions (hexadecimal and
// binary text to numbers, and numbers to binary text) serve the calculator. All the
// arithmetic is the checked arithmetic of the runtime, so that an overflow or a bad
// character ends in the platform's run-time error rather than in a wrong number.

#include <QString>
#include <QtGlobal>

namespace zafro {

// The Roman numeral of a number, place by place from the thousands down. Only 0 to
// 9999 give a numeral: 0 and numbers of five digits give empty text, and a negative
// number raises a type mismatch (13) on its sign.
QString ConvertirRomano(qint16 numero);

// The value of one Roman letter, upper case only; anything else is 0.
qint16 VerValor(const QString &letra);

// The value of a Roman numeral, letter by letter: a letter smaller than the one after
// it is subtracted, any other added. No grammar is checked ("IIII" is 4, "IC" 99) and
// a total beyond 16 bits raises an overflow (6).
qint16 ConvertirArabe(const QString &romano);

// Hexadecimal text to a number; characters that are no hexadecimal digit are skipped
// but keep their place.
double HexADec(const QString &hexa);

// Binary text to a 32-bit integer; every character is read as a number, so a digit
// above 1 counts as it is and anything else raises a type mismatch (13).
qint32 BinADec(const QString &binario);

// A 32-bit integer as binary text; a negative value gives "-1" remainders.
QString DecABin(qint32 valor);

} // namespace zafro
