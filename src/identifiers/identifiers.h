#pragma once

// The identifier tools: the NIF letter, the ISBN check character, the credit card
// rule with its generator, and the mobile operator of a prefix.
//
// Each tool has its logic here in zafro_core (nif, isbn, visas, moviles) and its
// window in zafro_ui (*_window). The logic reads the boxes' texts with the lenient
// Val, so no input is ever refused; the windows only move texts in and out. The
// random numbers come from the Random service, seeded before each draw.

#include <QtGlobal>

namespace zafro {

class Random;

// A digit as the tools draw it: the random number times ten in single precision,
// rounded half to even, so 0 and 10 come up half as often as the others. The
// callers decide what a 10 becomes.
int digitoAlAzar(Random &random);

} // namespace zafro
