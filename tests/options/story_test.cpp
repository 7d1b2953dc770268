#include "main/story.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/support/temp_directory.h"

namespace zentrox::test {
namespace {

namespace fs = std::filesystem;

class ChosenStory : public ::testing::Test {
protected:
    fs::path chosen(const std::vector<fs::path>& roots = {}) const {
        return storyToPlay({}, program, roots, [this](const char* name) {
            const auto found = variables.find(name);
            return found == variables.end() ? nullptr : found->second.c_str();
        });
    }

    TempDirectory temp;
    const fs::path program = temp.path() / "usr/games";
    std::map<std::string, std::string> variables{{"HOME", (temp.path() / "home").string()},
                                                 {"XDG_DATA_DIRS", (temp.path() / "site").string()}};
};

TEST_F(ChosenStory, IsTheNearestThatThereIs) {
    fs::create_directories(program);
    EXPECT_EQ(chosen(), program) << "as it is";

    const fs::path site = temp.write("site/zentrox/stories/seite.zentrox", "");
    EXPECT_EQ(chosen(), site);
    const fs::path own = temp.write("home/.local/share/zentrox/stories/eigene.zentrox", "");
    EXPECT_EQ(chosen(), own);
    temp.write("usr/share/zentrox/stories/b/rooms/Start.lsd", "");
    temp.write("usr/share/zentrox/stories/a/readme", "no story");
    EXPECT_EQ(chosen(), temp.path() / "usr/share/zentrox/stories/b")
        << "beside the program, wherever that was moved";
    const fs::path beside = temp.write("usr/games/meine.zentrox", "");
    EXPECT_EQ(chosen(), beside);
    temp.write("cd/Zentrox", "");
    EXPECT_EQ(chosen({temp.path() / "cd"}), program) << "with the data on a CD";
    temp.write("usr/games/rooms/Start.lsd", "");
    EXPECT_EQ(chosen(), program);
    Options named;
    named.directory = own;
    named.storyNamed = true;
    EXPECT_EQ(storyToPlay(named, program, {}), own);
}

TEST_F(ChosenStory, HasADirectoryNameThatNoOtherStoryHas) {
    const auto nameOf = [](const fs::path& story) { return directoryNameOf({}, Files(story), story); };
    temp.write("a/Mein Spiel/rooms/Start.lsd", "one");
    temp.write("b/Mein Spiel/rooms/Start.lsd", "two");
    const std::string one = nameOf(temp.path() / "a/Mein Spiel");
    const std::string two = nameOf(temp.path() / "b/Mein Spiel");
    EXPECT_TRUE(one.starts_with("mein-spiel-")) << one;
    EXPECT_NE(one, two);
    fs::create_directory(temp.path() / "c");
    fs::rename(temp.path() / "a/Mein Spiel", temp.path() / "c/Mein Spiel");
    EXPECT_EQ(nameOf(temp.path() / "c/Mein Spiel"), one) << "moved";
    Titel title;
    title.Kennung = "fund-2";
    EXPECT_EQ(directoryNameOf(title, Files(temp.path()), temp.path()), "fund-2");
}

TEST_F(ChosenStory, IsPortableBesideAMarkedProgram) {
    fs::create_directories(program);
    EXPECT_FALSE(placesAsked({}, program, "/x", "x").portable);
    temp.write("usr/games/portable", "");
    EXPECT_TRUE(placesAsked({}, program, "/x", "x").portable);
}

}  // namespace
}  // namespace zentrox::test
