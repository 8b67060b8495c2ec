#include "maths/matrices.h"

#include "platform/random.h"

#include <Eigen/LU>

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace zafro {

namespace {

// A pivot of the full-pivoting LU counts as zero below this share of the largest one.
// A few hundred rounding errors of an element: loose enough that a matrix singular
// on paper but typed with decimals that binary cannot hold (0.1, 0.3...) is still
// found singular, and tight enough for any honest matrix of order 6.
double umbralSingular(Eigen::Index orden)
{
    return 64.0 * double(orden) * std::numeric_limits<double>::epsilon();
}

void comprobarOrden(qint32 filas, qint32 columnas)
{
    if (filas < 0 || columnas < 0 || filas > Matriz::kOrdenMaximo ||
        columnas > Matriz::kOrdenMaximo)
        throw MatrizError(MatrizError::Motivo::OrdenNoValido, "order out of range");
}

void comprobarMismoOrden(const Eigen::MatrixXd &a, const Eigen::MatrixXd &b)
{
    if (a.rows() != b.rows() || a.cols() != b.cols())
        throw MatrizError(MatrizError::Motivo::TamanosDistintos, "the sizes differ");
}

// Doubles overflow quietly to infinity; the calculator reports that as an operation
// that cannot be done rather than showing "inf".
Matriz finita(Eigen::MatrixXd resultado)
{
    if (!resultado.allFinite())
        throw MatrizError(MatrizError::Motivo::NoFinita, "the result is out of range");
    return Matriz(std::move(resultado));
}

QString numeroFijo(double x, int decimales)
{
    QString texto = QString::number(x, 'f', decimales);
    // A small negative number rounded to nothing would otherwise show as "-0.0".
    if (texto.startsWith(QLatin1Char('-')) &&
        std::all_of(texto.cbegin() + 1, texto.cend(),
                    [](QChar c) { return c == QLatin1Char('0') || c == QLatin1Char('.'); }))
        texto.remove(0, 1);
    return texto;
}

} // namespace

Matriz::Matriz(qint32 filas, qint32 columnas)
{
    comprobarOrden(filas, columnas);
    m_ = Eigen::MatrixXd::Zero(filas, columnas);
}

Matriz::Matriz(Eigen::MatrixXd valores) : m_(std::move(valores)) {}

bool Matriz::contiene(qint32 fila, qint32 columna) const
{
    return fila >= 0 && columna >= 0 && fila < m_.rows() && columna < m_.cols();
}

double Matriz::elemento(qint32 fila, qint32 columna) const
{
    return contiene(fila, columna) ? m_(fila, columna) : 0.0;
}

void Matriz::ponerElemento(qint32 fila, qint32 columna, double valor)
{
    if (contiene(fila, columna))
        m_(fila, columna) = valor;
}

void Matriz::ponerOrden(qint32 filas, qint32 columnas)
{
    comprobarOrden(filas, columnas);
    Eigen::MatrixXd nueva = Eigen::MatrixXd::Zero(filas, columnas);
    const Eigen::Index f = std::min<Eigen::Index>(filas, m_.rows());
    const Eigen::Index c = std::min<Eigen::Index>(columnas, m_.cols());
    nueva.topLeftCorner(f, c) = m_.topLeftCorner(f, c);
    m_ = std::move(nueva);
}

void Matriz::rellenarAleatorio(double bajo, double alto, Random &azar)
{
    // Row by row, so that the order of the draws is the order in which one reads.
    for (Eigen::Index i = 0; i < m_.rows(); ++i)
        for (Eigen::Index j = 0; j < m_.cols(); ++j)
            m_(i, j) = bajo + (alto - bajo) * double(azar.rnd());
}

QString Matriz::aTexto(qint16 decimales) const
{
    if (decimales < 0 || decimales > kDecimalesMaximos)
        throw MatrizError(MatrizError::Motivo::DecimalesNoValidos, "decimals out of range");
    std::vector<QStringList> celdas(std::size_t(m_.rows()));
    std::vector<qsizetype> ancho(std::size_t(m_.cols()), 0);
    for (Eigen::Index i = 0; i < m_.rows(); ++i)
        for (Eigen::Index j = 0; j < m_.cols(); ++j) {
            celdas[std::size_t(i)] << numeroFijo(m_(i, j), decimales);
            ancho[std::size_t(j)] =
                std::max(ancho[std::size_t(j)], celdas[std::size_t(i)].back().size());
        }
    QStringList lineas;
    for (const QStringList &fila : celdas) {
        QStringList alineada;
        for (qsizetype j = 0; j < fila.size(); ++j)
            alineada << fila[j].rightJustified(ancho[std::size_t(j)]);
        lineas << alineada.join(QStringLiteral("  "));
    }
    return lineas.join(QLatin1Char('\n'));
}

double Matriz::determinante() const
{
    if (m_.rows() != m_.cols())
        throw MatrizError(MatrizError::Motivo::NoCuadrada, "the matrix is not square");
    const double d = m_.rows() == 0 ? 1.0 : m_.fullPivLu().determinant();
    if (!std::isfinite(d))
        throw MatrizError(MatrizError::Motivo::NoFinita, "the determinant is out of range");
    return d;
}

Matriz Matriz::inversa() const
{
    if (m_.rows() != m_.cols())
        throw MatrizError(MatrizError::Motivo::NoCuadrada, "the matrix is not square");
    if (m_.rows() == 0)
        throw MatrizError(MatrizError::Motivo::Vacia, "the matrix is empty");
    if (!m_.allFinite())
        throw MatrizError(MatrizError::Motivo::NoFinita, "the matrix is out of range");
    Eigen::FullPivLU<Eigen::MatrixXd> lu(m_);
    lu.setThreshold(umbralSingular(m_.rows()));
    if (!lu.isInvertible())
        throw MatrizSingular();
    return finita(lu.inverse());
}

Matriz Matriz::producto(const Matriz &otra) const
{
    if (m_.cols() != otra.m_.rows())
        throw MatrizError(MatrizError::Motivo::TamanosDistintos, "the sizes do not agree");
    return finita(m_ * otra.m_);
}

Matriz Matriz::diferencia(const Matriz &otra) const
{
    comprobarMismoOrden(m_, otra.m_);
    return finita(m_ - otra.m_);
}

Matriz Matriz::suma(const Matriz &otra) const
{
    comprobarMismoOrden(m_, otra.m_);
    return finita(m_ + otra.m_);
}

Matriz Matriz::normalizada(double norma) const
{
    // stableNorm, because the plain sum of squares overflows long before the norm does.
    const double actual = m_.size() == 0 ? 0.0 : m_.stableNorm();
    if (actual == 0.0)
        throw MatrizError(MatrizError::Motivo::NormaNula, "the zero matrix has no direction");
    if (!std::isfinite(actual) || !std::isfinite(norma))
        throw MatrizError(MatrizError::Motivo::NoFinita, "the norm is out of range");
    return finita((m_ / actual) * norma);
}

Matriz Matriz::traspuesta() const
{
    return Matriz(Eigen::MatrixXd(m_.transpose()));
}

Matriz Matriz::productoEscalar(double escalar) const
{
    return finita(m_ * escalar);
}

} // namespace zafro
