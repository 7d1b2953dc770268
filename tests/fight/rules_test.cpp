// Thousands of fights beside a reckoning of their own, and the steps that tell them.
#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "games/fight/kampf.h"

namespace zentrox::test {
namespace {

using Art = Schritt::Art;

// One piece of a fight in short: what was done, and both energies after it.
struct Turn {
    Text what;
    int brokan;
    int velmix;
    friend bool operator==(const Turn&, const Turn&) = default;
};

void PrintTo(const Turn& turn, std::ostream* out) {
    *out << turn.what << " " << turn.brokan << ":" << turn.velmix;
}

// The same fight by a calculator: plain numbers, half-way cases to the even one.
std::vector<Turn> reckon(Random random, const Techniken6& attacks, const Techniken6& defences) {
    int j = 2434;
    int s = 1467;
    std::vector<Turn> turns;
    const auto hit = [&](int& who, int base, const std::string& word) {
        const int damage = static_cast<int>(std::nearbyint(random.draw() * 100 + base));
        who -= damage;
        if (who < 0) who = 0;
        return word + std::to_string(damage) + " HP";
    };
    for (std::size_t i = 0; i < 6; ++i) {
        const bool potion = attacks[i] == 3;
        Text what;
        if (potion)
            what = hit(j, 1100, "ULTIMATE! ");
        else if (random.draw() >= 1.0 / 3)
            what = hit(j, 480, "");
        else
            what = "Guard";
        turns.push_back({what, j, s});
        if (j == 0) {
            turns.push_back({"Velmix wins!", j, s});
            return turns;
        }
        if (s - j > 750 || potion) {
            what = hit(s, 950, "AWESOME! ");
        } else if (random.draw() < 0.25) {
            what = random.draw() < 0.25 ? hit(s, 300, "WOW! ") : hit(s, 10, "NICE! ");
        } else {
            what = static_cast<int>(random.draw() * 3) == defences[i] ? "Guard" : hit(s, 280, "");
        }
        turns.push_back({what, j, s});
        if (s == 0) break;
    }
    turns.push_back({"Brokan wins!", j, s});
    return turns;
}

std::vector<Turn> fight(Random& random, const Techniken6& attacks, const Techniken6& defences, bool& won) {
    Kampf kampf{.Angriff = attacks, .Abwehr = defences};
    std::vector<Turn> turns;
    kampf.Weiter(random);  // the prelude
    for (Folge piece = kampf.Weiter(random); !piece.empty(); piece = kampf.Weiter(random)) {
        Text last;
        for (const Schritt& step : piece)
            if (step.art == Art::schrift) last = step.text;
        turns.push_back({last, kampf.EnergieJ.wert, kampf.EnergieS.wert});
    }
    won = kampf.Gewonnen;
    return turns;
}

TEST(FightRules, AgreeWithTheReckoningOverAThousandFights) {
    std::map<Text, int> ends;
    int exchanges = 0;
    for (unsigned seed = 0; seed < 1000; ++seed) {
        Random random(seed);
        Techniken6 attacks{};
        Techniken6 defences{};
        for (auto& a : attacks) a = random.below(3);
        for (auto& d : defences) d = random.below(3);
        if (seed % 2 == 0) attacks[seed / 2 % 6] = Trank;
        const auto wanted = reckon(random, attacks, defences);
        bool won = false;
        ASSERT_EQ(fight(random, attacks, defences, won), wanted) << "seed " << seed;
        EXPECT_EQ(won, wanted.back().brokan == 0);
        const bool stands = wanted.back().brokan > 0 && wanted.back().velmix > 0;
        ++ends[stands ? "final attack" : won ? "won" : "lost"];
        exchanges += static_cast<int>(wanted.size());
    }
    // All ends come up, so that the agreement above says something about each.
    EXPECT_GT(ends["won"], 50);
    EXPECT_GT(ends["lost"], 50);
    EXPECT_GT(ends["final attack"], 50);
    EXPECT_GT(exchanges, 5000);
}

// --- the steps, told in short: a picture by its name, a sound with a star, a text in quotes, a wait by its time

Text told(const Schritt& step) {
    switch (step.art) {
        case Art::bild: return step.text.substr(0, step.text.find('.'));
        case Art::klang: return "*" + step.text.substr(0, step.text.find('.'));
        case Art::schrift:
            return "\"" + (step.text.ends_with(" HP") ? "HP" : step.text) + "\"" +
                   std::to_string(static_cast<int>(step.wer));
        case Art::warten: return std::to_string(step.zahl);
        case Art::energie: return step.wer == Kämpfer::Velmix ? "S" : "J";
        case Art::ringe: return "rings";
        case Art::strahl: return "beam";
        case Art::flackern: return "flicker";
        case Art::liedAus: return "quiet";
    }
    return "?";
}

Text told(const Folge& steps) {
    Text all;
    for (const Schritt& step : steps) all += (all.empty() ? "" : " ") + told(step);
    return all;
}

// All pieces that fights with these moves can hold, and how often each came.
std::map<Text, int> pieces(int attack, int defence) {
    std::map<Text, int> found;
    for (unsigned seed = 0; seed < 400; ++seed) {
        Random random(seed);
        Techniken6 attacks{};
        Techniken6 defences{};
        attacks.fill(attack);
        defences.fill(defence);
        Kampf kampf{.Angriff = attacks, .Abwehr = defences};
        for (Folge piece = kampf.Weiter(random); !piece.empty(); piece = kampf.Weiter(random)) ++found[told(piece)];
    }
    return found;
}

const Text prelude = "1 Kampfs0 S J Kampfs1 \"Get Ready!\"2 2000 Kampf0 \"Fight!\"2 2000";
const Text fireball = "Kampf0 2000 \"Fireball\"1 2000 KampfJS0 *hadoken rings beam KampfH *s_kampf1 \"HP\"1 S";
const Text won = "quiet KampfG *BrokanF23a 2000 \"Velmix wins!\"2 2000";
const Text lost = "quiet KampfV *s_kampf1 2000 \"Brokan wins!\"2 *BrokanF24a 2000";
const Text finalAttack =
    "quiet KampfJS30 \"Final Attack!\"1 2000 *Tesla 1000 KampfJS31 flicker KampfJS32 2000 KampfJS33 1000 KampfJS34 "
    "*BrokanF25a 2000 \"Brokan wins!\"2 2000";

TEST(FightSteps, TellEveryTurn) {
    for (int a = 0; a < 3; ++a) {
        const Text mine = "Kampf" + std::to_string(a + 1);
        const auto found = pieces(a, a);
        std::vector<Text> wanted{
            prelude,
            fireball,
            won,
            lost,
            finalAttack,
            "Kampf0 2000 " + mine + "0 *schlag2 2000 KampfT *BrokanF22a \"HP\"0 J",
            "Kampf0 2000 " + mine + "1 *block 2000 Kampf0 \"Guard\"0 2000",
            "Kampf0 2000 \"Unblockable\"1 2000 KampfJS20 2000 KampfJS21 *schlag 2000 *s_kampf1 \"HP\"1 S 1200",
            "Kampf0 2000 \"Unblockable\"1 2000 KampfJS1 *boing 2000 *s_kampf1 \"HP\"1 S 1800",
            "Kampf0 2000 Kampf" + std::to_string(a + 4) + "1 *block 2000 Kampf0 \"Guard\"1 2000",
        };
        for (int t = 0; t < 2; ++t)
            if (t != a)
                wanted.push_back("Kampf0 2000 Kampf" + std::to_string(t + 4) +
                                 "0 *Schlag 2000 KampfH *s_kampf1 \"HP\"1 S");
        if (a != 2) wanted.push_back("Kampf0 2000 Kampf600 1000 Kampf601 *Schlag 1000 *s_kampf1 \"HP\"1 S");
        for (const Text& piece : wanted) EXPECT_TRUE(found.contains(piece)) << piece;
        EXPECT_EQ(found.size(), wanted.size());
        EXPECT_EQ(found.at(prelude), 400);
        EXPECT_EQ(found.at(won) + found.at(lost) + found.at(finalAttack), 400) << "one end each";
    }
}

TEST(FightSteps, AnswerThePotionWithAFireballAtOnce) {
    Random random(1);
    Kampf kampf{.Angriff = {Trank, 0, 0, 0, 0, 0}, .Abwehr = {0, 0, 0, 0, 0, 0}};
    kampf.Weiter(random);
    EXPECT_EQ(told(kampf.Weiter(random)),
              "Kampf0 2000 \"Zaubertrank\"0 2000 KampfSS0 500 *schluck 1500 *s_kampf2 KampfSS1 500 KampfSS2 500 "
              "KampfSS3 500 KampfSS4 500 KampfSS5 500 KampfSS6 500 KampfSS7 500 *bionic KampfSS8 500 KampfSS9 500 "
              "KampfSS10 *schlag2 \"HP\"0 J");
    EXPECT_GE(kampf.EnergieJ.wert, 2434 - 1200);
    EXPECT_LE(kampf.EnergieJ.wert, 2434 - 1100);
    EXPECT_EQ(told(kampf.Weiter(random)), fireball);
    EXPECT_GE(kampf.EnergieS.wert, 1467 - 1050);
    EXPECT_LE(kampf.EnergieS.wert, 1467 - 950);
}

TEST(FightEnergy, CountsInFivesAndTheRestInOnes) {
    struct Case {
        Energie energy;
        int steps;
    };
    for (const Case& c : {Case{{100, 100}, 0}, Case{{1467, 1317}, 29 + 5}, Case{{0, 12}, 2 + 2}, Case{{0, 5}, 5},
                          Case{{0, 6}, 2}, Case{{7, 0}, 1 + 2}, Case{{3, 0}, 3}}) {
        Energie energy = c.energy;
        int steps = 0;
        while (energy.Nachzählen()) ++steps;
        EXPECT_EQ(steps, c.steps) << c.energy.anzeige << " to " << c.energy.wert;
        EXPECT_EQ(energy.anzeige, c.energy.wert);
    }
}

}  // namespace
}  // namespace zentrox::test
