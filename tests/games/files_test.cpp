// The files that the games can't do without, each missing or damaged in turn: a box names it, the game is lost, and
// nothing of it is left open.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>

#include "engine/language/games.h"
#include "games/bruhks/bruhks.h"
#include "games/fight/fight.h"
#include "games/jump/jump.h"
#include "games/memory/memory.h"
#include "games/pi/pi.h"
#include "games/pong/pong.h"
#include "games/quiz/quiz.h"
#include "games/riddle/riddle.h"
#include "platform/values/keys.h"
#include "tests/support/bitmap_file.h"
#include "tests/support/stage.h"

namespace zentrox::test {
namespace {

using Door = void (*)(Platform&, Zustand&, Medien&);

const std::map<Text, Door> doors{
    {"PI", PIZeigen},         {"JUMP", JumpZeigen}, {"ESEL", Form2Zeigen},    {"HDW", HDWZeigen},
    {"BRUHKS", BruhksZeigen}, {"PONG", PongZeigen}, {"MEMORY", MemoryZeigen}, {Text("PRÜGEL"_t), PrügelZeigen}};

std::string goodBytes(const Text& file) {
    if (file == "HDW.txt") return "Malta#Valletta,Sliema,Mdina,Rom\r\n";
    if (file == "Pi10000.txt") return "3.14159";
    return plainBitmapFile(8, 8, 0x808080);
}

struct Play : Stage {
    Zustand z;
    Medien media{platform, z};
    const SpielArt& game;

    explicit Play(const SpielArt& which) : game(which) {
        z.PI = 3.14159274F;
        z.PfadGames = platform.files.programDirectory() + "games\\";
        z.Übergabe = Text("1");
        for (const TextView file : game.dateien) directory.write(path(file), goodBytes(Text(file)));
    }
    static std::string path(TextView file) { return "games/" + toUtf8(file); }

    // The fight is chosen and begun; elsewhere the clicks say nothing that matters. Each box is closed in its time,
    // and at last the window, if the game goes on for so long.
    void show(Milliseconds most) {
        if (game.name == "PRÜGEL"_t) {
            for (int i = 0; i < AlleWahlen; ++i) backend.click({40, 50 + 80 * (i % 3)});
            backend.click({550, 436});
        }
        for (Milliseconds t = 0; t < most; t += 1000) {
            backend.wait(1000);
            backend.key(key::enter);
        }
        backend.closeBox();
        doors.at(Text(game.name))(platform, z, media);
        EXPECT_TRUE(platform.queue.windows().empty());
    }
    bool lost() const { return z.Übergabe == Übergabewert(false) || z.Übergabe == Übergabewert(Text("L")); }

private:
    static constexpr int AlleWahlen = 12;
};

void expectNamed(const Play& play, TextView file, const char* how) {
    ASSERT_EQ(play.backend.boxes.size(), 1U) << file << how;
    EXPECT_NE(play.backend.boxes[0].text.find(file), Text::npos) << play.backend.boxes[0].text;
    EXPECT_EQ(play.backend.boxes[0].title, play.game.titel);
    EXPECT_TRUE(play.lost()) << file << how;
}

TEST(GameFiles, EachGameOpensWithAllOfItsFiles) {
    for (const SpielArt& game : Spiele()) {
        Play play(game);
        play.show(2000);
        EXPECT_TRUE(play.backend.boxes.empty()) << game.name;
        EXPECT_EQ(play.backend.opens, std::vector<Text>{Text(game.fenster)});
    }
}

// What a fight shows is left to chance, but for its beginning: a picture that it comes to may be any of its own.
bool shownByChance(TextView file) {
    return file.starts_with("Kampf") && !file.starts_with("Kampfs") && file != "Kampf0.jpg";
}

TEST(GameFiles, AnyOfThemMissingOrDamagedLosesTheGameAndNoMore) {
    const std::map<const char*, std::function<void(const std::filesystem::path&)>> damages{
        {" missing", [](const auto&) {}},
        {" empty", [](const auto& file) { std::ofstream{file}; }},
        {" cut", [](const auto& file) { std::ofstream(file, std::ios::binary) << "BM\x36\x01"; }},
        {" a directory", [](const auto& file) { std::filesystem::create_directory(file); }}};
    for (const SpielArt& game : Spiele())
        for (const TextView file : game.dateien)
            for (const auto& [how, damage] : damages) {
                // Any bytes are characters to type or a comment.
                if (how == std::string(" cut") && file.ends_with(".txt")) continue;
                Play play(game);
                const std::filesystem::path target = play.directory.path() / Play::path(file);
                std::filesystem::remove(target);
                damage(target);
                if (shownByChance(file)) {
                    play.show(120'000);
                    if (!play.backend.boxes.empty()) expectNamed(play, file, how);
                } else {
                    play.show(6000);
                    expectNamed(play, file, how);
                }
            }
}

}  // namespace
}  // namespace zentrox::test
