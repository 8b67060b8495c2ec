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
        EXPECT_EQ(formulas.Formula(QStringLiteral("1,5+1.5")), QStringLiteral("3"));
        EXPECT_EQ(formulas.Formula(QStringLiteral("1/4")),
                  QStringLiteral("0") + mark + QStringLiteral("25"));
        EXPECT_EQ(formulas.Formula(QStringLiteral("1.25*2")),
                  QStringLiteral("2") + mark + QStringLiteral("5"));
    }
}

// --- state of one object ---------------------------------------------------------

TEST(FormulaState, VariablesLiveFromOneCallToTheNext)
{
    cFormulas formulas;
    EXPECT_EQ(formulas.Formula(QStringLiteral("x=5")), QString());
    EXPECT_EQ(formulas.Formula(QStringLiteral("x*2")), QStringLiteral("10"));
    // kept: a value is stored as typed and evaluated where it is met
    EXPECT_EQ(formulas.Formula(QStringLiteral("y=2+3")), QString());
    EXPECT_EQ(formulas.VariableVal(QStringLiteral("y")), QStringLiteral("2+3"));
    EXPECT_EQ(formulas.Formula(QStringLiteral("y*2")), QStringLiteral("10"));
}

TEST(FormulaState, AssigningAKnownNameIsAsymmetric)
{
    cFormulas formulas;
    formulas.NewVariable(QStringLiteral("x"), QStringLiteral("5"));
    formulas.Formula(QStringLiteral("x=x+1"));
    EXPECT_EQ(formulas.VariableVal(QStringLiteral("x")), QStringLiteral("6"));
    formulas.Formula(QStringLiteral("X=x*3"));
    EXPECT_EQ(formulas.VariableVal(QStringLiteral("x")), QStringLiteral("18"));
    formulas.Formula(QStringLiteral("x=2+3"));
    EXPECT_EQ(formulas.VariableVal(QStringLiteral("x")), QStringLiteral("2"));
}

TEST(FormulaState, NotacionCientificaIsRestoredAfterEachCall)
{
    ScopedDecimalMark region(u'.');
    cFormulas formulas;
    EXPECT_TRUE(formulas.NotacionCientifica());
    EXPECT_EQ(formulas.Formula(QStringLiteral("Hex(255)")), QStringLiteral("FF"));
    EXPECT_TRUE(formulas.NotacionCientifica());
    EXPECT_EQ(formulas.Formula(QStringLiteral("2^100")), QStringLiteral("1.26765060022823E+30"));

    cFormulas sinNotacion;
    sinNotacion.NotacionCientifica(false);
    EXPECT_EQ(sinNotacion.Formula(QStringLiteral("1/3")),
              QStringLiteral("0.3333333333333333333333333333"));
    EXPECT_FALSE(sinNotacion.NotacionCientifica());
}

TEST(FormulaState, APrimitiveValueStaysLiteralUntilAnOperatorClearsIt)
{
    cFormulas formulas;
    EXPECT_EQ(formulas.Formula(QStringLiteral("Hex(255)")), QStringLiteral("FF"));
    // kept: the flag outlives the call, so the next plain sum on this object is text
    EXPECT_EQ(formulas.Formula(QStringLiteral("2+3")), QStringLiteral("2+3"));
    EXPECT_EQ(formulas.Formula(QStringLiteral("2*3")), QStringLiteral("6"));
    EXPECT_EQ(formulas.Formula(QStringLiteral("2+3")), QStringLiteral("5"));
}

TEST(FormulaState, RndGivesTheGeneratorsNextNumber)
{
    ScopedDecimalMark region(u'.');
    ClassicRandom same; // the test's generator starts from the same state
    cFormulas formulas;
    EXPECT_EQ(formulas.Formula(QStringLiteral("Rnd")), CStr(same.rnd()));
    const double scaled = formulas.Formula(QStringLiteral("Rnd*10")).toDouble();
    EXPECT_NEAR(scaled, double(same.rnd()) * 10, 1e-5);
}

// --- faults ------------------------------------------------------------------------

TEST(FormulaFaults, NumericFaultsReachTheCaller)
{
    const struct {
        const char *expresion;
        int error;
    } rows[] = {
        {"Sqr(-1)", 5},
        {"Log(0)", 5},
        {"(-8)^0.5", 5},
        {"Sqr(x)", 13},
        {"2^100+1", 6},
        {"90000000000000*1000000000000000", 6},
        {"Bin2Dec(11111111111111111111111111111111)", 6},
        {"Hex(1E+10)", 6},
        {"5\\0.4", 11},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.expresion);
        cFormulas formulas;
        EXPECT_EQ(errorNumber([&] { formulas.Formula(QString::fromUtf8(row.expresion)); }),
                  row.error);
    }
    cFormulas formulas;
    EXPECT_EQ(formulas.Formula(QStringLiteral("70000000000000*1000000000000000")),
              QStringLiteral("7E+28"));
    // kept: the sign of an exponent is an operator to the bracketing, 1E+(28*7)
    EXPECT_EQ(errorNumber([&] { formulas.Formula(QStringLiteral("1E+28*7")); }), 6);
}

TEST(FormulaFaults, AValueThatNamesItselfRunsOutOfStack)
{
    for (const char *expresion : {"y=y:y", "x=x+1:x*2", "a=b:b=a:a", "z=Sqr(z):z"}) {
        SCOPED_TRACE(expresion);
        cFormulas formulas;
        EXPECT_EQ(errorNumber([&] { formulas.Formula(QString::fromUtf8(expresion)); }), 28);
        // the object is still usable: the guard unwinds its count
        EXPECT_EQ(formulas.Formula(QStringLiteral("2*3")), QStringLiteral("6"));
    }
}

TEST(FormulaFaults, RunawayWorkEndsInItsRunTimeError)
{
    // kept: the "*-" rewriting copies the text from the "*-" on, and each bracket it
    // makes holds the same pattern again, longer
    const struct {
        const char *expresion;
        int error;
    } filas[] = {
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
    }
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
    const auto suma = [&](int terminos) {
        return QStringLiteral("1") + repetir("+1", terminos - 1);
    };
    QString cadena = QStringLiteral("v0=7");
    for (int i = 1; i < 1000; ++i)
        cadena += QStringLiteral(":v%1=v%2").arg(i).arg(i - 1);
    cadena += QStringLiteral(":v999");
    const struct {
        const char *nombre;
        QString expresion;
        QString resultado;
    } filas[] = {
        {"Sum1000", suma(1000), QStringLiteral("1000")},
        {"Sum5000", suma(5000), QStringLiteral("5000")},
        {"ChainOf1000Variables", cadena, QStringLiteral("7")},
        {"Brackets1000Deep", repetir("(", 1000) + "42" + repetir(")", 1000), QStringLiteral("42")},
        {"Calls1000Deep", repetir("Abs(", 1000) + "-3" + repetir(")", 1000), QStringLiteral("3")},
        // each call evaluates everything behind it, one level deeper per call
        {"CallsInAChain", QStringLiteral("1") + repetir("*Sqr(1)", 100), QStringLiteral("1")},
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
    const QString mensaje =
        QStringLiteral("Error: hay que usarla con @ o alguna variable no está definida");
    EXPECT_EQ(formulas.FunctionVal(QStringLiteral("@Max(1,x)")), mensaje);
    EXPECT_EQ(formulas.FunctionVal(QStringLiteral("@Bin(1E+20,4)")), mensaje);
    EXPECT_EQ(formulas.FunctionVal(QStringLiteral("@Min(7)")), QStringLiteral("7"));
}

// --- tables --------------------------------------------------------------------------

TEST(FormulaTables, StartWithPiAndTheThirtySixFunctions)
{
    cFormulas formulas;
    QStringList variables;
    formulas.ShowVariables(variables);
    EXPECT_EQ(variables, QStringList{QStringLiteral("Pi = 3.1415926535897932384626433832795")});

    QStringList funciones;
    formulas.ShowFunctions(funciones);
    ASSERT_EQ(funciones.size(), 36);
    EXPECT_EQ(funciones.first(), QStringLiteral("Sum = Num1+Num2+... | Num1,Num2,..."));
    EXPECT_EQ(funciones[5], QStringLiteral("Rnd = @Rnd | "));
    EXPECT_EQ(funciones[11], QStringLiteral("Radianes2Grados = Num*(180/Pi) | Num"));
    const QStringList primitivas = {"Int",     "Fix",     "Abs",    "Sgn",     "Sqr", "Cos",
                                    "Sin",     "Tan",     "Atn",    "Exp",     "Log", "Ln",
                                    "Log10",   "Round",   "Hex",    "Dec2Hex", "Oct", "Dec2Oct",
                                    "Bin2Dec", "Hex2Dec", "Oct2Dec"};
    for (int i = 0; i < primitivas.size(); ++i)
        EXPECT_EQ(funciones[12 + i], primitivas[i] + " = @" + primitivas[i] + "(Num) | Num");
    EXPECT_EQ(funciones.last(), QStringLiteral("CoTan = 1/Tan(Num) | Num"));

    QStringList porElemento;
    formulas.ShowFunctions([&](const QString &linea) { porElemento << linea; });
    EXPECT_EQ(porElemento, funciones);
}

TEST(FormulaTables, LookupsTrimAndIgnoreCase)
{
    cFormulas formulas;
    EXPECT_EQ(formulas.IsVariable(QStringLiteral(" pI ")), 1);
    EXPECT_EQ(formulas.IsVariable(QString()), 0);
    EXPECT_EQ(formulas.IsFunction(QStringLiteral("sum")), 1);
    EXPECT_EQ(formulas.IsFunction(QStringLiteral("COTAN")), 36);
    EXPECT_EQ(formulas.IsFunction(QStringLiteral("Seno")), 0);
    EXPECT_EQ(formulas.FunctionParams(QStringLiteral("logx")), QStringLiteral("Num,Base"));
    EXPECT_EQ(formulas.FunctionFormula(QStringLiteral("Nada")), QString());
    EXPECT_EQ(formulas.VariableVal(QStringLiteral("Nada")), QString());
    EXPECT_TRUE(formulas.IsFuncOrVar(QStringLiteral("pi")));
    EXPECT_TRUE(formulas.IsFuncOrVar(QStringLiteral("MAX")));
    EXPECT_FALSE(formulas.IsFuncOrVar(QStringLiteral("x")));
}

TEST(FormulaTables, BuiltinFunctionsCannotBeRedefinedButOthersCan)
{
    cFormulas formulas;
    formulas.NewFunction(QStringLiteral("max"), QStringLiteral("a"), QStringLiteral("a*2"));
    EXPECT_EQ(formulas.FunctionFormula(QStringLiteral("Max")), QStringLiteral("@Max(Num1,Num2)"));
    EXPECT_EQ(formulas.Formula(QStringLiteral("Max(1,2)")), QStringLiteral("2"));

    formulas.NewFunction(QStringLiteral(" Doble "), QStringLiteral(" Num "),
                         QStringLiteral(" Num*2 "));
    EXPECT_EQ(formulas.IsFunction(QStringLiteral("Doble")), 37);
    EXPECT_EQ(formulas.FunctionParams(QStringLiteral("Doble")), QStringLiteral("Num"));
    EXPECT_EQ(formulas.Formula(QStringLiteral("Doble(4)")), QStringLiteral("8"));
    formulas.NewFunction(QStringLiteral("DOBLE"), QStringLiteral("Num"), QStringLiteral("Num*3"));
    EXPECT_EQ(formulas.Formula(QStringLiteral("Doble(4)")), QStringLiteral("12"));
}

TEST(FormulaTables, NewVariableOverwritesEvenPi)
{
    cFormulas formulas;
    formulas.NewVariable(QStringLiteral("Pi"), QStringLiteral("3"));
    EXPECT_EQ(formulas.Formula(QStringLiteral("Pi*2")), QStringLiteral("6"));
    formulas.NewVariable(QStringLiteral("r"), QStringLiteral(" 2 "));
    EXPECT_EQ(formulas.VariableVal(QStringLiteral("R")), QStringLiteral("2"));
    QStringList variables;
    formulas.ShowVariables(variables);
    EXPECT_EQ(variables, (QStringList{QStringLiteral("Pi = 3"), QStringLiteral("r = 2")}));
}

// --- the text operations ---------------------------------------------------------------

TEST(FormulaText, MTrimDropsBlanksOutsideQuotes)
{
    cFormulas formulas;
    const QString comilla = QStringLiteral("\"");
    EXPECT_EQ(formulas.MTrim(QStringLiteral("1 +\t\"a b\" + 2"), comilla),
              QStringLiteral("1+\"a b\"+2"));
    EXPECT_EQ(formulas.MTrim(QStringLiteral("a \"b c"), comilla), QStringLiteral("a\"b c\""));
    EXPECT_EQ(formulas.MTrim(QStringLiteral("1") + QChar(0) + QStringLiteral(" 2"), comilla),
              QStringLiteral("12"));
}

TEST(FormulaText, AsignarVariablesLeavesTheExpression)
{
    cFormulas formulas;
    const QString comilla = QStringLiteral("\"");
    EXPECT_EQ(formulas.AsignarVariables(QStringLiteral("x=2:y=3:x+y"), comilla),
              QStringLiteral("x+y"));
    EXPECT_EQ(formulas.VariableVal(QStringLiteral("y")), QStringLiteral("3"));
    EXPECT_EQ(formulas.AsignarVariables(QStringLiteral("1+2:z=3"), comilla), QStringLiteral("1+2"));
    EXPECT_EQ(formulas.VariableVal(QStringLiteral("z")), QStringLiteral("3"));
    EXPECT_EQ(formulas.AsignarVariables(QStringLiteral("1+\"ab\"+2"), comilla),
              QStringLiteral("\"ab\"1++2"));
}

TEST(FormulaText, MultInStrFindsTheEarliestTokenAndKeepsTheFirstOnATie)
{
    cFormulas formulas;
    QString token;
    EXPECT_EQ(formulas.MultInStr(QStringLiteral("a+b*c"), QStringLiteral("* +"), token), 2);
    EXPECT_EQ(token, QStringLiteral("+"));
    EXPECT_EQ(formulas.MultInStr(QStringLiteral("a>=b"), QStringLiteral("= >="), token), 2);
    EXPECT_EQ(token, QStringLiteral(">="));
    EXPECT_EQ(formulas.MultInStr(QStringLiteral("a//b"), QStringLiteral("/ //  "), token), 2);
    EXPECT_EQ(token, QStringLiteral("/"));
    EXPECT_EQ(formulas.MultInStr(QStringLiteral("a+b+c"), QStringLiteral("+"), token, 3), 4);
    EXPECT_EQ(formulas.MultInStr(QStringLiteral("SQR(2)"), QStringLiteral("Sqr("), token), 1);
    EXPECT_EQ(formulas.MultInStr(QStringLiteral("abc"), QStringLiteral("x y"), token), 0);
    EXPECT_EQ(token, QString());
}

TEST(FormulaText, RInStrSearchesLeftOfTheStart)
{
    cFormulas formulas;
    const QString texto = QStringLiteral("abcABC");
    EXPECT_EQ(formulas.RInStr(texto, QStringLiteral("bc")), 5);
    EXPECT_EQ(formulas.RInStr(6, texto, QStringLiteral("bc")), 5);
    EXPECT_EQ(formulas.RInStr(5, texto, QStringLiteral("bc")), 2);
    EXPECT_EQ(formulas.RInStr(2, texto, QStringLiteral("bc")), 0);
    EXPECT_EQ(formulas.RInStr(0, texto, QStringLiteral("a")), 0);
}

TEST(FormulaText, ParseFormulaReplacesOnlyWholeTokens)
{
    cFormulas formulas;
    formulas.NewVariable(QStringLiteral("x"), QStringLiteral("7"));
    EXPECT_EQ(formulas.ParseFormula(QStringLiteral("x+5")), QStringLiteral("7+5"));
    // "%" and "," separate no tokens
    EXPECT_EQ(formulas.ParseFormula(QStringLiteral("x%5")), QStringLiteral("x%5"));
    EXPECT_EQ(formulas.ParseFormula(QStringLiteral("x,x")), QStringLiteral("x,x"));
    EXPECT_EQ(formulas.ParseFormula(QStringLiteral("(x)*x")), QStringLiteral("(7)*7"));
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
        EXPECT_EQ(decimal, QStringLiteral("."));
        EXPECT_EQ(miles, QStringLiteral(","));
    }
    ScopedDecimalMark region(u',');
    EXPECT_EQ(formulas.ConvDecimal(QStringLiteral("1.5"), decimal, miles), QStringLiteral("1,5"));
    EXPECT_EQ(formulas.ConvDecimal(QStringLiteral("1.000.000"), decimal, miles),
              QStringLiteral("1000,000"));
    EXPECT_EQ(decimal, QStringLiteral(","));
    EXPECT_EQ(miles, QStringLiteral("."));
}

TEST(FormulaText, ConvertirParametrosStopsGrowingAt3072)
{
    cFormulas formulas;
    QString resto = QStringLiteral("(Num)+1");
    const QString formula =
        formulas.ConvertirParametros(QStringLiteral("@Sqr(Num)"), QStringLiteral("Num"), resto);
    EXPECT_GE(formula.size(), 3072);
    EXPECT_LT(formula.size(), 3072 + 5);
    EXPECT_TRUE(formula.startsWith(QStringLiteral("@Sqr((((")));
    EXPECT_EQ(resto, QStringLiteral("+1"));

    QString sinLista = QStringLiteral("+1");
    EXPECT_EQ(
        formulas.ConvertirParametros(QStringLiteral("@Sqr(Num)"), QStringLiteral("Num"), sinLista),
        QString());
}

TEST(FormulaText, ConvertirParametrosExpandsVariadicFormulas)
{
    cFormulas formulas;
    QString resto = QStringLiteral("(1,2,3,4)");
    EXPECT_EQ(formulas.ConvertirParametros(QStringLiteral("Num1+Num2+..."),
                                           QStringLiteral("Num1,Num2,..."), resto),
              QStringLiteral("(1)+(2)+(3)+(4)"));
    resto = QStringLiteral("(7)");
    EXPECT_EQ(formulas.ConvertirParametros(QStringLiteral("@Bin(Num,Precision)"),
                                           QStringLiteral("Num,Precision"), resto),
              QStringLiteral("@Bin((7),())"));
}

TEST(FormulaText, SmallHelpers)
{
    cFormulas formulas;
    const QString operadores = QStringLiteral("%^*/\\+-");
    EXPECT_TRUE(formulas.MultipleStr2InStr1(QStringLiteral("1+2*3"), operadores));
    EXPECT_FALSE(formulas.MultipleStr2InStr1(QStringLiteral("1+2+3"), operadores));
    EXPECT_TRUE(formulas.IsFunVB(QStringLiteral("@sqr(4)")));
    EXPECT_FALSE(formulas.IsFunVB(QStringLiteral("@Max(1,2)")));

    EXPECT_EQ(formulas.Dec2Bin(5, 4), QStringLiteral("0101"));
    EXPECT_EQ(formulas.Dec2Bin(-1, 8), QStringLiteral("11111111"));
    EXPECT_EQ(formulas.Dec2Bin(5, 0), QString());
    EXPECT_EQ(formulas.Dec2Bin(1, 32), QStringLiteral("Error: Desbordamiento, al convertir 2^31"));
    EXPECT_EQ(formulas.Bin2Dec(QStringLiteral("101")), 5);
    EXPECT_EQ(formulas.Bin2Dec(QStringLiteral("1 0 1")), 5);
    EXPECT_EQ(formulas.Bin2Dec(QStringLiteral("1x1")), 5);
    EXPECT_EQ(errorNumber([&] { formulas.Bin2Dec(QStringLiteral("1") + QString(31, u'0')); }), 6);
}

TEST(FormulaBench, CreatesAFreshEvaluatorPerCall)
{
    EXPECT_EQ(formulaBench(QStringLiteral("x=5")), QString());
    EXPECT_EQ(formulaBench(QStringLiteral("x*2")), QStringLiteral("0"));
    EXPECT_EQ(formulaBench(QStringLiteral("x=2:y=3:Max(x,y)*Sqr(16)")), QStringLiteral("12"));
}

} // namespace
} // namespace zafro
