// Files that are there but no use: those that can't be decoded, and pictures of a size that the game does not show
// well.
#include <cmath>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "platform/codec/pictures.h"
#include "platform/machine/decoder.h"
#include "platform/machine/midi.h"
#include "platform/values/error.h"
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
    MediaChecker(const DataFiles& data, Findings& findings) : data_(data), findings_(findings) {}

    void look(Place place, Ordner directory, TextView path, bool ofRoom) {
        const Text file = Dateiname(Getrimmt(path));
        if (file.empty() || !data_.has(directory, file) || !seen_.insert({directory, upper(file)}).second) return;
        switch (directory) {
            case Ordner::graphics: return picture(place, file, ofRoom);
            case Ordner::items: return item(place, file);
            case Ordner::cursors: return pointer(place, file);
            case Ordner::sounds: return sound(place, file);
            case Ordner::musics: return song(place, file);
            case Ordner::movies: return film(place, file);
            default: return;
        }
    }

private:
    void broken(Place place, const char* what, TextView file) {
        findings_.warning(
            place, "datei-kaputt",
            std::string(what) + " " + shown(file) + " lässt sich nicht lesen: " +
                (isEmpty() ? "die Datei ist leer" : "sie ist beschädigt, oder ihre Art kennt das Spiel nicht"));
    }

    std::optional<Bitmap> decoded(Place place, Ordner directory, const char* what, TextView file) {
        const Text path = data_.path(directory, file);
        systemPath_ = data_.files().systemPath(path);
        try {
            return loadPicture(data_.files(), path);
        } catch (const DataError&) {
            broken(place, what, file);
            return std::nullopt;
        }
    }

    void picture(Place place, TextView file, bool ofRoom) {
        const auto bitmap = decoded(place, Ordner::graphics, "das Bild", file);
        if (!bitmap || !ofRoom) return;
        const double shape = static_cast<double>(bitmap->width()) / bitmap->height();
        const double wanted = static_cast<double>(roomSize.w) / roomSize.h;
        if (std::abs(shape / wanted - 1) <= shapeTolerance) return;
        findings_.warning(place, "bild-groesse",
                          "das Bild " + shown(file) + " ist " + spelled(bitmap->size()) +
                              " Pixel groß und wird verzerrt; ein Raum zeigt " + spelled(roomSize) +
                              " oder ein Vielfaches davon");
    }

    void item(Place place, TextView file) {
        const auto bitmap = decoded(place, Ordner::items, "das Bild des Gegenstands", file);
        if (bitmap && bitmap->size() != itemSize)
            findings_.warning(place, "bild-groesse",
                              "das Bild " + shown(file) + " ist " + spelled(bitmap->size()) +
                                  " Pixel groß; in einem Fach stehen " + spelled(itemSize) +
                                  ", was darüber ist, wird abgeschnitten");
    }

    void pointer(Place place, TextView file) {
        const Text path = data_.path(Ordner::cursors, file);
        systemPath_ = data_.files().systemPath(path);
        try {
            loadIcon(data_.files(), path);
        } catch (const DataError&) {
            broken(place, "der Zeiger", file);
        }
    }

    bool isEmpty() { return std::filesystem::file_size(systemPath_, ignored_) == 0; }

    bool audible(Ordner directory, TextView file) {
        systemPath_ = data_.files().systemPath(data_.path(directory, file));
        if (isEmpty()) return false;
        if (const auto midi = readMidi(systemPath_)) return midiLength(*midi).has_value();
        MediaDecoder* const decoder = mediaDecoder();
        return decoder == nullptr || decoder->audioLength(systemPath_) > 0;
    }

    void sound(Place place, TextView file) {
        if (!audible(Ordner::sounds, file)) broken(place, "die Tondatei", file);
    }

    void song(Place place, TextView file) {
        if (!audible(Ordner::musics, file)) broken(place, "die Musik", file);
    }

    void film(Place place, TextView file) {
        systemPath_ = data_.files().systemPath(data_.path(Ordner::movies, file));
        MediaDecoder* const decoder = mediaDecoder();
        if (isEmpty() || (decoder != nullptr && decoder->videoLength(systemPath_) == 0))
            broken(place, "der Film", file);
    }

    const DataFiles& data_;
    Findings& findings_;
    std::set<std::pair<Ordner, Text>> seen_;
    std::filesystem::path systemPath_;
    std::error_code ignored_;
};

}  // namespace

void checkMedia(const Story& story, const DataFiles& data, Findings& findings) {
    MediaChecker checker(data, findings);
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
