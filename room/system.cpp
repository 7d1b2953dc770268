// What scripts and keys reach beyond the room: saved games and the closing credits.
#include "room/abspann.h"
#include "room/form1.h"
#include "saves/saves.h"

namespace zentrox {

bool Form1::SpielLaden() {
    return zentrox::SpielLaden(platform_, z_, *this);
}

void Form1::SpielSpeichern() {
    zentrox::SpielSpeichern(platform_, z_, *this);
}

void Form1::Abspann() {
    AbspannZeigen(platform_, z_, medien_, Picture1, Picture5, RM);
}

}  // namespace zentrox
