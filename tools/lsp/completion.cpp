// What can stand where the cursor is: words of the language, and the names that the story and its data know.
#include <algorithm>
#include <set>

#include "engine/language/words.h"
#include "tools/lsp/protocol.h"
#include "tools/story/grammar.h"
#include "tools/story/sections.h"
#include "tools/story/tree.h"
#include "tools/story/vocabulary.h"
#include "tools/story/words.h"

namespace zentrox::lsp {

using story::Section;
using story::Symbol;
using story::Use;
using Kind = Symbol::Kind;

namespace {

// Of the protocol.
namespace itemkind {
constexpr int function = 3;
constexpr int variable = 6;
constexpr int classes = 7;
constexpr int value = 12;
constexpr int keyword = 14;
constexpr int file = 17;
constexpr int reference = 18;
}  // namespace itemkind

// The line up to the cursor, as the compiler reads it.
struct Typed {
    std::vector<story::Token> before;     // the words of the statement that are done
    std::optional<story::Token> current;  // the one that is being written
    bool silent = false;                  // in a comment, or in a text on a line of its own
};

Typed typedSoFar(const Here& here, const Lines& lines) {
    Lines line(lines.line(here.line));
    const auto end = line.offset(line.position(1, here.column, Encoding::utf8), Encoding::utf8);
    story::Findings ignored;
    std::vector<story::Silence> silences;
    std::vector<story::Place> comments;
    const auto statements = story::scan(lines.line(here.line).substr(0, end), 0, ignored, silences, &comments);
    Typed typed;
    typed.silent = !comments.empty();
    if (statements.empty()) return typed;
    typed.before = statements.front();
    if (typed.before.back().end == here.column) {
        typed.current = typed.before.back();
        typed.before.pop_back();
    }
    if (!statements.front().front().quoted) return typed;
    typed.silent = true;
    return typed;
}

class Completion {
public:
    explicit Completion(const Here& here) : here_(here), lines_(here.lines()), typed_(typedSoFar(here, lines_)) {}

    Json all() {
        if (typed_.silent) return result();
        readContext();
        if (typed_.before.empty())
            words();
        else
            arguments();
        return result();
    }

private:
    Json result() { return {{"isIncomplete", false}, {"items", std::move(items_)}}; }

    // --- where the cursor is

    void readContext() {
        story::Findings ignored;
        std::vector<story::Silence> silences;
        statements_ = story::scan(here_.workspace.text(here_.path), 0, ignored, silences);
        sections_ = story::sectionsOf(statements_);
        std::size_t at = 0;
        while (at < statements_.size() && statements_[at].front().place.line < here_.line) ++at;
        if (at == 0) return;
        around_ = story::sectionsAt(sections_, at - 1);
        if (!around_.empty() && around_.front()->kind == Section::Kind::room) room_ = lower(around_.front()->name);
        std::replace(room_.begin(), room_.end(), '/', '\\');
    }

    // Where a word may stand here; 0 if that is not known, as in a part of a source that others include.
    unsigned allowed() const {
        unsigned where = story::stands::top;
        for (const Section* const section : around_) {
            if (section->holdsCommands()) where |= story::stands::script;
            if (section->kind == Section::Kind::room) where |= story::stands::room;
            if (section->kind == Section::Kind::object) where |= story::stands::object;
            if (section->kind == Section::Kind::item) where |= story::stands::item;
            if (section->kind == Section::Kind::person) where |= story::stands::person;
        }
        return around_.empty() && !statements_.empty() && at0IsNoHeading() ? ~0U : where;
    }

    bool at0IsNoHeading() const { return sections_.empty() || sections_.front().begin > 0; }

    // --- what is offered

    void add(const std::string& label, int kind, const std::string& text, const std::string& detail = {},
             const char* order = "1") {
        if (!seen_.insert(text).second) return;
        const int from = typed_.current ? typed_.current->place.column : here_.column;
        Json item{{"label", label},
                  {"kind", kind},
                  {"filterText", text},
                  {"sortText", order + label},
                  {"textEdit",
                   {{"range", asJson(Range{position(from), position(here_.column + closingQuote())})},
                    {"newText", text}}}};
        if (!detail.empty()) item["detail"] = detail;
        items_.push_back(std::move(item));
    }

    Position position(int column) const { return lines_.position(here_.line, column, here_.encoding); }

    // Editors put the second quote behind the cursor by themselves.
    int closingQuote() const {
        if (!typed_.current || !typed_.current->quoted) return 0;
        const auto line = lines_.line(here_.line);
        const Lines own(line);
        const auto offset = own.offset(own.position(1, here_.column, Encoding::utf8), Encoding::utf8);
        return line.substr(offset).starts_with('"') && unclosed(line.substr(0, offset)) ? 1 : 0;
    }

    static bool unclosed(std::string_view text) { return std::count(text.begin(), text.end(), '"') % 2 == 1; }

    void word(TextView name, int kind = itemkind::keyword) { add(toUtf8(name), kind, toUtf8(name)); }

    void words() {
        const unsigned where = allowed();
        for (const story::LanguageWord& known : story::languageWords()) {
            if ((known.where & where) == 0) continue;
            const bool innermost = (known.where & innermostLevel(where)) != 0;
            add(toUtf8(known.name), known.kind == story::WordKind::command ? itemkind::function : itemkind::keyword,
                toUtf8(known.name), known.usage, innermost ? "1" : "2");
            if (!items_.empty()) items_.back()["documentation"] = known.help;
        }
        if ((where & story::stands::script) != 0)
            for (const auto& [key, person] : here_.story.parsed.names.people)
                add(toUtf8(person.name) + ":", itemkind::classes, toUtf8(person.name) + ":", "Person", "0");
    }

    static unsigned innermostLevel(unsigned where) {
        for (const unsigned level : {story::stands::script, story::stands::object, story::stands::item,
                                     story::stands::person, story::stands::room})
            if ((where & level) != 0) return level;
        return story::stands::top;
    }

    void arguments() {
        if (story::speakerOf(typed_.before)) return;
        const Text first = story::normalised(typed_.before.front().value);
        const story::LanguageWord* const known = story::languageWord(first);
        if (!known) return;
        const Opcode* const row = story::commandNamed(first);
        const std::size_t done = typed_.before.size() - 1;
        if (row && row->role == Role::opens && row->block == zentrox::Block::condition) return condition(first, 1);
        if (row) return command(*row, done);
        shaping(first, done);
    }

    void shaping(const Text& first, std::size_t done) {
        const bool second = done == 0;
        if (first == "wenngegenstand" || first == "sonstwenn") return condition(first, 1);
        if (first == "antwort" || first == "schluss") return answer();
        if (first == "bei") return itemNames();
        if (first == "rufe") return parts();
        if (first == "bild" && second) return files(Ordner::graphics);
        if (first == "zeiger" && second) return files(Ordner::cursors);
        if (first == "gegenstand") return second ? files(Ordner::items) : word("heißt"_t);
        if (first == "objekt") return objectHead(done);
        if (first == "kombiniere")
            return done < 2 ? itemNames() : done == 2 ? word("ergibt") : files(Ordner::items);
        if (first == "flaeche" && second)
            for (const TextView shape : {"Rechteck", "Vieleck", "Maskenbild"}) word(shape);
        if ((first == "rechts" || first == "links" || first == "ablegen") && second) word("Aus");
        if (first == "einbinden" && second) sources();
        if (first == "roh" && second)
            for (const Opcode& opcode : opcodes()) word(opcode.name, itemkind::function);
    }

    void objectHead(std::size_t done) {
        if (done == 1) return word("einsteckbar");
        if (done == 2) return itemNames();
        if (done == 3) return word("Merker");
        if (done == 4) return names(Kind::flag, false);
    }

    void answer() {
        if (typed_.current && typed_.current->quoted) return;
        for (std::size_t i = 1; i < typed_.before.size(); ++i)
            if (!typed_.before[i].quoted && story::normalised(typed_.before[i].value) == "wenn")
                return condition("wennmerker", i + 1);
        word("einmal");
        word("wenn");
    }

    bool isWord(std::size_t i, TextView name) const {
        return i < typed_.before.size() && !typed_.before[i].quoted &&
               story::normalised(typed_.before[i].value) == name;
    }

    // Behind a name another word joins it to the next one.
    void condition(TextView command, std::size_t from) {
        const std::size_t last = typed_.before.size() - 1;
        const bool joined = last < from || isWord(last, "und") || isWord(last, "oder") || isWord(last, "nicht");
        const bool kind = isWord(last, "merker") || isWord(last, "gegenstand") || isWord(last, "parameter");
        if (!joined && !(kind && last >= from)) {
            word("und");
            return word("oder");
        }
        const bool item =
            kind && !joined ? !isWord(last, "merker") : command == "wenngegenstand" || command == "wennparameter";
        item ? itemNames() : names(Kind::flag, false);
        if (kind && !joined) return;
        for (const TextView inner : {"nicht", "Merker", "Gegenstand", "Parameter"}) word(inner);
    }

    void command(const Opcode& row, std::size_t done) {
        if (row.arg == Arg::flag) return names(Kind::flag, false);
        if (row.arg == Arg::game && done == 1) return names(Kind::flag, false);
        if (row.arg == Arg::portrait && done == 1) return files(Ordner::graphics);
        if (row.arg == Arg::objectPointer && done == 1) return files(Ordner::cursors);
        if (done > 0) return;
        switch (row.arg) {
            case Arg::item:
                if (!typed_.current || !typed_.current->quoted) itemNames();
                return files(Ordner::items);
            case Arg::object:
            case Arg::objectPointer: return objects();
            case Arg::room: return rooms();
            case Arg::label: return labels();
            case Arg::game:
                for (const Text& game : story::gameNames()) word(game, itemkind::value);
                return;
            case Arg::word:
                for (const TextView name : systemwort::alle) word(name, itemkind::value);
                return word("Ende", itemkind::value);
            case Arg::portrait: return word("links"), word("rechts");
            case Arg::fade: return word("weiß"_t), word("zurück"_t);
            default: break;
        }
        if (row.datei.ordner != Ordner::keiner) files(row.datei.ordner);
    }

    // --- names

    // The word that is being written is no name yet.
    bool isCurrent(const Use& use) const {
        return use.place.file == here_.file && use.place.line == here_.line && typed_.current &&
               use.place.column == typed_.current->place.column;
    }

    void name(TextView text, bool quoted, int kind, const std::string& detail) {
        const bool open = typed_.current && typed_.current->quoted;
        add(toUtf8(text), kind, quoted || open ? story::inQuotes(text) : story::bareOrQuoted(text), detail);
    }

    void names(Kind kind, bool quoted) {
        std::set<Text> keys;
        for (const Use& use : here_.story.uses)
            if (use.symbol.kind == kind && !isCurrent(use) && keys.insert(use.symbol.key).second)
                name(use.text, quoted, itemkind::variable, "Merker");
    }

    void itemNames() {
        const auto& names = here_.story.parsed.names;
        std::set<Text> named;
        for (const auto& [spelled, base] : names.spelled) {
            name(spelled, false, itemkind::reference, toUtf8(base));
            named.insert(upper(base));
        }
        for (const auto& [base, picture] : names.pictures)
            if (!named.contains(base)) name(base, false, itemkind::reference, toUtf8(picture));
    }

    void objects() {
        for (const Use& use : here_.story.uses)
            if (use.symbol.kind == Kind::object && use.role == Use::Role::declares &&
                (room_.empty() || use.symbol.scope == room_))
                name(use.text, true, itemkind::reference, toUtf8(use.symbol.scope));
    }

    void rooms() {
        for (const story::StoryRoom& room : here_.story.parsed.story.rooms)
            name(room.file, true, itemkind::reference, "Raum");
    }

    void parts() {
        for (const Use& use : here_.story.uses)
            if (use.symbol.kind == Kind::part && use.role == Use::Role::declares)
                name(use.text, false, itemkind::function, "Skriptteil");
    }

    void labels() {
        const Section* const script = around_.empty() ? nullptr : around_.back();
        for (std::size_t i = script ? script->begin : 0; i < (script ? script->end : statements_.size()); ++i)
            if (const auto& s = statements_[i]; s.size() == 2 && story::normalised(s[0].value) == "marke")
                name(s[1].value, false, itemkind::reference, "Marke");
    }

    void files(Ordner directory) {
        for (const Text& file : here_.workspace.filesIn(here_.story, directory))
            name(file, true, itemkind::file, toUtf8(verzeichnis(directory)));
    }

    void sources() {
        for (const std::string& file : here_.story.parsed.story.files)
            if (const fs::path path(file); path.extension() == ".story" && path != here_.path)
                name(fromUtf8(path.lexically_relative(here_.path.parent_path()).generic_string()), true,
                     itemkind::file, "Quelle");
    }

    const Here& here_;
    Lines lines_;
    Typed typed_;
    std::vector<story::Statement> statements_;
    std::vector<Section> sections_;
    std::vector<const Section*> around_;
    Text room_;
    std::set<std::string> seen_;
    Json items_ = Json::array();
};

}  // namespace

Json completions(const Here& here) {
    return Completion(here).all();
}

}  // namespace zentrox::lsp
