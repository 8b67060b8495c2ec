#include "signals/morsemod.h"

#include <gtest/gtest.h>

namespace zafro {
namespace {

struct Traduccion {
    const char *name;
    QString text;
    QString code; // TextoAMorse of text
    QString back; // MorseATexto of code
};

class MorseTranslation : public ::testing::TestWithParam<Traduccion> {};

TEST_P(MorseTranslation, ForthAndBack)
{
    const Traduccion &row = GetParam();
    EXPECT_EQ(TextoAMorse(row.text), row.code);
    EXPECT_EQ(MorseATexto(row.code), row.back);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MorseTranslation,
    ::testing::Values(
        Traduccion{"WordAndNumber", u"Zafro 4.6"_qs,
                   u"--../.-/..-./.-./---//....-/.-.-.-/-....//"_qs, u"zafro 4.6 "_qs},
        Traduccion{"BlankBetweenLetters", u"a b"_qs, u".-//-...//"_qs, u"a b "_qs},
        Traduccion{"Empty", {}, u"/"_qs, u" "_qs},
        Traduccion{"Sos", u"SOS"_qs, u".../---/...//"_qs, u"sos "_qs},
        Traduccion{"SevenCharacterCodes", u"?'"_qs, u"..--../.----.//"_qs, u"?' "_qs},
        Traduccion{"Dollar", u"$1"_qs, u"...-..-/.----//"_qs, u"$1 "_qs},
        Traduccion{"BracketsShareTheOpeningCode", u"()"_qs, u"-.--.-/-.--.-//"_qs, u"(( "_qs},
        Traduccion{"UnknownCharactersPassUnchanged", u"!Ñ"_qs, u"!ñ/"_qs, u"!ñ "_qs},
        Traduccion{"SlashHasItsOwnCode", u"/"_qs, u"-..-.//"_qs, u"/ "_qs},
        Traduccion{"ShortestCodes", u"et"_qs, u"./-//"_qs, u"et "_qs}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(MorseDecoding, LooseCharactersOfACode)
{
    EXPECT_EQ(MorseATexto(u"x.-/"_qs), u"xa"_qs);
    EXPECT_EQ(MorseATexto(u"..."_qs), u"..."_qs) << "no closing bar, no letter";
}

} // namespace
} // namespace zafro
