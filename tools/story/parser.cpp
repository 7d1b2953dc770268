#include "tools/story/parser.h"

#include <algorithm>
#include <map>
#include <set>

#include "engine/files/raumdatei.h"
#include "engine/state/felder.h"
#include "tools/story/area.h"
#include "tools/story/scriptbuilder.h"
#include "tools/story/writer.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t deepestInclude = 50;
constexpr int mostIncludes = 10000;
constexpr std::size_t shortestItem = 5;  // a character, and the four of an extension
constexpr std::size_t mostCorners = 1000;
constexpr double farthest = 1e6;  // pixels; beyond that lies no corner

constexpr TextView areaWord = "Fläche"_t;
constexpr TextView rectangleWord = "Rechteck";
constexpr TextView polygonWord = "Vieleck";
constexpr TextView pictureWord = "Maskenbild";

constexpr std::string_view outsideScript =
    " steht in keinem Skript; davor gehört Start, Countdown, Rechts, Links oder Ablegen";

class Parser {
public:
    Parser(SourceFiles& files, Findings& findings) : files_(files), findings_(findings), builder_(findings) {}

    void source(const fs::path& path) {
        const auto text = files_.read(path);
        if (text) return source(path, *text);
        findings_.broken({fileNumber(path), 1, 1}, "lesen", "diese Datei lässt sich nicht lesen");
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

    void include(const Statement& s) {
        if (!oneName(s)) return;
        const fs::path path = (open_.back().parent_path() / fs::u8path(toUtf8(s[1].value))).lexically_normal();
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
        findings_.broken(first.place, "wort", unknownWord(first.value));
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
                 {areaWord, &Parser::area},
                 {rectangleWord, &Parser::rectangle},
                 {polygonWord, &Parser::polygon},
                 {pictureWord, &Parser::maskPicture},
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

    static std::string unknownWord(const Text& word) {
        std::vector<Text> known;
        for (const Keyword& keyword : keywordTable()) known.emplace_back(keyword.name);
        for (const Opcode& opcode : opcodes()) known.emplace_back(opcode.name);
        return shown(word) + " ist kein Befehl" + perhaps(word, known);
    }

    bool misplaced(const Statement& s, std::string_view why) {
        findings_.broken(s.front().place, "platz", shown(s.front().value) + std::string(why));
        return false;
    }

    bool noWords(const Statement& s) {
        if (s.size() == 1) return true;
        findings_.broken(s[1].place, "argument", "hinter " + shown(s.front().value) + " steht nichts weiter");
        return false;
    }

    bool oneName(const Statement& s) {
        if (s.size() == 2) {
            if (writable(s[1].value)) return true;
            findings_.broken(s[1].place, "zeichen", "hier kann kein Anführungszeichen gespeichert werden");
            return false;
        }
        findings_.broken(s.size() < 2 ? s[0].place : s[2].place, "argument",
                         "hinter " + shown(s.front().value) +
                             " steht genau ein Name; hat er Leerzeichen, dann in Anführungszeichen");
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

    bool hasRoomFileName(const Token& name) {
        const Text path = lower(name.value);
        const bool outside = path.find("..") != Text::npos || path.find(':') != Text::npos ||
                             path.starts_with('\\') || path.find('\0') != Text::npos;
        if (path.size() > 4 && path.ends_with(".lsd") && !outside) return true;
        findings_.broken(name.place, "name",
                         "ein Raum heißt wie seine Datei, etwa \"Start.lsd\"; hier steht " + shown(name.value));
        return false;
    }

    // Notes a file that is written, in either spelling of its case; false if another one has this name already.
    bool isNew(const Text& kind, const Token& name) {
        const auto [at, added] = written_.emplace(kind + lower(name.value), name.place);
        if (added) return true;
        if (at->second != name.place)
            findings_.broken(name.place, "doppelt", shown(name.value) + " gibt es schon: " + spelled(at->second));
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
        seen_.clear();
        keepRoom_ = oneName(s) && hasRoomFileName(s[1]);
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

    bool once(const Statement& s) {
        if (seen_.insert(normalised(s.front().value)).second) return true;
        findings_.broken(s.front().place, "doppelt", shown(s.front().value) + " steht hier schon weiter oben");
        return false;
    }

    void picture(const Statement& s) {
        if (toScript_ || level_ == Level::object)
            return void(misplaced(s, " gehört an den Anfang des Raums; im Skript heißt der Befehl ZeigBild"));
        if (!inRoom(s) || !once(s) || !oneName(s)) return;
        room_.picture = s[1].place;
        room_.room.Bild = s[1].value;
        if (s[1].value.size() > LängstesBild || Trim(s[1].value) != s[1].value)
            findings_.broken(s[1].place, "argument",
                             "der Name eines Bildes hat höchstens 100 Zeichen und keine Leerzeichen am Rand");
    }

    void start(const Statement& s) {
        if (inRoom(s) && noWords(s) && once(s)) openScript(room_.room.Startskript, room_.start, s.front().place);
    }

    void countDown(const Statement& s) {
        if (inRoom(s) && noWords(s) && once(s))
            openScript(room_.room.CountDownSkript, room_.countDown, s.front().place);
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
        if (!oneName(s)) return;
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

    bool onceInObject(const Statement& s, const Text& what) {
        if (objectSeen_.insert(what).second) return true;
        findings_.broken(s.front().place, "doppelt", shown(s.front().value) + " steht hier schon weiter oben");
        return false;
    }

    void pointer(const Statement& s) {
        if (!inObjectHead(s) || !onceInObject(s, "zeiger") || !oneName(s)) return;
        object_.Zeiger = s[1].value;
        objectPlaces_.pointer = s[1].place;
    }

    void active(const Statement& s) {
        if (inObjectHead(s) && noWords(s)) onceInObject(s, "aktiv");
    }

    void inactive(const Statement& s) {
        if (inObjectHead(s) && noWords(s) && onceInObject(s, "aktiv")) object_.Aktiv = false;
    }

    // `Fläche` may stand alone on its line, or with its first shape behind it.
    void area(const Statement& s) {
        if (!inObjectHead(s) || s.size() == 1) return;
        const Text shape = normalised(s[1].value);
        if (shape == normalised(rectangleWord) || shape == normalised(polygonWord) ||
            shape == normalised(pictureWord))
            take(Statement(s.begin() + 1, s.end()));
        else
            findings_.broken(s[1].place, "argument", "eine Fläche besteht aus Rechteck, Vieleck und Maskenbild");
    }

    std::optional<std::vector<Corner>> corners(const Statement& s) {
        std::vector<double> numbers;
        for (const Token& word : std::span(s).subspan(1)) {
            const auto number = Zahl(word.value);
            if (!number || !(std::abs(*number) <= farthest)) {
                findings_.broken(word.place, "argument", shown(word.value) + " ist keine Zahl von Pixeln");
                return std::nullopt;
            }
            numbers.push_back(*number);
        }
        std::vector<Corner> result;
        for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) result.push_back({numbers[i], numbers[i + 1]});
        if (numbers.size() % 2 == 0) return result;
        findings_.broken(s.back().place, "argument", "zu dieser Zahl fehlt die zweite: eine Ecke ist X und Y");
        return std::nullopt;
    }

    void needsCells(const Statement& s, bool found) {
        if (!found)
            findings_.broken(s.front().place, "flaeche",
                             "diese Fläche trifft keinen Punkt des Bildes; es reicht von 0 0 bis 640 480");
    }

    void rectangle(const Statement& s) {
        if (!inObjectHead(s)) return;
        const auto points = corners(s);
        if (points && points->size() == 2)
            return needsCells(s, addRectangle(object_.Maske, (*points)[0], (*points)[1]));
        if (points)
            findings_.broken(
                s.front().place, "argument",
                "\"Rechteck\" braucht zwei Ecken, X1 Y1 X2 Y2; hier stehen " + std::to_string(points->size()));
    }

    void polygon(const Statement& s) {
        if (!inObjectHead(s)) return;
        const auto points = corners(s);
        if (points && points->size() > mostCorners)
            findings_.broken(s.front().place, "argument",
                             "ein Vieleck hat höchstens " + std::to_string(mostCorners) + " Ecken");
        else if (points && points->size() >= 3)
            needsCells(s, addPolygon(object_.Maske, *points));
        else if (points)
            findings_.broken(
                s.front().place, "argument",
                "\"Vieleck\" braucht mindestens drei Ecken, X Y; hier stehen " + std::to_string(points->size()));
    }

    void maskPicture(const Statement& s) {
        if (!inObjectHead(s) || !oneName(s)) return;
        const auto picture =
            files_.picture((open_.back().parent_path() / fs::u8path(toUtf8(s[1].value))).lexically_normal());
        if (!picture)
            findings_.broken(
                s[1].place, "flaeche",
                "das Bild " + shown(s[1].value) + " lässt sich nicht lesen; gesucht wird es neben dieser Datei");
        else if (!addPicture(object_.Maske, *picture))
            findings_.broken(s[1].place, "flaeche", "in diesem Bild ist nichts weiß; weiß ist die Fläche");
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
        if (!off && !noWords(s)) return;
        object_.HatSkript[which] = !off;
        openScript(object_.Aktion[which], objectPlaces_.action[which], s.front().place);
    }

    // --- items

    bool isPlainFileName(const Token& name) {
        if (name.value.find_first_of("\\/:") == Text::npos && name.value.find('\0') == Text::npos) return true;
        findings_.broken(name.place, "name", "hier steht ein Dateiname ohne Verzeichnis");
        return false;
    }

    void item(const Statement& s) {
        closeRoom();
        closeItem();
        level_ = Level::item;
        keepItem_ = oneName(s) && isPlainFileName(s[1]);
        if (!keepItem_) return;
        item_ = s[1];
        if (item_.value.size() < shortestItem || item_.value.find('.', 1) == Text::npos) {
            findings_.broken(item_.place, "name",
                             "ein Gegenstand heißt wie die Datei seines Bildes, etwa "
                             "\"schluessel.bmp\"; hier steht " +
                                 shown(item_.value));
            keepItem_ = false;
            return;
        }
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
        if (!noWords(s)) return;
        script_ = {};
        if (keepItem_) script_.file = itemScriptFile(item_.value, which);
        keepScript_ = keepItem_ && isNew("skript ", {false, script_.file, s.front().place});
        openScript(script_.script, script_.places, s.front().place);
    }

    // A script file under any name, for what is not named after an item.
    void scriptFile(const Statement& s) {
        closeRoom();
        closeItem();
        if (!oneName(s) || !isPlainFileName(s[1])) return;
        level_ = Level::item;
        keepItem_ = false;
        script_ = {};
        script_.file = s[1].value;
        keepScript_ = lower(s[1].value).ends_with(".skp");
        if (!keepScript_) findings_.broken(s[1].place, "name", "eine Skriptdatei endet auf .skp");
        keepScript_ = keepScript_ && isNew("skript ", s[1]);
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
    std::set<Text> seen_;
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
