#include "games/fight/kampf.h"

#include <algorithm>
#include <iterator>

#include "engine/state/felder.h"

namespace zentrox {

namespace {

constexpr double blockChance = 1.0 / 3;        // that Brokan blocks an attack
constexpr double unaufhaltsamChance = 0.25;    // that he attacks past every defence
constexpr double starkChance = 0.25;           // and then strongly
constexpr std::int32_t großerVorsprung = 750;  // above it Velmix is punished

constexpr std::int32_t zählsprung = 5;

constexpr double streuung = 100;
constexpr Schlag trankschlag{Kämpfer::Velmix, 1100, "ULTIMATE! "};
constexpr Schlag schlagVelmix{Kämpfer::Velmix, 480, ""};
constexpr Schlag feuerballschlag{Kämpfer::Brokan, 950, "AWESOME! "};
constexpr Schlag starkerSchlag{Kämpfer::Brokan, 300, "WOW! "};
constexpr Schlag schwacherSchlag{Kämpfer::Brokan, 10, "NICE! "};
constexpr Schlag schlagBrokan{Kämpfer::Brokan, 280, ""};

Schritt bild(TextView datei) {
    return {.art = Schritt::Art::bild, .text = Text(datei)};
}

Schritt klang(TextView datei) {
    return {.art = Schritt::Art::klang, .text = Text(datei)};
}

Schritt schrift(TextView text, Kämpfer wer) {
    return {.art = Schritt::Art::schrift, .text = Text(text), .wer = wer};
}

Schritt warten(std::int32_t ms) {
    return {.art = Schritt::Art::warten, .zahl = ms};
}

Schritt energie(Kämpfer wer) {
    return {.art = Schritt::Art::energie, .wer = wer};
}

// The pictures of an attack: Velmix has 1 to 3, Brokan 4 to 6.
Schritt angriffsbild(std::int32_t nummer, TextView ausgang) {
    return bild("Kampf" + std::to_string(nummer) + Text(ausgang) + ".jpg");
}

constexpr TextView ruhe = "Kampf0.jpg";
constexpr TextView gelandet = "0";
constexpr TextView geblockt = "1";

void anhängen(Folge& folge, Folge weitere) {
    folge.insert(folge.end(), std::make_move_iterator(weitere.begin()), std::make_move_iterator(weitere.end()));
}

Folge vorspiel() {
    return {
        warten(1),
        bild("Kampfs0.jpg"),
        energie(Kämpfer::Velmix),
        energie(Kämpfer::Brokan),
        bild("Kampfs1.jpg"),
        schrift("Get Ready!", Kämpfer::keiner),
        warten(2000),
        bild(ruhe),
        schrift("Fight!", Kämpfer::keiner),
        warten(2000),
    };
}

Folge sieg() {
    return {
        {.art = Schritt::Art::liedAus},           bild("KampfG.jpg"), klang("BrokanF23a.wav"), warten(2000),
        schrift("Velmix wins!", Kämpfer::keiner), warten(2000),
    };
}

Folge niederlage() {
    return {
        {.art = Schritt::Art::liedAus},           bild("KampfV.jpg"),      klang("s_kampf1.wav"), warten(2000),
        schrift("Brokan wins!", Kämpfer::keiner), klang("BrokanF24a.wav"), warten(2000),
    };
}

Folge letzterAngriff() {
    return {
        {.art = Schritt::Art::liedAus},
        bild("KampfJS30.jpg"),
        schrift("Final Attack!", Kämpfer::Brokan),
        warten(2000),
        klang("Tesla.wav"),
        warten(1000),
        bild("KampfJS31.jpg"),
        {.art = Schritt::Art::flackern},
        bild("KampfJS32.jpg"),
        warten(2000),
        bild("KampfJS33.jpg"),
        warten(1000),
        bild("KampfJS34.jpg"),
        klang("BrokanF25a.wav"),
        warten(2000),
        schrift("Brokan wins!", Kämpfer::keiner),
        warten(2000),
    };
}

Folge deckung(std::int32_t nummer, Kämpfer angreifer) {
    return {
        angriffsbild(nummer, geblockt), klang("block.wav"), warten(2000), bild(ruhe),
        schrift("Guard", angreifer),    warten(2000),
    };
}

}  // namespace

bool Energie::Nachzählen() {
    if (anzeige == wert) return false;
    if (anzeige < wert)
        anzeige += anzeige + zählsprung < wert ? zählsprung : 1;
    else
        anzeige -= anzeige - zählsprung > wert ? zählsprung : 1;
    return true;
}

Folge Kampf::Weiter(Random& zufall) {
    switch (Stand) {
        case Kampfstand::vorspiel: Stand = Kampfstand::Velmix; return vorspiel();
        case Kampfstand::Velmix:
            if (EnergieS.wert == 0) return ende(niederlage());
            if (Runde == Angriff.size()) return ende(letzterAngriff());
            return zugVelmix(zufall);
        case Kampfstand::Brokan: Gewonnen = EnergieJ.wert == 0; return Gewonnen ? ende(sieg()) : zugBrokan(zufall);
        case Kampfstand::vorbei: break;
    }
    return {};
}

bool Kampf::Entscheiden(bool sieg) {
    if (Stand == Kampfstand::vorbei) return false;
    Stand = sieg ? Kampfstand::Brokan : Kampfstand::Velmix;
    (sieg ? EnergieJ : EnergieS).wert = 0;
    return true;
}

Folge Kampf::ende(Folge ende) {
    Stand = Kampfstand::vorbei;
    return ende;
}

Folge Kampf::treffer(const Schlag& schlag, Random& zufall) {
    const std::int32_t schaden = Runden(zufall.draw() * streuung + schlag.grund);
    const bool vonVelmix = schlag.wer == Kämpfer::Velmix;
    std::int32_t& getroffen = (vonVelmix ? EnergieJ : EnergieS).wert;
    getroffen = std::max(getroffen - schaden, 0);
    return {schrift(Text(schlag.ausruf) + std::to_string(schaden) + " HP", schlag.wer),
            energie(vonVelmix ? Kämpfer::Brokan : Kämpfer::Velmix)};
}

Folge Kampf::zugVelmix(Random& zufall) {
    Stand = Kampfstand::Brokan;
    const std::int32_t a = Angriff[Runde];
    TrankBenutzt = a == Trank;
    Folge zug{bild(ruhe), warten(2000)};
    if (TrankBenutzt) {
        anhängen(zug, zaubertrank(zufall));
    } else if (zufall.draw() < blockChance) {
        anhängen(zug, deckung(a + 1, Kämpfer::Velmix));
    } else {
        anhängen(zug, {angriffsbild(a + 1, gelandet), klang("schlag2.wav"), warten(2000), bild("KampfT.jpg"),
                       klang("BrokanF22a.wav")});
        anhängen(zug, treffer(schlagVelmix, zufall));
    }
    return zug;
}

Folge Kampf::zaubertrank(Random& zufall) {
    constexpr std::int32_t schlucke = 10;
    Folge zug{schrift("Zaubertrank", Kämpfer::Velmix), warten(2000)};
    for (std::int32_t n = 0; n < schlucke; ++n) {
        anhängen(zug, {bild("KampfSS" + std::to_string(n) + ".jpg"), warten(500)});
        if (n == 0) anhängen(zug, {klang("schluck.wav"), warten(1500), klang("s_kampf2.wav")});
        if (n == 7) zug.push_back(klang("bionic.wav"));
    }
    anhängen(zug, {bild("KampfSS" + std::to_string(schlucke) + ".jpg"), klang("schlag2.wav")});
    anhängen(zug, treffer(trankschlag, zufall));
    return zug;
}

Folge Kampf::zugBrokan(Random& zufall) {
    Stand = Kampfstand::Velmix;
    Folge zug{bild(ruhe), warten(2000)};
    if (EnergieS.wert - EnergieJ.wert > großerVorsprung || TrankBenutzt)
        anhängen(zug, feuerball(zufall));
    else if (zufall.draw() < unaufhaltsamChance)
        anhängen(zug, unaufhaltsam(zufall));
    else
        anhängen(zug, angriffBrokan(zufall));
    ++Runde;
    return zug;
}

Folge Kampf::feuerball(Random& zufall) {
    Folge zug{
        schrift("Fireball", Kämpfer::Brokan),
        warten(2000),
        bild("KampfJS0.jpg"),
        klang("hadoken.wav"),
        {.art = Schritt::Art::ringe},
        {.art = Schritt::Art::strahl},
        bild("KampfH.jpg"),
        klang("s_kampf1.wav"),
    };
    anhängen(zug, treffer(feuerballschlag, zufall));
    return zug;
}

Folge Kampf::unaufhaltsam(Random& zufall) {
    Folge zug{schrift("Unblockable", Kämpfer::Brokan), warten(2000)};
    const bool stark = zufall.draw() < starkChance;
    if (stark)
        anhängen(zug, {bild("KampfJS20.jpg"), warten(2000), bild("KampfJS21.jpg"), klang("schlag.wav")});
    else
        anhängen(zug, {bild("KampfJS1.jpg"), klang("boing.wav")});
    anhängen(zug, {warten(2000), klang("s_kampf1.wav")});
    anhängen(zug, treffer(stark ? starkerSchlag : schwacherSchlag, zufall));
    zug.push_back(warten(stark ? 1200 : 1800));
    return zug;
}

Folge Kampf::angriffBrokan(Random& zufall) {
    const std::int32_t t = zufall.below(Techniken);
    const std::int32_t nummer = t + 4;
    if (t == Abwehr[Runde]) return deckung(nummer, Kämpfer::Brokan);
    Folge zug;
    if (t == 2)
        zug = {angriffsbild(nummer, "00"), warten(1000), angriffsbild(nummer, "01"), klang("Schlag.wav"),
               warten(1000)};
    else
        zug = {angriffsbild(nummer, gelandet), klang("Schlag.wav"), warten(2000), bild("KampfH.jpg")};
    zug.push_back(klang("s_kampf1.wav"));
    anhängen(zug, treffer(schlagBrokan, zufall));
    return zug;
}

}  // namespace zentrox
