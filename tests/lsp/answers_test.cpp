// What the server says of a small story: places, names, help, what may be written.
#include <sstream>

#include "client.h"
#include "tools/story/commands.h"

namespace zentrox::lsp::test {

namespace {

using Strings = std::vector<std::string>;

constexpr const char* rooms =
    "// 𝄞 ä\n"
    "Raum \"Hof.lsd\"\n"
    "    Bild \"hof.jpg\"\n"
    "    Start\n"
    "        WennMerker LICHT und Gegenstand MÖHRE\n"
    "            ObjektAn \"Tür\"\n"
    "        EndeWenn\n"
    "    Objekt \"Tür\" einsteckbar MÖHRE\n"
    "        Zeiger \"hand1.ico\"\n"
    "        Fläche Rechteck 1 2 30 40\n"
    "        Links\n"
    "            /* 𝄞 */ Ton\n"
    "            SetzeMerker LICHT, \"LICHT 2\"\n"
    "            Rufe AUFGANG\n"
    "            Balduin: \"Hü!\"\n"
    "            Raumwechsel \"Stall.lsd\"\n"
    "        Ablegen\n"
    "            Bei MÖHRE\n"
    "                GibGegenstand \"moehre.bmp\"\n"
    "                WennMerker \"GENOMMEN HOF: TÜR\"\n"
    "                EndeWenn\n";

constexpr const char* rest =
    "Person Balduin\n"
    "    Farbe 7\n"
    "Gegenstand \"moehre.bmp\" heißt MÖHRE\n"
    "    Links\n"
    "        LöscheMerker LICHT\n"
    "Gegenstand \"seil.bmp\"\n"
    "    Ablegen\n"
    "        Bei SEIL\n"
    "            Spiel PONG LICHT\n"
    "Skriptteil AUFGANG\n"
    "    Marke NOCHMAL\n"
    "    Springe NOCHMAL\n"
    "Raum \"Stall.lsd\"\n"
    "    Objekt \"Tür\"\n"
    "        Links\n"
    "            Marke NOCHMAL\n"
    "            ObjektAus \"TÜR\"\n";

// Both files open, with data beside them.
class Story : public Client {
public:
    explicit Story(const Json& capabilities = Json::object()) : Client(capabilities) {
        for (const char* file : {"graphics/hof.jpg", "graphics/keller.jpg", "cursors/hand1.ico", "sounds/a.wav"})
            save(file, "x");
        open("hof.story", rooms);
        open("rest.story", rest);
    }
    Strings defined(const char* file, const char* mark, std::size_t in = 1) {
        return places(request("textDocument/definition", at(file, mark, in)));
    }
    Strings referred(const char* file, const char* mark, std::size_t in = 1) {
        return places(request("textDocument/references", at(file, mark, in)));
    }
    std::map<std::string, std::string> renamed(const char* file, const char* mark, const std::string& name) {
        Json params = at(file, mark, 1);
        params["newName"] = name;
        return applied(request("textDocument/rename", params));
    }
    std::string refused(const char* file, const char* mark, const std::string& name) {
        Json params = at(file, mark, 1);
        params["newName"] = name;
        return ask("textDocument/rename", params).value("error", Json::object()).value("message", "");
    }
    std::string shown(const char* file, const char* mark, std::size_t in = 1) {
        const Json found = request("textDocument/hover", at(file, mark, in));
        return found.is_null() ? "" : found.at("contents").at("value").get<std::string>();
    }
    // What is offered for a line at the end of a file, as it would be put.
    Strings offered(const std::string& before, const std::string& line) {
        open("neu.story", before + line);
        Json params = at("neu.story", before + line, before.size() + line.size());
        Strings texts;
        const Json list = request("textDocument/completion", params);
        for (const Json& item : list.at("items")) texts.push_back(item.at("textEdit").at("newText"));
        return texts;
    }
};

bool has(const Strings& all, const std::string& one) {
    return std::find(all.begin(), all.end(), one) != all.end();
}

}  // namespace

TEST(Answers, WhereThingsComeFrom) {
    Story story;
    EXPECT_EQ(story.defined("hof.story", "LICHT und"), (Strings{"hof.story:12:24-29", "rest.story:8:23-28"}));
    EXPECT_EQ(story.defined("hof.story", "MÖHRE\n"), (Strings{"rest.story:2:11-23", "rest.story:2:30-35"}));
    EXPECT_EQ(story.defined("hof.story", "\"Tür\"\n"), (Strings{"hof.story:7:11-16"}));
    EXPECT_EQ(story.defined("rest.story", "\"TÜR\""), (Strings{"rest.story:13:11-16"}));
    EXPECT_EQ(story.defined("hof.story", "\"Stall.lsd\""), (Strings{"rest.story:12:5-16"}));
    EXPECT_EQ(story.defined("hof.story", "AUFGANG"), (Strings{"rest.story:9:11-18"}));
    EXPECT_EQ(story.defined("hof.story", "Balduin:"), (Strings{"rest.story:0:7-14"}));
    EXPECT_EQ(story.defined("rest.story", "Springe NOCHMAL", 9),
              (Strings{"rest.story:10:10-17"}));  // of its own script
    EXPECT_EQ(story.request("textDocument/definition", story.at("hof.story", "// 𝄞")), Json());
}

TEST(Answers, WhoUsesThem) {
    Story story;
    EXPECT_EQ(story.referred("rest.story", "LICHT"),
              (Strings{"hof.story:12:24-29", "hof.story:4:19-24", "rest.story:4:21-26", "rest.story:8:23-28"}));
    EXPECT_EQ(story.referred("hof.story", "MÖHRE\n").size(), 6U);
    Json params = story.at("rest.story", "AUFGANG", 7);  // right behind the word as well
    params["context"] = {{"includeDeclaration", false}};
    EXPECT_EQ(story.places(story.request("textDocument/references", params)), (Strings{"hof.story:13:17-24"}));
    EXPECT_EQ(story.request("textDocument/documentHighlight", story.at("hof.story", "LICHT und", 1)).size(), 2U);
}

TEST(Answers, FlagsObjectsAndItemsGetOtherNames) {
    Story story;
    auto texts = story.renamed("hof.story", "LICHT und", "LAMPE AN");
    EXPECT_NE(texts["hof.story"].find("WennMerker \"LAMPE AN\" und Gegenstand"), std::string::npos);
    EXPECT_NE(texts["hof.story"].find("SetzeMerker \"LAMPE AN\", \"LICHT 2\""), std::string::npos);
    EXPECT_NE(texts["rest.story"].find("LöscheMerker \"LAMPE AN\""), std::string::npos);
    EXPECT_NE(texts["rest.story"].find("Spiel PONG \"LAMPE AN\""), std::string::npos);

    // An object of one room, and the flag that tells whether it has been taken.
    texts = story.renamed("hof.story", "\"Tür\" einsteckbar", "Tor");
    EXPECT_NE(texts["hof.story"].find("ObjektAn \"Tor\""), std::string::npos);
    EXPECT_NE(texts["hof.story"].find("Objekt \"Tor\" einsteckbar"), std::string::npos);
    EXPECT_NE(texts["hof.story"].find("\"GENOMMEN HOF: TOR\""), std::string::npos);
    EXPECT_EQ(texts["rest.story"], rest);

    // Its picture stays.
    texts = story.renamed("hof.story", "MÖHRE\n", "RÜBE");
    EXPECT_NE(texts["hof.story"].find("Gegenstand RÜBE\n"), std::string::npos);
    EXPECT_NE(texts["hof.story"].find("einsteckbar RÜBE"), std::string::npos);
    EXPECT_NE(texts["hof.story"].find("GibGegenstand \"moehre.bmp\""), std::string::npos);
    EXPECT_NE(texts["rest.story"].find("\"moehre.bmp\" heißt RÜBE"), std::string::npos);

    // What is called after its picture gets a name.
    texts = story.renamed("rest.story", "SEIL", "STRICK");
    EXPECT_NE(texts["rest.story"].find("Gegenstand \"seil.bmp\" heißt STRICK\n"), std::string::npos);
    EXPECT_NE(texts["rest.story"].find("Bei STRICK\n"), std::string::npos);

    texts = story.renamed("hof.story", "Balduin:", "Der Esel");
    EXPECT_NE(texts["hof.story"].find(" Der Esel: \"Hü!\""), std::string::npos);
    EXPECT_NE(texts["rest.story"].find("Person Der Esel\n"), std::string::npos);
}

TEST(Answers, SomeNamesCantBe) {
    Story story;
    EXPECT_NE(story.refused("hof.story", "LICHT und", "licht 2").find("gibt es schon"), std::string::npos);
    EXPECT_NE(story.refused("hof.story", "LICHT und", "BÖSE").find("setzt das Spiel selbst"), std::string::npos);
    EXPECT_NE(story.refused("hof.story", "LICHT und", "a\"b"), "");
    EXPECT_NE(story.refused("hof.story", "LICHT und", "日本"), "");
    EXPECT_NE(story.refused("hof.story", "LICHT und", ""), "");
    EXPECT_NE(story.refused("hof.story", "\"hof.jpg\"", "x.jpg"), "");
    EXPECT_NE(story.refused("hof.story", "EndeWenn", "X"), "");
    EXPECT_EQ(story.request("textDocument/prepareRename", story.at("hof.story", "\"Hof.lsd\"", 1)), Json());
    EXPECT_EQ(
        story.request("textDocument/prepareRename", story.at("hof.story", "\"LICHT 2\"", 1)).at("placeholder"),
        "LICHT 2");
}

TEST(Answers, Help) {
    Story story;
    EXPECT_NE(story.shown("hof.story", "SetzeMerker").find("Setzt einen Merker"), std::string::npos);
    EXPECT_NE(story.shown("hof.story", "Objekt \"").find("worauf der Spieler zeigen kann"), std::string::npos);
    const std::string flag = story.shown("hof.story", "LICHT und");
    EXPECT_NE(flag.find("gesetzt: [hof.story:13]"), std::string::npos);
    EXPECT_NE(flag.find("gelöscht: [rest.story:5]"), std::string::npos);
    EXPECT_NE(flag.find("geprüft: [hof.story:5]"), std::string::npos);
    EXPECT_EQ(story.shown("hof.story", "\"hof.jpg\"").find("die es nicht gibt"), std::string::npos);
    story.open("hof.story", "Raum \"Hof.lsd\"\n    Bild \"weg.jpg\"\n");
    EXPECT_NE(story.shown("hof.story", "\"weg.jpg\"").find("die es nicht gibt"), std::string::npos);
}

TEST(Answers, WhatMayBeWritten) {
    Story story;
    const std::string room = "Raum \"Neu.lsd\"\n    Objekt \"Tor\"\n        Links\n";
    Strings words = story.offered(room, "            We");
    EXPECT_TRUE(has(words, "WennMerker"));
    EXPECT_TRUE(has(words, "Balduin:"));
    EXPECT_TRUE(has(words, "Ablegen"));
    EXPECT_FALSE(has(words, "Farbe"));
    EXPECT_FALSE(has(story.offered("Person X\n", "Te"), "Text"));

    EXPECT_EQ(story.offered(room, "SetzeMerker "), (Strings{"LICHT", "\"LICHT 2\"", "\"GENOMMEN HOF: TÜR\""}));
    EXPECT_TRUE(has(story.offered(room, "WennMerker LICHT und nicht "), "LICHT"));
    EXPECT_TRUE(has(story.offered(room, "WennMerker LICHT "), "oder"));
    EXPECT_TRUE(has(story.offered(room, "WennMerker Gegenstand "), "MÖHRE"));
    EXPECT_TRUE(has(story.offered(room, "Bei "), "SEIL"));
    EXPECT_EQ(story.offered(room, "ObjektAus \"T"), (Strings{"\"Tor\""}));
    EXPECT_TRUE(has(story.offered(room, "Raumwechsel "), "\"Stall.lsd\""));
    EXPECT_EQ(story.offered(room, "ZeigBild \"ke"), (Strings{"\"hof.jpg\"", "\"keller.jpg\""}));
    EXPECT_EQ(story.offered(room, "Ton "), (Strings{"\"a.wav\""}));
    EXPECT_EQ(story.offered(room, "Blende "), (Strings{"weiß", "zurück"}));
    EXPECT_TRUE(has(story.offered(room, "Spiel "), "PONG"));
    EXPECT_TRUE(has(story.offered(room, "Spiel PONG "), "LICHT"));
    EXPECT_EQ(story.offered(room, "Rufe "), (Strings{"AUFGANG"}));
    EXPECT_EQ(story.offered(room + "Marke HIER\n", "Springe "), (Strings{"HIER"}));
    EXPECT_EQ(story.offered(room + "Frage \"?\"\n", "Antwort \"a\" "), (Strings{"einmal", "wenn"}));
    for (const char* quiet : {"// We", "Text \"We", "Balduin: \"We", "    \"We", "Foo "})
        EXPECT_EQ(story.offered(room, quiet), Strings{}) << quiet;
}

TEST(Answers, OutlineAndSymbols) {
    Story story;
    const Json outline = story.request("textDocument/documentSymbol", story.at("hof.story", "Raum"));
    ASSERT_EQ(outline.size(), 1U);
    EXPECT_EQ(outline[0]["name"], "Hof.lsd");
    ASSERT_EQ(outline[0]["children"].size(), 2U);
    EXPECT_EQ(outline[0]["children"][1]["name"], "Tür");
    EXPECT_EQ(outline[0]["children"][1]["children"][1]["name"], "Ablegen");
    EXPECT_EQ(outline[0]["range"]["end"]["line"], 20);
    EXPECT_EQ(story.request("workspace/symbol", {{"query", "tuer"}}).size(), 2U);
    EXPECT_EQ(story.request("workspace/symbol", {{"query", "aufg"}}).size(), 1U);
}

TEST(Answers, FindingsWhileTyping) {
    Story story;
    auto found = story.findings();
    EXPECT_TRUE(has(found["rest.story"], "2:11-23 gegenstand-fehlt"));
    EXPECT_TRUE(has(found["hof.story"], "11:12-14 wort"));
    // A change in one file, and what it means to another: nobody calls the part any more.
    story.notice(
        "textDocument/didChange",
        {{"textDocument", {{"uri", story.uri("rest.story")}, {"version", 2}}},
         {"contentChanges",
          {{{"range", {{"start", {{"line", 9}, {"character", 11}}}, {"end", {{"line", 9}, {"character", 18}}}}},
            {"text", "𝄞X"}},
           {{"range", {{"start", {{"line", 9}, {"character", 11}}}, {"end", {{"line", 9}, {"character", 13}}}}},
            {"text", ""}}}}});
    found = story.findings();
    EXPECT_TRUE(has(found["hof.story"], "13:17-24 skriptteil")) << testing::PrintToString(found);
    EXPECT_EQ(story.defined("rest.story", "Raum \"Stall", 6), (Strings{"rest.story:12:5-16"}));
}

// As `check` tells them, in number, place and kind.
TEST(Answers, FindingsAreThoseOfTheCheck) {
    Story story;
    story.save("hof.story", rooms);
    story.save("rest.story", rest);
    std::ostringstream out;
    std::ostringstream err;
    story::run({"check", story.path("").parent_path().string(), "--json"}, out, err);
    std::map<std::string, Strings> expected;
    for (const Json& finding : Json::parse(out.str())) {
        const fs::path file = finding["file"].get<std::string>();
        expected[file.filename().string()].push_back(std::to_string(finding["line"].get<int>() - 1) + " " +
                                                     finding["code"].get<std::string>());
    }
    for (auto& [file, list] : story.findings()) {
        for (std::string& finding : list)
            finding = finding.substr(0, finding.find(':')) + finding.substr(finding.find(' '));
        EXPECT_EQ(list, expected[file]) << file;
        EXPECT_FALSE(list.empty());
    }
}

// Positions of an editor are units of UTF-16, or bytes if it can.
TEST(Answers, PositionsBehindWideCharacters) {
    for (const bool bytes : {false, true}) {
        Client client(bytes ? Json{{"general", {{"positionEncodings", {"utf-8", "utf-16"}}}}} : Json::object());
        client.open("a.story", "\xEF\xBB\xBFRaum \"a.txt\"\r\nStart\r\nText \"𝄞ä\" Falsch\r\n");
        EXPECT_EQ(client.sent[0]["result"]["capabilities"]["positionEncoding"], bytes ? "utf-8" : "utf-16");
        EXPECT_EQ(client.findings()["a.story"],
                  bytes ? (Strings{"0:8-15 name", "2:6-13 zeichen", "2:14-20 argument"})
                        : (Strings{"0:6-13 name", "2:6-10 zeichen", "2:11-17 argument"}));
    }
}

TEST(Answers, FormattingReplacesTheText) {
    Client client;
    client.open("a.story", "raum \"a.lsd\"\r\nstart\r\nFehlerton");
    const Json params{{"textDocument", {{"uri", client.uri("a.story")}}}, {"options", {{"tabSize", 8}}}};
    const Json edits = client.request("textDocument/formatting", params);
    const std::string set = Client::edited("raum \"a.lsd\"\r\nstart\r\nFehlerton", edits);
    EXPECT_EQ(set, "Raum \"a.lsd\"\r\n    Start\r\n        Fehlerton\r\n");
    client.open("a.story", set);
    EXPECT_EQ(client.request("textDocument/formatting", params), Json::array());
}

// Sources in the editor, on the disk beside it, below it, gone, and no files at all.
TEST(Answers, SourcesThatComeAndGo) {
    Client client;
    client.save("b.story", "Raum \"B.lsd\"\nEinbinden \"teile/c.story\"\n");
    client.save("teile/c.story", "Start\nSetzeMerker AUS_C\n");
    client.open("a.story", "Raum \"A.lsd\"\nStart\nWennMerker AUS_C\nEndeWenn\n");
    EXPECT_EQ(client.places(client.request("textDocument/definition", client.at("a.story", "AUS_C"))),
              (Strings{"c.story:1:12-17"}));
    client.open("teile/c.story", "Start\nSetzeMerker ANDERS\n");
    auto found = client.findings();
    EXPECT_EQ(found["c.story"], (Strings{"1:12-18 merker-nie-geprueft"}));
    EXPECT_TRUE(has(found["a.story"], "2:11-16 merker-nie-gesetzt"));
    client.notice("textDocument/didClose", {{"textDocument", {{"uri", client.uri("teile/c.story")}}}});
    found = client.findings();
    EXPECT_EQ(found.at("c.story"), Strings{});  // told that there is nothing any more
    client.save("b.story", "Raum \"B.lsd\"\n");
    client.notice("workspace/didChangeWatchedFiles", Json::object());
    EXPECT_TRUE(has(client.findings()["a.story"], "2:11-16 merker-nie-gesetzt"));
    client.notice("textDocument/didOpen",
                  {{"textDocument", {{"uri", "untitled:Untitled-1"}, {"version", 1}, {"text", "Raum"}}}});
    const Json unnamed{{"textDocument", {{"uri", "untitled:Untitled-1"}}},
                       {"position", {{"line", 0}, {"character", 0}}}};
    EXPECT_TRUE(client.ask("textDocument/hover", unnamed).contains("error"));
}

}  // namespace zentrox::lsp::test
