#include "comfort/comforts.h"

#include <algorithm>
#include <iostream>
#include <system_error>
#include <utility>

#include "platform/machine/replace_file.h"
#include "platform/machine/sound.h"
#include "platform/machine/whole_file.h"
#include "platform/picture/font.h"
#include "platform/values/limits.h"
#include "platform/window/controls/look.h"
#include "platform/window/controls/textlayout.h"
#include "saves/saves.h"

namespace zentrox {

namespace {

constexpr TextView notKept = "Die Einstellungen können nicht gespeichert werden: "_t;
constexpr Milliseconds noticeLasts = 3000;
const Text pausedNotice = "Pause";
constexpr int noticeMargin = 6;  // pixels

}  // namespace

std::filesystem::path settingsFile(const std::filesystem::path& directory) {
    return directory / "einstellungen.txt";
}

Settings storedSettings(const std::filesystem::path& file) {
    return readSettings(readFile(file, limits::settingsBytes).value_or(""));
}

Comforts::Comforts(Platform& platform, Zustand& zustand, ComfortMachine& machine, std::filesystem::path file)
    : platform_(platform),
      zustand_(zustand),
      machine_(machine),
      file_(std::move(file)),
      settings_(storedSettings(file_)) {
    platform_.queue.firstLook = [this](const Input& input) { return firstLook(input); };
    machine_.setOverlay([this](Bitmap& picture, const Rect& base, const Rect& top) {
        topArea_ = top;
        for (const auto& draw : overlays_) draw(picture, base);
        drawNotice(picture, base);
    });
    apply();
}

Comforts::~Comforts() {
    told_.clear();
    takeFromMachine();
    platform_.queue.firstLook = nullptr;
    machine_.setOverlay(nullptr);
}

void Comforts::apply() {
    machine_.setFullScreen(settings_.fullScreen);
    machine_.setEnlarging(static_cast<Enlarging>(settings_.enlarging));
    platform_.boxPercent = settings_.letters;
    applyLetters();
    machine_.usePad(settings_.pad);
    machine_.useTouch(settings_.touch);
    machine_.setPausesAway(settings_.pauseAway);
    const auto volume = [this](int percent) { return settings_.muted ? 0 : percent; };
    const int speech = volume(settings_.speech);
    platform_.sound.setVolumes({speech, volume(settings_.effects), volume(settings_.music), speech});
    for (const auto& told : told_) told(settings_);
}

// What stands in the windows is drawn anew, so that fine letters are noted.
void Comforts::applyLetters() {
    const bool another = settings_.fineLetters != fineLetters_ || settings_.outline != platform_.outlinedLetters;
    if (!another) return;
    platform_.outlinedLetters = settings_.outline;
    fineLetters_ = settings_.fineLetters;
    platform_.fonts.setNotes(fineLetters_);
    machine_.setFineLetters(fineLetters_);
    for (Window* const window : platform_.queue.windows()) window->root().changed();
}

void Comforts::change(const Settings& settings) {
    if (settings == settings_) return;
    settings_ = settings;
    apply();
    store();
}

void Comforts::store() {
    try {
        const std::string before = readFile(file_, limits::settingsBytes).value_or("");
        std::error_code error;
        std::filesystem::create_directories(file_.parent_path(), error);
        if (const std::string bytes = writeSettings(settings_, before); bytes != before) replaceFile(file_, bytes);
        complaint_.clear();
    } catch (const std::system_error& error) {
        const Text why = SchreibfehlerText(error.code().value());
        if (std::exchange(complaint_, why) == why) return;
        const Text text = Text(notKept) + why;
        std::cerr << "zentrox: " << file_.string() << ": " << toUtf8(text) << '\n';
        notice(text);
    }
}

// The machine has keys of its own for what it shows.
void Comforts::takeFromMachine() {
    Settings now = settings_;
    now.fullScreen = machine_.fullScreen();
    now.enlarging = static_cast<int>(machine_.enlarging());
    change(now);
}

bool Comforts::firstLook(const Input& input) {
    takeFromMachine();
    return keys_.take(input) ||
           std::any_of(looks_.begin(), looks_.end(), [&input](const auto& look) { return look(input); });
}

// The sound asks the clock in a thread of its own, but not while it is paused.
void Comforts::pausedDuring(const std::function<void()>& work) {
    struct Pause {
        Comforts& all;
        explicit Pause(Comforts& comforts) : all(comforts) {
            all.pauseSound(true);
            all.platform_.queue.stopClock();
        }
        ~Pause() {
            all.platform_.queue.letClockGoOn();
            all.pauseSound(false);
        }
    };
    const Pause pause(*this);
    keys_.during(work);
}

void Comforts::machineStands(bool stands) {
    pauseSound(stands);
    standsAway_ = stands;
    machine_.refreshOverlay();
}

void Comforts::pauseSound(bool on) {
    soundPauses_ += on ? 1 : -1;
    if (soundPauses_ == (on ? 1 : 0)) machine_.setSoundPaused(on);
}

void Comforts::notice(Text text) {
    notice_ = std::move(text);
    machine_.refreshOverlay();
    // In a window over the game it stands until the game goes on.
    noticeEnd_.emplace(platform_.queue, noticeLasts, true, [this] {
        notice_.clear();
        noticeEnd_->setEnabled(false);
        machine_.refreshOverlay();
    });
}

Text Comforts::noticeNow() const {
    if (standsAway_) return pausedNotice;
    if (!notice_.empty()) return notice_;
    for (const auto& hint : hints_)
        if (Text text = hint(); !text.empty()) return text;
    return {};
}

void Comforts::drawNotice(Bitmap& picture, const Rect& base) const {
    const Text text = noticeNow();
    if (text.empty()) return;
    const Font& font = platform_.fonts.get({.points = 10 * static_cast<float>(settings_.letters) / 100});
    // Out of the box each is as wide as it is.
    const int widest = settings_.letters == 100 ? picture.width() : base.w - 6 * noticeMargin;
    const auto lines = wrapText(font, text, widest);
    const Size size{widestLine(font, text, lines) + 4 * noticeMargin,
                    static_cast<int>(lines.size()) * font.lineHeight() + 2 * noticeMargin};
    const Rect box{{base.x + (base.w - size.w) / 2, base.y + 2 * noticeMargin}, size};
    picture.fill(box, black);
    picture.outline(box, look::highlight);
    Point at = box.at() + Point{2 * noticeMargin, noticeMargin};
    for (const TextLine& line : lines) {
        font.draw(picture, at, TextView(text).substr(line.begin, line.end - line.begin), look::highlight);
        at.y += font.lineHeight();
    }
}

}  // namespace zentrox
