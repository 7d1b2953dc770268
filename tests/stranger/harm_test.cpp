// Stories made to hang the program or to fill the machine: it says what it refuses, and can be left at once.
#include <fstream>

#include "platform/values/limits.h"
#include "stranger.h"

namespace zentrox::test {
namespace {

namespace fs = std::filesystem;

constexpr std::int32_t voice = 1;
constexpr std::int32_t text = 2;
constexpr std::int32_t setFlag = 3;
constexpr std::int32_t changeRoom = 4;
constexpr std::int32_t showPicture = 5;

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
