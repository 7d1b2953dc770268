#include "comfort/loading.h"

#include "comfort/question.h"
#include "engine/interpreter/sprung.h"
#include "engine/state/felder.h"
#include "platform/values/error.h"
#include "saves/laden.h"

namespace zentrox {

bool loadWithout(Platform& platform, const std::vector<Text>& items) {
    return ask(platform, FehlendesText(items), "Trotzdem laden", "Abbrechen");
}

void jumpInto(Platform& platform, Zustand& zustand, Moment& moment, const Text& path) {
    Ladung loaded;
    try {
        loaded = SpielstandPrüfen(platform.files, zustand, path);
    } catch (const DataError& error) {
        return showMessageBox(platform, {"Zentrox", LadefehlerText(path, error), MessageBox::Icon::critical});
    }
    if (!loaded.Fehlendes.empty() && !loadWithout(platform, loaded.Fehlendes)) return;
    const auto sidecar = readSidecar(platform.files, path);
    throw Sprung{[&platform, &zustand, &moment, loaded, lines = sidecar ? sidecar->lines : std::vector<Text>()] {
        moment.begin(loaded.Bytes, lines);
        SpielEinsetzen(platform.files, zustand, *moment.room(), loaded);
    }};
}

}  // namespace zentrox
