// Conditions, choices and jumps: single cases, and random scripts against a walk over the tree they were made from.
#include <random>

#include "engine/state/merker.h"
#include "tests/engine/engine_fixture.h"

namespace zentrox {
namespace {

class Flow : public test::EngineTest {
protected:
    // Clicks these options, one choice after the other.
    void choose(std::vector<std::int32_t> optionen) {
        raum.onZeigText = [this, optionen, i = std::size_t{0}](TextView) mutable {
            const std::int32_t option = optionen.at(i++);
            nach(50, [this, option] { z.AuswahlErgebnis = option; });
        };
    }
};

TEST_F(Flow, ConditionsTakeOneBranch) {
    const std::vector<test::Line> s{
        {"WennMerker", " licht "}, {"ZeigBild", "1"}, {"WennMerker", "X"}, {"ZeigBild", "2"}, {"Sonst"},
        {"ZeigBild", "3"},         {"EndeWenn"},      {"ZeigBild", "4"},   {"Sonst"},         {"ZeigBild", "5"},
        {"WennMerker", "X"},       {"Sonst"},         {"ZeigBild", "6"},   {"EndeWenn"},      {"EndeWenn"},
        {"ZeigBild", "7"}};
    EXPECT_EQ(weg(s), "5 6 7");
    MerkerSetzen(z, "LICHT");
    EXPECT_EQ(weg(s), "1 3 4 7");
    MerkerSetzen(z, "X");
    EXPECT_EQ(weg(s), "1 2 4 7");
    MerkerLöschen(z, "LICHT");
    EXPECT_EQ(weg(s), "5 7");
}

TEST_F(Flow, AParameterIsComparedInUpperCase) {
    const TextView name = " schlüssel"_t;
    const std::vector<test::Line> s{{"WennParameter", name}, {"ZeigBild", "1"}, {"EndeWenn"}, {"ZeigBild", "2"}};
    EXPECT_EQ(weg(s, Text("SCHLÜSSEL"_t)), "1 2");
    EXPECT_EQ(weg(s, Text("SCHLÜSSELBUND"_t)), "2");
    EXPECT_EQ(weg(s, Text("schlüssel"_t)), "2") << "the parameter itself is taken as it is";
    EXPECT_EQ(weg({{"WennParameter"}, {"ZeigBild", "1"}, {"EndeWenn"}}), "1");
}

TEST_F(Flow, AnEmptyFlagNameIsTrueWhileASlotIsFree) {
    const std::vector<test::Line> s{{"WennMerker", "  "}, {"ZeigBild", "1"}, {"EndeWenn"}};
    EXPECT_EQ(weg(s), "1");
    for (int i = 0; i < MerkerAnzahl; ++i) MerkerSetzen(z, "M" + std::to_string(i));
    EXPECT_EQ(weg(s), "");
}

// The walk from the first Sonst stops at a second one of its level, and what stands behind that runs.
TEST_F(Flow, ASecondSonstEndsTheWalkOfTheFirst) {
    const std::vector<test::Line> s{{"WennMerker", ""}, {"ZeigBild", "1"}, {"Sonst"},    {"ZeigBild", "2"},
                                    {"Sonst"},          {"ZeigBild", "3"}, {"EndeWenn"}, {"ZeigBild", "4"}};
    EXPECT_EQ(weg(s), "1 3 4");
}

TEST_F(Flow, AWalkWithoutAnEndEndsTheRun) {
    MerkerSetzen(z, "AN");
    choose({1, 2, 1});
    EXPECT_EQ(weg({{"WennMerker", "AUS"}, {"ZeigBild", "1"}, {"WennMerker", "AN"}, {"EndeWenn"}}), "");
    EXPECT_EQ(weg({{"WennMerker", "AN"}, {"ZeigBild", "1"}, {"Sonst"}, {"ZeigBild", "2"}}), "1");
    EXPECT_EQ(weg({{"WennMerker", "AN"}, {"ZeigBild", "1"}}), "1");
    EXPECT_EQ(weg({{"Auswahl", "1|Ja?|Ja"}}), "");
    EXPECT_EQ(weg({{"Auswahl", "2|Ja?|Ja|Nein"}, {"Fall", "1"}, {"ZeigBild", "1"}}), "");
    EXPECT_EQ(weg({{"Auswahl", "2|Ja?|Ja|Nein"}, {"Fall", "1"}, {"ZeigBild", "1"}, {"Fall", "2"}}), "1");
    EXPECT_EQ(weg({{"Fall", "1"}, {"ZeigBild", "1"}}), "");
    EXPECT_FALSE(z.SkriptLäuft);
}

TEST_F(Flow, AChoiceRunsItsCaseAndNoOther) {
    const std::vector<test::Line> s{{"Auswahl", "3|Wohin?|A|B|C"},
                                    {"ZeigBild", "0"},
                                    {"Fall", "1"},
                                    {"ZeigBild", "1"},
                                    {"Auswahl", "2|Und?|D|E"},
                                    {"Fall", "2"},
                                    {"ZeigBild", "12"},
                                    {"Fall", " 1"},
                                    {"ZeigBild", "11"},
                                    {"EndeAuswahl"},
                                    {"ZeigBild", "9"},
                                    {"Fall", " 2 "},
                                    {"ZeigBild", "2"},
                                    {"EndeAuswahl"},
                                    {"ZeigBild", "8"}};
    choose({1, 1, 1, 2, 2, 3});
    EXPECT_EQ(weg(s), "1 11 9 8");
    EXPECT_EQ(weg(s), "1 12 9 8");
    EXPECT_EQ(weg(s), "2 8");
    EXPECT_EQ(weg(s), "8") << "no case for this option";
}

TEST_F(Flow, JumpsGoToTheFirstLabelWhereverItStands) {
    EXPECT_EQ(weg({{"Springe", " ziel "},
                   {"ZeigBild", "1"},
                   {"Marke", "Ziel"},
                   {"ZeigBild", "2"},
                   {"Marke", "ZIEL"},
                   {"ZeigBild", "3"}}),
              "2 3");
    EXPECT_EQ(weg({{"Springe", "nirgends"}, {"ZeigBild", "1"}}), "1");
    // Out of a block, into the middle of another, and back as a loop.
    EXPECT_EQ(weg({{"Springe", "innen"},
                   {"WennMerker", "X"},
                   {"ZeigBild", "1"},
                   {"Marke", "innen"},
                   {"ZeigBild", "2"},
                   {"EndeWenn"},
                   {"SetzeMerker", "X"},
                   {"ZeigBild", "3"},
                   {"WennMerker", "Y"},
                   {"Sonst"},
                   {"SetzeMerker", "Y"},
                   {"Springe", "innen"},
                   {"EndeWenn"},
                   {"ZeigBild", "4"}}),
              "2 3 2 3 4");
}

TEST_F(Flow, UnknownOpcodesAreSkipped) {
    Skript s = test::skript({{"33"}, {"-1"}, {"2147483647"}, {"10"}, {"26"}, {"29"}, {"ZeigBild", "1"}});
    s.Argument.resize(6);  // and an argument that is not there is empty
    interpreter.SkriptAusführen(s, -1, "");
    EXPECT_EQ(raum.commandNotes(), (std::vector<Text>{"BildLaden g\\"}));
}

// --- random scripts

// A statement as a tree. The scripts are flat; what they should do is known from here.
struct Anweisung {
    enum Art { bild, setFlag, clearFlag, ifFlag, ifParameter, auswahl, jump } art = bild;
    int zahl = 0;  // picture, flag, label, or the option that will be clicked
    bool sonst = false;
    std::vector<std::vector<Anweisung>> branches;  // two of a condition, one for each case of a choice
};
using Block = std::vector<Anweisung>;

constexpr int flagCount = 4;
constexpr TextView Parameter = "P1";

struct Sprung {
    int ziel;
};

class Zufall {
public:
    explicit Zufall(unsigned seed) : chance_(seed) {}

    Block block(int tiefe) {
        Block b(static_cast<std::size_t>(below(5)));
        for (Anweisung& a : b) a = anweisung(tiefe);
        return b;
    }
    int below(int n) { return static_cast<int>(chance_() % static_cast<unsigned>(n)); }

private:
    Anweisung anweisung(int tiefe) {
        using A = Anweisung;
        const int art = below(tiefe > 0 ? 10 : 5);
        if (art < 3) return {A::bild, below(1000), false, {}};
        if (art < 5) return {art == 3 ? A::setFlag : A::clearFlag, below(flagCount), false, {}};
        if (art == 5) return {A::jump, below(3), false, {}};
        if (art == 6) {
            A a{A::auswahl, 1 + below(4), false, {}};
            for (int i = below(4); i > 0; --i) a.branches.push_back(block(tiefe - 1));
            return a;
        }
        return {art == 7 ? A::ifParameter : A::ifFlag,
                below(flagCount),
                below(2) == 1,
                {block(tiefe - 1), block(tiefe - 1)}};
    }

    std::mt19937 chance_;
};

class Compiler {
public:
    std::vector<std::pair<TextView, Text>> lines;
    std::vector<std::int32_t> clicks;  // by the order in which choices are written, which their question names

    void block(const Block& b) {
        for (const Anweisung& a : b) anweisung(a);
    }
    void line(TextView befehl, Text argument = {}) { lines.emplace_back(befehl, std::move(argument)); }

private:
    void anweisung(const Anweisung& a) {
        const Text zahl = std::to_string(a.zahl);
        switch (a.art) {
            case Anweisung::bild: return line("ZeigBild", zahl);
            case Anweisung::setFlag: return line("SetzeMerker", "F" + zahl);
            case Anweisung::clearFlag: return line("LöscheMerker"_t, "f" + zahl + " ");
            case Anweisung::jump: return line("Springe", "l" + zahl);
            case Anweisung::auswahl: return auswahl(a);
            case Anweisung::ifFlag: line("WennMerker", " f" + zahl); break;
            case Anweisung::ifParameter: line("WennParameter", "p" + zahl); break;
        }
        block(a.branches[0]);
        if (a.sonst) {
            line("Sonst");
            block(a.branches[1]);
        }
        line("EndeWenn");
    }
    void auswahl(const Anweisung& a) {
        line("Auswahl", "4|" + std::to_string(clicks.size()) + "|a|b|c|d");
        clicks.push_back(a.zahl);
        for (std::size_t i = 0; i < a.branches.size(); ++i) {
            line("Fall", std::to_string(i + 1));
            block(a.branches[i]);
        }
        line("EndeAuswahl");
    }
};

class Evaluator {
public:
    Text weg;
    std::array<bool, flagCount> merker{};

    // Jumps leave every block and go on at the top, behind their label.
    void programm(const std::vector<Block>& parts) {
        for (std::size_t part = 0; part < parts.size();) {
            try {
                block(parts[part++]);
            } catch (const Sprung& sprung) {
                part = static_cast<std::size_t>(sprung.ziel) + 1;
            }
        }
    }

private:
    void block(const Block& b) {
        for (const Anweisung& a : b) anweisung(a);
    }
    void anweisung(const Anweisung& a) {
        const auto m = static_cast<std::size_t>(a.zahl);
        switch (a.art) {
            case Anweisung::bild: weg += (weg.empty() ? "" : " ") + std::to_string(a.zahl); return;
            case Anweisung::setFlag: merker[m] = true; return;
            case Anweisung::clearFlag: merker[m] = false; return;
            case Anweisung::jump: throw Sprung{a.zahl};
            case Anweisung::auswahl:
                if (m <= a.branches.size()) block(a.branches[m - 1]);
                return;
            case Anweisung::ifFlag: return branchOff(a, merker[m]);
            case Anweisung::ifParameter: return branchOff(a, "P" + std::to_string(a.zahl) == Parameter);
        }
    }
    void branchOff(const Anweisung& a, bool wahr) {
        if (wahr || a.sonst) block(a.branches[wahr ? 0 : 1]);
    }
};

// Four parts with a label between them. A jump backwards would loop, so each part jumps only ahead.
void forwardOnly(Block& block, int part) {
    for (Anweisung& a : block) {
        if (a.art == Anweisung::jump) {
            if (part == 3) a = {Anweisung::bild, 1, false, {}};
            a.zahl = std::max(a.zahl, part);
        }
        for (Block& branch : a.branches) forwardOnly(branch, part);
    }
}

TEST_F(Flow, RandomScriptsDoWhatTheirTreesSay) {
    std::size_t longest = 0;
    for (unsigned seed = 0; seed < 1500; ++seed) {
        SCOPED_TRACE(seed);
        Zufall zufall(seed);
        std::vector<Block> parts;
        Compiler compiler;
        for (int part = 0; part < 4; ++part) {
            parts.push_back(zufall.block(4));
            forwardOnly(parts.back(), part);
            compiler.block(parts.back());
            if (part < 3) compiler.line("Marke", " L" + std::to_string(part));
        }
        Evaluator evaluator;
        evaluator.programm(parts);

        raum.onZeigText = [&](TextView text) {
            const std::int32_t option = compiler.clicks.at(static_cast<std::size_t>(std::stoi(Text(text))));
            nach(50, [this, option] { z.AuswahlErgebnis = option; });
        };
        z.Merker = {};
        std::vector<test::Line> lines;
        for (const auto& [befehl, argument] : compiler.lines) lines.push_back({befehl, argument});
        EXPECT_EQ(weg(lines, Text(Parameter)), evaluator.weg);
        for (int m = 0; m < flagCount; ++m)
            EXPECT_EQ(MerkerGesetzt(z, "F" + std::to_string(m)), evaluator.merker[static_cast<std::size_t>(m)]);
        longest = std::max(longest, lines.size());
    }
    EXPECT_GT(longest, 200U) << "the scripts are too small to say much";
}

}  // namespace
}  // namespace zentrox
