#include "games/parejas.h"

#include "platform/services.h"
#include "runtime/runtime_error.h"

#include <cmath>
#include <utility>

namespace zafro {

void Barajar(std::vector<short> &lista, int n)
{
    lista.assign(std::size_t(n) + 1, 0);
    for (int i = 1; i <= n; ++i)
        lista[std::size_t(i)] = short(i);
    for (int i = n; i >= 2; --i) {
        // Single precision, as the generator gives it.
        const float escala = services().random->rnd() * float(i);
        const int j = int(std::floor(escala)) + 1;
        if (j < 1 || j > n)
            throw RuntimeError::subscriptOutOfRange();
        std::swap(lista[std::size_t(i)], lista[std::size_t(j)]);
    }
}

std::array<short, kCartas> repartirCartas()
{
    std::vector<short> lista;
    Barajar(lista, kCartas);
    std::array<short, kCartas> cartas{};
    for (int i = 1; i <= kCartas; ++i) {
        short valor = lista[std::size_t(i)];
        if (valor > kCartas / 2)
            valor = short(valor - kCartas / 2);
        cartas[std::size_t(i - 1)] = short(valor - 1);
    }
    return cartas;
}

void Esperar(float segundos)
{
    // kept: the time of day starts again at midnight, so a wait across it runs on.
    const float inicio = services().clock->timer();
    while (services().clock->timer() < inicio + segundos) {
    }
}

} // namespace zafro
