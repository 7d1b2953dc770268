#include "engine/files/titeldatei.h"

#include <gtest/gtest.h>

#include "menu/hilfetexte.h"
#include "room/abspann.h"

namespace zentrox {
namespace {

TEST(Titel, NamesTheStoryAndItsTexts) {
    std::vector<Titelmangel> faults;
    const Titel title = TitelLesen(
        "\xEF\xBB\xBF# Ein Kommentar\r\n"
        "Titel:  Das Fundbüro \r\n"
        "kennung: fundbuero-2\r\n"
        "Bonus 2: Fotos\n"
        "Spieler: Knöll\n"
        "\n"
        "[Hilfe]\n"
        "Willkommen\n"
        "\n"
        "im Fundbüro.\n"
        "\n"
        "[Abspann]\n"
        "# Ende\n"
        "Idee: Anna #\n"
        "[ABSPANN]\n"
        "Du hast {Bosheit} von {Bosheit} Punkten.\n",
        &faults);
    EXPECT_TRUE(faults.empty());
    EXPECT_EQ(title.Name, "Das Fundbüro"_t);
    EXPECT_EQ(title.Kennung, "fundbuero-2");
    EXPECT_EQ(title.Bonuszeilen[1], "Fotos");
    EXPECT_EQ(title.Spieler, "Knöll"_t);
    EXPECT_EQ(MenuTexteFür(false, title), std::vector<Text>{Text("  Willkommen  |  |im Fundbüro.  |"_t)});
    EXPECT_EQ(MenuTexteFür(true, title).size(), 2U) << "what is not given stays";
    EXPECT_EQ(AbspannTexte(7, title),
              (std::vector<Text>{"  #  Ende  |Idee: Anna  #  |", "  Du hast 7 von 7 Punkten.  |"}));
}

TEST(Titel, PassesOverWhatCannotBeUsedAndTellsAuthors) {
    std::vector<Titelmangel> faults;
    const Titel title = TitelLesen(
        "Titel: Gut\n"
        "Kennung: ../fort\n"
        "Farbe: rot\n"
        "[Anhang]\n"
        "[Hilfe]\n"
        "Diese Zeile ist für den Platz neben dem Menü zu lang.\n"
        "a|b\n"
        "\xF0\x9F\x98\x80\n",
        &faults);
    std::vector<int> lines;
    for (const Titelmangel& fault : faults) lines.push_back(fault.zeile);
    EXPECT_EQ(lines, (std::vector<int>{2, 3, 4, 6, 7, 8}));
    EXPECT_EQ(title.Name, "Gut");
    EXPECT_EQ(title.Kennung, "");

    for (const char* id : {"a", "fund-2", "0123456789012345678901234567890123456789"})
        EXPECT_TRUE(istKennung(id)) << id;
    for (const char* id : {"", "-a", "a-", "A", "a b", "a/b", "..", "01234567890123456789012345678901234567890"})
        EXPECT_FALSE(istKennung(id)) << id;
}

}  // namespace
}  // namespace zentrox
