// Whether each instruction makes sense: its number, its argument, its block, its jump, the object that it names.
#include <algorithm>
#include <map>
#include <set>

#include "engine/language/games.h"
#include "engine/language/limits.h"
#include "engine/language/words.h"
#include "engine/state/felder.h"
#include "tools/story/blocks.h"
#include "tools/story/check.h"
#include "tools/story/grammar.h"
#include "tools/story/words.h"

namespace zentrox::story {

namespace {

constexpr int rectangleFields = 4;
constexpr std::size_t mostListed = 4;  // objects in a message

bool isNumber(TextView text) {
    return Zahl(text).has_value();
}

bool hasField(TextView argument, int n) {
    return std::count(argument.begin(), argument.end(), ',') >= n - 1;
}

// Looks at the instructions of one script, each with its place.
class CommandChecker {
public:
    CommandChecker(const ScriptView& view, const CommandRules& rules, Findings& findings)
        : view_(view),
          rules_(rules),
          findings_(findings),
          blocks_(findBlocks(view.script)) {
        for (std::size_t i = 0; i < view.script.Befehl.size(); ++i)
            if (view.script.Befehl[i] == "Marke"_op) labels_.insert(upper(Getrimmt(argumentOf(view.script, i))));
        labelNames_.assign(labels_.begin(), labels_.end());
    }

    void all() {
        for (const BlockProblem& problem : blocks_.problems)
            if (!spared(problem.index))
                findings_.error(view_.places.commands[problem.index].command, "block", problem.message);
        for (std::size_t i = 0; i < view_.script.Befehl.size(); ++i)
            if (!spared(i)) command(i);
    }

private:
    bool spared(std::size_t i) const {
        const CommandPlace& place = view_.places.commands[i];
        return place.broken || (rules_.spareRaw && place.raw);
    }

    TextView argument(std::size_t i) const { return argumentOf(view_.script, i); }

    // "Name" braucht ...; hier steht ...
    void wrong(std::size_t i, const Opcode& row, const std::string& found = {}) {
        findings_.error(view_.places.argument(i), "argument",
                        "\"" + toUtf8(row.name) + "\" braucht " + formOf(row.arg).needs + "; hier steht " +
                            (found.empty() ? shown(argument(i)) : found));
    }

    void command(std::size_t i) {
        const Opcode* const row = findOpcode(view_.script.Befehl[i]);
        if (!row) {
            findings_.error(view_.places.commands[i].command, "befehl",
                            "einen Befehl mit der Nummer " + std::to_string(view_.script.Befehl[i]) +
                                " gibt es nicht; es gibt 0 bis " + std::to_string(OpcodeAnzahl - 1));
            return;
        }
        if (argument(i).find('"') != TextView::npos)
            findings_.error(view_.places.argument(i), "zeichen",
                            "ein Anführungszeichen hat in einem Text keinen Platz; richtig sind „ und “");
        argumentOfKind(i, *row);
    }

    // What one look at the argument tells; the kinds below it need more.
    static bool fits(Arg kind, TextView arg) {
        switch (kind) {
            case Arg::flag: return !Getrimmt(arg).empty();
            case Arg::sound:
            case Arg::video:
            case Arg::item:
            case Arg::room: return !Getrimmt(Dateiname(arg)).empty();
            case Arg::number: return isNumber(arg);
            case Arg::seconds: return Getrimmt(arg).empty() || (isNumber(arg) && Val(arg) >= 0);
            case Arg::fade: return blendrichtung(arg) != Blendrichtung::keine;
            default: return true;
        }
    }

    void argumentOfKind(std::size_t i, const Opcode& row) {
        if (!fits(row.arg, argument(i))) return wrong(i, row);
        switch (row.arg) {
            case Arg::rectangle: return rectangle(i, row);
            case Arg::portrait: return portrait(i, row);
            case Arg::game: return game(i, row);
            case Arg::label: return label(i, row);
            case Arg::word: return systemWord(i, row);
            case Arg::object: return object(i, row, argument(i));
            case Arg::objectPointer: return objectPointer(i, row);
            case Arg::choice: return choice(i);
            case Arg::option: return option(i);
            default: return;
        }
    }

    void label(std::size_t i, const Opcode& row) {
        const TextView name = argument(i);
        if (row.next != Next::label || labels_.contains(upper(Getrimmt(name)))) return;
        const std::string hint = perhaps(name, labelNames_);
        findings_.error(view_.places.argument(i), "marke",
                        "\"Springe\" nennt " + shown(name) + "; eine solche Marke hat dieses Skript nicht" +
                            (hint.empty() ? "; sie hieße \"Marke " + toUtf8(Trim(name)) + "\"" : hint));
    }

    void systemWord(std::size_t i, const Opcode& row) {
        if (resemblesSystemWord(argument(i)))
            return wrong(i, row, shown(argument(i)) + ", und das schließt das Spiel: Groß und klein zählen");
        if (istSystemwort(argument(i))) return;
        const std::string hint =
            perhaps(argument(i), std::vector<Text>(systemwort::alle.begin(), systemwort::alle.end()));
        if (!hint.empty())
            findings_.warning(view_.places.argument(i), "system-wort",
                              "\"System " + toUtf8(argument(i)) +
                                  "\" schließt das Spiel, wie jedes Wort außer "
                                  "Open, Save und Abspann" +
                                  hint);
    }

    void rectangle(std::size_t i, const Opcode& row) {
        for (int n = 1; n <= rectangleFields; ++n)
            if (!isNumber(Feld(argument(i), ",", n))) return wrong(i, row);
    }

    void portrait(std::size_t i, const Opcode& row) {
        const Text picture = Feld(argument(i), ",", 2);
        if (!isNumber(Feld(argument(i), ",", 1)) || Dateiname(Getrimmt(picture)).empty()) wrong(i, row);
    }

    void game(std::size_t i, const Opcode& row) {
        const Text name = upper(Trim(Feld(argument(i), ",", 1)));
        if (!findSpiel(name))
            wrong(i, row, shown(name) + ", und dieses Spiel gibt es nicht" + perhaps(name, gameNames()));
        if (Trim(Feld(argument(i), ",", 2)).empty())
            findings_.warning(
                view_.places.commands[i].command, "spiel-merker",
                "dieses Spiel hat keinen Merker, die Geschichte erfährt nicht, wer gewonnen hat; der Merker steht "
                "hinter dem Namen des Spiels");
    }

    // --- objects

    static std::vector<Text> objectNames(const StoryRoom& room) {
        std::vector<Text> names;
        for (const RaumObjekt& object : room.room.Objekte) names.push_back(object.Name);
        return names;
    }

    template <typename Same>
    static bool anyObject(const StoryRoom& room, const Same& same) {
        return std::any_of(room.room.Objekte.begin(), room.room.Objekte.end(),
                           [&](const RaumObjekt& object) { return same(object.Name); });
    }

    // The script of an item runs in whatever room the player stands: it is enough if some room has the object.
    template <typename Same>
    bool objectExists(const Same& same) const {
        if (view_.room) return anyObject(*view_.room, same);
        return rules_.rooms.empty() || std::any_of(rules_.rooms.begin(), rules_.rooms.end(),
                                                   [&](const StoryRoom* room) { return anyObject(*room, same); });
    }

    static std::string listed(const std::vector<Text>& names) {
        if (names.empty()) return "keine Objekte";
        std::string list;
        for (std::size_t i = 0; i < std::min(names.size(), mostListed); ++i)
            list += (i > 0 ? ", " : "") + shown(names[i]);
        return names.size() > mostListed ? list + " und andere" : list;
    }

    void noSuchObject(std::size_t i, const Opcode& row, TextView name) {
        const auto names = view_.room ? objectNames(*view_.room) : std::vector<Text>();
        const auto trimmed = [&](const Text& other) { return equalIgnoringCase(Getrimmt(other), Getrimmt(name)); };
        const auto near = std::find_if(names.begin(), names.end(), trimmed);
        std::string message = "\"" + toUtf8(row.name) + "\" nennt " + shown(name) + "; ";
        if (near != names.end())
            message += "dieser Raum hat " + shown(*near) + ", und Leerzeichen zählen hier mit";
        else
            message += view_.room ? "dieser Raum hat " + listed(names) + perhaps(name, names)
                                  : "kein Raum hat ein solches Objekt";
        findings_.error(view_.places.argument(i), "objekt", message);
    }

    void object(std::size_t i, const Opcode& row, TextView name) {
        if (name.empty()) return wrong(i, row);
        if (!objectExists([&](const Text& other) { return equalIgnoringCase(other, name); }))
            noSuchObject(i, row, name);
    }

    void objectPointer(std::size_t i, const Opcode& row) {
        const Text name = Trim(Feld(argument(i), ",", 1));
        if (name.empty() || !hasField(argument(i), 2)) return wrong(i, row);
        if (!objectExists([&](const Text& other) { return equalIgnoringCase(Getrimmt(other), name); }))
            noSuchObject(i, row, name);
    }

    // --- choices

    void choice(std::size_t i) {
        const ChoiceText text = splitChoice(argument(i));
        const std::int32_t count = optionCount(argument(i));
        const auto present = std::to_string(text.options.size());
        std::string message;
        if (count < 1)
            message =
                "diese Auswahl bietet keine Möglichkeit an und ließe sich nie beenden; in sie gehört ein Fall";
        else if (count > MeisteOptionen)
            message = "diese Auswahl nennt " + std::to_string(count) + " Möglichkeiten; höchstens " +
                      std::to_string(MeisteOptionen) + " sind möglich";
        else if (static_cast<std::size_t>(count) != text.options.size())
            message = "diese Auswahl nennt " + std::to_string(count) + " Möglichkeiten, im Text stehen " + present +
                      "; beide Zahlen müssen gleich sein";
        if (!message.empty()) findings_.error(view_.places.commands[i].command, "auswahl", message);
    }

    void option(std::size_t i) {
        const Block* const block = blocks_.at(i);
        if (!block) return;  // a finding already
        const std::int32_t count = optionCount(argument(block->begin));
        const double number = Val(argument(i));
        std::string message;
        if (!(number >= 1 && number <= count && number == Runden(number)))
            message = "die Auswahl hat die Möglichkeiten 1 bis " + std::to_string(count) + "; zu diesem Fall, " +
                      shown(argument(i)) + ", führt keine";
        const std::size_t first = firstCases_.emplace(std::pair(blocks_.blockOf[i], number), i).first->second;
        if (message.empty() && first != i)
            message =
                "einen Fall " + shown(argument(i)) + " hat diese Auswahl schon weiter oben; hierher führt nichts";
        if (!message.empty()) findings_.error(view_.places.argument(i), "fall", message);
    }

    const ScriptView& view_;
    const CommandRules& rules_;
    Findings& findings_;
    Blocks blocks_;
    std::set<Text> labels_;
    std::vector<Text> labelNames_;
    std::map<std::pair<std::size_t, double>, std::size_t> firstCases_;  // by block and option
};

}  // namespace

void checkCommands(const ScriptView& view, const CommandRules& rules, Findings& findings) {
    CommandChecker(view, rules, findings).all();
}

}  // namespace zentrox::story
