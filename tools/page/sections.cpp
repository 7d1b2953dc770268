#include "tools/page/sections.h"

#include <algorithm>
#include <map>

#include "tools/story/grammar.h"

namespace zentrox::page {

namespace {

using Kind = Section::Kind;
using story::Statement;

struct Word {
    TextView normalised;
    Kind kind;
    const char* spelled;
};
constexpr std::array<Word, 12> words{{{"raum", Kind::room, "Raum"},
                                      {"start", Kind::start, "Start"},
                                      {"countdown", Kind::countDown, "Countdown"},
                                      {"objekt", Kind::object, "Objekt"},
                                      {"rechts", Kind::right, "Rechts"},
                                      {"links", Kind::left, "Links"},
                                      {"ablegen", Kind::drop, "Ablegen"},
                                      {"gegenstand", Kind::item, "Gegenstand"},
                                      {"person", Kind::person, "Person"},
                                      {"skriptteil", Kind::part, "Skriptteil"},
                                      {"kombiniere", Kind::combination, "Kombiniere"},
                                      {"skriptdatei", Kind::scriptFile, "Skriptdatei"}}};

bool standsAlone(Kind kind) {
    return kind == Kind::room || kind == Kind::item || kind >= Kind::person;
}

class SectionReader {
public:
    explicit SectionReader(const Reading& reading) : reading_(reading) {
        for (std::size_t i = 0; i < reading.story.rooms.size(); ++i)
            rooms_[reading.story.rooms[i].head] = static_cast<int>(i);
    }

    std::vector<Section> all() {
        for (const story::Source& source : reading_.sources) {
            above_ = {};
            open_ = false;
            for (const Statement& statement : source.statements) take(statement);
        }
        return std::move(sections_);
    }

private:
    void take(const Statement& statement) {
        const story::Token& first = statement.front();
        const auto word = std::find_if(words.begin(), words.end(), [&](const Word& w) {
            return !first.quoted && story::normalised(first.value) == w.normalised;
        });
        if (word != words.end()) return begin(word->kind, statement);
        if (!open_) return;
        Section& section = sections_.back();
        section.body.push_back(statement);
        reach(statement);
    }

    void begin(Kind kind, const Statement& statement) {
        Section section;
        section.kind = kind;
        section.head = statement.front().place;
        section.lastLine = section.head.line;
        if (!standsAlone(kind)) section.room = above_.room;
        if (kind == Kind::right || kind == Kind::left || kind == Kind::drop) {
            section.object = above_.object;
            section.item = above_.item;
        }
        name(section, statement);
        if (standsAlone(kind) || kind == Kind::object) above_ = section;
        sections_.push_back(std::move(section));
        open_ = true;
        reach(statement);
    }

    void name(Section& section, const Statement& statement) {
        if (statement.size() > 1) section.name = statement[1].value;
        if (section.kind == Kind::room) {
            const auto known = rooms_.find(section.head);
            section.room = known == rooms_.end() ? -1 : known->second;
            nextObject_ = 0;
        }
        if (section.kind == Kind::object) section.object = nextObject_++;
        if (section.kind == Kind::item && statement.size() > 1)
            section.name = section.item = reading_.names.pictureOf(statement[1]);
        if (section.kind != Kind::person && section.kind != Kind::part) return;
        for (std::size_t i = 2; i < statement.size(); ++i) section.name += ' ' + statement[i].value;
    }

    // What an included file brings stands elsewhere.
    void reach(const Statement& statement) {
        Section& section = sections_.back();
        for (const story::Token& token : statement) {
            if (token.place.file != section.head.file) continue;
            section.lastLine = std::max(section.lastLine, token.place.line);
        }
    }

    const Reading& reading_;
    std::map<story::Place, int> rooms_;
    std::vector<Section> sections_;
    Section above_;  // the room, object or item that what comes belongs to
    int nextObject_ = 0;
    bool open_ = false;
};

}  // namespace

bool Section::isScript() const {
    return kind == Kind::start || kind == Kind::countDown || kind == Kind::right || kind == Kind::left ||
           kind == Kind::drop || kind == Kind::scriptFile || kind == Kind::combination || kind == Kind::part;
}

std::vector<Section> sectionsOf(const Reading& reading) {
    return SectionReader(reading).all();
}

const char* wordOf(Kind kind) {
    return std::find_if(words.begin(), words.end(), [&](const Word& word) { return word.kind == kind; })->spelled;
}

}  // namespace zentrox::page
