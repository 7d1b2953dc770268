// Files that a story names and that are not where the game looks for them.
#include <algorithm>
#include <array>
#include <set>

#include "engine/language/games.h"
#include "engine/language/opcodes.h"
#include "engine/language/words.h"
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

constexpr std::array<TextView, 4> fixedPointers{"taste1.ico", "taste2.ico", "ge2.ico", "werfen.ico"};
constexpr std::array<TextView, 10> creditsPictures{"Titel.jpg", "2.jpg",  "k1.jpg", "k2.jpg", "k3.jpg",
                                                   "k4.jpg",    "k5.jpg", "k6.jpg", "k7.jpg", "Begeisterung.jpg"};
constexpr TextView creditsSong = "GMNUTRAC.MID";

bool isRoom(TextView file) {
    constexpr TextView extension = ".lsd";
    return file.size() > extension.size() &&
           equalIgnoringCase(file.substr(file.size() - extension.size()), extension);
}

constexpr int mostHints = 500;  // who lacks more files than these has not misspelled them

class FileChecker {
public:
    FileChecker(const Story& story, const Surroundings& around, Findings& findings)
        : story_(story),
          data_(*around.data),
          findings_(findings),
          fromSources_(around.fromSources) {
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

    // What the game itself opens in every story.
    void always() {
        if (story_.rooms.empty()) return;
        const Place place = story_.rooms.front().head;
        for (const TextView pointer : fixedPointers)
            if (!data_.has(Ordner::cursors, pointer))
                findings_.warning(place, "zeiger-fehlt",
                                  "der Zeiger " + shown(pointer) +
                                      " fehlt; ihn zeigt das Spiel in jeder Geschichte, gesucht wird in cursors");
        for (const Text& file : data_.names(Ordner::rooms))
            if (fromSources_ && isRoom(file) && !rooms_.contains(upper(file)))
                findings_.warning(place, "raum-ohne-quelle",
                                  "in rooms liegt noch " + shown(file) +
                                      ", doch keine Quelle hat diesen Raum; gelöscht oder umbenannt?");
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
        if (row->arg == Arg::game) return needGame(view.places.argument(i), argument);
        if (row->arg == Arg::word && argument == systemwort::Abspann) return needCredits(view.places.argument(i));
        if (row->datei.ordner == Ordner::keiner) return;
        const int field = row->datei.feld;
        const Text path = field == 0 ? Text(argument) : Trim(Feld(argument, ",", field));
        if (row->arg == Arg::sound && data_.hasSound(path)) return;
        const auto& places = view.places.commands[i].argument;
        need(field == 2 && places.size() > 1 ? places[1] : view.places.argument(i), row->datei.ordner, path);
    }

    void needGame(Place place, TextView argument) {
        const SpielArt* const game = findSpiel(upper(Trim(Feld(argument, ",", 1))));
        if (!game) return;
        std::vector<Text> lacking;
        for (const TextView file : game->dateien)
            if (!data_.has(Ordner::games, file)) lacking.emplace_back(file);
        tellLacking(place, "spiel-datei", "dem Spiel " + shown(game->titel), Ordner::games, lacking);
    }

    void needCredits(Place place) {
        std::vector<Text> lacking;
        for (const TextView picture : creditsPictures)
            if (!data_.has(Ordner::graphics, picture)) lacking.emplace_back(picture);
        tellLacking(place, "abspann-bild", "dem Abspann", Ordner::graphics, lacking);
        if (!data_.has(Ordner::musics, creditsSong))
            tellLacking(place, "abspann-bild", "dem Abspann", Ordner::musics, {Text(creditsSong)});
    }

    void tellLacking(Place place, const char* code, const std::string& whom, Ordner directory,
                     const std::vector<Text>& lacking) {
        if (lacking.empty()) return;
        std::string message = whom + " fehlt " + shown(lacking.front());
        if (lacking.size() > 1) message += " und " + std::to_string(lacking.size() - 1) + " weitere";
        findings_.warning(place, code, message + "; gesucht wird in " + toUtf8(verzeichnis(directory)));
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
    const bool fromSources_;
    std::vector<Text> roomNames_;
    int hints_ = 0;
};

}  // namespace

void checkFiles(const Story& story, const Surroundings& around, Findings& findings) {
    FileChecker checker(story, around, findings);
    checker.all();
    if (around.wholeGame) checker.always();
}

}  // namespace zentrox::story
