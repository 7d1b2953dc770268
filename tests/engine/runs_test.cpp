// How a run begins and ends, and what may happen inside it.
#include "engine/files/raumdatei.h"
#include "engine/language/limits.h"
#include "engine/state/mangel.h"
#include "engine/state/merker.h"
#include "platform/machine/system.h"
#include "platform/values/error.h"
#include "tests/engine/engine_fixture.h"

namespace zentrox {
namespace {

using Notizen = std::vector<Text>;

class Runs : public test::EngineTest {
protected:
    // Makes the fake window enter rooms as the real one does.
    void enterRooms() {
        raum.onLade = [this](TextView pfad) {
            for (std::optional<Text> weiter = Text(pfad); weiter;) {
                z.RaumDatei = weiter->substr(weiter->rfind('\\') + 1);
                const Queue::Reason grund(platform.queue, "Lade " + z.RaumDatei);
                z.AktuellerRaum = readRoom(platform.files, *weiter);
                weiter = interpreter.RaumStarten();
            }
        };
    }
    void roomFile(TextView name, TextView startskript, TextView countDown = "-1") {
        directory.write("rooms/" + Text(name), "bild.jpg," + Text(startskript) + ",-1," + Text(countDown) + "\r\n");
    }
};

TEST_F(Runs, AnEmptyScriptDoesAllOpeningAndClosingSteps) {
    z.ZeigerLetzter = 4;
    z.GezogenerGegenstand = 3;
    z.LeisteGewünscht = true;
    raum.onVersteckeLeiste = [&] {
        EXPECT_TRUE(z.SkriptLäuft);
        EXPECT_FALSE(z.LeisteGewünscht);
        EXPECT_EQ(z.ZeigerLetzter, 1);
        EXPECT_EQ(z.ZeigerBilder[0], "c\\taste1.ico");
        EXPECT_EQ(z.ZeigerBilder[1], "c\\taste2.ico");
        EXPECT_EQ(raum.pointer, "own c\\taste1.ico");
        EXPECT_EQ(z.GezogenerGegenstand, 3);
    };
    interpreter.SkriptAusführen(Skript{}, -1, "");
    EXPECT_EQ(raum.notes, (Notizen{"CountDown off", "ZeigerLaden c\\taste1.ico", "VersteckeLeiste", "CountDown on",
                                   "ZeigerAuffrischen"}));
    EXPECT_FALSE(z.SkriptLäuft);
    EXPECT_EQ(z.ZeigerLetzter, 4);
    EXPECT_EQ(z.GezogenerGegenstand, -1);
    EXPECT_EQ(raum.pointer, "arrow");
}

TEST_F(Runs, AnInactiveObjectStartsNothing) {
    z.AktuellerRaum.Objekte.resize(2);
    z.AktuellerRaum.LetztesObjekt = 1;
    z.AktuellerRaum.Objekte[1].Aktiv = true;
    const Skript s = test::skript({{"SetzeMerker", "M"}});
    interpreter.SkriptAusführen(s, 0, "");
    EXPECT_TRUE(raum.notes.empty());
    EXPECT_FALSE(MerkerGesetzt(z, "M"));
    interpreter.SkriptAusführen(s, 1, "");
    EXPECT_TRUE(MerkerGesetzt(z, "M"));
}

TEST_F(Runs, ARunWaitsForTheSlideOfTheBar) {
    z.LeisteBewegt = true;
    nach(300, [this] { z.LeisteBewegt = false; });
    raum.onVersteckeLeiste = [&] { EXPECT_EQ(backend.now, 300); };
    execute({});
    EXPECT_FALSE(z.SkriptLäuft);
}

TEST_F(Runs, NothingYieldsButWhatWaits) {
    bool bedient = false;
    backend.then([&] { bedient = true; });
    execute({{"SetzeMerker", "A"},
             {"WennMerker", "A"},
             {"NimmGegenstand", "x"},
             {"EndeWenn"},
             {"Ton", "x.mp3"},
             {"Musik", "m"},
             {"CountDownSetzen", "5"},
             {"ZeigBild", "b"},
             {"Portrait", "1,b"},
             {"RahmenZu"}});
    EXPECT_FALSE(bedient);
}

TEST_F(Runs, TheReasonsOfAWaitTellTheStory) {
    roomFile("Keller.lsd", "0,2,\"Zu.\"");
    enterRooms();
    Text reasons;
    raum.onZeigText = [&](TextView) {
        nach(10, [&] {
            reasons = platform.queue.reasons();
            z.TastenCode = 65;
        });
    };
    z.AktuellerRaum.Objekte.resize(1);
    z.AktuellerRaum.LetztesObjekt = 0;
    z.AktuellerRaum.Objekte[0] = {.Name = Text("Tür"_t), .Aktiv = true};
    interpreter.SkriptAusführen(test::skript({{"Raumwechsel", "Keller.lsd"}}), 0, "");
    EXPECT_EQ(reasons, "Skript Tür > Lade Keller.lsd > Text"_t);
    EXPECT_EQ(platform.queue.reasons(), "");
}

TEST_F(Runs, ARoomChangeEndsTheRunBehindTheRunOfTheNewRoom) {
    roomFile("b.lsd", "1,5,\"b1\",4,\"c.lsd\"");
    roomFile("c.lsd", "4,5,\"c1\",31,\"2\",10,\"\",10,\"\",5,\"c2\"");
    enterRooms();
    // The room's own script runs in place and is overwritten under its own feet.
    z.AktuellerRaum.Startskript = test::skript(
        {{"ZeigBild", "a1"}, {"Raumwechsel", "b.lsd"}, {"ZeigBild", "a2"}, {"ZeigBild", "a3"}, {"ZeigBild", "a4"}});
    interpreter.SkriptAusführen(z.AktuellerRaum.Startskript, -1, "");
    Notizen notizen;
    for (const Text& n : raum.notes)
        if (!n.starts_with("ZeigerLaden") && n != "VersteckeLeiste") notizen.push_back(n);
    EXPECT_EQ(notizen, (Notizen{"CountDown off", "BildLaden g\\a1", "Lade " + z.PfadRooms + "b.lsd",
                                "CountDown off", "BildLaden g\\b1", "CountDown off", "BildLaden g\\c1",
                                "CountDown off", "CountDown 2000", "CountDown on", "BildLaden g\\c2",
                                "CountDown on", "ZeigerAuffrischen", "CountDown on", "ZeigerAuffrischen"}));
    EXPECT_EQ(z.RaumDatei, "c.lsd");
    EXPECT_FALSE(z.SkriptLäuft);
}

TEST_F(Runs, ALoadedGameEndsTheRunWithoutItsClosingSteps) {
    z.ZeigerLetzter = 2;
    raum.onSpielLaden = [this] {
        interpreter.SkriptAusführen(Skript{}, -1, "");
        raum.notes.clear();
        return true;
    };
    execute({{"System", "Open"}, {"ZeigBild", "x"}});
    EXPECT_TRUE(raum.notes.empty());
    EXPECT_EQ(z.ZeigerLetzter, 1) << "what the loaded room's run found";
}

// A count-down that a script has started ticks in its later waits, and may even leave the room: the outer run then
// goes on at its place in the new room's script.
TEST_F(Runs, ACountDownMayChangeTheRoomUnderAWaitingScript) {
    roomFile("neu.lsd", "4,5,\"n0\",5,\"n1\",5,\"n2\",5,\"n3\",5,\"n4\"");
    enterRooms();
    z.AktuellerRaum.Startskript = test::skript({{"CountDownSetzen", "1"}, {"Text", "Tick"}, {"ZeigBild", "alt"}});
    z.AktuellerRaum.CountDownSkript = test::skript({{"Raumwechsel", "neu.lsd"}});
    Timer countDown(platform.queue, 1000, true, [&] {
        countDown.setEnabled(false);
        interpreter.SkriptAusführen(z.AktuellerRaum.CountDownSkript, -1, "");
        EXPECT_FALSE(z.SkriptLäuft);
        nach(500, [this] { z.TastenCode = 65; });
    });
    interpreter.SkriptAusführen(z.AktuellerRaum.Startskript, -1, "");
    EXPECT_EQ(raum.commandNotes(),
              (Notizen{"CountDown 1000", "ZeigText Tick", "Lade " + z.PfadRooms + "neu.lsd", "BildLaden g\\n0",
                       "BildLaden g\\n1", "BildLaden g\\n2", "BildLaden g\\n3", "BildLaden g\\n4", "WegText Tick",
                       "BildLaden g\\n2", "BildLaden g\\n3", "BildLaden g\\n4"}));
}

TEST_F(Runs, ShorterScriptsMayTakeThePlaceOfAWaitingOne) {
    roomFile("neu.lsd", "-1");
    enterRooms();
    z.AktuellerRaum.Startskript =
        test::skript({{"ZeigBild", "1"}, {"Auswahl", "1|Ja?|Ja"}, {"Fall", "1"}, {"ZeigBild", "2"}});
    raum.onZeigText = [this](TextView) {
        nach(10, [this] {
            raum.Lade(z.PfadRooms + "neu.lsd");
            z.AuswahlErgebnis = 1;
        });
    };
    interpreter.SkriptAusführen(z.AktuellerRaum.Startskript, -1, "");
    EXPECT_EQ(raum.notes.back(), "ZeigerAuffrischen");
}

TEST_F(Runs, RoomsThatLeadToEachOtherWithoutAWaitAreStopped) {
    roomFile("hin.lsd", "0,4,\"her.lsd\"");
    roomFile("her.lsd", "0,4,\"hin.lsd\"");
    enterRooms();
    EXPECT_THROW(execute({{"Raumwechsel", "hin.lsd"}}), Ausweglos);
    // Behind the failure everything is as before a run.
    EXPECT_EQ(platform.queue.reasons(), "");
    EXPECT_EQ(notizen({{"ZeigBild", "x"}}).back(), "BildLaden g\\x");
}

// A hub: text, room, text, room, as long as the player likes.
TEST_F(Runs, RoomsThatFollowEachOtherDoNotStandInsideEachOther) {
    roomFile("hin.lsd", "4,0,\"ENDE\",9,,2,\"x\",4,\"her.lsd\",10,");
    roomFile("her.lsd", "4,0,\"ENDE\",9,,2,\"x\",4,\"hin.lsd\",10,");
    enterRooms();
    std::vector<std::size_t> stapel;
    raum.onZeigText = [&](TextView) {
        stapel.push_back(stackLeft());
        if (stapel.size() == 3000) MerkerSetzen(z, "ENDE");
        nach(10, [this] { z.TastenCode = 65; });
    };
    execute({{"Raumwechsel", "hin.lsd"}});
    EXPECT_EQ(stapel.size(), 3000U);
    EXPECT_EQ(stapel.front(), stapel.back());
}

TEST_F(Runs, RunsNestAsDeepAsTheStackGoesAndThenStop) {
    int tiefe = 0;
    raum.onZeigText = [&](TextView) {
        ++tiefe;
        execute({{"Text", "x"}});
    };
    EXPECT_THROW(execute({{"Text", "x"}}), Ausweglos);
    EXPECT_GT(tiefe, 1000);
    EXPECT_EQ(platform.queue.reasons(), "");
    EXPECT_TRUE(interpreter.PlatzFürLauf());
}

// A command that finds nothing to work with is told of once, with its place, and left out.
TEST_F(Runs, WhatIsMissingIsToldOfAndLeftOut) {
    z.RaumDatei = "Keller.lsd";
    raum.onLade = [](TextView) { throw DataError("Der Raum fehlt."); };
    backend.key(key::enter);
    EXPECT_EQ(weg({{"ZeigBild", "1"}, {"Raumwechsel", "weg.lsd"}, {"ZeigBild", "2"}}), "1");
    EXPECT_FALSE(z.SkriptLäuft) << "the run has ended with its closing steps";
    EXPECT_EQ(weg({{"ZeigBild", "1"}, {"Raumwechsel", "weg.lsd"}}), "1");
    ASSERT_EQ(backend.boxes.size(), 1U);
    EXPECT_EQ(backend.boxes[0].text, "Der Raum fehlt.\r\n\r\nRaum Keller.lsd, Skript, Befehl 2: Raumwechsel");

    spiele["PONG"] = [] { throw DataError("Der Ball fehlt."); };
    MerkerSetzen(z, "SIEG");
    backend.key(key::enter);
    EXPECT_EQ(weg({{"Spiel", "PONG,SIEG"}, {"ZeigBild", "2"}}), "2");
    EXPECT_FALSE(MerkerGesetzt(z, "SIEG")) << "a game that can't be played is lost";
}

TEST_F(Runs, AWindowStandsOnceAtMost) {
    int fenster = 0;
    spiele["PONG"] = [&] {
        ++fenster;
        z.Übergabe = true;
        MerkerSetzen(z, "INNEN");
        execute({{"Spiel", "PONG,INNEN,5"}});  // as a tick would
    };
    execute({{"Spiel", "PONG,AUSSEN"}, {"Spiel", "PONG,AUSSEN"}});
    EXPECT_EQ(fenster, 2) << "one behind the other";
    EXPECT_TRUE(MerkerGesetzt(z, "AUSSEN"));
    EXPECT_FALSE(MerkerGesetzt(z, "INNEN"));
}

TEST_F(Runs, AFilmGoesOnWhileATicksRunWaits) {
    sound.videoEnd = 2000;
    int bilder = 0;
    int duringText = 0;
    raum.onFilmBild = [&] { ++bilder; };
    raum.onZeigText = [&](TextView) {
        duringText = -bilder;
        nach(500, [this] { z.TastenCode = 65; });
    };
    raum.onWegText = [&] { duringText += bilder; };
    Timer tick(platform.queue, 300, true, [&] {
        tick.setEnabled(false);
        execute({{"Text", "Tick"}});
    });
    execute({{"Film", "f"}});
    EXPECT_GE(duringText, 25);
}

TEST_F(Runs, TheEndOfTheProgramLeavesEveryWait) {
    for (const std::vector<test::Line>& s :
         {std::vector<test::Line>{{"Text", "a"}}, {{"Auswahl", "1|a|b"}}, {{"Film", "f"}}}) {
        sound.videoEnd = 10'000;
        nach(100, [] { Queue::endProgram(3); });
        EXPECT_THROW(execute(s), ProgramEnd);
        EXPECT_EQ(platform.queue.reasons(), "");
    }
}

}  // namespace
}  // namespace zentrox
