#include "engine/language/opcodes.h"

#include "engine/language/games.h"
#include "engine/language/words.h"
#include "engine/state/felder.h"

namespace zentrox {

bool waits(const Opcode& opcode, TextView argument) {
    if (opcode.waits != Waits::argument) return opcode.waits == Waits::always;
    if (opcode.arg == Arg::fade) return blendrichtung(argument) != Blendrichtung::keine;
    return findSpiel(upper(Trim(Feld(argument, ",", 1)))) != nullptr;
}

}  // namespace zentrox
