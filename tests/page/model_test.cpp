#include "platform/values/base64.h"
#include "tests/page/page_support.h"
#include "tools/page/map.h"
#include "tools/page/pictures.h"
#include "tools/page/proof.h"
#include "tools/page/words.h"
#include "tools/story/build.h"
#include "tools/story/inputs.h"

namespace zentrox::page::test {

namespace {

std::string told(const Need& need) {
    return (need.negated ? "!" : "") + (need.when.empty() ? "\"" + need.answer + "\"" : inWords(need.when));
}

// One line for each way: where from, where to, what has to be.
std::vector<std::string> waysIn(const Reading& reading) {
    std::vector<std::string> lines;
    for (const Way& way : waysOf(reading, sectionsOf(reading))) {
        std::string line =
            std::to_string(way.from) + ">" + (way.ending ? "ENDE " + toUtf8(way.target) : std::to_string(way.to));
        for (const Need& need : way.needs) line += " [" + told(need) + "]";
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> usesIn(const Reading& reading, const std::vector<Use>& uses) {
    constexpr std::array words{"sets", "clears", "tests", "plays", "takes", "gives", "drops", "carries"};
    std::vector<std::string> lines;
    for (const Use& use : uses)
        lines.push_back(std::string(words[static_cast<std::size_t>(use.kind)]) + " " + at(reading, use.place) +
                        ":" + std::to_string(use.place.column));
    return lines;
}

constexpr const char* rooms = R"(Raum "Start.lsd"
    Objekt "Tür"
        Links
            WennMerker OFFEN und nicht WACHE
                Raumwechsel "Keller.lsd"
            SonstWenn SCHLAF
                Raumwechsel "keller.LSD"
            Sonst
                Text "Zu."
            EndeWenn
        Ablegen
            Bei SEIL, LEITER
                Rufe HINAB
    Objekt "Fremder"
        Links
            Gespräch
                Frage "Hinunter?"
                    Antwort "Ja." wenn Gegenstand SEIL
                        Raumwechsel "Keller.lsd"
                    Schluss "Nein."
            EndeGespräch
Raum "Keller.lsd"
    Start
        Auswahl "Was nun?"
            Fall "Hinauf"
                Raumwechsel "Start.lsd"
            Fall "Schluss"
                // ende: gut
                System Abspann
                System Ende
        EndeAuswahl
        Raumwechsel "Fehlt.lsd"
Skriptteil HINAB
    SetzeMerker OFFEN
    Raumwechsel "Keller.lsd"
Gegenstand "seil.bmp"
Gegenstand "leiter.bmp"
    Links
        NimmGegenstand "seil.bmp"
)";

}  // namespace

TEST(Ways, TellWhatHasToBe) {
    EXPECT_EQ(waysIn(readStory({{"a.story", rooms}})),
              (std::vector<std::string>{"0>1 [OFFEN und nicht WACHE]", "0>1 [!OFFEN und nicht WACHE] [SCHLAF]",
                                        "0>1 [SEIL oder LEITER]", "0>1 [SEIL] [\"Ja.\"]", "1>0 [\"Hinauf\"]",
                                        "1>ENDE gut [\"Schluss\"]", "1>-1"}));
}

TEST(Ways, FromItemsStartInTheBag) {
    const Reading reading = readStory({{"a.story", R"(Raum "Start.lsd"
Gegenstand "karte.bmp"
    Links
        Raumwechsel "Start.lsd"
)"}});
    EXPECT_EQ(waysIn(reading), std::vector<std::string>{"-1>0"});
}

TEST(Ways, AreTheSameInCompiledData) {
    const Reading sources = readStory({{"a.story", rooms}});
    const auto directory = std::filesystem::path(testing::TempDir()) / "zentrox-page-data";
    writeStory(sources.story, directory);
    const Reading data = read({directory.string()}, {});
    std::filesystem::remove_all(directory);
    EXPECT_EQ(data.title, "zentrox-page-data");
    const auto ends = [](const Reading& reading) {
        const auto name = [&](int room) {
            return room < 0 ? "-" : reading.story.rooms[static_cast<std::size_t>(room)].file;
        };
        std::multiset<std::string> all;
        for (const Way& way : waysOf(reading, sectionsOf(reading)))
            all.insert(name(way.from) + ">" + (way.ending ? "ENDE" : name(way.to)));
        return all;
    };
    EXPECT_EQ(ends(data), ends(sources));
    EXPECT_EQ(usesOf(data.story).flags.size(), usesOf(sources.story).flags.size());
}

TEST(Map, JoinsWhatIsFreeInBothDirections) {
    const Reading reading = readStory({{"a.story", R"(Raum "A.lsd"
    Start
        Raumwechsel "B.lsd"
Raum "B.lsd"
    Objekt "x"
        Links
            Raumwechsel "A.lsd"
    Objekt "y"
        Links
            WennMerker OFFEN
                Raumwechsel "C.lsd"
            EndeWenn
Raum "C.lsd"
    Start
        Raumwechsel "B.lsd"
)"}});
    const RoomMap map = mapOf(reading, waysOf(reading, sectionsOf(reading)));
    ASSERT_EQ(map.lines.size(), 3U);
    EXPECT_TRUE(map.lines[0].both);
    EXPECT_EQ(map.lines[0].ways.size(), 2U);
    EXPECT_EQ(map.lines[1].labels, std::vector<std::string>{"OFFEN"});
    EXPECT_FALSE(map.lines[1].both);
}

TEST(Uses, NameEachPlaceOnce) {
    const Reading reading = readStory({{"a.story", rooms}});
    const Uses uses = usesOf(reading.story);
    // The part is called from one place; it stands in another.
    EXPECT_EQ(usesIn(reading, uses.flags.at("OFFEN")),
              (std::vector<std::string>{"tests a.story:4:24", "sets a.story:34:17"}));
    EXPECT_EQ(usesIn(reading, uses.items.at("SEIL")),
              (std::vector<std::string>{"drops a.story:12:17", "carries a.story:18:51", "takes a.story:39:24"}));
    EXPECT_EQ(usesIn(reading, uses.items.at("LEITER")), std::vector<std::string>{"drops a.story:12:23"});
    for (const auto& [name, list] : uses.flags) EXPECT_FALSE(story::itemOfFlag(name)) << name;
}

TEST(Uses, KnowGamesAndTheEvilCounter) {
    const Reading reading = readStory({{"a.story", R"(Raum "Start.lsd"
    Start
        Spiel PONG gewonnen
        BöseÄndern -1
        LöscheMerker Gewonnen, ANDERS
        WennMerker BÖSE
            SetzeMerker ANDERS
        EndeWenn
)"}});
    const Uses uses = usesOf(reading.story);
    EXPECT_EQ(usesIn(reading, uses.flags.at("GEWONNEN")),
              (std::vector<std::string>{"plays a.story:3:15", "clears a.story:5:22"}));
    EXPECT_EQ(usesIn(reading, uses.flags.at(Text("BÖSE"_t))),
              (std::vector<std::string>{"clears a.story:4:20", "tests a.story:6:20"}));
}

TEST(Sections, KnowTheirPlaces) {
    const Reading reading = readStory(
        {{"a.story", "Einbinden \"b.teil\"\n" + std::string(rooms)}, {"b.teil", "Person Ada\n    Farbe 7\n"}});
    std::vector<std::string> lines;
    for (const Section& section : sectionsOf(reading))
        lines.push_back(std::string(wordOf(section.kind)) + " " + toUtf8(section.name) + " " +
                        at(reading, section.head) + "-" + std::to_string(section.lastLine) + " " +
                        std::to_string(section.room) + "/" + std::to_string(section.object));
    EXPECT_EQ(lines,
              (std::vector<std::string>{
                  "Person Ada b.teil:1-2 -1/-1", "Raum Start.lsd a.story:2-2 0/-1", "Objekt Tür a.story:3-3 0/0",
                  "Links  a.story:4-11 0/0", "Ablegen  a.story:12-14 0/0", "Objekt Fremder a.story:15-15 0/1",
                  "Links  a.story:16-22 0/1", "Raum Keller.lsd a.story:23-23 1/-1", "Start  a.story:24-33 1/-1",
                  "Skriptteil HINAB a.story:34-36 -1/-1", "Gegenstand seil.bmp a.story:37-37 -1/-1",
                  "Gegenstand leiter.bmp a.story:38-38 -1/-1", "Links  a.story:39-40 -1/-1"}));
}

TEST(Area, IsDrawnCellByCell) {
    Maske mask;
    mask.set(1, 0, true);
    mask.set(2, 0, true);
    mask.set(2, 1, true);
    const AreaPaths paths = pathsOf(mask);
    EXPECT_EQ(paths.inside, "M10 0H30v10H10zM20 10H30v10H20z");
    EXPECT_EQ(paths.outline, "M10 0H30M10 10H20M20 20H30M10 0V10M20 10V20M30 0V20");
    EXPECT_EQ(pathsOf({}).inside, "");
}

TEST(Pictures, AreMeansOfWhatTheyStandFor) {
    Bitmap picture({4, 2}, Colour{0});
    picture.setPixel({0, 0}, Colour{0xFF0000});
    picture.setPixel({1, 1}, Colour{0xFF0000});
    const Bitmap small = fitted(picture, {2, 2});
    ASSERT_EQ(small.size(), (Size{2, 1}));
    EXPECT_EQ(small.pixel({0, 0}), 0x800000);
    EXPECT_EQ(small.pixel({1, 0}), 0);
    EXPECT_EQ(fitted(picture, {4, 2}), picture);
}

TEST(Base64, FillsUpWithEqualsSigns) {
    EXPECT_EQ(base64("Zentrox"), "WmVudHJveA==");
    EXPECT_EQ(base64("abc"), "YWJj");
    EXPECT_EQ(base64(std::string("\xFF\x00", 2)), "/wA=");
}

TEST(Proof, BelongsToItsStory) {
    const Reading reading = readStory({{"a.story", rooms}});
    const std::string good =
        R"({"complete":true,"states":4,"endings":[{"name":"gut","steps":1,"walk":"","play":[{"room":"Start.lsd","do":"x","texts":["a"],"file":"/elsewhere/a.story","line":5}]}],"dead":[],"findings":[]})";
    EXPECT_EQ(proofOf(good, "p", reading)["endings"][0]["play"][0]["l"], 5);
    for (const std::string& bad : {std::string("[]"), std::string("{"), std::string(),
                                   std::string(good).replace(good.find(":5}"), 3, ":5000}"),
                                   std::string(good).replace(good.find("a.story"), 7, "b.story")})
        EXPECT_THROW(proofOf(bad, "p", reading), story::WrongCall) << bad;
}

}  // namespace zentrox::page::test
