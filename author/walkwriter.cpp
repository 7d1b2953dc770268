#include "author/walkwriter.h"

#include <algorithm>
#include <array>
#include <utility>

#include "engine/state/felder.h"
#include "engine/state/merker.h"
#include "platform/values/keys.h"
#include "platform/window/surface.h"

namespace zentrox::author {

namespace {

constexpr Milliseconds usualLimit = 30000;  // half of what a walk waits by itself
constexpr int lookedAt = 0;
constexpr int droppedOn = 2;
constexpr std::size_t mostPassed = 10'000;  // texts of one script that are told one by one
constexpr std::size_t mostTyped = 1000;     // characters in a line

Text baseName(TextView path) {
    Text name = Dateiname(path);
    if (const std::size_t dot = name.rfind('.'); dot != Text::npos) name.resize(dot);
    return name;
}

// The one of `some` that is missing in `others`, null if none is.
const Text* missing(const std::vector<Text>& some, const std::vector<Text>& others) {
    for (const Text& one : some)
        if (std::find(others.begin(), others.end(), one) == others.end()) return &one;
    return nullptr;
}

}  // namespace

// --- lines

WalkWriter::~WalkWriter() = default;

void WalkWriter::put(const std::string& line) {
    const Milliseconds now = platform_ != nullptr ? platform_->queue.clock() : lastAt_;
    if (wait_) file_.line("wait " + std::to_string(now - lastAt_));
    wait_ = false;
    file_.line(line);
    lastAt_ = now;
}

std::string WalkWriter::limit() const {
    const Milliseconds passed = platform_ != nullptr ? platform_->queue.clock() - lastAt_ : 0;
    return passed < usualLimit ? "" : " " + std::to_string(2 * passed);
}

void WalkWriter::until(const std::string& condition) {
    put("until " + condition + limit());
}

void WalkWriter::tail(const std::string& condition) {
    if (file_.last() != "read") file_.tail("until " + condition + limit());
}

// Boxes can follow each other.
void WalkWriter::inWindow(const std::string& name) {
    if (window_ == name && name != "MsgBox") return;
    window_ = name;
    until("window " + name);
}

void WalkWriter::remarks(const std::string& text) {
    file_.line("# " + text);
}

// --- the lives of the program

void WalkWriter::watch(Platform* platform, const Zustand* state) {
    platform_ = platform;
    z_ = state;
    if (platform == nullptr) return;
    if (!first_) goesOn();
    first_ = false;
    lastAt_ = platform->queue.clock();
}

void WalkWriter::goesOn() {
    if (closing_) put("close");
    closing_ = false;
    depth_ = 0;
    tick_.reset();
    games_ = 0;
    window_ = "Form1";
    file_.tail("until window Menu 600000");
    first_ = false;
}

void WalkWriter::Schließt() {
    depth_ = 0;
    tick_.reset();
    games_ = 0;
}

// --- saving and loading by a key

// In the middle of a script as well.
void WalkWriter::putAnywhere(const std::string& line) {
    if (depth_ == 0) until("idle");
    leaves();
    inWindow("Form1");
    put(line);
}

void WalkWriter::savesByKey() {
    putAnywhere("key f5");
    remarks("played with --settings");
}

void WalkWriter::loadsByKey() {
    putAnywhere("key f9");
    remarks("played with --settings");
    depth_ = 0;
    tick_.reset();
}

// --- what an author does

void WalkWriter::doesByHand(const std::string& line) {
    inWindow("Form1");
    put(line);
}

void WalkWriter::enters(TextView room) {
    leaves();
    depth_ = 0;
    tick_.reset();
    inWindow("Form1");
    put("go " + word(room));
}

// --- scripts, and what a tick of a room changes without the player

std::size_t WalkWriter::Beginnt(const Skript& script, TextView /*room*/, int /*object*/) {
    const std::size_t number = depth_++;
    if (&script == &z_->AktuellerRaum.CountDownSkript && !tick_) {
        tick_ = look();
        tick_->depth = number;
    }
    return number;
}

void WalkWriter::Endet(std::size_t number) {
    depth_ = number;
    if (!tick_ || tick_->depth != number) return;
    const Tick before = *std::move(tick_);
    tick_.reset();
    tellTick(before);
}

void WalkWriter::Ruht() {
    depth_ = 0;
    tick_.reset();
    tail("idle");
}

WalkWriter::Tick WalkWriter::look() const {
    Tick tick;
    for (const Text& flag : z_->Merker)
        if (!flag.empty()) tick.flags.push_back(flag);
    for (int i = 0; i <= z_->InventarLetzter; ++i)
        tick.items.push_back(baseName(z_->Inventar[static_cast<std::size_t>(i)]));
    tick.evil = z_->BösePunkte;
    for (const RaumObjekt& object : z_->AktuellerRaum.Objekte) tick.active.push_back(object.Aktiv);
    return tick;
}

// Nothing of it was shown; the walk goes on when it has come.
void WalkWriter::tellTick(const Tick& before) {
    const Tick now = look();
    const Text* name = nullptr;
    if ((name = missing(now.flags, before.flags)) != nullptr) return until("flag " + word(*name));
    if ((name = missing(before.flags, now.flags)) != nullptr) return until("not flag " + word(*name));
    if ((name = missing(now.items, before.items)) != nullptr) return until("item " + word(*name));
    if ((name = missing(before.items, now.items)) != nullptr) return until("not item " + word(*name));
    if (now.evil != before.evil) return until("evil " + std::to_string(now.evil));
    if (now.active != before.active) wait_ = true;
}

void WalkWriter::ticked(const std::string& condition) {
    if (!tick_) return;
    tick_.reset();
    until(condition);
}

void WalkWriter::Betritt(TextView room) {
    ticked("room " + word(room));
}

// --- things

// The first active object of a name is the one that a walk clicks.
bool WalkWriter::nameIsEnough(int object) const {
    const auto& objects = z_->AktuellerRaum.Objekte;
    const TextView name = Getrimmt(objects[static_cast<std::size_t>(object)].Name);
    if (name.empty() || name.find('"') != TextView::npos) return false;
    return std::none_of(objects.begin(), objects.begin() + object, [&](const RaumObjekt& other) {
        return other.Aktiv && equalIgnoringCase(Getrimmt(other.Name), name);
    });
}

// As it is spelled in the bag.
Text WalkWriter::carried(TextView item) const {
    for (int i = 0; i <= z_->InventarLetzter; ++i) {
        Text name = baseName(z_->Inventar[static_cast<std::size_t>(i)]);
        if (equalIgnoringCase(name, item)) return name;
    }
    return Text(item);
}

void WalkWriter::clickWhereItStands(bool left) {
    const Control* const picture = platform_->queue.active()->find("Picture1");
    if (picture == nullptr) return;
    const Point at = picture->areaInWindow().at() + Point{static_cast<int>(z_->MausX), static_cast<int>(z_->MausY)};
    until("idle");
    if (size_) put("resize " + std::to_string(size_->w) + " " + std::to_string(size_->h));
    size_.reset();
    put(std::string("click ") + (left ? "" : "right ") + std::to_string(at.x) + " " + std::to_string(at.y));
}

void WalkWriter::Handelt(int object, int action, TextView item) {
    inWindow("Form1");
    const TextView name = Getrimmt(z_->AktuellerRaum.Objekte[static_cast<std::size_t>(object)].Name);
    if (action == droppedOn) return put("give " + word(carried(item)) + " " + word(name));
    if (!nameIsEnough(object)) return clickWhereItStands(action != lookedAt);
    put((action == lookedAt ? "look " : "use ") + word(name));
}

void WalkWriter::HandeltInLeiste(TextView item, int action, TextView onto) {
    inWindow("Form1");
    if (action == droppedOn) return put("combine " + word(carried(onto)) + " " + word(item));
    put((action == lookedAt ? "look item " : "use item ") + word(item));
}

// --- texts, choices, games

// What can be asked for of the text that stands, as walks quote it.
std::string WalkWriter::standing() const {
    const auto* const picture = dynamic_cast<const Surface*>(platform_->queue.active()->find("Picture1"));
    if (picture == nullptr || picture->printed().empty()) return {};
    const Text& line = picture->printed().back();
    return inQuotes(line.substr(0, line.find('"')));
}

void WalkWriter::Zeigt(TextView /*text*/) {
    text_ = standing();
    ticked(text_.empty() ? "not idle" : "text " + text_);
}

void WalkWriter::Gelesen() {
    if (file_.last() != "read") {
        inWindow("Form1");
        put("read");
        passed_.clear();
    }
    if (passed_.size() == mostPassed) passed_.erase(passed_.begin());
    passed_.push_back(std::exchange(text_, {}));
}

// Who leaves in the middle of a script has not read all of it, as `read` would.
void WalkWriter::leaves() {
    if (depth_ == 0 || file_.last() != "read") return;
    std::string lines;
    for (const std::string& text : passed_) lines += "until text " + text + "\nkey space\n";
    if (!text_.empty()) lines += "until text " + text_ + "\n";
    lines.pop_back();
    file_.changeLast(lines);
}

void WalkWriter::Fragt(const std::vector<Text>& texts) {
    ticked("choice");
    options_.assign(texts.empty() ? texts.end() : texts.begin() + 1, texts.end());
}

// By its text where that is the only one of its kind, so that the walk outlives another order.
std::string WalkWriter::answer(int option) const {
    const auto index = static_cast<std::size_t>(option - 1);
    if (index >= options_.size()) return std::to_string(option);
    const Text text = AntwortText(options_[index]);
    const bool only = std::count_if(options_.begin(), options_.end(), [&](const Text& other) {
                          return equalIgnoringCase(AntwortText(other), text);
                      }) == 1;
    const bool sayable = !text.empty() && text.find('"') == Text::npos;
    return only && sayable ? inQuotes(text) : std::to_string(option);
}

void WalkWriter::Gewählt(int option) {
    inWindow("Form1");
    put("choose " + answer(option));
}

void WalkWriter::Film(TextView /*file*/) {
    ticked("not idle");
}

void WalkWriter::SpielBeginnt(TextView /*name*/) {
    ticked("not idle");
    if (games_++ > 0) return;
    gameSeen_ = boxSeen_ = false;
}

// Of a game whose data is missing there is but the box that says so.
void WalkWriter::SpielEndet(TextView /*name*/, bool won) {
    if (games_ > 0) --games_;
    const bool onlyBox = boxSeen_ && !gameSeen_;
    if (games_ > 0 || onlyBox) return;
    window_ = "Form1";
    put(won ? "win" : "lose");
}

// --- windows that are no rooms and no games

void WalkWriter::sees(const Input& input) {
    const Window* const window = platform_ != nullptr ? platform_->queue.active() : nullptr;
    if (window == nullptr) return;
    const Text& name = window->name();
    constexpr std::array others{"Menu", "Dialog", "MsgBox"};
    const bool known = std::find(others.begin(), others.end(), name) != others.end();
    if (input.kind == Input::Kind::resize) {
        size_ = input.size;
    } else if (name == "Form1") {
        seesInRoom(input);
    } else if (games_ > 0 && name != "MsgBox") {
        gameSeen_ = true;
    } else if (known && (games_ == 0 || !gameSeen_)) {
        boxSeen_ = boxSeen_ || games_ > 0;
        if (name == "Menu" && input.kind == Input::Kind::close)
            closing_ = true;
        else
            seesInWindow(*window, input);
    }
}

// The walk opens the bar by itself, and passes texts; a jump by the pointer has no effect.
void WalkWriter::seesInRoom(const Input& input) {
    if (input.kind == Input::Kind::close) {
        leaves();
        closing_ = true;
    }
    const bool opens = input.code == key::f1 || input.code == key::f2 || input.code == key::f7;
    if (input.kind != Input::Kind::keyDown || !opens || z_->SkriptLäuft) return;
    inWindow("Form1");
    until("idle");
    put("key " + keyName(input.code));
}

void WalkWriter::seesInWindow(const Window& window, const Input& input) {
    switch (input.kind) {
        case Input::Kind::keyDown: return seesKey(window, input);
        case Input::Kind::keyPress: return types(window, input.character);
        case Input::Kind::press: pressed_ = input; return inWindow(toUtf8(window.name()));
        case Input::Kind::release: return clicks(window, input);
        case Input::Kind::close: inWindow(toUtf8(window.name())); return put("close");
        default: return;
    }
}

// Keys that give a character are told by that.
void WalkWriter::seesKey(const Window& window, const Input& input) {
    const std::string name = keyName(input.code);
    if (name.empty() || input.control || typesCharacter(input.code)) return;
    inWindow(toUtf8(window.name()));
    put("key " + name);
}

void WalkWriter::types(const Window& window, char character) {
    constexpr std::string_view begin = "type \"";
    if (static_cast<unsigned char>(character) < ' ') return;
    const std::string typed = toUtf8(Text(1, character));
    if (character == '"') return remarks("a quotation mark was typed here, which a walk can't");
    const std::string& last = file_.last();
    const bool goesOn = window_ == toUtf8(window.name()) && last.starts_with(begin) && last.size() < mostTyped;
    if (goesOn) return file_.changeLast(last.substr(0, last.size() - 1) + typed + '"');
    inWindow(toUtf8(window.name()));
    put(std::string(begin) + typed + '"');
}

std::string WalkWriter::withButton(const char* verb, const Input& input) const {
    const char* const button = input.button == Button::right    ? " right"
                               : input.button == Button::middle ? " middle"
                                                                : "";
    return std::string(verb) + button + " " + std::to_string(input.at.x) + " " + std::to_string(input.at.y);
}

void WalkWriter::clicks(const Window& window, const Input& input) {
    if (!pressed_ || pressed_->button != input.button) return;
    const Input press = *std::exchange(pressed_, std::nullopt);
    if (size_ && window.frame() == Frame::sizable) {
        put("resize " + std::to_string(size_->w) + " " + std::to_string(size_->h));
        size_.reset();
    }
    if (press.at != input.at) {
        put(withButton("press", press));
        return put(withButton("release", input));
    }
    const std::string click = withButton("click", press);
    if (press.clicks == 2 && file_.last() == click) return file_.changeLast("double" + click);
    put(click);
}

}  // namespace zentrox::author
