// Random stories: the reduced search against the whole one, and the whole one against the real interpreter.
#include <random>

#include "engine/interpreter/interpreter.h"
#include "engine/state/felder.h"
#include "media/medien.h"
#include "platform/values/error.h"
#include "tests/prove/prove_support.h"
#include "tests/support/fake_backend.h"
#include "tests/support/fake_fonts.h"
#include "tests/support/fake_room.h"
#include "tests/support/fake_sound.h"
#include "tests/support/temp_directory.h"

namespace zentrox::prove::test {

namespace {

// --- stories

class Author {
public:
    Author(unsigned seed, bool loops) : chance_(seed), loops_(loops) {}

    std::string write() {
        for (int room = 0; room < rooms; ++room) {
            line(0, room == 0 ? "Raum \"Start.lsd\"" : "Raum \"R" + std::to_string(room) + ".lsd\"");
            if (odds(3)) {
                line(1, "Start");
                // Rooms that lead on to each other would never come to rest.
                mayLeave_ = false;
                script(2, 2);
                mayLeave_ = true;
                if (odds(4)) line(2, "CountDownSetzen 2");
            }
            if (odds(2)) {
                line(1, "Countdown");
                script(2, 2);
                line(2, "CountDownSetzen 0");
            }
            for (int i = 0; i < 4; ++i) object(i);
        }
        for (const char* const item : items)
            if (odds(2)) {
                line(0, std::string("Gegenstand \"") + item + ".bmp\"");
                if (odds(2)) part("Links");
                if (odds(2)) part("Ablegen");
            }
        return std::move(text_);
    }

private:
    static constexpr int rooms = 3;
    static constexpr std::array items{"a", "b", "c"};

    bool odds(int of) { return below(of) == 0; }
    int below(int count) { return std::uniform_int_distribution(0, count - 1)(chance_); }
    std::string flag() { return "F" + std::to_string(below(5)); }
    std::string item() { return items.at(static_cast<std::size_t>(below(3))); }
    void line(int depth, const std::string& words) {
        text_ += std::string(static_cast<std::size_t>(depth) * 4, ' ') + words + "\n";
    }

    void object(int number) {
        line(1, "Objekt \"O" + std::to_string(number % 3) + "\"");
        if (odds(5)) line(2, "Inaktiv");
        // Some lie half under others, some wholly.
        const int left = std::max(0, number * 100 - below(3) * 60);
        line(2, "Fläche Rechteck " + std::to_string(left) + " 0 " + std::to_string(left + 80) + " 80");
        if (odds(3)) part("Rechts");
        part("Links");
        if (odds(2)) part("Ablegen");
    }
    void part(const std::string& name) {
        line(1, name);
        dropped_ = name == "Ablegen";
        if (dropped_ && odds(2)) {
            line(2, "WennParameter " + item());
            script(3, 3);
            line(2, "EndeWenn");
        } else {
            script(2, 3);
        }
        dropped_ = false;
    }
    void script(int depth, int most) {
        for (int left = 1 + below(most); left > 0; --left) command(depth);
    }
    void command(int depth) {
        const bool deep = depth > 5;
        switch (below(deep ? 9 : 13)) {
            case 0: return line(depth, "Text \"Ach.\"");
            case 1:
            case 2: return line(depth, "SetzeMerker " + flag());
            case 3: return line(depth, odds(3) ? "LöscheMerker " + flag() : "Ton \"x.wav\"");
            case 4: return take(depth);
            case 5: return line(depth, "GibGegenstand \"" + item() + ".bmp\"");
            case 6:
                return line(depth, (odds(2) ? "ObjektAn \"O" : "ObjektAus \"O") + std::to_string(below(3)) + "\"");
            case 7:
                if (mayLeave_ && odds(2))
                    return line(depth, odds(3) ? "Raumwechsel \"Start.lsd\""
                                               : "Raumwechsel \"R" + std::to_string(1 + below(2)) + ".lsd\"");
                return line(depth, "BöseÄndern 1");
            case 8:
                if (odds(8)) line(depth, "// ende: E" + std::to_string(below(2)));
                return line(depth, odds(6) ? "System Ende" : odds(6) ? "System Abspann" : "Fehlerton");
            case 9:
            case 10: return condition(depth);
            case 11: return choice(depth);
            default: return line(depth, "Spiel PONG " + flag());
        }
    }
    void take(int depth) {
        const std::string name = item();
        line(depth, "WennMerker HAT_" + name);
        line(depth, "Sonst");
        line(depth + 1, "NimmGegenstand \"" + name + ".bmp\"");
        line(depth + 1, "SetzeMerker HAT_" + name);
        line(depth, "EndeWenn");
    }
    void condition(int depth) {
        line(depth, dropped_ && odds(3) ? "WennParameter " + item() : "WennMerker " + (odds(8) ? "BÖSE" : flag()));
        script(depth + 1, 2);
        if (odds(2)) {
            line(depth, "Sonst");
            script(depth + 1, 2);
        }
        line(depth, "EndeWenn");
    }
    void choice(int depth) {
        const std::string label = "M" + std::to_string(labels_++);
        const bool loops = loops_ && odds(3);
        if (loops) line(depth, "Marke " + label);
        line(depth, "Auswahl \"Was?\"");
        for (int i = below(2); i >= 0; --i) {
            line(depth + 1, "Fall \"Dies\"");
            script(depth + 2, 2);
            if (loops && i == 0) line(depth + 2, "Springe " + label);
        }
        line(depth + 1, "Option \"Nichts\"");
        line(depth, "EndeAuswahl");
    }

    std::mt19937 chance_;
    bool loops_;
    std::string text_;
    bool mayLeave_ = true;
    bool dropped_ = false;
    int labels_ = 0;
};

// --- what the real interpreter makes of them

// The player has to answer, or to win or lose; so many ways there are.
struct Asked {
    int ways;
};

using Shown = std::string;  // a state between two scripts, as text

class RealGame {
public:
    explicit RealGame(const story::Story& story) : story_(story) {
        z_.PfadRooms = "r\\";
        z_.PfadItems = "i\\";
        raum_.onLade = [this](TextView name) { enter(name); };
        raum_.onZeigText = [this](TextView) {
            backend_.wait(50);
            backend_.then([this] {
                if (z_.AuswahlErgebnis == -1)
                    z_.AuswahlErgebnis = decide(static_cast<int>(z_.AuswahlKanten.size()) - 1) + 1;
                else
                    z_.TastenCode = 65;
            });
        };
        spiele_["PONG"] = [this] { z_.Übergabe = decide(2) == 0; };
    }

    std::set<Shown> rests;                  // states between two scripts
    std::set<Shown> early;                  // those of them that need no ending on the way
    std::map<Shown, std::set<Shown>> next;  // of those
    std::set<Shown> ends;                   // a step from here passes an ending

    void explore() {
        struct Open {
            Zustand state;
            std::int64_t countDown;
            bool early;
        };
        std::vector<Open> todo;
        const auto add = [&](const Shown& from, bool wasEarly, bool ended) {
            const Shown shown = show();
            const bool isEarly = wasEarly && !ended;
            if (isEarly && !from.empty()) next[from].insert(shown);
            const bool isNew = rests.insert(shown).second;
            const bool isEarlyNew = isEarly && early.insert(shown).second;
            if (isNew || isEarlyNew) todo.push_back({z_, raum_.countDown, isEarly});
        };
        const auto all = [&](const Open& open, const Shown& from, const std::function<void()>& step) {
            std::vector<std::vector<int>> decisions{{}};
            while (!decisions.empty()) {
                z_ = open.state;
                raum_.countDown = open.countDown;
                decisions_ = decisions.back();
                decisions.pop_back();
                taken_ = 0;
                ended_ = false;
                const auto wanted = decisions_;
                const Result result = run(step);
                if (result.ways > 0)
                    for (int way = 0; way < result.ways; ++way) {
                        decisions.push_back(wanted);
                        decisions.back().push_back(way);
                    }
                if (result.ways > 0) continue;
                if (ended_ && open.early) ends.insert(from);
                if (result.rests) add(from, open.early, ended_);
            }
        };
        z_.GezogenerGegenstand = -1;
        const Open start{z_, 0, true};
        all(start, "", [this] { enter("r\\Start.lsd"); });
        while (!todo.empty() && rests.size() < most) {
            const Open open = std::move(todo.back());
            todo.pop_back();
            z_ = open.state;
            raum_.countDown = open.countDown;
            const Shown from = show();
            for (const auto& step : steps()) all(open, from, step);
        }
    }
    bool whole() const { return rests.size() < most; }

private:
    static constexpr std::size_t most = 600;

    struct Result {
        bool rests = false;
        int ways = 0;
    };
    Result run(const std::function<void()>& step) {
        try {
            step();
            return {true, 0};
        } catch (const Asked& asked) {
            return {false, asked.ways};
        } catch (const ProgramEnd&) {
            return {};
        }
    }

    int decide(int ways) {
        if (taken_ == decisions_.size()) throw Asked{ways};
        return decisions_[taken_++];
    }

    void enter(TextView path) {
        const Text file = Dateiname(path);
        raum_.countDown = 0;
        z_.RaumDatei = file;
        for (const story::StoryRoom& room : story_.rooms)
            if (equalIgnoringCase(room.file, file)) z_.AktuellerRaum = room.room;
        interpreter_.SkriptAusführen(z_.AktuellerRaum.Startskript, -1, "");
    }

    // Everything that a player can do here, by the masks themselves.
    std::vector<std::function<void()>> steps() {
        std::vector<std::function<void()>> all;
        if (raum_.countDown > 0)
            all.push_back([this] { interpreter_.SkriptAusführen(z_.AktuellerRaum.CountDownSkript, -1, ""); });
        for (int i = 0; i <= z_.AktuellerRaum.LetztesObjekt; ++i) {
            const RaumObjekt& object = z_.AktuellerRaum.Objekte[static_cast<std::size_t>(i)];
            if (!takesClick(i)) continue;
            for (const std::size_t which : {0U, 1U})
                if (object.HatSkript[which]) all.push_back([this, i, which] { act(i, which, ""); });
            for (int slot = 0; object.HatSkript[2] && slot <= z_.InventarLetzter; ++slot)
                all.push_back([this, i, name = itemName(slot)] { act(i, 2, name); });
        }
        for (int slot = 0; slot <= z_.InventarLetzter; ++slot)
            for (int onto = 0; onto <= z_.InventarLetzter; ++onto)
                for (const char* const which : {"0", "1", "2"})
                    if ((*which == '2') == (slot != onto))
                        all.push_back([this, name = itemName(slot), file = itemName(onto) + which + ".skp"] {
                            for (const story::StoryScript& script : story_.scripts)
                                if (equalIgnoringCase(script.file, file))
                                    interpreter_.SkriptAusführen(script.script, -1, name);
                        });
        return all;
    }
    bool takesClick(int wanted) const {
        for (int column = 0; column < Maskenspalten; ++column)
            for (int row = 0; row < Maskenzeilen; ++row)
                for (int i = 0; i <= z_.AktuellerRaum.LetztesObjekt; ++i)
                    if (z_.AktuellerRaum.Objekte[static_cast<std::size_t>(i)].Maske.at(column, row)) {
                        if (i == wanted) return true;
                        break;
                    }
        return false;
    }
    void act(int object, std::size_t which, const Text& name) {
        const Skript copy = z_.AktuellerRaum.Objekte[static_cast<std::size_t>(object)].Aktion[which];
        interpreter_.SkriptAusführen(copy, object, name);
    }
    Text itemName(int slot) const { return upper(story::itemName(z_.Inventar[static_cast<std::size_t>(slot)])); }

    Shown show() const {
        std::set<Text> flags(z_.Merker.begin(), z_.Merker.end());
        std::multiset<Text> items;
        for (int i = 0; i <= z_.InventarLetzter; ++i) items.insert(itemName(i));
        Text text = upper(z_.RaumDatei) + (raum_.countDown > 0 ? " tickt" : "") + (z_.BösePunkte > 0 ? " 1" : " 0");
        for (const Text& flag : flags)
            if (!flag.empty()) text += " " + flag;
        for (const Text& item : items) text += " +" + item;
        for (const RaumObjekt& object : z_.AktuellerRaum.Objekte) text += object.Aktiv ? "|" : ".";
        return toUtf8(text);
    }

    // `System Abspann` is told to the room; a marked line is not told to anybody.
    class Watch : public Beobachter {
    public:
        explicit Watch(RealGame& game) : game_(game) {}
        std::size_t Beginnt(const Skript& script, TextView, int) override {
            running_.push_back(script);
            return running_.size() - 1;
        }
        void Anweisung(std::size_t number, std::int32_t index) override {
            const auto at = static_cast<std::size_t>(index);
            const Skript& script = running_[number];
            if (at < script.Befehl.size() && script.Befehl[at] == "System"_op) game_.ended_ = true;
        }

    private:
        RealGame& game_;
        std::vector<Skript> running_;
    };

    const story::Story& story_;
    zentrox::test::TempDirectory directory_;
    zentrox::test::FakeBackend backend_;
    zentrox::test::FakeSound sound_{backend_};
    zentrox::test::FakeFonts fonts_;
    Platform platform_{backend_, fonts_, sound_, directory_.path()};
    Zustand z_;
    Medien medien_{platform_, z_};
    zentrox::test::FakeRaumfenster raum_;
    Spieltabelle spiele_;
    Watch watch_{*this};
    Interpreter interpreter_{platform_, z_, medien_, raum_, spiele_, watch_};
    std::vector<int> decisions_;
    std::size_t taken_ = 0;
    bool ended_ = false;
};

// --- the same states as the search has them

Shown show(const Program& program, const State& state) {
    const Room& room = program.rooms[static_cast<std::size_t>(state.room())];
    std::set<Text> flags;
    for (std::size_t i = 0; i < program.flags.size(); ++i)
        if (state.bit(program.flagBit[i])) flags.insert(program.flags[i]);
    std::multiset<Text> items;
    for (const Item& item : program.items)
        for (int i = 0; i < state.count(item); ++i) items.insert(upper(story::itemName(item.file)));
    Text text = upper(room.source->file) + (state.bit(program.layout.countDown) ? " tickt" : "") +
                (state.evil() > 0 ? " 1" : " 0");
    for (const Text& flag : flags) text += " " + flag;
    for (const Text& item : items) text += " +" + item;
    for (const Object& object : room.objects)
        text += (object.bit == -1 ? object.active : state.bit(object.bit)) ? "|" : ".";
    return toUtf8(text);
}

std::set<Shown> deadOf(const RealGame& game) {
    std::set<Shown> dead = game.early;
    for (bool changed = true; changed;) {
        changed = false;
        for (auto state = dead.begin(); state != dead.end();) {
            const auto& next = game.next.count(*state) ? game.next.at(*state) : std::set<Shown>{};
            const bool lives =
                game.ends.count(*state) != 0 ||
                std::any_of(next.begin(), next.end(), [&](const Shown& to) { return dead.count(to) == 0; });
            state = lives ? dead.erase(state) : std::next(state);
            changed = changed || lives;
        }
    }
    return dead;
}

class Random : public ::testing::TestWithParam<int> {};

TEST_P(Random, TheSearchDoesWhatTheInterpreterDoes) {
    for (unsigned seed = 0; seed < 12; ++seed) {
        // Marks are known to the search alone.
        std::string source = Author(static_cast<unsigned>(GetParam()) * 1000 + seed, false).write();
        for (std::size_t at = 0; (at = source.find("// ende:")) != std::string::npos;)
            source.replace(at, 8, "// egal ");
        SCOPED_TRACE(source);
        const story::Story story = story::test::compiled(source);
        RealGame game(story);
        game.explore();
        if (!game.whole()) continue;
        const Program program = compile(story, {});
        Search search(program, {}, {});
        search.run();
        search.findAlive();
        std::set<Shown> rests;
        std::set<Shown> dead;
        for (std::size_t shard = 0; shard < shardCount; ++shard)
            for (std::size_t local = 0; local < search.store().size(shard); ++local) {
                const StateId id = Store::idOf(shard, local);
                State state;
                search.load(id, state);
                if (state.stack() != idle) continue;
                rests.insert(show(program, state));
                if ((search.store().mark(id) & (mark::alive | mark::after)) == 0) dead.insert(show(program, state));
            }
        ASSERT_EQ(rests, game.rests);
        ASSERT_EQ(dead, deadOf(game));
    }
}

TEST_P(Random, WhatIsLeftOutChangesNoAnswer) {
    for (unsigned seed = 0; seed < 25; ++seed) {
        const std::string source = Author(static_cast<unsigned>(GetParam()) * 1000 + 500 + seed, true).write();
        SCOPED_TRACE(source);
        Bounds bounds;
        bounds.states = 20000;
        const Proof whole(source, false, bounds);
        if (!whole.report.complete) continue;
        const Proof reduced(source, true, bounds);
        ASSERT_EQ(reduced.endings(), whole.endings());
        ASSERT_EQ(reduced.deadSteps(), whole.deadSteps()) << reduced.dead() << " / " << whole.dead();
        ASSERT_EQ(reduced.findings(), whole.findings());
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Random, ::testing::Range(1, 9));

}  // namespace

}  // namespace zentrox::prove::test
