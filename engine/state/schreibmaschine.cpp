#include "engine/state/schreibmaschine.h"

#include <array>

#include "engine/state/farbe.h"

namespace zentrox {

namespace {

constexpr int Rand = 2;  // pixels left of and above the text
constexpr int Zeichenbreite = 8;
constexpr int Zeilenhöhe = 14;
constexpr std::size_t ErstesZeichen = 3;
constexpr std::size_t Pause = 25;  // steps behind a page
// The colours of a letter, the newest first.
constexpr std::array Stufen{8, 7, 15};

}  // namespace

void Schreibmaschine::tippen(Surface& fläche, TextView seite) {
    for (std::size_t alter = 0; alter < Stufen.size(); ++alter) {
        const TextView zeichen = seite.substr(stelle_ - 1 - alter, 1);
        fläche.printAt({x_ - Zeichenbreite * static_cast<int>(alter), y_}, zeichen, Farbe16(Stufen[alter]));
    }
    x_ += Zeichenbreite;
}

Schreibmaschine::Ereignis Schreibmaschine::Schritt(Surface& fläche, TextView seite) {
    Ereignis ereignis = Ereignis::nichts;
    if (stelle_ == 0) {
        x_ = y_ = Rand;
        fläche.clear();
        stelle_ = ErstesZeichen;
    }
    if (stelle_ <= seite.size()) {
        const char zeichen = seite[stelle_ - 1];
        if (zeichen == '#') {
            stelle_ += 2;
            ereignis = Ereignis::marke;
        } else if (zeichen == '|') {
            x_ = Rand;
            y_ += Zeilenhöhe;
        } else {
            tippen(fläche, seite);
        }
    }
    ++stelle_;
    if (stelle_ <= seite.size() + Pause) return ereignis;
    stelle_ = 0;
    return Ereignis::seitenende;
}

}  // namespace zentrox
