#include "tools/story/tree.h"

#include <algorithm>
#include <array>
#include <map>

#include "tools/story/grammar.h"

namespace zentrox::story {

namespace {

constexpr std::size_t deepest = 300;  // blocks in each other; what is deeper is taken as it stands

// The words that give a script its shape.
enum class Word {
    other,
    condition,
    otherwiseIf,
    otherwise,
    endCondition,
    choice,
    endChoice,
    with,
    endWith,
    talk,
    endTalk,
    question,
    answer,
    endQuestion,
    call
};

Word wordOf(const Statement& statement) {
    static const std::map<Text, Word, std::less<>> words{
        {"wennmerker", Word::condition},
        {"wennparameter", Word::condition},
        {"wenngegenstand", Word::condition},
        {"sonstwenn", Word::otherwiseIf},
        {"sonst", Word::otherwise},
        {"endewenn", Word::endCondition},
        {"auswahl", Word::choice},
        {"endeauswahl", Word::endChoice},
        {"bei", Word::with},
        {"endebei", Word::endWith},
        {"gespraech", Word::talk},
        {"endegespraech", Word::endTalk},
        {"frage", Word::question},
        {"antwort", Word::answer},
        {"schluss", Word::answer},
        {"endefrage", Word::endQuestion},
        {"rufe", Word::call},
    };
    const auto found = words.find(normalised(statement.front().value));
    return found == words.end() ? Word::other : found->second;
}

Term::Kind kindOf(const Token& head) {
    const Text word = normalised(head.value);
    return word == "wenngegenstand"  ? Term::Kind::item
           : word == "wennparameter" ? Term::Kind::dropped
                                     : Term::Kind::flag;
}

class TreeReader {
public:
    TreeReader(const std::vector<Statement>& script, Findings& findings) : script_(script), findings_(findings) {}

    Nodes all() {
        Nodes nodes;
        while (true) {
            Nodes more = block();
            std::move(more.begin(), more.end(), std::back_inserter(nodes));
            if (atEnd()) return nodes;
            nodes.push_back(stray());
        }
    }

private:
    using Kind = Node::Kind;

    bool atEnd() const { return at_ == script_.size(); }
    Word word() const { return atEnd() ? Word::other : wordOf(script_[at_]); }
    const Statement& take() { return script_[at_++]; }
    bool isOpen(Kind kind) const { return std::find(open_.begin(), open_.end(), kind) != open_.end(); }
    bool innermost(Kind kind) const { return !open_.empty() && open_.back() == kind; }

    // Whether the word in front belongs to a block that is open.
    bool closesOrDivides() const {
        switch (word()) {
            case Word::otherwise:
            case Word::otherwiseIf: return innermost(Kind::condition) || innermost(Kind::dropped);
            case Word::endCondition: return isOpen(Kind::condition);
            case Word::endChoice: return isOpen(Kind::choice);
            case Word::with: return innermost(Kind::dropped);
            case Word::endWith: return isOpen(Kind::dropped);
            case Word::answer:
            case Word::endQuestion: return isOpen(Kind::question);
            case Word::endTalk: return isOpen(Kind::talk);
            default: return false;
        }
    }

    Nodes block() {
        Nodes nodes;
        while (!atEnd() && !closesOrDivides()) nodes.push_back(node());
        return nodes;
    }

    Nodes blockOf(Kind kind) {
        open_.push_back(kind);
        Nodes nodes = block();
        open_.pop_back();
        return nodes;
    }

    Node plain() { return {Kind::plain, take(), {}, {}, {}, {}}; }

    Node node() {
        const Word first = word();
        if (open_.size() >= deepest) return stray();
        switch (first) {
            case Word::condition: return condition();
            case Word::choice: return choice();
            case Word::with: return dropped();
            case Word::talk: return talk();
            case Word::question: return question();
            case Word::call: return {Kind::call, take(), {}, {}, {}, {}};
            case Word::other: return speakerOf(script_[at_]) ? Node{Kind::speech, take(), {}, {}, {}, {}} : plain();
            default: return stray();
        }
    }

    // A word that closes or divides nothing. Plain ones are told by the check.
    Node stray() {
        const Statement& s = script_[at_];
        static const std::map<Word, const char*> needs{
            {Word::otherwiseIf, "steht hinter einem Wenn, und vor dessen Sonst"},
            {Word::endWith, "schließt nichts, hier ist kein Bei offen"},
            {Word::endTalk, "schließt nichts, hier ist kein Gespräch offen"},
            {Word::answer, "gehört zu einer Frage, hier ist keine offen"},
            {Word::endQuestion, "schließt nichts, hier ist keine Frage offen"}};
        const auto need = needs.find(wordOf(s));
        if (need != needs.end())
            wrong(s, shown(s.front().value) + " " + need->second);
        else if (open_.size() >= deepest && !commandNamed(s.front().value))
            wrong(s, "hier stehen mehr als " + std::to_string(deepest) + " Blöcke ineinander");
        return plain();
    }

    void wrong(const Statement& s, const std::string& message) {
        findings_.broken(s.front().place, "block", message);
    }

    // --- conditions

    static bool isPlain(const Statement& head) {
        static constexpr std::array<TextView, 6> formed{"nicht",  "und",        "oder",
                                                        "merker", "gegenstand", "parameter"};
        return commandNamed(head[0].value) && head.size() != 2 &&
               std::none_of(head.begin() + 1, head.end(), [](const Token& word) {
                   return !word.quoted &&
                          std::find(formed.begin(), formed.end(), normalised(word.value)) != formed.end();
               });
    }

    Node condition() {
        Node node{Kind::condition, {}, {}, {}, {}, {}};
        bool more = true;
        while (more) {
            Branch branch;
            branch.head = take();
            const auto words = std::span(branch.head).subspan(1);
            // What is wrong with a plain command is told by the compiler.
            if (node.branches.empty() && isPlain(branch.head))
                branch.when = {{}};
            else if (auto when = readCondition(branch.head[0], words, kindOf(branch.head[0]), findings_))
                branch.when = std::move(*when);
            branch.body = blockOf(Kind::condition);
            node.branches.push_back(std::move(branch));
            more = word() == Word::otherwiseIf && !atEnd();
        }
        node.head = node.branches.front().head;
        otherwise(node, Kind::condition);
        if (!atEnd() && word() == Word::endCondition)
            node.end = take();
        else if (node.branches.size() > 1 || node.branches[0].when.size() != 1 ||
                 node.branches[0].when[0].size() > 1)
            wrong(node.head, "diesem Wenn fehlt sein EndeWenn");
        return node;
    }

    // `Sonst` and what follows it. A second one is no part of the block any more.
    void otherwise(Node& node, Kind kind) {
        if (atEnd() || word() != Word::otherwise) return;
        node.otherwise.emplace();
        node.otherwise->head = take();
        while (true) {
            Nodes more = blockOf(kind);
            std::move(more.begin(), more.end(), std::back_inserter(node.otherwise->body));
            if (atEnd() || (word() != Word::otherwise && word() != Word::otherwiseIf && word() != Word::with))
                return;
            if (kind == Kind::dropped || word() != Word::otherwise)
                wrong(script_[at_],
                      shown(script_[at_].front().value) + " steht hinter dem Sonst; das Sonst kommt zuletzt");
            node.otherwise->body.push_back(plain());
        }
    }

    Node choice() {
        Node node{Kind::choice, take(), {}, {}, {}, {}};
        node.body = blockOf(Kind::choice);
        if (!atEnd() && word() == Word::endChoice) node.end = take();
        return node;
    }

    // --- things that are dropped

    Node dropped() {
        Node node{Kind::dropped, script_[at_], {}, {}, {}, {}};
        while (!atEnd() && word() == Word::with) {
            Branch branch;
            branch.head = take();
            for (std::size_t i = 1; i < branch.head.size(); ++i)
                branch.when.push_back({{Term::Kind::dropped, false, branch.head[i]}});
            if (branch.when.empty()) {
                wrong(branch.head, "hinter \"Bei\" stehen die Gegenstände, die abgelegt werden können");
            }
            branch.body = blockOf(Kind::dropped);
            node.branches.push_back(std::move(branch));
        }
        otherwise(node, Kind::dropped);
        if (!atEnd() && word() == Word::endWith)
            node.end = take();
        else if (!atEnd() || !open_.empty())
            wrong(node.head, "diesem \"Bei\" fehlt sein EndeBei; nur am Ende eines Skripts darf es fehlen");
        return node;
    }

    // --- talks

    Node talk() {
        Node node{Kind::talk, take(), {}, {}, {}, {}};
        if (node.head.size() > 1)
            findings_.broken(node.head[1].place, "argument",
                             "hinter \"Gespräch\" steht nichts weiter; wer spricht, steht vor den Zeilen");
        if (isOpen(Kind::talk)) wrong(node.head, "hier ist schon ein Gespräch offen");
        node.body = blockOf(Kind::talk);
        if (!atEnd() && word() == Word::endTalk)
            node.end = take();
        else
            wrong(node.head, "diesem Gespräch fehlt sein EndeGespräch");
        return node;
    }

    Node question() {
        Node node{Kind::question, take(), {}, {}, {}, {}};
        const Nodes before = blockOf(Kind::question);
        if (!before.empty())
            wrong(
                before.front().kind == Kind::condition ? before.front().branches.front().head : before.front().head,
                "zwischen einer Frage und ihrer ersten Antwort läuft nichts; das gehört davor");
        while (!atEnd() && word() == Word::answer) {
            Branch answer = readAnswer(take(), findings_);
            answer.body = blockOf(Kind::question);
            node.branches.push_back(std::move(answer));
        }
        if (node.branches.empty()) wrong(node.head, "dieser Frage fehlt eine Antwort");
        if (!atEnd() && word() == Word::endQuestion)
            node.end = take();
        else if (!(atEnd() && open_.empty()) && !(word() == Word::endTalk && innermost(Kind::talk)))
            wrong(node.head, "dieser Frage fehlt ihr EndeFrage; nur vor EndeGespräch darf es fehlen");
        return node;
    }

    const std::vector<Statement>& script_;
    Findings& findings_;
    std::vector<Kind> open_;
    std::size_t at_ = 0;
};

}  // namespace

Nodes readTree(const std::vector<Statement>& script, Findings& findings) {
    return TreeReader(script, findings).all();
}

std::optional<Speaker> speakerOf(const Statement& statement) {
    Speaker speaker;
    for (const Token& token : statement) {
        if (token.quoted) return std::nullopt;
        if (speaker.words++ > 0) speaker.name += ' ';
        speaker.name += token.value;
        if (!speaker.name.ends_with(':')) continue;
        speaker.name.pop_back();
        return speaker.name.empty() ? std::nullopt : std::optional(speaker);
    }
    return std::nullopt;
}

Branch readAnswer(const Statement& statement, Findings& findings) {
    Branch answer;
    answer.head = statement;
    answer.closing = normalised(statement[0].value) == "schluss";
    std::size_t i = 1;
    while (i < statement.size() && statement[i].quoted) answer.text.push_back(statement[i++]);
    while (i < statement.size()) {
        const Text word = statement[i].quoted ? Text() : normalised(statement[i].value);
        if (word == "wenn") {
            if (auto when =
                    readCondition(statement[i], std::span(statement).subspan(i + 1), Term::Kind::flag, findings))
                answer.when = std::move(*when);
            return answer;
        }
        if (word == "einmal")
            answer.once = true;
        else
            findings.broken(
                statement[i].place, "argument",
                "hinter dem Text einer Antwort steht „einmal“ oder „wenn“ mit einer Bedingung; hier steht " +
                    shown(statement[i].value));
        ++i;
    }
    return answer;
}

}  // namespace zentrox::story
