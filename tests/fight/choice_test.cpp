// Laying down the fight: what each icon does at each moment.
#include <gtest/gtest.h>

#include "games/fight/wahl.h"

namespace zentrox::test {
namespace {

Technikwahl after(bool potion, std::initializer_list<int> clicks) {
    Technikwahl choice{.Zaubertrank = potion};
    for (const int icon : clicks) choice.Klick(icon);
    return choice;
}

TEST(FightChoice, FillsSixAttacksThenSixDefences) {
    Technikwahl choice = after(false, {0, 1, 2, 0, 1, 2});
    EXPECT_FALSE(choice.BeimAngriff());
    EXPECT_FALSE(choice.Fertig());
    for (const int icon : {2, 2, 1, 1, 0, 0}) choice.Klick(icon);
    EXPECT_TRUE(choice.Fertig());
    EXPECT_EQ(choice.Angriff, (Techniken6{0, 1, 2, 0, 1, 2}));
    EXPECT_EQ(choice.Abwehr, (Techniken6{2, 2, 1, 1, 0, 0}));
    choice.Klick(1);
    EXPECT_EQ(choice.Abwehr, (Techniken6{2, 2, 1, 1, 0, 0})) << "there is no thirteenth choice";
    EXPECT_EQ(choice.Wahlen, 12);
}

TEST(FightChoice, TakesBackOneByOne) {
    Technikwahl choice = after(false, {4, 4});
    EXPECT_EQ(choice.Wahlen, 0);
    choice = after(false, {0, 0, 0, 0, 0, 0, 1, 4});
    EXPECT_EQ(choice.Wahlen, 6);
    EXPECT_FALSE(choice.BeimAngriff());
    EXPECT_EQ(choice.Abwehr[0], KeineWahl);
    choice.Klick(4);
    EXPECT_TRUE(choice.BeimAngriff());
    EXPECT_EQ(choice.Angriff, (Techniken6{0, 0, 0, 0, 0, KeineWahl}));
    choice = after(false, {0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1, 4});
    EXPECT_FALSE(choice.Fertig());
    EXPECT_EQ(choice.Abwehr[5], KeineWahl);
}

TEST(FightChoice, GivesThePotionOnceAndBack) {
    Technikwahl choice = after(true, {0, 3});
    EXPECT_FALSE(choice.Zaubertrank);
    EXPECT_EQ(choice.Angriff[1], Trank);
    choice.Klick(4);
    EXPECT_TRUE(choice.Zaubertrank);
    EXPECT_EQ(choice.Wahlen, 1);
    // From behind six defences back to the potion, the sixth attack.
    choice = after(true, {0, 0, 0, 0, 0, 3, 0, 0, 4, 4});
    EXPECT_FALSE(choice.Zaubertrank);
    choice.Klick(4);
    EXPECT_TRUE(choice.Zaubertrank);
    EXPECT_TRUE(choice.BeimAngriff());
}

}  // namespace
}  // namespace zentrox::test
