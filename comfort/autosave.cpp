#include "comfort/autosave.h"

#include <system_error>

#include "saves/saves.h"

namespace zentrox {

void Autosave::Ruht() {
    if (entered_ && !moment_.barred()) write();
}

// Called on the way out, too: nothing may escape.
void Autosave::write() {
    if (!on_ || moment_.bytes().empty() || moment_.bytes() == written_) return;
    try {
        moment_.write(slots_.next());
        written_ = moment_.bytes();
        entered_ = false;
        complaint_.clear();
    } catch (const std::system_error& error) {
        const Text why = SchreibfehlerText(error.code().value());
        if (why == complaint_) return;
        complaint_ = why;
        failed_(Text("Von selbst speichern geht nicht: "_t) + why);
    }
}

}  // namespace zentrox
