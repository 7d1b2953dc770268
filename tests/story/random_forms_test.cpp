// Random scripts of conditions, talks and parts: what the interpreter does with the compiled form is what the
// source says, by an evaluation of the source that knows nothing of the compiler.
#include <set>

#include "platform/values/random.h"
#include "story_support.h"
#include "tests/engine/engine_fixture.h"

namespace zentrox::story::test {

namespace {

constexpr int scripts = 400;
constexpr int choicesBeforeTheEnd = 40;  // then the closing answer is taken, so that every run ends

struct Fact {
    bool item = false;
    bool negated = false;
    std::string name;
};
using Expression = std::vector<std::vector<Fact>>;

struct Line;
using Lines = std::vector<Line>;
struct Alternative {
    Expression when;
    std::string answer;
    bool once = false;
    bool closing = false;
    Lines lines;
};
struct Line {
    enum class Kind { text, set, clear, take, give, condition, dropped, question, part, talk } kind = Kind::text;
    std::string name;  // text, flag, item
    std::vector<Alternative> alternatives;
    std::vector<Lines> otherwise;  // at most one
    Lines body;
};

const std::vector<std::string> flags{"A", "B", "C"};
const std::vector<std::string> items{"SEIL", "KANNE"};

// --- making one up

class Maker {
public:
    explicit Maker(std::uint64_t seed) : chance_(seed) {}

    // `ofDropped`: they stand in a `Bei`, where a further `Bei` would be its next case.
    Lines lines(int depth, bool ofDropped = false) {
        Lines all;
        for (int n = 1 + chance_.below(3); n > 0; --n) {
            all.push_back(line(depth));
            if (ofDropped && all.back().kind == Line::Kind::dropped) all.pop_back();
        }
        return all;
    }

private:
    template <typename T>
    const T& any(const std::vector<T>& of) {
        return of[static_cast<std::size_t>(chance_.below(static_cast<int>(of.size())))];
    }

    Line line(int depth) {
        using Kind = Line::Kind;
        switch (chance_.below(depth > 0 ? 12 : 6)) {
            case 0: return {Kind::set, any(flags), {}, {}, {}};
            case 1: return {Kind::clear, any(flags), {}, {}, {}};
            case 2: return {Kind::take, any(items), {}, {}, {}};
            case 3: return {Kind::give, any(items), {}, {}, {}};
            case 6:
            case 7: return branching(Kind::condition, depth);
            case 8: return branching(Kind::dropped, depth);
            case 9: return question(depth);
            case 10: return {Kind::part, {}, {}, {}, lines(depth - 1)};
            case 11: return {Kind::talk, {}, {}, {}, lines(depth - 1)};
            default: return {Kind::text, "t" + std::to_string(++texts_), {}, {}, {}};
        }
    }

    Expression expression() {
        Expression all;
        for (int n = 1 + chance_.below(2); n > 0; --n) {
            all.emplace_back();
            for (int m = 1 + chance_.below(2); m > 0; --m) {
                const bool item = chance_.below(3) == 0;
                all.back().push_back({item, chance_.below(3) == 0, any(item ? items : flags)});
            }
        }
        return all;
    }

    Line branching(Line::Kind kind, int depth) {
        Line line{kind, {}, {}, {}, {}};
        for (int n = 1 + chance_.below(3); n > 0; --n) {
            Alternative one{expression(), {}, false, false, lines(depth - 1, kind == Line::Kind::dropped)};
            if (kind == Line::Kind::dropped) {
                one.when.clear();
                for (int m = 1 + chance_.below(2); m > 0; --m) one.when.push_back({{true, false, any(items)}});
            }
            line.alternatives.push_back(std::move(one));
        }
        if (chance_.below(2) == 0) line.otherwise.push_back(lines(depth - 1, kind == Line::Kind::dropped));
        return line;
    }

    Line question(int depth) {
        Line line{Line::Kind::question, "f" + std::to_string(++texts_), {}, {}, {}};
        for (int n = chance_.below(4); n > 0; --n) {
            Alternative one{
                {}, "a" + std::to_string(++texts_), chance_.below(3) == 0, chance_.below(4) == 0, lines(depth - 1)};
            if (chance_.below(2) == 0) one.when = expression();
            line.alternatives.push_back(std::move(one));
        }
        line.alternatives.push_back({{}, "z" + std::to_string(++texts_), false, true, lines(depth - 1)});
        return line;
    }

    Random chance_;
    int texts_ = 0;
};

// --- writing it down

class Writer {
public:
    std::string script(const Lines& all) {
        std::string out;
        for (const Line& line : all) out += written(line);
        return out;
    }
    std::string parts;

private:
    static std::string written(const Expression& when, const std::string& usual) {
        std::string out;
        for (const auto& all : when) {
            out += out.empty() ? "" : " oder";
            for (const Fact& fact : all)
                out += std::string(&fact == &all.front() ? "" : " und") + (fact.negated ? " nicht" : "") +
                       (fact.item && usual == "flag" ? " Gegenstand" : "") + " " + fact.name;
        }
        return out;
    }

    std::string written(const Line& line) {
        using Kind = Line::Kind;
        switch (line.kind) {
            case Kind::text: return "Text \"" + line.name + "\"\n";
            case Kind::set: return "SetzeMerker " + line.name + "\n";
            case Kind::clear: return "LöscheMerker " + line.name + "\n";
            case Kind::take: return "NimmGegenstand " + line.name + "\n";
            case Kind::give: return "GibGegenstand " + line.name + "\n";
            case Kind::talk: return talk(line);
            case Kind::part: {
                const std::string name = "TEIL" + std::to_string(++count_);
                const std::string body = script(line.body);
                parts += "Skriptteil " + name + "\n" + body;
                return "Rufe " + name + "\n";
            }
            case Kind::question: return question(line);
            default: return branching(line);
        }
    }

    // Talks don't stand in each other, but for those of parts.
    std::string talk(const Line& line) {
        if (inTalk_) return script(line.body);
        inTalk_ = true;
        const std::string body = script(line.body);
        inTalk_ = false;
        return "Gespräch\n" + body + "EndeGespräch\n";
    }

    std::string branching(const Line& line) {
        const bool dropped = line.kind == Line::Kind::dropped;
        std::string out;
        for (const Alternative& one : line.alternatives) {
            if (dropped) {
                out += "Bei";
                for (const auto& all : one.when) out += " " + all[0].name;
            } else {
                out += (out.empty() ? "WennMerker" : "SonstWenn") + written(one.when, "flag");
            }
            out += "\n" + script(one.lines);
        }
        if (!line.otherwise.empty()) out += "Sonst\n" + script(line.otherwise[0]);
        return out + (dropped ? "EndeBei\n" : "EndeWenn\n");
    }

    std::string question(const Line& line) {
        std::string out = "Frage \"" + line.name + "\"\n";
        for (const Alternative& one : line.alternatives)
            out += (one.closing ? "Schluss \"" : "Antwort \"") + one.answer + "\"" + (one.once ? " einmal" : "") +
                   (one.when.empty() ? "" : " wenn" + written(one.when, "flag")) + "\n" + script(one.lines);
        return out + "EndeFrage\n";
    }

    int count_ = 0;
    bool inTalk_ = false;
};

// Which answer is taken, the same for both sides.
class Player {
public:
    explicit Player(std::uint64_t seed) : chance_(seed) {}
    std::size_t pick(std::size_t count) {
        return ++choices_ > choicesBeforeTheEnd ? count - 1
                                                : static_cast<std::size_t>(chance_.below(static_cast<int>(count)));
    }

private:
    Random chance_;
    int choices_ = 0;
};

// --- what the source says

class Evaluation {
public:
    Evaluation(std::uint64_t seed, std::string dropped) : player_(seed), dropped_(std::move(dropped)) {}

    void run(const Lines& all) {
        for (const Line& line : all) run(line);
    }
    std::string seen;

private:
    bool holds(const Expression& when) const {
        if (when.empty()) return true;
        return std::any_of(when.begin(), when.end(), [&](const auto& all) {
            return std::all_of(all.begin(), all.end(), [&](const Fact& fact) {
                return set_.contains((fact.item ? "item " : "flag ") + fact.name) != fact.negated;
            });
        });
    }

    void run(const Line& line) {
        using Kind = Line::Kind;
        switch (line.kind) {
            case Kind::text: seen += line.name + " "; return;
            case Kind::set: set_.insert("flag " + line.name); return;
            case Kind::clear: set_.erase("flag " + line.name); return;
            case Kind::take: set_.insert("item " + line.name); return;
            case Kind::give: set_.erase("item " + line.name); return;
            case Kind::talk:
            case Kind::part: return run(line.body);
            case Kind::question: return ask(line);
            default: break;
        }
        for (const Alternative& one : line.alternatives) {
            const bool fits = line.kind == Kind::condition
                                  ? holds(one.when)
                                  : std::any_of(one.when.begin(), one.when.end(),
                                                [&](const auto& all) { return all[0].name == dropped_; });
            if (fits) return run(one.lines);
        }
        if (!line.otherwise.empty())
            run(line.otherwise[0]);
        else if (line.kind == Kind::dropped)
            seen += "Fehlerton ";
    }

    void ask(const Line& line) {
        while (true) {
            std::vector<const Alternative*> there;
            for (const Alternative& one : line.alternatives)
                if (holds(one.when) && !used_.contains(one.answer)) there.push_back(&one);
            seen += line.name + "?";
            for (const Alternative* one : there) seen += one->answer + ",";
            const Alternative& taken = *there[player_.pick(there.size())];
            seen += "=" + taken.answer + " ";
            if (taken.once) used_.insert(taken.answer);
            run(taken.lines);
            if (taken.closing) return;
        }
    }

    Player player_;
    std::string dropped_;
    std::set<std::string> set_;
    std::set<std::string> used_;
};

// --- what the game does

class Play : public zentrox::test::EngineTest {
public:
    Play(std::uint64_t seed, std::string dropped) : player_(seed), dropped_(std::move(dropped)) {
        raum.onZeigText = [this](TextView text) {
            if (z.AuswahlErgebnis == -2)
                choose();
            else
                nach(10, [this, said = Text(text)] {
                    seen += said + " ";
                    z.TastenCode = 65;
                });
        };
        for (int i = 10; i <= 18; ++i) directory.write("sounds/Error" + std::to_string(i) + ".mp3", "");
    }
    void TestBody() override {}
    void run(const Skript& script) { interpreter.SkriptAusführen(script, -1, dropped_); }
    std::string seen;

private:
    void choose() {
        seen += z.AuswahlTexte[0].substr(0, z.AuswahlTexte[0].find('\r')) + "?";
        for (std::size_t i = 1; i < z.AuswahlTexte.size(); ++i) seen += z.AuswahlTexte[i] + ",";
        const std::size_t taken = player_.pick(z.AuswahlTexte.size() - 1) + 1;
        seen += "=" + z.AuswahlTexte[taken] + " ";
        nach(10, [this, taken] { z.AuswahlErgebnis = static_cast<std::int32_t>(taken); });
    }

    Player player_;
    std::string dropped_;
};

// A refusal is heard, not seen: for the comparison it is a text.
Skript withSeenRefusals(Skript script) {
    for (std::size_t i = 0; i < script.Befehl.size(); ++i)
        if (script.Befehl[i] == "Fehlerton"_op) script.Befehl[i] = "Text"_op, script.Argument[i] = "Fehlerton";
    return script;
}

}  // namespace

TEST(RandomForms, DoWhatTheirSourceSays) {
    std::size_t longest = 0;
    for (std::uint64_t seed = 1; seed <= scripts; ++seed) {
        const Lines lines = Maker(seed).lines(4);
        Writer writer;
        const std::string body = writer.script(lines);
        const std::string source = "Gegenstand \"seil.bmp\"\nGegenstand \"kanne.bmp\"\n" + writer.parts +
                                   "Raum \"r.lsd\"\nObjekt \"o\"\nAblegen\n" + body;
        const Story story = compiled(source);
        const std::string dropped = seed % 3 == 0 ? "" : items[seed % items.size()];
        Evaluation evaluation(seed, dropped);
        evaluation.run(lines);
        Play play(seed, dropped);
        play.run(withSeenRefusals(story.rooms[0].room.Objekte[0].Aktion[2]));
        ASSERT_EQ(play.seen, evaluation.seen) << source;
        longest = std::max(longest, evaluation.seen.size());
    }
    EXPECT_GT(longest, 300U);
}

}  // namespace zentrox::story::test
