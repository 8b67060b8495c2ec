#pragma once

// Parejas: sixteen face-down cards hide eight pairs of fruit pictures; the player
// turns two at a time. The shuffle and the wait of its window.

#include <array>
#include <vector>

namespace zafro {

inline constexpr int kCartas = 16;

// Fills lista with 1 to n, counted from index 1, and shuffles it with one draw of
// the generator per step from n down to 2. Index 0 is left at 0.
void Barajar(std::vector<short> &lista, int n);

// The picture of each card, 0 to 7 at indices 0 to 15, every picture twice.
std::array<short, kCartas> repartirCartas();

// Holds the thread until the time of day has moved on by segundos. It compares
// times of day, processes no events and never gives up.
void Esperar(float segundos);

} // namespace zafro
