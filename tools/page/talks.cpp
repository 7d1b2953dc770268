#include "tools/page/talks.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "engine/language/opcodes.h"
#include "tools/page/ways.h"
#include "tools/page/words.h"
#include "tools/story/grammar.h"

namespace zentrox::page {

namespace {

using story::Branch;
using story::Node;
using story::Nodes;
using story::Statement;
using LineKind = TalkBox::Line::Kind;

constexpr std::size_t longestLine = 40;  // characters
constexpr std::size_t longestCommand = 44;
// Commands that tell a reader what a talk does, besides its words.
constexpr std::array told{"SetzeMerker"_op, "LöscheMerker"_op, "NimmGegenstand"_op, "GibGegenstand"_op,
                          "Raumwechsel"_op, "Spiel"_op,        "BöseÄndern"_op,     "System"_op,
                          "ObjektAn"_op,    "ObjektAus"_op,    "Film"_op,           "CountDownSetzen"_op};
// Pixels, as the page writes it.
constexpr double textPart = 0.9;     // of what is said, whose letters are narrower
constexpr double answerPart = 1.12;  // of answers, which are bold
constexpr double commandWidth = 7.1;
constexpr double leastWidth = 46;
constexpr double lineHeight = 17;
constexpr double margin = 20;

std::int32_t commandOf(const Statement& statement) {
    const Opcode* const row = statement.front().quoted ? nullptr : story::commandNamed(statement.front().value);
    return row == nullptr ? -1 : row->number;
}

bool talks(const Nodes& nodes);
bool talks(const Node& node) {
    if (node.kind == Node::Kind::talk || node.kind == Node::Kind::question || node.kind == Node::Kind::choice)
        return true;
    // A talk in plain commands.
    if (node.kind == Node::Kind::plain && commandOf(node.head) == "RahmenAuf"_op) return true;
    return talks(node.body) || (node.otherwise && talks(node.otherwise->body)) ||
           std::any_of(node.branches.begin(), node.branches.end(), [](const Branch& b) { return talks(b.body); });
}
bool talks(const Nodes& nodes) {
    return std::any_of(nodes.begin(), nodes.end(), [](const Node& node) { return talks(node); });
}

// Where a run stands, and how it came there.
struct Loose {
    std::size_t box;
    std::string label;
};
using Ends = std::vector<Loose>;

class TalkReader {
public:
    explicit TalkReader(Talk& talk) : talk_(talk) {}

    void read(const Nodes& nodes) {
        Ends ends = run(nodes, {});
        for (const auto& [label, loose] : jumps_) {
            const auto mark = marks_.find(label);
            if (mark == marks_.end()) continue;
            for (const Loose& end : loose) connect(end, mark->second, true);
        }
        measure();
    }

private:
    std::size_t box(TalkBox::Kind kind, story::Place place, const Ends& from) {
        const std::size_t number = talk_.boxes.size();
        talk_.boxes.push_back({kind, {}, place});
        for (const Loose& end : from) connect(end, number, false);
        open_ = false;
        return number;
    }
    void connect(const Loose& from, std::size_t to, bool back) {
        talk_.lines.push_back({from.box, to, from.label, back});
    }

    // A box that goes on if it is the last one and nothing else leads to what is next.
    std::size_t boxForMore(const Ends& ends, story::Place place) {
        const bool same =
            open_ && ends.size() == 1 && ends[0].label.empty() && ends[0].box + 1 == talk_.boxes.size();
        const std::size_t number = same ? ends[0].box : box(TalkBox::Kind::says, place, ends);
        open_ = true;
        return number;
    }

    void put(std::size_t number, LineKind kind, const std::string& prefix, const std::string& text) {
        const std::size_t before = prefix.empty() ? 0 : lengthOf(prefix) + 2;
        std::string who = prefix;
        for (std::string& line : brokenInto(text, longestLine, before))
            talk_.boxes[number].lines.push_back({kind, std::move(line), std::exchange(who, "")});
    }

    Ends run(const Nodes& nodes, Ends ends) {
        bool over = false;
        for (const Node& node : nodes) {
            if (over && !isMark(node)) continue;
            over = false;
            ends = one(node, std::move(ends), over);
        }
        return over ? Ends() : ends;
    }
    static bool isMark(const Node& node) {
        return node.kind == Node::Kind::plain && commandOf(node.head) == "Marke"_op;
    }
    Ends one(const Node& node, Ends ends, bool& over) {
        switch (node.kind) {
            case Node::Kind::plain: return plain(node.head, std::move(ends), over);
            case Node::Kind::speech: return speech(node.head, ends);
            case Node::Kind::condition:
            case Node::Kind::dropped: return conditions(node, std::move(ends), over);
            case Node::Kind::choice: return choice(node, ends, over);
            case Node::Kind::talk: {
                const std::size_t before = talk_.boxes.size();
                Ends after = run(node.body, std::move(ends));
                over = after.empty() && talk_.boxes.size() > before;
                return after;
            }
            case Node::Kind::question: return question(node, ends, over);
            case Node::Kind::call: return command(node.head, ends);
        }
        return ends;
    }

    Ends speech(const Statement& statement, const Ends& ends) {
        const auto speaker = story::speakerOf(statement);
        const std::size_t number = boxForMore(ends, statement.front().place);
        put(number, LineKind::speech, toUtf8(speaker->name), toUtf8(textBehind(statement)));
        return {{number, {}}};
    }

    Ends command(const Statement& statement, const Ends& ends) {
        const std::size_t number = boxForMore(ends, statement.front().place);
        std::string words;
        for (const story::Token& token : statement)
            words += (words.empty() ? "" : " ") +
                     (token.quoted ? "\"" + toUtf8(token.value) + "\"" : toUtf8(token.value));
        talk_.boxes[number].lines.push_back({LineKind::command, shortened(words, longestCommand), ""});
        return {{number, {}}};
    }

    Ends plain(const Statement& statement, Ends ends, bool& over) {
        const std::int32_t number = commandOf(statement);
        if (number == "Text"_op) return text(statement, ends);
        if (number == "Marke"_op) return mark(statement, ends);
        if (number == "Springe"_op) {
            over = true;
            append(jumps_[nameIn(statement)], std::move(ends));
            return {};
        }
        if (std::find(told.begin(), told.end(), number) == told.end()) return ends;
        Ends after = command(statement, ends);
        const bool leaves = number == "Raumwechsel"_op;
        if (leaves) talk_.boxes[after[0].box].kind = TalkBox::Kind::leaves;
        over = leaves || (number == "System"_op && !goesOn(nameIn(statement)));
        return over ? Ends() : after;
    }
    static Text nameIn(const Statement& statement) {
        return statement.size() > 1 ? story::normalised(statement[1].value) : Text();
    }
    // A word of `System` behind which the script runs on.
    static bool goesOn(TextView word) { return word == "save" || word == "open" || word == "abspann"; }

    Ends text(const Statement& statement, const Ends& ends) {
        const std::size_t number = boxForMore(ends, statement.front().place);
        put(number, LineKind::text, "", toUtf8(textBehind(statement)));
        return {{number, {}}};
    }

    Ends mark(const Statement& statement, const Ends& ends) {
        const std::size_t number = box(TalkBox::Kind::says, statement.front().place, ends);
        marks_.emplace(nameIn(statement), number);
        open_ = true;
        return command(statement, {{number, {}}});
    }

    Ends conditions(const Node& node, Ends ends, bool& over) {
        Ends after;
        for (const Branch& branch : node.branches) {
            const std::size_t test = box(TalkBox::Kind::tests, branch.head.front().place, ends);
            const std::string words = branch.when.empty() ? "" : inWords(branch.when);
            put(test, LineKind::condition, "", words.empty() ? "?" : words + "?");
            append(after, run(branch.body, {{test, "ja"}}));
            open_ = false;
            ends = {{test, "nein"}};
        }
        if (node.otherwise) ends = run(node.otherwise->body, std::move(ends));
        append(after, std::move(ends));
        open_ = false;
        over = after.empty();
        return after;
    }

    static void append(Ends& to, Ends more) {
        to.insert(to.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
    }

    std::size_t ask(const Statement& head, const Ends& ends) {
        const std::size_t question = box(TalkBox::Kind::asks, head.front().place, ends);
        put(question, LineKind::question, "", toUtf8(textBehind(head)));
        return question;
    }

    Ends choice(const Node& node, const Ends& ends, bool& over) {
        const std::size_t question = ask(node.head, ends);
        Ends after;
        Nodes body;
        const Statement* option = nullptr;
        const auto flush = [&] {
            if (option != nullptr) {
                const std::size_t answer = box(TalkBox::Kind::answer, option->front().place, {{question, ""}});
                put(answer, LineKind::answer, "", toUtf8(textBehind(*option)));
                open_ = true;
                append(after, run(body, {{answer, ""}}));
            }
            body.clear();
        };
        for (const Node& inner : node.body) {
            const Text word = inner.head.empty() ? Text() : story::normalised(inner.head.front().value);
            if (inner.kind == Node::Kind::plain && (word == "fall" || word == "option")) {
                flush();
                option = &inner.head;
            } else {
                body.push_back(inner);
            }
        }
        flush();
        open_ = false;
        over = after.empty();
        return after;
    }

    Ends question(const Node& node, const Ends& ends, bool& over) {
        const std::size_t question = ask(node.head, ends);
        Ends after;
        for (const Branch& branch : node.branches) {
            const std::size_t answer = box(TalkBox::Kind::answer, branch.head.front().place, {{question, ""}});
            put(answer, LineKind::answer, "", toUtf8(joinedText(branch.text)));
            if (branch.once) put(answer, LineKind::condition, "", "nur einmal");
            if (!branch.when.empty()) put(answer, LineKind::condition, "", "wenn " + inWords(branch.when));
            open_ = true;
            Ends left = run(branch.body, {{answer, ""}});
            if (branch.closing) {
                append(after, std::move(left));
            } else {
                for (const Loose& end : left) connect(end, question, true);
            }
        }
        open_ = false;
        over = after.empty();
        return after;
    }

    void measure() {
        for (const TalkBox& box : talk_.boxes) {
            double longest = leastWidth;
            for (const TalkBox::Line& line : box.lines) longest = std::max(longest, widthIn(line));
            talk_.drawing.boxes.push_back(
                {longest + margin, static_cast<double>(box.lines.size()) * lineHeight + margin, 0, 0});
        }
        for (const TalkLine& line : talk_.lines) {
            Drawing::Line drawn;
            drawn.from = line.from;
            drawn.to = line.to;
            drawn.back = line.back;
            if (!line.label.empty()) {
                drawn.labelWidth = widthOf(line.label) + margin / 2;
                drawn.labelHeight = lineHeight;
            }
            talk_.drawing.lines.push_back(drawn);
        }
    }

    static double widthIn(const TalkBox::Line& line) {
        if (line.kind == LineKind::command) return static_cast<double>(lengthOf(line.text)) * commandWidth;
        const double width = widthOf(line.text) + (line.prefix.empty() ? 0 : widthOf(line.prefix + ": "));
        if (line.kind == LineKind::answer) return width * answerPart;
        return line.kind == LineKind::condition ? width : width * textPart;
    }

    Talk& talk_;
    bool open_ = false;  // whether the last box may go on
    std::map<Text, std::size_t> marks_;
    std::map<Text, Ends> jumps_;
};

}  // namespace

std::vector<Talk> talksOf(const std::vector<Section>& sections) {
    std::vector<Talk> all;
    story::Findings ignored;
    for (std::size_t i = 0; i < sections.size(); ++i) {
        if (!sections[i].isScript()) continue;
        const Nodes nodes = readTree(sections[i].body, ignored);
        if (!talks(nodes)) continue;
        Talk talk;
        talk.section = i;
        TalkReader(talk).read(nodes);
        all.push_back(std::move(talk));
    }
    return all;
}

}  // namespace zentrox::page
