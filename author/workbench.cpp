#include "author/workbench.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <utility>

#include "engine/interpreter/raumfenster.h"
#include "engine/interpreter/sprung.h"
#include "engine/language/directories.h"
#include "engine/state/felder.h"
#include "engine/state/mangel.h"
#include "platform/machine/sound.h"
#include "platform/values/error.h"

namespace zentrox::author {

namespace fs = std::filesystem;

namespace {

// Between two looks at the disk. What has changed counts when nothing more came between two of them, since editors
// write in several steps.
constexpr Milliseconds lookEvery = 25;
constexpr std::size_t mostErrors = 3;
constexpr int margin = 6;  // pixels
constexpr Colour paper{40, 0, 0};
constexpr Colour ink{255, 220, 120};

bool isCompiled(const fs::path& file) {
    const std::string extension = lower(file.extension().native());
    return extension == ".lsd" || extension == ".skp" || file.filename() == Gegenstandsnamen;
}

bool names(const Skript& script, const std::set<Text>& media) {
    return std::any_of(script.Argument.begin(), script.Argument.end(), [&](const Text& argument) {
        const Text upperCase = upper(argument);
        return std::any_of(media.begin(), media.end(),
                           [&](const Text& name) { return upperCase.find(name) != Text::npos; });
    });
}

// Cut where a line is full, at a blank if there is one.
std::vector<Text> wrapped(Text line, int width, const Font& font) {
    std::vector<Text> rows;
    while (font.width(line) > width && line.size() > 1) {
        std::size_t fits = line.size();
        while (fits > 1 && font.width(line.substr(0, fits)) > width) --fits;
        const std::size_t blank = line.rfind(' ', fits);
        const std::size_t cut = blank != Text::npos && blank > 0 ? blank : fits;
        rows.push_back(line.substr(0, cut));
        line.erase(0, cut);
    }
    rows.push_back(std::move(line));
    return rows;
}

}  // namespace

Workbench::Workbench(Comforts& comforts, Compiler& compiler, WalkWriter* record)
    : comforts_(comforts),
      compiler_(compiler),
      record_(record),
      timer_(comforts.platform().queue, lookEvery, true, [this] { look(); }) {
    comforts_.observers().Dazu(*this);
    // An author is away in an editor most of the time, and looks at what comes of it.
    comforts_.whenChanged([this](const Settings&) { comforts_.machine().setPausesAway(false); });
    comforts_.machine().setPausesAway(false);
    comforts_.addOverlay([this](Bitmap& picture, const Rect& base) { draw(picture, base); });
    compile();
    const Files& files = comforts_.platform().files;
    for (const Datenverzeichnis& directory : Datenverzeichnisse) watch(files.systemPath(directory.name));
}

void Workbench::watchSources() {
    for (const fs::path& directory : compiler_.directories()) watch(directory);
}

void Workbench::watch(const fs::path& directory) {
    if (watched_.insert(directory).second) watch_.add(directory);
}

void Workbench::look() {
    const auto news = watch_.take();
    changed_.insert(news.begin(), news.end());
    if (!news.empty() || changed_.empty()) return;
    take(sorted(std::exchange(changed_, {})));
}

Workbench::Changes Workbench::sorted(const std::set<fs::path>& files) const {
    Changes changes;
    for (const fs::path& file : files) {
        const bool ofSources = compiler_.directories().contains(file.parent_path());
        if (watched_.contains(file) || (ofSources && compiler_.isSource(file)))
            changes.sources = true;
        else if (!isCompiled(file))
            changes.media.insert(upper(fromUtf8(file.filename().string())));
    }
    return changes;
}

void Workbench::take(const Changes& changes) {
    const bool otherRoom = changes.sources && compile();
    playSongAnew(changes.media);
    showBagAnew(changes.media);
    comforts_.refresh();
    if (otherRoom || roomNames(changes.media)) enter(comforts_.zustand().RaumDatei);
}

bool Workbench::compile() {
    const auto begin = std::chrono::steady_clock::now();
    Compiler::Result result = compiler_.compile();
    const auto end = std::chrono::steady_clock::now();
    watchSources();
    findings_ = std::move(result.findings);
    ++news_;
    for (const Compiler::Finding& finding : findings_) std::cerr << finding.inFull << '\n';
    const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(end - begin).count();
    const Text told =
        result.worked ? Text("Übersetzt in "_t) + std::to_string(took) + " ms" : Text();  // errors stand there
    comforts_.notice(told);
    if (result.worked) std::cerr << toUtf8(told) << std::endl;
    const Text room = comforts_.zustand().RaumDatei;
    return std::any_of(result.changed.begin(), result.changed.end(), [&](const fs::path& file) {
        return equalIgnoringCase(fromUtf8(file.filename().string()), room);
    });
}

bool Workbench::roomNames(const std::set<Text>& media) const {
    const Raum& room = comforts_.zustand().AktuellerRaum;
    if (media.empty()) return false;
    if (media.contains(upper(Dateiname(room.Bild)))) return true;
    if (names(room.Startskript, media) || names(room.CountDownSkript, media)) return true;
    return std::any_of(room.Objekte.begin(), room.Objekte.end(), [&](const RaumObjekt& object) {
        return media.contains(upper(object.Zeiger)) ||
               std::any_of(object.Aktion.begin(), object.Aktion.end(),
                           [&](const Skript& script) { return names(script, media); });
    });
}

void Workbench::playSongAnew(const std::set<Text>& media) {
    const Text& song = comforts_.zustand().AktuellerSong;
    if (song.empty() || !media.contains(upper(Dateiname(song)))) return;
    SoundDevice& sound = comforts_.platform().sound;
    sound.stopSong();
    if (comforts_.platform().files.exists(song)) sound.playSong(song);
}

void Workbench::showBagAnew(const std::set<Text>& media) {
    const auto& bag = comforts_.zustand().Inventar;
    const bool shown = std::any_of(bag.begin(), bag.end(),
                                   [&](const Text& picture) { return media.contains(upper(Dateiname(picture))); });
    if (shown && room_ != nullptr) room_->GegenständeLaden();
}

// A room that can't be read leaves the author where they are.
void Workbench::enter(const Text& room) {
    if (room_ == nullptr || room.empty()) return;
    if (record_ != nullptr) record_->enters(room);
    throw Sprung{[this, room] {
        try {
            room_->GegenständeLaden();
            room_->Lade(comforts_.zustand().PfadRooms + room);
        } catch (const Ausweglos&) {
            throw;
        } catch (const DataError& error) {
            const std::string why = toUtf8(error.message());
            findings_ = {{.message = why, .inFull = why}};
            ++news_;
            comforts_.refresh();
        }
    }};
}

bool Workbench::faulty() const {
    return std::any_of(findings_.begin(), findings_.end(), [](const auto& one) { return one.isError; });
}

void Workbench::draw(Bitmap& picture, const Rect& base) const {
    if (!faulty()) return;
    const Font& font = comforts_.platform().fonts.get({.points = 9});
    std::vector<Text> rows;
    std::size_t errors = 0;
    for (const Compiler::Finding& finding : findings_) {
        if (!finding.isError || ++errors > mostErrors) continue;
        for (Text& row : wrapped(fromUtf8(shortly(finding)), base.w - 2 * margin, font))
            rows.push_back(std::move(row));
    }
    if (errors > mostErrors) rows.push_back("und " + std::to_string(errors - mostErrors) + " weitere");
    const int height = static_cast<int>(rows.size()) * font.lineHeight() + 2 * margin;
    picture.fill({base.x, base.y, base.w, height}, paper);
    Point at = base.at() + Point{margin, margin};
    for (const Text& row : rows) {
        font.draw(picture, at, row, ink);
        at.y += font.lineHeight();
    }
}

}  // namespace zentrox::author
