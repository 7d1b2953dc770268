#include "comfort/loading.h"

#include "comfort/question.h"
#include "engine/interpreter/sprung.h"
#include "engine/state/felder.h"
#include "platform/values/error.h"
#include "saves/laden.h"

namespace zentrox {

namespace {

constexpr TextView isMissing =
    "Diese Geschichte hat nicht mehr alles, was in dem Spielstand in der Tasche liegt. Es fehlt:"_t;

}  // namespace

bool loadWithout(Platform& platform, const std::vector<Text>& items) {
    Text text(isMissing);
    for (const Text& item : items) text += "\r\n    " + item;
    return ask(platform, text, "Trotzdem laden", "Abbrechen");
}

void jumpInto(Platform& platform, Zustand& zustand, Moment& moment, const Text& path) {
    Ladung loaded;
    try {
        loaded = SpielstandPrüfen(platform.files, zustand, path);
    } catch (const DataError& error) {
        const Text text = Dateiname(path) + Text(" kann nicht geladen werden.\r\n\r\n"_t) + error.message();
        return showMessageBox(platform, {"Zentrox", text, MessageBox::Icon::critical});
    }
    if (!loaded.Fehlendes.empty() && !loadWithout(platform, loaded.Fehlendes)) return;
    const auto sidecar = readSidecar(platform.files, path);
    throw Sprung{[&platform, &zustand, &moment, loaded, lines = sidecar ? sidecar->lines : std::vector<Text>()] {
        moment.begin(loaded.Bytes, lines);
        SpielEinsetzen(platform.files, zustand, *moment.room(), loaded);
    }};
}

}  // namespace zentrox
