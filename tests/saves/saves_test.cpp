#include "saves/saves.h"

#include <gtest/gtest.h>

#include "saves_fixture.h"

namespace zentrox::test {
namespace {

TEST(SpielSpeichern, WritesTheGameAndSaysSo) {
    SavesPlay play;
    playOn(play.z);
    play.answer("Mein Spiel");
    play.backend.then([&] { EXPECT_EQ(play.lastBox(), "Speichern erfolgreich unter Mein Spiel.xtc!"); });
    play.backend.key(key::enter);
    SpielSpeichern(play.platform, play.z, play.room);
    EXPECT_EQ(play.bytes("Mein Spiel.xtc"), savedPart(play.z));
    EXPECT_EQ(play.backend.boxes.back().icon, MessageBox::Icon::information);
    EXPECT_EQ(play.fileCount(), 1U) << "the directory was made, and nothing else lies in it";

    play.z.BösePunkte = 99;
    play.backend.key(key::enter);  // the same name stands there
    play.backend.key(key::enter);
    SpielSpeichern(play.platform, play.z, play.room);
    EXPECT_EQ(play.bytes("Mein Spiel.xtc"), savedPart(play.z)) << "replaced without asking";
}

TEST(SpielSpeichern, AHeldEnterKeyDoesNotDismissTheBox) {
    SavesPlay play;
    const auto enter = [&](bool repeat) {
        play.backend.input({.kind = Input::Kind::keyDown, .code = key::enter, .repeat = repeat});
    };
    play.backend.type("spiel");
    enter(false);
    for (int i = 0; i < 30; ++i) enter(true);
    bool stands = false;
    play.backend.then([&] {
        stands = play.platform.queue.active()->name() == "MsgBox";
        play.backend.input({.kind = Input::Kind::keyUp, .code = key::enter});
        play.backend.key(key::enter);
    });
    SpielSpeichern(play.platform, play.z, play.room);
    EXPECT_TRUE(stands);
}

TEST(SpielSpeichern, IsRefusedWhileTheCountDownRuns) {
    SavesPlay play;
    play.room.countDown = 5000;
    play.backend.key(key::space);
    SpielSpeichern(play.platform, play.z, play.room);
    EXPECT_EQ(play.lastBox(), "Speichern nicht möglich!"_t);
    EXPECT_EQ(play.backend.opens, std::vector<Text>{"MsgBox"}) << "the dialog does not open";
}

TEST(SpielSpeichern, AFailedWriteIsABoxAndTheGameGoesOn) {
    SavesPlay play;
    playOn(play.z);
    play.answer(Text(300, 'n'));
    play.backend.key(key::enter);
    SpielSpeichern(play.platform, play.z, play.room);
    EXPECT_NE(play.lastBox().find("Der Name ist zu lang."), Text::npos);

    play.directory.write("saves/ordner.xtc/x", "");
    play.answer("ordner");
    play.backend.key(key::enter);
    SpielSpeichern(play.platform, play.z, play.room);
    EXPECT_NE(play.lastBox().find("gespeichert werden!"), Text::npos);
    EXPECT_EQ(play.backend.boxes.back().icon, MessageBox::Icon::critical);
    EXPECT_EQ(play.fileCount(), 1U);
}

TEST(SpielLaden, EntersTheSavedRoom) {
    SavesPlay play;
    Zustand saved;
    playOn(saved);
    play.data({"seil.bmp"});
    saved.Inventar[0] = play.z.PfadItems + "seil.bmp";
    saved.InventarLetzter = 0;
    play.directory.write("saves/alt.xtc", savedPart(saved));
    play.z.GezogenerGegenstand = 2;
    play.room.countDown = 700;
    play.answer("ALT");  // as it is found on the disk without regard to case
    EXPECT_TRUE(SpielLaden(play.platform, play.z, play.room));
    EXPECT_EQ(savedPart(play.z), savedPart(saved));
    EXPECT_EQ(play.z.GezogenerGegenstand, -1);
    EXPECT_EQ(std::get<Text>(play.z.Übergabe), "");
    EXPECT_EQ(play.room.notes,
              (std::vector<Text>{"CountDown off", "CountDown 0", "CountDown on", "VersteckeLeiste",
                                 "GegenstaendeLaden", "Lade " + play.z.PfadRooms + Text("Küche.lsd"_t)}));
    EXPECT_TRUE(play.backend.boxes.empty());
}

TEST(SpielLaden, BringsItemsToTheDirectoryOfThisData) {
    SavesPlay play;
    play.data({"seil.bmp", "Brief.bmp"});
    const Text anders = upper(play.z.PfadItems) + "BRIEF.BMP";
    Zustand saved;
    playOn(saved);
    saved.Inventar[2] = anders;
    saved.InventarLetzter = 2;
    play.directory.write("saves/alt.xtc", savedPart(saved));
    play.answer("alt");
    EXPECT_TRUE(SpielLaden(play.platform, play.z, play.room));
    EXPECT_TRUE(play.backend.boxes.empty());
    EXPECT_EQ(play.z.Inventar[0], play.z.PfadItems + "seil.bmp");
    EXPECT_EQ(play.z.Inventar[1], saved.Inventar[1]) << "this data has no such item";
    EXPECT_EQ(play.z.Inventar[2], anders) << "a path that is found as it stands stays";
}

TEST(SpielLaden, ARoomThatIsGoneIsToldOfAndLeavesTheGameAlone) {
    SavesPlay play;
    play.data({});
    Zustand saved;
    playOn(saved);
    saved.RaumDatei = "Weg.lsd";
    play.directory.write("saves/alt.xtc", savedPart(saved));
    play.room.countDown = 700;
    play.z.RaumDatei = "Hof.lsd";
    const Text before = savedPart(play.z);
    play.answer("alt");
    play.backend.key(key::enter);
    EXPECT_FALSE(SpielLaden(play.platform, play.z, play.room));
    EXPECT_TRUE(play.lastBox().starts_with("alt.xtc kann nicht geladen werden."));
    EXPECT_NE(play.lastBox().find("Weg.lsd"), Text::npos);
    EXPECT_EQ(savedPart(play.z), before);
    EXPECT_EQ(play.room.notes, (std::vector<Text>{"CountDown off", "CountDown on"}));
    EXPECT_EQ(play.room.countDown, 700);
}

TEST(SpielLaden, CancelledOrNotFoundLetsTheCountDownRunOn) {
    SavesPlay play;
    play.room.countDown = 700;
    play.backend.key(key::escape);
    EXPECT_FALSE(SpielLaden(play.platform, play.z, play.room));
    play.answer("gibt es nicht");
    EXPECT_FALSE(SpielLaden(play.platform, play.z, play.room));
    EXPECT_EQ(play.room.notes,
              (std::vector<Text>{"CountDown off", "CountDown on", "CountDown off", "CountDown on"}));
    EXPECT_EQ(play.room.countDown, 700);
    EXPECT_TRUE(play.backend.boxes.empty());
}

TEST(SpielLaden, AnEmptyFieldIsNoNameToBeOfferedAgain) {
    SavesPlay play;
    for (const Text before : {"", "berta.xtc"}) {
        play.z.LetzterSpielstand = before;
        play.backend.key(key::del);  // what stands there is selected
        play.backend.key(key::enter);
        EXPECT_FALSE(SpielLaden(play.platform, play.z, play.room));
        EXPECT_EQ(play.z.LetzterSpielstand, before);
    }
    Zustand saved;
    playOn(saved);
    saved.InventarLetzter = -1;
    play.data({});
    play.directory.write("saves/.xtc", savedPart(saved));
    play.z.LetzterSpielstand = "";
    play.backend.key(key::enter);
    EXPECT_TRUE(SpielLaden(play.platform, play.z, play.room)) << "a game of that name is loaded";
}

TEST(SpielLaden, AnUnusableFileIsABoxAndLeavesTheCountDownOff) {
    Zustand saved;
    playOn(saved);
    const Text whole = savedPart(saved);
    for (const Text& bytes : {Text(), Text("PK\x03\x04"), whole.substr(0, whole.size() - 1), whole.substr(0, 40)}) {
        SavesPlay play;
        play.directory.write("saves/alt.xtc", bytes);
        play.room.countDown = 700;
        play.answer("alt");
        play.backend.key(key::enter);
        EXPECT_FALSE(SpielLaden(play.platform, play.z, play.room));
        EXPECT_EQ(play.lastBox(), "Daten nicht geladen!");
        EXPECT_EQ(play.room.notes, (std::vector<Text>{"CountDown off", "CountDown 0"}));
        EXPECT_FALSE(play.room.countDownOn);
    }
}

}  // namespace
}  // namespace zentrox::test
