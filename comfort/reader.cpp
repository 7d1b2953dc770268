#include "comfort/reader.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "comfort/soundlength.h"
#include "engine/state/textzeilen.h"
#include "platform/machine/replace_file.h"
#include "platform/machine/whole_file.h"
#include "platform/values/keys.h"
#include "platform/values/limits.h"

namespace zentrox {

namespace {

constexpr Milliseconds tickTime = 50;
constexpr Milliseconds timeForAnyText = 1200;
constexpr Milliseconds behindVoice = 500;

std::uint64_t markOf(TextView text) {
    std::uint64_t mark = 0xCBF29CE484222325U;
    for (const char c : text) mark = (mark ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return mark;
}

}  // namespace

Reader::Reader(Comforts& comforts)
    : comforts_(comforts),
      queue_(comforts.platform().queue),
      zustand_(comforts.zustand()),
      forward_(queue_, tickTime, false, [this] { tick(); }) {
    comforts.observers().Dazu(*this);
    comforts.addLook([this](const Input& input) { return swallows(input); });
    comforts.whenChanged([this](const Settings&) { apply(); });
    apply();
    addKeys();
}

void Reader::addKeys() {
    comforts_.keys().add({.code = key::pageDown,
                          .label = "Bild ab",
                          .does = "gehalten: schon Gehörtes übergehen"_t,
                          .down = [this] { setRushing(true); },
                          .up = [this] { setRushing(false); },
                          .available = [this] { return inRoom(); }});
    comforts_.keys().add({.code = key::end,
                          .label = "Ende",
                          .does = "bis zur nächsten Auswahl vorlaufen"_t,
                          .down = [this] { setRunning(zustand_.SkriptLäuft); },
                          .available = [this] { return inRoom(); }});
}

bool Reader::inRoom() const {
    return open_ && queue_.active() != nullptr && queue_.active()->name() == "Form1";
}

void Reader::apply() {
    zustand_.Textart.sofort = comforts_.settings().instantText || running_ || rushing_;
    zustand_.Textart.Prozent = comforts_.settings().letters;
    zustand_.Textart.Schrift = comforts_.settings().clearFont ? "DejaVu Sans" : "";
}

// With the setting on, a text waits for a click or one of two keys only.
bool Reader::swallows(const Input& input) const {
    if (input.kind != Input::Kind::keyDown || !comforts_.settings().strictSkip || !standing() || !inRoom())
        return false;
    return input.code != key::space && input.code != key::enter;
}

void Reader::setRunning(bool on) {
    running_ = on;
    apply();
    if (on && standing()) readOn();
}

void Reader::setRushing(bool on) {
    rushing_ = on;
    apply();
    if (on && standing() && known_) readOn();
}

// As a key that the player has pressed.
void Reader::readOn() {
    zustand_.TastenCode = static_cast<std::int16_t>(key::space);
}

Milliseconds Reader::timeFor(TextView text) const {
    std::size_t letters = 0;
    for (const Textzeile& line : TextzeilenVon(text)) letters += line.Inhalt.size();
    return timeForAnyText + static_cast<Milliseconds>(letters) * comforts_.settings().letterTime;
}

// Waits on while another window stands over the room.
void Reader::tick() {
    if (!standing() || comforts_.settings().autoForward == 0) return forward_.setEnabled(false);
    if (!inRoom() || comforts_.keys().busy()) return;
    forward_.setEnabled(false);
    readOn();
}

void Reader::Öffnet(Raumfenster& /*room*/) {
    open_ = true;
    readHeard();
}

void Reader::Schließt() {
    open_ = false;
    writeHeard();
}

void Reader::Ruht() {
    standing_ = 0;
    if (running_) setRunning(false);
}

void Reader::Klingt(TextView file) {
    const auto length =
        comforts_.settings().autoForward == 2 ? soundLength(comforts_.platform().files, file) : std::int64_t{0};
    voiceEnd_ = queue_.clock() + length;
}

void Reader::Zeigt(TextView text) {
    ++standing_;
    known_ = !heard_.insert(markOf(text)).second;
    if (running_ || (rushing_ && known_)) return readOn();
    const int how = comforts_.settings().autoForward;
    if (how == 0) return;
    const Milliseconds now = queue_.clock();
    const bool spoken = how == 2 && voiceEnd_ > now;
    forward_.setPeriod(std::max<Milliseconds>(spoken ? voiceEnd_ + behindVoice - now : timeFor(text), 1));
    forward_.setEnabled(true);
}

void Reader::Gelesen() {
    standing_ = std::max(standing_ - 1, 0);
    forward_.setEnabled(false);
    voiceEnd_ = 0;
}

void Reader::Fragt(const std::vector<Text>& /*texts*/) {
    if (running_) setRunning(false);
}

void Reader::Film(TextView /*file*/) {
    if (running_) zustand_.TastenCode = static_cast<std::int16_t>(key::escape);
}

void Reader::SpielBeginnt(TextView /*name*/) {
    if (running_) setRunning(false);
}

// --- what was heard in earlier plays of this story

std::filesystem::path Reader::heardFile() const {
    const Files& files = comforts_.platform().files;
    return files.systemPath(files.savesDirectory() + "gehoert.txt");
}

void Reader::readHeard() {
    if (!comforts_.settings().rememberHeard) return;
    const std::string bytes = readFile(heardFile(), limits::tableBytes).value_or("");
    for (const TextView line : linesOf(bytes)) {
        std::uint64_t mark = 0;
        const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), mark, 16);
        if (error == std::errc() && end != line.data()) heard_.insert(mark);
    }
}

// Called on the way out: nothing may escape.
void Reader::writeHeard() const {
    if (!comforts_.settings().rememberHeard || heard_.empty()) return;
    std::vector<std::uint64_t> marks(heard_.begin(), heard_.end());
    std::sort(marks.begin(), marks.end());
    std::string bytes;
    for (const std::uint64_t mark : marks) {
        char word[17];
        const auto [end, error] = std::to_chars(word, word + 16, mark, 16);
        bytes.append(word, end) += '\n';
    }
    try {
        comforts_.platform().files.makeDirectory(comforts_.platform().files.savesDirectory());
        replaceFile(heardFile(), bytes);
    } catch (const std::system_error&) {
        // Then these texts count as new next time.
    }
}

}  // namespace zentrox
