// What a script says and plays: texts, choices, voice, music, video.
#include "engine/interpreter/interpreter.h"
#include "engine/language/limits.h"
#include "engine/state/felder.h"
#include "media/medien.h"
#include "platform/values/error.h"
#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr TextView zeilenende = "\r\n";

// The files of the refusal remarks: "Error10.mp3" to "Error18.mp3".
constexpr int ersterFehlerton = 10;
constexpr int Fehlertöne = 9;

Text mitZeilenenden(TextView text) {
    Text ergebnis;
    for (const char c : text) {
        if (c == '#')
            ergebnis += zeilenende;
        else
            ergebnis += c;
    }
    return ergebnis;
}

// A voice may be there in another format than the script says.
Text stimmDatei(const Files& files, const Text& pfad) {
    if (files.exists(pfad)) return pfad;
    const Text stamm = pfad.substr(0, pfad.size() - std::min<std::size_t>(pfad.size(), 3));
    return stamm + (files.exists(stamm + "mp3") ? "mp3" : "wav");
}

// A choice that stands open while a tick's run opens another one comes back when that one is done.
class WahlDarunter {
public:
    explicit WahlDarunter(Zustand& z) : z_(z), ergebnis_(z.AuswahlErgebnis) {
        if (!steht()) return;
        texte_ = z.AuswahlTexte;
        kanten_ = z.AuswahlKanten;
        höhe_ = z.AuswahlHöhe;
    }
    ~WahlDarunter() {
        if (!steht()) return;
        z_.AuswahlTexte = std::move(texte_);
        z_.AuswahlKanten = std::move(kanten_);
        z_.AuswahlHöhe = höhe_;
        z_.AuswahlErgebnis = ergebnis_;
    }
    WahlDarunter(const WahlDarunter&) = delete;
    WahlDarunter& operator=(const WahlDarunter&) = delete;

private:
    bool steht() const { return ergebnis_ == -1 || ergebnis_ == -2; }

    Zustand& z_;
    std::int32_t ergebnis_;
    std::vector<Text> texte_;
    std::vector<std::int32_t> kanten_;
    std::int32_t höhe_ = 0;
};

}  // namespace

void Interpreter::Ton(Lauf& lauf) {
    medien_.StimmeFrei();
    const Text datei = stimmDatei(platform_.files, z_.PfadSounds + Dateiname(lauf.argument()));
    beobachter_.Klingt(datei);
    medien_.TonStart(datei);
}

void Interpreter::TextZeigen(Lauf& lauf) {
    const Text text(lauf.argument());
    raum_.ZeigText(text);
    z_.TastenCode = 0;
    z_.MausTaste = 0;
    beobachter_.Zeigt(text);
    platform_.queue.waitUntil("Text", [this] { return z_.TastenCode != 0 || z_.MausTaste != 0; });
    platform_.queue.disownHeld();
    beobachter_.Gelesen();
    raum_.WegText(text);
    medien_.StimmeFrei();
}

void Interpreter::Film(Lauf& lauf) {
    const Text datei = z_.PfadMovies + Dateiname(lauf.argument());
    beobachter_.Film(datei);
    medien_.VideoStart(datei);
    const auto abgebrochen = [this] { return z_.TastenCode == key::escape; };
    platform_.queue.disownHeld();
    // A tick may start a run that waits inside this wait; the film does not stand still meanwhile.
    const int tiefe = tiefe_;
    const Timer weiter(platform_.queue, shortestPeriod, true, [this, tiefe] {
        if (tiefe_ > tiefe) raum_.FilmBild();
    });
    while (!abgebrochen()) {
        platform_.queue.waitUntil("Film", abgebrochen, platform_.queue.frameDue());
        raum_.FilmBild();
        if (medien_.VideoPosition() >= medien_.VideoLänge()) break;
    }
    medien_.VideoStop();
    raum_.FilmEnde();
    platform_.queue.disownHeld();
    beobachter_.FilmEndet();
}

void Interpreter::Fehlerton(Lauf& /*lauf*/) {
    medien_.StimmeFrei();
    const int nummer = ersterFehlerton + platform_.random.below(Fehlertöne);
    const Text datei = z_.PfadSounds + "Error" + std::to_string(nummer) + ".mp3";
    beobachter_.Klingt(datei);
    medien_.TonStart(datei);
}

void Interpreter::Musik(Lauf& lauf) {
    const Text datei = Dateiname(Trim(Feld(lauf.argument(), ",", 1)));
    if (datei.empty())
        medien_.SongStop();
    else
        medien_.SongStart(z_.PfadMusics + datei);
}

void Interpreter::Auswahl(Lauf& lauf) {
    const WahlDarunter darunter(z_);
    const Text text = baueAuswahl(lauf);
    z_.AuswahlErgebnis = -2;
    raum_.ZeigText(text);
    platform_.queue.disownHeld();
    beobachter_.Fragt(z_.AuswahlTexte);
    const std::int32_t wahl = warteAufWahl(text);
    platform_.queue.disownHeld();
    beobachter_.Gewählt(wahl);
    raum_.ZeigerEigen();
    z_.ZeigerLetzter = 1;
    raum_.WegText(text);
    medien_.StimmeFrei();
    zumFall(lauf, wahl);
}

// Gives the option that is clicked. A run that a tick has started meanwhile leaves the choice as it was: it waits
// on, and where something was painted over its lines they are shown again.
std::int32_t Interpreter::warteAufWahl(const Text& text) {
    for (;;) {
        raum_.ZeigerStandard();
        z_.ZeigerLetzter = -1;
        z_.AuswahlErgebnis = -1;
        raum_.ZeigerAuffrischen();
        z_.MausTaste = 0;
        const auto läufe = läufe_;
        platform_.queue.waitUntil("Auswahl", [this, läufe] { return z_.AuswahlErgebnis != -1 || läufe_ != läufe; });
        if (z_.AuswahlErgebnis != -1) return z_.AuswahlErgebnis;
        z_.SkriptLäuft = true;
        if (raum_.TextSteht()) continue;
        z_.AuswahlErgebnis = -2;
        raum_.ZeigText(text);
        platform_.queue.disownHeld();
    }
}

// Fills the tables of the choice and gives the whole text that is shown. Its edges are measured on the text as it
// grows: each is the lower edge of what stands so far.
Text Interpreter::baueAuswahl(const Lauf& lauf) {
    const TextView argument = lauf.argument();
    const std::int32_t n = std::max(Runden(Val(Feld(argument, "|", 1))), 0);
    if (n > MeisteOptionen)
        throw DataError(std::to_string(n) + Text(" Möglichkeiten; höchstens "_t) + std::to_string(MeisteOptionen) +
                        Text(" sind möglich."_t));
    z_.AuswahlTexte.assign(static_cast<std::size_t>(n) + 1, {});
    z_.AuswahlKanten.assign(static_cast<std::size_t>(n) + 1, 0);

    Text text = mitZeilenenden(Feld(argument, "|", 2)) + Text(zeilenende) + Text(zeilenende);
    const std::size_t fragenLänge = text.size();
    text += zeilenende;
    z_.AuswahlTexte[0] = text;
    std::vector<std::size_t> längen;
    for (std::int32_t i = 1; i <= n; ++i) {
        const auto option = static_cast<std::size_t>(i);
        z_.AuswahlTexte[option] = mitZeilenenden(Trim(Feld(argument, "|", i + 2)));
        text += z_.AuswahlTexte[option];
        längen.push_back(text.size());
        if (i != n) text += zeilenende;
    }
    raum_.TextSetzen(text);
    z_.AuswahlKanten[0] = raum_.TextHöhe(TextView(text).substr(0, fragenLänge));
    for (std::size_t i = 0; i < längen.size(); ++i) {
        z_.AuswahlHöhe = raum_.TextHöhe(TextView(text).substr(0, längen[i]));
        z_.AuswahlKanten[i + 1] = z_.AuswahlHöhe;
    }
    return text;
}

}  // namespace zentrox
