// Files that a story names and that are not where the game looks for them.
#include <algorithm>
#include <array>
#include <set>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/blocks.h"
#include "tools/story/check.h"

namespace zentrox::story {

namespace {

struct FileKind {
    Ordner directory;
    const char* code;
    const char* what;
};
constexpr std::array fileKinds{
    FileKind{Ordner::graphics, "bild-fehlt", "das Bild"},
    FileKind{Ordner::cursors, "zeiger-fehlt", "der Zeiger"},
    FileKind{Ordner::items, "gegenstand-fehlt", "das Bild des Gegenstands"},
    FileKind{Ordner::sounds, "ton-fehlt", "die Tondatei"},
    FileKind{Ordner::musics, "musik-fehlt", "die Musik"},
    FileKind{Ordner::movies, "film-fehlt", "der Film"},
    FileKind{Ordner::rooms, "raum-fehlt", "der Raum"},
};

const FileKind& kindOf(Ordner directory) {
    return *std::find_if(fileKinds.begin(), fileKinds.end(),
                         [&](const FileKind& kind) { return kind.directory == directory; });
}

constexpr int mostHints = 500;  // who lacks more files than these has not misspelled them

class FileChecker {
public:
    FileChecker(const Story& story, const Surroundings& around, Findings& findings)
        : story_(story),
          data_(*around.data),
          findings_(findings) {
        for (const Story* part : {&story, around.rest})
            for (std::size_t i = 0; part && i < part->rooms.size(); ++i) {
                rooms_.insert(upper(part->rooms[i].file));
                roomNames_.push_back(part->rooms[i].file);
            }
    }

    void all() {
        for (const StoryRoom& room : story_.rooms) {
            need(room.picture, Ordner::graphics, room.room.Bild);
            for (std::size_t i = 0; i < room.room.Objekte.size(); ++i)
                need(room.objects[i].pointer, Ordner::cursors, room.room.Objekte[i].Zeiger);
        }
        for (const Story::Item& named : story_.items) need(named.place, Ordner::items, named.picture);
        for (const ScriptView& view : scriptsOf(story_))
            for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) instruction(view, i);
    }

private:
    void missing(Place place, Ordner directory, TextView file, const std::vector<Text>& present) {
        const FileKind& kind = kindOf(directory);
        const std::string hint = hints_++ < mostHints ? perhaps(file, present) : "";
        findings_.warning(place, kind.code,
                          std::string(kind.what) + " " + shown(file) + " fehlt" +
                              (hint.empty() ? "; gesucht wird in " + Text(verzeichnis(directory)) : hint));
    }

    void need(Place place, Ordner directory, TextView path) {
        const Text file = Dateiname(path);
        if (!file.empty() && !data_.has(directory, file)) missing(place, directory, file, data_.names(directory));
    }

    void instruction(const ScriptView& view, std::size_t i) {
        const Opcode* const row = findOpcode(view.script.Befehl[i]);
        if (!row) return;
        const TextView argument = argumentOf(view.script, i);
        if (row->arg == Arg::room) return needRoom(view.places.argument(i), argument);
        if (row->datei.ordner == Ordner::keiner) return;
        const int field = row->datei.feld;
        const Text path = field == 0 ? Text(argument) : Trim(Feld(argument, ",", field));
        if (row->arg == Arg::sound && data_.hasSound(path)) return;
        const auto& places = view.places.commands[i].argument;
        need(field == 2 && places.size() > 1 ? places[1] : view.places.argument(i), row->datei.ordner, path);
    }

    void needRoom(Place place, TextView path) {
        Text name = upper(path);
        std::replace(name.begin(), name.end(), '/', '\\');
        if (!Dateiname(path).empty() && !rooms_.contains(name) && !data_.hasRoom(path))
            missing(place, Ordner::rooms, path, roomNames_);
    }

    const Story& story_;
    const DataFiles& data_;
    Findings& findings_;
    std::set<Text> rooms_;  // in upper case
    std::vector<Text> roomNames_;
    int hints_ = 0;
};

}  // namespace

void checkFiles(const Story& story, const Surroundings& around, Findings& findings) {
    FileChecker(story, around, findings).all();
}

}  // namespace zentrox::story
