// From a name to where it comes from, to all who use it, and to another name.
#include <algorithm>

#include "engine/state/felder.h"
#include "tools/lsp/protocol.h"
#include "tools/story/grammar.h"
#include "tools/story/sourcereader.h"
#include "tools/story/vocabulary.h"

namespace zentrox::lsp {

using story::Symbol;
using story::Use;
using Kind = Symbol::Kind;
using Role = Use::Role;

namespace {

// Objects are told apart by their rooms, but where one is named outside of any room all of its name are meant.
bool isNamedAnywhere(const Analysis& story, const Symbol& object) {
    return std::any_of(story.uses.begin(), story.uses.end(), [&](const Use& use) {
        return use.symbol.kind == Kind::object && use.symbol.key == object.key && use.symbol.scope.empty();
    });
}

bool comesFromHere(const Use& use) {
    return use.role == Role::declares || (use.symbol.kind == Kind::flag && use.role == Role::sets) ||
           (use.symbol.kind == Kind::item && use.role == Role::takes);
}

Json locations(const Here& here, const std::vector<const Use*>& uses) {
    Json found = Json::array();
    for (const Use* const use : uses) found.push_back(here.location(*use));
    return found;
}

// The file itself, where a name is that of another source.
Json sourceLocation(const Here& here, const Use& use) {
    story::Token word{use.quoted, use.text, use.place};
    const fs::path path = story::besideSource(here.story.parsed.story, word);
    return Json::array({{{"uri", uriOf(path)}, {"range", asJson(Range{})}}});
}

}  // namespace

std::vector<const Use*> sameAs(const Analysis& story, const Use& use) {
    const Symbol& meant = use.symbol;
    const bool anywhere = meant.kind == Kind::object && isNamedAnywhere(story, meant);
    std::vector<const Use*> same;
    for (const Use& other : story.uses)
        if (other.symbol == meant ||
            (anywhere && other.symbol.kind == Kind::object && other.symbol.key == meant.key))
            same.push_back(&other);
    return same;
}

Json definitions(const Here& here) {
    const Use* const use = here.use();
    if (!use) return nullptr;
    if (use->symbol.kind == Kind::source) return sourceLocation(here, *use);
    auto same = sameAs(here.story, *use);
    const bool declared =
        std::any_of(same.begin(), same.end(), [](const Use* other) { return other->role == Role::declares; });
    std::erase_if(
        same, [&](const Use* other) { return declared ? other->role != Role::declares : !comesFromHere(*other); });
    return locations(here, same);
}

Json references(const Here& here, bool declarations) {
    const Use* const use = here.use();
    if (!use) return nullptr;
    auto same = sameAs(here.story, *use);
    if (!declarations) std::erase_if(same, [](const Use* other) { return other->role == Role::declares; });
    return locations(here, same);
}

Json highlights(const Here& here) {
    const Use* const use = here.use();
    if (!use) return nullptr;
    constexpr int read = 2;
    constexpr int write = 3;
    Json found = Json::array();
    for (const Use* const other : sameAs(here.story, *use)) {
        if (other->place.file != here.file) continue;
        const bool changes = other->role != Role::tests && other->role != Role::names;
        found.push_back({{"range", asJson(here.rangeOf(*other))}, {"kind", changes ? write : read}});
    }
    return found;
}

// --- other names

namespace {

[[noreturn]] void refuse(const std::string& why) {
    throw Refusal{code::requestFailed, why};
}

const char* kindName(Kind kind) {
    switch (kind) {
        case Kind::flag: return "einen Merker";
        case Kind::item: return "einen Gegenstand";
        case Kind::object: return "ein Objekt";
        case Kind::person: return "eine Person";
        case Kind::part: return "einen Skriptteil";
        case Kind::label: return "eine Marke";
        default: return "so etwas";
    }
}

bool canBeRenamed(const Use& use) {
    switch (use.symbol.kind) {
        case Kind::flag: return !story::isKeptByGame(use.symbol.key);
        case Kind::item:
        case Kind::object:
        case Kind::person:
        case Kind::part:
        case Kind::label: return true;
        default: return false;
    }
}

// A picture of an item stays what it is when the item gets another name.
bool namesPicture(const Use& use) {
    return use.symbol.kind == Kind::item && use.text.find('.', 1) != Text::npos;
}

Text keyOf(Kind kind, TextView name) {
    return kind == Kind::person || kind == Kind::part || kind == Kind::label ? story::normalised(name)
                                                                             : upper(name);
}

class Renaming {
public:
    Renaming(const Here& here, const Use& use, Text name) : here_(here), use_(use), name_(std::move(name)) {}

    Json edit() {
        refuseWhatCantBe();
        same_ = sameAs(here_.story, use_);
        for (const Use* const use : same_)
            if (!namesPicture(*use)) replace(*use);
        if (use_.symbol.kind == Kind::item) declareItem();
        if (use_.symbol.kind == Kind::object) renameTakenFlags();
        return {{"changes", std::move(changes_)}};
    }

private:
    void refuseWhatCantBe() {
        const Kind kind = use_.symbol.kind;
        if (name_.empty() || Text(Trim(name_)) != name_)
            refuse("ein Name ist nicht leer und hat keine Leerzeichen am Rand");
        if (name_.find('#') != Text::npos || name_.find(',') != Text::npos || name_.find('"') != Text::npos)
            refuse("ein Name kann weder \" noch , noch # enthalten");
        if (kind == Kind::item && name_.find('.') != Text::npos)
            refuse("im Namen eines Gegenstands steht kein Punkt; mit einem Punkt wäre es ein Bild");
        if (kind == Kind::person && name_.find(':') != Text::npos)
            refuse("im Namen einer Person steht kein Doppelpunkt");
        if (kind == Kind::flag && story::isKeptByGame(upper(name_)))
            refuse("den Merker " + story::shown(name_) + " setzt das Spiel selbst");
        const Text key = keyOf(kind, name_);
        if (key != use_.symbol.key && isTaken(kind, key))
            refuse(std::string(kindName(kind)) + " " + story::shown(name_) + " gibt es schon");
    }

    bool isTaken(Kind kind, const Text& key) const {
        const auto& items = here_.story.parsed.names.items;
        if (kind == Kind::item && items.contains(story::normalised(name_))) return true;
        return std::any_of(here_.story.uses.begin(), here_.story.uses.end(), [&](const Use& other) {
            const bool sameScope = kind != Kind::label || other.symbol.scope == use_.symbol.scope;
            return other.symbol.kind == kind && sameScope && other.symbol.key == key;
        });
    }

    void change(const fs::path& path, const Range& range, const std::string& text) {
        changes_[uriOf(path)].push_back({{"range", asJson(range)}, {"newText", text}});
    }

    void replace(const Use& use) { replace(use, name_); }

    void replace(const Use& use, const Text& name) {
        const Kind kind = use.symbol.kind;
        const bool words = kind == Kind::person || kind == Kind::part;  // may have blanks without quotes
        const bool bare = !use.quoted && (words || !isInnerWord(name));
        change(here_.story.file(use.place.file), here_.rangeOf(use),
               !bare   ? story::inQuotes(name)
               : words ? toUtf8(name)
                       : story::bareOrQuoted(name));
    }

    static bool isInnerWord(const Text& name) {
        const auto inner = story::innerWords();
        return std::any_of(inner.begin(), inner.end(),
                           [&](TextView word) { return story::normalised(word) == story::normalised(name); });
    }

    // An item that is called after its picture gets a name of its own.
    void declareItem() {
        const auto declared = [](const Use* use) { return use->role == Role::declares; };
        const bool named = std::any_of(same_.begin(), same_.end(),
                                       [&](const Use* use) { return declared(use) && !namesPicture(*use); });
        if (named) return;
        const auto head = std::find_if(same_.begin(), same_.end(), declared);
        if (head == same_.end())
            refuse(
                "dieser Gegenstand heißt nach seinem Bild; eine Zeile Gegenstand \"BILD.bmp\" gäbe ihm einen "
                "anderen Namen");
        Range behind = here_.rangeOf(**head);
        behind.start = behind.end;
        change(here_.story.file((*head)->place.file), behind, " heißt " + story::bareOrQuoted(name_));
    }

    // Whether a thing has been taken is kept in a flag with its name.
    void renameTakenFlags() {
        for (const auto& [room, things] : here_.story.parsed.names.takeables)
            for (const story::Takeable& thing : things) {
                const Text where = story::stemOf(room);
                const bool meant = std::any_of(same_.begin(), same_.end(),
                                               [&](const Use* use) { return use->place == thing.head[1].place; });
                if (!meant || thing.flag != story::takenFlag(where, thing.object)) continue;
                for (const Use& other : here_.story.uses)
                    if (other.symbol.kind == Kind::flag && other.symbol.key == upper(thing.flag))
                        replace(other, story::takenFlag(where, name_));
            }
    }

    const Here& here_;
    const Use& use_;
    Text name_;
    std::vector<const Use*> same_;
    Json changes_ = Json::object();
};

}  // namespace

Json renameRange(const Here& here) {
    const Use* const use = here.use();
    if (!use || !canBeRenamed(*use)) return nullptr;
    return {{"range", asJson(here.rangeOf(*use))}, {"placeholder", toUtf8(use->text)}};
}

Json renamed(const Here& here, const std::string& name) {
    const Use* const use = here.use();
    if (!use) refuse("hier steht kein Name");
    if (!canBeRenamed(*use))
        refuse("das hier kann nicht umbenannt werden; Räume und Dateien heißen wie ihre Dateien");
    std::string_view plain = name;
    if (plain.size() > 1 && plain.front() == '"' && plain.back() == '"') plain = plain.substr(1, plain.size() - 2);
    const auto text = tryFromUtf8(plain);
    if (!text) refuse("dieser Name hat Zeichen, die das Spiel nicht kennt");
    return Renaming(here, *use, *text).edit();
}

}  // namespace zentrox::lsp
