#include <gtest/gtest.h>

#include "platform/window/controls/label.h"
#include "platform/window/controls/textbox.h"
#include "platform/window/controls/tooltip.h"
#include "playground.h"

namespace zentrox::test {
namespace {

constexpr bool withShift = true;
constexpr bool withControl = true;

std::vector<Text> wrapped(TextView text, int characters) {
    FakeFont font;
    std::vector<Text> lines;
    for (const TextLine& line : wrapText(font, text, characters * FakeFont::advance))
        lines.emplace_back(text.substr(line.begin, line.end - line.begin));
    return lines;
}

TEST(Wrapping, BreaksAtLineEndsAndBetweenWords) {
    using Lines = std::vector<Text>;
    EXPECT_EQ(wrapped("", 5), (Lines{""}));
    EXPECT_EQ(wrapped("a\r\nb\nc\rd\r\n", 5), (Lines{"a", "b", "c", "d", ""}));
    EXPECT_EQ(wrapped("ein Esel lief", 8), (Lines{"ein Esel ", "lief"})) << "the blank hangs over";
    EXPECT_EQ(wrapped("ein Esel", 7), (Lines{"ein ", "Esel"}));
    EXPECT_EQ(wrapped("abcdefghij kl", 4), (Lines{"abcd", "efgh", "ij ", "kl"})) << "too long a word is broken";
    EXPECT_EQ(wrapped("   abcdef", 4), (Lines{"   a", "bcde", "f"})) << "blanks at the front are no word";
    EXPECT_EQ(wrapped("abc", 0), (Lines{"a", "b", "c"})) << "no room at all still ends";
    EXPECT_EQ(wrapped("Erdn\xFCsse", 30), (Lines{"Erdn\xFCsse"}));
}

TEST(Wrapping, LongTextsTakeLittleTime) {
    EXPECT_EQ(wrapped(Text(200'000, 'x'), 70).size(), 2858U);
    EXPECT_EQ(wrapped(Text(200'000, ' '), 70).size(), 1U);
    EXPECT_EQ(wrapped(Text(200'000, '\n'), 70).size(), 200'001U);
}

// A box of 12 by 5 characters of the tests' font.
struct BoxPlay : Playground {
    TextBox box{&window.root(), {0, 0, 12 * 6 + 8 + 16, 5 * 13 + 8}};
    BoxPlay() {
        window.open();
        window.setFocus(&box);
    }
    Point at(int column, int row) const { return {4 + 6 * column, 4 + 13 * row + 6}; }
};

TEST(TextBox, ATranscriptScrollsByWheelKeysAndBar) {
    BoxPlay play;
    play.box.setReadOnly(true);
    Text lines = "Zeile 0";
    for (int i = 1; i < 30; ++i) lines += "\r\nZeile " + std::to_string(i);
    play.box.setText(lines);
    EXPECT_EQ(play.box.visibleLines(), 5);
    EXPECT_EQ(play.box.lineCount(), 30);
    EXPECT_EQ(play.box.topLine(), 0);

    play.window.routing().wheel({20, 20}, -3);
    EXPECT_EQ(play.box.topLine(), 3);
    play.window.routing().wheel({20, 20}, 9);
    EXPECT_EQ(play.box.topLine(), 0);
    play.key(key::pageDown);
    play.key(key::down);
    EXPECT_EQ(play.box.topLine(), 6);
    play.key(key::end);
    EXPECT_EQ(play.box.topLine(), 25);
    play.key(key::home);

    const int bar = 12 * 6 + 8 + 8;
    play.click({bar, 70});  // the lower arrow
    EXPECT_EQ(play.box.topLine(), 1);
    play.click({bar, 50});  // the track below the thumb
    EXPECT_EQ(play.box.topLine(), 6);
    play.press({bar, 27});  // the thumb
    play.drag({bar, 500});
    EXPECT_EQ(play.box.topLine(), 25);
    play.drag({bar, -500});
    EXPECT_EQ(play.box.topLine(), 0);
    play.release({bar, -500});

    play.box.append("\r\nneu");
    EXPECT_EQ(play.box.topLine(), 26) << "what is new is seen";
    EXPECT_TRUE(play.window.shows("Zeile 29"));
}

TEST(TextBox, AHeldArrowRepeatsAndSleepsOtherwise) {
    BoxPlay play;
    play.box.setText(Text(100, '\n'));
    const Point arrow{12 * 6 + 8 + 8, 70};
    play.press(arrow);
    play.platform.queue.waitUntil(
        "", [] { return false; }, 1000);
    EXPECT_EQ(play.box.topLine(), 1 + 1 + 12) << "at once, after 400 ms, then every 50 ms";
    play.release(arrow);
    const int before = play.backend.sleeps;
    play.platform.queue.waitUntil(
        "", [] { return false; }, 5000);
    EXPECT_EQ(play.backend.sleeps, before + 1) << "nothing wakes an idle box";
}

TEST(TextBox, ReadOnlyTextCanBeSelectedAndCopied) {
    BoxPlay play;
    play.box.setReadOnly(true);
    play.box.setText("Er fragte\r\nden Esel nach einem Rat");
    play.press(play.at(3, 0));
    play.drag(play.at(3, 1));
    play.release(play.at(3, 1));
    EXPECT_EQ(play.box.selected(), "fragte\r\nden");
    play.key('C', false, withControl);
    EXPECT_EQ(play.backend.clip, "fragte\r\nden");
    play.type("x");
    play.key(key::backspace);
    EXPECT_EQ(play.box.text(), "Er fragte\r\nden Esel nach einem Rat");
    play.key(key::right, withShift);
    EXPECT_EQ(play.box.selected(), "fragte\r\nden ");
    play.click(play.at(6, 1));
    play.click(play.at(6, 1), 2);
    EXPECT_EQ(play.box.selected(), "Esel");
}

TEST(TextBox, EditsLines) {
    BoxPlay play;
    play.type("eins");
    play.key(key::enter);
    play.type("zwei");
    EXPECT_EQ(play.box.text(), "eins\r\nzwei");
    play.key(key::up);
    play.key(key::home);
    play.type("1");
    EXPECT_EQ(play.box.text(), "1eins\r\nzwei");
    play.key(key::end);
    play.key(key::del);
    EXPECT_EQ(play.box.text(), "1einszwei") << "a line end goes as one";
    play.key(key::end, false, withControl);
    play.key(key::left, withShift, withControl);
    play.backend.clip = "a\nb\rc\r\nd";
    play.key('V', false, withControl);
    EXPECT_EQ(play.box.text(), "a\r\nb\r\nc\r\nd");
}

TEST(TextBox, TheCaretKeepsItsColumnThroughShortAndWrappedLines) {
    BoxPlay play;
    play.box.setText("abcdefgh\r\nx\r\nein langes Wort im Text");
    play.key(key::end);
    play.key(key::down);
    play.key(key::down);
    play.type("|");
    EXPECT_EQ(play.box.text(), "abcdefgh\r\nx\r\nein lang|es Wort im Text");
    play.key(key::end);
    play.type("/");
    EXPECT_EQ(play.box.text(), "abcdefgh\r\nx\r\nein lang|es/ Wort im Text");
}

TEST(Label, SizesItselfAndKeepsItsPlace) {
    Playground play;
    Label label(&play.window.root(), {100, 20, 1, 1}, "Videos");
    label.setAutoSize(true);
    EXPECT_EQ(label.area(), Rect(100, 20, 36, 13));
    label.setText("Mathe\r\nPhysik-LernCD");
    EXPECT_EQ(label.area(), Rect(100, 20, 78, 26));
    EXPECT_TRUE(play.window.shows("LernCD"));
}

TEST(ToolTip, StaysWithinTheWindow) {
    FakeFonts fonts;
    Bitmap picture({200, 100}, white);
    EXPECT_EQ(drawToolTip(picture, fonts, {20, 30}, "Seil", picture.bounds()), Rect(20, 30, 30, 17));
    EXPECT_EQ(drawToolTip(picture, fonts, {190, 95}, "Seil", picture.bounds()), Rect(170, 83, 30, 17));
    EXPECT_EQ(drawToolTip(picture, fonts, {190, 95}, Text(99, 'x'), picture.bounds()).x, 0);
}

}  // namespace
}  // namespace zentrox::test
