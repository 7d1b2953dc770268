// What compiled data reads like as a source.
#include "tools/story/source.h"
#include "story_support.h"
#include "tools/story/data.h"

namespace zentrox::story::test {

namespace {

std::string mask(int left, int right) {
    std::string fields;
    for (int column = 0; column < 64; ++column)
        for (int row = 0; row < 48; ++row)
            fields += column >= left && column < right && row < 2 ? " 255 ," : row % 5 == 0 ? "1," : "254\r\n";
    return fields;
}

std::string sourceOfRoom(const std::string& utf8) {
    Story story;
    Findings findings;
    readRoomData(fromUtf8(utf8), "Alt.lsd", "Alt.lsd", story, findings);
    EXPECT_EQ(asLines(story, findings), "");
    return story.rooms.empty() ? "" : roomSource(story.rooms[0]);
}

std::string withLineEnds(std::string room, const std::string& separator) {
    for (std::size_t at = 0; (at = room.find("\r\n", at)) != std::string::npos; at += separator.size())
        room.replace(at, 2, separator);
    return room;
}

}  // namespace

// Laid out as another tool might: bare texts, numbers for truths, all in one line or one field a line.
TEST(Source, ARoomFromAnotherTool) {
    const std::string room =
        "graphics\\Kneipe.jpg   \r\n 3 , 19 , thema.mid,20,\"\"\r\n99,\"was?\",10,\"\"\r\n"  // start
        "0\r\n"                                                                              // one object
        "-1, 9, 24,\"2|Ja? |Gut#so| Nein\",25,2,12,X,25,1,2,\"$Cja #, ja\",26,,0,OFFEN,9,,13,\"Wirt,b.ico\",10,\r\n"
        "#true#,0,14,\"1, 2,3,4\"\r\n0,-1\r\nHand1.ico, 0 , Wirt\r\n" +
        mask(2, 4) + "0,31,.5\r\n";
    const std::string source = sourceOfRoom(room);
    EXPECT_EQ(source, R"(Raum "Alt.lsd"
    Bild "graphics\Kneipe.jpg"

    Start
        Musik "thema.mid"
        RahmenAuf
        Roh 99 "was?"
        Roh EndeWenn

    Countdown
        CountDownSetzen .5

    Objekt "Wirt"
        Zeiger "Hand1.ico"
        Inaktiv
        Fläche
            Rechteck 20 0 40 20
        Rechts
            Auswahl "Ja? "
                Fall 2 " Nein"
                    LöscheMerker X
                Fall 1 "Gut"
                       "so"
                    Text "$Cja "
                         ", ja"
            EndeAuswahl
            WennMerker OFFEN
            Sonst
                SetzeZeiger "Wirt" "b.ico"
            EndeWenn
        Links
            Roh ZoomIN "1, 2,3,4"
)");
    // Where lines end means nothing.
    for (const char* const separator : {"\n", "\r", ",", " , "})
        EXPECT_EQ(sourceOfRoom(withLineEnds(room, separator)), source);
}

TEST(Source, ItemsAreGatheredByTheirNames) {
    Story story;
    Findings findings;
    for (const char* name : {"feile0.skp", "feile2.skp", "wuerfel1.skp", "Rest.skp", "odd3.skp"})
        readScriptData("0,16,\"\"", name, name, story, findings);
    EXPECT_EQ(itemsSource(story.scripts, {"feile.jpg", "wuerfel1.skp", "wuerfel.jpeg"}), R"(Gegenstand "feile.jpg"
    Rechts
        Fehlerton
    Ablegen
        Fehlerton

Gegenstand "wuerfel.bmp"
    Links
        Fehlerton

Skriptdatei "Rest.skp"
    Fehlerton

Skriptdatei "odd3.skp"
    Fehlerton
)");
}

}  // namespace zentrox::story::test
