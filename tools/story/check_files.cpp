// Files that a story names and that are not where the game looks for them.
#include <algorithm>
#include <array>
#include <set>

#include "engine/interpreter/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/blocks.h"
#include "tools/story/check.h"

namespace zentrox::story {

namespace {

struct FileKind {
    Arg arg;
    int field;  // 0 for the whole argument
    const char* directory;
    const char* code;
    const char* what;
};
constexpr std::array fileKinds{
    FileKind{Arg::sound, 0, "sounds", "ton-fehlt", "die Tondatei"},
    FileKind{Arg::picture, 0, "graphics", "bild-fehlt", "das Bild"},
    FileKind{Arg::item, 0, "items", "gegenstand-fehlt", "das Bild des Gegenstands"},
    FileKind{Arg::video, 0, "movies", "film-fehlt", "der Film"},
    FileKind{Arg::objectPointer, 2, "cursors", "zeiger-fehlt", "der Zeiger"},
    FileKind{Arg::portrait, 2, "graphics", "bild-fehlt", "das Bild"},
    FileKind{Arg::music, 1, "musics", "musik-fehlt", "die Musik"},
};

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
            need(room.picture, "graphics", room.room.Bild, "bild-fehlt", "das Bild");
            for (std::size_t i = 0; i < room.room.Objekte.size(); ++i)
                need(room.objects[i].pointer, "cursors", room.room.Objekte[i].Zeiger, "zeiger-fehlt", "der Zeiger");
        }
        for (const Story::Item& item : story_.items)
            need(item.place, "items", item.picture, "gegenstand-fehlt", "das Bild des Gegenstands");
        for (const ScriptView& view : scriptsOf(story_))
            for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) instruction(view, i);
    }

private:
    void missing(Place place, TextView file, const char* directory, const char* code, const char* what,
                 const std::vector<Text>& present) {
        const std::string hint = perhaps(file, present);
        findings_.warning(place, code,
                          std::string(what) + " " + shown(file) + " fehlt" +
                              (hint.empty() ? std::string("; gesucht wird in ") + directory : hint));
    }

    void need(Place place, const char* directory, TextView path, const char* code, const char* what) {
        const Text file = Dateiname(path);
        if (!file.empty() && !data_.has(directory, file))
            missing(place, file, directory, code, what, data_.names(directory));
    }

    void instruction(const ScriptView& view, std::size_t i) {
        const Opcode* const row = findOpcode(view.script.Befehl[i]);
        if (!row) return;
        const TextView argument = argumentOf(view.script, i);
        const auto& places = view.places.commands[i].argument;
        if (row->arg == Arg::room) return room(view.places.argument(i), argument);
        for (const FileKind& kind : fileKinds) {
            if (kind.arg != row->arg) continue;
            const Text field = kind.field == 0 ? Text(argument) : Trim(Feld(argument, ",", kind.field));
            const bool ownPlace = kind.field == 2 && places.size() > 1;
            const Place place = ownPlace ? places[1] : view.places.argument(i);
            if (kind.arg == Arg::sound && data_.hasSound(field)) return;
            return need(place, kind.directory, field, kind.code, kind.what);
        }
    }

    void room(Place place, TextView path) {
        Text name = upper(path);
        std::replace(name.begin(), name.end(), '/', '\\');
        if (Dateiname(path).empty() || rooms_.contains(name) || data_.hasRoom(path)) return;
        missing(place, path, "rooms", "raum-fehlt", "der Raum", roomNames_);
    }

    const Story& story_;
    const DataFiles& data_;
    Findings& findings_;
    std::set<Text> rooms_;  // in upper case
    std::vector<Text> roomNames_;
};

}  // namespace

void checkFiles(const Story& story, const Surroundings& around, Findings& findings) {
    FileChecker(story, around, findings).all();
}

}  // namespace zentrox::story
