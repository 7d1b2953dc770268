#include <gtest/gtest.h>

#include <random>

#include "engine/files/fieldreader.h"
#include "engine/files/raumdatei.h"
#include "engine/language/opcodes.h"
#include "platform/values/error.h"
#include "tests/support/temp_directory.h"

namespace zentrox {
namespace {

// A room with every kind of field, one entry a field. Its one object's mask has two cells set.
std::vector<Text> smallRoom() {
    std::vector<Text> felder{"\"bilder\\Keller.jpg\"", "1", "2", "\"Dunkel, und kalt.\"", "31", "\"1.5\"", "0"};
    const std::vector<Text> objekt{"#TRUE#",       "0",      "2",      "\"Eine Tür\"", "#FALSE#", "-1", "1", "-1",
                                   "\"hand.ico\"", "#TRUE#", "\"Tür\""};
    felder.insert(felder.end(), objekt.begin(), objekt.end());
    for (int i = 0; i < Maskenspalten * Maskenzeilen; ++i) felder.emplace_back(i == 0 || i == 100 ? "255" : "0");
    felder.emplace_back("0");
    felder.emplace_back("16");
    felder.emplace_back("\"\"");
    return felder;
}

Text verbunden(const std::vector<Text>& felder, const std::function<Text(std::size_t)>& trenner) {
    Text datei;
    for (std::size_t i = 0; i < felder.size(); ++i) datei += felder[i] + trenner(i);
    return datei;
}

void expectSmallRoom(const Raum& raum) {
    EXPECT_EQ(raum.Bild, "bilder\\Keller.jpg");
    EXPECT_EQ(raum.Startskript.Befehl, (std::vector<std::int32_t>{2, 31}));
    EXPECT_EQ(raum.Startskript.Argument, (std::vector<Text>{"Dunkel, und kalt.", "1.5"}));
    ASSERT_EQ(raum.LetztesObjekt, 0);
    const RaumObjekt& objekt = raum.Objekte.at(0);
    EXPECT_EQ(objekt.HatSkript, (std::array{true, false, true}));
    EXPECT_EQ(objekt.Aktion[0].Letzter, 0);
    EXPECT_EQ(objekt.Aktion[1].Letzter, -1);
    EXPECT_EQ(objekt.Zeiger, "hand.ico");
    EXPECT_TRUE(objekt.Aktiv);
    EXPECT_EQ(objekt.Name, "Tür");
    Maske maske;
    maske.set(0, 0, true);
    maske.set(100 / Maskenzeilen, 100 % Maskenzeilen, true);
    EXPECT_EQ(objekt.Maske, maske);
    EXPECT_EQ(raum.CountDownSkript.Befehl, (std::vector<std::int32_t>{16}));
}

TEST(RoomFile, LinesCarryNoMeaning) {
    const auto felder = smallRoom();
    std::mt19937 chance(7);
    const std::vector<Text> alle{",", "\r\n", "\n", "\r", ", ", " ,", "  \r\n ", "\t,"};
    for (const Text& trenner : alle) {
        SCOPED_TRACE(testing::PrintToString(trenner));
        expectSmallRoom(parseRoom(verbunden(felder, [&](std::size_t) { return trenner; }), "x"));
    }
    for (int i = 0; i < 20; ++i)
        expectSmallRoom(
            parseRoom(verbunden(felder, [&](std::size_t) { return alle[chance() % alle.size()]; }), "x"));
    // The last field needs no separator behind it.
    expectSmallRoom(
        parseRoom(verbunden(felder, [&](std::size_t i) { return i + 1 == felder.size() ? "" : "\r\n"; }), "x"));
}

TEST(RoomFile, ARoomWithoutObjectsAndScriptsIsFourFields) {
    const Raum raum = parseRoom("leer.jpg\r\n-1\r\n-1\r\n-1\r\n", "x");
    EXPECT_EQ(raum.Bild, "leer.jpg");
    EXPECT_EQ(raum.Startskript.Letzter, -1);
    EXPECT_EQ(raum.LetztesObjekt, -1);
    EXPECT_TRUE(raum.Objekte.empty());
}

TEST(RoomFile, ALongPictureNameIsCut) {
    const Raum raum = parseRoom("\" " + Text(98, 'b') + " x\",-1,-1,-1", "x");
    EXPECT_EQ(raum.Bild, Text(98, 'b'));
    EXPECT_EQ(parseRoom(Text(150, 'b') + ",-1,-1,-1", "x").Bild, Text(100, 'b'));
}

TEST(RoomFile, OnlyTheValue255SetsACell) {
    auto felder = smallRoom();
    const std::size_t maske = felder.size() - 3 - Maskenspalten * Maskenzeilen;
    struct Case {
        const char* feld;
        bool gesetzt;
    };
    const std::vector<Case> cases{{"1", false},    {"254", false},  {"255", true},   {"256", false},
                                  {"2550", false}, {"+255", true},  {"-255", false}, {"0255", true},
                                  {"", false},     {" 255 ", true}, {"25", false},   {"2147483647", false}};
    for (std::size_t i = 0; i < cases.size(); ++i) felder[maske + 5 + i] = cases[i].feld;
    const Raum raum = parseRoom(verbunden(felder, [](std::size_t) { return ","; }), "x");
    for (std::size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(raum.Objekte[0].Maske.at(0, 5 + static_cast<int>(i)), cases[i].gesetzt) << cases[i].feld;
    // Blanks alone part numbers as well.
    const Text leer = verbunden(smallRoom(), [](std::size_t i) { return i < 18 || i > 3000 ? "," : "  "; });
    expectSmallRoom(parseRoom(leer, "x"));
}

TEST(Fields, TextsAndTruths) {
    struct Case {
        const char* datei;
        const char* text;
    };
    for (const Case& c : {
             Case{"\"a, b\"\r\n", "a, b"},
             Case{"\" a \"", " a "},
             Case{"  bar text  ,", "bar text"},
             Case{",", ""},
             Case{"\r\n", ""},
             Case{"\"a\" rest \"x\",", "a"},
             Case{"a \"b\" c\n", "a \"b\" c"},
             Case{"\"zwei\r\nZeilen\"", "zwei\r\nZeilen"},
             Case{"#TRUE#", "#TRUE#"},
         }) {
        FieldReader in(c.datei, "x");
        EXPECT_EQ(in.readText(), c.text) << c.datei;
    }
    FieldReader in("#TRUE#,#FALSE#\r\n1,0,-1,,#true# #False# ,7", "x");
    for (const bool erwartet : {true, false, true, false, true, false, true, false, true})
        EXPECT_EQ(in.readTruth(), erwartet);
    FieldReader numbers("5,,-7 +8 ,\r\n9\n\n", "x");
    for (const std::int32_t erwartet : {5, 0, -7, 8, 0, 9, 0}) EXPECT_EQ(numbers.readNumber(), erwartet);
}

Text meldung(const std::function<void()>& lesen) {
    try {
        lesen();
    } catch (const DataError& error) {
        return toUtf8(error.message());
    }
    return "no error";
}

TEST(Readers, AListBelowMinusOneIsEmptyAndTheLastTextMayBe) {
    const Raum raum = parseRoom("a.jpg,-2,-7,0,31,", "x");
    EXPECT_EQ(raum.Startskript.Letzter, -1);
    EXPECT_EQ(raum.LetztesObjekt, -1);
    EXPECT_TRUE(raum.Objekte.empty());
    EXPECT_EQ(raum.CountDownSkript.Argument, (std::vector<Text>{""}));
    EXPECT_EQ(parseSkript("1,10,,10, ", "x").Argument, (std::vector<Text>{"", ""}));
    EXPECT_THROW(parseSkript("1,10,", "x"), DataError) << "one empty text, not all that is missing";
    EXPECT_THROW(parseSkript("0,10\r\n", "x"), DataError);
}

TEST(BadFiles, MessagesNameTheFileTheFieldAndTheLine) {
    const auto raum = [](const Text& datei) { return meldung([&] { parseRoom(datei, "rooms\\Keller.lsd"); }); };
    EXPECT_EQ(raum(""),
              "Raumdatei rooms\\Keller.lsd: Feld 1 (Zeile 1): hier endet die Datei, erwartet war ein Text");
    EXPECT_EQ(raum("a.jpg\r\n-1\r\n-1\r\n"),
              "Raumdatei rooms\\Keller.lsd: Feld 4 (Zeile 4): hier endet die Datei, erwartet war eine Zahl");
    EXPECT_EQ(raum("a.jpg,-1\nviele,-1"),
              "Raumdatei rooms\\Keller.lsd: Feld 3 (Zeile 2): gefunden wurde \"viele\", erwartet war eine Zahl");
    EXPECT_EQ(raum("a.jpg\r-1\r-1\r2147483648"),
              "Raumdatei rooms\\Keller.lsd: Feld 4 (Zeile 4): die Zahl 2147483648 ist zu groß oder zu klein");
    EXPECT_EQ(
        raum("a.jpg,-1,2147483647,1,2,3"),
        "Raumdatei rooms\\Keller.lsd: Feld 3 (Zeile 1): der letzte Index 2147483647 passt nicht in die Datei, "
        "so viel steht nicht mehr darin");
    EXPECT_EQ(raum("\"a.jpg,-1,-1,-1"),
              "Raumdatei rooms\\Keller.lsd: Feld 1 (Zeile 1): dem Text fehlt das schließende Anführungszeichen");
    EXPECT_EQ(meldung([] { parseSkript("0,3\x01", "items\\x0.skp"); }),
              "Skriptdatei items\\x0.skp: Feld 2 (Zeile 1): gefunden wurde \"3?\", erwartet war eine Zahl");
    EXPECT_EQ(meldung([] { FieldReader("WAHR,1", "x").readTruth(); }),
              "x: Feld 1 (Zeile 1): gefunden wurde \"WAHR\", erwartet war #TRUE#, #FALSE# oder eine Zahl");
    EXPECT_EQ(meldung([] { FieldReader("#MAYBE#", "x").readTruth(); }),
              "x: Feld 1 (Zeile 1): gefunden wurde \"#MAYBE#\", erwartet war #TRUE#, #FALSE# oder eine Zahl");
    for (const char* noNumber : {"-", "+", "+-5", "- 5", "5a", "0x1F", "\"5\"", "1.5", "#TRUE#"})
        EXPECT_NE(meldung([&] { FieldReader(noNumber, "x").readNumber(); }), "no error") << noNumber;
}

TEST(BadFiles, AMaskIsCountedToo) {
    auto felder = smallRoom();
    felder[18 + 1000] = "x";
    EXPECT_EQ(meldung([&] { parseRoom(verbunden(felder, [](std::size_t) { return "\r\n"; }), "x"); }),
              "Raumdatei x: Feld 1019 (Zeile 1019): gefunden wurde \"x\", erwartet war eine Zahl");
}

// A cut file is an error wherever it is cut, but where only the end of the last field is gone.
TEST(BadFiles, EveryCutOfARoomIsAnError) {
    for (const char* trenner : {",", "\r\n"}) {
        const Text whole = verbunden(smallRoom(), [&](std::size_t) { return trenner; });
        const std::size_t complete = whole.rfind("\"\"") + 2;
        for (std::size_t cut = 0; cut < whole.size(); ++cut) {
            // A copy of exactly this size, so that a read behind its end is seen.
            const std::vector<char> bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(cut));
            const bool failed = meldung([&] { parseRoom({bytes.data(), bytes.size()}, "x"); }) != "no error";
            // Behind a comma the last text may be left out, which is empty.
            const bool wholeWithout = *trenner == ',' && cut == complete - 2;
            EXPECT_EQ(failed, cut < complete && !wholeWithout) << cut;
        }
    }
}

TEST(BadFiles, RandomBytesNeverCrash) {
    std::mt19937 chance(11);
    const Text whole = verbunden(smallRoom(), [](std::size_t) { return ","; });
    const TextView zeichen = "0123456789-+ ,\r\n\"#TRUEFALS\t.x\0\xFF";
    for (int runde = 0; runde < 4000; ++runde) {
        Text datei = whole.substr(0, chance() % 2 == 0 ? 120 : whole.size());
        for (auto n = chance() % 20; n > 0; --n)
            datei[chance() % std::min<std::size_t>(datei.size(), 200)] = zeichen[chance() % zeichen.size()];
        if (runde % 4 == 0)
            for (char& c : datei) c = static_cast<char>(chance());
        const std::vector<char> bytes(datei.begin(), datei.end());
        meldung([&] { parseRoom({bytes.data(), bytes.size()}, "x"); });
        meldung([&] { parseSkript({bytes.data(), bytes.size()}, "x"); });
    }
}

TEST(ScriptFile, AMissingFileIsAnEmptyScriptOrARefusal) {
    const test::TempDirectory directory;
    const Files files(directory.path());
    const Text items = files.programDirectory() + "items\\";
    EXPECT_EQ(LadeSkript(files, items + "ball0.skp").Letzter, -1);
    EXPECT_EQ(LadeSkript(files, items + "ball2.SKP").Letzter, -1) << "the case of the name counts";
    const Skript absage = LadeSkript(files, items + "ball2.skp");
    ASSERT_EQ(absage.Letzter, 0);
    EXPECT_EQ(absage.Befehl.at(0), "Fehlerton"_op);

    directory.write("items/ball2.skp", "-1");
    EXPECT_EQ(LadeSkript(files, items + "ball2.skp").Letzter, -1);
    directory.write("items/ball0.skp", "0\r\n2\r\n\"Ein Ball.\"\r\n");
    EXPECT_EQ(LadeSkript(files, items + "ball0.skp").Argument.at(0), "Ein Ball.");
    directory.write("items/ball1.skp", "");
    EXPECT_EQ(meldung([&] { LadeSkript(files, items + "ball1.skp"); }),
              "Skriptdatei items\\ball1.skp: Feld 1 (Zeile 1): hier endet die Datei, erwartet war eine Zahl");
    EXPECT_NE(meldung([&] { readRoom(files, items + "gibtsnicht.lsd"); }).find("items\\gibtsnicht.lsd"),
              Text::npos);
}

}  // namespace
}  // namespace zentrox
