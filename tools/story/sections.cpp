#include "tools/story/sections.h"

#include <optional>

#include "tools/story/grammar.h"

namespace zentrox::story {

namespace {

using Kind = Section::Kind;

std::optional<Kind> topKindOf(TextView word) {
    const Text name = normalised(word);
    if (name == "raum") return Kind::room;
    if (name == "gegenstand") return Kind::item;
    if (name == "skriptdatei") return Kind::scriptFile;
    if (name == "skriptteil") return Kind::part;
    if (name == "person") return Kind::person;
    if (name == "kombiniere") return Kind::combination;
    return std::nullopt;
}

Text nameOf(const Statement& s, Kind kind) {
    if (kind == Kind::script) return s[0].value;
    if (kind == Kind::part || kind == Kind::person || kind == Kind::combination) return joinedName(s, 1);
    return s.size() > 1 ? s[1].value : Text();
}

class SectionReader {
public:
    explicit SectionReader(const std::vector<Statement>& statements) : statements_(statements) {}

    std::vector<Section> all() {
        for (at_ = 0; at_ < statements_.size(); ++at_) take(statements_[at_]);
        close(0);
        return std::move(sections_);
    }

private:
    void take(const Statement& s) {
        const LanguageWord* const word = s[0].quoted ? nullptr : languageWord(s[0].value);
        if (!word || (word->where & stands::script) != 0) return;
        if (const auto top = topKindOf(word->name)) {
            close(0);
            return open(*top);
        }
        if (word->kind == WordKind::script) return script(*word);
        if ((word->where & stands::room) == 0) return;
        closeTo(Kind::room);
        if (word->kind == WordKind::heading) open(Kind::object);
    }

    // `Start` belongs to a room, `Links` to what is open.
    void script(const LanguageWord& word) {
        if ((word.where & stands::room) != 0)
            closeTo(Kind::room);
        else if (!open_.empty() && open_.back().kind == Kind::script)
            close(open_.size() - 1);
        open(Kind::script);
    }

    void closeTo(Kind kind) {
        std::size_t depth = open_.size();
        while (depth > 0 && open_[depth - 1].kind != kind) --depth;
        close(depth);
    }

    void open(Kind kind) { open_.push_back({kind, nameOf(statements_[at_], kind), at_, at_, {}}); }

    void close(std::size_t depth) {
        while (open_.size() > depth) {
            Section done = std::move(open_.back());
            open_.pop_back();
            done.end = at_;
            (open_.empty() ? sections_ : open_.back().inside).push_back(std::move(done));
        }
    }

    const std::vector<Statement>& statements_;
    std::vector<Section> sections_;
    std::vector<Section> open_;
    std::size_t at_ = 0;
};

}  // namespace

bool Section::holdsCommands() const {
    return kind == Kind::script || kind == Kind::part || kind == Kind::combination || kind == Kind::scriptFile;
}

std::vector<Section> sectionsOf(const std::vector<Statement>& statements) {
    return SectionReader(statements).all();
}

std::vector<const Section*> sectionsAt(const std::vector<Section>& sections, std::size_t at) {
    std::vector<const Section*> around;
    const std::vector<Section>* inside = &sections;
    while (inside) {
        const std::vector<Section>* next = nullptr;
        for (const Section& section : *inside)
            if (section.begin <= at && at < section.end) {
                around.push_back(&section);
                next = &section.inside;
            }
        inside = next;
    }
    return around;
}

Text joinedName(const Statement& statement, std::size_t from) {
    Text name;
    for (std::size_t i = from; i < statement.size(); ++i) (name += name.empty() ? "" : " ") += statement[i].value;
    return name;
}

}  // namespace zentrox::story
