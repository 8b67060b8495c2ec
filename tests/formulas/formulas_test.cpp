#include "error_number.h"
#include "formulas/cformulas.h"
#include "runtime/classic_random.h"
#include "runtime/numtext.h"
#include "runtime/region.h"

#include <gtest/gtest.h>

#include <QStringList>

// Failure messages show the texts.
static void PrintTo(const QString &text, std::ostream *os)
{
    *os << '"' << text.toStdString() << '"';
}

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::errorNumber;

// --- the grammar, one named row per expression, each on a fresh evaluator ----------

struct Fila {
    const char *nombre;
    const char *expresion;
    const char *resultado;
};

void PrintTo(const Fila &fila, std::ostream *os)
{
    *os << '"' << fila.expresion << "\" -> \"" << fila.resultado << '"';
}

const Fila kFilas[] = {
    // the leftmost term is never bracketed and the chain runs left to right
    {"ProductThenSum", "2*3+4", "10"},
    {"SumThenProduct", "2+3*4", "14"},
    // the bracketing limit only moves left
    {"DivisionRightOfTreatedProduct", "2*3+4/5", "2"},
    {"DivisionAfterBracketedProduct", "2+3*4/2", "7"},
    {"ProductAfterBracketedPower", "1+2^3*4", "36"},
    {"PowerMovesLimitPastProduct", "2^3*4", "32"},
    {"ProductIsRightNeighbourOfDivision", "8/2*2", "2"},
    {"PowerInsideProduct", "2*3^4", "162"},
    {"DivisionsGroupFromTheRight", "8/2/2", "8"},
    {"PowersGroupFromTheRight", "2^3^2", "512"},
    {"NegativeRightOperandBracketsOnlyTheLeft", "2+3*-4", "-20"},
    {"DivisionBeforeBracketClosesEarly", "2+3/(4+5)", "11"},
    {"ProductBeforeBracketIsProtected", "2+3*(4+5)", "29"},
    {"DivisionBeforeBracketAtTheFront", "3/(4+5)", "0.333333333333333"},
    {"LeadingMinusOfPower", "-2^2", "-4"},
    {"MinusOfNegative", "2--3", "5"},
    {"MissingClosingBracket", "(2+3", "5"},
    {"StrayClosingBracketAdds", "2)+3", "5"},
    {"DivisionByZeroIsZero", "1/0", "0"},
    {"IntegerDivision", "5\\2", "2"},
    {"IntegerDivisionByZeroIsZero", "5\\0", "0"},
    {"Percent", "50%20", "10"},
    {"Exponent", "1E+20+1", "1E+20"},
    {"ExponentAfterFraction", "1.5E+20", "1.5E+20"},
    // functions
    {"Max", "Max(1,2)", "2"},
    {"MaxFirst", "Max(5,2)", "5"},
    {"Min", "Min(5,2)", "2"},
    {"NestedMax", "Max(Max(1,5),2)", "5"},
    {"Sum", "Sum(1,2,3,4)", "10"},
    {"SumOfOneGetsAnEmptySecond", "Sum(1)", "1"},
    {"Subs", "Subs(10,1,2)", "7"},
    {"Mult", "Mult(2,3,4)", "24"},
    {"Bin", "Bin(5)", "0000000000000101"},
    {"BinWithPrecision", "Bin(5,4)", "0101"},
    {"Dec2Bin", "Dec2Bin(5)", "0000000000000101"},
    {"Dec2Bin2", "Dec2Bin2(6,3)", "110"},
    {"Hex", "Hex(255)", "FF"},
    {"Dec2Hex", "Dec2Hex(4095)", "FFF"},
    {"Oct", "Oct(8)", "10"},
    {"Bin2Dec", "Bin2Dec(101)", "5"},
    {"Hex2Dec", "Hex2Dec(FF)", "255"},
    {"Oct2Dec", "Oct2Dec(17)", "15"},
    {"Sqr", "Sqr(16)", "4"},
    {"PrimitiveValueInProduct", "Sqr(16)*2", "8"},
    {"IntGoesDown", "Int(-2.5)", "-3"},
    {"FixCuts", "Fix(-2.5)", "-2"},
    {"RoundHalfToEven", "Round(2.5)", "2"},
    {"Abs", "Abs(-3)", "3"},
    {"Sgn", "Sgn(-3)", "-1"},
    {"Cos", "Cos(0)", "1"},
    {"Sec", "Sec(0)", "1"},
    {"LogX", "LogX(8,2)", "3.00000000000001"},
    {"Log10", "Log10(1000)", "3"},
    {"Grados2Radianes", "Grados2Radianes(180)", "3.14159265358979"},
    {"CaseInsensitiveNames", "MAX(1,2)+sum(1,2)", "5"},
    {"SpanishNamesAreNoFunctions", "Seno(1)", "e1"},
    // names and assignments
    {"Pi", "Pi*2", "6.28318530717958"},
    {"PiAnyCase", "PI*2", "6.28318530717958"},
    {"Assignments", "x=2:y=3:x+y", "5"},
    {"AssignmentAnyCase", "X=3:x*2", "6"},
    {"BenchFormula", "x=2:y=3:Max(x,y)*Sqr(16)", "12"},
    {"UnknownNameFiltered", "x1", "1"},
    {"UnknownNameAdds", "x+1", "1"},
    {"Empty", "", ""},
    {"AssignmentOnly", "x=5", ""},
    {"AssignmentAfterExpression", "1+2:x=3", "3"},
    {"BlanksDropped", " 2 *\t3 ", "6"},
    // the double quote
    {"QuotedTextStays", "\"ab\"", "\"ab\""},
    {"QuoteAsOperator", "\"ab\"+1", "\"ab\"1"},
    {"QuoteEatsLeadingDigits", "\"12ab\"+3", "\"ab\"3"},
};

class FormulaGrammar : public ::testing::TestWithParam<Fila> {};

TEST_P(FormulaGrammar, GivesTheRequiredResult)
{
    ScopedDecimalMark region(u'.');
    cFormulas formulas;
    EXPECT_EQ(formulas.Formula(QString::fromUtf8(GetParam().expresion)),
              QString::fromUtf8(GetParam().resultado));
}

INSTANTIATE_TEST_SUITE_P(Rows, FormulaGrammar, ::testing::ValuesIn(kFilas),
                         [](const auto &info) { return std::string(info.param.nombre); });

TEST(FormulaRegion, ReadsBothDecimalMarksAndWritesTheRegions)
{
    for (const QChar mark : {QChar(u'.'), QChar(u',')}) {
        SCOPED_TRACE(mark.toLatin1());
        ScopedDecimalMark region(mark);
        cFormulas formulas;
        EXPECT_EQ(formulas.Formula(u"1,5+1.5"_s), u"3"_s);
        EXPECT_EQ(formulas.Formula(u"1/4"_s), u"0"_s + mark + u"25"_s);
        EXPECT_EQ(formulas.Formula(u"1.25*2"_s), u"2"_s + mark + u"5"_s);
    }
}

// --- state of one object ---------------------------------------------------------

TEST(FormulaState, OneObjectKeepsItsVariablesAndFlagsFromOneCallToTheNext)
{
    ScopedDecimalMark region(u'.');
    // kept: a value is stored as typed and evaluated where it is met; assigning a known
    // name evaluates the right side only up to its first operator; and the flag of a
    // primitive's value outlives the call, so the next plain sum on this object is text.
    const struct {
        const char *expresion, *resultado, *variable, *valor;
    } pasos[] = {
        {"x=5", "", "x", "5"},     {"x*2", "10", "x", "5"},
        {"y=2+3", "", "y", "2+3"}, {"y*2", "10", "y", "2+3"},
        {"x=x+1", "", "x", "6"},   {"X=x*3", "", "x", "18"},
        {"x=2+3", "", "x", "2"},   {"Hex(255)", "FF", "x", "2"},
        {"2+3", "2+3", "x", "2"},  {"2*3", "6", "x", "2"},
        {"2+3", "5", "x", "2"},    {"2^100", "1.26765060022823E+30", "x", "2"},
    };
    cFormulas formulas;
    for (const auto &paso : pasos) {
        SCOPED_TRACE(paso.expresion);
        EXPECT_EQ(formulas.Formula(QLatin1String(paso.expresion)), QLatin1String(paso.resultado));
        EXPECT_EQ(formulas.VariableVal(QLatin1String(paso.variable)), QLatin1String(paso.valor));
        EXPECT_TRUE(formulas.NotacionCientifica()) << "restored after each call";
    }
    cFormulas sinNotacion;
    sinNotacion.NotacionCientifica(false);
    EXPECT_EQ(sinNotacion.Formula(u"1/3"_s), u"0.3333333333333333333333333333"_s);
    EXPECT_FALSE(sinNotacion.NotacionCientifica());
}

TEST(FormulaState, RndGivesTheGeneratorsNextNumber)
{
    ScopedDecimalMark region(u'.');
    ClassicRandom same; // the test's generator starts from the same state
    cFormulas formulas;
    EXPECT_EQ(formulas.Formula(u"Rnd"_s), CStr(same.rnd()));
    const double scaled = formulas.Formula(u"Rnd*10"_s).toDouble();
    EXPECT_NEAR(scaled, double(same.rnd()) * 10, 1e-5);
}

// --- faults ------------------------------------------------------------------------

TEST(FormulaFaults, ReachTheCallerAsRunTimeErrorsAndLeaveTheObjectUsable)
{
    const struct {
        const char *expresion;
        int error;
    } filas[] = {
        {"Sqr(-1)", 5},
        {"Log(0)", 5},
        {"(-8)^0.5", 5},
        {"Sqr(x)", 13},
        {"2^100+1", 6},
        {"90000000000000*1000000000000000", 6},
        {"Bin2Dec(11111111111111111111111111111111)", 6},
        {"Hex(1E+10)", 6},
        {"5\\0.4", 11},
        // kept: the sign of an exponent is an operator to the bracketing, 1E+(28*7)
        {"1E+28*7", 6},
        // a value that names itself runs out of stack
        {"y=y:y", 28},
        {"x=x+1:x*2", 28},
        {"a=b:b=a:a", 28},
        {"z=Sqr(z):z", 28},
        // kept: the "*-" rewriting copies the text from the "*-" on, and each bracket it
        // makes holds the same pattern again, longer
        {"2*-4+1*3/5", 7},
        // work that grows exponentially while the text stays short
        {"a=1:b=a*a*a:c=b*b*b:d=c*c*c:e=d*d*d:f=e*e*e:g=f*f*f:h=g*g*g:i=h*h*h:j=i*i*i:j", 28},
        // found by fuzzing: the one-parameter expansion stops at 3072 characters, and
        // every Rnd in it is a call that evaluates all behind it
        {"Int(+Rnd1Num6)", 28},
    };
    for (const auto &fila : filas) {
        SCOPED_TRACE(fila.expresion);
        cFormulas formulas;
        EXPECT_EQ(errorNumber([&] { formulas.Formula(QString::fromUtf8(fila.expresion)); }),
                  fila.error);
        // the guards unwind their counts
        EXPECT_EQ(formulas.Formula(u"2*3"_s), u"6"_s);
    }
    cFormulas formulas;
    EXPECT_EQ(formulas.Formula(u"70000000000000*1000000000000000"_s), u"7E+28"_s);
}

// Long formulas that end under the rules finish, however long or deep they are.
TEST(FormulaFaults, LongAndDeepFormulasFinish)
{
    const auto repetir = [](const QString &pieza, int veces) {
        QString texto;
        for (int i = 0; i < veces; ++i)
            texto += pieza;
        return texto;
    };
    const auto suma = [&](int terminos) { return u"1"_s + repetir("+1", terminos - 1); };
    QString cadena = u"v0=7"_s;
    for (int i = 1; i < 1000; ++i)
        cadena += u":v%1=v%2"_s.arg(i).arg(i - 1);
    cadena += u":v999"_s;
    const struct {
        const char *nombre;
        QString expresion;
        QString resultado;
    } filas[] = {
        {"Sum1000", suma(1000), u"1000"_s},
        {"Sum5000", suma(5000), u"5000"_s},
        {"ChainOf1000Variables", cadena, u"7"_s},
        {"Brackets1000Deep", repetir("(", 1000) + "42" + repetir(")", 1000), u"42"_s},
        {"Calls1000Deep", repetir("Abs(", 1000) + "-3" + repetir(")", 1000), u"3"_s},
        // each call evaluates everything behind it, one level deeper per call
        {"CallsInAChain", u"1"_s + repetir("*Sqr(1)", 100), u"1"_s},
    };
    for (const auto &fila : filas) {
        SCOPED_TRACE(fila.nombre);
        cFormulas formulas;
        EXPECT_EQ(formulas.Formula(fila.expresion), fila.resultado);
    }
}

TEST(FormulaFaults, TwoArgumentPrimitivesSwallowTheirErrors)
{
    cFormulas formulas;
    const QString mensaje = u"Error: hay que usarla con @ o alguna variable no está definida"_s;
    EXPECT_EQ(formulas.FunctionVal(u"@Max(1,x)"_s), mensaje);
    EXPECT_EQ(formulas.FunctionVal(u"@Bin(1E+20,4)"_s), mensaje);
    EXPECT_EQ(formulas.FunctionVal(u"@Min(7)"_s), u"7"_s);
}

// --- tables --------------------------------------------------------------------------

TEST(FormulaTables, StartWithPiAndTheThirtySixFunctionsAndLookUpTrimmedInAnyCase)
{
    cFormulas formulas;
    QStringList variables;
    formulas.ShowVariables(variables);
    EXPECT_EQ(variables, QStringList{u"Pi = 3.1415926535897932384626433832795"_s});
    QStringList funciones;
    formulas.ShowFunctions(funciones);
    ASSERT_EQ(funciones.size(), 36);
    EXPECT_EQ(funciones.first(), u"Sum = Num1+Num2+... | Num1,Num2,..."_s);
    EXPECT_EQ(funciones[5], u"Rnd = @Rnd | "_s);
    EXPECT_EQ(funciones[12], u"Int = @Int(Num) | Num"_s);
    EXPECT_EQ(funciones.last(), u"CoTan = 1/Tan(Num) | Num"_s);
    QStringList porElemento;
    formulas.ShowFunctions([&](const QString &linea) { porElemento << linea; });
    EXPECT_EQ(porElemento, funciones);

    EXPECT_EQ(formulas.IsVariable(u" pI "_s), 1);
    EXPECT_EQ(formulas.IsVariable(QString()), 0);
    EXPECT_EQ(formulas.IsFunction(u"sum"_s), 1);
    EXPECT_EQ(formulas.IsFunction(u"COTAN"_s), 36);
    EXPECT_EQ(formulas.IsFunction(u"Seno"_s), 0);
    EXPECT_EQ(formulas.FunctionParams(u"logx"_s), u"Num,Base"_s);
    EXPECT_EQ(formulas.FunctionFormula(u"Nada"_s), QString());
    EXPECT_EQ(formulas.VariableVal(u"Nada"_s), QString());
    EXPECT_TRUE(formulas.IsFuncOrVar(u"pi"_s));
    EXPECT_TRUE(formulas.IsFuncOrVar(u"MAX"_s));
    EXPECT_FALSE(formulas.IsFuncOrVar(u"x"_s));
}

TEST(FormulaTables, BuiltinFunctionsCannotBeRedefinedButOthersAndEvenPiCan)
{
    cFormulas formulas;
    formulas.NewFunction(u"max"_s, u"a"_s, u"a*2"_s);
    EXPECT_EQ(formulas.FunctionFormula(u"Max"_s), u"@Max(Num1,Num2)"_s);
    EXPECT_EQ(formulas.Formula(u"Max(1,2)"_s), u"2"_s);
    formulas.NewFunction(u" Doble "_s, u" Num "_s, u" Num*2 "_s);
    EXPECT_EQ(formulas.IsFunction(u"Doble"_s), 37);
    EXPECT_EQ(formulas.FunctionParams(u"Doble"_s), u"Num"_s);
    EXPECT_EQ(formulas.Formula(u"Doble(4)"_s), u"8"_s);
    formulas.NewFunction(u"DOBLE"_s, u"Num"_s, u"Num*3"_s);
    EXPECT_EQ(formulas.Formula(u"Doble(4)"_s), u"12"_s);

    formulas.NewVariable(u"Pi"_s, u"3"_s);
    EXPECT_EQ(formulas.Formula(u"Pi*2"_s), u"6"_s);
    formulas.NewVariable(u"r"_s, u" 2 "_s);
    EXPECT_EQ(formulas.VariableVal(u"R"_s), u"2"_s);
    QStringList variables;
    formulas.ShowVariables(variables);
    EXPECT_EQ(variables, (QStringList{u"Pi = 3"_s, u"r = 2"_s}));
}

// --- the text operations ---------------------------------------------------------------

TEST(FormulaText, HelpersKeepTheirOddities)
{
    cFormulas f;
    f.NewVariable(u"x"_s, u"7"_s);
    const QString q = u"\""_s; // the quote that protects text
    EXPECT_EQ(f.MTrim(u"1 +\t\"a b\" + 2"_s, q), u"1+\"a b\"+2"_s);
    EXPECT_EQ(f.MTrim(u"a \"b c"_s, q), u"a\"b c\""_s) << "an open quote is closed";
    EXPECT_EQ(f.MTrim(u"1"_s + QChar(0) + u" 2"_s, q), u"12"_s);
    EXPECT_EQ(f.AsignarVariables(u"a=2:b=3:a+b"_s, q), u"a+b"_s);
    EXPECT_EQ(f.VariableVal(u"b"_s), u"3"_s);
    EXPECT_EQ(f.AsignarVariables(u"1+2:z=3"_s, q), u"1+2"_s);
    EXPECT_EQ(f.VariableVal(u"z"_s), u"3"_s);
    EXPECT_EQ(f.AsignarVariables(u"1+\"ab\"+2"_s, q), u"\"ab\"1++2"_s);

    const auto multInStr = [&f](const QString &texto, const QString &tokens, int inicio = 1) {
        QString token;
        const qint32 donde = f.MultInStr(texto, tokens, token, inicio);
        return QString::number(donde) + u'|' + token;
    };
    EXPECT_EQ(multInStr(u"a+b*c"_s, u"* +"_s), u"2|+"_s) << "the earliest";
    EXPECT_EQ(multInStr(u"a>=b"_s, u"= >="_s), u"2|>="_s) << "the longer at one place";
    EXPECT_EQ(multInStr(u"a//b"_s, u"/ //  "_s), u"2|/"_s) << "the first on a tie";
    EXPECT_EQ(multInStr(u"a+b+c"_s, u"+"_s, 3), u"4|+"_s);
    EXPECT_EQ(multInStr(u"SQR(2)"_s, u"Sqr("_s), u"1|Sqr("_s);
    EXPECT_EQ(multInStr(u"abc"_s, u"x y"_s), u"0|"_s);
    EXPECT_EQ(f.RInStr(u"abcABC"_s, u"bc"_s), 5);
    EXPECT_EQ(f.RInStr(5, u"abcABC"_s, u"bc"_s), 2);
    EXPECT_EQ(f.RInStr(2, u"abcABC"_s, u"bc"_s), 0);
    EXPECT_EQ(f.RInStr(0, u"abcABC"_s, u"a"_s), 0);
    // "%" and "," separate no tokens
    EXPECT_EQ(f.ParseFormula(u"(x)*x+5"_s), u"(7)*7+5"_s);
    EXPECT_EQ(f.ParseFormula(u"x%5"_s), u"x%5"_s);
    EXPECT_EQ(f.ParseFormula(u"x,x"_s), u"x,x"_s);

    const auto expandir = [&f](const QString &formula, const QString &params, QString resto) {
        const QString expandida = f.ConvertirParametros(formula, params, resto);
        return expandida + u'|' + resto;
    };
    EXPECT_EQ(expandir(u"Num1+Num2+..."_s, u"Num1,Num2,..."_s, u"(1,2,3,4)"_s),
              u"(1)+(2)+(3)+(4)|"_s);
    EXPECT_EQ(expandir(u"@Bin(Num,Precision)"_s, u"Num,Precision"_s, u"(7)"_s), u"@Bin((7),())|"_s);
    EXPECT_EQ(expandir(u"@Sqr(Num)"_s, u"Num"_s, u"+1"_s), u"|+1"_s) << "no list";
    // The one-parameter expansion stops growing at 3072 characters.
    const QString larga = expandir(u"@Sqr(Num)"_s, u"Num"_s, u"(Num)+1"_s);
    EXPECT_GE(larga.size(), 3072 + 3);
    EXPECT_LT(larga.size(), 3072 + 5 + 3);
    EXPECT_TRUE(larga.startsWith(u"@Sqr(((("_s));
    EXPECT_TRUE(larga.endsWith(u"|+1"_s));

    EXPECT_EQ(f.Dec2Bin(5, 4), u"0101"_s);
    EXPECT_EQ(f.Dec2Bin(-1, 8), u"11111111"_s);
    EXPECT_EQ(f.Dec2Bin(5, 0), QString());
    EXPECT_EQ(f.Dec2Bin(1, 32), u"Error: Desbordamiento, al convertir 2^31"_s);
    EXPECT_EQ(f.Bin2Dec(u"101"_s), 5);
    EXPECT_EQ(f.Bin2Dec(u"1 0 1"_s), 5) << "blanks are dropped";
    EXPECT_EQ(f.Bin2Dec(u"1x1"_s), 5) << "other characters count as 0";
    EXPECT_EQ(errorNumber([&] { f.Bin2Dec(u"1"_s + QString(31, u'0')); }), 6);
    EXPECT_TRUE(f.MultipleStr2InStr1(u"1+2*3"_s, u"%^*/\\+-"_s));
    EXPECT_FALSE(f.MultipleStr2InStr1(u"1+2+3"_s, u"%^*/\\+-"_s));
    EXPECT_TRUE(f.IsFunVB(u"@sqr(4)"_s));
    EXPECT_FALSE(f.IsFunVB(u"@Max(1,2)"_s));
}

TEST(FormulaText, ConvDecimalTakesEitherMark)
{
    cFormulas formulas;
    QString decimal;
    QString miles;
    {
        ScopedDecimalMark region(u'.');
        const struct {
            const char *entrada, *salida;
        } rows[] = {{",5", ".5"},      {"1,5", "1.5"},  {"1,5.2", "15.2"},
                    {"1,2,3", "12.3"}, {" 1 5 ", "15"}, {"1.5", "1.5"}};
        for (const auto &row : rows)
            EXPECT_EQ(formulas.ConvDecimal(QString::fromUtf8(row.entrada), decimal, miles),
                      QString::fromUtf8(row.salida))
                << row.entrada;
        EXPECT_EQ(decimal + miles, u".,"_s);
    }
    ScopedDecimalMark region(u',');
    EXPECT_EQ(formulas.ConvDecimal(u"1.5"_s, decimal, miles), u"1,5"_s);
    EXPECT_EQ(formulas.ConvDecimal(u"1.000.000"_s, decimal, miles), u"1000,000"_s);
    EXPECT_EQ(decimal + miles, u",."_s);
}

TEST(FormulaBench, CreatesAFreshEvaluatorPerCall)
{
    EXPECT_EQ(formulaBench(u"x=5"_s), QString());
    EXPECT_EQ(formulaBench(u"x*2"_s), u"0"_s);
    EXPECT_EQ(formulaBench(u"x=2:y=3:Max(x,y)*Sqr(16)"_s), u"12"_s);
}

} // namespace
} // namespace zafro
