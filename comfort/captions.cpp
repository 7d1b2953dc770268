#include "comfort/captions.h"

#include <algorithm>
#include <utility>

#include "comfort/soundlength.h"
#include "engine/state/felder.h"
#include "platform/values/error.h"
#include "platform/values/limits.h"

namespace zentrox {

namespace {

constexpr Milliseconds shortest = 2500;
constexpr int fromTop = 10;  // pixels

std::map<Text, Text> tableIn(const Files& files, const Text& path) {
    try {
        return files.exists(path) ? readTable(files.read(path, limits::tableBytes)) : std::map<Text, Text>();
    } catch (const DataError&) {
        return {};
    }
}

}  // namespace

std::map<Text, Text> readTable(std::string_view utf8) {
    std::map<Text, Text> table;
    const Text text = fromUtf8(utf8);
    for (const TextView line : linesOf(text)) {
        const auto tab = line.find('\t');
        if (tab == TextView::npos) continue;
        const Text name = lower(Getrimmt(line.substr(0, tab)));
        const Text words = Feld(line.substr(tab + 1), "\t", 1);
        if (!name.empty() && !Getrimmt(words).empty()) table[name] = Trim(words).substr(0, limits::captionLetters);
    }
    return table;
}

Captions::Captions(Comforts& comforts)
    : comforts_(comforts),
      gone_(comforts.platform().queue, shortest, false, [this] {
          shown_.clear();
          gone_.setEnabled(false);
          comforts_.machine().refreshOverlay();
      }) {
    comforts.observers().Dazu(*this);
    comforts.addOverlay([this](Bitmap& picture, const Rect& base) { draw(picture, base); });
}

void Captions::Öffnet(Raumfenster& /*room*/) {
    const Files& files = comforts_.platform().files;
    const Text& sounds = comforts_.zustand().PfadSounds;
    sounds_ = tableIn(files, sounds + "untertitel.tsv");
    speakers_ = tableIn(files, sounds + "sprecher.tsv");
}

// The name stays until its text is off the picture.
void Captions::Anweisung(std::size_t /*number*/, std::int32_t /*index*/) {
    if (std::exchange(spoken_, false)) comforts_.zustand().Textart.Name.clear();
}

void Captions::Klingt(TextView file) {
    const Text name = lower(Dateiname(file));
    const auto speaker = speakers_.find(name.substr(0, name.find('-')));
    comforts_.zustand().Textart.Name =
        comforts_.settings().speakerNames && speaker != speakers_.end() ? speaker->second : Text();
    spoken_ = false;
    const auto words = sounds_.find(name);
    if (!comforts_.settings().captions || words == sounds_.end()) return;
    shown_ = "[" + words->second + "]";
    gone_.setEnabled(false);
    gone_.setPeriod(std::max(shortest, soundLength(comforts_.platform().files, file)));
    gone_.setEnabled(true);
    comforts_.machine().refreshOverlay();
}

void Captions::draw(Bitmap& picture, const Rect& base) const {
    if (shown_.empty()) return;
    const auto percent = static_cast<float>(comforts_.settings().letters) / 100;
    const Font& font = comforts_.platform().fonts.get({.points = 11 * percent, .bold = true});
    const Size size = font.measure(shown_);
    const Point at{base.x + (base.w - size.w) / 2, base.y + fromTop};
    font.drawOutline(picture, at, shown_, white);
    font.draw(picture, at, shown_, white);
}

}  // namespace zentrox
