// The two black frames of a conversation, and the portraits in them.
#include "engine/state/warten.h"
#include "platform/codec/pictures.h"
#include "room/form1.h"

namespace zentrox {

namespace {

struct Portraitrahmen {
    Point ecke;
    int mitte;  // y of the line from which it opens
};

constexpr Portraitrahmen linker{{30, 20}, 80};
constexpr Portraitrahmen rechter{{520, 340}, 400};
constexpr Size rahmengröße{90, 120};
constexpr int schritt = 3;
constexpr int halb = 60;
constexpr int takt = 8;

}  // namespace

void Form1::RahmenAuf() {
    for (int i = schritt; i <= halb; i += schritt) {
        for (const auto& [ecke, mitte] : {linker, rechter}) {
            const int rechts = ecke.x + rahmengröße.w;
            Picture1.box({ecke.x, mitte - i}, {rechts, mitte + schritt - i}, black);
            Picture1.box({ecke.x, mitte + i}, {rechts, mitte - schritt + i}, black);
        }
        WarteFrame(z_, platform_, takt);
    }
    sichern();
}

void Form1::RahmenZu() {
    textband_.reset();
    Picture1.stretch(Picture2.image(), Picture2.image().bounds(), Picture1.image().bounds());
    sichern();
}

void Form1::Portrait(bool links, TextView Bild) {
    Picture5.takePicture(loadPicture(platform_.files, Bild));
    const Portraitrahmen& rahmen = links ? linker : rechter;
    Picture1.stretch(Picture5.image(), Picture5.image().bounds(), {rahmen.ecke, rahmengröße});
}

// Over all that stands on the picture, but for a text that a tick's run shows meanwhile. What such a run draws goes
// to the stored image, as ever.
void Form1::FilmBild() {
    filmLäuft_ = true;
    const Bitmap* const bild = medien_.VideoBild();
    if (bild == nullptr) return;
    const bool vorher = Picture1.autoRedraw();
    Picture1.setAutoRedraw(false);
    Picture1.stretch(*bild, bild->bounds(), Picture1.image().bounds());
    if (textband_) Picture1.copy(Picture1.image(), *textband_, textband_->at());
    Picture1.setAutoRedraw(vorher);
}

void Form1::FilmEnde() {
    filmLäuft_ = false;
    Picture1.refresh();
}

}  // namespace zentrox
