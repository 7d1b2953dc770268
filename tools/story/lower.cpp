#include "tools/story/lower.h"

#include <algorithm>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/faces.h"
#include "tools/story/grammar.h"

namespace zentrox::story {

namespace {

constexpr std::size_t mostCommands = 200000;  // of one script; parts that call parts grow quickly
constexpr std::size_t mostConditions = 8;     // of the answers to one question: each may double its choices

Token word(TextView text, Place place) {
    return {false, Text(text), place};
}
Token quoted(TextView text, Place place) {
    return {true, Text(text), place};
}

bool isCommand(const Statement& s, std::int32_t number) {
    const Opcode* const row = s.front().quoted ? nullptr : commandNamed(s.front().value);
    return row && row->number == number;
}

bool leaves(const Statement& s) {
    return isCommand(s, "Springe"_op) || isCommand(s, "Raumwechsel"_op);
}

class Lowering {
public:
    Lowering(const Scene& scene, const Names& names, Findings& findings)
        : scene_(scene),
          names_(names),
          findings_(findings) {}

    std::vector<PlainCommand> all(const Nodes& script) {
        nodes(script);
        return std::move(out_);
    }

private:
    using Kind = Node::Kind;

    // --- what comes out

    void put(Statement words, bool made = false) { out_.push_back({std::move(words), made, {}}); }
    void make(TextView command, Place place) { put({word(command, place)}, true); }
    void make(TextView command, const Text& argument, Place place) {
        put({word(command, place), quoted(argument, place)}, true);
    }
    Text newLabel() { return "~" + std::to_string(++labels_); }
    void jump(const Text& label, Place place) {
        if (out_.empty() || !leaves(out_.back().words)) make("Springe", label, place);
    }
    void wrong(Place place, std::string_view code, const std::string& message) {
        findings_.broken(place, code, message);
    }

    void nodes(const Nodes& all) {
        for (const Node& node : all) {
            if (out_.size() > mostCommands) return;
            if (talk_) talk_->before(node, [&](Place place) { make("RahmenAuf", place); });
            one(node);
        }
    }

    // What runs or does not leaves behind it the faces that were there before.
    void branch(const Nodes& all) {
        const auto faces = talk_ ? std::optional(talk_->faces()) : std::nullopt;
        nodes(all);
        if (faces) talk_->setFaces(*faces);
    }

    void one(const Node& node) {
        switch (node.kind) {
            case Kind::plain: return plain(node.head);
            case Kind::speech: return speech(node.head);
            case Kind::condition:
            case Kind::dropped: return conditions(node, 0);
            case Kind::choice: return choice(node);
            case Kind::talk: return talk(node);
            case Kind::question: return question(node);
            case Kind::call: return call(node.head);
        }
    }

    // --- plain commands, but for names of items, lists of flags, and labels of parts

    void plain(const Statement& s) {
        const Opcode* const row = s.front().quoted ? nullptr : commandNamed(s.front().value);
        if (!row) return put(s);
        if (row->arg == Arg::flag && s.size() > 2 && row->role == Role::plain) return flags(s);
        if (row->arg == Arg::label && s.size() == 2) return label(s);
        if (row->arg == Arg::item && s.size() == 2) return item(s, row->number == "NimmGegenstand"_op);
        if (row->arg == Arg::text) faces(s[0].place);
        if (talk_ && row->number == "RahmenAuf"_op) talk_->show(true);
        if (talk_ && row->number == "RahmenZu"_op) talk_->show(false);
        put(s);
    }

    void flags(const Statement& s) {
        for (std::size_t i = 1; i < s.size(); ++i) put({s[0], s[i]});
    }

    void label(Statement s) {
        for (auto part = parts_.rbegin(); part != parts_.rend(); ++part) {
            const auto renamed = part->labels.find(normalised(s[1].value));
            if (renamed == part->labels.end()) continue;
            s[1] = quoted(renamed->second, s[1].place);
            break;
        }
        put(std::move(s));
    }

    void item(Statement s, bool taken) {
        const Text base = names_.baseNameOf(s[1]);
        if (!s[1].quoted && s[1].value.find('.', 1) == Text::npos)
            s[1] = quoted(names_.pictureOf(s[1]), s[1].place);
        const Place place = s[0].place;
        put(std::move(s));
        if (names_.asked.contains(base)) make(taken ? "SetzeMerker"_t : "LöscheMerker"_t, carriedFlag(base), place);
    }

    // --- lines of people

    void speech(const Statement& s) {
        const auto speaker = speakerOf(s);
        const Person* const person = names_.person(speaker->name);
        const Place place = s[0].place;
        if (!person) return nobody(s, *speaker);
        if (talk_) talk_->speaks(*person);
        faces(place);
        const auto voice = names_.voices.find(place);
        if (voice != names_.voices.end()) put({word("Ton", place), quoted(voice->second, place)});
        Statement text{word("Text", place)};
        for (std::size_t i = speaker->words; i < s.size(); ++i) text.push_back(coloured(s[i], person->colour));
        out_.push_back({std::move(text), false, person->name});
    }

    static Token coloured(Token line, const Text& mark) {
        if (mark.empty() || !line.quoted) return line;
        Text out;
        for (const TextView part : splitLines(line.value)) {
            if (&part.front() != &line.value.front()) out += '#';
            if (!part.empty() && !part.starts_with('$')) out += mark;
            out += part;
        }
        line.value = std::move(out);
        return line;
    }

    static std::vector<TextView> splitLines(TextView text) {
        std::vector<TextView> lines;
        while (true) {
            const std::size_t end = text.find('#');
            lines.push_back(text.substr(0, end));
            if (end == TextView::npos) return lines;
            text.remove_prefix(end + 1);
        }
    }

    void nobody(const Statement& s, const Speaker& speaker) {
        Text command = s[0].value;
        if (command.ends_with(':')) command.pop_back();
        if (speaker.words == 1 && (commandNamed(command) || normalised(command) == "option"))
            return wrong(s[0].place, "wort", "hinter " + shown(command) + " gehört kein Doppelpunkt");
        std::vector<Text> known;
        for (const auto& [key, person] : names_.people) known.push_back(person.name);
        const std::string hint = perhaps(speaker.name, known);
        wrong(s[0].place, "person",
              "eine Person " + shown(speaker.name) + " gibt es nicht" +
                  (hint.empty() ? "; sie steht in irgendeiner Quelle als \"Person " + toUtf8(speaker.name) + "\""
                                : hint));
    }

    // A text wipes the frames: each text and each choice of a talk has them drawn anew.
    void faces(Place place) {
        if (!talk_ || !talk_->framesOpen() || !talk_->faces().shown) return;
        for (const auto& [side, person] :
             {std::pair("links"_t, talk_->faces().left), {"rechts"_t, talk_->faces().right}})
            if (person) put({word("Portrait", place), word(side, place), quoted(person->portrait, place)}, true);
    }

    // --- conditions

    // One alternative of a chain, with what else there is behind it.
    void conditions(const Node& node, std::size_t i) {
        const Branch& b = node.branches[i];
        if (b.when.empty()) return branch(b.body);  // a finding already
        const bool more = i + 1 < node.branches.size();
        const Place place = b.head[0].place;
        const auto yes = [&] { branch(b.body); };
        const auto no = [&] {
            if (more) return conditions(node, i + 1);
            if (node.otherwise) return branch(node.otherwise->body);
            if (node.kind == Kind::dropped) make("Fehlerton", place);
        };
        const bool hasNo = more || node.otherwise || node.kind == Kind::dropped;
        const bool closed = node.end || node.kind == Kind::dropped;
        const Statement otherwise =
            !more && node.otherwise ? node.otherwise->head : Statement{word("Sonst", place)};
        const bool own = node.end && i == 0 && node.kind == Kind::condition;
        const Statement end = own ? *node.end : Statement{word("EndeWenn", place)};
        if (b.when.size() == 1 && b.when[0].size() <= 1) {
            const bool negated = !b.when[0].empty() && b.when[0][0].negated;
            if (b.when[0].empty())
                put(b.head);
            else
                test(b.when[0][0], b.head[0]);
            if (negated) {
                if (hasNo) no();
                put(otherwise);
                yes();
            } else {
                yes();
                if (hasNo) put(otherwise), no();
            }
            if (closed || i > 0) put(end);
            return;
        }
        joined(b, place, yes, no, hasNo);
    }

    void test(const Term& term, const Token& head) {
        const Place place = head.place;
        switch (term.kind) {
            case Term::Kind::flag:
                return put({word("WennMerker", place), quoted(term.name.value, term.name.place)});
            case Term::Kind::item:
                return put({word("WennMerker", place),
                            quoted(carriedFlag(names_.baseNameOf(term.name)), term.name.place)});
            case Term::Kind::dropped:
                const auto declared = names_.items.find(normalised(term.name.value));
                const Text name = declared == names_.items.end() ? term.name.value : names_.baseNameOf(term.name);
                return put({word("WennParameter", place), quoted(name, term.name.place)});
        }
    }

    // All terms of one list, in each other: `inside` runs where they all hold.
    template <typename Inside>
    void allOf(const std::vector<Term>& terms, const Token& head, const Inside& inside) {
        for (const Term& term : terms) {
            test(term, head);
            if (term.negated) make("Sonst", head.place);
        }
        inside();
        for (std::size_t i = 0; i < terms.size(); ++i) make("EndeWenn", head.place);
    }

    template <typename Yes, typename No>
    void joined(const Branch& b, Place place, const Yes& yes, const No& no, bool hasNo) {
        const Text end = newLabel();
        if (b.when.size() == 1) {
            allOf(b.when[0], b.head[0], [&] {
                yes();
                if (hasNo) jump(end, place);
            });
            if (!hasNo) return;
            no();
            return make("Marke", end, place);
        }
        const Text found = newLabel();
        for (const auto& terms : b.when) allOf(terms, b.head[0], [&] { make("Springe", found, place); });
        if (hasNo) no();
        jump(end, place);
        make("Marke", found, place);
        yes();
        make("Marke", end, place);
    }

    // --- choices

    void choice(const Node& node) {
        faces(node.head[0].place);
        put(node.head);
        const auto faces = talk_ ? std::optional(talk_->faces()) : std::nullopt;
        for (const Node& inner : node.body) {
            if (faces && inner.kind == Kind::plain && isCommand(inner.head, "Fall"_op)) talk_->setFaces(*faces);
            nodes({inner});
        }
        if (faces) talk_->setFaces(*faces);
        if (node.end) put(*node.end);
    }

    // --- talks

    void talk(const Node& node) {
        if (talk_) return nodes(node.body);  // a part that is called in a talk joins it
        Talk talk(node.body, names_);
        talk_ = &talk;
        nodes(node.body);
        talk_ = nullptr;
        const Place place = node.end ? node.end->front().place : node.head[0].place;
        if (talk.framesOpen()) make("RahmenZu", place);
    }

    void question(const Node& node) {
        if (node.branches.empty()) return;
        const bool fixed = std::none_of(node.branches.begin(), node.branches.end(),
                                        [](const Branch& b) { return b.once || !b.when.empty(); });
        if (std::all_of(node.branches.begin(), node.branches.end(), [&](const Branch& b) { return !ends(b); }))
            wrong(node.head[0].place, "frage",
                  "zu dieser Frage käme das Gespräch immer wieder zurück; eine ihrer Antworten heißt Schluss");
        Ask ask{node, newLabel(), newLabel(), {}, {}};
        for (const Branch& b : node.branches) ask.flags.push_back(b.once ? onceFlagOf(b) : Text());
        if (std::any_of(node.branches.begin(), node.branches.end(), [](const Branch& b) { return !b.closing; }))
            make("Marke", ask.again, node.head[0].place);
        faces(node.head[0].place);
        if (fixed)
            fixedQuestion(ask);
        else
            changingQuestion(ask);
    }

    struct Ask {
        const Node& node;
        Text again;
        Text end;
        std::vector<Text> flags;   // of each answer that is there once
        std::vector<Text> labels;  // of each answer
    };

    // Whether an answer can lead away from its question for good.
    static bool ends(const Branch& answer) { return answer.closing || answer.once || leadsAway(answer.body); }
    static bool leadsAway(const Nodes& nodes) {
        return std::any_of(nodes.begin(), nodes.end(), [](const Node& node) {
            if (node.kind == Kind::call) return true;
            if (node.kind == Kind::plain) return leaves(node.head) || isCommand(node.head, "System"_op);
            return leadsAway(node.body) || (node.otherwise && leadsAway(node.otherwise->body)) ||
                   std::any_of(node.branches.begin(), node.branches.end(),
                               [](const Branch& b) { return leadsAway(b.body); });
        });
    }

    Text onceFlagOf(const Branch& b) {
        Text text;
        for (const Token& line : b.text) (text += text.empty() ? "" : " ") += line.value;
        return onceFlag(scene_.where, text);
    }

    Statement answerText(const Branch& b) {
        Statement s{word("Fall", b.head[0].place)};
        s.insert(s.end(), b.text.begin(), b.text.end());
        return s;
    }
    Statement questionText(const Node& node) {
        Statement s = node.head;
        s[0] = word("Auswahl", s[0].place);
        return s;
    }

    void answerBody(const Ask& ask, std::size_t i) {
        const Branch& b = ask.node.branches[i];
        const Place place = b.head[0].place;
        if (b.once) make("SetzeMerker", ask.flags[i], place);
        branch(b.body);
        if (!b.closing) jump(ask.again, place);
    }

    // Answers that are always there: one choice.
    void fixedQuestion(const Ask& ask) {
        const Place place = ask.node.head[0].place;
        put(questionText(ask.node));
        for (std::size_t i = 0; i < ask.node.branches.size(); ++i) {
            put(answerText(ask.node.branches[i]));
            answerBody(ask, i);
        }
        put({word("EndeAuswahl", ask.node.end ? ask.node.end->front().place : place)}, true);
    }

    // Answers that come and go: a choice for each set of them that can be there, found by asking for one fact after
    // the other; what the answers do stands once, behind all choices.
    void changingQuestion(Ask& ask) {
        const Place place = ask.node.head[0].place;
        std::map<std::pair<Term::Kind, Text>, Token> facts;
        for (std::size_t i = 0; i < ask.node.branches.size(); ++i) {
            const Branch& b = ask.node.branches[i];
            ask.labels.push_back(newLabel());
            if (b.once)
                facts.emplace(std::pair(Term::Kind::flag, normalised(ask.flags[i])),
                              quoted(ask.flags[i], b.head[0].place));
            for (const auto& all : b.when)
                for (const Term& term : all) facts.emplace(factOf(term), term.name);
        }
        if (facts.size() > mostConditions)
            return wrong(place, "frage",
                         "die Antworten dieser Frage hängen von " + std::to_string(facts.size()) +
                             " Merkern und Gegenständen ab, mehr als " + std::to_string(mostConditions) +
                             " sind nicht möglich; eine zweite Frage hilft");
        std::map<std::pair<Term::Kind, Text>, bool> known;
        choose(ask, facts.begin(), facts.end(), known);
        for (std::size_t i = 0; i < ask.node.branches.size(); ++i) {
            make("Marke", ask.labels[i], ask.node.branches[i].head[0].place);
            answerBody(ask, i);
            if (ask.node.branches[i].closing && i + 1 < ask.node.branches.size()) jump(ask.end, place);
        }
        make("Marke", ask.end, place);
    }

    std::pair<Term::Kind, Text> factOf(const Term& term) const {
        return {term.kind,
                term.kind == Term::Kind::flag ? normalised(term.name.value) : names_.baseNameOf(term.name)};
    }

    using Known = std::map<std::pair<Term::Kind, Text>, bool>;

    // Whether an answer is there; nothing as long as that is open.
    std::optional<bool> isThere(const Ask& ask, std::size_t i, const Known& known) const {
        const Branch& b = ask.node.branches[i];
        if (b.once) {
            const auto used = known.find({Term::Kind::flag, normalised(ask.flags[i])});
            if (used != known.end() && used->second) return false;
        }
        std::optional<bool> any = b.when.empty() ? std::optional(true) : std::optional(false);
        for (const auto& all : b.when) {
            bool every = true;
            bool sure = true;
            for (const Term& term : all) {
                const auto fact = known.find(factOf(term));
                if (fact == known.end())
                    sure = false;
                else if (fact->second == term.negated)
                    every = false;
            }
            if (every && sure) any = true;
            if (every && !sure && any == std::optional(false)) any = std::nullopt;
        }
        if (any == std::optional(false)) return false;
        if (b.once && !known.contains({Term::Kind::flag, normalised(ask.flags[i])})) return std::nullopt;
        return any;
    }

    template <typename Fact>
    void choose(const Ask& ask, Fact next, Fact last, Known& known) {
        // A fact that makes no difference any more is not asked for.
        while (next != last && !matters(ask, next->first, known)) ++next;
        if (next == last) return oneChoice(ask, known);
        const Place place = ask.node.head[0].place;
        test({next->first.first, false, next->second}, ask.node.head[0]);
        const auto behind = std::next(next);
        known[next->first] = true;
        choose(ask, behind, last, known);
        make("Sonst", place);
        known[next->first] = false;
        choose(ask, behind, last, known);
        known.erase(next->first);
        make("EndeWenn", place);
    }

    bool matters(const Ask& ask, const std::pair<Term::Kind, Text>& fact, const Known& known) const {
        for (std::size_t i = 0; i < ask.node.branches.size(); ++i) {
            if (isThere(ask, i, known)) continue;
            if (ask.node.branches[i].once && fact == std::pair(Term::Kind::flag, normalised(ask.flags[i])))
                return true;
            for (const auto& all : ask.node.branches[i].when)
                for (const Term& term : all)
                    if (factOf(term) == fact) return true;
        }
        return false;
    }

    void oneChoice(const Ask& ask, const Known& known) {
        const Place place = ask.node.head[0].place;
        std::vector<std::size_t> there;
        for (std::size_t i = 0; i < ask.node.branches.size(); ++i)
            if (isThere(ask, i, known).value_or(true)) there.push_back(i);
        if (there.empty()) return make("Springe", ask.end, place);  // nothing is left to say
        put(questionText(ask.node));
        for (const std::size_t i : there) {
            put(answerText(ask.node.branches[i]));
            make("Springe", ask.labels[i], ask.node.branches[i].head[0].place);
        }
        make("EndeAuswahl", place);
    }

    // --- parts

    struct OpenPart {
        const Part* part;
        std::map<Text, Text> labels;  // normalised, and what they are called here
    };

    void call(const Statement& s) {
        Text name;
        for (std::size_t i = 1; i < s.size(); ++i) (name += name.empty() ? "" : " ") += s[i].value;
        const Part* const part = names_.part(name);
        if (!part) return unknownPart(s, name);
        if (std::any_of(parts_.begin(), parts_.end(), [&](const OpenPart& open) { return open.part == part; }))
            return wrong(s[0].place, "skriptteil",
                         "der Skriptteil " + shown(name) + " ruft sich hier selbst; so nähme er kein Ende");
        OpenPart open{part, {}};
        for (const Statement& line : part->script)
            if (isCommand(line, "Marke"_op) && line.size() == 2)
                open.labels.emplace(normalised(line[1].value), newLabel() + " " + line[1].value);
        parts_.push_back(std::move(open));
        nodes(readTree(part->script, findings_));
        parts_.pop_back();
        if (out_.size() > mostCommands) wrong(s[0].place, "skriptteil", "dieses Skript wird zu lang");
    }

    void unknownPart(const Statement& s, const Text& name) {
        std::vector<Text> known;
        for (const auto& [key, part] : names_.parts) known.push_back(key);
        wrong(s.size() > 1 ? s[1].place : s[0].place, "skriptteil",
              name.empty() ? std::string("hinter \"Rufe\" steht der Name eines Skriptteils")
                           : "einen Skriptteil " + shown(name) + " gibt es nicht" + perhaps(name, known));
    }

    const Scene& scene_;
    const Names& names_;
    Findings& findings_;
    std::vector<PlainCommand> out_;
    std::vector<OpenPart> parts_;
    Talk* talk_ = nullptr;
    int labels_ = 0;
};

Statement make(TextView command, const Text& argument, Place place) {
    return {word(command, place), quoted(argument, place)};
}

}  // namespace

std::vector<PlainCommand> plainCommands(const Nodes& script, const Scene& scene, const Names& names,
                                        Findings& findings) {
    return Lowering(scene, names, findings).all(script);
}

Nodes withCombinations(const Names& names, TextView baseName, std::optional<Nodes> own, Findings& findings) {
    Node row{Node::Kind::dropped, {}, {}, {}, {}, {}};
    for (const Combination& made : names.combinations) {
        const bool first = equalIgnoringCase(itemName(made.first), baseName);
        if (!first && !equalIgnoringCase(itemName(made.second), baseName)) continue;
        const Place place = made.head[0].place;
        Branch branch;
        branch.head = made.head;
        branch.when = {
            {{Term::Kind::dropped, false,
              quoted(upper(itemName(first ? made.second : made.first)), made.head[first ? 2 : 1].place)}}};
        std::vector<Statement> script{make("GibGegenstand", made.first, place),
                                      make("GibGegenstand", made.second, place),
                                      make("NimmGegenstand", made.result, place)};
        script.insert(script.end(), made.script.begin(), made.script.end());
        branch.body = readTree(script, findings);
        row.branches.push_back(std::move(branch));
    }
    if (row.branches.empty()) return own ? std::move(*own) : Nodes();
    row.head = row.branches.front().head;
    if (own) {
        row.otherwise.emplace();
        row.otherwise->head = {word("Sonst", row.head[0].place)};
        row.otherwise->body = std::move(*own);
    }
    return {row};
}

std::vector<Statement> takingOf(const Takeable& thing) {
    const Place place = thing.head[0].place;
    return {make("SetzeMerker", thing.flag, place), make("NimmGegenstand", thing.picture, place),
            make("ObjektAus", thing.object, place)};
}

std::vector<Statement> absenceOf(const Takeable& thing) {
    const Place place = thing.head[0].place;
    return {
        make("WennMerker", thing.flag, place), make("ObjektAus", thing.object, place), {word("EndeWenn", place)}};
}

}  // namespace zentrox::story
