#pragma once

// cFormulas: a formula evaluator that works by rewriting text.
//
// Formula("x=2:y=3:Max(x,y)*Sqr(16)") runs this pipeline:
//   MTrim            drops blanks, keeps quoted stretches;
//   AsignarVariables performs the assignments at the front and leaves the expression;
//   ParseFormula     replaces variables by their values and calls by their results,
//                    expanding macros (ConvertirParametros) and primitives (FunctionVal);
//   Calcular         brackets the terms of "% ^ * / \", reduces the innermost brackets
//                    first and folds the flat chain that is left from left to right on
//                    the scaled decimal type (cformulas_decimal.h);
//   and a last pass through double precision gives the usual number text.
//
// Its grammar is not the usual one, and it is kept as it is: a term is bracketed only
// when an operator stands to its left, and the right limit of the bracketing walk only
// moves left, so "2+3*4" is 14 but "2*3+4/5" is 2 and "8/2/2" is 8. There is no parse
// error: names it does not know are filtered down to digits and the letters A to F.
// Values are text everywhere; names compare without regard to case and positions are
// 1-based. Numeric faults it does not catch (the square root of a negative, an operand
// beyond the decimal type, a strict conversion of text that is no number) are
// RuntimeErrors for the caller, and so are a recursion without end or work past the
// budget (error 28) and a rewriting whose text grows without end (error 7).

#include <QString>
#include <QStringList>
#include <QVector>
#include <QtGlobal>

#include <functional>

namespace zafro {

class cFormulas {
public:
    cFormulas();

    QString MTrim(const QString &texto, const QString &comilla) const;
    QString AsignarVariables(const QString &texto, const QString &comilla);
    // Position of the earliest token of a blank-separated list, from `inicio` on; ties
    // go to the earlier token of the list. 0 if none.
    qint32 MultInStr(const QString &texto, const QString &tokens, QString &tokenEncontrado,
                     qint32 inicio = 1) const;
    qint32 IsVariable(const QString &nombre) const;
    qint32 IsFunction(const QString &nombre) const;
    QString FunctionVal(const QString &formula);
    QString VariableVal(const QString &nombre) const;
    void NewFunction(const QString &nombre, const QString &parametros, const QString &formula);
    void NewVariable(const QString &nombre, const QString &valor);
    QString ParseFormula(QString expresion);
    QString Calcular(QString expresion);
    // The last occurrence at or left of `inicio` (the end of the text without it).
    qint32 RInStr(qint32 inicio, const QString &texto, const QString &buscado) const;
    qint32 RInStr(const QString &texto, const QString &buscado) const;
    QString ConvDecimal(const QString &numero, QString &decimal, QString &miles) const;
    // One line per entry, "name = formula | parameters" and "name = value". A collection
    // takes the lines; anything else is given them one by one, as a list box's AddItem.
    void ShowFunctions(QStringList &coleccion) const;
    void ShowFunctions(const std::function<void(const QString &)> &addItem) const;
    void ShowVariables(QStringList &coleccion) const;
    void ShowVariables(const std::function<void(const QString &)> &addItem) const;
    QString Formula(const QString &expresion);
    bool IsFuncOrVar(const QString &token) const;
    QString FunctionParams(const QString &nombre) const;
    QString FunctionFormula(const QString &nombre) const;
    QString ConvertirParametros(QString formula, QString parametros, QString &resto);
    bool MultipleStr2InStr1(const QString &texto, const QString &caracteres) const;
    bool NotacionCientifica() const { return notacionCientifica_; }
    void NotacionCientifica(bool valor) { notacionCientifica_ = valor; }
    bool IsFunVB(const QString &texto) const;
    QString Dec2Bin(qint32 valor, qint32 bits) const;
    qint32 Bin2Dec(const QString &texto) const;

    // Guards against work that never ends. The original runs out of stack on a value
    // that names itself and out of memory on a rewriting that repeats text; both must
    // end here too, as run-time errors 28 and 7, and only on work that runs away.
    // How deep ParseFormula and Calcular may nest within one Formula: a base, plus
    // room for each character, since a finishing formula nests no deeper than its
    // text lets it. Formula runs on a stack sized for the cap.
    static constexpr int kProfundidadBase = 2000;
    static constexpr int kProfundidadPorCaracter = 8;
    static constexpr int kProfundidadTope = 100000;
    // How much work one Formula may do, in units of about a character touched. A
    // formula whose work grows exponentially while its text stays short ("a=1:b=a*a*a:
    // c=b*b*b:...") would otherwise run for ages; the original set no bound at all.
    // The budget lies far above any practical formula and grows with the square of the
    // length, as the rewriting of a long text may do.
    static constexpr qint64 kTrabajoBase = 600'000;
    static constexpr qint64 kTrabajoPorCaracterCuadrado = 4;
    // The work the last Formula did, in the budget's units.
    qint64 trabajoRealizado() const { return gastado_; }

private:
    struct Variable {
        QString nombre;
        QString valor;
    };
    struct Funcion {
        QString nombre;
        QString parametros;
        QString formula;
    };

    QString ObtenerToken(QString &texto, QString &separador) const;
    qsizetype tokenSinComillas(QStringView texto, QString &token, QString &separador) const;
    qint32 multInStr(QStringView texto, const QString &tokens, QString &tokenEncontrado,
                     qint32 inicio = 1) const;
    void LeerNumero(QString &texto, QString &numero) const;
    qsizetype leerNumero(QStringView texto, QString &numero) const;
    QString ExtraerParentesis(QString &texto) const;

    // A call met by ParseFormula: the expanded and performed function joined with all
    // that follows it, evaluated; `expresion` loses its argument list.
    QString llamada(const QString &nombre, QString separador, QString &expresion,
                    QString &resultado);
    QString ponerParentesis(QString expresion);
    QString cadenaPlana(QString expresion);
    QString primitiva(const QString &token, const QString &valor) const;

    class Profundidad;
    QString formulaEnPila(const QString &expresion);
    // Charges the work of one step; error 28 once the budget is spent.
    void gastar(qsizetype unidades);

    qint32 funcionesIniciales_ = 0;
    bool resultadoFuncion_ = false;
    bool notacionCientifica_ = true;
    QString operadores_;
    QString comentarios_;
    QString separadores_;         // what ObtenerToken cuts at: operators, comments, quote
    QVector<Variable> variables_; // index 0 stays empty
    QVector<Funcion> funciones_;  // index 0 stays empty
    QString ultimaExpresion_;
    int profundidad_ = 0;
    int profundidadMaxima_ = kProfundidadBase;
    qint64 presupuesto_ = kTrabajoBase;
    qint64 gastado_ = 0;
    bool enFormula_ = false;
};

// The launcher's hidden bench: a fresh evaluator per call, as each click creates one.
QString formulaBench(const QString &text);

} // namespace zafro
