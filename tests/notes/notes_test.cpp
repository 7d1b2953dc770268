// Songs in letters: what they turn into, and what is told of their mistakes.
#include <gtest/gtest.h>

#include "platform/machine/midi.h"
#include "tools/notes/song.h"

namespace zentrox::notes {
namespace {

std::string played(const Track& track) {
    std::string all;
    for (const Note& n : track.notes)
        all += std::to_string(n.start) + "+" + std::to_string(n.length) + " " + std::to_string(n.key) + ", ";
    return all;
}

TEST(Notes, LengthsStayUntilAnotherOneAndChordsSoundTogether) {
    const Song song = readSong("track a g100 c4:1/8 e4 r [c4 bb4]:1/4. f#3");
    EXPECT_EQ(played(song.tracks[0]), "0+240 60, 240+240 64, 720+720 60, 720+720 70, 1440+720 54, ");
    EXPECT_EQ(song.tracks[0].end, 2160);
}

TEST(Notes, PhrasesAreShiftedAndRepeatedWithinEachOther) {
    const Song song = readSong("let Up ( c4:1/4 d4 ) let Both ( Up Up+12 ) track a g50 ( Both+1 )*2");
    EXPECT_EQ(
        played(song.tracks[0]),
        "0+240 61, 480+240 63, 960+240 73, 1440+240 75, 1920+240 61, 2400+240 63, 2880+240 73, 3360+240 75, ");
}

TEST(Notes, ATieGoesOverBarLinesAndLoudnessIsAlsoToldByItsChange) {
    const Song song = readSong("bar 2/4 track a g50 v60 r:1/4 [c4 e4] | ~:1/8 v+20 g4 ~ v-79 c4 |");
    EXPECT_EQ(played(song.tracks[0]), "480+360 60, 480+360 64, 1200+240 67, 1680+120 60, ");
    EXPECT_EQ(song.tracks[0].notes[2].velocity, 80);
    EXPECT_EQ(song.tracks[0].notes[3].velocity, 1);
}

TEST(Notes, TheSongsVolumeIsAPartOfEachTracks) {
    const std::string file = midiFile(readSong("volume 50 track a volume 90 c4 track drums volume 41 kick"));
    EXPECT_NE(file.find("\xB0\x07\x2D"), std::string::npos);
    EXPECT_NE(file.find("\xB9\x07\x14"), std::string::npos);
}

TEST(Notes, DrumsHaveNamesAndAreNotShifted) {
    const Song song = readSong("let Beat ( kick:1/8 [hat snare] ) track drums Beat Beat+5");
    EXPECT_TRUE(song.tracks[0].drums);
    EXPECT_EQ(song.tracks[0].notes.back().key, 38);
    EXPECT_EQ(song.tracks[0].notes[3].key, 36);
}

TEST(Notes, TheFileIsAsLongAsTheSongAndKeepsItsDrumsOnTheirChannel) {
    std::string text = "tempo 60 bar 3/4 track drums kick kick kick | ";
    for (int i = 0; i < 10; ++i) text += "track t program 7 c4:1/2. | r | ";
    const std::string file = midiFile(readSong(text));
    EXPECT_EQ(midiLength(file), 6000);
    // The tenth channel is left to the drums, so the tenth tune plays on the eleventh.
    EXPECT_NE(file.find("\x99\x24"), std::string::npos);
    EXPECT_NE(file.find("\x9A\x3C"), std::string::npos);
}

TEST(Notes, MistakesAreToldWithTheirLine) {
    const struct {
        const char* text;
        int line;
        const char* what;
    } cases[]{
        {"", 1, "keine Spur"},
        {"c4", 1, "vor der ersten Spur"},
        {"track a\nh4", 2, "keine Note"},
        {"track a\n\nkick", 3, "keine Note"},
        {"track a c4:1/7", 1, "Bruch"},
        {"track a c4:1/0", 1, "Bruch"},
        {"track a c4:1/2000000000", 1, "Bruch"},
        {"track a\nc4 | ", 2, "4/16 und nicht 16"},
        {"track a\n( c4 d4", 2, "nicht geschlossen"},
        {"track a\n[c4 d4", 2, "nicht geschlossen"},
        {"track a ( c4 )*0", 1, "*2 bis *1000"},
        {"track a v200", 1, "bis 127"},
        {"track a v60 c4\nv-60", 2, "bis 127"},
        {"track a v+2147483647", 1, "bis 127"},
        {"track a c4 r\n~:1/4", 2, "keine Note"},
        {"volume 101", 1, "von 1 bis 100"},
        {"track a\nprogram 128", 2, "von 0 bis 127"},
        {"let A ( B ) let B ( A )\ntrack a\nA", 1, "sich selbst"},
        {"let A c4", 1, "Klammer"},
        {"let A ( g9 ) track a A+12", 1, "zu hoch"},
        {"track a ( ( ( c4 )*1000 )*1000 )*1000", 1, "zu lang"},
        {"tempo", 1, "von 20 bis 400"},
        {"bar 4", 1, "Takt wie 4/4"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        try {
            readSong(c.text);
            ADD_FAILURE() << "was read";
        } catch (const SongError& error) {
            EXPECT_EQ(error.line, c.line) << error.what();
            EXPECT_NE(std::string(error.what()).find(c.what), std::string::npos) << error.what();
        }
    }
}

}  // namespace
}  // namespace zentrox::notes
