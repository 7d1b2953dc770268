#include "tools/story/parser.h"

#include <algorithm>
#include <map>
#include <set>

#include "engine/language/limits.h"
#include "engine/state/felder.h"
#include "tools/story/lower.h"
#include "tools/story/scriptbuilder.h"
#include "tools/story/shapes.h"
#include "tools/story/sourcereader.h"
#include "tools/story/statements.h"
#include "tools/story/vocabulary.h"
#include "tools/story/voicetable.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

constexpr std::array<TextView, 3> shapeWords{"Rechteck", "Vieleck", "Maskenbild"};

constexpr std::string_view outsideScript =
    " steht in keinem Skript; davor gehört Start, Countdown, Rechts, Links oder Ablegen";

class Parser {
public:
    Parser(SourceFiles& files, Story& story, const Names& names, Findings& findings)
        : files_(files),
          story_(story),
          names_(names),
          findings_(findings),
          builder_(findings) {}

    void source(const std::vector<Statement>& statements) {
        for (const Statement& statement : statements) take(statement);
        closeRoom();
        closeItem();
        level_ = Level::top;
        lost_ = false;
        roomEnd_ = {};
    }

    // Items that can be combined and have no script of their own.
    void combinations() {
        std::set<Text> done;
        for (const Combination& made : names_.combinations)
            for (const Text& picture : {made.first, made.second}) {
                const Text base = upper(itemName(picture));
                if (!made.compiled || names_.dropped.contains(base) || !done.insert(base).second) continue;
                StoryScript script;
                script.file = itemScriptFile(picture, drop_);
                script.places.head = made.head[0].place;
                compile(withCombinations(names_, base, std::nullopt, findings_), script.script, script.places);
                story_.scripts.push_back(std::move(script));
            }
    }

private:
    enum class Level { top, room, object, item, part, person };
    using Handler = void (Parser::*)(const Statement&);

    // --- statements

    void take(const Statement& s) {
        const Token& first = s.front();
        if (first.quoted) {
            findings_.broken(first.place, "wort", "hier fehlt ein Befehl vor dem Text " + shown(first.value));
            return;
        }
        const auto keyword = keywords().find(normalised(first.value));
        if (keyword != keywords().end()) return (this->*keyword->second)(s);
        if (level_ == Level::person && commandNamed(first.value) && isPersonWord(first)) return;
        if (speakerOf(s) && !isKeywordWithColon(first)) return toScript(s);
        if (isScriptWord(first.value)) return toScript(s);
        const std::size_t end = first.value.find_last_not_of(':') + 1;
        if (end > 0 && end < first.value.size()) return takeWithoutColon(s, end);
        if (headingOf(s)) return takeAsHeading(s);
        findings_.broken(first.place, "wort", unknownWord(first.value, allWords()));
    }

    // What heads a block by the file that it names, though its word is none of ours: "Room x.lsd". Else null.
    static const char* headingOf(const Statement& s) {
        if (s.size() != 2) return nullptr;
        if (lower(s[1].value).ends_with(".lsd")) return "Raum";
        return !s[1].quoted || !lower(s[1].value).ends_with(".bmp") ? nullptr : "Gegenstand";
    }

    // So that all that stands below it has its place.
    void takeAsHeading(Statement s) {
        const char* const meant = headingOf(s);
        findings_.broken(s.front().place, "wort",
                         shown(s.front().value) + " ist kein Befehl; gemeint ist \"" + meant + "\"");
        s.front().value = meant;
        take(s);
    }

    void toScript(const Statement& s) {
        if (level_ != Level::part && inScript(s)) script_.push_back(s);
    }

    static bool isPersonWord(const Token& first) { return normalised(first.value) == "portrait"; }

    static bool isScriptWord(TextView word) {
        const LanguageWord* const known = languageWord(word);
        return known && (known->where & stands::script) != 0;
    }

    bool isKeywordWithColon(const Token& first) const {
        TextView word = first.value;
        if (!word.ends_with(':')) return false;
        while (word.ends_with(':')) word.remove_suffix(1);
        return !names_.person(word) && (keywords().contains(normalised(word)) || isScriptWord(word));
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
    static constexpr std::array<Keyword, 23> keywordTable() {
        return {{{"Raum", &Parser::room},
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
                 {"Person", &Parser::person},
                 {"Farbe", &Parser::personLine},
                 {"Stimme", &Parser::personLine},
                 {"Spieler", &Parser::personLine},
                 {"Skriptteil", &Parser::part},
                 {"Kombiniere", &Parser::part}}};
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
        for (const LanguageWord& word : languageWords()) known.emplace_back(word.name);
        return known;
    }

    // Where a heading is missing, one finding is enough for all that would stand below it.
    bool misplaced(const Statement& s, std::string_view why) {
        const bool headless = level_ == Level::top || level_ == Level::item;
        if (headless && lost_) return false;
        lost_ = headless;
        const bool cut = headless && roomEnd_ != Place{};
        findings_.broken(s.front().place, "platz",
                         shown(s.front().value) + std::string(why) +
                             (cut ? "; der Raum darüber endet bei " + spelled(roomEnd_) +
                                        ", was nicht zu ihm gehört, steht vor oder hinter ihm"
                                  : ""));
        return false;
    }

    // Something begins that stands by itself, a room or not.
    void begin(const Statement& s, bool room) {
        roomEnd_ = !room && (level_ == Level::room || level_ == Level::object) ? s.front().place : Place{};
        lost_ = false;
        closeRoom();
        closeItem();
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

    void openScript(Skript& script, ScriptPlaces& places, Place head) {
        places.head = head;
        toScript_ = &script;
        toPlaces_ = &places;
    }

    void closeScript() {
        if (toScript_) {
            Nodes nodes = readTree(script_, findings_);
            if (!combined_.empty()) nodes = withCombinations(names_, combined_, std::move(nodes), findings_);
            compile(nodes, *toScript_, *toPlaces_);
        }
        combined_.clear();
        script_.clear();
        toScript_ = nullptr;
        complained_ = false;
    }

    void compile(const Nodes& nodes, Skript& script, ScriptPlaces& places) {
        for (const PlainCommand& command : plainCommands(nodes, {where_}, names_, findings_))
            builder_.take(command);
        builder_.finish(script, places);
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
        begin(s, true);
        level_ = Level::room;
        room_ = {};
        room_.head = s.front().place;
        roomSeen_.clear();
        keepRoom_ = oneName(s, findings_) && isRoomFile(s[1], findings_);
        if (!keepRoom_) return;
        room_.file = s[1].value;
        std::replace(room_.file.begin(), room_.file.end(), '/', '\\');
        keepRoom_ = isNew("raum ", {false, room_.file, s[1].place});
        where_ = stemOf(room_.file);
    }

    // Things of the room that can be taken.
    const std::vector<Takeable>& takeables() const {
        static const std::vector<Takeable> none;
        const auto found = names_.takeables.find(lower(room_.file));
        return found == names_.takeables.end() ? none : found->second;
    }

    void putAbsences() {
        for (const Takeable& thing : takeables())
            for (Statement& s : absenceOf(thing)) script_.push_back(std::move(s));
    }

    void closeRoom() {
        closeObject();
        if (level_ == Level::room && keepRoom_ && !takeables().empty() && !roomSeen_.contains("start")) {
            openScript(room_.room.Startskript, room_.start, takeables().front().head[0].place);
            putAbsences();
            closeScript();
        }
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

    void start(const Statement& s) {
        if (roomScript(s, room_.room.Startskript, room_.start)) putAbsences();
    }
    void countDown(const Statement& s) { roomScript(s, room_.room.CountDownSkript, room_.countDown); }

    bool roomScript(const Statement& s, Skript& script, ScriptPlaces& places) {
        if (!inRoom(s) || !onceInRoom(s)) return false;
        noWords(s, findings_);
        openScript(script, places, s.front().place);
        return true;
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
        taking_ = nullptr;
        for (const Takeable& thing : takeables())
            if (thing.head[0].place == s.front().place) taking_ = &thing;
        const bool takeable = s.size() > 2 && !s[2].quoted && normalised(s[2].value) == "einsteckbar";
        if (!takeable && !oneName(s, findings_)) return;
        object_.Name = s[1].value;
        objectPlaces_.name = s[1].place;
    }

    void closeObject() {
        closeScript();
        if (level_ != Level::object) return;
        if (taking_ && !objectSeen_.contains("links")) {
            object_.HatSkript[use_] = true;
            openScript(object_.Aktion[use_], objectPlaces_.action[use_], objectPlaces_.name);
            putTaking();
            closeScript();
        }
        room_.room.Objekte.push_back(std::move(object_));
        room_.objects.push_back(std::move(objectPlaces_));
        level_ = Level::room;
    }

    void putTaking() {
        for (Statement& s : takingOf(*taking_)) script_.push_back(std::move(s));
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
        takePicture(s, files_.picture(besideSource(story_, s[1])), object_.Maske, findings_);
    }

    void right(const Statement& s) { action(s, 0); }
    void left(const Statement& s) { action(s, use_); }
    void drop(const Statement& s) { action(s, drop_); }

    void action(const Statement& s, std::size_t which) {
        closeScript();
        if (level_ == Level::item) return openItemScript(s, which);
        if (level_ != Level::object) return void(misplaced(s, " gehört in ein Objekt oder einen Gegenstand"));
        if (!onceInObject(s, normalised(s.front().value))) return;
        const bool off = s.size() == 2 && normalised(s[1].value) == "aus";
        if (!off) noWords(s, findings_);
        object_.HatSkript[which] = !off;
        openScript(object_.Aktion[which], objectPlaces_.action[which], s.front().place);
        if (taking_ && which == use_ && !off) putTaking();
    }

    // --- items

    void item(const Statement& s) {
        begin(s, false);
        level_ = Level::item;
        const bool named = s.size() > 3 && !s[2].quoted && normalised(s[2].value) == "heisst";
        keepItem_ = named || oneName(s, findings_);
        if (!keepItem_) return;
        item_ = s[1];
        if (!item_.quoted) item_.value = names_.pictureOf(s[1]);
        keepItem_ = isItemPicture(item_, findings_);
        if (!keepItem_) return;
        where_ = lower(itemName(item_.value));
        story_.items.push_back({item_.value, item_.place});
    }

    void closeItem() {
        closeScript();
        if (level_ == Level::item && keepScript_) story_.scripts.push_back(std::move(itemScript_));
        keepScript_ = false;
        if (level_ == Level::item) level_ = Level::top;
    }

    void openItemScript(const Statement& s, std::size_t which) {
        closeItem();
        level_ = Level::item;
        noWords(s, findings_);
        itemScript_ = {};
        if (keepItem_) itemScript_.file = itemScriptFile(item_.value, which);
        keepScript_ = keepItem_ && isNew("skript ", {false, itemScript_.file, s.front().place});
        openScript(itemScript_.script, itemScript_.places, s.front().place);
        if (which == drop_ && keepItem_) combined_ = upper(itemName(item_.value));
    }

    // A script file under any name, for what is not named after an item.
    void scriptFile(const Statement& s) {
        begin(s, false);
        level_ = Level::item;
        keepItem_ = false;
        itemScript_ = {};
        keepScript_ = oneName(s, findings_) && isScriptFile(s[1], findings_) && isNew("skript ", s[1]);
        if (keepScript_) itemScript_.file = s[1].value;
        if (keepScript_) where_ = stemOf(s[1].value);
        openScript(itemScript_.script, itemScript_.places, s.front().place);
    }

    // --- people and parts of scripts, which have been read already

    void person(const Statement& s) {
        begin(s, false);
        level_ = Level::person;
    }

    void personLine(const Statement& s) {
        if (level_ != Level::person) misplaced(s, " gehört zu einer Person; davor fehlt Person NAME");
    }

    // What stands in it is compiled where it is called.
    void part(const Statement& s) {
        begin(s, false);
        level_ = Level::part;
        where_.clear();
    }

    static constexpr std::size_t use_ = 1;
    static constexpr std::size_t drop_ = 2;

    SourceFiles& files_;
    Story& story_;
    const Names& names_;
    Findings& findings_;
    std::map<Text, Place> written_;

    ScriptBuilder builder_;
    std::vector<Statement> script_;  // the open one
    Skript* toScript_ = nullptr;     // where it goes
    ScriptPlaces* toPlaces_ = nullptr;
    Text where_;     // after which its own flags are named
    Text combined_;  // the item whose combinations belong to it
    StoryRoom room_;
    std::set<Text> roomSeen_;
    RaumObjekt object_;
    ObjectPlaces objectPlaces_;
    std::set<Text> objectSeen_;
    const Takeable* taking_ = nullptr;  // if the object is one
    Token item_;
    StoryScript itemScript_;

    Level level_ = Level::top;
    bool lost_ = false;        // a heading is missing, and that has been told
    Place roomEnd_{};          // what ended the last room without being one; the very first place for nothing
    bool complained_ = false;  // one finding is enough for a row of commands outside of scripts
    bool keepRoom_ = false;
    bool keepItem_ = false;
    bool keepScript_ = false;
};

// Reads and compiles in the order in which names are needed: those of all sources come first.
class Compiler {
public:
    Compiler(SourceFiles& files, Findings& findings) : files_(files), findings_(findings), reader_(files, story_) {}

    void read(const fs::path& path) { sources_.push_back({reader_.read(path, findings_), true}); }
    void read(const fs::path& path, std::string_view utf8) {
        sources_.push_back({reader_.read(path, utf8, findings_), true});
    }
    // A source that is not compiled, but whose names count.
    void know(const fs::path& path) {
        Findings ignored;
        sources_.push_back({reader_.read(path, ignored), false});
    }

    Parsed compile(const fs::path& voices) {
        Names names = readNames(sources_, findings_);
        if (!names.spoken.empty()) {
            VoiceTable table(files_.read(voices).value_or(""), reader_.fileNumber(voices), findings_);
            names.voices = table.assign(names.spoken);
            story_.voiceTable = {voices, table.written()};
        }
        story_.itemNames = names.spelled;
        Parser parser(files_, story_, names, findings_);
        for (const Source& source : sources_)
            if (source.compiled) parser.source(source.statements);
        parser.combinations();
        return {std::move(story_), std::move(names), std::move(sources_)};
    }

private:
    SourceFiles& files_;
    Findings& findings_;
    Story story_;
    SourceReader reader_;
    std::vector<Source> sources_;
};

}  // namespace

Story parseSources(const std::vector<fs::path>& sources, SourceFiles& files, Findings& findings,
                   const std::vector<fs::path>& known) {
    return parseAll(sources, files, findings, known).story;
}

Parsed parseAll(const std::vector<fs::path>& sources, SourceFiles& files, Findings& findings,
                const std::vector<fs::path>& known) {
    Compiler compiler(files, findings);
    for (const fs::path& path : sources) compiler.read(path);
    for (const fs::path& path : known) compiler.know(path);
    return compiler.compile(sources.empty() ? fs::path() : sources.front().parent_path() / voiceTableFile);
}

Story parseSource(std::string_view utf8, const std::string& name, SourceFiles& files, Findings& findings) {
    Compiler compiler(files, findings);
    compiler.read(fs::path(name), utf8);
    return compiler.compile(fs::path(name).parent_path() / voiceTableFile).story;
}

}  // namespace zentrox::story
