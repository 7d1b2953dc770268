#include "comfort/moment.h"

#include <system_error>
#include <utility>

#include "engine/state/felder.h"
#include "platform/machine/replace_file.h"
#include "platform/window/surface.h"
#include "saves/dialog.h"
#include "saves/spielstand.h"

namespace zentrox {

namespace {

constexpr std::size_t linesKept = 4;

Text withoutExtension(const Text& name) {
    return name.substr(0, name.rfind('.'));
}

// Without it the game is safe; it only has no picture.
void tryToWrite(const Files& files, const Text& path, TextView bytes, const Sidecar& sidecar) {
    try {
        writeSidecar(files, path, bytes, sidecar);
    } catch (const std::system_error&) {
    }
}

}  // namespace

void Moment::Ruht() {
    if (room_ == nullptr || barred()) return;
    Text now = SpielstandSchreiben(zustand_);
    if (now == bytes_) return;
    bytes_ = std::move(now);
    sidecar_ = sidecar();
}

void Moment::begin(TextView bytes, std::vector<Text> lines) {
    saved_ = bytes;
    before_ = std::move(lines);
    history_.forget();
    acted_ = false;
}

std::vector<Text> Moment::lastLines() const {
    std::vector<Text> lines = before_;
    for (Text& line : history_.lastLines(linesKept)) lines.push_back(std::move(line));
    if (lines.size() > linesKept) lines.erase(lines.begin(), lines.end() - linesKept);
    return lines;
}

Sidecar Moment::sidecar() const {
    Sidecar made{timeOfNow(), withoutExtension(zustand_.RaumDatei), {}, lastLines(), {}};
    for (std::int32_t i = 0; i <= zustand_.InventarLetzter; ++i)
        made.items.push_back(withoutExtension(Dateiname(zustand_.Inventar[static_cast<std::size_t>(i)])));
    for (Window* const window : platform_.queue.windows())
        if (const auto* const view = dynamic_cast<const Surface*>(window->find("Picture1")))
            if (window->name() == "Form1") made.picture = thumbnailOf(view->screen());
    return made;
}

void Moment::write(const Text& path) {
    platform_.files.makeDirectory(Speicherverzeichnis(platform_.files));
    replaceFile(platform_.files.systemPath(path), bytes_);
    saved_ = bytes_;
    tryToWrite(platform_.files, path, bytes_, sidecar_);
}

void Moment::writeBeside(const Text& path, TextView bytes) const {
    tryToWrite(platform_.files, path, bytes, sidecar());
}

}  // namespace zentrox
