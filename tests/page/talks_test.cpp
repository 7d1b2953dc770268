#include "tests/page/page_support.h"

namespace zentrox::page::test {

namespace {

// Boxes by number with their texts, then the lines between them.
std::string drawn(const Talk& talk) {
    std::string out;
    for (std::size_t i = 0; i < talk.boxes.size(); ++i) {
        out += std::to_string(i) + ":";
        for (const TalkBox::Line& line : talk.boxes[i].lines)
            out += " " + (line.prefix.empty() ? "" : line.prefix + ": ") + line.text;
        out += "\n";
    }
    for (const TalkLine& line : talk.lines)
        out += std::to_string(line.from) + (line.back ? "~>" : "->") + std::to_string(line.to) +
               (line.label.empty() ? "" : " " + line.label) + "\n";
    return out;
}

std::string onlyTalk(const std::string& body) {
    const Reading reading =
        readStory({{"a.story", "Person Ada\n    Farbe 7\nRaum \"Start.lsd\"\n    Start\n" + body}});
    const auto talks = talksOf(sectionsOf(reading));
    EXPECT_EQ(talks.size(), 1U);
    return talks.empty() ? "" : drawn(talks[0]);
}

}  // namespace

TEST(Talk, GoesBackToItsQuestion) {
    EXPECT_EQ(onlyTalk(R"(Gespräch
    Ada: "$AHallo." "Du da."
    Frage "Und?"
        Antwort "Wer bist du?" einmal
            Ada: "Ada."
        Antwort "Weiter?" wenn MUT
            Raumwechsel "Start.lsd"
        Schluss "Nichts."
    EndeFrage
    Ada: "Dann nicht."
EndeGespräch
)"),
              "0: Ada: Hallo. Du da.\n1: Und?\n2: Wer bist du? nur einmal Ada: Ada.\n"
              "3: Weiter? wenn MUT Raumwechsel \"Start.lsd\"\n4: Nichts.\n5: Ada: Dann nicht.\n"
              "0->1\n1->2\n2~>1\n1->3\n1->4\n4->5\n");
}

TEST(Talk, BranchesAndMeetsAgain) {
    EXPECT_EQ(onlyTalk(R"(Gespräch
    WennMerker A
        Ada: "a"
    SonstWenn B oder nicht C
        Ada: "b"
    EndeWenn
    Ada: "Ende"
EndeGespräch
)"),
              "0: A?\n1: Ada: a\n2: B oder nicht C?\n3: Ada: b\n4: Ada: Ende\n"
              "0->1 ja\n0->2 nein\n2->3 ja\n1->4\n3->4\n2->4 nein\n");
}

TEST(Talk, JumpsToItsLabels) {
    EXPECT_EQ(onlyTalk(R"(Marke NOCHMAL
Auswahl "Klopfen?"
    Fall "Ja"
        Springe NOCHMAL
    Option "Nein"
EndeAuswahl
Text "Gut."
)"),
              "0: Marke NOCHMAL\n1: Klopfen?\n2: Ja\n3: Nein\n4: Gut.\n0->1\n1->2\n1->3\n3->4\n2~>0\n");
}

TEST(Talk, IsBrokenIntoLinesThatFit) {
    const Reading reading =
        readStory({{"a.story", "Raum \"Start.lsd\"\nStart\nAuswahl \"" + std::string(30, 'a') + " " +
                                   std::string(30, 'b') + "\"\nOption \"x\"\nEndeAuswahl\n"}});
    const auto talks = talksOf(sectionsOf(reading));
    ASSERT_EQ(talks.size(), 1U);
    EXPECT_EQ(talks[0].boxes[0].lines.size(), 2U);
    EXPECT_GT(talks[0].drawing.boxes[0].width, talks[0].drawing.boxes[1].width);
}

}  // namespace zentrox::page::test
