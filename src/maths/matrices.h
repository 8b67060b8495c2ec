#pragma once

// The dense matrix of doubles behind the matrix calculator.
//
// The window only moves numbers between its grid of cells and this class and shows
// what it returns; every numeric step lives here, on Eigen. Sizes are checked here
// before Eigen is called, because Eigen's own checks are assertions that a release
// build drops: a mismatch is always one of our exceptions, never a read out of bounds.
// Calculations return a new matrix and leave their operands as they were.

#include <Eigen/Core>

#include <QString>
#include <QtGlobal>

#include <stdexcept>

namespace zafro {

class Random;

class MatrizError : public std::runtime_error {
public:
    enum class Motivo {
        TamanosDistintos, // sum, difference, product of sizes that do not agree
        NoCuadrada,       // determinant or inverse of a matrix that is not square
        Vacia,            // inverse of a matrix without elements
        Singular,         // inverse of a square matrix of lower rank
        NoFinita,         // a result or an operand beyond the range of a double
        NormaNula,        // normalising the zero matrix
        OrdenNoValido,    // a negative or absurd order
        DecimalesNoValidos,
    };

    MatrizError(Motivo motivo, const char *what) : std::runtime_error(what), motivo_(motivo) {}
    Motivo motivo() const { return motivo_; }

private:
    Motivo motivo_;
};

// The one failure the calculator tells apart from the rest: the matrix has no inverse.
class MatrizSingular : public MatrizError {
public:
    MatrizSingular() : MatrizError(Motivo::Singular, "the matrix is singular") {}
};

class Matriz {
public:
    // Far beyond what the editor can make (6), and small enough to stay a toy.
    static constexpr qint32 kOrdenMaximo = 1000;
    // The to-text form stops where a double has no more digits to show.
    static constexpr qint16 kDecimalesMaximos = 15;

    Matriz() = default;
    Matriz(qint32 filas, qint32 columnas);
    explicit Matriz(Eigen::MatrixXd valores);

    // Zero-based. The editor can reach cells beyond the matrix: such a read gives 0
    // and such a write is dropped.
    double elemento(qint32 fila, qint32 columna) const;
    void ponerElemento(qint32 fila, qint32 columna, double valor);

    qint32 filas() const { return qint32(m_.rows()); }
    qint32 columnas() const { return qint32(m_.cols()); }

    // Keeps the elements that still fit and fills the new ones with 0.
    void ponerOrden(qint32 filas, qint32 columnas);

    // Every element uniform in [bajo, alto), drawn from the program's generator, so
    // that a seeded generator gives the same matrix again.
    void rellenarAleatorio(double bajo, double alto, Random &azar);

    // One line per row, each number with the given decimals and a point as decimal
    // mark, right-aligned in its column so that the columns line up in a fixed-width
    // font.
    QString aTexto(qint16 decimales) const;

    double determinante() const;
    Matriz inversa() const; // MatrizSingular when there is none
    Matriz producto(const Matriz &otra) const;
    Matriz diferencia(const Matriz &otra) const;
    Matriz suma(const Matriz &otra) const;
    // Scaled so that its Frobenius norm (the root of the sum of squares) is `norma`.
    Matriz normalizada(double norma) const;
    Matriz traspuesta() const;
    Matriz productoEscalar(double escalar) const;

    const Eigen::MatrixXd &valores() const { return m_; }

private:
    bool contiene(qint32 fila, qint32 columna) const;

    Eigen::MatrixXd m_;
};

} // namespace zafro
