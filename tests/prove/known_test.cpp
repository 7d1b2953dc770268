// Small stories whose answers are known.
#include "tests/prove/prove_support.h"
#include "tools/prove/games.h"

namespace zentrox::prove::test {

namespace {

// The start room with these parts, and a room with the end behind it.
std::string startRoom(const std::string& parts) {
    return "Raum \"Start.lsd\"\n" + parts +
           "\nRaum \"Ende.lsd\"\n    Start\n        // ende: gut\n        System Abspann\n";
}

// Line 2 is the first of the object.
std::string object(const std::string& name, int left, const std::string& scripts) {
    return "    Objekt \"" + name + "\"\n        Fläche Rechteck " + std::to_string(left) + " 0 " +
           std::to_string(left + 40) + " 40\n" + scripts;
}

TEST(Known, ACoinThatCanBeGivenAway) {
    const Proof proof(startRoom(object("Münze", 0, R"(        Links
            NimmGegenstand "muenze.bmp"
            ObjektAus "Münze"
)") + object("Bettler", 100, R"(        Ablegen
            WennParameter MUENZE
                GibGegenstand "muenze.bmp"
                Text "Danke."
            EndeWenn
)") + object("Fähre", 200, R"(        Ablegen
            WennParameter MUENZE
                Raumwechsel "Ende.lsd"
            EndeWenn
)")));
    EXPECT_TRUE(proof.report.complete);
    EXPECT_EQ(proof.endings(), "gut 2");
    EXPECT_EQ(proof.dead(), "11 in 2");
    EXPECT_NE(proof.message("verbaut").find("weiter ginge es mit „muenze“; weggegeben: „muenze“; getragen: nichts"),
              std::string::npos)
        << proof.message("verbaut");
    EXPECT_NE(proof.report.dead.front().walk.find(
                  "use \"Münze\"\nuntil idle\ngive \"muenze\" \"Bettler\"\nread \"Danke.\"\n"),
              std::string::npos)
        << proof.report.dead.front().walk;
}

std::string gamesOf(const std::string& source) {
    story::test::MemoryFiles files;
    files.sources["probe.story"] = source;
    const story::Story story = story::test::compiled(source, files);
    return asText(story, gameNeeds(story, endingMarks(story, files), {}));
}

TEST(Games, AreNeededWhereEachWayToAnEndLeadsThroughTheirVictory) {
    const std::string games = object("Pong", 0, "        Links\n            Spiel PONG, P\n") +
                              object("Quiz", 100, "        Links\n            Spiel HDW, Q\n") +
                              object("Jump", 200, "        Links\n            Spiel JUMP, J\n");
    const std::string door = object("Tür", 300, R"(        Links
            WennMerker P
                WennMerker Q
                    Raumwechsel "Ende.lsd"
                EndeWenn
                WennMerker J
                    Raumwechsel "Ende.lsd"
                EndeWenn
            EndeWenn
)");
    EXPECT_EQ(gamesOf(startRoom(games + door)),
              "probe.story:5: ohne einen Sieg in PONG ist kein Ende zu erreichen\n"
              "Auch ohne Sieg kommt man zu einem Ende: HDW, JUMP.\n");
    EXPECT_EQ(gamesOf(startRoom(games)), "Auch ohne Sieg kommt man zu einem Ende: HDW, JUMP, PONG.\n")
        << "there is no end at all";
    EXPECT_EQ(gamesOf(startRoom("")), "");
}

TEST(Known, AKeyBehindItsOwnDoor) {
    const Proof proof(startRoom(object("Tür", 0, R"(        Links
            WennMerker AUF
                Raumwechsel "Kammer.lsd"
            EndeWenn
        Ablegen
            WennParameter SCHLUESSEL
                SetzeMerker AUF
            EndeWenn
)")) + "Raum \"Kammer.lsd\"\n" +
                      object("Schlüssel", 0, R"(        Links
            NimmGegenstand "schluessel.bmp"
)") + object("Ausgang", 100, "        Links\n            Raumwechsel \"Ende.lsd\"\n"));
    EXPECT_EQ(proof.endings(), "");
    EXPECT_NE(proof.message("ende-fehlt"), "");
    EXPECT_EQ(proof.findings(),
              "ende-fehlt 1, immer-gleich 5, nie-gespielt 6, nie-gespielt 9, nie-gespielt 13, nie-gespielt 17, "
              "gegenstand-nutzlos 21");
}

TEST(Known, AnOrderThatMatters) {
    const std::string source = startRoom(object("Hebel", 0, R"(        Links
            WennMerker WASSER
                SetzeMerker OFFEN
            Sonst
                SetzeMerker VERKLEMMT
            EndeWenn
)") + object("Hahn", 100, R"(        Links
            WennMerker VERKLEMMT
                Text "Nichts."
            Sonst
                SetzeMerker WASSER
            EndeWenn
)") + object("Tor", 200, R"(        Links
            WennMerker OFFEN
                Raumwechsel "Ende.lsd"
            EndeWenn
)"));
    for (const bool reduced : {true, false}) {
        const Proof proof(source, reduced);
        EXPECT_EQ(proof.endings(), "gut 3");
        EXPECT_EQ(proof.dead(), "8 in 1");
    }
}

TEST(Known, ACountDownThatTakesAnItem) {
    const Proof proof(startRoom(R"(    Start
        NimmGegenstand "eis.bmp"
        CountDownSetzen 2
    Countdown
        GibGegenstand "eis.bmp"
        CountDownSetzen 0
)" + object("Kind", 0, R"(        Ablegen
            Raumwechsel "Ende.lsd"
)")));
    EXPECT_EQ(proof.endings(), "gut 1");
    EXPECT_EQ(proof.dead(), "6 in 1");
    EXPECT_NE(proof.report.dead.front().walk.find("wait 2001"), std::string::npos)
        << proof.report.dead.front().walk;
}

// A tick in the text behind CountDownSetzen, and the click on the door that is then possible within it.
TEST(Known, ATickInsideAText) {
    const Proof proof(startRoom(R"(    Start
        CountDownSetzen 2
        Text "Schnell!"
        WennMerker ZU
            Text "Zu spät."
        EndeWenn
        SetzeMerker VORBEI
    Countdown
        SetzeMerker ZU
        CountDownSetzen 0
)" + object("Tür", 0, R"(        Links
            WennMerker VORBEI
                Raumwechsel "Ende.lsd"
            EndeWenn
)")));
    EXPECT_EQ(proof.endings(), "gut 2");
    EXPECT_EQ(proof.dead(), "");
    EXPECT_EQ(proof.findings(), "");
}

TEST(Known, AnItemUnderAnotherObject) {
    const Proof proof(startRoom(object("Tisch", 0, "        Rechts\n            Text \"Ein Tisch.\"\n") +
                                object("Münze", 0, R"(        Links
            NimmGegenstand "muenze.bmp"
)") + object("Fähre", 200, R"(        Ablegen
            Raumwechsel "Ende.lsd"
)")));
    EXPECT_EQ(proof.endings(), "");
    EXPECT_EQ(proof.findings(),
              "ende-fehlt 1, nie-gespielt 9, gegenstand-nutzlos 9, nie-gespielt 13, nie-gespielt 15");
}

TEST(Known, AChoiceThatClosesForEver) {
    const Proof proof(startRoom(object("Wächter", 0, R"(        Links
            WennMerker BELEIDIGT
                Text "Pah."
            Sonst
                Auswahl "Ja?"
                    Fall "Bitte."
                        Raumwechsel "Ende.lsd"
                    Fall "Du Tropf."
                        SetzeMerker BELEIDIGT
                EndeAuswahl
            EndeWenn
)")));
    EXPECT_EQ(proof.endings(), "gut 2");
    EXPECT_EQ(proof.dead(), "12 in 2");
    EXPECT_NE(proof.report.dead.front().walk.find("until choice\nchoose 2\n"), std::string::npos);
}

TEST(Known, AGameWhoseLossShutsAWay) {
    const Proof proof(startRoom(object("Gegner", 0, R"(        Links
            WennMerker GESPIELT
                Text "Nie wieder."
            Sonst
                SetzeMerker GESPIELT
                Spiel PONG GEWONNEN
                WennMerker GEWONNEN
                    Raumwechsel "Ende.lsd"
                EndeWenn
            EndeWenn
)")));
    EXPECT_EQ(proof.endings(), "gut 2");
    EXPECT_EQ(proof.dead(), "9 in 2");
    EXPECT_NE(proof.report.dead.front().walk.find("until window Pong\nlose\n"), std::string::npos);
}

TEST(Known, EvilPoints) {
    const Proof proof(startRoom(object("Katze", 0, "        Links\n            BöseÄndern 1\n") +
                                object("Tor", 100, R"(        Links
            WennMerker BÖSE
                Text "Du nicht."
            Sonst
                Raumwechsel "Ende.lsd"
            EndeWenn
)")));
    EXPECT_TRUE(proof.report.complete);
    EXPECT_EQ(proof.endings(), "gut 1");
    EXPECT_EQ(proof.dead(), "5 in 1");
}

TEST(Known, LoopsWithAndWithoutAWayOut) {
    const Proof proof(startRoom(object("Fass", 0, R"(        Links
            Marke NOCHMAL
            Auswahl "Trinken?"
                Fall "Ja"
                    Springe NOCHMAL
                Fall "Nein"
                    Raumwechsel "Ende.lsd"
            EndeAuswahl
)") + object("Loch", 100, R"(        Links
            Marke TIEFER
            Text "Du fällst."
            Springe TIEFER
)")));
    EXPECT_EQ(proof.endings(), "gut 2");
    EXPECT_EQ(proof.dead(), "15 in 1");
}

TEST(Known, RoomsThatLeadOn) {
    const Proof proof(R"(Raum "Start.lsd"
    Start
        WennMerker DA
            Raumwechsel "Zwei.lsd"
        Sonst
            SetzeMerker DA
            Raumwechsel "Start.lsd"
        EndeWenn
Raum "Zwei.lsd"
    Start
        Text "Weiter."
        Raumwechsel "Drei.lsd"
Raum "Drei.lsd"
    Start
        System Abspann
        System Ende
)");
    EXPECT_EQ(proof.endings(), "Abspann 0");
    EXPECT_EQ(proof.findings(), "");
}

TEST(Known, TwoEndingsAndOneThatNobodyReaches) {
    const Proof proof("Raum \"Start.lsd\"\n" + object("Links", 0, R"(        Links
            Text "So."
            // ende: schnell
            System Abspann
)") + object("Rechts", 100, R"(        Links
            SetzeMerker MUT
)") + object("Tür", 200, R"(        Links
            WennMerker MUT
                System Raus
            EndeWenn
            WennMerker WAHN
                System Abspann  // ende: irre
            EndeWenn
)"));
    EXPECT_EQ(proof.endings(), "schnell 1, Raus 2");
    EXPECT_EQ(proof.findings(), "immer-gleich 18, nie-gespielt 19");
}

TEST(Known, WhatNoPlayComesTo) {
    const std::string source = startRoom(object("Tor", 0, R"(        Links
            SetzeMerker DA
            WennMerker DA
                Auswahl "Und?"
                    Fall "Los."
                        Raumwechsel "Ende.lsd"
                EndeAuswahl
            Sonst
                Auswahl "Nie?"
                    Fall "Nie."
                        Fehlerton
                EndeAuswahl
            EndeWenn
)") + object("Buch", 100, R"(        Links
            WennMerker GELESEN
                Text "Kenne ich."
            Sonst
                Text "Ein Buch."
                SetzeMerker GELESEN
                NimmGegenstand "stein.bmp"
            EndeWenn
)"));
    for (const bool reduced : {true, false})
        EXPECT_EQ(Proof(source, reduced).findings(),
                  "immer-gleich 6, nie-gespielt 12, antwort-nie 13, gegenstand-nutzlos 25")
            << reduced;
}

// The game tells of it in a box, ends the script and goes on.
TEST(Known, ARoomThatIsNotThere) {
    const Proof proof(startRoom(object("Loch", 0, R"(        Links
            SetzeMerker GEFALLEN
            Raumwechsel "Nirgends.lsd"
            SetzeMerker NIE
)") + object("Tor", 100, R"(        Links
            WennMerker GEFALLEN
                Raumwechsel "Ende.lsd"
            EndeWenn
)")));
    EXPECT_EQ(proof.endings(), "gut 2");
    EXPECT_EQ(proof.dead(), "");
    EXPECT_EQ(proof.findings(), "nie-gespielt 7");
    EXPECT_NE(proof.report.endings.front().walk.find("until window MsgBox\nkey enter\n"), std::string::npos);
}

TEST(Known, ASilencedDeadEnd) {
    const Proof proof(startRoom(object("Knopf", 0, R"(        Links
            // stumm: verbaut
            SetzeMerker KAPUTT
)") + object("Tor", 100, R"(        Links
            WennMerker KAPUTT
                Text "Klemmt."
            Sonst
                Raumwechsel "Ende.lsd"
            EndeWenn
)")));
    EXPECT_EQ(proof.dead(), "");
    EXPECT_TRUE(proof.report.findings.empty());
}

// Where each step is taken, what is done, what is read.
TEST(Known, APlayIsToldStepByStep) {
    const Proof proof(R"(Raum "Start.lsd"
    Start
        Text "$AEins" "zwei"
    Objekt "Tür"
        Fläche Rechteck 10 10 90 90
        Links
            Auswahl "Wohin?"
                Fall "Bleiben."
                Fall "$BHinaus," "schnell!"
                    Spiel PONG GUT
                    Raumwechsel "Hof.lsd"
            EndeAuswahl
Raum "Hof.lsd"
    Objekt "Tor"
        Fläche Rechteck 10 10 90 90
        Links
            Text "Ende."
            System Ende
)");
    ASSERT_EQ(proof.report.endings.size(), 1U);
    std::vector<std::string> told;
    for (const ToldStep& step : proof.report.endings[0].play) {
        told.push_back(step.room + " " + std::to_string(step.place.file == -1 ? 0 : step.place.line) + " " +
                       step.what);
        for (const std::string& text : step.texts) told.back() += " | " + text;
    }
    ASSERT_EQ(told.size(), 5U);
    EXPECT_EQ(told[0], "Start.lsd 3  | Eins#zwei");
    EXPECT_EQ(told[1], "Start.lsd 7 „Tür“ benutzen");
    EXPECT_EQ(told[2], "Start.lsd 9 „Hinaus, schnell!“ antworten");
    EXPECT_EQ(told[4], "Hof.lsd 17 „Tor“ benutzen | Ende.");
}

TEST(Known, ABoundIsSaid) {
    std::string switches;
    for (int i = 0; i < 12; ++i) {
        const std::string flag = "F" + std::to_string(i);
        switches +=
            object(flag, i * 50,
                   "        Links\n            WennMerker " + flag + "\n                LöscheMerker " + flag +
                       "\n            Sonst\n                SetzeMerker " + flag + "\n            EndeWenn\n");
    }
    std::string tests = "        Links\n";
    for (int i = 0; i < 12; ++i) tests += "            WennMerker F" + std::to_string(i) + "\n";
    tests += "            Raumwechsel \"Ende.lsd\"\n";
    for (int i = 0; i < 12; ++i) tests += "            EndeWenn\n";
    const std::string source = startRoom(switches + object("Tor", 600, tests));
    EXPECT_EQ(Proof(source).endings(), "gut 13");
    Bounds bounds;
    bounds.states = 100;
    const Proof bounded(source, true, bounds);
    EXPECT_FALSE(bounded.report.complete);
    EXPECT_TRUE(bounded.report.findings.empty());
    const std::string text = asText(bounded.story, bounded.report, "");
    EXPECT_NE(text.find("Zuständen, die gesehen wurden, war kein Ende zu erreichen"), std::string::npos) << text;
}

// Berries without end: a bag that is full takes nothing more.
TEST(Known, ABagThatCanBeFilled) {
    const Proof proof(startRoom(object("Busch", 0, "        Links\n            NimmGegenstand \"beere.bmp\"\n") +
                                object("Schlüssel", 100, R"(        Links
            WennMerker HAT
                Text "Habe ich."
            Sonst
                NimmGegenstand "schluessel.bmp"
                SetzeMerker HAT
            EndeWenn
)") + object("Tor", 200, R"(        Ablegen
            WennParameter SCHLUESSEL
                Raumwechsel "Ende.lsd"
            EndeWenn
)")));
    EXPECT_EQ(proof.endings(), "gut 2");
    EXPECT_EQ(proof.dead(), "5 in 51");
}

// The page tells of the story that the test of its walks plays.
TEST(Known, ThePageTellsOfAStoryThatIsPlayed) {
    story::SourceFiles files;
    const std::string page = files.read(DOCS "/proving.md").value_or("");
    EXPECT_NE(page.find(files.read(STORIES "/faehre.story").value_or("?")), std::string::npos);
}

}  // namespace

}  // namespace zentrox::prove::test
