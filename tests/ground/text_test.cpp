#include "platform/values/text.h"

#include <gtest/gtest.h>

#include <map>

#include "platform/values/random.h"

namespace zentrox {
namespace {

Text everyCharacter() {
    Text all;
    for (int c = 0; c < 256; ++c) all += static_cast<char>(c);
    return all;
}

TEST(Texts, EveryCharacterSurvivesUtf8) {
    EXPECT_EQ(fromUtf8(toUtf8(everyCharacter())), everyCharacter());
    EXPECT_EQ(tryFromUtf8(toUtf8(everyCharacter())), everyCharacter());
    EXPECT_EQ(toUtf8("Prügel für 3 €"_t), "Prügel für 3 €");
    EXPECT_EQ("Ü€\x41"_t, "\xDC\x80\x41");
}

TEST(Texts, BrokenUtf8BecomesQuestionMarks) {
    const std::map<std::string, Text> cases{
        {"\xC3", "?"},                      // cut
        {"a\xE2\x82", "a??"},               // cut, each byte by itself
        {"\x80z", "?z"},                    // a tail without a lead
        {"\xC0\xAF", "??"},                 // too long a form of a slash
        {"\xED\xA0\x80", "???"},            // half of a pair
        {"\xF4\x90\x80\x80", "????"},       // beyond the last code point
        {"\xC3(", "?("},                    // what breaks it counts again
        {"\xD0\x96\xF0\x9F\x98\x80", "??"}  // whole, but not in the page
    };
    for (const auto& [utf8, text] : cases) {
        EXPECT_EQ(fromUtf8(utf8), text);
        EXPECT_EQ(tryFromUtf8(utf8), std::nullopt);
    }
}

TEST(Texts, CaseFollowsTheCodePage) {
    EXPECT_EQ(upper("größer"_t), "GRÖßER"_t);
    EXPECT_EQ(upper("àþœžšÿ÷ßµ"_t), "ÀÞŒŽŠŸ÷ßµ"_t);
    EXPECT_EQ(lower("ÀÞŒŽŠŸ×ß"_t), "àþœžšÿ×ß"_t);
    EXPECT_TRUE(equalIgnoringCase("TÜR.bmp"_t, "tür.BMP"_t));
    EXPECT_FALSE(equalIgnoringCase("Tür"_t, "Tur"));
    for (const char c : everyCharacter()) EXPECT_EQ(upper(lower(upper(c))), upper(c));
}

TEST(Texts, LinesEndInEachOfThreeWays) {
    const auto lines = [](TextView text) {
        std::string joined;
        for (const TextView line : linesOf(text)) joined += "[" + Text(line) + "]";
        return joined;
    };
    EXPECT_EQ(lines(""), "[]");
    EXPECT_EQ(lines("a\rb\nc\r\nd"), "[a][b][c][d]");
    EXPECT_EQ(lines("a\n\rb"), "[a][][b]");
    EXPECT_EQ(lines("a\r\n"), "[a][]");
}

TEST(Chance, IsEvenAndTheSameForASeed) {
    Random a(7);
    Random b(7);
    std::array<int, 10> hits{};
    for (int i = 0; i < 100'000; ++i) {
        const double draw = a.draw();
        ASSERT_EQ(draw, b.draw());
        ASSERT_GE(draw, 0);
        ASSERT_LT(draw, 1);
        ++hits[static_cast<std::size_t>(draw * 10)];
    }
    for (const int count : hits) EXPECT_NEAR(count, 10'000, 500);
    EXPECT_NE(Random(1).draw(), Random(2).draw());
    EXPECT_NE(Random(0).draw(), 0);
}

}  // namespace
}  // namespace zentrox
