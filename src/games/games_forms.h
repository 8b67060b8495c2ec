#pragma once

// The games: Tres en raya (tresenraya, with its help window tresenrayaayuda), Parejas
// (parejass) and La conquista de Jupiter (nabes, with its end windows nabesg and
// nabesp).
//
// Each game keeps its rules apart from its window: tresenraya.h holds the board
// state and the click, undo and line steps of Tres en raya, parejas.h the shuffle
// and the busy wait of Parejas. The windows show the state and keep what the
// games keep in their controls: the score captions, the player names, the cards'
// pictures. The games are not painted from the skin and have no animated title.

namespace zafro {

// Makes the games' windows known to the forms registry by their names.
void registerGamesForms();

} // namespace zafro
