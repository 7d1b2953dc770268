#include "main/options.h"

#include <gmock/gmock.h>

#include "menu/datensuche.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

class TheCall : public testing::Test {
protected:
    void SetUp() override {
        for (const char* name : {"spiel", "cd", "zweite cd"}) fs::create_directory(directory / name);
    }

    Call call(std::vector<std::string> words) const {
        words.insert(words.begin(), "zentrox");
        std::vector<const char*> pointers;
        for (const std::string& word : words) pointers.push_back(word.c_str());
        return readOptions(static_cast<int>(pointers.size()), pointers.data(), directory / "programm");
    }
    std::string at(const char* name) const { return (directory / name).string(); }

    TempDirectory temp;
    const fs::path directory = temp.path();
};

TEST_F(TheCall, PlaysInTheProgramsDirectoryUnlessAnotherIsNamed) {
    EXPECT_EQ(call({}).options->directory, directory / "programm");
    EXPECT_EQ(call({"--dir", at("cd")}).options->directory, directory / "cd");
    EXPECT_EQ(call({"--dir=" + at("cd"), "--dir", at("spiel/../spiel")}).options->directory, directory / "spiel");
}

TEST_F(TheCall, NamesRootsInTheirOrderAndTheRoomBehindThem) {
    const auto options = call({"--root", at("zweite cd"), "Keller.lsd", "--root=" + at("cd")}).options;
    ASSERT_TRUE(options);
    EXPECT_THAT(options->roots, ElementsAre(directory / "zweite cd", directory / "cd"));
    EXPECT_EQ(options->commandLine, "Keller.lsd");
}

TEST_F(TheCall, WinsWithItsRootsOverWhatIsMounted) {
    const auto options = call({"--root", at("cd")}).options;
    std::ofstream(directory / "cd" / "Zentrox");
    std::ofstream(directory / "zweite cd" / "Zentrox");
    Zustand z;
    const auto roots = rootsToSearch(*options, {"/", directory / "zweite cd"});
    Files files(directory / "spiel");
    EXPECT_EQ(DatenSuchen(files, roots, z), Files::gamePath(directory / "cd") + "\\");
}

TEST_F(TheCall, TakesARoomWithBlanksUnquoted) {
    EXPECT_EQ(call({"Der", "alte Keller.lsd"}).options->commandLine, "Der alte Keller.lsd");
    EXPECT_EQ(call({"--", "--seltsam.lsd"}).options->commandLine, "--seltsam.lsd");
}

TEST_F(TheCall, TakesAPackedStoryWhereverItIsNamed) {
    temp.write("muster.zentrox", "");
    for (const auto& words :
         std::vector<std::vector<std::string>>{{at("muster.zentrox")}, {"--dir", at("muster.zentrox")}}) {
        const auto options = call(words).options;
        EXPECT_EQ(options->directory, directory / "muster.zentrox");
        EXPECT_EQ(options->commandLine, "");
        EXPECT_TRUE(options->storyNamed);
    }
    EXPECT_EQ(call({at("muster.zentrox"), "Keller.lsd"}).options->commandLine, "Keller.lsd");
    EXPECT_EQ(call({"fehlt.zentrox"}).options->commandLine, "fehlt.zentrox") << "a room, as any other word";
    EXPECT_FALSE(call({}).options->storyNamed);
}

TEST_F(TheCall, EndsAfterHelpAndVersionAndAfterAWrongWord) {
    const auto status = [&](std::vector<std::string> words) {
        const Call made = call(std::move(words));
        EXPECT_FALSE(made.options);
        return made.status;
    };
    testing::internal::CaptureStdout();
    EXPECT_EQ(status({"--version"}), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "zentrox " ZENTROX_VERSION "\n");
    testing::internal::CaptureStdout();
    EXPECT_EQ(status({"--help"}), 0);
    const std::string help = testing::internal::GetCapturedStdout();
    for (const char* word : {"--dir", "--root", "ROOM", "F11", "ZENTROX_SOUND=none"})
        EXPECT_THAT(help, HasSubstr(word));
    testing::internal::CaptureStderr();
    EXPECT_EQ(status({"--unbekannt"}), 2);
    EXPECT_EQ(status({"--dir"}), 2);
    EXPECT_EQ(status({"--root", at("fehlt")}), 2);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("fehlt"));
}

TEST_F(TheCall, IsRepeatedByARestartWithoutItsRoom) {
    const auto options =
        call({"--root", at("zweite cd"), "--dir", at("spiel"), "Keller.lsd", "--saves", at("cd"), "--portable"})
            .options;
    const auto again = restartCommand(directory / "zentrox", *options);
    EXPECT_THAT(again, ElementsAre(at("zentrox"), "--dir", at("spiel"), "--root", at("zweite cd"), "--saves",
                                   at("cd"), "--portable"));
    const auto second = call({again.begin() + 1, again.end()}).options;
    EXPECT_EQ(second->directory, options->directory);
    EXPECT_EQ(second->roots, options->roots);
    EXPECT_EQ(second->commandLine, "");
}

}  // namespace
}  // namespace zentrox::test
