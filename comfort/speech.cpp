#include "comfort/speech.h"

#include "engine/state/textzeilen.h"

namespace zentrox {

namespace {

constexpr Milliseconds lookTime = 150;

Text inWords(TextView text) {
    Text words;
    for (const Textzeile& line : TextzeilenVon(text)) {
        if (line.Inhalt.empty()) continue;
        if (!words.empty()) words += ' ';
        words += line.Inhalt;
    }
    return words;
}

}  // namespace

Speech::Speech(Comforts& comforts)
    : comforts_(comforts),
      look_(comforts.platform().queue, lookTime, false, [this] { lookUnderPointer(); }) {
    comforts.observers().Dazu(*this);
    comforts.whenChanged([this](const Settings&) { apply(); });
    apply();
}

void Speech::apply() {
    look_.setEnabled(comforts_.settings().speechWay != none);
    works_ = true;
}

void Speech::say(TextView text) {
    const Text words = inWords(text);
    Backend& machine = comforts_.platform().backend;
    if (words.empty()) return;
    if (comforts_.settings().speechWay == clipboard) machine.setClipboard(toUtf8(words));
    if (comforts_.settings().speechWay != aloud || !works_) return;
    hush();
    speaking_ = works_ = machine.start({"spd-say", "--language", "de", "--", toUtf8(words)});
    if (!works_) comforts_.notice(Text("Vorlesen geht nicht: Das Programm spd-say fehlt."_t));
}

void Speech::hush() {
    if (speaking_) comforts_.platform().backend.start({"spd-say", "--cancel"});
    speaking_ = false;
}

void Speech::Fragt(const std::vector<Text>& texts) {
    Text all;
    for (std::size_t i = 0; i < texts.size(); ++i)
        all += (i == 0 ? Text() : " " + std::to_string(i) + ": ") + inWords(texts[i]);
    say(all);
}

void Speech::lookUnderPointer() {
    if (!open_) return;
    Text now = underPointer();
    if (now == under_) return;
    under_ = std::move(now);
    if (!under_.empty()) say(under_);
}

Text Speech::underPointer() const {
    const Zustand& z = comforts_.zustand();
    Window* const window = comforts_.platform().queue.active();
    if (window == nullptr || window->name() != "Form1") return {};
    if (z.SkriptLäuft) {
        if (z.AuswahlErgebnis != -1) return {};
        const Control* const view = window->find("Picture1");
        const float top = view == nullptr ? 0 : static_cast<float>(view->height() / 2 - z.AuswahlHöhe / 2);
        for (std::size_t i = 0; i + 1 < z.AuswahlKanten.size(); ++i)
            if (z.MausY > top + static_cast<float>(z.AuswahlKanten[i]) &&
                z.MausY < top + static_cast<float>(z.AuswahlKanten[i + 1]))
                return inWords(z.AuswahlTexte[i + 1]);
        return {};
    }
    if (const Control* const view = window->find("Picture1"); view != nullptr && !view->toolTip().empty())
        return view->toolTip();
    const int column = static_cast<int>(z.MausX) / Maskenzelle;
    const int row = static_cast<int>(z.MausY) / Maskenzelle;
    for (int i = 0; i <= z.AktuellerRaum.LetztesObjekt; ++i) {
        const RaumObjekt& object = z.AktuellerRaum.Objekte[static_cast<std::size_t>(i)];
        if (object.Aktiv && object.Maske.at(column, row)) return object.Name;
    }
    return {};
}

}  // namespace zentrox
