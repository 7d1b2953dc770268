#include "engine/state/textzeilen.h"

#include <algorithm>

namespace zentrox {

namespace {

constexpr int weiß = 15;

// Cuts the first line off the front of `rest`; `fertig` is set with the last one.
TextView nächsteZeile(TextView& rest, bool& fertig) {
    const std::size_t ende = rest.find_first_of("#\r\n");
    const TextView zeile = rest.substr(0, ende);
    fertig = ende == TextView::npos;
    if (fertig) return zeile;
    // The sign "#" stands for a carriage return.
    const bool paar = rest[ende] != '\n' && ende + 1 < rest.size() && rest[ende + 1] == '\n';
    rest.remove_prefix(ende + (paar ? 2 : 1));
    return zeile;
}

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

std::vector<Textzeile> TextzeilenVon(TextView text) {
    std::vector<Textzeile> zeilen;
    for (bool fertig = false; !fertig;) {
        Textzeile zeile;
        zeile.Inhalt = nächsteZeile(text, fertig);
        zeile.Farbe = farbeDerZeile(zeile.Inhalt);
        zeilen.push_back(zeile);
    }
    return zeilen;
}

}  // namespace zentrox
