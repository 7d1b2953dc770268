// What lies in the tree for editors is what the program makes, and says nothing that the language does not.
#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>

#include "tools/story/commands.h"
#include "tools/story/vocabulary.h"

namespace zentrox::editors::test {

namespace {

std::string contents(const std::string& name) {
    std::ifstream in(std::string(EDITORS "/") + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string made(const std::string& editor) {
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(story::run({"grammar", editor}, out, err), story::clean) << err.str();
    return out.str();
}

}  // namespace

// After a change: zentrox-story grammar EDITOR > FILE
TEST(Editors, GrammarsInTheTreeAreThoseOfTheProgram) {
    EXPECT_EQ(contents("vim/syntax/zentrox.vim"), made("vim"));
    EXPECT_EQ(contents("vscode/syntaxes/zentrox.tmLanguage.json"), made("vscode"));
    EXPECT_EQ(contents("kate/zentrox-geschichte.xml"), made("kate"));
}

TEST(Editors, EveryWordIsColouredEverywhere) {
    for (const char* editor : {"vim", "vscode", "kate"}) {
        const std::string grammar = made(editor);
        for (const story::LanguageWord& word : story::languageWords())
            EXPECT_NE(grammar.find(toUtf8(word.name)), std::string::npos) << editor << " " << toUtf8(word.name);
        EXPECT_NE(grammar.find("Loesche"), std::string::npos) << editor;
    }
}

TEST(Editors, TheExtensionNamesFilesThatAreThere) {
    const auto package = nlohmann::json::parse(contents("vscode/package.json"));
    const auto& language = package["contributes"]["languages"][0];
    const auto& grammar = package["contributes"]["grammars"][0];
    for (const auto& file : {package["main"], language["configuration"], grammar["path"]})
        EXPECT_NE(contents("vscode/" + file.get<std::string>()), "") << file;
    EXPECT_EQ(language["id"], grammar["language"]);
    EXPECT_EQ(nlohmann::json::parse(made("vscode"))["scopeName"], grammar["scopeName"]);
    EXPECT_EQ(package["version"], ZENTROX_VERSION);
    // The shape of a finding, as `check` prints it.
    const std::regex finding(package["contributes"]["problemMatchers"][0]["pattern"]["regexp"].get<std::string>());
    EXPECT_TRUE(std::regex_match("story/hof.story:3:14: warning [bild-fehlt]: das Bild \"x.jpg\" fehlt", finding));
    EXPECT_TRUE(nlohmann::json::accept(contents("vscode/language-configuration.json")));
    EXPECT_TRUE(nlohmann::json::accept(contents("kate/lspclient.json")));
}

}  // namespace zentrox::editors::test
