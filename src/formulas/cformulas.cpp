#include "formulas/cformulas.h"

#include "formulas/cformulas_decimal.h"
#include "maths/calculadora.h"
#include "platform/services.h"
#include "runtime/runtime.h"

#include <QThread>
#include <QVarLengthArray>

#include <bitset>
#include <cmath>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace zafro {

namespace {

constexpr auto CI = Qt::CaseInsensitive;

// Used three times: to build the wrapped functions, by FunctionVal and by IsFunVB.
const QString kPrimitivas =
    QStringLiteral("Int( Fix( Abs( Sgn( Sqr( Cos( Sin( Tan( Atn( Exp( Log( Ln( Log10( Round( "
                   "Hex( Dec2Hex( Oct( Dec2Oct( Bin2Dec( Hex2Dec( Oct2Dec( ");
const QString kPrimitivasDeDos = QStringLiteral("Max( Min( Bin( ");
const QString kSinNotacion = QStringLiteral("Bin( Bin2Dec Dec2Bin Hex( Oct( ");
const QString kOperadoresAltos = QStringLiteral("% ^ * / \\ ");
const QString kOperadoresCadena = QStringLiteral("% ^ * / \\ + - ");
const QString kDelimitadores = QStringLiteral("%^*/\\+-()");
const QString kNegativoTrasOperador = QStringLiteral("*- /- \\- ");
const QString kFiltro = QStringLiteral("0123456789,.ABCDEF");
const QString kErrorDeDos =
    QStringLiteral("Error: hay que usarla con @ o alguna variable no está definida");
const QLatin1Char kComilla('"');

// A blank-separated token list of MultInStr, cut once. The earliest token in the text
// wins, and on a tie the one listed first: so the text is walked once, position by
// position, trying the tokens in their order; a search of the whole text per token,
// as the list reads, costs a pass per token, and the tokenizer asks this for every
// token of a long formula.
class ListaDeTokens {
public:
    explicit ListaDeTokens(const QString &lista) : lista_(lista)
    {
        for (qsizetype i = 0; i < lista.size();) {
            qsizetype blanco = lista.indexOf(u' ', i);
            if (blanco < 0)
                blanco = lista.size();
            // Two blanks in a row make an empty token, which stands for nothing.
            if (blanco > i) {
                tokens_.append(lista.mid(i, blanco - i));
                const char16_t primera = tokens_.back().front().toCaseFolded().unicode();
                primeras_.append(primera);
                if (primera < 128)
                    inicialesAscii_.set(primera);
                else
                    inicialesOtras_ = true;
            }
            i = blanco + 1;
        }
    }

    const QString &lista() const { return lista_; }

    qint32 buscar(QStringView texto, QString &encontrado, qint32 inicio) const
    {
        for (qsizetype p = std::max(inicio, 1) - 1; p < texto.size(); ++p) {
            const char16_t c = texto[p].unicode();
            char16_t plegada;
            if (c < 128) {
                plegada = c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c;
                if (!inicialesAscii_.test(plegada))
                    continue;
            } else {
                if (!inicialesOtras_)
                    continue;
                plegada = QChar(c).toCaseFolded().unicode();
            }
            for (qsizetype t = 0; t < tokens_.size(); ++t) {
                if (primeras_[t] == plegada && texto.mid(p).startsWith(tokens_[t], CI)) {
                    encontrado = tokens_[t];
                    return qint32(p + 1);
                }
            }
        }
        encontrado.clear();
        return 0;
    }

private:
    QString lista_;
    QVarLengthArray<QString, 48> tokens_;
    QVarLengthArray<char16_t, 48> primeras_; // case-folded
    std::bitset<128> inicialesAscii_;
    bool inicialesOtras_ = false;
};

// The lists in use are few and fixed; each thread keeps its own cut copies.
const ListaDeTokens &listaDeTokens(const QString &lista)
{
    thread_local std::vector<std::unique_ptr<ListaDeTokens>> cortadas;
    for (const auto &cortada : cortadas) {
        if (cortada->lista() == lista)
            return *cortada;
    }
    if (cortadas.size() > 64) // a caller with lists of its own: keep the cache small
        cortadas.clear();
    cortadas.push_back(std::make_unique<ListaDeTokens>(lista));
    return *cortadas.back();
}

bool soloBlancos(QStringView texto)
{
    return std::all_of(texto.begin(), texto.end(), [](QChar c) { return c == u' '; });
}

// The runtime's Trim: blanks only, not tabs.
QString vbTrim(const QString &s)
{
    qsizetype begin = 0;
    qsizetype end = s.size();
    while (begin < end && s[begin] == u' ')
        ++begin;
    while (end > begin && s[end - 1] == u' ')
        --end;
    return s.mid(begin, end - begin);
}

// Mid with a 1-based start, the rest of the text without a length.
QString mid(const QString &s, qint32 inicio, qint32 largo = -1)
{
    return largo < 0 ? s.mid(inicio - 1) : s.mid(inicio - 1, largo);
}

QChar charAt(const QString &s, qint32 posicion)
{
    return posicion >= 1 && posicion <= s.size() ? s[posicion - 1] : QChar();
}

bool igual(const QString &a, const QString &b)
{
    // Case folding keeps lengths, so most names differ before any folding is done.
    return a.size() == b.size() && QString::compare(a, b, CI) == 0;
}

bool esDigito(QChar c)
{
    return c >= u'0' && c <= u'9';
}

constexpr qint32 kSinMemoria = 7;

// Formula runs on one thread kept for the purpose, with a stack enough for the deepest
// nesting the guard lets through, sanitizers included. Only the pages it touches are
// ever committed. The thread is made once: making one per call costs more than most
// formulas.
constexpr uint kPila = 1536u * 1024u * 1024u;

class PilaGrande {
public:
    static PilaGrande &la()
    {
        static PilaGrande pila;
        return pila;
    }

    // Runs `trabajo` there while the caller waits; its result, or what it threw.
    QString ejecutar(const std::function<QString()> &trabajo)
    {
        if (QThread::currentThread() == hilo_.get())
            return trabajo(); // already on the large stack
        std::lock_guard<std::mutex> turno(turno_);
        QString resultado;
        std::exception_ptr fallo;
        {
            std::unique_lock<std::mutex> lock(mutex_);
            trabajo_ = [&] {
                try {
                    resultado = trabajo();
                } catch (...) {
                    fallo = std::current_exception();
                }
            };
            hecho_ = false;
            aviso_.notify_all();
            aviso_.wait(lock, [this] { return hecho_; });
        }
        if (fallo)
            std::rethrow_exception(fallo);
        return resultado;
    }

private:
    PilaGrande()
    {
        hilo_.reset(QThread::create([this] { atender(); }));
        hilo_->setObjectName(QStringLiteral("cFormulas"));
        hilo_->setStackSize(kPila);
        hilo_->start();
    }
    ~PilaGrande()
    {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            fin_ = true;
            aviso_.notify_all();
        }
        hilo_->wait();
    }

    void atender()
    {
        std::unique_lock<std::mutex> lock(mutex_);
        for (;;) {
            aviso_.wait(lock, [this] { return fin_ || trabajo_; });
            if (fin_)
                return;
            trabajo_();
            trabajo_ = nullptr;
            hecho_ = true;
            aviso_.notify_all();
        }
    }

    std::mutex turno_; // one caller at a time
    std::mutex mutex_;
    std::condition_variable aviso_;
    std::function<void()> trabajo_;
    bool hecho_ = false;
    bool fin_ = false;
    std::unique_ptr<QThread> hilo_;
};

// The guards end a runaway recursion or rewriting; no handler of the evaluator may
// swallow what they raise, or the runaway would go on from there.
bool esErrorDeGuarda(const RuntimeError &error)
{
    return error.number() == RuntimeError::outOfStackSpace().number() ||
           error.number() == kSinMemoria;
}

QString textoOctal(double valor)
{
    return QString::number(static_cast<quint32>(CLng(valor)), 8);
}

Random &generador()
{
    if (Random *random = services().random)
        return *random;
    static ClassicRandom propio;
    return propio;
}

// The accumulator of the flat chain: a decimal, or a double after a power.
struct Acumulador {
    std::optional<ScaledDecimal> decimal;
    double doble = 0;

    QString texto() const { return decimal ? decimal->toText() : CStr(doble); }
};

} // namespace

// One level of ParseFormula or Calcular: counted against the depth and charged with
// the text it works on.
class cFormulas::Profundidad {
public:
    Profundidad(cFormulas &f, const QString &texto) : f_(f)
    {
        if (f_.profundidad_ == 0 && !f_.enFormula_)
            f_.profundidadMaxima_ = kProfundidadBase; // called on its own, not through Formula
        if (f_.profundidad_ >= f_.profundidadMaxima_)
            throw RuntimeError::outOfStackSpace();
        f_.gastar(64 + texto.size());
        ++f_.profundidad_;
    }
    ~Profundidad() { --f_.profundidad_; }
    Profundidad(const Profundidad &) = delete;
    Profundidad &operator=(const Profundidad &) = delete;

private:
    cFormulas &f_;
};

void cFormulas::gastar(qsizetype unidades)
{
    if (!enFormula_) // the budget is Formula's; a helper called on its own has the depth guard
        return;
    gastado_ += unidades;
    if (gastado_ > presupuesto_)
        throw RuntimeError::outOfStackSpace();
}

cFormulas::cFormulas()
    : operadores_(QStringLiteral(":= < > = >= <= ( ) ^ * / \\ - + $ ! # @ { } [ ] ")),
      comentarios_(QStringLiteral("; ' // ")),
      separadores_(operadores_ + comentarios_ + QLatin1Char(' ') + kComilla + QLatin1Char(' ')),
      variables_(1), funciones_(1)
{
    NewVariable(QStringLiteral("Pi"), QStringLiteral("3.1415926535897932384626433832795"));

    NewFunction(QStringLiteral("Sum"), QStringLiteral("Num1,Num2,..."),
                QStringLiteral("Num1+Num2+..."));
    NewFunction(QStringLiteral("Subs"), QStringLiteral("Num1,Num2,..."),
                QStringLiteral("Num1-Num2-..."));
    NewFunction(QStringLiteral("Mult"), QStringLiteral("Num1,Num2,..."),
                QStringLiteral("Num1*Num2*..."));
    NewFunction(QStringLiteral("Max"), QStringLiteral("Num1,Num2"),
                QStringLiteral("@Max(Num1,Num2)"));
    NewFunction(QStringLiteral("Min"), QStringLiteral("Num1,Num2"),
                QStringLiteral("@Min(Num1,Num2)"));
    NewFunction(QStringLiteral("Rnd"), QString(), QStringLiteral("@Rnd"));
    NewFunction(QStringLiteral("Bin"), QStringLiteral("Num,Precision"),
                QStringLiteral("@Bin(Num,Precision)"));
    NewFunction(QStringLiteral("Dec2Bin"), QStringLiteral("Num"), QStringLiteral("Bin(Num)"));
    NewFunction(QStringLiteral("Dec2Bin2"), QStringLiteral("Num,Precision"),
                QStringLiteral("Bin(Num,Precision)"));
    NewFunction(QStringLiteral("LogX"), QStringLiteral("Num,Base"),
                QStringLiteral("Log(Num)/Log(Base)"));
    NewFunction(QStringLiteral("Grados2Radianes"), QStringLiteral("Num"),
                QStringLiteral("Num*(Pi/180)"));
    NewFunction(QStringLiteral("Radianes2Grados"), QStringLiteral("Num"),
                QStringLiteral("Num*(180/Pi)"));
    QString lista = kPrimitivas;
    for (qsizetype corte = lista.indexOf(QLatin1String("( ")); corte > 0;
         corte = lista.indexOf(QLatin1String("( "))) {
        const QString nombre = lista.left(corte);
        lista = lista.mid(corte + 2);
        NewFunction(nombre, QStringLiteral("Num"), QLatin1Char('@') + nombre + "(Num)");
    }
    NewFunction(QStringLiteral("Sec"), QStringLiteral("Num"), QStringLiteral("1/Cos(Num)"));
    NewFunction(QStringLiteral("CoSec"), QStringLiteral("Num"), QStringLiteral("1/Sin(Num)"));
    NewFunction(QStringLiteral("CoTan"), QStringLiteral("Num"), QStringLiteral("1/Tan(Num)"));
    funcionesIniciales_ = qint32(funciones_.size()) - 1;
}

// ---- tables ------------------------------------------------------------------------

qint32 cFormulas::IsVariable(const QString &nombre) const
{
    const QString buscado = vbTrim(nombre);
    if (buscado.isEmpty())
        return 0;
    for (qsizetype i = 1; i < variables_.size(); ++i) {
        if (igual(variables_[i].nombre, buscado))
            return qint32(i);
    }
    return 0;
}

qint32 cFormulas::IsFunction(const QString &nombre) const
{
    const QString buscado = vbTrim(nombre);
    if (buscado.isEmpty())
        return 0;
    for (qsizetype i = 1; i < funciones_.size(); ++i) {
        if (igual(funciones_[i].nombre, buscado))
            return qint32(i);
    }
    return 0;
}

QString cFormulas::VariableVal(const QString &nombre) const
{
    const qint32 i = IsVariable(nombre);
    return i > 0 ? variables_[i].valor : QString();
}

QString cFormulas::FunctionParams(const QString &nombre) const
{
    const qint32 i = IsFunction(nombre);
    return i > 0 ? funciones_[i].parametros : QString();
}

QString cFormulas::FunctionFormula(const QString &nombre) const
{
    const qint32 i = IsFunction(nombre);
    return i > 0 ? funciones_[i].formula : QString();
}

void cFormulas::NewVariable(const QString &nombre, const QString &valor)
{
    if (const qint32 i = IsVariable(nombre); i > 0)
        variables_[i].valor = vbTrim(valor);
    else
        variables_.append({vbTrim(nombre), vbTrim(valor)});
}

void cFormulas::NewFunction(const QString &nombre, const QString &parametros,
                            const QString &formula)
{
    const qint32 i = IsFunction(nombre);
    if (i == 0) {
        funciones_.append({vbTrim(nombre), vbTrim(parametros), vbTrim(formula)});
    } else if (i > funcionesIniciales_) {
        funciones_[i].parametros = vbTrim(parametros);
        funciones_[i].formula = vbTrim(formula);
    }
}

bool cFormulas::IsFuncOrVar(const QString &token) const
{
    return (IsVariable(token) > 0 || IsFunction(token) > 0) && !IsNumeric(token);
}

void cFormulas::ShowFunctions(QStringList &coleccion) const
{
    ShowFunctions([&](const QString &linea) { coleccion.append(linea); });
}

void cFormulas::ShowFunctions(const std::function<void(const QString &)> &addItem) const
{
    for (qsizetype i = 1; i < funciones_.size(); ++i) {
        const Funcion &f = funciones_[i];
        addItem(f.nombre + " = " + f.formula + " | " + f.parametros);
    }
}

void cFormulas::ShowVariables(QStringList &coleccion) const
{
    ShowVariables([&](const QString &linea) { coleccion.append(linea); });
}

void cFormulas::ShowVariables(const std::function<void(const QString &)> &addItem) const
{
    for (qsizetype i = 1; i < variables_.size(); ++i)
        addItem(variables_[i].nombre + " = " + variables_[i].valor);
}

// ---- text helpers ------------------------------------------------------------------

QString cFormulas::MTrim(const QString &texto, const QString &comilla) const
{
    QString salida;
    salida.reserve(texto.size());
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const QChar c = texto[i];
        if (!comilla.isEmpty() && texto.mid(i, comilla.size()) == comilla) {
            const qsizetype cierre = texto.indexOf(comilla, i + comilla.size());
            if (cierre < 0) {
                salida += texto.mid(i) + comilla;
                break;
            }
            salida += texto.mid(i, cierre + comilla.size() - i);
            i = cierre + comilla.size() - 1;
        } else if (c != u' ' && c != u'\t' && c != QChar(0)) {
            salida += c;
        }
    }
    return salida;
}

qint32 cFormulas::MultInStr(const QString &texto, const QString &tokens, QString &tokenEncontrado,
                            qint32 inicio) const
{
    return multInStr(texto, tokens, tokenEncontrado, inicio);
}

qint32 cFormulas::multInStr(QStringView texto, const QString &tokens, QString &tokenEncontrado,
                            qint32 inicio) const
{
    return listaDeTokens(tokens).buscar(texto, tokenEncontrado, inicio);
}

qint32 cFormulas::RInStr(qint32 inicio, const QString &texto, const QString &buscado) const
{
    for (qint32 p = inicio - qint32(buscado.size()) + 1; p >= 1; --p) {
        if (p + buscado.size() - 1 <= texto.size() &&
            QStringView(texto).mid(p - 1, buscado.size()).compare(buscado, CI) == 0)
            return p;
    }
    return 0;
}

qint32 cFormulas::RInStr(const QString &texto, const QString &buscado) const
{
    return RInStr(qint32(texto.size()), texto, buscado);
}

bool cFormulas::MultipleStr2InStr1(const QString &texto, const QString &caracteres) const
{
    int presentes = 0;
    for (const QChar c : caracteres) {
        if (texto.contains(c, CI) && ++presentes >= 2)
            return true;
    }
    return false;
}

bool cFormulas::IsFunVB(const QString &texto) const
{
    QString sinArroba = texto;
    if (const qsizetype arroba = sinArroba.indexOf(u'@'); arroba >= 0)
        sinArroba.remove(arroba, 1);
    QString token;
    return MultInStr(sinArroba, kPrimitivas, token) > 0;
}

QString cFormulas::Dec2Bin(qint32 valor, qint32 bits) const
{
    QString salida;
    for (qint32 exponente = bits - 1; exponente >= 0; --exponente) {
        if (exponente > 30) // 2^31 does not fit the 32-bit mask
            return "Error: " + RuntimeError::overflow().description() + ", al convertir 2^" +
                   QString::number(exponente);
        salida += (valor & (qint32(1) << exponente)) != 0 ? u'1' : u'0';
    }
    return salida;
}

qint32 cFormulas::Bin2Dec(const QString &texto) const
{
    qint32 valor = 0;
    int exponente = 0;
    for (qsizetype i = texto.size() - 1; i >= 0; --i) {
        if (texto[i] == u' ')
            continue;
        if (texto[i] == u'1')
            valor = CLng(double(valor) + power(2.0, exponente));
        ++exponente;
    }
    return valor;
}

QString cFormulas::ConvDecimal(const QString &numero, QString &decimal, QString &miles) const
{
    // The region's marks, as formatting 25.5 with "#.#" shows them.
    const bool regionDePunto = decimalMark() == u'.';
    decimal = regionDePunto ? QStringLiteral(".") : QStringLiteral(",");
    miles = regionDePunto ? QStringLiteral(",") : QStringLiteral(".");

    QString texto = vbTrim(numero);
    if (texto.startsWith(miles))
        texto = decimal + texto.mid(1);
    const qsizetype veces = texto.count(miles);
    if (veces == 1) {
        texto.replace(miles, texto.contains(decimal) ? QString() : decimal);
    } else if (veces > 1) {
        const qsizetype ultima = texto.lastIndexOf(miles);
        texto = texto.left(ultima).remove(miles) + decimal + texto.mid(ultima + 1);
    }
    return texto.remove(u' ');
}

// ---- reading tokens and numbers ---------------------------------------------------

QString cFormulas::ObtenerToken(QString &texto, QString &separador) const
{
    separador.clear();
    if (soloBlancos(texto)) {
        texto.clear();
        return {};
    }
    // A quote is itself a separator, so with one in the text a separator is always found.
    if (const qsizetype abre = texto.indexOf(kComilla); abre >= 0) {
        const qsizetype cierra = texto.indexOf(kComilla, abre + 1);
        QString token;
        if (cierra < 0) {
            token = texto.mid(abre) + kComilla;
            texto = texto.left(abre);
        } else {
            token = texto.mid(abre, cierra - abre + 1);
            texto = texto.left(abre) + texto.mid(cierra + 1);
        }
        return token;
    }
    QString token;
    texto.remove(0, tokenSinComillas(texto, token, separador));
    return token;
}

// ObtenerToken on a text that holds no quote and is not blank: the token and separator
// at its head, and how much of the text they take. ParseFormula walks a long formula
// with it without copying the rest at each token.
qsizetype cFormulas::tokenSinComillas(QStringView texto, QString &token, QString &separador) const
{
    separador.clear();
    QString encontrado;
    const qint32 posicion = multInStr(texto, separadores_, encontrado);
    if (posicion == 0) {
        token = texto.toString();
        return texto.size();
    }
    token = texto.left(posicion - 1).toString();
    qsizetype usado = posicion - 1 + encontrado.size();
    separador = encontrado;
    // "1E+20" is one token; "1.5E+20" is not, as "." is no digit.
    if (token.endsWith(u'E', CI) &&
        std::all_of(token.cbegin(), token.cend() - 1, [](QChar c) { return esDigito(c); })) {
        token += separador + texto.mid(usado, 2).toString();
        usado = std::min(usado + 2, texto.size());
        separador.clear();
    }
    return usado;
}

void cFormulas::LeerNumero(QString &texto, QString &numero) const
{
    texto.remove(0, leerNumero(texto, numero));
}

// LeerNumero on a view of the text, giving how much of it was read: the flat chain reads
// a long text number by number and must not copy the rest at each one.
qsizetype cFormulas::leerNumero(QStringView texto, QString &numero) const
{
    // Every fault in here is swallowed: the number keeps whatever it held.
    qsizetype i = 0;
    const auto saltarBlancos = [&] {
        while (i < texto.size() && texto[i] == u' ')
            ++i;
    };
    saltarBlancos();
    if (texto.mid(i).startsWith(kComilla))
        return i;
    int signo = 1;
    if (texto.mid(i).startsWith(u'-')) {
        signo = -1;
        ++i;
    }
    const qsizetype inicio = i;
    while (i < texto.size() && QStringView(u"0123456789., ").contains(texto[i]))
        ++i;
    if (i > inicio) {
        try {
            QString decimal;
            QString miles;
            const QString prefijo = texto.mid(inicio, i - inicio).toString();
            numero = CStr(CDbl(ConvDecimal(prefijo, decimal, miles)) * signo);
        } catch (const RuntimeError &) {
        }
    } else {
        numero.clear();
    }
    saltarBlancos();
    if (!texto.mid(i).startsWith(u'E', CI))
        return i;
    const QStringView signoExponente = texto.mid(i + 1, 1);
    try {
        const qint32 ceros = CLng(Val(texto.mid(i + 2).toString()));
        if (ceros < 0)
            throw RuntimeError::invalidProcedureCall();
        if (ceros > 308) // "1" and that many zeros is beyond the double range
            throw RuntimeError::overflow();
        const double potencia = CDbl(QLatin1Char('1') + QString(ceros, u'0'));
        const double valor = CDbl(numero);
        numero = CStr(checkDouble(signoExponente == u"-" ? valor / potencia : valor * potencia));
    } catch (const RuntimeError &) {
    }
    // kept: the exponent is taken to have exactly two digits
    return std::min(i + 4, texto.size());
}

QString cFormulas::ExtraerParentesis(QString &texto) const
{
    texto = vbTrim(texto);
    if (!texto.startsWith(u'('))
        return {};
    int nivel = 0;
    for (qsizetype i = 0; i < texto.size(); ++i) {
        if (texto[i] == u'(') {
            ++nivel;
        } else if (texto[i] == u')' && --nivel == 0) {
            const QString dentro = texto.mid(1, i - 1);
            texto = texto.mid(i + 1);
            return dentro;
        }
    }
    texto = texto.mid(1);
    return {};
}

// ---- assignments and names ----------------------------------------------------------

QString cFormulas::AsignarVariables(const QString &entrada, const QString &comilla)
{
    QString texto = MTrim(entrada, comilla);
    QString prefijo;
    // kept: quoted text moves to the front of the expression
    for (qsizetype abre; !comilla.isEmpty() && (abre = texto.indexOf(comilla)) >= 0;) {
        const qsizetype cierra = texto.indexOf(comilla, abre + comilla.size());
        if (cierra < 0) {
            prefijo += texto.mid(abre);
            texto = texto.left(abre);
        } else {
            prefijo += texto.mid(abre, cierra + comilla.size() - abre);
            texto = texto.left(abre) + texto.mid(cierra + comilla.size());
        }
    }
    while (texto.contains(u'=')) {
        const qsizetype igualdad = texto.indexOf(u'=');
        QString nombre = texto.left(igualdad);
        if (const qsizetype dosPuntos = nombre.indexOf(u':'); dosPuntos >= 0) {
            prefijo += nombre.left(dosPuntos);
            nombre = nombre.mid(dosPuntos + 1);
        }
        const QString resto = texto.mid(igualdad + 1);
        const qsizetype siguiente = resto.indexOf(u':');
        QString valor = siguiente < 0 ? resto : resto.left(siguiente);
        texto = siguiente < 0 ? QString() : resto.mid(siguiente + 1);

        if (IsVariable(nombre) == 0) {
            NewVariable(nombre, valor);
        } else {
            QString separador;
            const QString token = ObtenerToken(valor, separador);
            if (igual(token, vbTrim(nombre))) {
                NewVariable(nombre,
                            Calcular(ParseFormula(VariableVal(nombre) + separador + valor)));
            } else {
                // kept: only the first token of a new value for a known name is stored
                NewVariable(nombre, token);
            }
        }
        if (texto.isEmpty())
            break;
        gastar(16 + texto.size());
    }
    return prefijo + texto;
}

QString cFormulas::ParseFormula(QString expresion)
{
    Profundidad guarda(*this, expresion);
    QString resultado;
    // What the walk has taken of the expression so far; it is cut off only where the
    // text must change (a quoted stretch) or is handed on (a call).
    qsizetype desde = 0;
    qsizetype ultimaComilla = expresion.lastIndexOf(kComilla);
    do {
        QString separador;
        QString token;
        if (ultimaComilla >= desde) {
            expresion.remove(0, desde);
            desde = 0;
            token = ObtenerToken(expresion, separador);
            ultimaComilla = expresion.lastIndexOf(kComilla);
        } else if (soloBlancos(QStringView(expresion).mid(desde))) {
            desde = expresion.size();
        } else {
            desde += tokenSinComillas(QStringView(expresion).mid(desde), token, separador);
        }
        if (!token.isEmpty() && !IsNumeric(token) && IsFuncOrVar(token)) {
            if (const QString valor = VariableVal(token); !valor.isEmpty())
                token = Calcular(ParseFormula(valor));
            if (IsFunction(token) > 0) {
                expresion.remove(0, desde);
                resultado += llamada(token, separador, expresion, resultado);
                // Everything behind the call has been evaluated with it.
                return resultado;
            }
        }
        resultado += token + separador;
        gastar(16 + token.size());
    } while (desde < expresion.size());
    return resultado;
}

QString cFormulas::llamada(const QString &nombre, QString separador, QString &expresion,
                           QString &resultado)
{
    QString formula = FunctionFormula(nombre);
    const QString parametros = FunctionParams(nombre);
    if (!parametros.isEmpty() && separador == QLatin1String("(")) {
        expresion.prepend(u'(');
        separador.clear();
        formula = ConvertirParametros(formula, parametros, expresion);
    }
    QString salida = FunctionVal(formula);
    if (!salida.isEmpty())
        salida = ParseFormula(salida);
    if (separador == kComilla)
        return Calcular(salida) + separador + expresion;
    QString texto = salida + separador + expresion;
    if (resultado == QLatin1String("(")) {
        texto.prepend(u'(');
        resultado.clear();
    }
    return Calcular(ParseFormula(texto));
}

QString cFormulas::ConvertirParametros(QString formula, QString parametros, QString &resto)
{
    QString argumentos = ExtraerParentesis(resto);
    if (argumentos.isEmpty())
        return {};
    argumentos = ParseFormula(argumentos);

    if (!parametros.contains(u',')) {
        QString argumento = argumentos.left(argumentos.indexOf(u','));
        if (argumento.startsWith(u'(') && !argumento.endsWith(u')'))
            argumento += u')';
        const QString sustituto = u'(' + argumento + u')';
        // The only stop to a formula that grows with each pass.
        while (!parametros.isEmpty() && formula.contains(parametros, CI) && formula.size() < 3072) {
            formula.replace(parametros, sustituto, CI);
            gastar(16); // bounded by the 3072 stop itself
        }
        return formula;
    }

    parametros += u',';
    argumentos += u',';
    if (formula.contains(QLatin1String("..."))) {
        const qsizetype comas = argumentos.count(u',');
        if (formula.size() < 4) // the runtime's Left with a negative length
            throw RuntimeError::invalidProcedureCall();
        const QChar operador = formula.at(formula.size() - 4);
        formula.chop(4);
        parametros.replace(QLatin1String(",...,"), QLatin1String(","), CI);
        for (int n = 0; parametros.count(u',') < comas; ++n) {
            const QString nombre = QStringLiteral("NumX%1").arg(n, 2, 10, QLatin1Char('0'));
            parametros += nombre + u',';
            formula += operador + nombre;
        }
    }
    // kept: plain text replacement, a name inside a longer word is replaced too
    while (parametros.contains(u',')) {
        const qsizetype coma = parametros.indexOf(u',');
        const QString nombre = parametros.left(coma);
        parametros = parametros.mid(coma + 1);
        QString argumento;
        if (const qsizetype fin = argumentos.indexOf(u','); fin >= 0) {
            argumento = argumentos.left(fin);
            argumentos = argumentos.mid(fin + 1);
        } else {
            argumento = argumentos;
            argumentos.clear();
        }
        if (!nombre.isEmpty())
            formula.replace(nombre, u'(' + argumento + u')', CI);
        gastar(16);
    }
    return formula;
}

// ---- primitives ---------------------------------------------------------------------

QString cFormulas::primitiva(const QString &token, const QString &valor) const
{
    const auto es = [&](const char *nombre) { return igual(token, QLatin1String(nombre)); };
    if (es("Bin2Dec("))
        return CStr(Bin2Dec(valor));
    if (es("Hex2Dec("))
        return CStr(Val(QLatin1String("&H") + valor));
    if (es("Oct2Dec("))
        return CStr(Val(QLatin1String("&O") + valor));

    const double x = CDbl(valor);
    if (es("Int("))
        return CStr(Int(x));
    if (es("Fix("))
        return CStr(Fix(x));
    if (es("Abs("))
        return CStr(std::fabs(x));
    if (es("Sgn("))
        return CStr(qint32(x > 0) - qint32(x < 0));
    if (es("Sqr("))
        return CStr(Sqr(x));
    // kept: the Spanish names are handled too, though nothing ever reaches them
    if (es("Cos(") || es("Coseno("))
        return CStr(std::cos(x));
    if (es("Sin(") || es("Seno("))
        return CStr(std::sin(x));
    if (es("Tan(") || es("Tangente("))
        return CStr(std::tan(x));
    if (es("Atn("))
        return CStr(std::atan(x));
    if (es("Exp("))
        return CStr(Exp(x));
    if (es("Log(") || es("Ln("))
        return CStr(Log(x));
    if (es("Log10("))
        return CStr(Log(x) / Log(10.0));
    if (es("Round("))
        return CStr(Round(x));
    if (es("Hex(") || es("Dec2Hex("))
        return textoHexadecimal(x);
    if (es("Oct(") || es("Dec2Oct("))
        return textoOctal(x);
    return valor;
}

QString cFormulas::FunctionVal(const QString &entrada)
{
    QString formula = vbTrim(entrada);
    resultadoFuncion_ = false;
    const qsizetype arroba = formula.indexOf(u'@');
    if (arroba < 0)
        return formula;
    formula.remove(arroba, 1);

    if (const qsizetype rnd = formula.indexOf(QLatin1String("Rnd"), 0, CI); rnd >= 0)
        return formula.left(rnd) + u'(' + CStr(generador().rnd()) + u')' + formula.mid(rnd + 3);

    QString token;
    if (const qint32 posicion = MultInStr(formula, kPrimitivas, token); posicion > 0) {
        // kept: whatever stood before the name is lost
        QString resto = mid(formula, posicion + qint32(token.size()) - 1);
        const QString valor = Calcular(ExtraerParentesis(resto));
        resultadoFuncion_ = true;
        return u'(' + primitiva(token, valor) + u')' + resto;
    }

    const qint32 posicion = MultInStr(formula, kPrimitivasDeDos, token);
    if (posicion == 0)
        return formula;
    try {
        QString resto = mid(formula, posicion + qint32(token.size()) - 1);
        const QString dentro = ExtraerParentesis(resto);
        const qsizetype coma = dentro.indexOf(u',');
        if (coma < 0)
            return dentro;
        // kept: a comma inside a nested call splits too
        const QString primero = Calcular(ParseFormula(dentro.left(coma)));
        const QString segundo = Calcular(ParseFormula(dentro.mid(coma + 1)));
        if (igual(token, QLatin1String("Max(")))
            return CDbl(primero) > CDbl(segundo) ? primero : segundo;
        if (igual(token, QLatin1String("Min(")))
            return CDbl(primero) < CDbl(segundo) ? primero : segundo;
        resultadoFuncion_ = true;
        return Dec2Bin(CLng(primero), segundo.isEmpty() ? 16 : CLng(segundo));
    } catch (const RuntimeError &error) {
        if (esErrorDeGuarda(error))
            throw;
        return kErrorDeDos;
    }
}

// ---- evaluation ---------------------------------------------------------------------

QString cFormulas::ponerParentesis(QString w)
{
    // The "*-" rewriting can repeat text at every pass without end: a text that keeps
    // growing far past where it started is the original's out-of-memory end.
    const qsizetype inicial = w.size();
    qsizetype anterior = inicial;
    const auto delimitador = [](QChar c) { return kDelimitadores.contains(c); };
    // kept: the limit is set once and only moves left, across all the operators
    qint32 limite = qint32(w.size());
    for (const QString &op : {QStringLiteral("%"), QStringLiteral("^"), QStringLiteral("*"),
                              QStringLiteral("/"), QStringLiteral("\\")}) {
        for (qint32 posicion = RInStr(limite, w, op); posicion > 0;
             posicion = RInStr(limite, w, op)) {
            qint32 izquierda = posicion - 1;
            while (izquierda >= 1 && !delimitador(charAt(w, izquierda)))
                --izquierda;
            if (izquierda >= 1 && charAt(w, izquierda) != u')') {
                qint32 derecha = posicion + 1;
                while (derecha <= w.size() && !delimitador(charAt(w, derecha)))
                    ++derecha;
                if (derecha > w.size()) {
                    w = w.left(izquierda) + u'(' + mid(w, izquierda + 1) + u')';
                } else {
                    QString negativo;
                    const qint32 p = MultInStr(w, kNegativoTrasOperador, negativo);
                    const QString tramo = mid(w, izquierda + 1, derecha - izquierda - 1);
                    if (p > 0) {
                        // kept: brackets only the left operand, and where "*-" stands
                        // elsewhere it loses or repeats text
                        w = w.left(izquierda) + u'(' +
                            mid(w, izquierda + 1, derecha - izquierda - 2) + u')' + mid(w, p);
                    } else if (tramo.endsWith(u'*') && charAt(w, derecha) == u'(') {
                        w = w.left(izquierda) + u'(' + tramo.left(tramo.size() - 1) +
                            mid(w, derecha - 1) + u')';
                    } else {
                        w = w.left(izquierda) + u'(' + tramo + u')' + mid(w, derecha);
                    }
                }
                if (w.size() > anterior && w.size() > 4 * inicial + 256)
                    throw RuntimeError(kSinMemoria, QStringLiteral("Memoria insuficiente"));
                anterior = w.size();
                gastar(16 + w.size());
            }
            limite = RInStr(limite, w, op) - 1;
        }
    }
    return w;
}

QString cFormulas::Calcular(QString expresion)
{
    Profundidad guarda(*this, expresion);
    expresion = vbTrim(expresion);
    QString encontrado;
    const bool altos = MultInStr(expresion, kOperadoresAltos, encontrado) > 0;
    if (altos)
        resultadoFuncion_ = false;
    if (resultadoFuncion_) {
        // A primitive's value stays literal: "(FF)" is "FF", not 0.
        if (expresion.startsWith(u'@'))
            expresion.remove(0, 1);
        while (expresion.startsWith(u'(')) {
            expresion.remove(0, 1);
            if (expresion.endsWith(u')'))
                expresion.chop(1);
            expresion = vbTrim(expresion);
        }
        return expresion;
    }
    if (altos)
        expresion = ponerParentesis(expresion);

    while (expresion.contains(u'(')) {
        const qsizetype cierra = expresion.indexOf(u')');
        if (cierra < 0) {
            expresion += u')';
            continue;
        }
        const qsizetype abre = expresion.lastIndexOf(u'(', cierra);
        if (abre < 0) {
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
            // The product loops here for ever on ")(" as designed; the fuzzer must go on.
            throw RuntimeError::invalidProcedureCall();
#else
            continue;
#endif
        }
        expresion = expresion.left(abre) + Calcular(expresion.mid(abre + 1, cierra - abre - 1)) +
                    expresion.mid(cierra + 1);
        gastar(16 + expresion.size());
    }

    if (MultInStr(expresion, kOperadoresCadena, encontrado) == 0) {
        if (expresion.startsWith(kComilla))
            return expresion;
        // A plain number, a hexadecimal text, or what is left of an unknown name.
        QString filtrado;
        for (const QChar c : expresion) {
            if (kFiltro.contains(c, CI))
                filtrado += c;
        }
        return filtrado;
    }
    return cadenaPlana(expresion);
}

QString cFormulas::cadenaPlana(QString expresion)
{
    // The recalculation this test served can never fire: the last expression is set and
    // cleared around one comparison.
    if (MultipleStr2InStr1(expresion, QStringLiteral("%^*/\\+-"))) {
        ultimaExpresion_ = expresion;
        const bool distinta = !igual(ultimaExpresion_, expresion);
        ultimaExpresion_.clear();
        if (distinta)
            return Calcular(expresion);
    }

    QString izquierda;
    QString derecha;
    std::optional<Acumulador> acumulador;
    QStringView resto(expresion);
    for (;;) {
        gastar(16);
        if (resto.isEmpty())
            return acumulador ? acumulador->texto() : QString();
        if (izquierda.isEmpty())
            resto = resto.mid(leerNumero(resto, izquierda));
        const QStringView operador = resto.left(1);
        resto = resto.mid(operador.size());
        resto = resto.mid(leerNumero(resto, derecha));
        const ScaledDecimal a =
            izquierda.isEmpty() ? ScaledDecimal() : ScaledDecimal::fromText(izquierda);
        const ScaledDecimal b =
            derecha.isEmpty() ? ScaledDecimal() : ScaledDecimal::fromText(derecha);

        if (operador == kComilla) {
            // The right operand has already eaten the digits at the head of the text.
            const qsizetype cierra = resto.indexOf(kComilla);
            if (cierra < 0)
                return kComilla + resto.toString();
            return kComilla + resto.left(cierra + 1).toString() +
                   Calcular(resto.mid(cierra + 1).toString());
        }
        Acumulador nuevo;
        const QChar op = operador.isEmpty() ? QChar() : operador[0];
        if (op == u'-')
            nuevo.decimal = a - b;
        else if (op == u'*')
            nuevo.decimal = a * b;
        else if (op == u'/')
            nuevo.decimal = b.isZero() ? ScaledDecimal() : a / b;
        else if (op == u'\\')
            nuevo.decimal = b.isZero()
                                ? ScaledDecimal()
                                : ScaledDecimal::fromInteger(intDiv(a.toDouble(), b.toDouble()));
        else if (op == u'^')
            nuevo.doble = power(a.toDouble(), b.toDouble());
        else if (op == u'%')
            nuevo.decimal = a * (b / ScaledDecimal::fromInteger(100));
        else // "+", and any character it does not know
            nuevo.decimal = a + b;
        acumulador = nuevo;
        izquierda = acumulador->texto();
        if (operador.isEmpty())
            return izquierda;
    }
}

QString cFormulas::Formula(const QString &expresion)
{
    return PilaGrande::la().ejecutar([&] { return formulaEnPila(expresion); });
}

QString cFormulas::formulaEnPila(const QString &expresion)
{
    const qint64 largo = expresion.size();
    profundidadMaxima_ =
        int(std::min<qint64>(kProfundidadTope, kProfundidadBase + kProfundidadPorCaracter * largo));
    presupuesto_ = kTrabajoBase + kTrabajoPorCaracterCuadrado * largo * largo;
    gastado_ = 0;
    enFormula_ = true;
    struct Sale {
        bool &enFormula;
        ~Sale() { enFormula = false; }
    } sale{enFormula_};

    const bool notacion = notacionCientifica_;
    struct Restaura {
        bool &destino;
        bool valor;
        ~Restaura() { destino = valor; }
    } restaura{notacionCientifica_, notacion};

    const QString texto = AsignarVariables(expresion, QString(kComilla));
    QString token;
    if (MultInStr(texto, kSinNotacion, token) > 0)
        notacionCientifica_ = false; // "0011" and "FF" must come back as they are
    QString resultado = Calcular(ParseFormula(texto));
    if (notacionCientifica_) {
        try {
            resultado = CStr(CDbl(resultado));
        } catch (const RuntimeError &) {
        }
    }
    return resultado;
}

QString formulaBench(const QString &text)
{
    cFormulas formulas;
    return formulas.Formula(text);
}

} // namespace zafro
