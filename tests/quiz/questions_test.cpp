// The question file, line by line and as a whole, and how a question is put.
#include <gtest/gtest.h>

#include "games/quiz/fragen.h"

namespace zentrox::test {
namespace {

const Frage malta{"Malta", {"Valletta", "Sliema", "Mdina", "Rom"}};
const Frage austria{fromUtf8("Österreich"), {"Wien", "Graz", "Linz", fromUtf8("Köln")}};

TEST(QuizFile, UsesALineWithFourCitiesAndNoOther) {
    struct Case {
        TextView line;
        std::optional<Frage> question;
    };
    for (const Case& c : {
             Case{"Malta#Valletta,Sliema,Mdina,Rom", malta},
             Case{"  Malta  # Valletta ,Sliema  ,  Mdina, Rom  ", malta},
             Case{"Malta#Valletta,Sliema,Mdina,Rom,Paris,Lyon", malta},
             Case{"Malta#Valletta,Sliema,Mdina,Rom#Paris", malta},
             Case{"Malta#Valletta,Sliema#Mdina,Rom,Paris,Lyon", std::nullopt},
             Case{"", std::nullopt},
             Case{" ", std::nullopt},
             Case{"#", std::nullopt},
             Case{"# Malta, Valletta", std::nullopt},
             Case{"Malta", std::nullopt},
             Case{"Malta,Valletta,Sliema,Mdina,Rom", std::nullopt},
             Case{"Malta#", std::nullopt},
             Case{"Malta#Valletta", std::nullopt},
             Case{"Malta#Valletta,Sliema,Mdina", std::nullopt},
             Case{"Malta#Valletta,Sliema,Mdina, ", std::nullopt},
             Case{"Österreich#Wien,Graz,Linz,Köln"_t, austria},
         })
        EXPECT_EQ(FrageLesen(c.line), c.question) << c.line;
}

TEST(QuizFile, EndsItsLinesAsAnySystemDoes) {
    const std::vector<Frage> two{malta, malta};
    const Text line = "Malta#Valletta,Sliema,Mdina,Rom";
    for (const TextView between : {"\r\n", "\n", "\r", "\n\n; ein Kommentar\n"})
        for (const TextView last : {"", "\r\n"})
            EXPECT_EQ(FragenLesen(Text(line).append(between).append(line).append(last)), two);
    EXPECT_TRUE(FragenLesen("").empty());
    EXPECT_TRUE(FragenLesen("\r\n\r\nnichts\r\n").empty());
}

TEST(QuizFile, UnderstandsUtf8) {
    const std::vector<Frage> wanted{austria};
    const std::string line = "Österreich#Wien,Graz,Linz,Köln\r\n";
    EXPECT_EQ(FragenLesen(line), wanted);
    EXPECT_EQ(FragenLesen("\xEF\xBB\xBF" + line), wanted) << "with a mark at its beginning";
    EXPECT_EQ(FragenLesen(fromUtf8(line)), wanted);
}

TEST(QuizFile, HoldsAHundredThousandLines) {
    std::string bytes;
    for (int i = 0; i < 100'000; ++i)
        bytes += i % 2 == 0 ? "Malta#Valletta,Sliema,Mdina,Rom\r\n" : "Malta#Valletta\r\n";
    EXPECT_EQ(FragenLesen(bytes).size(), 50'000U);
}

TEST(QuizQuestion, SwapsTheRightAnswerIntoItsField) {
    const std::array<std::array<Text, 4>, 4> fields{{{"Valletta", "Sliema", "Mdina", "Rom"},
                                                     {"Sliema", "Valletta", "Mdina", "Rom"},
                                                     {"Mdina", "Sliema", "Valletta", "Rom"},
                                                     {"Rom", "Sliema", "Mdina", "Valletta"}}};
    const std::array<Text, 4> words{"2. Frage:\r\nWie lautet die Hauptstadt von Malta?",
                                    Text("2. Frage:\r\nWie heißt die Hauptstadt von Malta?"_t),
                                    "2. Frage:\r\nNenne mir die Hauptstadt von Malta!",
                                    "2. Frage:\r\nKannst du mir die Hauptstadt von Malta nennen?"};
    std::array<std::array<int, 4>, 4> seen{};  // by form and place
    for (unsigned seed = 0; seed < 300; ++seed) {
        Random random(seed);
        Random same(seed);
        const Aufgabe task = AufgabeStellen(random, {malta}, 2);
        EXPECT_EQ(same.below(1), 0);
        const auto form = static_cast<std::size_t>(same.below(4));
        const auto place = static_cast<std::size_t>(same.below(4));
        ++seen[form][place];
        EXPECT_EQ(task.Wortlaut, words[form]);
        EXPECT_EQ(task.richtigePos, static_cast<std::int32_t>(place));
        EXPECT_EQ(task.Felder, fields[place]);
    }
    for (const auto& row : seen)
        for (const int count : row) EXPECT_GT(count, 0);
}

}  // namespace
}  // namespace zentrox::test
