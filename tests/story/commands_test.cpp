// The program as a person calls it: what it writes, what it says, how it ends.
#include <fstream>
#include <sstream>

#include "platform/codec/pictures.h"
#include "story_support.h"
#include "tests/support/temp_directory.h"
#include "tools/story/commands.h"

namespace zentrox::story::test {

namespace fs = std::filesystem;

namespace {

struct Result {
    int status;
    std::string out;
    std::string err;
};

Result call(const std::vector<std::string>& words) {
    std::ostringstream out;
    std::ostringstream err;
    const int status = run(words, out, err);
    return {status, out.str(), err.str()};
}

std::string contents(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

TEST(Commands, BuildWritesOnlyWhatChanges) {
    const zentrox::test::TempDirectory directory;
    const auto at = [&](const char* name) { return (directory.path() / name).string(); };
    directory.write("a.story",
                    "Raum \"Keller\\Gang.lsd\"\nRaum \"Tür.lsd\"\nGegenstand ring.bmp\nLinks\nText \"x\"");
    ASSERT_EQ(call({"build", at("a.story"), "--into", at("out")}).status, clean);
    EXPECT_EQ(contents(at("out/rooms/Tür.lsd")), "\"\"\r\n-1\r\n-1\r\n-1\r\n");
    EXPECT_EQ(contents(at("out/items/ring1.skp")), "0\r\n2,\"x\"\r\n");
    EXPECT_FALSE(fs::exists(at("out/items/ring0.skp")));

    const auto before = fs::last_write_time(at("out/rooms/Tür.lsd"));
    directory.write("a.story", "Raum \"KELLER/gang.lsd\"\nBild \"b.jpg\"\nRaum \"Tür.lsd\"");
    const Result again = call({"build", directory.path().string(), "--into", at("out")});
    EXPECT_EQ(again.out, at("out/rooms/Keller/Gang.lsd") + "\n");  // the one that is there, in its spelling
    EXPECT_EQ(fs::last_write_time(at("out/rooms/Tür.lsd")), before);

    directory.write("a.story", "Raum \"Tür.lsd\"\nBild \"neu.jpg\"\nStart\nFoo");
    const Result broken = call({"build", at("a.story"), "--into", at("out")});
    EXPECT_EQ(broken.status, hasFindings);
    EXPECT_NE(broken.err.find("a.story:4:1: error [wort]"), std::string::npos);
    EXPECT_EQ(fs::last_write_time(at("out/rooms/Tür.lsd")), before);
    std::size_t entries = 0;
    for (const auto& entry : fs::recursive_directory_iterator(at("out")))
        entries += entry.is_regular_file() ? 1 : 0;
    EXPECT_EQ(entries, 3U);  // and no draft is left over
}

TEST(Commands, AFreshStoryIsCleanAndComesBack) {
    const zentrox::test::TempDirectory directory;
    const auto at = [&](const char* name) { return (directory.path() / name).string(); };
    ASSERT_EQ(call({"new", at("neu")}).status, clean);
    EXPECT_EQ(call({"check", at("neu")}).out, "");
    EXPECT_EQ(call({"check", at("neu/story")}).status, clean);
    EXPECT_EQ(call({"check", at("neu/rooms/Start.lsd")}).status, clean);
    EXPECT_EQ(call({"build", at("neu/story"), "--into", at("neu")}).out, "");
    EXPECT_EQ(call({"new", at("neu")}).status, wrongCall);

    ASSERT_EQ(call({"source", at("neu"), "--into", at("zurueck")}).status, clean);
    ASSERT_EQ(call({"build", at("zurueck"), "--into", at("zwei")}).status, clean);
    for (const char* name : {"rooms/Start.lsd", "items/schluessel0.skp", "items/schluessel1.skp"})
        EXPECT_EQ(contents(directory.path() / "zwei" / name), contents(directory.path() / "neu" / name)) << name;

    // What a source sets in one file counts for its neighbours.
    fs::remove(at("neu/graphics/stube.bmp"));
    const Result missing = call({"check", at("neu/story/start.story"), "--json"});
    EXPECT_EQ(missing.status, hasFindings);
    EXPECT_NE(missing.out.find("\"code\": \"bild-fehlt\""), std::string::npos);
}

TEST(Commands, FilesAreLookedForWhereDataLies) {
    const zentrox::test::TempDirectory directory;
    const std::string source =
        directory.write("demo/story/a.story", "Raum Start.lsd\nBild b.png\nRaum Laden.lsd").string();
    const Result alone = call({"check", source});
    EXPECT_EQ(alone.status, clean) << alone.out;
    EXPECT_NE(alone.err.find("--data"), std::string::npos);
    // The sources of mini-games are no data yet.
    fs::create_directory(directory.path() / "demo/games");
    EXPECT_EQ(call({"check", source}).status, clean);
    fs::create_directory(directory.path() / "demo/sounds");
    EXPECT_NE(call({"check", source}).out.find("[bild-fehlt]"), std::string::npos);
    directory.write("data/graphics/b.png", "");
    savePng(Bitmap({64, 48}, white), (directory.path() / "data/graphics/b.png").string());
    for (const char* pointer : {"taste1.ico", "taste2.ico", "ge2.ico", "werfen.ico"})
        directory.write(std::string("data/cursors/") + pointer, "");
    const Result elsewhere = call({"check", source, "--data", (directory.path() / "data").string()});
    EXPECT_EQ(elsewhere.out + elsewhere.err, "");
}

TEST(Commands, WrongCallsAndDamagedFiles) {
    const zentrox::test::TempDirectory directory;
    const std::string empty = directory.path().string();
    const std::string cut = directory.write("rooms/a.lsd", "\"b.jpg\",-1,5").string();
    const std::string source = directory.write("story/x.story", "Raum a.lsd").string();
    fs::create_directory(directory.path() / "leer");
    for (const std::vector<std::string>& words :
         std::vector<std::vector<std::string>>{{},
                                               {"bau"},
                                               {"build"},
                                               {"build", cut},
                                               {"check"},
                                               {"check", "/no/such"},
                                               {"check", empty + "/rooms", "--jason"},
                                               {"check", empty + "/rooms", empty},
                                               {"check", cut, source},
                                               {"check", empty + "/leer"},
                                               {"source", source},
                                               {"new"}})
        EXPECT_EQ(call(words).status, wrongCall) << testing::PrintToString(words);
    EXPECT_EQ(call({"--help"}).status, clean);
    EXPECT_EQ(call({"--version"}).status, clean);
    const Result damaged = call({"check", empty});
    EXPECT_EQ(damaged.status, hasFindings);
    EXPECT_NE(damaged.out.find("a.lsd:1:12: error [datei]: der letzte Index 5 passt nicht"), std::string::npos);
    EXPECT_EQ(call({"check", empty + "/rooms"}).status, hasFindings);  // the room, as it lies there
    EXPECT_EQ(call({"source", empty}).status, hasFindings);
    EXPECT_EQ(call({"build", cut, "--into", empty + "/rooms/a.lsd"}).status, hasFindings);  // no source at all
}

// Authors read German; a word of English would come from the library that reads the command line.
TEST(Commands, SpeaksGerman) {
    const zentrox::test::TempDirectory directory;
    directory.write("a.story", "Raum r.lsd");
    directory.write("leer/x.txt", "");
    const std::string story = (directory.path() / "a.story").string();
    const std::string empty = (directory.path() / "leer").string();
    std::string said;
    for (const char* command : {"build", "check", "lines", "source", "coverage"}) {
        for (const auto& words : std::vector<std::vector<std::string>>{
                 {command, "--help"}, {command}, {command, "--was"}, {command, "gibt-es-nicht"}, {command, empty}})
            said += call(words).out + call(words).err;
    }
    for (const auto& words :
         std::vector<std::vector<std::string>>{{"--help"},
                                               {},
                                               {"nix"},
                                               {"opcodes", "--was"},
                                               {"new", "--help"},
                                               {"new", empty},
                                               {"opcodes", "--was"},
                                               {"build", story, "--into"},
                                               {"coverage", story, "--ran", story, "--least", "200"},
                                               {"coverage", story, "--ran", story},
                                               {"source", story},
                                               {"check", story}})
        said += call(words).out + call(words).err;
    for (const char* german :
         {"Aufruf", "Optionen", "Angaben", "nötig", "gibt es nicht", "hier fehlt", "unbekannt ist"})
        EXPECT_NE(said.find(german), std::string::npos) << german;
    for (const char* english :
         {"Usage", "Options", "OPTIONS", "Positional", "REQUIRED", "required", "TEXT", "FLOAT", "the ", " not ",
          " of ", " is ", "Print", "file", "director", "argument", "subcommand"})
        EXPECT_EQ(said.find(english), std::string::npos)
            << english << ": " << said.substr(std::max<std::size_t>(said.find(english), 60) - 60, 120);
}

TEST(Commands, LinesGoOutAndComeBack) {
    const zentrox::test::TempDirectory directory;
    const auto at = [&](const char* name) { return (directory.path() / name).string(); };
    directory.write(
        "a.story",
        "Person Kai\nFarbe 7\nStimme \"kai\"\nRaum \"Hof.lsd\"\nStart\nKai: \"Grüß Gott.\" \"Ja?\"\n"
        "Text \"Nein.\"\nText \"Nein.\"\nAuswahl \"Wie?\"\nFall \"So.\"\nOption \"Anders.\"\nEndeAuswahl\n");
    const std::string table = call({"lines", at("a.story")}).out;
    std::vector<std::string> rows;
    std::istringstream in(table);
    for (std::string row; std::getline(in, row);) rows.push_back(row);
    ASSERT_EQ(rows.size(), 6U) << table;
    EXPECT_NE(rows[1].find(":6:6\tKai\tkai-hof-01.wav\t14\tGrüß Gott.#Ja?"), std::string::npos) << rows[1];
    EXPECT_NE(rows[2].find(":7:6\t\t\t5\tNein."), std::string::npos) << rows[2];
    EXPECT_NE(rows[5].find(":11:8\t\t\t7\tAnders."), std::string::npos) << rows[5];
    EXPECT_NE(call({"lines", at("a.story"), "--json"}).out.find("\"voice\": \"kai-hof-01.wav\""),
              std::string::npos);

    // The table as it is changes nothing; other texts keep marks, counts and voices.
    ASSERT_EQ(call({"build", at("a.story"), "--into", at("eins")}).status, clean);
    directory.write("t.tsv", table);
    ASSERT_EQ(call({"build", at("a.story"), "--into", at("zwei"), "--with", at("t.tsv")}).err, "");
    EXPECT_EQ(contents(at("eins/rooms/Hof.lsd")), contents(at("zwei/rooms/Hof.lsd")));
    const auto key = [&](std::size_t row) { return rows[row].substr(0, rows[row].find('\t')); };
    directory.write("t.tsv", key(1) + "\tHello.#Yes?#Well\n" + key(4) + "\tLike this.\n" + "weg-00000000\tx\n");
    const Result other = call({"build", at("a.story"), "--into", at("zwei"), "--with", at("t.tsv")});
    EXPECT_NE(other.err.find("t.tsv:3:1: warning [text-ohne-ort]"), std::string::npos) << other.err;
    const std::string room = contents(at("zwei/rooms/Hof.lsd"));
    EXPECT_NE(room.find("\"kai-hof-01.wav\"\r\n2,\"$7Hello.#$7Yes?#$7Well\""), std::string::npos) << room;
    EXPECT_NE(room.find("\"2|Wie?|Like this.|Anders.\""), std::string::npos) << room;
    directory.write("t.tsv", "ohne Tabulator\n" + key(1) + "\tein | darin\n");
    EXPECT_EQ(call({"build", at("a.story"), "--into", at("zwei"), "--with", at("t.tsv")}).status, hasFindings);
}

}  // namespace zentrox::story::test
