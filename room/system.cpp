// What scripts and keys reach beyond the room: saved games and the closing credits.
#include "room/form1.h"
#include "saves/saves.h"

namespace zentrox {

bool Form1::SpielLaden() { return zentrox::SpielLaden(platform_, z_, *this); }

void Form1::SpielSpeichern() { zentrox::SpielSpeichern(platform_, z_, *this); }

void Form1::Abspann() {}

}  // namespace zentrox
