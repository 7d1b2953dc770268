#include <gtest/gtest.h>

#include "platform/window/controls/field.h"
#include "playground.h"

namespace zentrox::test {
namespace {

constexpr bool withShift = true;
constexpr bool withControl = true;

// A field at (10, 10); with the tests' font a character is 6 pixels wide, the first begins at x 13.
struct FieldPlay : Playground {
    Field field{&window.root(), {10, 10, 126, 19}};
    FieldPlay() {
        window.open();
        window.setFocus(&field);
    }
    Point gap(int n) const { return {13 + 6 * n, 18}; }
};

TEST(Field, TypingAndDeletingWorkAtTheCaret) {
    FieldPlay play;
    int changes = 0;
    play.field.onChange = [&] { ++changes; };
    play.type("Helx");
    play.key(key::backspace);
    play.type("d");
    play.key(key::home);
    play.type("Der ");
    EXPECT_EQ(play.field.text(), "Der Held");
    play.key(key::del);
    play.type("h");
    EXPECT_EQ(play.field.text(), "Der held");
    EXPECT_EQ(changes, 12);
    play.key(key::end);
    play.key(key::del);
    EXPECT_EQ(changes, 12) << "nothing was there to delete";
}

TEST(Field, UmlautsAreCharactersAndControlCodesAreNot) {
    FieldPlay play;
    play.type("M\xFC\xDF\x01\r\t\x7F!");
    EXPECT_EQ(play.field.text(), "Müß!"_t);
    play.key(key::left);
    play.key(key::backspace);
    EXPECT_EQ(play.field.text(), "Mü!"_t);
}

TEST(Field, AClickWithShiftSelectsUpToIt) {
    FieldPlay play;
    play.field.setText("eins zwei");
    play.click(play.gap(5));
    play.window.routing().down(play.gap(2), Button::left, 1, withShift);
    play.release(play.gap(2));
    EXPECT_EQ(play.field.selected(), "ns ");
    play.click(play.gap(1));
    EXPECT_EQ(play.field.selected(), "");
}

TEST(Field, KeysSelectAndWhatIsTypedReplacesIt) {
    FieldPlay play;
    play.field.setText("eins zwei, drei");
    play.key(key::left, withShift, withControl);
    EXPECT_EQ(play.field.selected(), "drei");
    play.key(key::left, withShift, withControl);
    EXPECT_EQ(play.field.selected(), ", drei");
    play.key(key::right, withShift);
    EXPECT_EQ(play.field.selected(), " drei");
    play.type(";");
    EXPECT_EQ(play.field.text(), "eins zwei,;");

    play.key(key::home, withShift);
    EXPECT_EQ(play.field.selected(), "eins zwei,;");
    play.key(key::right);
    EXPECT_EQ(play.field.caret(), 11U) << "an arrow goes to the end of the selection, not past it";
    play.key('A', false, withControl);
    play.key(key::del);
    EXPECT_EQ(play.field.text(), "");
}

TEST(Field, WordsAreJumpedAndErasedAsAWhole) {
    FieldPlay play;
    play.field.setText("über den Fluß"_t);
    play.key(key::left, false, withControl);
    EXPECT_EQ(play.field.caret(), 9U);
    play.key(key::backspace, false, withControl);
    EXPECT_EQ(play.field.text(), "über Fluß"_t);
    play.key(key::home);
    play.key(key::right, false, withControl);
    EXPECT_EQ(play.field.caret(), 5U);
    play.key(key::del, false, withControl);
    EXPECT_EQ(play.field.text(), "über "_t);
}

TEST(Field, TheClipboardIsUtf8OutsideAndOneLineInside) {
    FieldPlay play;
    play.field.setText("Tür zu"_t);
    play.key('A', false, withControl);
    play.key('C', false, withControl);
    EXPECT_EQ(play.backend.clip, "T\xC3\xBCr zu");
    play.key('X', false, withControl);
    EXPECT_EQ(play.field.text(), "");
    play.backend.clip = "\xC3\x84pfel\tund \xE2\x82\xAC \xE4\xB8\xAD\r\nzweite Zeile";
    play.key('V', false, withControl);
    EXPECT_EQ(play.field.text(), "Äpfel und € ?"_t);

    play.backend.clip = "unberührt";
    play.key(key::end);
    play.key('C', false, withControl);
    EXPECT_EQ(play.backend.clip, "unberührt") << "nothing selected, nothing copied";
}

TEST(Field, TheMouseSetsTheCaretSelectsAndTakesWords) {
    FieldPlay play;
    play.field.setText("gib auf jetzt");
    play.click(play.gap(4));
    EXPECT_EQ(play.field.caret(), 4U);
    play.press(play.gap(4));
    play.drag(play.gap(7));
    play.release(play.gap(7));
    EXPECT_EQ(play.field.selected(), "auf");
    play.drag(play.gap(1));
    EXPECT_EQ(play.field.selected(), "auf") << "the button is up";
    play.click(play.gap(9));
    play.click(play.gap(9), 2);
    EXPECT_EQ(play.field.selected(), "jetzt");
    play.press(play.gap(2));
    play.drag({-500, -500});
    play.release({-500, -500});
    EXPECT_EQ(play.field.selected(), "gi");
}

TEST(Field, ALongTextScrollsSoThatTheCaretIsSeen) {
    FieldPlay play;
    play.type(Text(300, 'a'));
    play.type("b");
    EXPECT_EQ(play.field.text().size(), 301U);
    // The end shows at the right edge: a click there lands behind the last character.
    play.click({130, 18});
    EXPECT_EQ(play.field.caret(), 301U);
    play.key(key::home);
    play.click(play.gap(3));
    EXPECT_EQ(play.field.caret(), 3U) << "scrolled back to the start";
    play.key(key::end);
    for (int i = 0; i < 295; ++i) play.key(key::backspace);
    play.click(play.gap(2));
    EXPECT_EQ(play.field.caret(), 2U) << "no room is left empty while text is hidden";
}

TEST(Field, TheMaximumCutsWhatIsTypedAndPasted) {
    FieldPlay play;
    play.field.setMaximum(5);
    play.backend.clip = "abcdefgh";
    play.key('V', false, withControl);
    play.type("x");
    EXPECT_EQ(play.field.text(), "abcde");
    play.key('A', false, withControl);
    play.type("x");
    EXPECT_EQ(play.field.text(), "x");
}

TEST(Field, ReadOnlyCopiesButDoesNotChange) {
    FieldPlay play;
    play.field.setText(" 7");
    play.field.setReadOnly(true);
    play.key('A', false, withControl);
    play.key('X', false, withControl);
    play.type("q");
    play.key(key::backspace);
    EXPECT_EQ(play.field.text(), " 7");
    EXPECT_EQ(play.backend.clip, " 7");
}

TEST(Field, EnterIsHandedOnOnlyIfSomebodyWantsIt) {
    FieldPlay play;
    EXPECT_FALSE(play.field.keyDown(key::enter, false, false));
    int entered = 0;
    play.field.onEnter = [&] { ++entered; };
    play.key(key::enter);
    EXPECT_EQ(entered, 1);
}

}  // namespace
}  // namespace zentrox::test
