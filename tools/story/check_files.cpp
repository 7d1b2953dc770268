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
    const char* directory;
    const char* code;
    const char* what;
};
constexpr FileKind picture{"graphics", "bild-fehlt", "das Bild"};
constexpr FileKind pointer{"cursors", "zeiger-fehlt", "der Zeiger"};
constexpr FileKind item{"items", "gegenstand-fehlt", "das Bild des Gegenstands"};
constexpr FileKind sound{"sounds", "ton-fehlt", "die Tondatei"};
constexpr FileKind song{"musics", "musik-fehlt", "die Musik"};
constexpr FileKind video{"movies", "film-fehlt", "der Film"};
constexpr FileKind otherRoom{"rooms", "raum-fehlt", "der Raum"};

// Where the arguments of commands name files; rooms aside, which are more than files.
struct NamedFile {
    Arg arg;
    int field;  // 0 for the whole argument
    FileKind kind;
};
constexpr std::array namedFiles{
    NamedFile{Arg::sound, 0, sound},
    NamedFile{Arg::picture, 0, picture},
    NamedFile{Arg::item, 0, item},
    NamedFile{Arg::video, 0, video},
    NamedFile{Arg::objectPointer, 2, pointer},
    NamedFile{Arg::portrait, 2, picture},
    NamedFile{Arg::music, 1, song},
};

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
            need(room.picture, picture, room.room.Bild);
            for (std::size_t i = 0; i < room.room.Objekte.size(); ++i)
                need(room.objects[i].pointer, pointer, room.room.Objekte[i].Zeiger);
        }
        for (const Story::Item& named : story_.items) need(named.place, item, named.picture);
        for (const ScriptView& view : scriptsOf(story_))
            for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) instruction(view, i);
    }

private:
    void missing(Place place, const FileKind& kind, TextView file, const std::vector<Text>& present) {
        const std::string hint = hints_++ < mostHints ? perhaps(file, present) : "";
        findings_.warning(place, kind.code,
                          std::string(kind.what) + " " + shown(file) + " fehlt" +
                              (hint.empty() ? std::string("; gesucht wird in ") + kind.directory : hint));
    }

    void need(Place place, const FileKind& kind, TextView path) {
        const Text file = Dateiname(path);
        if (!file.empty() && !data_.has(kind.directory, file))
            missing(place, kind, file, data_.names(kind.directory));
    }

    void instruction(const ScriptView& view, std::size_t i) {
        const Opcode* const row = findOpcode(view.script.Befehl[i]);
        if (!row) return;
        const TextView argument = argumentOf(view.script, i);
        if (row->arg == Arg::room) return needRoom(view.places.argument(i), argument);
        const auto named = std::find_if(namedFiles.begin(), namedFiles.end(),
                                        [&](const NamedFile& n) { return n.arg == row->arg; });
        if (named == namedFiles.end()) return;
        const Text path = named->field == 0 ? Text(argument) : Trim(Feld(argument, ",", named->field));
        if (row->arg == Arg::sound && data_.hasSound(path)) return;
        const auto& places = view.places.commands[i].argument;
        need(named->field == 2 && places.size() > 1 ? places[1] : view.places.argument(i), named->kind, path);
    }

    void needRoom(Place place, TextView path) {
        Text name = upper(path);
        std::replace(name.begin(), name.end(), '/', '\\');
        if (!Dateiname(path).empty() && !rooms_.contains(name) && !data_.hasRoom(path))
            missing(place, otherRoom, path, roomNames_);
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
