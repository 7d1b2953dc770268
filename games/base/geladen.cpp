#include "games/base/geladen.h"

#include "engine/language/games.h"
#include "platform/window/messagebox.h"

namespace zentrox {

void DateiMelden(Platform& platform, TextView spiel, const DataError& fehler) {
    const SpielArt* const art = findSpiel(spiel);
    const TextView titel = art == nullptr ? spiel : art->titel;
    showMessageBox(platform, {Text(titel), fehler.message(), MessageBox::Icon::critical});
}

}  // namespace zentrox
