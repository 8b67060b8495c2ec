#pragma once

// Signals and timing: Morse code and the stopwatch.
//
// morsemod translates between text and Morse ("." and "-", each letter closed by
// "/", a blank a lone "/"); TonePlayer sounds the code one tone at a time away
// from the GUI thread; the morse window drives it from its playback timer. The
// stopwatch keeps its measure in Cronometro and reads every tick from the clock.

#include <QString>

#include <optional>

namespace zafro {

// The text lowered to small letters, each character replaced by its code (a blank
// by "/", a character without a code copied as it stands), and one more "/" at the
// end.
QString TextoAMorse(const QString &text);

// The longest code first, from 8 characters down to 2; otherwise one character, a
// "/" read as a blank and anything else copied as it stands.
QString MorseATexto(const QString &code);

// The speed scroll's value s gives the playback timer 200000/s ms, a dot 200000/s,
// a dash 600000/s and a pause 500000/s, all truncated.
int intervaloMorse(int velocidad);

struct TonoMorse {
    int frecuencia;
    int milisegundos;
};
// The tone that a character of the code plays; none for a character that is not
// ".", "-" or "/". A "/" is a tone of frequency 0, which is silence.
std::optional<TonoMorse> tonoMorse(QChar c, int frecuencia, int velocidad);

} // namespace zafro
