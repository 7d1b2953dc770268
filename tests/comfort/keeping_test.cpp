// What is kept of a play: turns of saved games, what lies beside them, what was said.
#include <gtest/gtest.h>

#include "comfort/autosave.h"
#include "comfort/captions.h"
#include "saves/spielstand.h"
#include "tests/support/fake_room.h"
#include "tests/support/stage.h"

namespace zentrox::test {
namespace {

namespace fs = std::filesystem;

struct Keeping : testing::Test {
    Stage stage;
    Zustand z;
    FakeRaumfenster room;
    History history;
    Moment moment{stage.platform, z, history};
    std::vector<Text> complaints;
    Autosave autosave{stage.platform.files, moment, [this](Text why) { complaints.push_back(std::move(why)); }};

    void SetUp() override {
        z.RaumDatei = "Hof.lsd";
        autosave.setOn(true);
        for (Beobachter* const one : {static_cast<Beobachter*>(&moment), static_cast<Beobachter*>(&autosave)})
            one->Öffnet(room);
    }
    void rest() {
        moment.Ruht();
        autosave.Ruht();
    }
    void enter(const char* file) {
        z.RaumDatei = file;
        autosave.Betritt(file);
        rest();
    }
    std::string file(const std::string& name) const { return (stage.directory.path() / "saves" / name).string(); }
    bool there(const std::string& name) const { return fs::exists(file(name)); }
    // Files that were written within the grain of the disk's clock have to be told apart.
    void age(const std::string& name, int seconds) {
        fs::last_write_time(file(name), fs::file_time_type::clock::now() - std::chrono::seconds(seconds));
    }
};

TEST_F(Keeping, TurnsThroughThreeFilesAndReplacesTheOldest) {
    for (const char* const name : {"A.lsd", "B.lsd", "C.lsd"}) enter(name);
    EXPECT_TRUE(there("auto-1.xtc") && there("auto-2.xtc") && there("auto-3.xtc"));
    age("auto-1.xtc", 10);
    age("auto-2.xtc", 30);
    age("auto-3.xtc", 20);
    enter("D.lsd");
    const Slots slots(stage.platform.files, "auto-");
    EXPECT_TRUE(slots.newestFirst().front().ends_with("auto-2.xtc"));
    EXPECT_TRUE(slots.next().ends_with("auto-3.xtc"));
}

TEST_F(Keeping, WritesOnlyWhatIsNewAndNeverWhatMayNotBeSaved) {
    rest();
    EXPECT_FALSE(there("auto-1.xtc")) << "no room was entered";
    autosave.SpielBeginnt("PONG");
    EXPECT_TRUE(there("auto-1.xtc"));
    autosave.SpielBeginnt("PONG");
    EXPECT_FALSE(there("auto-2.xtc")) << "nothing has happened since";

    z.BösePunkte = 3;
    room.countDown = 500;
    enter("Hof.lsd");
    autosave.Schließt();
    EXPECT_FALSE(there("auto-2.xtc")) << "a count-down forbids a save";
    room.countDown = 0;
    z.Merker[0] = "MITTEN";  // a script runs: nobody rests
    autosave.Schließt();
    EXPECT_FALSE(there("auto-2.xtc"));
    rest();
    EXPECT_TRUE(there("auto-2.xtc")) << "the room was entered meanwhile";
}

TEST_F(Keeping, SaysOnceWhyItCannotWrite) {
    stage.directory.write("saves", "a file in the place of the directory");
    enter("A.lsd");
    enter("B.lsd");
    EXPECT_EQ(complaints.size(), 1U);
}

TEST_F(Keeping, TellsOfAGameOnlyWhatBelongsToIt) {
    z.Inventar[0] = "\\items\\seil.bmp";
    z.InventarLetzter = 0;
    history.Zeigt("$EGuten Tag.");
    enter("Hof.lsd");
    const Text path = stage.platform.files.savesDirectory() + "auto-1.xtc";
    auto sidecar = readSidecar(stage.platform.files, path);
    ASSERT_TRUE(sidecar);
    EXPECT_EQ(sidecar->room, "Hof");
    EXPECT_EQ(sidecar->items, std::vector<Text>{"seil"});
    EXPECT_EQ(sidecar->lines, std::vector<Text>{"Guten Tag."});

    z.BösePunkte = 1;  // another game in its place, whose notes were not written any more
    stage.directory.write("saves/auto-1.xtc", SpielstandSchreiben(z));
    sidecar = readSidecar(stage.platform.files, path);
    ASSERT_TRUE(sidecar);
    EXPECT_EQ(sidecar->room, "Hof");
    EXPECT_TRUE(sidecar->items.empty() && sidecar->lines.empty());
    EXPECT_FALSE(sidecar->when.empty());

    stage.directory.write("saves/auto-1.xtc", "");
    EXPECT_TRUE(readSidecar(stage.platform.files, path));
    EXPECT_FALSE(readSidecar(stage.platform.files, path + "x"));
}

TEST(History, KeepsTheLastThreeHundredWithTheirVoicesAndAnswers) {
    History history;
    for (int i = 0; i < 400; ++i) {
        if (i == 399) history.Klingt("a.wav");
        history.Zeigt("$CText " + std::to_string(i) + "#  #$Azwei");
        history.Gelesen();
    }
    ASSERT_EQ(history.all().size(), History::most);
    const Spoken& last = history.all().back();
    EXPECT_EQ(last.voice, "a.wav");
    ASSERT_EQ(last.lines.size(), 2U) << "an empty line is none";
    EXPECT_EQ(last.lines[0].text, "Text 399");
    EXPECT_EQ(last.lines[0].colour, 12);
    EXPECT_EQ(last.lines[1].colour, 10);
    EXPECT_TRUE(history.all().front().voice.empty());
    EXPECT_EQ(history.lastLines(3), (std::vector<Text>{"zwei", "Text 399", "zwei"}));

    history.Fragt({"Wohin?", "Hierhin", "Dorthin"});
    history.Gewählt(2);
    EXPECT_TRUE(history.all().back().chosen);
    EXPECT_EQ(history.lastLines(2), (std::vector<Text>{"Wohin?", "Dorthin"}));
}

TEST(Captions, ReadATableWithLinesThatAreNone) {
    const auto table = readTable("A.wav\tT\xC3\xBCr\tmehr\r\n# nichts\n\tleer\nb.wav\t \nc.wav\tC");
    EXPECT_EQ(table, (std::map<Text, Text>{{"a.wav", Text("Tür"_t)}, {"c.wav", "C"}}));
}

}  // namespace
}  // namespace zentrox::test
