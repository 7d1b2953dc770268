#include "tools/story/uses.h"

#include <algorithm>
#include <set>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/grammar.h"
#include "tools/story/sections.h"
#include "tools/story/story.h"
#include "tools/story/tree.h"

namespace zentrox::story {

namespace {

using Kind = Symbol::Kind;
using Role = Use::Role;

class UseReader {
public:
    explicit UseReader(const Names& names) : names_(names) {}

    void source(const std::vector<Statement>& statements) {
        const auto sections = sectionsOf(statements);
        room_.clear();
        person_ = false;
        for (const Section& section : sections) put(section, statements);
        // What stands in no section is part of an unfinished source.
        std::size_t done = 0;
        for (const Section& section : sections) {
            for (; done < section.begin; ++done) statement(statements[done]);
            done = section.end;
        }
        for (; done < statements.size(); ++done) statement(statements[done]);
    }

    std::vector<Use> all() { return std::move(uses_); }

private:
    void put(const Section& section, const std::vector<Statement>& statements) {
        if (section.kind != Section::Kind::object && section.kind != Section::Kind::script) {
            room_ = section.kind == Section::Kind::room ? lower(section.name) : Text();
            std::replace(room_.begin(), room_.end(), '/', '\\');
        }
        person_ = section.kind == Section::Kind::person;
        if (section.holdsCommands()) script_ = std::to_string(++scripts_);
        std::size_t i = section.begin;
        for (const Section& inside : section.inside) {
            for (; i < inside.begin; ++i) statement(statements[i]);
            put(inside, statements);
            i = inside.end;
        }
        for (; i < section.end; ++i) statement(statements[i]);
    }

    // --- one use

    void add(Kind kind, Text key, Role role, const Token& word, Text scope = {}) {
        if (word.end == 0 || key.empty()) return;
        uses_.push_back(
            {{kind, std::move(key), std::move(scope)}, role, word.place, word.end, word.quoted, word.value, {}});
    }

    // A name that may be several words.
    void addJoined(Kind kind, Role role, const Statement& s, std::size_t from, std::size_t to, Text key) {
        if (from >= to || s[to - 1].place.line != s[from].place.line) return;
        Token whole = s[from];
        for (std::size_t i = from + 1; i < to; ++i) whole.value += " " + s[i].value;
        whole.end = s[to - 1].end;
        add(kind, std::move(key), role, whole);
    }

    void flag(const Token& word, Role role) { add(Kind::flag, upper(Getrimmt(word.value)), role, word); }
    void item(const Token& word, Role role) { add(Kind::item, names_.baseNameOf(word), role, word); }
    void object(const Token& word, Role role) { add(Kind::object, upper(word.value), role, word, room_); }
    void label(const Token& word, Role role) { add(Kind::label, normalised(word.value), role, word, script_); }
    void room(const Token& word, Role role) {
        Text name = lower(word.value);
        std::replace(name.begin(), name.end(), '/', '\\');
        add(Kind::room, name, role, word);
    }
    void file(const Token& word, Ordner directory) {
        const std::size_t before = uses_.size();
        add(Kind::file, lower(Dateiname(word.value)), Role::names, word, Text(verzeichnis(directory)));
        if (uses_.size() > before) uses_.back().directory = directory;
    }

    // --- statements

    void statement(const Statement& s) {
        if (s[0].quoted) return;
        if (const auto speaker = speakerOf(s); speaker && names_.person(speaker->name)) {
            Statement words(s.begin(), s.begin() + static_cast<std::ptrdiff_t>(speaker->words));
            words.back().value.pop_back();
            --words.back().end;
            return addJoined(Kind::person, Role::names, words, 0, words.size(), normalised(speaker->name));
        }
        const Text word = normalised(s[0].value);
        if (person_ && word == "portrait") {
            if (s.size() > 2) file(s[2], Ordner::graphics);
        } else if (const Opcode* const row = commandNamed(word)) {
            command(*row, s);
        } else {
            shaping(word, s);
        }
    }

    static bool has(const Statement& s, std::size_t i, TextView word) {
        return i < s.size() && !s[i].quoted && normalised(s[i].value) == word;
    }

    // What begins a part of a source.
    void shaping(TextView word, const Statement& s) {
        if (s.size() < 2) return;
        if (word == "raum") return room(s[1], Role::declares);
        if (word == "bild") return file(s[1], Ordner::graphics);
        if (word == "zeiger") return file(s[1], Ordner::cursors);
        if (word == "objekt") return objectHead(s);
        if (word == "gegenstand") return itemHead(s);
        if (word == "person")
            return addJoined(Kind::person, Role::declares, s, 1, s.size(), normalised(joinedName(s, 1)));
        if (word == "skriptteil")
            return addJoined(Kind::part, Role::declares, s, 1, s.size(), normalised(joinedName(s, 1)));
        if (word == "rufe") return addJoined(Kind::part, Role::names, s, 1, s.size(), normalised(joinedName(s, 1)));
        if (word == "kombiniere") return combination(s);
        if (word == "einbinden") return add(Kind::source, lower(s[1].value), Role::names, s[1]);
        if (word == "roh") return raw(s);
        forms(word, s);
    }

    void objectHead(const Statement& s) {
        object(s[1], Role::declares);
        if (!has(s, 2, "einsteckbar") || s.size() < 4) return;
        item(s[3], Role::takes);
        if (has(s, 4, "merker") && s.size() > 5) flag(s[5], Role::sets);
    }

    void itemHead(const Statement& s) {
        item(s[1], Role::declares);
        if (has(s, 2, "heisst") && s.size() > 3)
            addJoined(Kind::item, Role::declares, s, 3, s.size(), upper(itemName(s[1].value)));
    }

    void combination(const Statement& s) {
        for (std::size_t i = 1; i < std::min<std::size_t>(s.size(), 3); ++i) item(s[i], Role::gives);
        if (s.size() > 4 && has(s, 3, "ergibt")) item(s[4], Role::takes);
    }

    // --- scripts

    void forms(TextView word, const Statement& s) {
        Findings ignored;
        if (word == "bei")
            for (std::size_t i = 1; i < s.size(); ++i) item(s[i], Role::tests);
        else if (word == "wenngegenstand")
            condition(s, Term::Kind::item);
        else if (word == "sonstwenn")
            condition(s, Term::Kind::flag);
        else if (word == "antwort" || word == "schluss")
            terms(readAnswer(s, ignored).when);
    }

    void condition(const Statement& s, Term::Kind usual) {
        Findings ignored;
        if (const auto when = readCondition(s[0], std::span(s).subspan(1), usual, ignored)) terms(*when);
    }

    void terms(const Condition& condition) {
        for (const auto& all : condition)
            for (const Term& term : all)
                term.kind == Term::Kind::flag ? flag(term.name, Role::tests) : item(term.name, Role::tests);
    }

    void command(const Opcode& row, const Statement& s) {
        if (row.role == zentrox::Role::opens && row.block == zentrox::Block::condition)
            return condition(s, row.arg == Arg::itemName ? Term::Kind::dropped : Term::Kind::flag);
        if (s.size() > 1) argument(row, std::span(s).subspan(1));
    }

    void argument(const Opcode& row, std::span<const Token> words) {
        switch (row.arg) {
            case Arg::flag:
                for (const Token& word : words) flag(word, flagRole(row));
                return;
            case Arg::item: return item(words[0], row.number == "NimmGegenstand"_op ? Role::takes : Role::gives);
            case Arg::itemName: return item(words[0], Role::tests);
            case Arg::object: return object(words[0], Role::names);
            case Arg::objectPointer: object(words[0], Role::names); break;
            case Arg::room: return room(words[0], Role::names);
            case Arg::label: return label(words[0], row.number == "Marke"_op ? Role::declares : Role::names);
            case Arg::game:
                if (words.size() > 1) flag(words[1], Role::sets);
                return;
            default: break;
        }
        const std::size_t field = row.datei.feld > 1 ? row.datei.feld - 1U : 0U;
        if (row.datei.ordner != Ordner::keiner && field < words.size()) file(words[field], row.datei.ordner);
    }

    static Role flagRole(const Opcode& row) {
        return row.number == "SetzeMerker"_op    ? Role::sets
               : row.number == "LöscheMerker"_op ? Role::clears
                                                 : Role::tests;
    }

    // A command as it stands in the file, as long as its argument is one thing.
    void raw(const Statement& s) {
        const Opcode* const row = s.size() == 3 ? commandNamed(s[1].value) : nullptr;
        if (row && formOf(row->arg).most == 1) argument(*row, std::span(s).subspan(2));
    }

    const Names& names_;
    std::vector<Use> uses_;
    Text room_;
    Text script_;
    int scripts_ = 0;
    bool person_ = false;
};

}  // namespace

std::vector<Use> usesOf(const std::vector<Source>& sources, const Names& names) {
    UseReader reader(names);
    for (const Source& source : sources) reader.source(source.statements);
    std::vector<Use> all = reader.all();
    std::set<Place> seen;
    std::erase_if(all, [&](const Use& use) { return !seen.insert(use.place).second; });
    return all;
}

const Use* useAt(const std::vector<Use>& uses, int file, int line, int column) {
    const Use* behind = nullptr;
    for (const Use& use : uses) {
        if (use.place.file != file || use.place.line != line || column < use.place.column || column > use.end)
            continue;
        if (column < use.end) return &use;
        behind = &use;
    }
    return behind;
}

bool isKeptByGame(TextView flag) {
    return flag == "BÖSE"_t || itemOfFlag(flag).has_value();
}

}  // namespace zentrox::story
