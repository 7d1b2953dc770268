// Files that are there but no use: those that can't be decoded, and pictures of a size that the game does not show
// well.
#include <cmath>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/blocks.h"
#include "tools/story/check.h"

namespace zentrox::story {

namespace {

constexpr Size roomSize{640, 480};
constexpr Size itemSize{48, 48};
constexpr double shapeTolerance = 0.01;

std::string spelled(Size size) {
    return std::to_string(size.w) + " mal " + std::to_string(size.h);
}

// Looks at each file once, at the place that names it first.
class MediaChecker {
public:
    MediaChecker(const DataFiles& data, FileLooks& looks, Findings& findings)
        : data_(data),
          looks_(looks),
          findings_(findings) {}

    void look(Place place, Ordner directory, TextView path, bool ofRoom) {
        const Text file = Dateiname(Getrimmt(path));
        if (file.empty() || !data_.has(directory, file) || !seen_.insert({directory, upper(file)}).second) return;
        switch (directory) {
            case Ordner::graphics: return picture(place, file, ofRoom);
            case Ordner::items: return item(place, file);
            case Ordner::cursors: return void(usable(place, directory, "der Zeiger", file));
            case Ordner::sounds: return void(usable(place, directory, "die Tondatei", file));
            case Ordner::musics: return void(usable(place, directory, "die Musik", file));
            case Ordner::movies: return void(usable(place, directory, "der Film", file));
            default: return;
        }
    }

private:
    void broken(Place place, const char* what, TextView file, bool empty) {
        findings_.warning(
            place, "datei-kaputt",
            std::string(what) + " " + shown(file) + " lässt sich nicht lesen: " +
                (empty ? "die Datei ist leer" : "sie ist beschädigt, oder ihre Art kennt das Spiel nicht"));
    }

    // Nothing where it is no use, which then is a finding.
    std::optional<FileLook> usable(Place place, Ordner directory, const char* what, TextView file) {
        const FileLook look = looks_.look(data_, directory, file);
        if (look.usable) return look;
        broken(place, what, file, look.empty);
        return std::nullopt;
    }

    void picture(Place place, TextView file, bool ofRoom) {
        const auto look = usable(place, Ordner::graphics, "das Bild", file);
        if (!look || !ofRoom) return;
        const double shape = static_cast<double>(look->size.w) / look->size.h;
        const double wanted = static_cast<double>(roomSize.w) / roomSize.h;
        if (std::abs(shape / wanted - 1) <= shapeTolerance) return;
        findings_.warning(place, "bild-groesse",
                          "das Bild " + shown(file) + " ist " + spelled(look->size) +
                              " Pixel groß und wird verzerrt; ein Raum zeigt " + spelled(roomSize) +
                              " oder ein Vielfaches davon");
    }

    void item(Place place, TextView file) {
        const auto look = usable(place, Ordner::items, "das Bild des Gegenstands", file);
        if (look && look->size != itemSize)
            findings_.warning(place, "bild-groesse",
                              "das Bild " + shown(file) + " ist " + spelled(look->size) +
                                  " Pixel groß; in einem Fach stehen " + spelled(itemSize) +
                                  ", was darüber ist, wird abgeschnitten");
    }

    const DataFiles& data_;
    FileLooks& looks_;
    Findings& findings_;
    std::set<std::pair<Ordner, Text>> seen_;
};

}  // namespace

void checkMedia(const Story& story, const DataFiles& data, FileLooks& looks, Findings& findings) {
    MediaChecker checker(data, looks, findings);
    for (const StoryRoom& room : story.rooms) {
        checker.look(room.picture, Ordner::graphics, room.room.Bild, true);
        for (std::size_t i = 0; i < room.room.Objekte.size(); ++i)
            checker.look(room.objects[i].pointer, Ordner::cursors, room.room.Objekte[i].Zeiger, false);
    }
    for (const Story::Item& item : story.items) checker.look(item.place, Ordner::items, item.picture, false);
    for (const ScriptView& view : scriptsOf(story))
        for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) {
            const Opcode* const row = findOpcode(view.script.Befehl[i]);
            if (row == nullptr || row->datei.ordner == Ordner::keiner) continue;
            const TextView argument = argumentOf(view.script, i);
            const Text path = row->datei.feld == 0 ? Text(argument) : Feld(argument, ",", row->datei.feld);
            const bool ofRoom = row->arg == Arg::picture;
            const Text there = row->arg == Arg::sound ? data.soundFor(path) : path;
            checker.look(view.places.argument(i), row->datei.ordner, there, ofRoom);
        }
}

}  // namespace zentrox::story
