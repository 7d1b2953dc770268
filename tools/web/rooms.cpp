#include "tools/web/rooms.h"

#include <algorithm>

#include "engine/language/games.h"
#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/data.h"

namespace zentrox::web {

namespace {

class Collector {
public:
    explicit Collector(const story::StoryRoom& room) {
        needs_.room = below(Ordner::rooms, room.file);
        file(Ordner::graphics, room.room.Bild);
        for (const RaumObjekt& object : room.room.Objekte) pointers(object.Zeiger);
        for (const auto& view : story::scriptsOf(room))
            for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) instruction(view.script, i);
    }
    RoomNeeds take() { return std::move(needs_); }

private:
    static Text below(Ordner directory, TextView file) { return Text(verzeichnis(directory)) + "\\" + Text(file); }
    static void add(std::vector<Text>& to, const Text& path) {
        if (std::find(to.begin(), to.end(), path) == to.end()) to.push_back(path);
    }
    void file(Ordner directory, TextView path) {
        const Text name = Dateiname(path);
        if (!name.empty()) add(needs_.files, below(directory, name));
    }
    // A pointer that moves has its pictures in a row of files, "hand1.ico" to "hand5.ico".
    void pointers(const Text& path) {
        file(Ordner::cursors, path);
        const std::size_t dot = path.rfind('.');
        if (dot == Text::npos || dot == 0) return;
        for (char number = '2'; number <= '5'; ++number) {
            Text other = path;
            other[dot - 1] = number;
            file(Ordner::cursors, other);
        }
    }
    void instruction(const Skript& script, std::size_t i) {
        const Opcode* const row = findOpcode(script.Befehl[i]);
        if (row == nullptr || i >= script.Argument.size()) return;
        const TextView argument = script.Argument[i];
        if (row->arg == Arg::room) return add(needs_.next, below(Ordner::rooms, argument));
        if (row->arg == Arg::game) return game(Trim(Feld(argument, ",", 1)));
        const Ordner directory = row->datei.ordner;
        if (directory != Ordner::graphics && directory != Ordner::cursors && directory != Ordner::items) return;
        file(directory, row->datei.feld == 0 ? Text(argument) : Trim(Feld(argument, ",", row->datei.feld)));
    }
    void game(const Text& name) {
        const SpielArt* const game = findSpiel(upper(name));
        if (game == nullptr) return;
        for (const TextView file : game->dateien) add(needs_.files, below(Ordner::games, file));
    }

    RoomNeeds needs_;
};

}  // namespace

std::vector<RoomNeeds> roomNeeds(const std::filesystem::path& directory) {
    std::vector<RoomNeeds> needs;
    if (!story::isDataDirectory(directory)) return needs;
    story::Story read;
    story::Findings ignored;
    story::readDataDirectory(directory, read, ignored);
    for (const story::StoryRoom& room : read.rooms) needs.push_back(Collector(room).take());
    return needs;
}

}  // namespace zentrox::web
