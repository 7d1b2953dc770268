#include "tools/story/names.h"

#include <algorithm>
#include <array>

#include "engine/state/felder.h"
#include "tools/story/grammar.h"
#include "tools/story/statements.h"
#include "tools/story/story.h"
#include "tools/story/tree.h"
#include "tools/story/vocabulary.h"

namespace zentrox::story {

namespace {

constexpr TextView carried = "GEGENSTAND ";

bool isWord(const Statement& s, std::size_t i, TextView word) {
    if (i >= s.size() || s[i].quoted) return false;
    // Most words are others, and no umlaut begins one of those that are asked for.
    const Text& written = s[i].value;
    if (written.empty() || written.size() > word.size() || lower(written[0]) != word[0]) return false;
    return normalised(written) == word;
}

// The words of a statement from one on, joined as a name that may have blanks.
Text joined(const Statement& s, std::size_t from) {
    Text name;
    for (std::size_t i = from; i < s.size(); ++i) (name += name.empty() ? "" : " ") += s[i].value;
    return name;
}

class NamesReader {
public:
    NamesReader(const std::vector<Source>& sources, Findings& findings) : sources_(sources), findings_(findings) {}

    Names read() {
        everywhere(&NamesReader::declaration);
        everywhere(&NamesReader::use);
        return std::move(names_);
    }

private:
    using Step = std::size_t (NamesReader::*)(const std::vector<Statement>&, std::size_t);

    void everywhere(Step step) {
        for (const Source& source : sources_) {
            compiled_ = source.compiled;
            where_.clear();
            room_.clear();
            for (std::size_t i = 0; i < source.statements.size();) i = (this->*step)(source.statements, i);
        }
    }

    void wrong(Place place, std::string_view code, const std::string& message) {
        if (compiled_) findings_.broken(place, code, message);
    }

    // --- what is declared

    std::size_t declaration(const std::vector<Statement>& all, std::size_t i) {
        const Statement& s = all[i];
        if (isWord(s, 0, "person")) return person(all, i);
        if (isWord(s, 0, "skriptteil")) return part(all, i);
        if (isWord(s, 0, "gegenstand")) item(s);
        if (isWord(s, 0, "nimmgegenstand") || isWord(s, 0, "gibgegenstand")) notePicture(s, 1);
        if (isWord(s, 0, "objekt") && isWord(s, 2, "einsteckbar")) notePicture(s, 3);
        return i + 1;
    }

    std::size_t person(const std::vector<Statement>& all, std::size_t i) {
        Person person;
        person.name = joined(all[i], 1);
        person.place = all[i][0].place;
        if (person.name.empty()) wrong(person.place, "argument", "hinter \"Person\" steht ihr Name");
        for (++i; i < all.size(); ++i) {
            if (isWord(all[i], 0, "portrait"))
                portrait(all[i], person);
            else if (isWord(all[i], 0, "farbe"))
                colour(all[i], person);
            else if (isWord(all[i], 0, "stimme"))
                voice(all[i], person);
            else if (isWord(all[i], 0, "spieler"))
                player(all[i], person);
            else
                break;
        }
        if (person.name.empty()) return i;
        const auto [known, isNew] = names_.people.emplace(normalised(person.name), person);
        if (!isNew)
            wrong(person.place, "doppelt",
                  "eine Person " + shown(person.name) + " gibt es schon; jede steht nur einmal da");
        return i;
    }

    void portrait(const Statement& s, Person& person) {
        const bool left = isWord(s, 1, "links");
        if (s.size() != 3 || (!left && !isWord(s, 1, "rechts")))
            return wrong(s[0].place, "argument", "\"Portrait\" braucht links oder rechts und eine Bilddatei");
        person.left = left;
        person.portrait = s[2].value;
    }

    void colour(const Statement& s, Person& person) {
        const bool fits = s.size() == 2 && s[1].value.size() == 1 &&
                          Text("0123456789ABCDEF").find(upper(s[1].value)) != Text::npos;
        if (!fits) return wrong(s[0].place, "argument", "\"Farbe\" braucht eine Ziffer von 0 bis 9 oder A bis F");
        person.colour = "$" + upper(s[1].value);
    }

    void voice(const Statement& s, Person& person) {
        const Text name = s.size() == 2 ? s[1].value : Text();
        if (name.empty() || name.find_first_of("\\/:,\"") != Text::npos)
            return wrong(s[0].place, "argument",
                         "\"Stimme\" braucht den Anfang der Namen ihrer Dateien, etwa \"balduin\"");
        person.voice = name;
    }

    void player(const Statement& s, Person& person) {
        if (!noWords(s, findings_)) return;
        person.player = true;
    }

    void item(const Statement& s) {
        notePicture(s, 1);
        if (!isWord(s, 2, "heisst")) return;
        const Text name = joined(s, 3);
        if (name.empty()) return wrong(s[2].place, "argument", "hinter „heißt“ steht der Name des Gegenstands");
        const auto [known, isNew] = names_.items.emplace(normalised(name), s[1].value);
        if (isNew) names_.spelled.emplace(name, itemName(s[1].value));
        if (!isNew && known->second != s[1].value)
            wrong(s[3].place, "doppelt", "so heißt schon " + shown(known->second));
    }

    void notePicture(const Statement& s, std::size_t i) {
        if (i >= s.size() || s[i].value.find('.', 1) == Text::npos) return;
        names_.pictures.emplace(upper(itemName(s[i].value)), Dateiname(s[i].value));
    }

    std::size_t part(const std::vector<Statement>& all, std::size_t i) {
        const Statement& head = all[i];
        Part part{head[0].place, {}};
        for (++i; i < all.size() && !beginsPart(all[i]); ++i) part.script.push_back(all[i]);
        const Text name = joined(head, 1);
        if (name.empty())
            wrong(head[0].place, "argument", "hinter \"Skriptteil\" steht sein Name");
        else if (!names_.parts.emplace(normalised(name), std::move(part)).second)
            wrong(head[0].place, "doppelt", "einen Skriptteil " + shown(name) + " gibt es schon");
        return i;
    }

    // --- what is used

    std::size_t use(const std::vector<Statement>& all, std::size_t i) {
        const Statement& s = all[i];
        if (isWord(s, 0, "raum") && s.size() > 1) where_ = stemOf(s[1].value), room_ = lower(s[1].value);
        if (isWord(s, 0, "gegenstand") && s.size() > 1) where_ = lower(names_.baseNameOf(s[1])), inItem_ = s[1];
        if (isWord(s, 0, "raum") || isWord(s, 0, "skriptdatei") || isWord(s, 0, "skriptteil")) inItem_ = {};
        if ((isWord(s, 0, "skriptdatei") || isWord(s, 0, "skriptteil")) && s.size() > 1)
            where_ = stemOf(s[1].value);
        if (isWord(s, 0, "ablegen") && !inItem_.value.empty()) names_.dropped.insert(names_.baseNameOf(inItem_));
        if (isWord(s, 0, "kombiniere")) combination(all, i);
        if (isWord(s, 0, "objekt")) takeable(s);
        asked(s);
        spoken(s);
        return i + 1;
    }

    void combination(const std::vector<Statement>& all, std::size_t i) {
        const Statement& s = all[i];
        inItem_ = {};
        if (s.size() != 5 || !isWord(s, 3, "ergibt"))
            return wrong(s[0].place, "argument",
                         "\"Kombiniere\" braucht zwei Gegenstände, „ergibt“ und das Bild des neuen Gegenstands");
        Combination made{s, picture(s[1]), picture(s[2]), picture(s[4]), {}, compiled_};
        where_ = lower(itemName(made.result));
        for (++i; i < all.size() && !beginsPart(all[i]); ++i) made.script.push_back(all[i]);
        if (!made.first.empty() && !made.second.empty() && !made.result.empty())
            names_.combinations.push_back(std::move(made));
    }

    Text picture(const Token& word) {
        const Text picture = names_.pictureOf(word);
        if (picture.find('.', 1) != Text::npos) return picture;
        std::vector<Text> known;
        for (const auto& [base, file] : names_.pictures) known.push_back(base);
        wrong(word.place, "gegenstand",
              "einen Gegenstand " + shown(word.value) + " nennt sonst niemand" + perhaps(word.value, known));
        return {};
    }

    // `Objekt "Münze" einsteckbar "muenze.bmp" Merker MÜNZE`
    void takeable(const Statement& s) {
        if (!isWord(s, 2, "einsteckbar")) return;
        const bool named = isWord(s, 4, "merker");
        if (s.size() != (named ? 6U : 4U))
            return wrong(s[2].place, "argument",
                         "hinter „einsteckbar“ steht das Bild des Gegenstands, und vielleicht Merker mit dem Namen "
                         "eines Merkers");
        Takeable thing{s, s[1].value, picture(s[3]), named ? s[5].value : takenFlag(where_, s[1].value)};
        if (!thing.picture.empty()) names_.takeables[room_].push_back(std::move(thing));
    }

    // The names of items that a statement asks for.
    void asked(const Statement& s) {
        Findings ignored;
        std::optional<Condition> condition;
        const auto words = std::span(s).subspan(1);
        if (isWord(s, 0, "wenngegenstand"))
            condition = readCondition(s[0], words, Term::Kind::item, ignored);
        else if (isWord(s, 0, "wennmerker") || isWord(s, 0, "wennparameter") || isWord(s, 0, "sonstwenn"))
            condition = readCondition(s[0], words, Term::Kind::flag, ignored);
        else if (isWord(s, 0, "antwort") || isWord(s, 0, "schluss"))
            condition = readAnswer(s, ignored).when;
        if (!condition) return;
        for (const auto& all : *condition)
            for (const Term& term : all)
                if (term.kind == Term::Kind::item) names_.asked.insert(names_.baseNameOf(term.name));
    }

    void spoken(const Statement& s) {
        const auto speaker = speakerOf(s);
        const Person* const person = speaker ? names_.person(speaker->name) : nullptr;
        if (!person || person->voice.empty()) return;
        SpokenPlace line{s[0].place, where_, person->voice, {}};
        for (std::size_t i = speaker->words; i < s.size(); ++i)
            (line.text += line.text.empty() ? "" : "#") += s[i].value;
        names_.spoken.push_back(std::move(line));
    }

    const std::vector<Source>& sources_;
    Findings& findings_;
    Names names_;
    bool compiled_ = true;
    Text where_;
    Text room_;
    Token inItem_;
};

}  // namespace

const Person* Names::person(TextView name) const {
    const auto found = people.find(normalised(name));
    return found == people.end() ? nullptr : &found->second;
}

const Part* Names::part(TextView name) const {
    const auto found = parts.find(normalised(name));
    return found == parts.end() ? nullptr : &found->second;
}

Text Names::pictureOf(const Token& word) const {
    const auto declared = items.find(normalised(word.value));
    if (declared != items.end()) return declared->second;
    const auto named = pictures.find(upper(word.value));
    return named == pictures.end() ? word.value : named->second;
}

Text Names::baseNameOf(const Token& word) const {
    const auto declared = items.find(normalised(word.value));
    if (declared != items.end()) return upper(itemName(declared->second));
    return upper(word.value.find('.', 1) == Text::npos ? word.value : itemName(word.value));
}

Names readNames(const std::vector<Source>& sources, Findings& findings) {
    return NamesReader(sources, findings).read();
}

bool beginsPart(const Statement& statement) {
    const Token& first = statement.front();
    const LanguageWord* const word = first.quoted ? nullptr : languageWord(first.value);
    return word && (word->where & stands::script) == 0;
}

Text carriedFlag(TextView baseName) {
    return Text(carried) + upper(baseName);
}

Text takenFlag(TextView room, TextView object) {
    return "GENOMMEN " + upper(room) + ": " + upper(object);
}

Text onceFlag(TextView where, TextView answer) {
    return "EINMAL " + upper(where) + ": " + upper(answer);
}

std::optional<Text> itemOfFlag(TextView flag) {
    if (!flag.starts_with(carried)) return std::nullopt;
    return Text(flag.substr(carried.size()));
}

Text stemOf(TextView file) {
    Text name(file.substr(std::min(file.size(), file.find_last_of("\\/") + 1)));
    return lower(name.substr(0, name.find_last_of('.')));
}

}  // namespace zentrox::story
