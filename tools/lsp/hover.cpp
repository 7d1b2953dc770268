// What an editor shows of the word that is pointed at: the help of a command, and of a name who does what with it.
#include <algorithm>

#include "tools/lsp/protocol.h"
#include "tools/story/grammar.h"
#include "tools/story/vocabulary.h"

namespace zentrox::lsp {

using story::Symbol;
using story::Use;
using Kind = Symbol::Kind;
using Role = Use::Role;

namespace {

constexpr std::size_t mostPlaces = 8;  // of each sort

std::string bold(const std::string& text) {
    return "**" + text + "**";
}

std::string code(TextView text) {
    return "`" + toUtf8(text) + "`";
}

std::string commandHelp(const story::LanguageWord& word) {
    const std::string usage = toUtf8(word.name) + (word.usage.empty() ? "" : " ") + word.usage;
    return "```story\n" + usage + "\n```\n" + word.help;
}

const char* roleName(Kind kind, Role role) {
    switch (role) {
        case Role::declares: return kind == Kind::item ? "erklärt" : kind == Kind::label ? "steht" : "beginnt";
        case Role::sets: return "gesetzt";
        case Role::clears: return "gelöscht";
        case Role::tests: return "geprüft";
        case Role::takes: return "genommen";
        case Role::gives: return "gegeben";
        case Role::names: return kind == Kind::room ? "betreten" : kind == Kind::part ? "gerufen" : "genannt";
    }
    return "";
}

class NameHelp {
public:
    NameHelp(const Here& here, const Use& use) : here_(here), use_(use), same_(sameAs(here.story, use)) {}

    std::string all() const {
        std::string text = heading();
        for (const Role role :
             {Role::declares, Role::sets, Role::clears, Role::tests, Role::takes, Role::gives, Role::names})
            text += places(role);
        if (use_.symbol.kind == Kind::flag && story::isKeptByGame(use_.symbol.key))
            text += "\n\nDas Spiel setzt und löscht ihn selbst.";
        return text;
    }

private:
    std::string heading() const {
        switch (use_.symbol.kind) {
            case Kind::flag: return bold("Merker") + " " + code(use_.symbol.key);
            case Kind::item: return item();
            case Kind::object: return bold("Objekt") + " " + code(use_.text) + inRooms();
            case Kind::room: return bold("Raum") + " " + code(use_.text) + picture();
            case Kind::person: return person();
            case Kind::part: return bold("Skriptteil") + " " + code(use_.text);
            case Kind::label: return bold("Marke") + " " + code(use_.text);
            case Kind::source: return bold("Quelle") + " " + code(use_.text);
            case Kind::file: return file();
        }
        return "";
    }

    std::string item() const {
        const auto& names = here_.story.parsed.names;
        const auto picture = names.pictures.find(use_.symbol.key);
        std::string text = bold("Gegenstand") + " ";
        for (const auto& [name, base] : names.spelled)
            if (upper(base) == use_.symbol.key) text += code(name) + ", ";
        return text + code(picture == names.pictures.end() ? use_.symbol.key : picture->second);
    }

    std::string inRooms() const {
        std::string text;
        for (const Use* const use : same_)
            if (use->role == Role::declares && text.find(toUtf8(use->symbol.scope)) == std::string::npos)
                text += " in " + code(use->symbol.scope);
        return text;
    }

    std::string picture() const {
        for (const story::StoryRoom& room : here_.story.parsed.story.rooms)
            if (lower(room.file) == use_.symbol.key && !room.room.Bild.empty())
                return ", Bild " + code(room.room.Bild) + ", " + std::to_string(room.room.Objekte.size()) +
                       " Objekte";
        return "";
    }

    std::string person() const {
        const story::Person* const known = here_.story.parsed.names.person(use_.text);
        std::string text =
            bold(known && known->player ? "Person, die man spielt:" : "Person") + " " + code(use_.text);
        if (known && !known->portrait.empty())
            text += ", Portrait " + std::string(known->left ? "links " : "rechts ") + code(known->portrait);
        if (known && !known->voice.empty()) text += ", Stimme " + code(known->voice);
        return text;
    }

    std::string file() const {
        const auto names = here_.workspace.filesIn(here_.story, use_.directory);
        const bool there = std::any_of(names.begin(), names.end(),
                                       [&](const Text& name) { return equalIgnoringCase(name, use_.symbol.key); });
        return bold("Datei") + " " + code(use_.text) + " in " + code(verzeichnis(use_.directory)) +
               (here_.story.data.empty() || there ? "" : ", die es nicht gibt");
    }

    std::string places(Role role) const {
        std::string text;
        std::size_t count = 0;
        for (const Use* const use : same_) {
            if (use->role != role || ++count > mostPlaces) continue;
            const fs::path path = here_.story.file(use->place.file);
            text += (count == 1 ? "" : ", ") + std::string("[") + path.filename().string() + ":" +
                    std::to_string(use->place.line) + "](" + uriOf(path) + "#L" + std::to_string(use->place.line) +
                    ")";
        }
        if (count > mostPlaces) text += " und " + std::to_string(count - mostPlaces) + "-mal mehr";
        return count == 0 ? "" : std::string("\n\n") + roleName(use_.symbol.kind, role) + ": " + text;
    }

    const Here& here_;
    const Use& use_;
    std::vector<const Use*> same_;
};

// The word of the language at a place, if it begins a statement there.
const story::Token* wordAt(const Here& here) {
    for (const story::Source& source : here.story.parsed.sources)
        for (const story::Statement& s : source.statements) {
            const story::Token& word = s.front();
            if (word.place.file == here.file && word.place.line == here.line && word.place.column <= here.column &&
                here.column <= word.end)
                return &word;
        }
    return nullptr;
}

Json shown(const std::string& text, const Range& range) {
    return {{"contents", {{"kind", "markdown"}, {"value", text}}}, {"range", asJson(range)}};
}

}  // namespace

Json hover(const Here& here) {
    if (const Use* const use = here.use()) return shown(NameHelp(here, *use).all(), here.rangeOf(*use));
    const story::Token* const word = wordAt(here);
    const story::LanguageWord* const known = word && !word->quoted ? story::languageWord(word->value) : nullptr;
    if (!known) return nullptr;
    return shown(commandHelp(*known), here.range(here.file, here.line, word->place.column, word->end));
}

}  // namespace zentrox::lsp
