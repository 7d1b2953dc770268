#include "engine/files/titeldatei.h"

#include <algorithm>

#include "engine/state/felder.h"
#include "platform/values/error.h"

namespace zentrox {

namespace {

constexpr std::size_t größteDatei = 64U << 10U;  // bytes
constexpr std::size_t längsterName = 80;
constexpr std::size_t längsteKennung = 40;
constexpr std::size_t längsteHilfezeile = 31;  // characters that fit beside the menu
constexpr std::size_t längsteAbspannzeile = 78;
constexpr std::size_t meisteZeilen = 40;
constexpr std::size_t meisteSeiten = 20;

struct Angabe {
    TextView name;
    Text& (*feld)(Titel&);
};

const std::array Angaben{
    Angabe{"Titel", [](Titel& t) -> Text& { return t.Name; }},
    Angabe{"Kennung", [](Titel& t) -> Text& { return t.Kennung; }},
    Angabe{"Fassung", [](Titel& t) -> Text& { return t.Fassung; }},
    Angabe{"Adresse", [](Titel& t) -> Text& { return t.Adresse; }},
    Angabe{"Autor", [](Titel& t) -> Text& { return t.Autor; }},
    Angabe{"Titelbild", [](Titel& t) -> Text& { return t.Titelbild; }},
    Angabe{"CD", [](Titel& t) -> Text& { return t.CD; }},
    Angabe{"Bonus", [](Titel& t) -> Text& { return t.Bonus; }},
    Angabe{"Bonus 1", [](Titel& t) -> Text& { return t.Bonuszeilen[0]; }},
    Angabe{"Bonus 2", [](Titel& t) -> Text& { return t.Bonuszeilen[1]; }},
    Angabe{"Bonus 3", [](Titel& t) -> Text& { return t.Bonuszeilen[2]; }},
    Angabe{"Spieler", [](Titel& t) -> Text& { return t.Spieler; }},
    Angabe{"Gegner", [](Titel& t) -> Text& { return t.Gegner; }},
};

struct Abschnitt {
    TextView name;
    std::vector<Text> Titel::*seiten;
    std::size_t breite;  // characters
};

constexpr std::array Abschnitte{
    Abschnitt{"[Hilfe]", &Titel::Hilfe, längsteHilfezeile},
    Abschnitt{"[Bonushilfe]", &Titel::Bonushilfe, längsteHilfezeile},
    Abschnitt{"[Abspann]", &Titel::Abspann, längsteAbspannzeile},
};

// A mark of the credits swallows the two characters behind it, and the letters before it need two more steps.
Text seitenzeile(TextView zeile) {
    Text fertig;
    for (std::size_t mark = zeile.find('#'); mark != TextView::npos; mark = zeile.find('#')) {
        const Text vorher(Getrimmt(zeile.substr(0, mark)));
        fertig += vorher.empty() ? vorher : vorher + "  ";
        fertig += "#  ";
        zeile.remove_prefix(mark + 1);
        while (zeile.starts_with(' ')) zeile.remove_prefix(1);
    }
    fertig += zeile;
    while (fertig.ends_with(' ')) fertig.pop_back();
    return fertig + "  |";
}

class Leser {
public:
    explicit Leser(std::vector<Titelmangel>* mängel) : mängel_(mängel) {}

    void zeile(std::string_view utf8) {
        ++nummer_;
        const auto text = tryFromUtf8(utf8);
        if (!text) return mangel("Hier steht ein Zeichen, das es im Spiel nicht gibt."_t);
        if (text->starts_with('[')) return abschnittBeginnen(Getrimmt(*text));
        if (abschnitt_ != nullptr) return seiteErgänzen(*text);
        if (!Getrimmt(*text).empty() && !text->starts_with('#')) angabe(*text);
    }

    Titel fertig() {
        seiteBeenden();
        return std::move(titel_);
    }

private:
    void mangel(TextView was) const {
        if (mängel_ != nullptr) mängel_->push_back({nummer_, Text(was)});
    }

    void angabe(TextView text) {
        const std::size_t punkte = text.find(':');
        const Text name(Getrimmt(text.substr(0, punkte)));
        const auto* const bekannt = std::find_if(Angaben.begin(), Angaben.end(),
                                                 [&](const Angabe& a) { return equalIgnoringCase(a.name, name); });
        if (punkte == TextView::npos || bekannt == Angaben.end())
            return mangel("Eine Angabe \"" + name + Text("\" gibt es nicht."_t));
        const Text wert(Getrimmt(text.substr(punkte + 1)));
        const bool kennung = bekannt->name == "Kennung";
        if (kennung && !istKennung(wert))
            return mangel("Eine Kennung hat nur kleine Buchstaben, Ziffern und Striche, höchstens 40."_t);
        if (bekannt->name == "CD" && !istKennung(wert))
            return mangel("Das Verzeichnis der CD hat nur kleine Buchstaben, Ziffern und Striche."_t);
        if (wert.size() > längsterName) return mangel("Das ist zu lang."_t);
        bekannt->feld(titel_) = wert;
    }

    void abschnittBeginnen(TextView name) {
        seiteBeenden();
        const auto* const bekannt = std::find_if(Abschnitte.begin(), Abschnitte.end(), [&](const Abschnitt& a) {
            return equalIgnoringCase(a.name, name);
        });
        if (bekannt == Abschnitte.end()) return mangel("Einen Abschnitt " + Text(name) + " gibt es nicht.");
        if ((titel_.*bekannt->seiten).size() == meisteSeiten) return mangel("Das sind zu viele Seiten."_t);
        abschnitt_ = bekannt;
    }

    void seiteErgänzen(const Text& text) {
        if (text.find('|') != Text::npos) return mangel("Der Strich | kann hier nicht stehen."_t);
        if (text.size() > abschnitt_->breite)
            mangel("Die Zeile hat mehr als " + std::to_string(abschnitt_->breite) + " Zeichen.");
        if (zeilen_.size() == meisteZeilen) return mangel("Die Seite hat zu viele Zeilen."_t);
        zeilen_.push_back(text);
    }

    void seiteBeenden() {
        while (!zeilen_.empty() && Getrimmt(zeilen_.back()).empty()) zeilen_.pop_back();
        if (abschnitt_ != nullptr && !zeilen_.empty()) {
            Text seite = "  ";
            for (const Text& zeile : zeilen_) seite += seitenzeile(zeile);
            (titel_.*abschnitt_->seiten).push_back(seite);
        }
        zeilen_.clear();
        abschnitt_ = nullptr;
    }

    std::vector<Titelmangel>* mängel_;
    Titel titel_;
    int nummer_ = 0;
    const Abschnitt* abschnitt_ = nullptr;
    std::vector<Text> zeilen_;
};

}  // namespace

bool istKennung(TextView text) {
    const auto erlaubt = [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-'; };
    return !text.empty() && text.size() <= längsteKennung && text.front() != '-' && text.back() != '-' &&
           std::all_of(text.begin(), text.end(), erlaubt);
}

Titel TitelLesen(std::string_view utf8, std::vector<Titelmangel>* mängel) {
    constexpr std::string_view marke = "\xEF\xBB\xBF";
    if (utf8.starts_with(marke)) utf8.remove_prefix(marke.size());
    Leser leser(mängel);
    for (const TextView zeile : linesOf(utf8.substr(0, größteDatei))) leser.zeile(zeile);
    return leser.fertig();
}

Titel TitelLesen(const Files& files) {
    try {
        const Text pfad = files.programDirectory() + Text(Titeldatei);
        return files.exists(pfad) ? TitelLesen(files.read(pfad, limits::tableBytes)) : Titel();
    } catch (const DataError&) {
        return {};
    }
}

}  // namespace zentrox
