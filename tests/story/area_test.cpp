// Areas become cells, and cells the fewest rectangles.
#include <random>
#include <set>

#include "story_support.h"
#include "tools/story/area.h"

namespace zentrox::story::test {

namespace {

Maske maskOf(const std::vector<std::string>& rows) {
    Maske mask;
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (std::size_t column = 0; column < rows[row].size(); ++column)
            if (rows[row][column] == '#') mask.set(static_cast<int>(column), static_cast<int>(row), true);
    return mask;
}

Maske coverOf(const std::vector<Rect>& rectangles) {
    Maske mask;
    for (const Rect& rect : rectangles)
        for (int column = rect.x; column < rect.right(); ++column)
            for (int row = rect.y; row < rect.bottom(); ++row) mask.set(column, row, true);
    return mask;
}

Maske areaOf(const std::string& lines, MemoryFiles files = {}) {
    const Story story = compiled("Raum \"a.lsd\"\nObjekt \"x\"\nFläche\n" + lines, std::move(files));
    return story.rooms.at(0).room.Objekte.at(0).Maske;
}

}  // namespace

TEST(Area, CellsBelongByTheirMiddle) {
    EXPECT_EQ(areaOf("Rechteck 10 0 30 10"), maskOf({" ##"}));
    EXPECT_EQ(areaOf("Rechteck 5 0 15.1 10"), maskOf({"##"}));
    EXPECT_EQ(areaOf("Rechteck 16 2 18 4"), maskOf({" #"}));  // too small for a middle
    EXPECT_EQ(areaOf("Rechteck 18 2 22 4"), maskOf({" ##"}));
    EXPECT_EQ(areaOf("Rechteck -50 -50 700 500"), coverOf({{0, 0, 64, 48}}));
    EXPECT_EQ(areaOf("Vieleck 0 0, 40 0, 0 40"), maskOf({"###", "##", "#"}));
    EXPECT_EQ(areaOf("Vieleck 21 1 24 1 24 4"), maskOf({"  #"}));
    EXPECT_EQ(areaOf("Rechteck 0 0 10 10\nRechteck 20 0 30 10"), maskOf({"# #"}));
}

TEST(Area, APictureOfAnySizeIsStretchedOverTheRoom) {
    MemoryFiles files;
    Bitmap large({1280, 960}, black);
    large.fill({40, 20, 40, 20}, white);
    large.fill({0, 0, 9, 20}, white);  // less than half a cell
    files.pictures["teile/gross.png"] = large;
    Bitmap small({2, 1}, black);
    small.setPixel({1, 0}, white);
    files.pictures["klein.png"] = small;
    EXPECT_EQ(areaOf("Maskenbild teile\\gross.png", files), maskOf({"", "  ##"}));
    EXPECT_EQ(areaOf("Maskenbild \"klein.png\"", files), coverOf({{32, 0, 32, 48}}));
}

TEST(Area, FewestRectangles) {
    const std::vector<std::pair<std::vector<std::string>, std::size_t>> cases{
        {{}, 0},
        {{"#"}, 1},
        {{" # ", "###", " # "}, 2},  // they may overlap
        {{"##", "# "}, 2},
        {{"## ##"}, 2},
        {{"###", "# #", "###"}, 4},
        {{"#  ", "## ", "###"}, 3},
        {{"##   ", "#### ", " ####", "   ##"}, 3},
        {{"# # #", " # # ", "# # #"}, 8},
        // Taking the largest first would need five.
        {{" ### ", "#####", "#####", "#####", " ### "}, 2},
        {{"  ##  ", " #### ", "######", "######", " #### ", "  ##  "}, 3},
    };
    for (const auto& [rows, count] : cases) {
        const Maske mask = maskOf(rows);
        const auto rectangles = fewestRectangles(mask);
        EXPECT_EQ(rectangles.size(), count) << testing::PrintToString(rows);
        EXPECT_EQ(coverOf(rectangles), mask);
    }
}

// Small masks against a search through all sets of rectangles, and noise for its limits.
TEST(Area, NoSmallerCoverThanTheOneFound) {
    std::mt19937 random(7);
    for (int round = 0; round < 60; ++round) {
        Maske mask;
        for (int i = 0; i < 16; ++i) mask.set(i % 4, i / 4, random() % 3 > 0);
        std::vector<unsigned> all;
        for (int left = 0; left < 4; ++left)
            for (int top = 0; top < 4; ++top)
                for (int right = left; right < 4; ++right)
                    for (int bottom = top; bottom < 4; ++bottom) {
                        unsigned cells = 0;
                        bool inside = true;
                        for (int x = left; x <= right; ++x)
                            for (int y = top; y <= bottom; ++y) {
                                cells |= 1U << (y * 4 + x);
                                inside = inside && mask.at(x, y);
                            }
                        if (inside) all.push_back(cells);
                    }
        // Sets of cells that so many rectangles can cover.
        std::set<unsigned> reached{0};
        unsigned whole = 0;
        for (const unsigned cells : all) whole |= cells;
        std::size_t least = 0;
        for (; !reached.contains(whole); ++least) {
            std::set<unsigned> next;
            for (const unsigned before : reached)
                for (const unsigned cells : all) next.insert(before | cells);
            reached = std::move(next);
        }
        EXPECT_EQ(fewestRectangles(mask).size(), least);
    }
    Maske noise;
    for (int i = 0; i < 64 * 48; ++i) noise.set(i % 64, i / 64, random() % 2 == 0);
    EXPECT_EQ(coverOf(fewestRectangles(noise)), noise);
}

}  // namespace zentrox::story::test
