#include "engine/language/words.h"

#include <algorithm>

#include "engine/state/felder.h"

namespace zentrox {

bool istSystemwort(TextView argument) {
    return std::find(systemwort::alle.begin(), systemwort::alle.end(), argument) != systemwort::alle.end();
}

Blendrichtung blendrichtung(TextView argument) {
    const double wert = Val(Feld(argument, ",", 1));
    return wert == 1 ? Blendrichtung::weiß : wert == 2 ? Blendrichtung::zurück : Blendrichtung::keine;
}

}  // namespace zentrox
