// Stories made to hang the program or to fill the machine: it says what it refuses, and can be left at once.
#include <fstream>
#include <random>

#include "platform/machine/whole_file.h"
#include "platform/values/limits.h"
#include "stranger.h"
#include "tests/media/make_media.h"

namespace zentrox::test {
namespace {

namespace fs = std::filesystem;

constexpr std::int32_t voice = 1;
constexpr std::int32_t text = 2;
constexpr std::int32_t setFlag = 3;
constexpr std::int32_t changeRoom = 4;
constexpr std::int32_t showPicture = 5;
constexpr std::int32_t choice = 24;
constexpr std::int32_t choiceEnds = 26;
constexpr std::int32_t film = 11;

std::string number(std::uint32_t value, int bytes = 4) {
    std::string out;
    for (int i = 0; i < bytes; ++i) out += static_cast<char>(value >> (8 * i) & 0xFF);
    return out;
}

std::string bigNumber(std::uint32_t value) {
    const std::string little = number(value);
    return {little.rbegin(), little.rend()};
}

class Harm : public Stranger {
protected:
    void sparse(const std::string& file, const std::string& head, std::uintmax_t size) const {
        fs::resize_file(directory.write("fremde/geschichte/" + file, head), size);
    }
    // Played without hanging, in bounds; those count for what is delivered.
    static void bounded(const Played& played, double seconds = 5) {
        EXPECT_TRUE(played.status == 0 || played.status == 1) << played.status << played.said;
        EXPECT_EQ(played.said.find("found"), std::string::npos) << played.said.substr(0, 2000);
        testing::Test::RecordProperty("megabytes", static_cast<int>(played.megabytes));
        testing::Test::RecordProperty("milliseconds", static_cast<int>(played.seconds * 1000));
        if (!measured) return;
        EXPECT_LT(played.megabytes, 500);
        EXPECT_LT(played.seconds, seconds);
    }
};

TEST_F(Harm, TenThousandObjects) {
    RaumObjekt thing;
    thing.Aktiv = true;
    thing.Name = "O";
    thing.Maske.set(0, 0, true);
    Raum hall = room({});
    hall.Objekte.assign(10'000, thing);
    hall.LetztesObjekt = 9'999;
    write("Start.lsd", hall);
    bounded(play("until idle\nmove 5 5\nclick 5 5\nwait 1000\nclose\n"));
}

TEST_F(Harm, MoreObjectsThanAFileMayHold) {
    directory.write("fremde/geschichte/rooms/Start.lsd", "\"a.bmp\"\r\n-1\r\n2000000000\r\n");
    const Played played = play("until window MsgBox\nkey enter\nwait 100\nexpect window Menu\n");
    bounded(played, 3);
    EXPECT_NE(played.said.find("box "), std::string::npos);
}

TEST_F(Harm, MoreCommandsThanAnyScriptHas) {
    std::string bytes = "\"a.bmp\"\r\n29999999\r\n";
    for (int i = 0; i < 30'000'000; ++i) bytes += "3,,";
    directory.write("fremde/geschichte/rooms/Start.lsd", bytes);
    const Played played = play("until window MsgBox\nexpect text \"ist zu groß\"\nkey enter\nwait 100\n");
    bounded(played, 3);
}

TEST_F(Harm, ATextOfAHundredMegabytes) {
    write("Start.lsd", room({{"T", {{changeRoom, "Lang.lsd"}}}}));
    directory.write("fremde/geschichte/rooms/Lang.lsd",
                    "\"a.bmp\"\r\n0\r\n2,\"" + std::string(100'000'000, '#') + "\"\r\n-1\r\n-1\r\n");
    bounded(
        play("until idle\nuse T\nuntil window MsgBox\nexpect text \"zu lang\"\nkey enter\nuntil idle\nclose\n"));
}

// As long as a text may be, in each place where texts are shown or asked for.
TEST_F(Harm, TextsOfAHundredThousandLetters) {
    std::string lines;
    while (lines.size() < 99'000) lines += "x#$Ax# # #";
    const std::string letters(99'000, 'W');
    write("Start.lsd", room({{"Z", {{text, lines}, {setFlag, "Z"}}},
                             {"W", {{text, letters}, {setFlag, "W"}}},
                             {"A",
                              {{choice, "2|" + letters.substr(0, 49'000) + "|" + lines.substr(0, 49'000) + "|Ja"},
                               {choiceEnds, ""},
                               {setFlag, "A"}}},
                             {"F", {{setFlag, letters}, {showPicture, letters}}}}));
    bounded(play("until idle\nuse Z\nwait 2000\nkey a\nuntil flag Z\nuntil idle\nuse W\nwait 2000\nkey a\n"
                 "until flag W\nuntil idle\nuse A\nwait 2000\nchoose 1\nuntil flag A\nuntil idle\n"
                 "use F\nuntil window MsgBox\nkey enter\nuntil idle\nclose\n"),
            10);
}

// Two of them, as the next room is read while the last one is there.
TEST_F(Harm, RoomsFullOfLongTexts) {
    std::string countDown = "1199\r\n";
    for (int i = 0; i < 1'200; ++i) countDown += "2,\"" + std::string(99'000, 'W') + "\"\r\n";
    directory.write("fremde/geschichte/rooms/Start.lsd", "\"a.bmp\"\r\n0\r\n4,\"Zwei.lsd\"\r\n-1\r\n" + countDown);
    directory.write("fremde/geschichte/rooms/Zwei.lsd", "\"a.bmp\"\r\n-1\r\n-1\r\n" + countDown);
    bounded(play("until idle\nexpect room Zwei.lsd\nclose\n"));
}

TEST_F(Harm, AThousandRoomsInsideEachOther) {
    for (int i = 0; i < 1000; ++i)
        write(i == 0 ? "Start.lsd" : "R" + std::to_string(i) + ".lsd",
              room({}, {{changeRoom, "R" + std::to_string(i + 1) + ".lsd"}}));
    write("R1000.lsd", room({}, {{setFlag, "ENDE"}}));
    const Played played = play("until window MsgBox\nkey enter\nwait 100\n");
    bounded(played);
    EXPECT_NE(played.said.find("box "), std::string::npos) << played.said;
}

TEST_F(Harm, PicturesOfThirtyThousandBySide) {
    const std::uint32_t side = 30'000;
    sparse("graphics/gross.bmp",
           "BM" + number(112'560'062) + number(0) + number(62) + number(40) + number(side) + number(side) +
               number(1, 2) + number(1, 2) + number(0) + number(112'560'000) + std::string(24, '\0'),
           112'560'062);
    directory.write("fremde/geschichte/graphics/gross.png", "\x89PNG\r\n\x1A\n" + bigNumber(13) + "IHDR" +
                                                                bigNumber(side) + bigNumber(side) +
                                                                std::string("\x01\0\0\0\0", 5) + bigNumber(0));
    directory.write("fremde/geschichte/graphics/gross.jpg",
                    std::string("\xFF\xD8\xFF\xC0\0\x0B\x08\x75\x30\x75\x30\x01\x01\x11\0\xFF\xD9", 17));
    write("Start.lsd", room({{"B", {{showPicture, "gross.bmp"}}},
                             {"P", {{showPicture, "gross.png"}}},
                             {"J", {{showPicture, "gross.jpg"}}}}));
    std::string walk = "until idle\n";
    for (const char* name : {"B", "P", "J"})
        walk +=
            "use " + std::string(name) + "\nuntil window MsgBox\nexpect text \"gross.\"\nkey enter\nuntil idle\n";
    bounded(play(walk + "close\n"));
}

TEST_F(Harm, AWavOfTwoGigabytes) {
    const std::uint32_t size = 2'000'000'000;
    sparse("sounds/gross.wav",
           "RIFF" + number(size - 8) + "WAVEfmt " + number(16) + number(1, 2) + number(2, 2) + number(44'100) +
               number(176'400) + number(4, 2) + number(16, 2) + "data" + number(size - 44),
           size);
    write("Start.lsd", room({{"W", {{voice, "gross.wav"}, {text, "Hört ihr?"}, {setFlag, "WEITER"}}}}));
    const Played played =
        play("until idle\nuse W\nuntil text \"Hört\"\nwait 5000\nkey a\nuntil flag WEITER\nclose\n");
    bounded(played);
    EXPECT_NE(played.said.find("voice"), std::string::npos) << "it is heard";
}

// A second of pictures, and then nothing for as long as the disk is said to be.
TEST_F(Harm, AFilmThatNeverEnds) {
    const fs::path file = story / "movies/ewig.mpg";
    encodeClip(file, {.width = 160, .height = 120, .seconds = 1, .hertz = 0});
    fs::resize_file(file, 50'000'000'000);
    write("Start.lsd", room({{"F", {{film, "ewig.mpg"}, {setFlag, "WEITER"}}}}));
    bounded(play("until idle\nuse F\nuntil flag WEITER 5000\nclose\n"), 8);
}

// Beside the saved games and the sounds lies what no player and no author has written.
TEST_F(Harm, NotesCaptionsSettingsAndATitleOfHundredMegabytes) {
    write("Start.lsd", room({{"W", {{voice, "a.wav"}, {text, "Hört ihr?"}}}}));
    directory.write("fremde/geschichte/sounds/a.wav", wavFile({.seconds = 0.2}));
    directory.write("einstellungen.txt",
                    "untertitel = ja\nnamen = ja\ngehoertes-merken = ja\nautomatisch-speichern = ja\n"
                    "bilder-der-spielstaende = ja\n");
    const std::string bytes(99'000'000, '\n');
    for (const char* name : {"titel.txt", "sounds/untertitel.tsv", "sounds/sprecher.tsv", "saves/gehoert.txt"})
        directory.write(std::string("fremde/geschichte/") + name, bytes);
    const std::string walk =
        "until idle\nuse W\nuntil text \"Hört\"\nkey a\nuntil idle\nkey f5\nkey f2\nwait 200\nclick 20 10\n";
    const std::vector<std::string> comforts{"--settings", (directory.path() / "einstellungen.txt").string()};
    bounded(play(walk, comforts));
    ASSERT_TRUE(fs::exists(story / "saves/schnell-1.was"));
    // The notes are for the very game, and far too many; the picture is not as small as it should be.
    std::string notes = readFile(story / "saves/schnell-1.was").value_or("");
    notes.resize(notes.find('\n') + 1);
    for (int i = 0; i < 5'000; ++i) notes += "dabei: seil\ngesagt: " + std::string(5'000, 'x') + "\n";
    for (const std::size_t length : {std::size_t{60'000}, notes.size()}) {
        directory.write("fremde/geschichte/saves/schnell-1.was", notes.substr(0, length));
        directory.write("fremde/geschichte/saves/schnell-1.png", "\x89PNG\r\n\x1A\n" + bigNumber(13) + "IHDR" +
                                                                     bigNumber(16'000) + bigNumber(1'500) +
                                                                     std::string("\x01\0\0\0\0", 5) + bigNumber(0));
        bounded(play(walk, comforts));
    }
    directory.write("einstellungen.txt", "untertitel = ja\n" + bytes);
    bounded(play(walk, comforts));
    directory.write("fremde/geschichte/sounds/untertitel.tsv", "a.wav\t" + std::string(3'000'000, 'W') + "\n");
    directory.write("fremde/geschichte/sounds/sprecher.tsv", "a.wav\t" + std::string(3'000'000, 'W') + "\n");
    directory.write("einstellungen.txt", "untertitel = ja\nnamen = ja\n");
    bounded(play(walk, comforts));
}

TEST_F(Harm, APackedStoryThatGrows) {
    write("Start.lsd", room({{"B", {{showPicture, "gross.bmp"}}}, {"W", {{voice, "gross.wav"}, {setFlag, "W"}}}}));
    directory.write("fremde/geschichte/titel.txt", "Titel: Fremd\nKennung: fremd\n");
    std::string filled(2'000'000, '\0');
    std::mt19937 random(1);
    for (char& c : filled) c = static_cast<char>(random());
    directory.write("fremde/geschichte/graphics/voll.dat", filled);  // so that the archive may hold much
    sparse("graphics/gross.bmp", whitePixel(), 129'000'000);
    sparse("sounds/gross.wav", wavFile({.seconds = 0.2}), 60'000'000);
    const fs::path packed = directory.path() / "fremd.zentrox";
    const Played packing = run({STORY, "pack", story.string(), "--into", packed.string()});
    ASSERT_TRUE(fs::exists(packed)) << packing.said;
    const fs::path walk = directory.write("walk",
                                          "until idle\nuse B\nuntil window MsgBox\nexpect text \"zu groß\"\nkey "
                                          "enter\nuntil idle\nuse W\nuntil flag W\n");
    bounded(run({PROBE, "--dir", packed.string(), "--args", "Start.lsd", walk.string()}), 10);
}

TEST_F(Harm, ASavedGameOfAHundredMegabytes) {
    write("Start.lsd", room({}));
    sparse("saves/gross.xtc", "", 100'000'000);
    const Played played = play(
        "until idle\nkey f1\nuntil window Dialog\ntype \"gross\"\nkey enter\nuntil window MsgBox\nexpect text "
        "\"Daten nicht geladen!\"\n");
    bounded(played, 3);
}

TEST_F(Harm, ARoomThatOpensItselfInEveryWait) {
    Raum hall = room({}, {{text, "Warte"}, {changeRoom, "Start.lsd"}});
    hall.CountDownSkript = script({{changeRoom, "Start.lsd"}});
    hall.Startskript = script({{31, "0.01"}, {text, "Warte"}});
    write("Start.lsd", hall);
    bounded(play("wait 60000\nclose\nwait 100\n"), 60);
}

}  // namespace
}  // namespace zentrox::test
