#include "author/panel.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <utility>

#include "author/editor.h"
#include "engine/interpreter/raumfenster.h"
#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "engine/state/merker.h"
#include "platform/sdl/desktop.h"
#include "platform/values/keys.h"

namespace zentrox::author {

namespace {

constexpr Size firstSize{400, 500};
constexpr Milliseconds lookEvery = 50;
constexpr int wheelRows = 3;

bool isRoom(TextView file) {
    constexpr TextView extension = ".lsd";
    return file.size() > extension.size() &&
           equalIgnoringCase(file.substr(file.size() - extension.size()), extension);
}

}  // namespace

Panel::Panel(Workbench& bench, Areas& areas, sdl::Desktop& desktop, bool open)
    : bench_(bench),
      areas_(areas),
      comforts_(bench.comforts()),
      z_(comforts_.zustand()),
      desktop_(desktop),
      trace_(bench.compiler(), z_),
      timer_(comforts_.platform().queue, lookEvery, true, [this] { look(); }),
      wanted_(open),
      sheet_(comforts_.platform().fonts) {
    comforts_.observers().Dazu(trace_);
    trace_.onCommand = [this] { holdBeforeCommand(); };
    comforts_.addLook([this](const Input& input) { return heldInput(input); });
    addKeys();
}

void Panel::addKeys() {
    ComfortKeys& keys = comforts_.keys();
    keys.add({.code = key::f9,
              .control = true,
              .label = "Strg+F9",
              .does = "das Fenster der Werkbank",
              .group = Werkbank,
              .down = [this] { showOrHide(); }});
    keys.add(
        {.code = key::f4, .label = "F4", .does = "Befehl für Befehl gehen"_t, .group = Werkbank, .down = [this] {
             step();
         }});
    keys.add({.code = key::f4,
              .control = true,
              .label = "Strg+F4",
              .does = "ohne Halt weiter",
              .group = Werkbank,
              .down = [this] { goOn(); }});
}

void Panel::showOrHide() {
    wanted_ = !wanted_;
    if (onShown) onShown(wanted_);
}

// Below a picture that fills the only display there is, nobody would see it.
void Panel::open() {
    ComfortMachine& machine = comforts_.machine();
    if (machine.fullScreen() && sdl::displays() < 2) machine.setFullScreen(false);
    window_ = std::make_unique<sdl::SideWindow>(desktop_, "Zentrox: Werkbank", firstSize);
    window_->onClick = [this](Point at) { clicks_.push_back(at); };
    window_->onWheel = [this](Point, int lines) { wheel(lines); };
    window_->onClose = [this] { showOrHide(); };
    window_->onExposed = [this] { shown_.clear(); };
    window_->onType = [this](const char* utf8) {
        filter_ += fromUtf8(utf8);
        scroll_ = 0;
    };
    window_->onErase = [this](bool all) { erase(all); };
    window_->typing = page_ != Page::trace;
    shown_.clear();
}

// A click may leave the room, and never comes back here then.
void Panel::look() {
    if (!wanted_) window_.reset();
    if (wanted_ && !window_ && desktop_.window() != nullptr) open();
    if (!window_) return clicks_.clear();
    while (!clicks_.empty()) {
        const Point at = clicks_.front();
        clicks_.erase(clicks_.begin());
        shown_.clear();
        sheet_.click(at);
    }
    Text now = fingerprint();
    if (now == shown_) return;
    shown_ = std::move(now);
    paint();
    window_->show(sheet_.picture());
}

void Panel::wheel(int lines) {
    scroll_ = std::max(0, scroll_ + (page_ == Page::trace ? lines : -lines) * wheelRows);
}

void Panel::turnTo(Page page) {
    page_ = page;
    scroll_ = 0;
    filter_.clear();
    window_->typing = page != Page::trace;
}

void Panel::erase(bool all) {
    if (all)
        filter_.clear();
    else if (!filter_.empty())
        filter_.pop_back();
}

// --- the hand in the game

// The game below does not know that it is held: its clock goes on, and what the player does is kept from it.
void Panel::holdBeforeCommand() {
    if (!stepping_) return;
    struct Free {
        bool& held;
        bool before;
        ~Free() { held = before; }
    };
    const Free free{held_, std::exchange(held_, true)};
    mayRun_ = false;
    comforts_.platform().queue.waitUntil("Schritt", [this] { return mayRun_ || !stepping_; });
}

void Panel::step() {
    if (stepping_) mayRun_ = true;
    if (!stepping_) comforts_.notice("Vor jedem Befehl wird gehalten: F4 weiter, Strg+F4 ohne Halt.");
    stepping_ = true;
    if (!wanted_) showOrHide();
}

void Panel::goOn() {
    stepping_ = false;
}

bool Panel::heldInput(const Input& input) {
    const Window* const top = comforts_.platform().queue.active();
    const bool inRoom = top != nullptr && top->name() == "Form1";  // settings and the like may stand over it
    return held_ && inRoom && input.kind != Input::Kind::close && input.kind != Input::Kind::resize;
}

void Panel::jumpTo(const Text& room) {
    if (!comforts_.platform().files.exists(z_.PfadRooms + room))
        return comforts_.notice(room + Text(" gibt es nicht mehr."));
    if (bench_.room() == nullptr) return comforts_.notice("Erst muss ein Spiel beginnen.");
    bench_.enter(room);
}

void Panel::toggleFlag(const Text& name) {
    const bool set = MerkerGesetzt(z_, name);
    set ? MerkerLöschen(z_, name) : MerkerSetzen(z_, name);
    WalkWriter* const record = bench_.record();
    if (record != nullptr && !set) record->setsFlag(name);
    if (record != nullptr && set) record->clearsFlag(name);
}

bool Panel::carries(const Text& file) const {
    for (int i = 0; i <= z_.InventarLetzter; ++i)
        if (equalIgnoringCase(Dateiname(z_.Inventar[static_cast<std::size_t>(i)]), file)) return true;
    return false;
}

void Panel::toggleItem(const Text& file) {
    WalkWriter* const record = bench_.record();
    const auto end = z_.Inventar.begin() + z_.InventarLetzter + 1;
    const auto slot = std::find_if(z_.Inventar.begin(), end,
                                   [&](const Text& path) { return equalIgnoringCase(Dateiname(path), file); });
    if (slot != end) {
        std::move(slot + 1, end, slot);
        (end - 1)->clear();
        --z_.InventarLetzter;
        if (record != nullptr) record->dropsItem(story::itemName(file));
    } else if (z_.InventarLetzter + 1 < InventarPlätze) {
        z_.Inventar[static_cast<std::size_t>(++z_.InventarLetzter)] = z_.PfadItems + file;
        if (record != nullptr) record->takesItem(story::itemName(file));
    }
    if (bench_.room() != nullptr) bench_.room()->GegenständeLaden();
}

void Panel::changeEvil(int by) {
    z_.BösePunkte += by;
    if (bench_.record() != nullptr) bench_.record()->setsEvil(z_.BösePunkte);
}

void Panel::openEditor(const std::filesystem::path& file, int line) {
    if (file.empty()) return;
    const auto command = editorCommand(std::getenv("VISUAL"), std::getenv("EDITOR"), file, line);
    if (!comforts_.platform().backend.start(command))
        comforts_.notice(fromUtf8(command.front()) + Text(" lässt sich nicht starten."_t));
}

// --- what is known

// Those of the sources, and those of which there is only the data.
std::vector<Text> Panel::roomFiles() const {
    std::vector<Text> files;
    for (const story::StoryRoom& room : bench_.compiler().story().rooms) files.push_back(room.file);
    const auto known = [&](const Text& file) {
        return std::any_of(files.begin(), files.end(),
                           [&](const Text& one) { return equalIgnoringCase(one, file); });
    };
    for (Text& file : comforts_.platform().files.list(z_.PfadRooms))
        if (isRoom(file) && !known(file)) files.push_back(std::move(file));
    std::sort(files.begin(), files.end());
    return files;
}

// Those that are set, and those that the story knows.
std::vector<Text> Panel::flags() const {
    std::set<Text> names;
    for (const Text& flag : z_.Merker)
        if (!flag.empty()) names.insert(flag);
    for (const story::ScriptView& view : bench_.compiler().scripts()) {
        const Skript& script = view.script;
        for (std::size_t i = 0; i < script.Befehl.size() && i < script.Argument.size(); ++i) {
            const std::int32_t command = script.Befehl[i];
            if (command == "SetzeMerker"_op || command == "WennMerker"_op || command == "LöscheMerker"_op)
                names.insert(upper(Trim(script.Argument[i])));
            if (command == "Spiel"_op) names.insert(upper(Trim(Feld(script.Argument[i], ",", 2))));
        }
    }
    names.erase("");
    return {names.begin(), names.end()};
}

// What the picture depends on, so that a game at rest costs nothing.
Text Panel::fingerprint() const {
    Text all = z_.RaumDatei + "|" + trace_.running() + "|" + filter_;
    for (const int number : {static_cast<int>(z_.BösePunkte), static_cast<int>(page_), scroll_, int{stepping_},
                             int{held_}, int{areas_.shown()}, int{areas_.drawing()}, window_->size().w,
                             window_->size().h, bench_.news(), trace_.count()})
        all += "|" + std::to_string(number);
    for (const Text& flag : z_.Merker) all += flag + (flag.empty() ? "" : "|");
    for (int i = 0; i <= z_.InventarLetzter; ++i) all += z_.Inventar[static_cast<std::size_t>(i)] + "|";
    return all;
}

}  // namespace zentrox::author
