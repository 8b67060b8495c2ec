#pragma once

#include <QString>

#include <array>

namespace zafro {

// The first nine digits of an ISBN as the three fields hold them, one character
// each, empty until their field first changes.
class DigitosIsbn {
public:
    // Reads a field again after a change, by position and not by count: field 1
    // gives d1 and d2 (first, last), field 2 d3 to d5 (first, second, last), field
    // 3 d6 to d9 (first, second, third, last). A short field repeats its last
    // character and leaves a middle position empty.
    void leerCampo(int campo, const QString &texto);

    const QString &digito(int n) const { return d_.at(n - 1); } // n from 1 to 9

    // 1×d1 + 2×d2 + ... + 9×d9, a character that is no digit counting 0.
    qint32 sumaPonderada() const;

    // The tenth character: the sum modulo 11, with "X" for 10.
    QString caracterControl() const;

private:
    std::array<QString, 9> d_;
};

} // namespace zafro
