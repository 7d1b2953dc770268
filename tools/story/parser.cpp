#include "tools/story/parser.h"

#include <algorithm>
#include <map>
#include <set>

#include "engine/language/limits.h"
#include "engine/state/felder.h"
#include "tools/story/scriptbuilder.h"
#include "tools/story/shapes.h"
#include "tools/story/statements.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t deepestInclude = 50;
constexpr int mostIncludes = 10000;

constexpr std::array<TextView, 3> shapeWords{"Rechteck", "Vieleck", "Maskenbild"};

constexpr std::string_view outsideScript =
    " steht in keinem Skript; davor gehört Start, Countdown, Rechts, Links oder Ablegen";

class Parser {
public:
    Parser(SourceFiles& files, Findings& findings) : files_(files), findings_(findings), builder_(findings) {}

    void source(const fs::path& path) {
        const auto text = files_.read(path);
        if (text) return source(path, *text);
        findings_.broken({fileNumber(path), 1, 1}, "lesen",
                         "diese Datei lässt sich nicht lesen; gibt es sie, und darf man sie lesen?");
    }

    void source(const fs::path& path, std::string_view utf8) {
        open_ = {path};
        statements(utf8, fileNumber(path));
        closeRoom();
        closeItem();
        level_ = Level::top;
    }

    Story story() { return std::move(story_); }

private:
    enum class Level { top, room, object, item };
    using Handler = void (Parser::*)(const Statement&);

    // --- files

    int fileNumber(const fs::path& path) {
        const auto [at, isNew] =
            numbers_.emplace(path.lexically_normal().native(), static_cast<int>(story_.files.size()));
        if (isNew) story_.files.push_back(path.lexically_normal().generic_string());
        return at->second;
    }

    void statements(std::string_view utf8, int file) {
        for (const Statement& statement : scan(utf8, file, findings_, story_.silences)) take(statement);
    }

    // A file that the open source names; directories may be told apart as in the game.
    fs::path besideThis(const Token& name) const {
        std::string path = toUtf8(name.value);
        std::replace(path.begin(), path.end(), '\\', '/');
        return (open_.back().parent_path() / fs::u8path(path)).lexically_normal();
    }

    void include(const Statement& s) {
        if (!oneName(s, findings_)) return;
        const fs::path path = besideThis(s[1]);
        const bool circle = std::find(open_.begin(), open_.end(), path) != open_.end();
        if (circle || open_.size() >= deepestInclude || ++includes_ > mostIncludes) {
            findings_.broken(s[1].place, "einbinden",
                             shown(s[1].value) + " bindet sich selbst wieder ein; so nähme die Quelle kein Ende");
            return;
        }
        const auto text = files_.read(path);
        if (!text) {
            findings_.broken(
                s[1].place, "einbinden",
                "die Datei " + shown(s[1].value) + " lässt sich nicht lesen; gesucht wird sie neben dieser");
            return;
        }
        open_.push_back(path);
        statements(*text, fileNumber(path));
        open_.pop_back();
    }

    // --- statements

    void take(const Statement& s) {
        const Token& first = s.front();
        if (first.quoted) {
            findings_.broken(first.place, "wort", "hier fehlt ein Befehl vor dem Text " + shown(first.value));
            return;
        }
        const auto keyword = keywords().find(normalised(first.value));
        if (keyword != keywords().end()) return (this->*keyword->second)(s);
        if (const Opcode* const opcode = commandNamed(first.value)) {
            if (inScript(s)) builder_.command(*opcode, s);
            return;
        }
        const std::size_t end = first.value.find_last_not_of(':') + 1;
        if (end > 0 && end < first.value.size()) return takeWithoutColon(s, end);
        findings_.broken(first.place, "wort", unknownWord(first.value, allWords()));
    }

    // As other languages have it; what is meant is plain enough to go on with.
    void takeWithoutColon(Statement s, std::size_t end) {
        Token& first = s.front();
        first.value.resize(end);
        findings_.broken(first.place, "wort", "hinter " + shown(first.value) + " gehört kein Doppelpunkt");
        take(s);
    }

    struct Keyword {
        TextView name;
        Handler take;
    };
    static constexpr std::array<Keyword, 20> keywordTable() {
        return {{{"Einbinden", &Parser::include},
                 {"Raum", &Parser::room},
                 {"Gegenstand", &Parser::item},
                 {"Skriptdatei", &Parser::scriptFile},
                 {"Bild", &Parser::picture},
                 {"Start", &Parser::start},
                 {"Countdown", &Parser::countDown},
                 {"Objekt", &Parser::object},
                 {"Zeiger", &Parser::pointer},
                 {"Aktiv", &Parser::active},
                 {"Inaktiv", &Parser::inactive},
                 {"Fläche"_t, &Parser::area},
                 {"Rechteck", &Parser::rectangle},
                 {"Vieleck", &Parser::polygon},
                 {"Maskenbild", &Parser::maskPicture},
                 {"Rechts", &Parser::right},
                 {"Links", &Parser::left},
                 {"Ablegen", &Parser::drop},
                 {"Roh", &Parser::rawCommand},
                 {"Option", &Parser::option}}};
    }

    static const std::map<Text, Handler, std::less<>>& keywords() {
        static const auto byName = [] {
            std::map<Text, Handler, std::less<>> names;
            for (const Keyword& keyword : keywordTable()) names[normalised(keyword.name)] = keyword.take;
            return names;
        }();
        return byName;
    }

    static std::vector<Text> allWords() {
        std::vector<Text> known;
        for (const Keyword& keyword : keywordTable()) known.emplace_back(keyword.name);
        for (const Opcode& opcode : opcodes()) known.emplace_back(opcode.name);
        return known;
    }

    bool misplaced(const Statement& s, std::string_view why) {
        findings_.broken(s.front().place, "platz", shown(s.front().value) + std::string(why));
        return false;
    }

    bool once(std::set<Text>& seen, const Text& what, const Statement& s) {
        if (seen.insert(what).second) return true;
        findings_.broken(s.front().place, "doppelt",
                         shown(s.front().value) + " steht hier schon weiter oben; beides gehört zusammen");
        return false;
    }

    // --- scripts

    bool inScript(const Statement& s) {
        if (toScript_) return true;
        if (!complained_) misplaced(s, outsideScript);
        complained_ = true;
        return false;
    }

    void rawCommand(const Statement& s) {
        if (inScript(s)) builder_.raw(s);
    }
    void option(const Statement& s) {
        if (inScript(s)) builder_.option(s);
    }

    void openScript(Skript& script, ScriptPlaces& places, Place head) {
        places.head = head;
        toScript_ = &script;
        toPlaces_ = &places;
    }

    void closeScript() {
        if (toScript_) builder_.finish(*toScript_, *toPlaces_);
        toScript_ = nullptr;
        complained_ = false;
    }

    // --- rooms

    // Notes a file that is written, in either spelling of its case; false if another one has this name already.
    bool isNew(const Text& kind, const Token& name) {
        const auto [at, added] = written_.emplace(kind + lower(name.value), name.place);
        if (added) return true;
        if (at->second != name.place)
            findings_.broken(name.place, "doppelt",
                             shown(name.value) + " gibt es schon, in " + spelled(at->second) +
                                 "; jeder Name kommt nur einmal vor");
        return false;
    }

    std::string spelled(const Place& place) const {
        return story_.files[static_cast<std::size_t>(place.file)] + ":" + std::to_string(place.line);
    }

    void room(const Statement& s) {
        closeRoom();
        closeItem();
        level_ = Level::room;
        room_ = {};
        room_.head = s.front().place;
        roomSeen_.clear();
        keepRoom_ = oneName(s, findings_) && isRoomFile(s[1], findings_);
        if (!keepRoom_) return;
        room_.file = s[1].value;
        std::replace(room_.file.begin(), room_.file.end(), '/', '\\');
        keepRoom_ = isNew("raum ", {false, room_.file, s[1].place});
    }

    void closeRoom() {
        closeObject();
        if (level_ == Level::room && keepRoom_) {
            room_.room.LetztesObjekt = static_cast<std::int32_t>(room_.room.Objekte.size()) - 1;
            story_.rooms.push_back(std::move(room_));
        }
        if (level_ == Level::room) level_ = Level::top;
    }

    bool inRoom(const Statement& s) {
        closeObject();
        return level_ == Level::room || misplaced(s, " gehört in einen Raum; davor fehlt Raum \"NAME.lsd\"");
    }

    bool onceInRoom(const Statement& s) { return once(roomSeen_, normalised(s.front().value), s); }

    void picture(const Statement& s) {
        if (toScript_ || level_ == Level::object)
            return void(misplaced(s, " gehört an den Anfang des Raums; im Skript heißt der Befehl ZeigBild"));
        if (!inRoom(s) || !onceInRoom(s) || !oneName(s, findings_)) return;
        room_.picture = s[1].place;
        room_.room.Bild = s[1].value;
        if (s[1].value.size() > LängstesBild || Trim(s[1].value) != s[1].value)
            findings_.broken(s[1].place, "argument",
                             "der Name eines Bildes hat höchstens " + std::to_string(LängstesBild) +
                                 " Zeichen und keine Leerzeichen am Rand");
    }

    void start(const Statement& s) { roomScript(s, room_.room.Startskript, room_.start); }
    void countDown(const Statement& s) { roomScript(s, room_.room.CountDownSkript, room_.countDown); }

    void roomScript(const Statement& s, Skript& script, ScriptPlaces& places) {
        if (!inRoom(s) || !onceInRoom(s)) return;
        noWords(s, findings_);
        openScript(script, places, s.front().place);
    }

    // --- objects

    void object(const Statement& s) {
        if (!inRoom(s)) return;
        level_ = Level::object;
        objectSeen_.clear();
        object_ = {};
        objectPlaces_ = {};
        object_.Aktiv = true;
        objectPlaces_.name = objectPlaces_.pointer = s.front().place;
        if (!oneName(s, findings_)) return;
        object_.Name = s[1].value;
        objectPlaces_.name = s[1].place;
    }

    void closeObject() {
        closeScript();
        if (level_ != Level::object) return;
        room_.room.Objekte.push_back(std::move(object_));
        room_.objects.push_back(std::move(objectPlaces_));
        level_ = Level::room;
    }

    bool inObjectHead(const Statement& s) {
        if (level_ != Level::object) return misplaced(s, " gehört in ein Objekt; davor fehlt Objekt \"NAME\"");
        return !toScript_ || misplaced(s, " gehört an den Anfang des Objekts, vor Rechts, Links und Ablegen");
    }

    bool onceInObject(const Statement& s, const Text& what) { return once(objectSeen_, what, s); }

    void pointer(const Statement& s) {
        if (!inObjectHead(s) || !onceInObject(s, "zeiger") || !oneName(s, findings_)) return;
        object_.Zeiger = s[1].value;
        objectPlaces_.pointer = s[1].place;
    }

    void active(const Statement& s) {
        if (inObjectHead(s) && noWords(s, findings_)) onceInObject(s, "aktiv");
    }

    void inactive(const Statement& s) {
        if (inObjectHead(s) && noWords(s, findings_) && onceInObject(s, "aktiv")) object_.Aktiv = false;
    }

    // `Fläche` may stand alone on its line, or with its first shape behind it.
    void area(const Statement& s) {
        if (!inObjectHead(s) || s.size() == 1) return;
        const Text shape = normalised(s[1].value);
        if (std::any_of(shapeWords.begin(), shapeWords.end(),
                        [&](TextView word) { return normalised(word) == shape; }))
            take(Statement(s.begin() + 1, s.end()));
        else
            findings_.broken(
                s[1].place, "argument",
                "hinter \"Fläche\" steht Rechteck, Vieleck oder Maskenbild; hier steht " + shown(s[1].value));
    }

    void rectangle(const Statement& s) {
        if (inObjectHead(s)) takeRectangle(s, object_.Maske, findings_);
    }

    void polygon(const Statement& s) {
        if (inObjectHead(s)) takePolygon(s, object_.Maske, findings_);
    }

    void maskPicture(const Statement& s) {
        if (!inObjectHead(s) || !oneName(s, findings_)) return;
        takePicture(s, files_.picture(besideThis(s[1])), object_.Maske, findings_);
    }

    void right(const Statement& s) { action(s, 0); }
    void left(const Statement& s) { action(s, 1); }
    void drop(const Statement& s) { action(s, 2); }

    void action(const Statement& s, std::size_t which) {
        closeScript();
        if (level_ == Level::item) return itemScript(s, which);
        if (level_ != Level::object) return void(misplaced(s, " gehört in ein Objekt oder einen Gegenstand"));
        if (!onceInObject(s, normalised(s.front().value))) return;
        const bool off = s.size() == 2 && normalised(s[1].value) == "aus";
        if (!off) noWords(s, findings_);
        object_.HatSkript[which] = !off;
        openScript(object_.Aktion[which], objectPlaces_.action[which], s.front().place);
    }

    // --- items

    void item(const Statement& s) {
        closeRoom();
        closeItem();
        level_ = Level::item;
        keepItem_ = oneName(s, findings_) && isItemPicture(s[1], findings_);
        if (!keepItem_) return;
        item_ = s[1];
        story_.items.push_back({item_.value, item_.place});
    }

    void closeItem() {
        closeScript();
        if (level_ == Level::item && keepScript_) story_.scripts.push_back(std::move(script_));
        keepScript_ = false;
        if (level_ == Level::item) level_ = Level::top;
    }

    void itemScript(const Statement& s, std::size_t which) {
        closeItem();
        level_ = Level::item;
        noWords(s, findings_);
        script_ = {};
        if (keepItem_) script_.file = itemScriptFile(item_.value, which);
        keepScript_ = keepItem_ && isNew("skript ", {false, script_.file, s.front().place});
        openScript(script_.script, script_.places, s.front().place);
    }

    // A script file under any name, for what is not named after an item.
    void scriptFile(const Statement& s) {
        closeRoom();
        closeItem();
        level_ = Level::item;
        keepItem_ = false;
        script_ = {};
        keepScript_ = oneName(s, findings_) && isScriptFile(s[1], findings_) && isNew("skript ", s[1]);
        if (keepScript_) script_.file = s[1].value;
        openScript(script_.script, script_.places, s.front().place);
    }

    SourceFiles& files_;
    Findings& findings_;
    Story story_;
    std::map<std::string, int> numbers_;
    std::vector<fs::path> open_;  // the source that is read, and those that include it
    std::map<Text, Place> written_;

    ScriptBuilder builder_;
    Skript* toScript_ = nullptr;  // where the open script goes
    ScriptPlaces* toPlaces_ = nullptr;
    StoryRoom room_;
    std::set<Text> roomSeen_;
    RaumObjekt object_;
    ObjectPlaces objectPlaces_;
    std::set<Text> objectSeen_;
    Token item_;
    StoryScript script_;

    Level level_ = Level::top;
    int includes_ = 0;
    bool complained_ = false;  // one finding is enough for a row of commands outside of scripts
    bool keepRoom_ = false;
    bool keepItem_ = false;
    bool keepScript_ = false;
};

}  // namespace

Story parseSources(const std::vector<fs::path>& sources, SourceFiles& files, Findings& findings) {
    Parser parser(files, findings);
    for (const fs::path& path : sources) parser.source(path);
    return parser.story();
}

Story parseSource(std::string_view utf8, const std::string& name, SourceFiles& files, Findings& findings) {
    Parser parser(files, findings);
    parser.source(fs::u8path(name), utf8);
    return parser.story();
}

}  // namespace zentrox::story
