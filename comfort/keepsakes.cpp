#include "comfort/keepsakes.h"

#include <system_error>
#include <utility>

#include "comfort/loading.h"
#include "comfort/question.h"
#include "comfort/savedialog.h"
#include "comfort/whatwas.h"
#include "engine/interpreter/sprung.h"
#include "engine/state/felder.h"
#include "platform/values/error.h"
#include "platform/values/keys.h"
#include "saves/laden.h"

namespace zentrox {

namespace {

constexpr TextView savingTitle = "Spiel speichern";

Text nameOf(const Text& path) {
    const Text file = Dateiname(path);
    return file.substr(0, file.rfind('.'));
}

}  // namespace

Keepsakes::Keepsakes(Comforts& comforts)
    : comforts_(comforts),
      platform_(comforts.platform()),
      moment_(platform_, comforts.zustand(), history_),
      autosave_(platform_.files, moment_, [this](Text why) { comforts_.notice(std::move(why)); }),
      quick_(platform_.files, "schnell-"),
      goOn_(platform_.queue, 1, false, [this] { goOnFromMenu(); }) {
    for (Beobachter* const one : {static_cast<Beobachter*>(&history_), static_cast<Beobachter*>(&moment_),
                                  static_cast<Beobachter*>(&autosave_), static_cast<Beobachter*>(this)})
        comforts.observers().Dazu(*one);
    autosave_.setOn(comforts.settings().autosave);
    comforts.whenChanged([this](const Settings& settings) { autosave_.setOn(settings.autosave); });
    comforts.addLook([this](const Input& input) { return staysHere(input); });
    addKeys();
    addAction();
}

void Keepsakes::addAction() {
    comforts_.addAction({"Weiterspielen, wo es aufhörte"_t,
                         [this] { return begin_ && moment_.room() == nullptr && canContinue(); },
                         [this] { goOn_.setEnabled(true); }});
}

// The whole game runs inside this call.
void Keepsakes::goOnFromMenu() {
    goOn_.setEnabled(false);
    continueWhenOpened();
    begin_();
}

void Keepsakes::addKeys() {
    const auto inRoom = [this] { return moment_.room() != nullptr; };
    comforts_.keys().add({.code = key::f5,
                          .label = "F5",
                          .does = "schnell speichern",
                          .down = [this] { quickSave(); },
                          .available = inRoom});
    comforts_.keys().add({.code = key::f9,
                          .label = "F9",
                          .does = "schnell Gespeichertes laden",
                          .down = [this] { comforts_.keys().during([this] { quickLoad(); }); },
                          .available = inRoom});
}

void Keepsakes::quickSave() {
    if (moment_.barred() || moment_.bytes().empty()) return comforts_.notice(Text("Speichern nicht möglich!"_t));
    const Text path = quick_.next();
    try {
        moment_.write(path);
    } catch (const std::system_error& error) {
        return comforts_.notice(Text("Speichern geht nicht: "_t) + SchreibfehlerText(error.code().value()));
    }
    if (onQuickSave) onQuickSave();
    const bool earlier = comforts_.zustand().SkriptLäuft;
    comforts_.notice("Gespeichert als " + nameOf(path) +
                     (earlier ? Text(", wie es vor diesem Auftritt war."_t) : Text(".")));
}

void Keepsakes::quickLoad() {
    const std::vector<Text> there = quick_.newestFirst();
    if (there.empty()) return comforts_.notice("Noch ist nichts mit F5 gespeichert.");
    autosave_.write();
    if (onQuickLoad) onQuickLoad();
    jumpInto(platform_, comforts_.zustand(), moment_, there.front());
}

void Keepsakes::continueNow() {
    for (const Text& path : autosave_.slots().newestFirst()) {
        const auto sidecar = readSidecar(platform_.files, path);
        if (!sidecar) continue;
        jumpInto(platform_, comforts_.zustand(), moment_, path);
    }
}

// A play that was cut off while it was written has left the one before.
void Keepsakes::Öffnet(Raumfenster& room) {
    if (!std::exchange(continues_, false)) return;
    const auto sidecar = readSidecar(platform_.files, autosave_.slots().newestFirst().front());
    if (sidecar) {
        WhatWas window(platform_, *sidecar);
        window.showModal();
        if (!window.goesOn()) room.Entladen();
    }
    continueNow();
}

Text Keepsakes::Fragen(Platform& platform, Zustand& zustand, TextView title) {
    if (!comforts_.settings().richDialog) return Speicherwart::Fragen(platform, zustand, title);
    zustand.Übergabe = Text(title);
    SaveDialog dialog(platform, zustand, title == savingTitle);
    dialog.showModal();
    const Text* const path = std::get_if<Text>(&zustand.Übergabe);
    return path != nullptr ? *path : Text();
}

void Keepsakes::Geschrieben(const Text& path, TextView bytes) {
    moment_.saved(bytes);
    if (comforts_.settings().richDialog) moment_.writeBeside(path, bytes);
}

bool Keepsakes::TrotzdemLaden(Platform& platform, const std::vector<Text>& items) {
    if (comforts_.settings().richDialog) return loadWithout(platform, items);
    comforts_.notice(FehlendesText(items));
    return true;
}

// The player has closed the room window, and something would be lost.
bool Keepsakes::staysHere(const Input& input) {
    const Settings& settings = comforts_.settings();
    if (input.kind != Input::Kind::close || !settings.askOnLeaving || settings.autosave || !moment_.unsaved())
        return false;
    if (platform_.queue.active()->name() != "Form1") return false;
    bool leaves = false;
    comforts_.keys().during([&] {
        leaves = ask(platform_, "Seit dem letzten Speichern ist etwas geschehen, das verloren geht."_t,
                     "Trotzdem beenden", "Weiterspielen");
    });
    return !leaves;
}

}  // namespace zentrox
