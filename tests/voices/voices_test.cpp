// The voices of a story: what is said, which pairs of sound and text are told, and what is made again.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>

#include "tests/support/temp_directory.h"
#include "tools/story/parser.h"
#include "tools/voices/level.h"
#include "tools/voices/maker.h"
#include "tools/voices/process.h"
#include "tools/voices/spoken.h"

namespace zentrox::voices {
namespace {

namespace fs = std::filesystem;

constexpr const char* twoPeople =
    "stimme anna D de+f2 70 160 -20 pitch 60  # loud\n"
    "stimme karl - de+m1 40 120 -20\n"
    "wort \"CD\" \"Ze-De\"\n"
    "zeile \"Error10.mp3\" karl \"Nein.\"\n";

std::string said(TextView text, const std::vector<Replacement>& words = {}) {
    return toUtf8(spoken(text, words));
}

TEST(Voices, TextsAreSaidWithoutWhatIsOnlySeen) {
    EXPECT_EQ(said("$DGuten Tag.\r\n$D»Na?«#$AOh."_t), "Guten Tag. Na? Oh.");
    EXPECT_EQ(said("\r\nEins\r\n\r\nzwei"), "Eins zwei");
    EXPECT_EQ(said("5 $ und $X"), "5 $ und $X");
    EXPECT_EQ(said("ÄRGER MIT DER CD"_t, {{"CD", "Ze-De"}}), "ärger mit der ze-de");
    EXPECT_EQ(said("CDs, CD-Klappe, ABCD, CD.", {{"CD", "Ze-De"}}), "CDs, Ze-De-Klappe, ABCD, Ze-De.");
    EXPECT_EQ(said("Welt.bas lebt.", {{".bas", " Punkt Bas"}}), "Welt Punkt Bas lebt.");
    EXPECT_EQ(said("CDs CD", {{"CD", "CD CD"}}), "CDs CD CD");
}

TEST(Voices, YearsAreCountedInHundreds) {
    EXPECT_EQ(said("Seit 1974, 1900 und 1901."), "Seit 19hundert 74, 19hundert und 19hundert 1.");
    EXPECT_EQ(said("2002, 1066, 12345, 3,1415 und x1974"), "2002, 1066, 12345, 3,1415 und x1974");
}

TEST(Voices, TheTableTellsTheLineThatCannotBeRead) {
    const Table table = readTable(twoPeople);
    EXPECT_EQ(table.voices.at("anna").colour, 'D');
    EXPECT_EQ(table.voices.at("anna").effects, (std::vector<std::string>{"pitch", "60"}));
    EXPECT_EQ(table.lines.at(0).text, "Nein.");
    for (const char* wrong :
         {"stimme anna D de 70 160", "stimme anna G de 70 160 -20", "stimme anna D de 170 160 -20",
          "stimme anna D de 7o 160 -20", "wort \"CD", "wort \"\" x", "zeile a niemand b", "stimmt"}) {
        try {
            readTable("# nothing\n" + std::string(wrong));
            FAIL() << wrong;
        } catch (const TableError& error) {
            EXPECT_EQ(error.line, 2) << wrong;
        }
    }
    EXPECT_THROW(readTable(std::string(twoPeople) + twoPeople), TableError);
}

// The lines of a room whose opening script is this, and the findings as "LINE code".
struct Read {
    std::vector<SpokenLine> lines;
    std::string findings;
};

Read read(const std::string& script) {
    Read read;
    story::Findings findings;
    story::SourceFiles files;
    const story::Story story =
        story::parseSource("Raum \"Start.lsd\"\nStart\n" + script, "a.story", files, findings);
    read.lines = linesOf(story, readTable(twoPeople), findings);
    findings.settle(story);
    for (const story::Finding& f : findings.all())
        read.findings += std::to_string(f.place.line - 2) + " " + f.code + "\n";
    return read;
}

TEST(Voices, LinesAreThePairsOfAScriptAndThoseOfTheTable) {
    const Read pairs = read(
        "Ton \"anna-flur-01.wav\"\nText \"$DHallo.\"\n"
        "Text \"Es ist still.\"\n"
        "Ton \"klick.wav\"\nText \"$DKlick.\"\n"
        "Ton \"klick.wav\"\nMusik\n"
        "Ton \"karl-flur-01.wav\"\nText \"Ja?\"\n"
        "Ton \"karl-flur-01.wav\"\nText \"Ja?\"\n");
    EXPECT_EQ(pairs.findings, "");
    ASSERT_EQ(pairs.lines.size(), 3U);
    EXPECT_EQ(pairs.lines[0].file, "Error10");
    EXPECT_EQ(pairs.lines[1].file, "anna-flur-01");
    EXPECT_EQ(pairs.lines[1].text, "$DHallo.");
    EXPECT_EQ(pairs.lines[2].person, "karl");
}

TEST(Voices, APairThatIsNotOneIsTold) {
    EXPECT_EQ(read("Ton \"anna-01.wav\"\nMusik\nText \"$DHallo.\"").findings, "1 ton-ohne-text\n3 text-ohne-ton\n");
    EXPECT_EQ(read("Portrait links \"karl.jpg\"\nText \"Ich.\"").findings, "2 text-ohne-ton\n");
    EXPECT_EQ(read("Ton \"otto-01.wav\"\nText \"Ich.\"").findings, "1 stimme-unbekannt\n");
    EXPECT_EQ(read("Ton \"anna-01.wav\"\nText \"Ich.\"").findings, "2 stimme-farbe\n");
    EXPECT_EQ(read("Ton \"karl-01.wav\"\nText \"Ich.\"\nTon \"karl-01.mp3\"\nText \"Du.\"").findings,
              "3 stimme-doppelt\n");
    EXPECT_EQ(read("Ton \"klick.wav\"\nSetzeMerker X\nTon \"klack.wav\"\nText \"Klack.\"").findings,
              "1 ton-verstummt\n");
    EXPECT_EQ(read("Ton \"klick.wav\"\nZeigBild x.jpg\nTon \"klack.wav\"").findings, "");
    EXPECT_EQ(read("Ton \"anna-01.wav\"").findings, "1 ton-ohne-text\n");
}

std::vector<std::int16_t> wave(int amplitude, std::size_t count, int silent = 0) {
    std::vector<std::int16_t> samples;
    for (std::size_t i = 0; i < count; ++i)
        samples.push_back(
            static_cast<std::int16_t>(std::lround(amplitude * std::sin(static_cast<double>(i) * 0.2))));
    samples.resize(samples.size() + static_cast<std::size_t>(silent));
    return samples;
}

TEST(Voices, LoudnessDoesNotCountPausesAndPeaksStayBelowFullScale) {
    constexpr int rate = 22050;
    EXPECT_NEAR(loudness(wave(3276, rate), rate), -23, 0.1);
    EXPECT_NEAR(loudness(wave(3276, rate, 5 * rate), rate), -23, 0.1);
    for (const int amplitude : {40, 3000, 32767}) {
        auto samples = wave(amplitude, rate, rate);
        level(samples, rate, -20);
        EXPECT_NEAR(loudness(samples, rate), -20, 0.3) << amplitude;
    }
    auto samples = wave(300, rate);
    samples[100] = 8000;
    level(samples, rate, -12);
    EXPECT_GT(samples[100], 30000);
    EXPECT_LT(samples[100], 32700);
    std::vector<std::int16_t> silence(rate);
    level(silence, rate, -20);
    EXPECT_EQ(silence, std::vector<std::int16_t>(rate));
    std::vector<std::int16_t> nothing;
    level(nothing, rate, -20);
}

// A directory of the test's own, and a speaker that writes the words down.
class VoicesMade : public testing::Test {
protected:
    Made make() {
        return makeLines(lines, table, place / "sounds", place / "work",
                         [&](const SpokenLine& line, const fs::path& target, const fs::path&) {
                             std::ofstream(target) << toUtf8(spoken(line.text, table.words));
                             if (line.text == mute) throw std::runtime_error("hoarse");
                         });
    }
    std::string heard(const char* file) const {
        std::string text;
        std::ifstream in(place / "sounds" / file);
        std::getline(in, text);
        return text;
    }
    std::size_t files() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(place / "sounds"), fs::directory_iterator()));
    }

    const zentrox::test::TempDirectory directory;
    const fs::path& place = directory.path();
    Table table = readTable(twoPeople);
    std::vector<SpokenLine> lines{{"anna-01", "anna", "$DGuten Tag."}, {"karl-01", "karl", "Die CD."}};
    Text mute;
};

TEST_F(VoicesMade, OnlyWhatHasChangedIsMadeAgain) {
    EXPECT_EQ(make().written.size(), 2U);
    EXPECT_EQ(heard("karl-01.mp3"), "Die Ze-De.");
    EXPECT_TRUE(make().written.empty());

    lines[0].text = "$DGute Nacht.";
    EXPECT_EQ(make().written, (std::vector<std::string>{"anna-01.mp3"}));
    table.voices.at("karl").pitch = 20;
    EXPECT_EQ(make().written, (std::vector<std::string>{"karl-01.mp3"}));
    table.words.clear();
    EXPECT_EQ(make().written, (std::vector<std::string>{"karl-01.mp3"}));
    EXPECT_EQ(heard("karl-01.mp3"), "Die CD.");
    fs::remove(place / "sounds" / "anna-01.mp3");
    EXPECT_EQ(make().written, (std::vector<std::string>{"anna-01.mp3"}));
}

TEST_F(VoicesMade, LinesThatAreGoneAreTakenAwayAndOtherSoundsAreNot) {
    make();
    std::ofstream(place / "sounds" / "gong.wav") << "gong";
    lines.pop_back();
    EXPECT_EQ(make().removed, (std::vector<std::string>{"karl-01.mp3"}));
    EXPECT_EQ(files(), 3U);  // the list, Anna and the gong
}

TEST_F(VoicesMade, WhatFailsLeavesNothingHalfAndIsMadeTheNextTime) {
    make();
    mute = lines[1].text = "Die andere CD.";
    EXPECT_EQ(make().failed, (std::vector<std::string>{"karl-01.mp3: hoarse"}));
    EXPECT_EQ(heard("karl-01.mp3"), "Die Ze-De.");
    EXPECT_EQ(files(), 3U);
    lines[1].text = "Die CD.";  // as it was: the list must not take the failed one for it
    EXPECT_EQ(make().written, (std::vector<std::string>{"karl-01.mp3"}));
}

TEST_F(VoicesMade, AListThatWasCutOffCostsOnlyItsLastLine) {
    make();
    const fs::path list = place / "sounds" / ".voices";
    fs::resize_file(list, fs::file_size(list) - 5);
    EXPECT_EQ(make().written.size(), 1U);
    EXPECT_TRUE(make().written.empty());
}

TEST(Voices, AProgramThatFailsOrIsNotThereIsTold) {
    EXPECT_NO_THROW(runProgram({"true"}));
    EXPECT_THROW(runProgram({"false"}), std::runtime_error);
    EXPECT_THROW(runProgram({"there-is-no-such-program"}), std::system_error);
}

}  // namespace
}  // namespace zentrox::voices
