#include "maths/pi.h"

#include "runtime/numtext.h"
#include "runtime/rounding.h"
#include "runtime/runtime_error.h"

#include <QMetaObject>

#include <algorithm>
#include <exception>
#include <limits>
#include <new>

namespace zafro {

namespace {

constexpr quint32 kBase = 10000;
// Up to this divisor a remainder times the base plus a group stays within 31 bits.
constexpr quint32 kDivisorSeguro = 214748;
constexpr qint32 kMaxCifras = 1000000;
// Terms run in one pass over the groups while the end is far.
constexpr int kTerminosPorPasada = 16;

// Division by a fixed odd divisor through a reciprocal: for every dividend below 2^31
// the quotient is the product by m shifted right, with m below 2^32, so one 64-bit
// multiplication does the work of a hardware division.
struct Divisor {
    quint64 m = 1;
    int desplazamiento = 31;
    quint32 d = 1;
    Divisor() = default;
    explicit Divisor(quint32 divisor) : d(divisor)
    {
        int bits = 0;
        while ((quint64(1) << bits) < divisor)
            ++bits;
        desplazamiento = 31 + bits;
        m = ((quint64(1) << desplazamiento) + divisor - 1) / divisor;
    }
    quint32 cociente(quint32 n) const { return quint32((n * m) >> desplazamiento); }
};

// The state of K consecutive terms travelling down the groups together.
template <int K> struct Cadenas {
    quint32 restoTermino[K] = {}; // of the term's division by 25 or 57121
    quint32 restoSuma[K] = {};    // of the term's division by its own divisor
    Divisor divisor[K];
    explicit Cadenas(quint32 primerDivisor)
    {
        for (int j = 0; j < K; ++j)
            divisor[j] = Divisor(primerDivisor + 2 * quint32(j));
    }
};

// Remainder times the base plus a quotient: the product the 32-bit arithmetic may
// not hold once the divisors pass kDivisorSeguro.
template <bool Comprobado> quint32 dividendo(quint32 resto, quint32 q)
{
    if constexpr (Comprobado) {
        const quint64 y = quint64(resto) * kBase + q;
        if (y > quint64(std::numeric_limits<qint32>::max()))
            throw RuntimeError::overflow();
        return quint32(y);
    } else {
        return resto * kBase + q;
    }
}

// One term's share at one group: the term's quotient divided by its divisor, signed
// by its place in the series (even terms take the series' sign).
template <int K, bool Comprobado> qint32 parte(Cadenas<K> &c, int j, quint32 q)
{
    const quint32 y = dividendo<Comprobado>(c.restoSuma[j], q);
    const quint32 s = c.divisor[j].cociente(y);
    c.restoSuma[j] = y - s * c.divisor[j].d;
    return j % 2 == 0 ? qint32(s) : -qint32(s);
}

// Groups where every term of the pass is computed.
template <int K, quint32 DT, bool Comprobado>
void pasadaLlena(Cadenas<K> &c, qint32 *termino, qint32 *suma, int signo, int desde, int hasta)
{
    for (int i = desde; i <= hasta; ++i) {
        quint32 t = quint32(termino[i]);
        qint32 acumulado = 0;
        for (int j = 0; j < K; ++j) {
            const quint32 x = c.restoTermino[j] * kBase + t;
            t = x / DT;
            c.restoTermino[j] = x - t * DT;
            acumulado += parte<K, Comprobado>(c, j, t);
        }
        termino[i] = qint32(t);
        suma[i] += signo * acumulado;
    }
}

// Groups past every term's last one: only the remainders of the divisions flow on.
template <int K, bool Comprobado>
void pasadaCola(Cadenas<K> &c, qint32 *suma, int signo, int desde, int hasta)
{
    for (int i = desde; i <= hasta; ++i) {
        qint32 acumulado = 0;
        for (int j = 0; j < K; ++j)
            acumulado += parte<K, Comprobado>(c, j, 0);
        suma[i] += signo * acumulado;
    }
}

// The groups around the end of the terms of the series in 1/5, where each term has
// its own last group (fin + 1) and decides the next term's.
template <int K, bool Comprobado>
void pasadaBorde(Cadenas<K> &c, int *fin, qint32 *termino, qint32 *suma, int grupos, int desde,
                 int hasta)
{
    for (int i = desde; i <= hasta; ++i) {
        quint32 t = quint32(termino[i]);
        qint32 acumulado = 0;
        for (int j = 0; j < K; ++j) {
            quint32 q = 0;
            if (i <= fin[j] + 1) {
                const quint32 x = c.restoTermino[j] * kBase + t;
                q = x / 25;
                c.restoTermino[j] = x - q * 25;
                if (i == fin[j] + 1)
                    fin[j + 1] = fin[j] + (q > 0 && fin[j] < grupos ? 1 : 0);
            }
            t = q;
            if (i <= std::max(fin[j] + 1, grupos))
                acumulado += parte<K, Comprobado>(c, j, q);
        }
        if (i <= fin[K - 1] + 1)
            termino[i] = qint32(t);
        suma[i] -= acumulado;
    }
}

// K terms of the series in 1/5 from the divisor given, subtraction first. Returns the
// new Fin.
template <int K, bool Comprobado>
int rondasCinco(qint32 *termino, qint32 *suma, int grupos, int inicio, int fin0, quint32 divisor)
{
    Cadenas<K> c(divisor);
    // A term's Fin is known once the term before has reached its own last group;
    // until then the term's groups lie below it anyway.
    int fin[K + 1];
    std::fill(fin, fin + K + 1, std::numeric_limits<int>::max() / 2);
    fin[0] = fin0;
    pasadaLlena<K, 25, Comprobado>(c, termino, suma, -1, inicio, fin0);
    const int finBorde = std::min(fin0 + K, grupos + 1);
    pasadaBorde<K, Comprobado>(c, fin, termino, suma, grupos, fin0 + 1, finBorde);
    pasadaCola<K, Comprobado>(c, suma, -1, finBorde + 1, grupos);
    return fin[K];
}

template <int K> bool necesitaComprobar(quint32 divisor)
{
    return divisor + 2 * (K - 1) > kDivisorSeguro;
}

int saltarCeros(const qint32 *termino, int inicio, int ultimo)
{
    while (inicio <= ultimo && termino[inicio] == 0)
        ++inicio;
    return inicio;
}

class Progreso {
public:
    explicit Progreso(const std::function<void(int)> &aviso) : aviso_(aviso) {}
    // The work of a round shrinks with the groups still ahead of Inicio. The series in
    // 1/5 is the longer one and tells the progress of both; 100 waits for the sum.
    void avisar(int inicio, int grupos)
    {
        if (!aviso_)
            return;
        const double resto = 1.0 - double(std::min(inicio, grupos)) / grupos;
        const int valor = int(96 * (1.0 - resto * resto));
        if (valor != ultimo_)
            aviso_(ultimo_ = valor);
    }

private:
    const std::function<void(int)> &aviso_;
    int ultimo_ = -1;
};

} // namespace

PiTamano tamanoPi(double digitos)
{
    const double cifras = Int(digitos) + 8;
    if (cifras > std::numeric_limits<qint32>::max() || cifras - 8 > kMaxCifras)
        throw RuntimeError::overflow();
    PiTamano t;
    t.cifras = qint32(cifras);
    t.grupos = t.cifras / 4 + 1;
    return t;
}

namespace {

// arctan(1/5) times 16 into suma: 3.2, then two powers of 1/5 per round. False when
// stopped.
bool serieCinco(qint32 grupos, qint32 *s, const std::function<bool()> &parado,
                const std::function<void(int)> &progreso)
{
    std::vector<qint32> terminoV(size_t(grupos) + 2, 0);
    qint32 *termino = terminoV.data();
    Progreso aviso(progreso);
    int inicio = 1;
    int fin = 2;
    termino[1] = 3;
    termino[2] = 2000;
    s[1] += 3;
    s[2] += 2000;
    quint32 divisor = 3;
    while (inicio < grupos) {
        if (parado())
            return false;
        aviso.avisar(inicio, grupos);
        // Inicio moves at most one group a term: a whole pass stays short of the end.
        const bool lejos = inicio + kTerminosPorPasada < grupos && inicio <= fin;
        if (lejos && !necesitaComprobar<kTerminosPorPasada>(divisor))
            fin = rondasCinco<kTerminosPorPasada, false>(termino, s, grupos, inicio, fin, divisor);
        else if (lejos)
            fin = rondasCinco<kTerminosPorPasada, true>(termino, s, grupos, inicio, fin, divisor);
        else if (!necesitaComprobar<2>(divisor))
            fin = rondasCinco<2, false>(termino, s, grupos, inicio, fin, divisor);
        else
            fin = rondasCinco<2, true>(termino, s, grupos, inicio, fin, divisor);
        divisor += lejos ? 2 * kTerminosPorPasada : 4;
        inicio = saltarCeros(termino, inicio, grupos + 1);
    }
    return true;
}

// arctan(1/239) times 4, subtracted from suma: 4/239 first, then two powers of 1/239
// a round.
bool serieDoscientos(qint32 grupos, qint32 *s, const std::function<bool()> &parado)
{
    std::vector<qint32> terminoV(size_t(grupos) + 2, 0);
    qint32 *termino = terminoV.data();
    quint32 resto = 4;
    for (int i = 2; i <= grupos; ++i) {
        const quint32 x = resto * kBase;
        termino[i] = qint32(x / 239);
        resto = x % 239;
        s[i] -= termino[i];
    }
    int inicio = 2;
    quint32 divisor = 3;
    constexpr int kRondas = kTerminosPorPasada / 2;
    while (inicio < grupos) {
        if (parado())
            return false;
        // Inicio moves at most two groups a term here.
        const bool lejos = inicio + 4 * kRondas + 2 < grupos;
        if (lejos) {
            Cadenas<kTerminosPorPasada> c(divisor);
            if (necesitaComprobar<kTerminosPorPasada>(divisor))
                pasadaLlena<kTerminosPorPasada, 57121, true>(c, termino, s, 1, inicio, grupos);
            else
                pasadaLlena<kTerminosPorPasada, 57121, false>(c, termino, s, 1, inicio, grupos);
            divisor += 4 * kRondas;
        } else {
            Cadenas<2> c(divisor);
            pasadaLlena<2, 57121, true>(c, termino, s, 1, inicio, grupos);
            divisor += 4;
        }
        inicio = saltarCeros(termino, inicio, grupos);
    }
    return true;
}

} // namespace

bool calcularSumaPi(qint32 grupos, std::vector<qint32> &suma, const std::atomic<bool> *parar,
                    const std::function<void(int)> &progreso)
{
    // The two series share nothing but the final sum, so the second runs beside the
    // first on a thread of its own and adds its groups at the end.
    suma.assign(size_t(grupos) + 2, 0);
    std::vector<qint32> sumaDoscientos(size_t(grupos) + 2, 0);
    std::atomic<bool> abandonar{false};
    const std::function<bool()> parado = [&] {
        return abandonar.load(std::memory_order_relaxed) ||
               (parar && parar->load(std::memory_order_relaxed));
    };
    std::exception_ptr falloDoscientos;
    bool completaDoscientos = false;
    std::thread doscientos([&] {
        try {
            completaDoscientos = serieDoscientos(grupos, sumaDoscientos.data(), parado);
        } catch (...) {
            falloDoscientos = std::current_exception();
        }
    });
    bool completa = false;
    try {
        completa = serieCinco(grupos, suma.data(), parado, progreso);
    } catch (...) {
        abandonar = true;
        doscientos.join();
        throw;
    }
    if (!completa)
        abandonar = true;
    doscientos.join();
    if (falloDoscientos)
        std::rethrow_exception(falloDoscientos);
    if (!completa || !completaDoscientos)
        return false;

    qint32 *s = suma.data();
    for (int i = 1; i <= grupos + 1; ++i)
        s[i] += sumaDoscientos[size_t(i)];
    // Carry pass: every group into 0 to 9999.
    for (int i = grupos; i >= 1; --i) {
        const qint32 v = s[i];
        if (v >= 0 && v <= 9999)
            continue;
        // kept: a negative multiple of 10000 borrows one too many and stays at 10000.
        const qint32 c = v >= 10000 ? v / 10000 : v / 10000 - 1;
        if (i == 1)
            throw RuntimeError::subscriptOutOfRange();
        s[i] -= c * 10000;
        s[i - 1] += c;
    }
    if (progreso)
        progreso(100);
    return true;
}

QString imprimirPi(std::vector<qint32> suma, qint32 grupos)
{
    // kept: the rounding adds to one group and carries no further.
    if (suma[size_t(grupos) - 1] >= 5000)
        suma[size_t(grupos) - 2] += 1;
    static const QString kMascaras[3] = {QStringLiteral("000\\ 0"), QStringLiteral("00\\ 00"),
                                         QStringLiteral("0\\ 000\\ ")};
    const qint32 m = grupos / 3;
    QString texto = QStringLiteral(" PI = 3, \n ");
    texto.reserve(texto.size() + 17 * m);
    for (qint32 i = 1; i <= m - 1; ++i) {
        for (int k = 0; k < 3; ++k)
            texto += Format(suma[size_t(3 * (i - 1) + 2 + k)], kMascaras[k]);
        if (i % 5 == 0)
            texto += QStringLiteral("\n ");
    }
    texto += Format(suma[size_t(3 * (m - 1) + 2)], kMascaras[0]) + QStringLiteral("\n\n");
    return texto;
}

QString tiempoPi(float inicio, float fin)
{
    const float tiempo = fin - inicio;
    return tiempo <= 0 ? QStringLiteral("0,00002") : CStr(tiempo);
}

CalculoPi::CalculoPi(QObject *parent) : QObject(parent) {}

CalculoPi::~CalculoPi()
{
    parar();
}

void CalculoPi::iniciar(qint32 grupos)
{
    parar();
    parar_ = false;
    enCurso_ = true;
    hilo_ = std::thread(&CalculoPi::trabajar, this, grupos, ++ronda_);
}

void CalculoPi::parar()
{
    parar_ = true;
    if (hilo_.joinable())
        hilo_.join();
    enCurso_ = false;
    ++ronda_;
}

void CalculoPi::trabajar(qint32 grupos, int ronda)
{
    // Everything that leaves this thread goes through the owner's event queue, and is
    // dropped there if the run is no longer the current one.
    const auto enviar = [this, ronda](std::function<void()> paso) {
        QMetaObject::invokeMethod(
            this,
            [this, ronda, paso = std::move(paso)] {
                if (ronda == ronda_ && enCurso_)
                    paso();
            },
            Qt::QueuedConnection);
    };
    const auto terminar = [this] {
        if (hilo_.joinable())
            hilo_.join();
        enCurso_ = false;
    };
    try {
        std::vector<qint32> suma;
        const auto avance = [&](int p) { enviar([this, p] { Q_EMIT progreso(p); }); };
        if (!calcularSumaPi(grupos, suma, &parar_, avance))
            return;
        const QString texto = imprimirPi(std::move(suma), grupos);
        enviar([this, texto, terminar] {
            terminar();
            Q_EMIT terminado(texto);
        });
    } catch (const RuntimeError &error) {
        enviar([this, error, terminar] {
            terminar();
            Q_EMIT fallado(error);
        });
    } catch (const std::bad_alloc &) {
        enviar([this, terminar] {
            terminar();
            Q_EMIT fallado(RuntimeError(7, QStringLiteral("Memoria insuficiente")));
        });
    }
}

} // namespace zafro
