#include "comfort/savedialog.h"

#include "comfort/question.h"
#include "engine/state/felder.h"
#include "platform/platform.h"

namespace zentrox {

namespace {

constexpr int more = 176;  // pixels at the right of the plain dialog
constexpr int left = 402;

}  // namespace

Text describe(const Sidecar& sidecar) {
    Text words = sidecar.when;
    if (!sidecar.room.empty()) words += "\r\nRaum: " + sidecar.room;
    if (sidecar.items.empty()) return words;
    words += "\r\nIn der Tasche: ";
    for (std::size_t i = 0; i < sidecar.items.size(); ++i) words += (i == 0 ? "" : ", ") + sidecar.items[i];
    return words;
}

SaveDialog::SaveDialog(Platform& platform, Zustand& zustand, bool saving)
    : Dialog(platform, zustand, more),
      saving_(saving),
      picture_(&root(), {{left, 4}, thumbnailSize}),
      words_(&root(), {left, 8 + thumbnailSize.h, thumbnailSize.w, 133}) {}

void SaveDialog::Ausgesucht(const Text& path) {
    const auto sidecar = readSidecar(platform().files, path);
    picture_.setPicture(sidecar ? sidecar->picture : Bitmap());
    words_.setText(sidecar ? describe(*sidecar) : Text());
}

bool SaveDialog::Annehmen(const Text& path) {
    if (!saving_ || !platform().files.exists(path)) return true;
    return ask(platform(), Dateiname(path) + Text(" gibt es schon. Soll der alte Spielstand ersetzt werden?"_t),
               "Ersetzen", "Abbrechen");
}

}  // namespace zentrox
