// Sources as they are set: what comes of single lines, and that nothing of a story changes.
#include <fstream>
#include <random>
#include <sstream>

#include "story_support.h"
#include "tests/support/temp_directory.h"
#include "tools/story/commands.h"
#include "tools/story/format.h"

namespace zentrox::story::test {

namespace fs = std::filesystem;

namespace {

std::string contents(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::map<std::string, std::string> filesBelow(const fs::path& directory) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(directory))
        if (entry.is_regular_file())
            files[entry.path().lexically_relative(directory).string()] = contents(entry.path());
    return files;
}

// The same source as somebody writes it who does not care: no indentation but where it is wrong, tabs, words in
// capitals, blanks at the ends, many empty lines.
std::string carelessly(const std::string& source) {
    std::istringstream lines(source);
    std::string out;
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        const std::size_t begin = line.find_first_not_of(' ');
        if (begin == std::string::npos) {
            out += count % 2 == 0 ? "\n\n \t\n" : "\n";
            continue;
        }
        std::string text = line.substr(begin);
        const std::size_t word = text.find_first_of(" :");
        const bool plain = text[0] >= 'A' && text[0] <= 'Z' && (word == std::string::npos || text[word] == ' ');
        for (std::size_t i = 0; plain && i < std::min(word, text.size()); ++i)
            if (text[i] >= 'a' && text[i] <= 'z' && count % 3 == 0)
                text[i] = static_cast<char>(text[i] - 'a' + 'A');
        out += std::string(static_cast<std::size_t>(count % 5), count % 2 == 0 ? ' ' : '\t') + text +
               (count % 4 == 0 ? "  \t" : "") + "\n";
    }
    return out;
}

}  // namespace

TEST(Format, SetsEachKindOfLine) {
    struct Case {
        const char* what;
        const char* source;
        const char* set;
    };
    const std::vector<Case> cases{
        {"the shape of a room",
         "raum a.lsd\nBILD \"b.jpg\"\nstart\nTon \"c.wav\"\nOBJEKT Tür\ninaktiv\nFlaeche\nrechteck 1,2 ,3  "
         "4\nVieleck 1 2,3 "
         "4,5 6\nLinks\nText \"x\"",
         "Raum a.lsd\n    Bild \"b.jpg\"\n    Start\n        Ton \"c.wav\"\n    Objekt Tür\n        Inaktiv\n"
         "        Fläche\n            Rechteck 1, 2, 3 4\n            Vieleck 1 2, 3 4, 5 6\n        Links\n"
         "            Text \"x\"\n"},
        {"blocks, and a comment before the end of one",
         "Skriptteil A\nWennMerker B\nText \"x\"\n// nichts weiter\nEndeWenn\nAuswahl \"?\"\nFall \"a\"\nTon "
         "b.wav\nOption \"c\"\n"
         "EndeAuswahl",
         "Skriptteil A\n    WennMerker B\n        Text \"x\"\n        // nichts weiter\n    EndeWenn\n    Auswahl "
         "\"?\"\n"
         "        Fall \"a\"\n            Ton b.wav\n        Option \"c\"\n    EndeAuswahl\n"},
        {"texts of several lines below their first one",
         "Skriptteil A\nText \"a\"\n\"b\"  \"c\"\nKarl  Otto:\"d\"\n\"e\"\nKarl Otto:\n\"f\"",
         "Skriptteil A\n    Text \"a\"\n         \"b\" \"c\"\n    Karl Otto: \"d\"\n               \"e\"\n"
         "    Karl Otto:\n        \"f\"\n"},
        {"comments behind neighbouring lines, below each other",
         "Skriptteil A// kein Kommentar\nTon a.wav // eins\nTon laenger.wav    // stumm: x\n\nTon b.wav\t// drei  ",
         "Skriptteil A// kein Kommentar\n    Ton a.wav        // eins\n    Ton laenger.wav  // stumm: x\n\n"
         "    Ton b.wav  // drei\n"},
        {"a question in a talk",
         "Skriptteil A\nGespräch\nFrage \"?\"\nAntwort \"a\" einmal\nText \"b\"\nSchluss \"c\" wenn "
         "D\nEndeGespraech",
         "Skriptteil A\n    Gespräch\n        Frage \"?\"\n            Antwort \"a\" einmal\n                Text "
         "\"b\"\n"
         "            Schluss \"c\" wenn D\n    EndeGespräch\n"},
        {"a part of a room that others include, and a line that can't be read",
         "Links\nText \"offen\n  Text   \"zu\"", "Links\nText \"offen\n    Text \"zu\"\n"},
        {"a word of the language that is a name", "Person START\nFarbe 1\nSkriptteil A\nSTART: \"x\"",
         "Person START\n    Farbe 1\nSkriptteil A\n    START: \"x\"\n"},
        {"nothing", "\n \n", ""},
    };
    for (const Case& c : cases) {
        const std::string set = formatted(c.source).value_or("nothing");
        EXPECT_EQ(set, c.set) << c.what;
        EXPECT_EQ(formatted(set), set) << c.what;
    }
}

TEST(Format, KeepsTheMarkAndTheLineEndsOfMostLines) {
    EXPECT_EQ(formatted("\xEF\xBB\xBFraum a.lsd\r\nstart\r\nFehlerton\n"),
              "\xEF\xBB\xBFRaum a.lsd\r\n    Start\r\n        Fehlerton\r\n");
    EXPECT_EQ(formatted("raum a.lsd\rstart"), "Raum a.lsd\r    Start\r");
    EXPECT_EQ(formatted(std::string_view("R\0a\0", 4)), std::nullopt);
    EXPECT_EQ(formatted("Text \"\xFC\""), std::nullopt);
}

TEST(Format, TheDemoStandsAsItIsSet) {
    for (const auto& [name, text] : filesBelow(DEMO))
        if (name.ends_with(".story")) {
            EXPECT_EQ(formatted(text), text) << name;
        }
}

TEST(Format, WhatIsCompiledStaysTheSame) {
    const zentrox::test::TempDirectory directory;
    const auto at = [&](const char* name) { return (directory.path() / name).string(); };
    for (const auto& [name, text] : filesBelow(DEMO)) {
        directory.write("before/" + name, name.ends_with(".story") ? carelessly(text) : text);
        directory.write("after/" + name, name.ends_with(".story") ? carelessly(text) : text);
    }
    std::ostringstream said;
    EXPECT_EQ(run({"format", at("after"), "--check"}, said, said), hasFindings);
    ASSERT_EQ(run({"format", at("after")}, said, said), clean) << said.str();
    ASSERT_EQ(run({"build", at("before"), "--into", at("one")}, said, said), clean) << said.str();
    ASSERT_EQ(run({"build", at("after"), "--into", at("two")}, said, said), clean) << said.str();
    EXPECT_EQ(filesBelow(at("one")), filesBelow(at("two")));
    // And what was careless is set as it was meant, spelling of people and of blank lines aside.
    EXPECT_EQ(filesBelow(at("after")), filesBelow(DEMO));
    said.str("");
    EXPECT_EQ(run({"format", at("after"), "--check"}, said, said), clean);
    EXPECT_EQ(said.str(), "");
}

// Lines that are torn apart, joined, or out of their place: set twice is set once, and all that was said is still
// said.
TEST(Format, DamagedSourcesToo) {
    std::mt19937 random(7);
    const std::vector<std::string> pieces{"\"",
                                          "\n",
                                          ",",
                                          "//",
                                          "{09}",
                                          "{",
                                          "Sonst\n",
                                          "EndeWenn\n",
                                          "\r\n",
                                          "\t",
                                          "Bei A\n",
                                          "\"x\"\n",
                                          "Objekt \"x\"\n",
                                          "EndeGespräch\n",
                                          "Frage \"?\"\n",
                                          "\x01",
                                          "日",
                                          "Einbinden x\n",
                                          ":"};
    std::string all;
    for (const auto& [name, text] : filesBelow(DEMO))
        if (name.ends_with(".story")) all += text;
    const auto said = [](const std::string& source) {
        Findings findings;
        std::vector<Silence> silences;
        std::vector<Place> comments;
        std::size_t words = 0;
        for (const Statement& s : scan(source, 0, findings, silences, &comments)) words += s.size();
        return std::make_tuple(words, comments.size(), silences.size(), findings.all().size());
    };
    int sets = 0;
    for (int i = 0; i < 400; ++i) {
        std::string text = all.substr(random() % (all.size() - 2000), 1500);
        for (unsigned k = 0; k < random() % 12; ++k)
            text.replace(random() % text.size(), random() % 12, pieces[random() % pieces.size()]);
        const auto set = formatted(text);
        if (!set) continue;  // a letter torn apart
        ++sets;
        EXPECT_EQ(formatted(*set), *set) << text;
        EXPECT_EQ(said(*set), said(text)) << text;
        if (HasFailure()) return;
    }
    EXPECT_GT(sets, 200);
}

TEST(Format, TellsWhatItCantRead) {
    const zentrox::test::TempDirectory directory;
    const auto file = directory.write("a.story", "Text \"\xFC\"").string();
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(run({"format", file}, out, err), hasFindings);
    EXPECT_NE(err.str().find("a.story lässt sich nicht als UTF-8 lesen"), std::string::npos);
    EXPECT_EQ(contents(file), "Text \"\xFC\"");
    EXPECT_EQ(run({"format", file + "x"}, out, err), wrongCall);
}

}  // namespace zentrox::story::test
