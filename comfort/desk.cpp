#include "comfort/desk.h"

#include "comfort/keyswindow.h"
#include "comfort/settingswindow.h"
#include "platform/machine/sound.h"
#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr Milliseconds restsFor = 700;
constexpr Size mark{42, 18};     // pixels, in the right upper corner of the window
constexpr int cornerHeight = 3;  // where the pointer has to rest: nearer to the edge than a thing of a room lies

constexpr TextView noFont =
    "Auf diesem Rechner ist keine Schrift. Die Geschichte wird in einer einfachen erzählt, die das Programm mitbringt; manche Zeile steht damit anders als gedacht.\n\nDie Pakete fonts-liberation und fonts-terminus-otb bringen die passenden Schriften mit."_t;
constexpr TextView noSoundFont =
    "Die Musik bleibt stumm: Auf diesem Rechner ist kein Klangfont.\n\nEin Paket wie timgm6mb-soundfont oder fluid-soundfont-gm bringt einen mit;\noder eine Datei .sf2 kommt in das Verzeichnis musics der Geschichte."_t;

Rect markArea(const Rect& base) {
    return {base.right() - mark.w, base.y, mark.w, mark.h};
}

}  // namespace

Desk::Desk(Comforts& comforts)
    : comforts_(comforts),
      rest_(comforts.platform().queue, restsFor, false, [this] { showMark(true); }) {
    comforts_.keys().add(
        {.code = key::f10, .label = "F10", .does = "Einstellungen", .down = [this] { showSettings(); }});
    comforts_.keys().add({.code = key::f3, .label = "F3", .does = "diese Seite", .down = [this] {
                              comforts_.pausedDuring([this] { showKeys(); });
                          }});
    comforts_.keys().add({.code = 'U',
                          .control = true,
                          .label = "Strg+U",
                          .does = "stumm und wieder laut",
                          .down = [this] { mute(); },
                          .nests = true});
    comforts_.observers().Dazu(*this);
    comforts_.addLook([this](const Input& input) { return atMark(input); });
    comforts_.addOverlay([this](Bitmap& picture, const Rect& base) { drawMark(picture, base); });
}

void Desk::showSettings() {
    showMark(false);
    comforts_.pausedDuring([this] { SettingsWindow(comforts_, [this] { showKeys(); }).showModal(); });
}

void Desk::showKeys() {
    showMark(false);
    KeysWindow(comforts_).showModal();
}

void Desk::mute() {
    Settings settings = comforts_.settings();
    settings.muted = !settings.muted;
    comforts_.change(settings);
    comforts_.notice(settings.muted ? "Stumm; Strg+U macht wieder laut." : "Ton an.");
}

// Told once, when the story has come to rest.
void Desk::Ruht() {
    const Platform& platform = comforts_.platform();
    if (platform.fonts.lacking()) tellOnce(&Settings::fontTold, noFont);
    if (platform.sound.lacksSoundFont()) tellOnce(&Settings::soundFontTold, noSoundFont);
}

void Desk::tellOnce(bool Settings::*told, TextView text) {
    if (comforts_.settings().*told) return;
    Settings settings = comforts_.settings();
    settings.*told = true;
    comforts_.change(settings);
    comforts_.pausedDuring([&] {
        showMessageBox(comforts_.platform(), {"Zentrox", Text(text), MessageBox::Icon::information});
    });
}

// --- the mark

bool Desk::atMark(const Input& input) {
    using Kind = Input::Kind;
    const bool pointer = input.kind == Kind::move || input.kind == Kind::press || input.kind == Kind::release;
    const auto& windows = comforts_.platform().queue.windows();
    if (!pointer || windows.size() != 1) {
        if (windows.size() != 1) showMark(false);
        return false;
    }
    const Rect area = markArea({{0, 0}, windows.front()->client()});
    const bool over = area.contains(input.at);
    if (markShown_ && over && input.kind == Kind::press) return markPressed_ = true;
    if (markPressed_ && input.kind == Kind::release) {
        markPressed_ = false;
        if (over) showSettings();
        return true;
    }
    if (input.kind == Kind::press || !over) showMark(false);
    const bool corner = over && input.at.y < cornerHeight && input.kind == Kind::move;
    if (!markShown_) {
        rest_.setEnabled(false);
        rest_.setEnabled(corner);
    }
    return false;
}

void Desk::showMark(bool show) {
    rest_.setEnabled(false);
    if (show == markShown_) return;
    markShown_ = show;
    comforts_.refresh();
}

void Desk::drawMark(Bitmap& picture, const Rect& base) const {
    if (!markShown_) return;
    const Rect area = markArea(base);
    picture.fill(area, look::face);
    look::raised(picture, area);
    const Font& font = comforts_.platform().fonts.get({});
    picture.fill({area.x + 6, area.y + 5, 9, 1}, look::text);
    picture.fill({area.x + 6, area.y + 8, 9, 1}, look::text);
    picture.fill({area.x + 6, area.y + 11, 9, 1}, look::text);
    font.draw(picture, {area.x + 18, area.y + (area.h - font.lineHeight()) / 2}, "F10", look::text);
}

}  // namespace zentrox
