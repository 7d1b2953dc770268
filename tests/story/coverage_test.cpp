// What of a story has run: the records of several walks, joined with its source.
#include "tools/story/coverage.h"
#include "story_support.h"

namespace zentrox::story::test {

namespace {

constexpr std::string_view source = R"(Raum "Start.lsd"
    Start
        WennMerker DA
            Text "ja"
        Sonst
            SetzeMerker DA
        EndeWenn
    Objekt "Tür"
        Fläche
            Rechteck 0 0 20 20
        Links
            Fehlerton
)";

// As the probe writes it of a first visit, and of a second one with a click.
constexpr const char* first = R"([{"room":"START.lsd","script":"start","instructions":[
    {"command":0,"argument":"DA","ran":true},{"command":2,"argument":"ja","ran":false},
    {"command":9,"argument":"","ran":false},{"command":3,"argument":"DA","ran":true},
    {"command":10,"argument":"","ran":true}]}])";
constexpr const char* second = R"([{"room":"Start.lsd","script":"object 0","instructions":[
    {"command":16,"argument":"","ran":true}]},
    {"room":"Start.lsd","script":"start","instructions":[
    {"command":0,"argument":"DA","ran":true},{"command":2,"argument":"ja","ran":true},
    {"command":9,"argument":"","ran":true},{"command":3,"argument":"DA","ran":false},
    {"command":10,"argument":"","ran":true}]}])";

MemoryFiles sources() {
    MemoryFiles files;
    files.sources["probe.story"] = source;
    return files;
}

}  // namespace

TEST(Coverage, JoinsWhatSeveralWalksHaveRun) {
    const Story story = compiled(source);
    MemoryFiles files = sources();
    Coverage coverage(story);
    ASSERT_TRUE(coverage.add(first));
    EXPECT_EQ(coverage.percent(), 50);
    const std::string half = coverage.report(files);
    EXPECT_EQ(half.substr(0, half.find("Befehle")),
              "probe.story:4: nicht gelaufen: Text \"ja\"\n"
              "probe.story:12: nicht gelaufen: Fehlerton\n");
    EXPECT_NE(half.find(" 50,0 %  1 von 2  Skripte begonnen\n"), std::string::npos) << half;

    ASSERT_TRUE(coverage.add(second));
    EXPECT_EQ(coverage.percent(), 100);
    EXPECT_EQ(coverage.report(files).find("nicht gelaufen"), std::string::npos);
}

TEST(Coverage, RefusesWhatIsNoRecordOfThisStory) {
    const Story story = compiled(source);
    for (
        const char* const foreign :
        {"", "x", "[1]", R"([{"room":"Start.lsd"}])",
         R"([{"room":"Start.lsd","script":"object 0","instructions":[{"command":16,"argument":"neu","ran":true}]}])",
         R"([{"room":"Start.lsd","script":"object 7","instructions":[{"command":16,"argument":"","ran":true}]}])"}) {
        Coverage coverage(story);
        EXPECT_FALSE(coverage.add(foreign)) << foreign;
        EXPECT_EQ(coverage.percent(), 0);
    }
}

}  // namespace zentrox::story::test
