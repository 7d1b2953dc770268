// What each command asks of the room window, of the sound device, and what it leaves in the state.
#include "engine/state/merker.h"
#include "platform/values/error.h"
#include "platform/values/keys.h"
#include "tests/engine/engine_fixture.h"

namespace zentrox {
namespace {

using Notizen = std::vector<Text>;

class Commands : public test::EngineTest {
protected:
    Text sounds(TextView datei) const { return z.PfadSounds + Text(datei); }
    void objekte(const std::vector<TextView>& namen) {
        z.AktuellerRaum.Objekte.resize(namen.size());
        for (std::size_t i = 0; i < namen.size(); ++i) z.AktuellerRaum.Objekte[i].Name = namen[i];
        z.AktuellerRaum.LetztesObjekt = static_cast<std::int32_t>(namen.size()) - 1;
    }
    Notizen inventar() const { return {z.Inventar.begin(), z.Inventar.begin() + z.InventarLetzter + 1}; }
};

TEST(OpcodeTable, EachRowStandsAtItsNumber) {
    for (std::size_t i = 0; i < OpcodeAnzahl; ++i) {
        const Opcode& row = opcodes()[i];
        EXPECT_EQ(row.number, static_cast<std::int32_t>(i));
        EXPECT_EQ(findOpcode(row.name), &row);
    }
    EXPECT_EQ(findOpcode(-1), nullptr);
    EXPECT_EQ(findOpcode(33), nullptr);
    EXPECT_EQ(findOpcode("text"), nullptr);
    static_assert("BöseÄndern"_op == 22);
}

// What the interpreter, the compiler and its checks need to agree on.
TEST(OpcodeTable, TellsBlocksWaitsAndFiles) {
    Text blocks;
    Text waiting;
    Text files;
    for (const Opcode& row : opcodes()) {
        if (row.role != Role::plain) blocks += Text(row.name) + " ";
        if (waits(row, "")) waiting += Text(row.name) + " ";
        if (row.datei.ordner != Ordner::keiner)
            files += Text(row.name) + " " + Text(verzeichnis(row.datei.ordner)) + " ";
        EXPECT_EQ(row.role == Role::plain, row.block == Block::none) << row.number;
    }
    EXPECT_EQ(blocks, "WennMerker WennParameter Sonst EndeWenn Auswahl Fall EndeAuswahl ");
    EXPECT_EQ(waiting, "Text Film ZoomIN ZoomOUT RahmenAuf Auswahl System ");
    EXPECT_EQ(files,
              "Ton sounds Raumwechsel rooms ZeigBild graphics NimmGegenstand items GibGegenstand items Film movies "
              "SetzeZeiger cursors Musik musics Portrait graphics ");
    for (const auto& [command, argument, expected] :
         std::initializer_list<std::tuple<TextView, TextView, bool>>{{"Spiel", " pong ,M", true},
                                                                     {"Spiel", "TENNIS,M", false},
                                                                     {"Blende", "2", true},
                                                                     {"Blende", "3", false}})
        EXPECT_EQ(waits(*findOpcode(command), argument), expected) << command << argument;
}

TEST_F(Commands, ItemsComeAndGo) {
    EXPECT_EQ(
        notizen(
            {{"NimmGegenstand", "x\\ball.bmp"}, {"NimmGegenstand", "Seil.bmp"}, {"NimmGegenstand", "ball.bmp"}}),
        Notizen(3, "GegenstaendeLaden"));
    EXPECT_EQ(inventar(), (Notizen{"i\\ball.bmp", "i\\Seil.bmp", "i\\ball.bmp"}));
    execute({{"GibGegenstand", "y\\BALL.bmp"}});
    EXPECT_EQ(inventar(), (Notizen{"i\\ball.bmp", "i\\Seil.bmp"})) << "of two equal ones the last one goes";
    EXPECT_EQ(z.Inventar[2], "");
    raum.notes.clear();
    EXPECT_EQ(notizen({{"GibGegenstand", "hut.bmp"}}), Notizen{"GegenstaendeLaden"});
    execute({{"GibGegenstand", "ball.bmp"}});
    EXPECT_EQ(inventar(), Notizen{"i\\Seil.bmp"});
    EXPECT_EQ(z.Inventar[1], "");
    execute({{"GibGegenstand", "seil.BMP"}, {"GibGegenstand", "seil.BMP"}});
    EXPECT_EQ(z.InventarLetzter, -1);
}

TEST_F(Commands, TheInventoryIsFullAt51) {
    for (int i = 0; i < 60; ++i) execute({{"NimmGegenstand", "g" + std::to_string(i)}});
    EXPECT_EQ(z.InventarLetzter, 50);
    EXPECT_EQ(z.Inventar[50], "i\\g50");
    execute({{"GibGegenstand", "g50"}});
    EXPECT_EQ(z.InventarLetzter, 49);
}

TEST_F(Commands, ObjectsAreFoundByTheirNames) {
    objekte({"Tür"_t, " TÜR "_t, "Fenster", "tür"_t});
    execute({{"ObjektAn", "tür"_t}});
    const auto aktive = [&] {
        Text alle;
        for (const RaumObjekt& o : z.AktuellerRaum.Objekte) alle += o.Aktiv ? '1' : '0';
        return alle;
    };
    EXPECT_EQ(aktive(), "1001") << "blanks count";
    execute({{"ObjektAn", " tür "_t}, {"ObjektAus", "TÜR"_t}, {"ObjektAn", "Tor"}});
    EXPECT_EQ(aktive(), "0100");

    execute({{"SetzeZeiger", " Tür ,cursors\\ hand.ico "_t}, {"SetzeZeiger", "Keller,x.ico"}});
    Text zeiger;
    for (const RaumObjekt& o : z.AktuellerRaum.Objekte) zeiger += o.Zeiger + ";";
    EXPECT_EQ(zeiger, "hand.ico;hand.ico;;hand.ico;") << "blanks do not count here";
    execute({{"SetzeZeiger", "Tür"_t}});
    EXPECT_EQ(z.AktuellerRaum.Objekte[0].Zeiger, "");
}

TEST_F(Commands, TheEvilCounterKeepsItsFlag) {
    struct Schritt {
        TextView argument;
        std::int32_t punkte;
        bool merker;
    };
    for (const Schritt& s :
         {Schritt{"1", 1, true}, Schritt{"1", 2, true}, Schritt{"-2", 0, false}, Schritt{"0.4", 0, false},
          Schritt{"1.5", 2, true}, Schritt{"0.5", 2, true}, Schritt{" -5", -3, false}, Schritt{"viel", -3, false},
          Schritt{"1e30", 2147483647, true}}) {
        execute({{"BöseÄndern"_t, s.argument}});
        EXPECT_EQ(z.BösePunkte, s.punkte) << s.argument;
        EXPECT_EQ(MerkerGesetzt(z, "BÖSE"_t), s.merker) << s.argument;
    }
    z.BösePunkte = 1;
    execute({{"LöscheMerker"_t, "böse"_t}, {"BöseÄndern"_t, "1"}});
    EXPECT_EQ(z.BösePunkte, 2);
    EXPECT_FALSE(MerkerGesetzt(z, "BÖSE"_t)) << "only a crossing sets the flag again";
    z.BösePunkte = 0;
    execute({{"SetzeMerker", "böse"_t}, {"BöseÄndern"_t, "-1"}});
    EXPECT_TRUE(MerkerGesetzt(z, "BÖSE"_t)) << "and only a crossing clears it";
}

TEST_F(Commands, TheCountDownHasAPeriodInSeconds) {
    struct Schritt {
        TextView argument;
        std::int64_t ms;
    };
    for (const Schritt& s : {Schritt{"10", 10'000}, Schritt{"1.5", 1500}, Schritt{"0.0125", 12}, Schritt{"", 0},
                             Schritt{"-3", 0}, Schritt{"9999999", 2147483647}}) {
        execute({{"CountDownSetzen", s.argument}});
        EXPECT_EQ(raum.countDown, s.ms) << s.argument;
        EXPECT_TRUE(raum.countDownOn);
    }
}

TEST_F(Commands, PictureCommandsHandOnTheirFields) {
    EXPECT_EQ(notizen({{"ZeigBild", "bilder\\keller.jpg"}, {"ZeigBild"}}),
              (Notizen{"BildLaden g\\keller.jpg", "BildLaden g\\"}));
    EXPECT_EQ(notizen({{"ZoomIN", "10, 20.5,30.6,x"}, {"ZoomOUT", "1,2,-3"}}),
              (Notizen{"ZoomIN 10 20 31 0", "ZoomOUT 1 2 -3 0"}));
    EXPECT_EQ(notizen({{"RahmenAuf"}, {"RahmenZu"}}), (Notizen{"RahmenAuf", "RahmenZu"}));
    EXPECT_EQ(notizen({{"Portrait", "1, x\\eva.jpg "}, {"Portrait", "2,b.jpg"}, {"Portrait", "1.1,b.jpg"}}),
              (Notizen{"Portrait left g\\eva.jpg", "Portrait right g\\b.jpg", "Portrait right g\\b.jpg"}));
    EXPECT_EQ(notizen({{"Blende", "1,5"}, {"Blende", "2"}, {"Blende", "1.5"}, {"Blende", "3"}, {"Blende"}}),
              (Notizen{"BlendWeiss", "BlendWeissOut"}));
}

TEST_F(Commands, AVoiceIsFoundInEitherFormat) {
    directory.write("sounds/ja.mp3", "");
    directory.write("sounds/nein.wav", "");
    execute({{"Ton", "x\\ja.wav"}, {"Ton", "ja.mp3"}, {"Ton", "nein.mp3"}, {"Ton", "fehlt.mp3"}});
    EXPECT_EQ(sound.notes,
              (Notizen{"voice " + sounds("ja.mp3"), "voice off", "voice " + sounds("ja.mp3"), "voice off",
                       "voice " + sounds("nein.wav"), "voice off", "voice " + sounds("fehlt.wav")}));
    EXPECT_EQ(z.Stimme, sound.voice);
}

TEST_F(Commands, ARefusalIsOneOfNineRemarks) {
    std::set<Text> heard;
    for (int i = 0; i < 300; ++i) execute({{"Fehlerton"}});
    for (const Text& note : sound.notes)
        if (note != "voice off") heard.insert(note.substr(note.rfind('\\') + 1));
    EXPECT_EQ(heard, (std::set<Text>{"Error10.mp3", "Error11.mp3", "Error12.mp3", "Error13.mp3", "Error14.mp3",
                                     "Error15.mp3", "Error16.mp3", "Error17.mp3", "Error18.mp3"}));
}

TEST_F(Commands, MusicStartsAndStops) {
    directory.write("musics/schule.mid", "");
    execute({{"Musik", " m\\schule.mid ,1"}});
    EXPECT_EQ(sound.song, z.PfadMusics + "schule.mid");
    execute({{"Musik", " ,schule.mid"}});
    EXPECT_EQ(sound.song, "");
    execute({{"Musik", "schule.mid"}, {"Musik", "fehlt.mid"}});
    EXPECT_EQ(sound.song, "");
}

TEST_F(Commands, ATextWaitsForAPressAndCutsTheVoiceOff) {
    z.TastenCode = key::space;  // held since before
    z.MausTaste = 2;
    std::int64_t pressedAt = 0;
    raum.onZeigText = [&](TextView) {
        z.TastenCode = 65;  // while the text opens
        nach(700, [&] {
            pressedAt = backend.now;
            z.MausTaste = 1;
        });
    };
    EXPECT_EQ(notizen({{"Ton", "a.mp3"}, {"Text", " Hallo, du#da "}, {"ZeigBild", "danach"}}),
              (Notizen{"ZeigText  Hallo, du#da ", "WegText  Hallo, du#da ", "BildLaden g\\danach"}));
    EXPECT_EQ(pressedAt, 700);
    EXPECT_EQ(backend.now, 700);
    EXPECT_EQ(sound.notes.back(), "voice off");
    EXPECT_EQ(z.Stimme, 0U);
}

TEST_F(Commands, AFilmPlaysToItsEndOrUntilEscape) {
    sound.videoEnd = 1000;
    execute({{"Film", "x\\intro.mpg"}});
    EXPECT_EQ(sound.notes, (Notizen{"video mo\\intro.mpg", "video off"}));
    EXPECT_GE(backend.now, 1000);
    EXPECT_LT(backend.now, 1000 + 17);
    EXPECT_EQ(raum.commandNotes().back(), "FilmEnde");

    const std::int64_t beginn = backend.now;
    nach(100, [this] { z.MausTaste = 2; });
    nach(100, [this] { z.TastenCode = 65; });
    nach(100, [this] { z.TastenCode = key::escape; });
    execute({{"Film", "intro.mpg"}});
    EXPECT_GE(backend.now - beginn, 300);
    EXPECT_LT(backend.now - beginn, 300 + 33);

    z.TastenCode = 0;
    sound.videoEnd = 0;  // a video that can't be played
    const std::int64_t without = backend.now;
    execute({{"Film", "fehlt.mpg"}});
    EXPECT_LT(backend.now - without, 17);
}

TEST_F(Commands, AChoiceMeasuresItsLines) {
    raum.onZeigText = [&](TextView text) {
        EXPECT_EQ(text, "Was\r\nnun?\r\n\r\n\r\nGehen\r\nBleiben\r\nund warten\r\n\r\n");
        EXPECT_EQ(z.AuswahlErgebnis, -2) << "nothing can be chosen while the text opens";
        z.MausTaste = 2;
        nach(400, [&] {
            EXPECT_EQ(z.AuswahlErgebnis, -1);
            EXPECT_EQ(z.MausTaste, 0);
            EXPECT_EQ(raum.pointer, "arrow");
            EXPECT_EQ(z.ZeigerLetzter, -1);
            EXPECT_EQ(raum.notes.back(), "ZeigerAuffrischen");
            z.AuswahlErgebnis = 3;
        });
        nach(0, [&] { z.TastenCode = key::enter; });
    };
    raum.onWegText = [&] {
        EXPECT_EQ(raum.pointer, "own") << "busy again";
        EXPECT_EQ(z.ZeigerLetzter, 1);
    };
    EXPECT_EQ(weg({{"Ton", "a.mp3"},
                   {"Auswahl", "4.4|Was#nun?| Gehen |Bleiben#und warten|"},
                   {"Fall", "1"},
                   {"ZeigBild", "1"},
                   {"Fall", "3"},
                   {"ZeigBild", "3"},
                   {"EndeAuswahl"}}),
              "3");
    // Question, empty line, empty line; then one line more for each option, two for the one with a line end.
    EXPECT_EQ(z.AuswahlKanten, (std::vector<std::int32_t>{16 * 4, 16 * 5, 16 * 7, 16 * 8, 16 * 9}));
    EXPECT_EQ(z.AuswahlHöhe, 16 * 9);
    EXPECT_EQ(z.AuswahlTexte, (Notizen{"Was\r\nnun?\r\n\r\n\r\n", "Gehen", "Bleiben\r\nund warten", "", ""}));
    EXPECT_EQ(sound.notes.back(), "voice off");
}

TEST_F(Commands, AChoiceOfTooManyOptionsIsAnError) {
    z.RaumDatei = "Keller.lsd";
    for (const char* n : {"1001", "2000000000", "1e300"}) {
        backend.key(key::enter);
        EXPECT_EQ(weg({{"RahmenZu"},
                       {"Auswahl", Text(n) + "|Ja?|Ja"},
                       {"Fall", "1"},
                       {"ZeigBild", "1"},
                       {"EndeAuswahl"},
                       {"ZeigBild", "2"}}),
                  "2")
            << n;
        EXPECT_NE(backend.boxes.back().text.find("Raum Keller.lsd, Skript, Befehl 2: Auswahl"), Text::npos);
    }
    // Fewer than one: the question stands alone.
    raum.onZeigText = [this](TextView text) {
        EXPECT_EQ(text, "Ja?\r\n\r\n\r\n");
        nach(50, [this] { z.AuswahlErgebnis = 1; });
    };
    execute({{"Auswahl", "-5|Ja?|Ja"}});
    EXPECT_EQ(z.AuswahlTexte.size(), 1U);
}

TEST_F(Commands, AGameSetsOrClearsItsFlag) {
    Übergabewert ergebnis;
    Text gelesen;
    spiele["PONG"] = [&] {
        gelesen = std::get<Text>(z.Übergabe);
        z.Übergabe = ergebnis;
    };
    spiele["JUMP"] = [] {};  // leaves no outcome
    ergebnis = true;
    execute({{"Spiel", " pong , sieg , zaubertrank "}});
    EXPECT_EQ(gelesen, "ZAUBERTRANK");
    EXPECT_TRUE(MerkerGesetzt(z, "SIEG"));
    ergebnis = false;
    execute({{"Spiel", "Pong,Sieg"}});
    EXPECT_EQ(gelesen, "");
    EXPECT_FALSE(MerkerGesetzt(z, "SIEG")) << "a lost game takes back an earlier win";

    struct Case {
        TextView argument;
        bool sieg;
    };
    for (const Case& c :
         {Case{"JUMP,M,1", true}, Case{"JUMP,M,0", false}, Case{"JUMP,M,-0.5", true}, Case{"JUMP,M,ja", false},
          Case{"JUMP,M,1x", false}, Case{"JUMP,M", false}, Case{"SCHACH,M,1", false}, Case{"", false}}) {
        MerkerSetzen(z, "M");
        if (c.sieg) MerkerLöschen(z, "M");
        execute({{"Spiel", c.argument}});
        EXPECT_EQ(MerkerGesetzt(z, "M"), c.sieg || c.argument.empty()) << c.argument;
    }
}

TEST_F(Commands, MemoryIsPlayedUntilItIsDecided) {
    std::vector<TextView> ergebnisse{"U", "U", "W", "L", "U", "L"};
    std::size_t spiel = 0;
    spiele["MEMORY"] = [&] { z.Übergabe = Text(ergebnisse.at(spiel++)); };
    execute({{"Spiel", "Memory,M"}});
    EXPECT_EQ(spiel, 3U);
    EXPECT_TRUE(MerkerGesetzt(z, "M"));
    execute({{"Spiel", "Memory,M"}});
    EXPECT_EQ(spiel, 4U);
    EXPECT_FALSE(MerkerGesetzt(z, "M"));
    execute({{"Spiel", "Memory,M"}});
    EXPECT_EQ(spiel, 6U);
}

TEST_F(Commands, SystemKnowsThreeWords) {
    EXPECT_EQ(notizen({{"System", "Save"}, {"System", "Abspann"}, {"System", "Open"}, {"ZeigBild", "x"}}),
              (Notizen{"SpielSpeichern", "Abspann", "SpielLaden", "BildLaden g\\x"}));
    for (const char* wort : {"open", " Open", "Ende", ""}) {
        EXPECT_THROW(execute({{"System", wort}, {"ZeigBild", "x"}}), ProgramEnd) << wort;
        EXPECT_EQ(raum.commandNotes(), Notizen{"Entladen"});
    }
}

}  // namespace
}  // namespace zentrox
