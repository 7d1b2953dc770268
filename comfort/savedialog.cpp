#include "comfort/savedialog.h"

#include "comfort/letters.h"
#include "comfort/question.h"
#include "engine/state/felder.h"
#include "platform/platform.h"

namespace zentrox {

namespace {

// Pixels at the right of the plain dialog, and what of them is not the picture's or the words'.
int moreWidth(const Platform& platform) {
    return platform.boxPercent == 100 ? 176 : 236;
}
constexpr int besideWords = 16;

Rect placeOfWords(const Platform& platform, Size client) {
    const int top = 8 + thumbnailSize.h;
    const int width = moreWidth(platform) - besideWords;
    return {client.w - width - 10, top, width, client.h - top - 8};
}

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
    : Dialog(platform, zustand, moreWidth(platform)),
      saving_(saving),
      picture_(&root(), {{placeOfWords(platform, client()).x, 4}, thumbnailSize}),
      words_(&root(), placeOfWords(platform, client())) {}

void SaveDialog::Ausgesucht(const Text& path) {
    const auto sidecar = readSidecar(platform().files, path);
    picture_.setPicture(sidecar ? sidecar->picture : Bitmap());
    words_.setText(sidecar ? describe(*sidecar) : Text());
    words_.setFont(fittingFont(platform(), words_.text(), words_.area().size()));
}

bool SaveDialog::Annehmen(const Text& path) {
    if (!saving_ || !platform().files.exists(path)) return true;
    return ask(platform(), Dateiname(path) + Text(" gibt es schon. Soll der alte Spielstand ersetzt werden?"_t),
               "Ersetzen", "Abbrechen");
}

}  // namespace zentrox
