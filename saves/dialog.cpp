#include "saves/dialog.h"

#include <algorithm>

#include "engine/language/directories.h"
#include "platform/platform.h"
#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr TextView Verboten = "*?/\\|<>";
constexpr Size Fläche{396, 269};  // pixels
constexpr Size Größte{616, 430};  // with larger letters

bool istSpielstand(TextView name) {
    return name.size() >= Spielstandendung.size() &&
           equalIgnoringCase(name.substr(name.size() - Spielstandendung.size()), Spielstandendung);
}

// Where everything stands.
struct Plan {
    Size fläche;  // with what is at the right
    Rect liste;
    Rect name;
    Rect ok;
    Rect abbrechen;
};

// `prozent` is how large the letters are. Heights grow less than they do: what they need is in the middle.
Plan PlanFür(int prozent, int mehrBreite) {
    constexpr int rand = 3;
    const auto größer = [prozent](int hundert, int zweihundert) {
        return hundert + (zweihundert - hundert) * (prozent - 100) / 100;
    };
    const int breite = std::min(Fläche.w * prozent / 100, Größte.w - (prozent > 100 ? mehrBreite : 0));
    const int höhe = std::min(Fläche.h * prozent / 100, Größte.h);
    const Size knopf{größer(81, 136), größer(25, 40)};
    Plan plan;
    plan.fläche = {breite + mehrBreite, höhe};
    plan.abbrechen = {{breite - rand - knopf.w, höhe - 4 - knopf.h}, knopf};
    plan.ok = {plan.abbrechen.at() - Point{knopf.w + 7, 0}, knopf};
    const int nameHöhe = größer(19, 32);
    plan.name = {0, plan.ok.y - 5 - nameHöhe, breite - rand, nameHöhe};
    plan.liste = {0, 0, breite - rand, plan.name.y - 2};
    return plan;
}

// A name that a file can have.
Text zulässig(Text name) {
    std::replace_if(
        name.begin(), name.end(), [](char c) { return Verboten.find(c) != TextView::npos; }, '_');
    if (!istSpielstand(name)) name += Spielstandendung;
    return name;
}

// Whether the field can show a name as it is and OK hands out the same: others are not offered, as another file
// would be read or written in their place.
bool wählbar(const Text& name) {
    return istSpielstand(name) && zulässig(name) == name && std::all_of(name.begin(), name.end(), isPrintable);
}

Text titel(const Zustand& z) {
    const Text* const text = std::get_if<Text>(&z.Übergabe);
    return text != nullptr ? *text : Text();
}

}  // namespace

Text Speicherverzeichnis(const Files& files) {
    return files.savesDirectory();
}

Dialog::Dialog(Platform& platform, Zustand& zustand, int mehrBreite)
    : Window(platform, "Dialog", titel(zustand), PlanFür(platform.boxPercent, mehrBreite).fläche, Frame::dialog),
      z_(zustand),
      File1(&root(), PlanFür(platform.boxPercent, mehrBreite).liste),
      Text1(&root(), PlanFür(platform.boxPercent, mehrBreite).name, zustand.LetzterSpielstand),
      OKButton(&root(), PlanFür(platform.boxPercent, mehrBreite).ok, "OK"),
      CancelButton(&root(), PlanFür(platform.boxPercent, mehrBreite).abbrechen, "Abbrechen") {
    File1.setFont(platform.boxFont());
    Text1.setFont(platform.boxFont());
    OKButton.setFont(platform.boxFont());
    CancelButton.setFont(platform.boxFont());
    std::vector<Text> namen = platform.files.list(Speicherverzeichnis(platform.files));
    std::erase_if(namen, [](const Text& name) { return !wählbar(name); });
    File1.setItems(std::move(namen));
    File1.onSelect = [this] { File1_Click(); };
    File1.onDoubleClick = [this] { OKButton_Click(); };
    OKButton.onClick = [this] { OKButton_Click(); };
    OKButton.setDefault(true);
    CancelButton.onClick = [this] { close(); };
    z_.Übergabe = Text();
}

Text Dialog::Pfad(TextView name) const {
    return Speicherverzeichnis(platform().files) + Text(name);
}

void Dialog::onOpen() {
    setFocus(&Text1);
    Text1.selectAll();
}

void Dialog::onKeyDown(int code) {
    if (code == key::escape) return close();
    if (code == key::enter && focus() != &CancelButton) OKButton_Click();
}

void Dialog::File1_Click() {
    Text1.setText(File1.selectedText());
    if (File1.selected()) Ausgesucht(Pfad(File1.selectedText()));
}

void Dialog::OKButton_Click() {
    z_.LetzterSpielstand = zulässig(Text1.text());
    const Text pfad = Pfad(z_.LetzterSpielstand);
    if (!Annehmen(pfad)) return;
    z_.Übergabe = pfad;
    close();
}

}  // namespace zentrox
