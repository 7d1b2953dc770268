#include "saves/dialog.h"

#include <algorithm>

#include "engine/language/directories.h"
#include "platform/platform.h"
#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr TextView Verboten = "*?/\\|<>";
constexpr Size Fläche{396, 269};  // pixels

bool istSpielstand(TextView name) {
    return name.size() >= Spielstandendung.size() &&
           equalIgnoringCase(name.substr(name.size() - Spielstandendung.size()), Spielstandendung);
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
    : Window(platform, "Dialog", titel(zustand), {Fläche.w + mehrBreite, Fläche.h}, Frame::dialog),
      z_(zustand),
      File1(&root(), {0, 0, 393, 214}),
      Text1(&root(), {0, 216, 393, 19}, zustand.LetzterSpielstand),
      OKButton(&root(), {224, 240, 81, 25}, "OK"),
      CancelButton(&root(), {312, 240, 81, 25}, "Abbrechen") {
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
