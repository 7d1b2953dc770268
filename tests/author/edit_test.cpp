// The line of an area in a source: where it goes, and what it leaves alone.
#include <gtest/gtest.h>

#include "author/editor.h"
#include "author/sourceedit.h"

namespace zentrox::author {
namespace {

constexpr const char* newLine = "Rechteck 1 2 3 4";

struct Case {
    const char* name;
    const char* before;  // the object is in its second line
    bool further;
    const char* after;
};

class AnArea : public testing::TestWithParam<Case> {};

TEST_P(AnArea, GoesToItsObject) {
    const Case& c = GetParam();
    EXPECT_EQ(withArea(c.before, 2, newLine, c.further), c.after);
}

constexpr Case cases[] = {
    {"InPlaceOfAnother",
     "Raum \"A\"\n  Objekt \"B\"\n    Fläche\n      Rechteck 9 9 9 9\n      // rest\n      Vieleck 1 1, 2 2, 3 3\n "
     "   "
     "Rechts\n",
     false, "Raum \"A\"\n  Objekt \"B\"\n    Fläche\n      Rechteck 1 2 3 4\n      // rest\n    Rechts\n"},
    {"BehindTheOthers", "Raum \"A\"\n  Objekt \"B\"\n    Fläche\n      rechteck 9 9 9 9\n    Links\n", true,
     "Raum \"A\"\n  Objekt \"B\"\n    Fläche\n      rechteck 9 9 9 9\n      Rechteck 1 2 3 4\n    Links\n"},
    {"WhereThereWasNone", "Raum \"A\"\n\tObjekt \"B\"\n\t\tZeiger \"x.ico\"\n\t\tLinks", false,
     "Raum \"A\"\n\tObjekt \"B\"\n\t\tZeiger \"x.ico\"\n\t\tFläche\n\t\t\tRechteck 1 2 3 4\n\t\tLinks"},
    {"InPlaceOfOneOnTheSameLine", "Raum \"A\"\n  Objekt \"B\"\n    Fläche Rechteck 9 9 9 9\n", false,
     "Raum \"A\"\n  Objekt \"B\"\n    Fläche\n        Rechteck 1 2 3 4\n"},
    {"WithTheLineEndsOfTheFile", "Raum \"A\"\r\n  Objekt \"B\"\r\n    Rechteck 9 9 9 9\r\n  Objekt \"C\"\r\n",
     false, "Raum \"A\"\r\n  Objekt \"B\"\r\n    Rechteck 1 2 3 4\r\n  Objekt \"C\"\r\n"},
    {"NotToTheNextObject", "Raum \"A\"\n  Objekt \"B\"\n  Objekt \"C\"\n    Fläche\n      Rechteck 9 9 9 9\n",
     false,
     "Raum \"A\"\n  Objekt \"B\"\n      Fläche\n          Rechteck 1 2 3 4\n  Objekt \"C\"\n    Fläche\n      "
     "Rechteck 9 9 9 "
     "9\n"},
};

INSTANTIATE_TEST_SUITE_P(OfASource, AnArea, testing::ValuesIn(cases), [](const auto& of) { return of.param.name; });

TEST(AnAreaThat, HasNoObjectIsNotWritten) {
    EXPECT_FALSE(withArea("Raum \"A\"\n  Start\n", 2, newLine, false));
    EXPECT_FALSE(withArea("Raum \"A\"\n", 7, newLine, false));
    EXPECT_FALSE(withArea("", 0, newLine, false));
}

TEST(AShape, IsSpelledAsTheLanguageHasIt) {
    EXPECT_EQ(rectangleLine({30, 4}, {1, 20}), "Rechteck 1 4 30 20");
    EXPECT_EQ(polygonLine({{1, 2}, {3, 4}, {5, 6}}), "Vieleck 1 2, 3 4, 5 6");
}

TEST(AnEditor, IsToldTheLineAsItWantsIt) {
    using Words = std::vector<std::string>;
    const auto command = [](const char* visual, const char* editor) {
        return editorCommand(visual, editor, "/a b/c", 7);
    };
    EXPECT_EQ(command("kate", "vim"), (Words{"kate", "-l", "7", "/a b/c"}));
    EXPECT_EQ(command("/usr/bin/code -n", nullptr), (Words{"/usr/bin/code", "-n", "--goto", "/a b/c:7"}));
    EXPECT_EQ(command("", "vim"), (Words{"x-terminal-emulator", "-e", "vim", "+7", "/a b/c"}));
    EXPECT_EQ(command("unknown", nullptr), (Words{"unknown", "/a b/c"}));
    EXPECT_EQ(command(nullptr, nullptr), (Words{"xdg-open", "/a b/c"}));
}

}  // namespace
}  // namespace zentrox::author
