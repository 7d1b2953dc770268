#include "engine/language/directories.h"

namespace zentrox {

void PfadeSetzen(Zustand& z, TextView wurzel) {
    for (const Datenverzeichnis& v : Datenverzeichnisse) (((z.*v.pfad) = wurzel) += v.name) += '\\';
}

}  // namespace zentrox
