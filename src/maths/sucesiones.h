#pragma once

// The n-th term and the sum of the first n terms of an arithmetic sequence, from the
// texts of the boxes A1=, n=, D= and An=. The geometric kind is announced by the
// window and never computed: both buttons always use the arithmetic formulas.

#include <QString>

#include <optional>

namespace zafro {

// The term An = a1 + (n - 1)·d, or nothing ("No hay datos") when a1, n or d reads 0.
// kept: a first term or a difference of 0 counts as missing data.
std::optional<QString> terminoAn(const QString &a1, const QString &n, const QString &d);

struct SumaSucesion {
    bool sinDatos = false; // neither a difference nor a last term
    QString an;            // a new An, or empty when it is left as it is
    QString sn;
    QString d; // the difference worked out from An, or empty when D= is kept
};

// With a difference, An and Sn = n·((An + a1)/2) from it (a1 and n may be 0). Without
// one, Sn = ((a1 + An)/2)·n from the An given, and the difference (An - a1)/(n - 1)
// goes back to D=; n = 1 then divides by zero.
SumaSucesion sumaNTerminos(const QString &a1, const QString &n, const QString &d,
                           const QString &an);

} // namespace zafro
