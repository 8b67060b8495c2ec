#pragma once

// Numbers written out in words.
//
// Spanish comes from NroEnLetras, in capitals, with a two-digit fraction "CON nn/100";
// English from EnglishWords, which reads its number in the Indian grouping (thousands,
// lakhs, then tens of millions). Both keep the spelling and the blanks they have always
// produced: the window shows their text as it comes.

#include <QString>

namespace zafro {

// The number in Spanish words. masculino asks for "UNO" rather than "UN" when the last
// word is the unit 1; the counts of thousands and millions are spelled without it, so
// 21000 is "VEINTIUN MIL ".
QString NroEnLetras(double numero, bool masculino = true);

// The text of a number in English words, "Non Numeric text" for one that is no number.
QString EnglishWords(const QString &value);

// The English helpers, on numbers already cut into their groups.
QString TwoDigitWords(double x);
QString UnitWord(double x);
QString TensWord(double x);

} // namespace zafro
