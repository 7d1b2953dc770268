// The forms that the compiler turns into plain commands, held against the plain commands.
#include <algorithm>

#include "engine/language/opcodes.h"
#include "story_support.h"

namespace zentrox::story::test {

namespace {

constexpr const char* people = R"(
Person Balduin
    Portrait links "balduin.jpg"
    Farbe 7
    Stimme "balduin"
Person Frau Orlix
    Portrait links "orlix.jpg"
    Farbe D
Person Velmix
    Spieler
    Portrait rechts "velmix.jpg"
    Stimme "velmix"
Person Funk
    Farbe a
Gegenstand "muenze.bmp" heißt MÜNZE
Gegenstand "seil.bmp"
Skriptteil HEIMWEG
    Marke NOCHMAL
    Text "Heim."
    Rufe TÜR
    WennMerker MÜDE
        Springe NOCHMAL
    EndeWenn
Skriptteil TÜR
    Ton "tuer.wav"
)";

std::string inRoom(const std::string& script) {
    return "Raum \"Hof.lsd\"\nObjekt \"Tür\"\nAblegen\n" + script;
}

const Skript& dropScript(const Story& story) {
    return story.rooms.at(0).room.Objekte.at(0).Aktion[2];
}

std::string asText(const Skript& script) {
    std::string out;
    for (std::size_t i = 0; i < script.Befehl.size(); ++i) {
        const Opcode* const row = findOpcode(script.Befehl[i]);
        out += (row ? toUtf8(row->name) : "?") + " " + toUtf8(script.Argument[i]) + "\n";
    }
    return out;
}

struct Form {
    const char* name;
    const char* sugar;
    const char* plain;
};

const std::vector<Form> forms{
    {"one condition is what it was", "WennMerker A\nText \"t\"\nSonst\nText \"e\"\nEndeWenn",
     "WennMerker A\nText \"t\"\nSonst\nText \"e\"\nEndeWenn"},
    {"words that are names", "WennMerker nicht\nEndeWenn\nWennMerker \"und\"\nEndeWenn\nSetzeMerker oder",
     "WennMerker \"nicht\"\nEndeWenn\nWennMerker \"und\"\nEndeWenn\nSetzeMerker oder"},
    {"not", "WennMerker nicht A\nText \"t\"\nEndeWenn", "WennMerker A\nSonst\nText \"t\"\nEndeWenn"},
    {"not, and else", "WennMerker nicht A\nText \"t\"\nSonst\nText \"e\"\nEndeWenn",
     "WennMerker A\nText \"e\"\nSonst\nText \"t\"\nEndeWenn"},
    {"and", "WennMerker A und nicht B\nText \"t\"\nEndeWenn",
     "WennMerker A\nWennMerker B\nSonst\nText \"t\"\nEndeWenn\nEndeWenn"},
    {"and, else", "WennMerker A und B\nText \"t\"\nSonst\nText \"e\"\nEndeWenn",
     "WennMerker A\nWennMerker B\nText \"t\"\nSpringe \"~1\"\nEndeWenn\nEndeWenn\nText \"e\"\nMarke \"~1\""},
    {"or", "WennMerker A oder B\nText \"t\"\nEndeWenn",
     "WennMerker A\nSpringe \"~2\"\nEndeWenn\nWennMerker B\nSpringe \"~2\"\nEndeWenn\nSpringe \"~1\"\nMarke "
     "\"~2\"\n"
     "Text \"t\"\nMarke \"~1\""},
    {"else if", "WennMerker A\nText \"a\"\nSonstWenn nicht B\nText \"b\"\nSonst\nText \"c\"\nEndeWenn",
     "WennMerker A\nText \"a\"\nSonst\nWennMerker B\nText \"c\"\nSonst\nText \"b\"\nEndeWenn\nEndeWenn"},
    {"lists of flags", "SetzeMerker A, B C\nLöscheMerker A B",
     "SetzeMerker A\nSetzeMerker B\nSetzeMerker C\nLöscheMerker A\nLöscheMerker B"},
    {"an item that is carried",
     "NimmGegenstand MÜNZE\nWennGegenstand MÜNZE\nGibGegenstand MÜNZE\nEndeWenn\nNimmGegenstand \"seil.bmp\"",
     "NimmGegenstand \"muenze.bmp\"\nSetzeMerker \"GEGENSTAND MUENZE\"\nWennMerker \"GEGENSTAND MUENZE\"\n"
     "GibGegenstand \"muenze.bmp\"\nLöscheMerker \"GEGENSTAND MUENZE\"\nEndeWenn\nNimmGegenstand \"seil.bmp\""},
    {"kinds of names",
     "WennMerker A und Gegenstand SEIL oder Parameter MÜNZE\nText \"t\"\nEndeWenn\nGibGegenstand seil.bmp",
     "WennMerker A\nWennMerker \"GEGENSTAND SEIL\"\nSpringe \"~2\"\nEndeWenn\nEndeWenn\nWennParameter "
     "MUENZE\nSpringe \"~2\"\n"
     "EndeWenn\nSpringe \"~1\"\nMarke \"~2\"\nText \"t\"\nMarke \"~1\"\nGibGegenstand seil.bmp\nLöscheMerker "
     "\"GEGENSTAND SEIL\""},
    {"what is dropped", "Bei MÜNZE\nText \"m\"\nBei KANNE, SEIL\nText \"k\"",
     "WennParameter MUENZE\nText \"m\"\nSonst\nWennParameter KANNE\nSpringe \"~2\"\nEndeWenn\nWennParameter "
     "SEIL\nSpringe \"~2\"\n"
     "EndeWenn\nFehlerton\nSpringe \"~1\"\nMarke \"~2\"\nText \"k\"\nMarke \"~1\"\nEndeWenn"},
    {"what is dropped, inside",
     "WennMerker A\nBei SEIL\nText \"s\"\nSonst\nText \"e\"\nEndeBei\nSonst\nText \"z\"\nEndeWenn",
     "WennMerker A\nWennParameter SEIL\nText \"s\"\nSonst\nText \"e\"\nEndeWenn\nSonst\nText \"z\"\nEndeWenn"},
    {"a line", "Frau Orlix: \"Ja.\" \"$ENein.\" \"Doch.\"\nFunk: \"Rausch\"",
     "Text \"$DJa.\" \"$ENein.\" \"$DDoch.\"\nText \"$ARausch\""},
    {"a voice", "Velmix: \"Hm.\"\nBalduin: \"So.\"\nVelmix: \"Hm.\"\nVelmix: \"Aha.\"",
     "Ton \"velmix-hof-01.wav\"\nText \"Hm.\"\nTon \"balduin-hof-01.wav\"\nText \"$7So.\"\nTon "
     "\"velmix-hof-01.wav\"\nText \"Hm.\"\n"
     "Ton \"velmix-hof-02.wav\"\nText \"Aha.\""},
    {"a talk",
     "Gespräch\nFrau Orlix: \"a\"\nText \"b\"\nWennMerker X\nBalduin: \"c\"\nEndeWenn\nFunk: "
     "\"d\"\nRahmenZu\nFunk: \"e\"\n"
     "EndeGespräch",
     "RahmenAuf\nPortrait links \"orlix.jpg\"\nPortrait rechts \"velmix.jpg\"\nText \"$Da\"\nPortrait links "
     "\"orlix.jpg\"\n"
     "Portrait rechts \"velmix.jpg\"\nText \"b\"\nWennMerker X\nPortrait links \"balduin.jpg\"\nPortrait rechts "
     "\"velmix.jpg\"\n"
     "Ton \"balduin-hof-01.wav\"\nText \"$7c\"\nEndeWenn\nPortrait links \"orlix.jpg\"\nPortrait rechts "
     "\"velmix.jpg\"\n"
     "Text \"$Ad\"\nRahmenZu\nText \"$Ae\"\nRahmenZu"},
    {"a talk without faces", "Gespräch\nFunk: \"a\"\nText \"b\"\nEndeGespräch", "Text \"$Aa\"\nText \"b\""},
    {"a question",
     "Frage \"Und?\"\nAntwort \"A\"\nText \"a\"\nAntwort \"B\" \"C\"\nRaumwechsel b.lsd\nSchluss \"Z\"\nText "
     "\"z\"\nEndeFrage\n"
     "Text \"nach\"",
     "Marke \"~1\"\nAuswahl \"Und?\"\nFall \"A\"\nText \"a\"\nSpringe \"~1\"\nFall \"B\" \"C\"\nRaumwechsel "
     "b.lsd\nFall \"Z\"\n"
     "Text \"z\"\nEndeAuswahl\nText \"nach\""},
    {"only closing answers", "Frage \"Und?\"\nSchluss \"A\"\nText \"a\"\nSchluss \"B\"",
     "Auswahl \"Und?\"\nFall \"A\"\nText \"a\"\nFall \"B\"\nEndeAuswahl"},
    {"answers that come and go",
     "Frage \"Und?\"\nAntwort \"A\" einmal\nText \"a\"\nAntwort \"B\" wenn nicht X\nSchluss \"Z\"",
     "Marke \"~1\"\nWennMerker \"EINMAL HOF: A\"\n"
     "WennMerker X\nAuswahl \"Und?\"\nFall \"Z\"\nSpringe \"~5\"\nEndeAuswahl\n"
     "Sonst\nAuswahl \"Und?\"\nFall \"B\"\nSpringe \"~4\"\nFall \"Z\"\nSpringe \"~5\"\nEndeAuswahl\nEndeWenn\n"
     "Sonst\nWennMerker X\nAuswahl \"Und?\"\nFall \"A\"\nSpringe \"~3\"\nFall \"Z\"\nSpringe \"~5\"\nEndeAuswahl\n"
     "Sonst\nAuswahl \"Und?\"\nFall \"A\"\nSpringe \"~3\"\nFall \"B\"\nSpringe \"~4\"\nFall \"Z\"\nSpringe "
     "\"~5\"\nEndeAuswahl\n"
     "EndeWenn\nEndeWenn\n"
     "Marke \"~3\"\nSetzeMerker \"EINMAL HOF: A\"\nText \"a\"\nSpringe \"~1\"\nMarke \"~4\"\nSpringe \"~1\"\nMarke "
     "\"~5\"\nMarke \"~2\""},
    {"nothing left to say", "Frage \"Und?\"\nAntwort \"A\" einmal\nText \"a\"\nEndeFrage",
     "Marke \"~1\"\nWennMerker \"EINMAL HOF: A\"\nSpringe \"~2\"\nSonst\nAuswahl \"Und?\"\nFall \"A\"\nSpringe "
     "\"~3\"\nEndeAuswahl\n"
     "EndeWenn\nMarke \"~3\"\nSetzeMerker \"EINMAL HOF: A\"\nText \"a\"\nSpringe \"~1\"\nMarke \"~2\""},
    {"a part, twice", "Rufe HEIMWEG\nRufe heimweg",
     "Marke \"~1 NOCHMAL\"\nText \"Heim.\"\nTon \"tuer.wav\"\nWennMerker MÜDE\nSpringe \"~1 NOCHMAL\"\nEndeWenn\n"
     "Marke \"~2 NOCHMAL\"\nText \"Heim.\"\nTon \"tuer.wav\"\nWennMerker MÜDE\nSpringe \"~2 NOCHMAL\"\nEndeWenn"},
};

}  // namespace

TEST(Forms, AreThePlainCommandsThatThePageNames) {
    for (const Form& form : forms) {
        const Story sugar = compiled(people + inRoom(form.sugar));
        const Story plain = compiled(inRoom(form.plain));
        EXPECT_EQ(asText(dropScript(sugar)), asText(dropScript(plain))) << form.name;
    }
}

TEST(Forms, ThingsThatCanBeTaken) {
    const Story sugar = compiled(
        "Raum \"Hof.lsd\"\nObjekt \"Münze\" einsteckbar MÜNZE\nRechts\nText \"r\"\n"
        "Objekt \"Seil\" einsteckbar \"seil.bmp\" Merker SEIL_FORT\nLinks\nText \"l\"\n"
        "Raum \"b.lsd\"\nStart\nText \"s\"\nObjekt \"Ball\" einsteckbar \"ball.bmp\"\n"
        "Gegenstand \"muenze.bmp\" heißt MÜNZE\n");
    const Story plain = compiled(
        "Raum \"Hof.lsd\"\nStart\nWennMerker \"GENOMMEN HOF: MÜNZE\"\nObjektAus \"Münze\"\nEndeWenn\nWennMerker "
        "SEIL_FORT\n"
        "ObjektAus \"Seil\"\nEndeWenn\nObjekt \"Münze\"\nRechts\nText \"r\"\nLinks\nSetzeMerker \"GENOMMEN HOF: "
        "MÜNZE\"\n"
        "NimmGegenstand \"muenze.bmp\"\nObjektAus \"Münze\"\nObjekt \"Seil\"\nLinks\nSetzeMerker SEIL_FORT\n"
        "NimmGegenstand \"seil.bmp\"\nObjektAus \"Seil\"\nText \"l\"\n"
        "Raum \"b.lsd\"\nStart\nWennMerker \"GENOMMEN B: BALL\"\nObjektAus \"Ball\"\nEndeWenn\nText \"s\"\nObjekt "
        "\"Ball\"\nLinks\n"
        "SetzeMerker \"GENOMMEN B: BALL\"\nNimmGegenstand \"ball.bmp\"\nObjektAus \"Ball\"\n");
    EXPECT_EQ(filesOf(sugar), filesOf(plain));
}

TEST(Forms, ThingsThatMakeAThirdOne) {
    const Story sugar = compiled(
        "Kombiniere SEIL \"haken.bmp\" ergibt \"seilhaken.bmp\"\nText \"Fest.\"\n"
        "Kombiniere SEIL BALL ergibt \"pendel.bmp\"\n"
        "Gegenstand \"seil.bmp\"\nRechts\nText \"Ein Seil.\"\nAblegen\nText \"Nein.\"\nGegenstand \"ball.bmp\"\n");
    const Story plain = compiled(
        "Gegenstand \"seil.bmp\"\nRechts\nText \"Ein Seil.\"\nAblegen\n"
        "WennParameter HAKEN\nGibGegenstand \"seil.bmp\"\nGibGegenstand \"haken.bmp\"\nNimmGegenstand "
        "\"seilhaken.bmp\"\n"
        "Text \"Fest.\"\nSonst\nWennParameter BALL\nGibGegenstand \"seil.bmp\"\nGibGegenstand \"ball.bmp\"\n"
        "NimmGegenstand \"pendel.bmp\"\nSonst\nText \"Nein.\"\nEndeWenn\nEndeWenn\n"
        "Gegenstand \"haken.bmp\"\nAblegen\nWennParameter SEIL\nGibGegenstand \"seil.bmp\"\nGibGegenstand "
        "\"haken.bmp\"\n"
        "NimmGegenstand \"seilhaken.bmp\"\nText \"Fest.\"\nSonst\nFehlerton\nEndeWenn\n"
        "Gegenstand \"ball.bmp\"\nAblegen\nWennParameter SEIL\nGibGegenstand \"seil.bmp\"\nGibGegenstand "
        "\"ball.bmp\"\n"
        "NimmGegenstand \"pendel.bmp\"\nSonst\nFehlerton\nEndeWenn\n");
    EXPECT_EQ(filesOf(sugar), filesOf(plain));
}

// A recording never comes to speak another line.
TEST(Voices, StayWithTheirLines) {
    const std::string head = "Person A\nStimme \"a\"\nRaum \"r.lsd\"\nStart\n";
    MemoryFiles files;
    const auto spoken = [&](const std::string& script) {
        const Story story = compiled(head + script, files);
        files.sources[story.voiceTable.path.generic_string()] = story.voiceTable.text;
        std::string voices;
        for (const StoryRoom& room : story.rooms)
            for (std::size_t i = 0; i < room.room.Startskript.Befehl.size(); ++i)
                if (room.room.Startskript.Befehl[i] == "Ton"_op)
                    voices += room.room.Startskript.Argument[i] + room.room.Startskript.Argument[i + 1] + " ";
        return voices;
    };
    EXPECT_EQ(spoken("A: \"eins\"\nA: \"zwei\""), "a-r-01.waveins a-r-02.wavzwei ");
    EXPECT_EQ(spoken("A: \"null\"\nA: \"eins\"\nA: \"zwei\""), "a-r-03.wavnull a-r-01.waveins a-r-02.wavzwei ");
    EXPECT_EQ(spoken("A: \"zwei\"\nRaum \"s.lsd\"\nStart\nA: \"eins\""), "a-r-02.wavzwei a-r-01.waveins ");
    EXPECT_EQ(spoken("A: \"zwo\"\nA: \"null\""), "a-r-04.wavzwo a-r-03.wavnull ");  // no number is given twice
    EXPECT_EQ(spoken("A: \"zwei\"\nRaum \"s.lsd\"\nStart\nA: \"neu\""), "a-r-02.wavzwei a-s-01.wavneu ");
}

TEST(Forms, WhatIsWrongWithThem) {
    const auto found = [](const std::string& script) {
        Findings findings;
        MemoryFiles files;
        const Story story =
            parseSource(people + std::string("Raum r.lsd\nStart\n") + script, "a.story", files, findings);
        checkForBuild(story, findings);
        findings.settle(story);
        const int before =
            static_cast<int>(std::count(people, people + std::char_traits<char>::length(people), '\n')) + 2;
        std::string all;
        for (const Finding& f : findings.all())
            all +=
                std::to_string(f.place.line - before) + ":" + std::to_string(f.place.column) + " " + f.code + " ";
        return all;
    };
    const std::vector<std::pair<std::string, std::string>> wrong{
        {"WennMerker A und\nEndeWenn", "1:1 bedingung "},
        {"WennMerker A oder und B\nEndeWenn", "1:19 bedingung "},
        {"WennMerker A B\nEndeWenn", "1:14 argument "},
        {"WennGegenstand\nEndeWenn", "1:1 bedingung "},
        {"WennMerker A und B", "1:1 block "},
        {"SonstWenn A", "1:1 block "},
        {"WennMerker A\nSonst\nSonstWenn B\nEndeWenn", "3:1 block "},
        {"WennMerker A\nBei SEIL\nText \"a\"\nEndeWenn", "2:1 block "},
        {"Bei\nText \"a\"", "1:1 block "},
        {"EndeBei\nEndeFrage\nEndeGespräch\nAntwort \"a\"", "1:1 block 2:1 block 3:1 block 4:1 block "},
        {"Gespräch\nVelmix: \"a\"", "1:1 block "},
        {"Frage \"a\"\nText \"b\"\nSchluss \"c\"", "2:1 block "},
        {"Frage \"a\"\nAntwort \"b\"", "1:1 frage "},
        {"Frage \"a\"\nAntwort \"b\" immer\nSchluss \"c\"", "2:13 argument "},
        {"Welmix: \"a\"", "1:1 person "},
        {"Velmix: a", "1:9 argument "},
        {"Rufe HEIM", "1:6 skriptteil "},
        {"Skriptteil X\nRufe Y\nSkriptteil Y\nRufe X\nRaum s.lsd\nStart\nRufe X", "4:1 skriptteil "},
        {"Kombiniere SEIL HAKE ergibt b.bmp", "1:17 gegenstand "},
        {"Person Velmix\nFarbe 77", "1:1 doppelt 2:1 argument "},
        {"Gegenstand \"x.bmp\" heißt MÜNZE", "1:26 doppelt "},
    };
    for (const auto& [script, expected] : wrong) EXPECT_EQ(found(script), expected) << script;
}

}  // namespace zentrox::story::test
