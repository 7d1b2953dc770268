#include "author/panel.h"

#include <algorithm>
#include <cstdlib>
#include <set>

#include "author/editor.h"
#include "engine/interpreter/raumfenster.h"
#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "engine/state/merker.h"
#include "platform/sdl/desktop.h"
#include "platform/values/keys.h"
#include "platform/window/controls/look.h"

namespace zentrox::author {

namespace {

constexpr Size firstSize{380, 483};
constexpr Milliseconds lookEvery = 50;
constexpr int margin = 8;  // pixels
constexpr int wheelRows = 3;
constexpr Colour accent{0, 0, 128};
constexpr Colour faint{110, 110, 110};
constexpr Colour stripe{240, 240, 244};
constexpr Colour warm{176, 32, 0};

Text baseName(TextView file) {
    return Text(file.substr(0, file.rfind('.')));
}

}  // namespace

Panel::Panel(Workbench& bench, sdl::Desktop& desktop)
    : bench_(bench),
      comforts_(bench.comforts()),
      z_(comforts_.zustand()),
      desktop_(desktop),
      trace_(bench.compiler(), z_),
      timer_(comforts_.platform().queue, lookEvery, true, [this] { look(); }) {
    comforts_.observers().Dazu(trace_);
    trace_.onCommand = [this] { holdBeforeCommand(); };
    ComfortKeys& keys = comforts_.keys();
    keys.add({.code = key::f9,
              .control = true,
              .label = "Strg+F9",
              .does = "Werkbank: das Fenster daneben",
              .down = [this] { showOrHide(); }});
    keys.add(
        {.code = key::f4, .label = "F4", .does = "vor jedem Befehl halten; einen Befehl weiter", .down = [this] {
             step();
         }});
    keys.add({.code = key::f4, .control = true, .label = "Strg+F4", .does = "ohne Halt weiter", .down = [this] {
                  goOn();
              }});
    comforts_.addLook([this](const Input& input) { return heldInput(input); });
}

void Panel::showOrHide() {
    if (window_) return void(closed_ = true);
    window_ = std::make_unique<sdl::SideWindow>(desktop_, "Zentrox: Werkbank", firstSize);
    window_->onClick = [this](Point at) { clicks_.push_back(at); };
    window_->onWheel = [this](Point, int lines) { wheel(lines); };
    window_->onClose = [this] { closed_ = true; };
    window_->onExposed = [this] { shown_.clear(); };
    shown_.clear();
}

// A click may leave the room, and never comes back here then.
void Panel::look() {
    if (closed_) window_.reset();
    closed_ = false;
    if (!window_) return;
    while (!clicks_.empty()) {
        const Point at = clicks_.front();
        clicks_.erase(clicks_.begin());
        shown_.clear();
        if (!click(at)) continue;
    }
    Text now = fingerprint();
    if (now == shown_) return;
    shown_ = std::move(now);
    paint();
    window_->show(picture_);
}

bool Panel::click(Point at) {
    for (const Spot& spot : spots_) {
        if (!spot.area.contains(at)) continue;
        const auto action = spot.click;
        action();
        return true;
    }
    return false;
}

void Panel::wheel(int lines) {
    scroll_ = std::max(0, scroll_ + (page_ == Page::trace ? lines : -lines) * wheelRows);
    shown_.clear();
}

// --- the hand in the game

// The game below does not know that it is held: its clock goes on, and what the player does is kept from it.
void Panel::holdBeforeCommand() {
    if (!stepping_) return;
    held_ = true;
    mayRun_ = false;
    struct Free {
        bool& held;
        ~Free() { held = false; }
    };
    const Free free{held_};
    comforts_.platform().queue.waitUntil("Schritt", [this] { return mayRun_ || !stepping_; });
}

void Panel::step() {
    if (stepping_) mayRun_ = true;
    if (!stepping_) comforts_.notice("Vor jedem Befehl wird gehalten: F4 weiter, Strg+F4 ohne Halt.");
    stepping_ = true;
    shown_.clear();
}

void Panel::goOn() {
    stepping_ = false;
    shown_.clear();
}

bool Panel::heldInput(const Input& input) {
    return held_ && input.kind != Input::Kind::close && input.kind != Input::Kind::resize;
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
        if (record != nullptr) record->dropsItem(baseName(file));
    } else if (z_.InventarLetzter + 1 < InventarPlätze) {
        z_.Inventar[static_cast<std::size_t>(++z_.InventarLetzter)] = z_.PfadItems + file;
        if (record != nullptr) record->takesItem(baseName(file));
    }
    if (bench_.room() != nullptr) bench_.room()->GegenständeLaden();
}

void Panel::changeEvil(int by) {
    z_.BösePunkte += by;
    if (bench_.record() != nullptr) bench_.record()->setsEvil(z_.BösePunkte);
}

void Panel::openEditor(const Trace::Entry& entry) {
    if (entry.file.empty()) return;
    const auto command = editorCommand(std::getenv("VISUAL"), std::getenv("EDITOR"), entry.file, entry.line);
    if (!comforts_.platform().backend.start(command))
        comforts_.notice(fromUtf8(command.front()) + Text(" lässt sich nicht starten."_t));
}

// --- what is known

std::vector<Text> Panel::roomFiles() const {
    std::vector<Text> files;
    for (const story::StoryRoom& room : bench_.compiler().story().rooms) files.push_back(room.file);
    std::sort(files.begin(), files.end());
    return files;
}

// Those that are set, and those that the story knows.
std::vector<Text> Panel::flags() const {
    std::set<Text> names;
    for (const Text& flag : z_.Merker)
        if (!flag.empty()) names.insert(flag);
    for (const story::ScriptView& view : story::scriptsOf(bench_.compiler().story())) {
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
    Text all = z_.RaumDatei + "|" + std::to_string(z_.BösePunkte) + "|" + trace_.running() + "|" +
               std::to_string(static_cast<int>(page_)) + "|" + std::to_string(scroll_) + "|" +
               std::to_string(stepping_) + std::to_string(held_) + "|" + std::to_string(window_->size().w) + "|" +
               std::to_string(window_->size().h) + "|" + std::to_string(bench_.compiler().story().rooms.size());
    for (const Text& flag : z_.Merker) all += flag + (flag.empty() ? "" : "|");
    for (int i = 0; i <= z_.InventarLetzter; ++i) all += z_.Inventar[static_cast<std::size_t>(i)] + "|";
    if (!trace_.entries().empty()) {
        const Trace::Entry& last = trace_.entries().back();
        all += last.text + std::to_string(last.line) + std::to_string(trace_.entries().size());
    }
    return all;
}

// --- the picture

int Panel::text(Point at, const Text& text, Colour colour, bool bold) {
    const Font& font = comforts_.platform().fonts.get({.points = 9, .bold = bold});
    font.draw(picture_, at, text, colour);
    return at.x + font.width(text);
}

int Panel::button(Point at, const Text& label, bool down, std::function<void()> click) {
    const Font& font = comforts_.platform().fonts.get({.points = 9});
    const Rect area{at.x, at.y, font.width(label) + 16, font.lineHeight() + 8};
    picture_.fill(area, down ? look::light : look::face);
    down ? look::sunken(picture_, area) : look::raised(picture_, area);
    text(at + Point{8, 4}, label, look::text);
    spots_.push_back({area, std::move(click)});
    return area.right() + 4;
}

void Panel::paint() {
    const Size size = window_->size();
    if (picture_.size() != size) picture_ = Bitmap(size);
    picture_.setClip(picture_.bounds());
    picture_.fill(look::face);
    spots_.clear();
    list(tabs(header(margin)));
}

// Where a play is: its room, its evil counter, its script.
int Panel::header(int y) {
    const int line = comforts_.platform().fonts.get({.points = 9}).lineHeight();
    int x = text({margin, y + 4}, z_.RaumDatei.empty() ? Text("(kein Raum)") : z_.RaumDatei, accent, true);
    x = std::max(x + 16, picture_.width() - 176);
    x = text({x, y + 4}, Text("Böse "_t) + std::to_string(z_.BösePunkte), look::text) + 8;
    x = button({x, y}, "-", false, [this] { changeEvil(-1); });
    button({x, y}, "+", false, [this] { changeEvil(1); });
    y += line + 14;
    const bool runs = !trace_.running().empty();
    text({margin, y}, runs ? "Skript: " + trace_.running() : Text("Kein Skript läuft."_t), runs ? warm : faint);
    y += line + 2;
    if (runs && !trace_.entries().empty()) {
        const Trace::Entry& entry = trace_.entries().back();
        const Text place = entry.file.empty()
                               ? Text()
                               : fromUtf8(entry.file.filename().string()) + ":" + std::to_string(entry.line) + "  ";
        text({margin, y}, place + entry.text, look::text);
        spots_.push_back({{0, y, picture_.width(), line}, [this, entry] { openEditor(entry); }});
    }
    y += line + 6;
    x = button({margin, y}, held_ ? "Schritt (F4)" : "Halten (F4)", stepping_, [this] { step(); });
    if (stepping_) button({x, y}, "Weiter (Strg+F4)", false, [this] { goOn(); });
    return y + line + 16;
}

int Panel::tabs(int y) {
    constexpr std::array names{"Spur", "Räume", "Merker", "Gepäck"};
    int x = margin;
    for (int i = 0; i < static_cast<int>(names.size()); ++i) {
        const auto page = static_cast<Page>(i);
        x = button({x, y}, fromUtf8(names[static_cast<std::size_t>(i)]), page_ == page, [this, page] {
            page_ = page;
            scroll_ = 0;
        });
    }
    return y + comforts_.platform().fonts.get({.points = 9}).lineHeight() + 12;
}

void Panel::list(int y) {
    const Rect frame{margin, y, picture_.width() - 2 * margin, picture_.height() - y - margin};
    picture_.fill(frame, look::ground);
    look::sunken(picture_, frame);
    listArea_ = look::shrunk(frame, look::edge);
    const look::Clip clip(picture_, listArea_);
    if (clip.empty()) return;
    rowY_ = listArea_.y;
    page_ == Page::trace ? traceRows() : nameRows();
}

void Panel::row(const Text& what, Colour colour, std::function<void()> click, bool marked) {
    const int height = comforts_.platform().fonts.get({.points = 9}).lineHeight() + 3;
    const Rect area{listArea_.x, rowY_, listArea_.w, height};
    rowY_ += height;
    if (area.y >= listArea_.bottom()) return;
    if ((area.y - listArea_.y) / height % 2 == 1) picture_.fill(area, stripe);
    if (marked) picture_.fill({area.x + 4, area.y + height / 2 - 3, 7, 7}, accent);
    if (!marked && page_ != Page::trace) picture_.outline({area.x + 4, area.y + height / 2 - 3, 7, 7}, faint);
    text({area.x + (page_ == Page::trace ? 4 : 18), area.y + 1}, what, colour, marked);
    spots_.push_back({area, std::move(click)});
}

// The newest stands at the bottom, as in a terminal.
void Panel::traceRows() {
    const int height = comforts_.platform().fonts.get({.points = 9}).lineHeight() + 3;
    const auto& all = trace_.entries();
    const int fit = std::max(1, listArea_.h / height);
    const int count = static_cast<int>(all.size());
    scroll_ = std::clamp(scroll_, 0, std::max(0, count - fit));
    const int end = count - scroll_;
    for (int i = std::max(0, end - fit); i < end; ++i) {
        const Trace::Entry& entry = all[static_cast<std::size_t>(i)];
        const Text place = entry.file.empty()
                               ? Text("-")
                               : fromUtf8(entry.file.filename().string()) + ":" + std::to_string(entry.line);
        row(place + "  " + entry.text, i == count - 1 && held_ ? warm : look::text,
            [this, entry] { openEditor(entry); });
    }
}

void Panel::nameRows() {
    const int height = comforts_.platform().fonts.get({.points = 9}).lineHeight() + 3;
    struct Name {
        Text text;
        bool marked;
        std::function<void()> click;
    };
    std::vector<Name> names;
    if (page_ == Page::rooms)
        for (const Text& file : roomFiles())
            names.push_back({file, equalIgnoringCase(file, z_.RaumDatei), [this, file] {
                                 if (bench_.record() != nullptr) bench_.record()->enters(file);
                                 bench_.enter(file);
                             }});
    if (page_ == Page::flags)
        for (const Text& flag : flags())
            names.push_back({flag, MerkerGesetzt(z_, flag), [this, flag] { toggleFlag(flag); }});
    if (page_ == Page::items)
        for (const Text& file : probe::itemFiles(comforts_.platform().files, z_.PfadItems))
            names.push_back({baseName(file), carries(file), [this, file] { toggleItem(file); }});
    const int fit = std::max(1, listArea_.h / height);
    scroll_ = std::clamp(scroll_, 0, std::max(0, static_cast<int>(names.size()) - fit));
    for (auto i = static_cast<std::size_t>(scroll_); i < names.size(); ++i)
        row(names[i].text, look::text, names[i].click, names[i].marked);
}

}  // namespace zentrox::author
