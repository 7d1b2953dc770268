// Every kind of finding, each with the smallest source that has it, and stories that have none.
#include <nlohmann/json.hpp>
#include <set>

#include "story_support.h"
#include "tests/support/fake_fonts.h"
#include "tests/support/temp_directory.h"
#include "tools/story/data.h"

namespace zentrox::story::test {

namespace {

using Expected = std::vector<std::string>;

Findings checked(const Story& story, Findings findings, const DataFiles* data = nullptr,
                 const Story* rest = nullptr) {
    zentrox::test::FakeFonts fonts;
    check(story, {rest, data, &fonts}, findings);
    findings.settle(story);
    return findings;
}

// The findings of a whole check of one source, as "LINE:COLUMN CODE" each.
Expected findingsOf(const std::string& source, const DataFiles* data = nullptr, const Story* rest = nullptr) {
    Findings findings;
    MemoryFiles files;
    const Story story = parseSource(source, "probe.story", files, findings);
    Expected found;
    const Findings all = checked(story, findings, data, rest);
    for (const Finding& f : all.all())
        found.push_back(std::to_string(f.place.line) + ":" + std::to_string(f.place.column) + " " + f.code);
    return found;
}

std::set<std::string> codesOf(const Findings& findings) {
    std::set<std::string> codes;
    for (const Finding& f : findings.all()) codes.insert(f.code);
    return codes;
}

// What can be compiled has to give the same findings as data. That knows no comments, of an item
// nothing but its scripts, and one place for all lines of a text.
void expectTheSameOfData(const std::string& source, const DataFiles* data = nullptr) {
    Findings findings;
    MemoryFiles files;
    Story story = parseSource(source, "probe.story", files, findings);
    if (!findings.empty()) return;
    story.silences.clear();
    story.items.clear();
    Story compiled;
    for (const auto& [name, bytes] : filesOf(story))
        (name.ends_with(".lsd") ? readRoomData : readScriptData)(bytes, name, toUtf8(name), compiled, findings);
    EXPECT_EQ(codesOf(checked(compiled, findings, data)), codesOf(checked(story, {}, data))) << source;
}

// Lines 1 to 3 stand before what a script holds, which begins in line 4. There are two items to be dropped.
std::string inScript(const std::string& lines) {
    std::string items;
    for (const char* name : {"X.bmp", "Y.bmp"})
        items += std::string("NimmGegenstand ") + name + "\nGibGegenstand " + name + "\n";
    return "Raum \"a.lsd\"\n Objekt \"Tür\"\n  Ablegen\n" + lines + "\nLinks\n" + items;
}

struct Case {
    std::string source;
    Expected findings;
};

void expectAll(const std::vector<Case>& cases, bool script) {
    for (const Case& c : cases) {
        const std::string source = script ? inScript(c.source) : c.source;
        EXPECT_EQ(findingsOf(source), c.findings) << c.source;
        expectTheSameOfData(source);
    }
}

std::string repeated(const std::string& line, int times) {
    std::string out;
    for (int i = 0; i < times; ++i) out += line + "\n";
    return out;
}

}  // namespace

TEST(FindingsOf, WhatCanNotBeCompiled) {
    expectAll(
        {
            {"Text \"a", {"1:1 platz", "1:6 text"}},
            {"Raum \"a.lsd\"\n Bild \"ł.jpg\"", {"2:8 zeichen"}},
            {"Raum \"a.lsd\"\n Bild \"u\u0308.jpg\"", {"2:9 zeichen"}},
            {"Raum \"a.lsd\" // ł \xFF is nobody's business here", {}},
            {"Raum \"a.lsd\"\n Bild \"\xFC.jpg\"\n Bild \"\xFC.jpg\"", {"2:8 utf8", "3:2 doppelt"}},
            {"Raum \"a.lsd\"\n Bild \"a\x01.jpg\"", {"2:9 zeichen"}},
            {"\"Hallo\"", {"1:1 wort"}},
            {"Raun \"a.lsd\"", {"1:1 wort"}},
            {"Raum", {"1:1 argument"}},
            {"Raum a.lsd b", {"1:12 argument"}},
            {"Raum \"Start\"", {"1:6 name"}},
            {"Raum \"../a.lsd\"", {"1:6 name"}},
            {"Raum a.lsd\nRaum A.LSD", {"2:6 doppelt"}},
            {"Gegenstand ring", {"1:12 name"}},
            {"Gegenstand ring.bmp\nRechts\nRechts", {"3:1 doppelt"}},
            {"Skriptdatei ring.txt", {"1:13 name"}},
            {"Bild \"a.jpg\"", {"1:1 platz"}},
            {"Raum a.lsd\nStart\nBild \"a.jpg\"", {"3:1 platz"}},
            {"Raum a.lsd\nStart\nStart", {"3:1 doppelt"}},
            {"Raum a.lsd\nZeiger a.ico", {"2:1 platz"}},
            {"Raum a.lsd\nRechts", {"2:1 platz"}},
            {"Raum a.lsd\nObjekt x\nLinks\nZeiger a.ico", {"4:1 platz"}},
            {"Raum a.lsd\nObjekt x\nText \"a\"\nText \"b\"", {"3:1 platz"}},
            {"Raum a.lsd\nStart:\nText \"a\"\n: \"b\"", {"2:1 wort", "4:1 wort"}},
            {"Raum a.lsd\nStart b\nText \"a\"", {"2:7 argument"}},
            // Of flags nothing is told as long as a part of the story is not known.
            {"Raum a.lsd\nStart\nFoo\nWennMerker A\nEndeWenn", {"3:1 wort"}},
            {"Raum a.lsd\nObjekt x\nFläche Kreis", {"3:8 argument"}},
            {"Raum a.lsd\nObjekt x\nRechteck 1 2 3", {"3:14 argument"}},
            {"Raum a.lsd\nObjekt x\nRechteck 1 2 drei 4", {"3:14 argument"}},
            {"Raum a.lsd\nObjekt x\nVieleck 1 2 3 4", {"3:1 argument"}},
            {"Raum a.lsd\nObjekt x\nRechteck 640 0 700 20", {"3:1 flaeche"}},
            {"Raum a.lsd\nObjekt x\nRechteck 1e300 0 700 nan", {"3:10 argument"}},
            {"Raum a.lsd\nObjekt x\nMaskenbild weg.png", {"3:12 flaeche"}},
            {"Einbinden weg.teil", {"1:11 einbinden"}},
            {"Einbinden probe.story", {"1:11 einbinden"}},
        },
        false);
}

// One finding for one mistake, however much stands below it.
TEST(FindingsOf, NothingThatOnlyFollowsFromAnother) {
    expectAll(
        {
            {"Room a.lsd\nBild b.jpg\nStart\nText \"a\"\nObjekt x\nRechts\nText \"b\"", {"1:1 wort"}},
            {"Bild b.jpg\nStart\nText \"a\"\nObjekt x\nZeiger a.ico\nRechts\nText \"b\"", {"1:1 platz"}},
            {"Raum a.lsd\nGegenstand x.bmp\nRechts\nText \"a\"\nObjekt y\nZeiger a.ico\nRechteck 1 2 30 40\n"
             "Objekt z\nZeiger a.ico",
             {"5:1 platz"}},
            {std::string("R\0a\0u\0m\0\n\0", 10), {"1:1 utf8"}},
            {"\xFE\xFF", {"1:1 utf8"}},
        },
        false);
}

TEST(FindingsOf, CommandsThatMakeNoSense) {
    expectAll(
        {
            {"Text Hallo", {"4:6 argument"}},
            {"Text \"a#b\"", {"4:6 raute"}},
            {"Text", {"4:1 argument"}},
            {"Text \"Er sagt \"Nein\" dazu.\"", {"4:16 text"}},
            {"Text \"a{22}b\"", {}},
            {"Text \"a\"{22}\"b\"", {"4:6 zeichen"}},
            {"Text \"a,\"{22}", {"4:1 zeichen"}},
            {"Text {9}", {"4:6 text"}},
            {"Fehlerton \"x.mp3\"", {"4:11 argument"}},
            {"ZoomIN 1 2 3", {"4:1 argument"}},
            {"ZoomIN 1 2 3 4 5", {"4:16 argument"}},
            {"ZoomIN 1 2 drei 4", {"4:8 argument"}},
            {"SetzeMerker \" \"", {"4:13 argument"}},
            {"BöseÄndern viel", {"4:12 argument"}},
            {"CountDownSetzen 0,5", {"4:19 argument"}},
            {"CountDownSetzen -1", {"4:17 argument"}},
            {"Blende rot", {"4:8 argument"}},
            {"Text: \"a\"", {"4:1 wort"}},
            {"Portrait mitte \"a.jpg\"", {"4:10 argument"}},
            {"SetzeZeiger Tür \"a,b.ico\"", {"4:17 argument"}},
            {"Spiel SCHACH SIEG", {"4:7 argument"}},
            {"System save", {"4:8 argument"}},
            {"Roh 33\nRoh -1", {"4:1 befehl", "5:1 befehl"}},
            {"Roh Nichts", {"4:5 befehl"}},
            {"ObjektAn \"tür \"", {"4:10 objekt"}},
            {"ObjektAus Tor\nSetzeZeiger Tor \"\"\nSetzeZeiger \"tür \" \"\"", {"4:11 objekt", "5:13 objekt"}},
            {"Springe ZURÜCK", {"4:9 marke"}},
            {"Wenn X", {"4:1 wort"}},
        },
        true);
}

TEST(FindingsOf, BlocksThatAreNotClosed) {
    expectAll(
        {
            {"WennParameter X\nText \"a\"", {"4:1 block"}},
            {"EndeWenn", {"4:1 block"}},
            {"Sonst", {"4:1 block"}},
            {"WennParameter X\nSonst\nSonst\nEndeWenn", {"6:1 block"}},
            {"Auswahl \"a\"\nFall \"b\"", {"4:1 block"}},
            {"EndeAuswahl", {"4:1 block"}},
            {"Fall \"a\"", {"4:1 block"}},
            {"Auswahl \"a\"\nFall \"b\"\nWennParameter X\nFall \"c\"\nEndeAuswahl", {"6:1 block", "7:1 block"}},
            {"WennParameter X\nAuswahl \"a\"\nFall \"b\"\nEndeWenn", {"5:1 block"}},
            {"Auswahl \"a\"\nEndeAuswahl", {"4:1 auswahl"}},
            {"Auswahl \"a|b\"\nFall \"c\"\nEndeAuswahl", {"4:1 auswahl", "4:1 zeichen"}},
            {"Auswahl \"a\"\nFall 2 \"b\"\nEndeAuswahl", {"4:1 fall", "5:1 fall"}},
            {"Auswahl \"a\"\nFall \"b\"\nFall 1 \"c\"\nEndeAuswahl", {"6:1 fall"}},
            {"Roh Auswahl \"2|a|b\"\nRoh Fall 3\nRoh EndeAuswahl", {"4:1 auswahl", "5:10 fall"}},
            {"Roh Auswahl \"2|a|b|c|\"\nRoh Fall \" 2\"\nRoh EndeAuswahl", {}},
        },
        true);
}

TEST(FindingsOf, WaysThroughAScript) {
    expectAll(
        {
            {"Raumwechsel b.lsd\nText \"a\"\nText \"b\"", {"5:1 nach-raumwechsel"}},
            {"System Ende\nText \"a\"", {"5:1 unerreichbar"}},
            {"WennParameter X\nRaumwechsel b.lsd\nSonst\nText \"a\"\nEndeWenn\nText \"b\"", {}},
            {"WennParameter X\nRaumwechsel b.lsd\nSonst\nRaumwechsel c.lsd\nEndeWenn\nText \"b\"",
             {"9:1 unerreichbar"}},
            {"Auswahl \"a\"\nText \"nie\"\nFall \"b\"\nRaumwechsel b.lsd\nEndeAuswahl\nText \"c\"",
             {"5:1 unerreichbar", "9:1 unerreichbar"}},
            {"Auswahl \"a\"\nFall \"b\"\nRaumwechsel b.lsd\nOption \"c\"\nEndeAuswahl\nText \"c\"", {}},
            {"Springe X\nText \"a\"\nMarke X", {"5:1 unerreichbar"}},
            // Loops: one that waits, one that does not, and those whose conditions end them.
            {"Marke X\nText \"a\"\nSpringe X", {}},
            {"Marke X\nTon a.mp3\nSpringe X", {"6:1 schleife"}},
            {"Marke X\nWennParameter Y\nSpringe X\nEndeWenn", {"6:1 schleife"}},
            {"Marke X\nWennMerker BÖSE\nBöseÄndern -1\nSpringe X\nEndeWenn", {"7:1 schleife"}},
            {"SetzeMerker A\nMarke X\nWennMerker A\nLöscheMerker A\nSpringe X\nEndeWenn", {}},
            {"Marke X\nWennMerker A\nText \"a\"\nSonst\nSetzeMerker A\nSpringe X\nEndeWenn", {}},
            {"Marke X\nSetzeMerker A\nWennMerker A\nSpringe X\nEndeWenn", {"7:1 schleife"}},
            {"Marke X\nSpiel PONG A\nWennMerker A\nSonst\nSpringe X\nEndeWenn", {}},
            {"Marke X\nAuswahl \"a\"\nFall \"b\"\nSpringe X\nOption \"c\"\nEndeAuswahl", {}},
            {"Marke X\nBlende weiß\nRahmenAuf\nSpringe X", {}},
        },
        true);
}

// Only what is dropped is an item for a room.
TEST(FindingsOf, ConditionsThatAreNeverTrue) {
    const std::string condition = "WennParameter X\nText \"a\"\nSonst\nText \"b\"\nEndeWenn\nNimmGegenstand x.bmp";
    expectAll(
        {
            {"Raum a.lsd\nStart\n" + condition, {"4:1 unerreichbar"}},
            {"Raum a.lsd\nCountdown\n" + condition, {"4:1 unerreichbar"}},
            {"Raum a.lsd\nObjekt x\nRechts\n" + condition + "\nLinks\n" + condition + "\nAblegen\n" + condition,
             {"5:1 unerreichbar", "12:1 unerreichbar"}},
            {"Gegenstand x.bmp\nLinks\n" + condition + "\nAblegen\n" + condition, {}},
        },
        false);
}

TEST(FindingsOf, ItemsThatNobodyTakes) {
    expectAll(
        {
            {"WennParameter RING\nText \"a\"\nEndeWenn", {"4:15 gegenstand-nie-genommen"}},
            {"WennParameter \" x \"\nText \"a\"\nEndeWenn", {}},
            {"WennParameter RING\nText \"a\"\nEndeWenn\nNimmGegenstand \"alt\\ring.jpg\"", {}},
        },
        true);
}

TEST(FindingsOf, SavingWhileTheCountDownRuns) {
    const std::string room = "Raum a.lsd\nStart\n";
    expectAll(
        {
            {room + "CountDownSetzen 5\nSystem Save", {"4:1 speichern"}},
            {room + "CountDownSetzen 5\nCountDownSetzen 0\nSystem Save", {}},
            {room + "System Save\nCountDownSetzen 5", {}},
            {room + "CountDownSetzen 5\nObjekt x\nLinks\nSystem Save", {"6:1 speichern"}},
            {room + "CountDownSetzen 5\nObjekt x\nLinks\nCountDownSetzen 0\nRechts\nSystem Save", {}},
            {room + "WennMerker BÖSE\nCountDownSetzen 5\nBöseÄndern 1\nEndeWenn\nObjekt x\nLinks\nSystem Save", {}},
            {"Raum a.lsd\nCountdown\nSystem Save", {"3:1 speichern"}},
        },
        false);
}

TEST(FindingsOf, TextsThatDoNotFit) {
    // 106 characters of the test's font fit into a line, and 36 lines into the picture.
    const std::string wide(107, 'x');
    expectAll(
        {
            {"Text \"a\"\n\"" + wide + "\"", {"5:1 text-breit"}},
            {"Text \"$C" + wide.substr(1) + "\"", {}},
            {"Text \"   " + wide.substr(1) + "  \"", {}},
            {"Text \"$X\"\n\"a$X\"\n\"$\"", {"4:6 farbmarke", "6:1 farbmarke"}},
            {"Text " + repeated("\"a\"", 36), {}},
            {"Text " + repeated("\"a\"", 37), {"4:1 text-hoch"}},
            {"Auswahl \"a\"\nFall \"b\"\n\"" + wide + "\"\nEndeAuswahl", {"6:1 text-breit"}},
            {"Auswahl \"a\"\n" + repeated("Option \"b\"", 33) + "EndeAuswahl", {}},
            {"Auswahl \"a\"\n" + repeated("Option \"b\"", 34) + "EndeAuswahl", {"4:1 text-hoch"}},
        },
        true);
}

TEST(FindingsOf, FlagsAndItemsOfTheWholeStory) {
    std::string items52;
    for (int i = 0; i < 52; ++i) items52 += "NimmGegenstand \"" + std::to_string(i) + ".bmp\"\n";
    expectAll(
        {
            {"WennMerker A\nEndeWenn\nWennMerker \" a \"\nEndeWenn", {"4:12 merker-nie-gesetzt"}},
            {"SetzeMerker A\nSetzeMerker A", {"4:13 merker-nie-geprueft"}},
            {"SetzeMerker a\nWennMerker A\nEndeWenn", {}},
            {"WennMerker BÖSE\nBöseÄndern 1\nEndeWenn\nSpiel PONG A", {}},
            {"Spiel PONG \"\"", {"4:1 spiel-merker"}},
            {"SetzeMerker A // stumm: merker-nie-geprueft", {}},
            {"// stumm: merker-nie-geprueft weil es noch kommt\n\nSetzeMerker A\nSetzeMerker B",
             {"7:13 merker-nie-geprueft"}},
            {"Text // stumm: argument", {"4:1 argument"}},  // nothing can be built from it
            {items52, {"55:1 gegenstaende", "55:16 gegenstaende"}},
            {items52 + "GibGegenstand \"7.bmp\"", {"55:1 gegenstaende"}},
            {repeated("NimmGegenstand \"a.bmp\"\nGibGegenstand \"a.bmp\"", 60), {}},
        },
        true);
    MemoryFiles files;
    Findings ignored;
    const Story rest = parseSource("Raum b.lsd\nStart\nSetzeMerker A", "b.story", files, ignored);
    EXPECT_EQ(findingsOf(inScript("WennMerker A\nEndeWenn"), nullptr, &rest), Expected{});
}

TEST(FindingsOf, FilesAreSoughtAsTheGameDoes) {
    const zentrox::test::TempDirectory directory;
    for (const char* name :
         {"Graphics/Flur.JPG", "sounds/ja.mp3", "cursors/hand1.ico", "items/ring.bmp", "rooms/tief/c.lsd"})
        directory.write(name, "x");
    const DataFiles data(directory.path());
    const auto found = [&](const std::string& source) {
        expectTheSameOfData(source, &data);
        return findingsOf(source, &data);
    };
    EXPECT_EQ(found("Raum a.lsd\nBild \"alt\\flur.jpg\"\nObjekt x\nZeiger \"HAND1.ICO\"\nLinks\nTon \"JA.wav\"\n"
                    "NimmGegenstand ring.bmp\nRaumwechsel \"tief\\C.lsd\"\nRechts\nRaumwechsel "
                    "A.LSD\nAblegen\nZeigBild\nMusik"),
              Expected{});
    EXPECT_EQ(found("Raum a.lsd\nBild weg.jpg\nObjekt x\nZeiger weg.ico\nLinks\nTon weg.wav\nMusik weg.mid\n"
                    "Film weg.mpg\nNimmGegenstand weg.bmp\nPortrait links weg.jpg\nSetzeZeiger x weg.ico\nZeigBild "
                    "weg.jpg\n"
                    "Raumwechsel c.lsd\nGegenstand weg.bmp"),
              (Expected{"2:6 bild-fehlt", "4:8 zeiger-fehlt", "6:5 ton-fehlt", "7:7 musik-fehlt", "8:6 film-fehlt",
                        "9:16 gegenstand-fehlt", "10:16 bild-fehlt", "11:15 zeiger-fehlt", "12:10 bild-fehlt",
                        "13:13 raum-fehlt", "14:12 gegenstand-fehlt"}));
}

// What the game opens by itself, and what of it can't be used.
TEST(FindingsOf, TheGameAroundTheScripts) {
    const zentrox::test::TempDirectory directory;
    for (const char* name : {"graphics/leer.jpg", "cursors/taste1.ico", "cursors/taste2.ico", "cursors/ge2.ico",
                             "cursors/werfen.ico", "sounds/stumm.mp3", "rooms/Alt.lsd", "games/HDW.txt"})
        directory.write(name, name[0] == 'g' || name[0] == 's' ? "" : "x");
    const DataFiles data(directory.path());
    const auto found = [&](const std::string& source) {
        zentrox::test::FakeFonts fonts;
        MemoryFiles files;
        Findings findings;
        const Story story = parseSource(source, "a.story", files, findings);
        Surroundings around{nullptr, &data, &fonts};
        around.wholeGame = around.fromSources = true;
        check(story, around, findings);
        findings.settle(story);
        Expected lines;
        for (const Finding& f : findings.all()) lines.push_back(std::to_string(f.place.line) + " " + f.code);
        return lines;
    };
    const std::string whole =
        "Raum Start.lsd\nStart\nRaumwechsel b.lsd\nRaum Laden.lsd\nRaum alt.lsd\n"
        "Start\nRaumwechsel Laden.lsd\n";
    EXPECT_EQ(found("Raum a.lsd\nRaum alt.lsd"), (Expected{"1 start-fehlt"}));
    EXPECT_EQ(found("Raum Start.lsd\nRaum alt.lsd\nStart\nRaumwechsel alt.lsd\n"),
              (Expected{"1 laden-fehlt", "2 raum-ohne-weg"}));
    EXPECT_EQ(found(whole + "Raum b.lsd\nStart\nRaumwechsel alt.lsd"), Expected{});
    // Rooms that only lead to each other, and a room that nothing has made since.
    EXPECT_EQ(found("Raum Start.lsd\nRaum Laden.lsd\nRaum b.lsd\nStart\nRaumwechsel c.lsd\nRaum c.lsd\n"
                    "Start\nRaumwechsel b.lsd"),
              (Expected{"1 raum-ohne-quelle", "3 raum-ohne-weg", "6 raum-ohne-weg"}));
    EXPECT_EQ(found(whole + "Raum b.lsd\nObjekt x\nLinks\nTon a.wav\nObjekt y\nStart\nRaumwechsel alt.lsd"),
              (Expected{"9 flaeche-leer", "11 ton-fehlt"}));
    EXPECT_EQ(
        found(whole + "Raum b.lsd\nBild leer.jpg\nStart\nTon stumm.wav\nSpiel HDW A\nWennMerker A\n"
                      "EndeWenn\nSpiel PI A\nSystem Abspann\nRaumwechsel alt.lsd"),
        (Expected{"9 datei-kaputt", "11 datei-kaputt", "15 spiel-datei", "16 abspann-bild", "16 abspann-bild"}));
}

TEST(FindingsOf, TicksInTheWaitsOfWhoArmsThem) {
    const std::string room = "Raum a.lsd\nStart\n";
    expectAll({{room + "CountDownSetzen 5\nText a", {"4:1 countdown-wartet", "4:6 argument"}},
               {room + "CountDownSetzen 5\nText \"a\"\nText \"b\"", {"4:1 countdown-wartet"}},
               {room + "CountDownSetzen 0\nText \"a\"\nCountDownSetzen 5\nTon a.wav", {}},
               {room + "System Sve", {"3:8 system-wort"}},
               {room + "System Ende", {}}},
              false);
}

TEST(FindingsOf, ObjectsThatNoClickReaches) {
    const std::string under = "Raum a.lsd\nObjekt x\nRechteck 100 100 200 200\nObjekt y\n";
    expectAll({{under + "Rechteck 110 110 200 200", {"4:8 verdeckt"}},
               {under + "Rechteck 110 110 210 210", {}},
               {under + "Rechteck 210 110 110 210", {"5:10 ecken"}},
               {under + "Zeiger a.ico", {}},
               {"Raum \"tief\\a.lsd\"", {"1:1 raum-verzeichnis"}}},
              false);
}

TEST(FindingsOf, CompiledData) {
    const auto found = [](const std::string& bytes) {
        Story story;
        Findings findings;
        readRoomData(fromUtf8(bytes), "a.lsd", "a.lsd", story, findings);
        check(story, {}, findings);
        findings.settle(story);
        return asLines(story, findings);
    };
    EXPECT_EQ(found("b.jpg,-1,-1,-1"), "");
    EXPECT_EQ(found("b.jpg\r\n1\r\n2,\"a\"\r\n17,Tür\r\n-1,-1"),
              "a.lsd:4:1: error [objekt]: \"ObjektAn\" nennt \"Tür\"; dieser Raum hat keine Objekte\n");
    EXPECT_EQ(
        found("b.jpg,0\r\n 77,a\r\n-1,0,3,a\"b"),
        "a.lsd:2:2: error [befehl]: einen Befehl mit der Nummer 77 gibt es nicht; es gibt 0 bis 32\n"
        "a.lsd:3:6: warning [merker-nie-geprueft]: der Merker \"A\"B\" wird gesetzt, aber nirgends geprüft; das "
        "täte WennMerker\n"
        "a.lsd:3:6: error [zeichen]: ein Anführungszeichen hat in einem Text keinen Platz; richtig sind „ und “\n");
    EXPECT_EQ(found("b.jpg,-1,-1\n0,\"0\""),
              "a.lsd:2:3: error [datei]: gefunden wurde \"\"0\"\", erwartet war eine Zahl\n");
}

// A finding says what would be right, where that can be guessed.
TEST(FindingsOf, WhatIsMeantPerhaps) {
    const zentrox::test::TempDirectory directory;
    for (const char* name : {"graphics/flur.png", "graphics/bild2.png", "items/ring.bmp"})
        directory.write(name, "x");
    const DataFiles data(directory.path());
    const auto said = [&](const std::string& lines) {
        MemoryFiles files;
        Findings findings;
        const Story story = parseSource(inScript(lines), "a.story", files, findings);
        return asLines(story, checked(story, findings, &data));
    };
    for (const auto& [lines, hint] : std::vector<std::pair<std::string, std::string>>{
             {"Wenn X", "; gemeint ist vielleicht \"WennMerker\" oder \"WennParameter\" oder \"WennGegenstand\"\n"},
             {"SetzeMerkr X", "; gemeint ist vielleicht \"SetzeMerker\"\n"},
             {"Gehe X", "ist kein Befehl; alle Befehle zeigt"},
             {"# Kommentar", "; ein Kommentar beginnt mit //\n"},
             {"ObjektAn Tur", "; dieser Raum hat \"Tür\""},
             {"ObjektAn rote Tür", "hier steht zu viel; mit Leerzeichen steht es in Anführungszeichen\n"},
             {"CountDownSetzen 0,5", "; Brüche schreibt man mit einem Punkt\n"},
             {"Spiel PONK A", "; gemeint ist vielleicht \"PONG\"\n"},
             {"Springe obn\nMarke OBEN", "; gemeint ist vielleicht \"OBEN\"\n"},
             {"ZeigBild flur.jpg", "; gemeint ist vielleicht \"flur.png\"\n"},
             {"ZeigBild bild1.png", "; gesucht wird in graphics\n"},  // another number is another picture
             {"NimmGegenstand ring", "; gemeint ist vielleicht \"ring.bmp\"\n"},
             {"Raumwechsel a", "der Raum \"a\" fehlt; gesucht wird in rooms\n"},
             {"WennMerker OFEN\nEndeWenn\nSetzeMerker OFFEN", "; gemeint ist vielleicht \"OFFEN\"\n"}})
        EXPECT_NE(said(lines).find(hint), std::string::npos) << said(lines);
}

TEST(FindingsOf, SortedAndForMachines) {
    MemoryFiles files;
    files.sources["b.teil"] = "\n  Text x\n";
    Findings findings;
    const Story story =
        parseSource("Raum a.lsd\nStart\nFoo\nEinbinden b.teil\nEinbinden b.teil", "a.story", files, findings);
    findings.settle(story);
    const std::string lines = asLines(story, findings);
    EXPECT_EQ(lines.find("a.story:3:1: error [wort]: \"Foo\""), 0U);
    EXPECT_EQ(lines.find("b.teil:2:8"), lines.rfind("b.teil"));  // twice the same is told once
    const auto list = nlohmann::json::parse(asJson(story, findings));
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0]["file"], "a.story");
    EXPECT_EQ(list[0]["line"], 3);
    EXPECT_EQ(list[0]["column"], 1);
    EXPECT_EQ(list[0]["severity"], "error");
    EXPECT_EQ(list[0]["code"], "wort");
    EXPECT_NE(lines.find(": " + list[0]["message"].get<std::string>() + "\n"), std::string::npos);
    EXPECT_EQ(asJson(story, Findings()), "[]\n");
}

}  // namespace zentrox::story::test
