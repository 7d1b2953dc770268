#include "saves/spielstand.h"

#include <limits>

#include "engine/state/felder.h"

namespace zentrox {

namespace {

constexpr TextView Kennung = "eXTenCion-File v1.1";
constexpr TextView Zeilenende = "\r\n";

// All fields of a saved game in their order, for the writer and the reader alike.
template <class Zeilen, class Stand>
void alleFelder(Zeilen& zeilen, Stand& z) {
    constexpr std::int32_t keiner = -1;
    zeilen.text(z.RaumDatei);
    for (auto& name : z.Merker) zeilen.text(name);
    zeilen.zahl(z.InventarLetzter, keiner, InventarPlätze - 1);
    for (std::int32_t i = 0; i <= z.InventarLetzter; ++i) zeilen.text(z.Inventar[static_cast<std::size_t>(i)]);
    zeilen.zahl(z.BösePunkte, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
}

class Schreiber {
public:
    void text(const Text& zeile) { (bytes += zeile) += Zeilenende; }
    // A blank stands for the sign that a number from 0 up does not have, and one behind every number.
    void zahl(std::int32_t wert, std::int32_t /*kleinster*/, std::int32_t /*größter*/) {
        text((wert < 0 ? "" : " ") + std::to_string(wert) + " ");
    }

    Text bytes;
};

struct EndeDerDatei {};

class Leser {
public:
    explicit Leser(TextView bytes) : rest_(bytes) {}

    TextView zeile() {
        const std::size_t ende = rest_.find(Zeilenende);
        if (ende == TextView::npos) throw EndeDerDatei();
        const TextView zeile = rest_.substr(0, ende);
        rest_.remove_prefix(ende + Zeilenende.size());
        return zeile;
    }
    void text(Text& ziel) { ziel = zeile(); }
    void zahl(std::int32_t& ziel, std::int32_t kleinster, std::int32_t größter) {
        const double wert = Val(zeile());
        if (!(wert > kleinster - 0.5 && wert < größter + 0.5)) throw EndeDerDatei();
        ziel = Runden(wert);
    }

private:
    TextView rest_;
};

}  // namespace

Text SpielstandSchreiben(const Zustand& z) {
    Schreiber schreiber;
    schreiber.text(Text(Kennung));
    alleFelder(schreiber, z);
    return schreiber.bytes;
}

bool SpielstandLesen(TextView bytes, Zustand& z) {
    Leser leser(bytes);
    try {
        if (leser.zeile() != Kennung) return false;
        alleFelder(leser, z);
    } catch (const EndeDerDatei&) {
        return false;
    }
    return true;
}

}  // namespace zentrox
