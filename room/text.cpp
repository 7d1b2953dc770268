// The band across the picture in which all of the story's texts stand.
#include <algorithm>
#include <cmath>

#include "engine/state/farbe.h"
#include "engine/state/felder.h"
#include "engine/state/warten.h"
#include "room/form1.h"

namespace zentrox {

namespace {

constexpr double winkelschritt = 0.1;
constexpr int takt = 16;
constexpr int mehrHöhe = 2;
constexpr int weiß = 15;

Text mitZeilenenden(TextView text) {
    Text out(text);
    std::replace(out.begin(), out.end(), '#', '\r');
    return out;
}

// Cuts the first line off the front of `rest`; false when there is none left.
bool nächsteZeile(TextView& rest, TextView& zeile, bool& fertig) {
    if (fertig) return false;
    const std::size_t ende = rest.find_first_of("\r\n");
    zeile = rest.substr(0, ende);
    fertig = ende == TextView::npos;
    if (fertig) return true;
    const bool paar = rest[ende] == '\r' && ende + 1 < rest.size() && rest[ende + 1] == '\n';
    rest.remove_prefix(ende + (paar ? 2 : 1));
    return true;
}

// Takes the colour mark off a line; a line without one is white, and so is one whose mark is no hexadecimal digit.
int farbeDerZeile(TextView& zeile) {
    if (zeile.empty() || zeile.front() != '$') return weiß;
    int n = weiß;
    if (zeile.size() > 1) {
        n = static_cast<unsigned char>(upper(zeile[1])) - '0';
        if (n > 9) n -= 7;
    }
    zeile.remove_prefix(std::min<std::size_t>(2, zeile.size()));
    return n >= 0 && n <= weiß ? n : weiß;
}

}  // namespace

void Form1::ZeigText(TextView argument) {
    const Text text = mitZeilenenden(argument);
    const int W = Picture1.width();
    const float M = static_cast<float>(Picture1.height()) / 2;
    const double A = Picture1.textHeight(text) / 2.0 + mehrHöhe;
    AuswahlZeile = -1;
    for (double winkel = 0; winkel < z_.PI / 2; winkel += winkelschritt) {
        const double c = std::sin(winkel) * A;
        Picture1.box({0, Runden(M - c + 1)}, {W, Runden(M + c - 1)}, black);
        Picture1.line({0, Runden(M - c)}, {W, Runden(M - c)}, white);
        Picture1.line({0, Runden(M + c)}, {W, Runden(M + c)}, white);
        textband_ = Rect{0, Runden(M - c), W, Runden(M + c) - Runden(M - c) + 1};
        if (filmLäuft_) FilmBild();
        WarteFrame(z_, platform_, takt);
    }
    Picture1.foreground = white;
    Picture1.currentY = static_cast<int>(M) - Picture1.textHeight(Trim(text)) / 2 + 1;
    TextView rest = text;
    TextView zeile;
    for (bool fertig = false; nächsteZeile(rest, zeile, fertig);) {
        Picture1.foreground = Farbe16(farbeDerZeile(zeile));
        Picture1.currentX = W / 2 - Picture1.textWidth(Trim(zeile)) / 2;
        Picture1.print(zeile);
    }
}

void Form1::WegText(TextView argument) {
    const Text text = mitZeilenenden(argument);
    const int W = Picture1.width();
    const int H = Picture1.height();
    const float M = static_cast<float>(H) / 2;
    const double A = Picture1.textHeight(text) / 2.0 + mehrHöhe;
    textband_.reset();
    const auto zeileZurück = [this, W](int y) { Picture1.copy(Picture3.image(), {0, y, W, 1}, {0, y}); };
    Picture1.setAutoRedraw(false);
    for (double winkel = z_.PI / 2; winkel > 0; winkel -= winkelschritt) {
        const double c = std::sin(winkel) * A;
        Picture1.line({0, Runden(M - c)}, {W, Runden(M - c)}, white);
        zeileZurück(std::max(Runden(M - c - 1), 0));
        Picture1.line({0, Runden(M + c)}, {W, Runden(M + c)}, white);
        zeileZurück(std::min(Runden(M + c + 1), H - 1));
        WarteFrame(z_, platform_, takt);
    }
    const int mitte = static_cast<int>(M) - 2;
    Picture1.copy(Picture3.image(), {0, mitte, W, 4}, {0, mitte});
    Picture1.setAutoRedraw(true);
    Picture1.setPicture(Picture3.image());
}

}  // namespace zentrox
