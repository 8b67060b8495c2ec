#pragma once

// The language table.
//
// 476 text slots filled whole by one of three loaders. Windows copy the slots
// they need at load time; nothing is looked up by key and nothing falls back.
// The texts live in a data file compiled into the binary; slot numbers are used
// through the named constants of language_slots.h.

#include "shell/language_slots.h"

#include <QString>

#include <functional>

namespace zafro {

inline constexpr int kLanguageSlots = 476;

void CargarEspanol();
void CargarIngles();
void CargarValenciano();

QString texto(int slot); // slot 1..476 of the loaded table; empty before any loader ran

// Empties every slot, as in a fresh process (tests).
void clearLanguageTable();

// Sees every assignment that a loader makes, in the order made (tests); an
// empty function removes it.
using LanguageAssignmentHook = std::function<void(int slot, const QString &text)>;
void setLanguageAssignmentHook(LanguageAssignmentHook hook);

} // namespace zafro
