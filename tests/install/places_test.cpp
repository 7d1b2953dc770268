#include "platform/machine/places.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/support/temp_directory.h"

namespace zentrox {
namespace {

namespace fs = std::filesystem;

PlayersHome homeWith(const std::map<std::string, std::string>& variables) {
    return playersHome([&](const char* name) {
        const auto found = variables.find(name);
        return found == variables.end() ? nullptr : found->second.c_str();
    });
}

TEST(PlayersHome, FollowsTheVariablesThatAreAbsolute) {
    const PlayersHome named =
        homeWith({{"HOME", "/home/a"}, {"XDG_DATA_HOME", "/data/"}, {"XDG_CONFIG_HOME", "/etc/../settings"}});
    EXPECT_EQ(named.data, "/data/zentrox");
    EXPECT_EQ(named.settings, "/settings/zentrox");

    for (const char* useless : {"", "relative/place", "~/.local/share"}) {
        const PlayersHome usual =
            homeWith({{"HOME", "/home/a"}, {"XDG_DATA_HOME", useless}, {"XDG_CONFIG_HOME", useless}});
        EXPECT_EQ(usual.data, "/home/a/.local/share/zentrox") << useless;
        EXPECT_EQ(usual.settings, "/home/a/.config/zentrox") << useless;
    }
    // Without a home of its own the one that the system knows.
    EXPECT_TRUE(homeWith({}).data.is_absolute());
    EXPECT_EQ(homeWith({{"HOME", "here"}}).data, homeWith({}).data);
}

class StoryPlaces : public ::testing::Test {
protected:
    Places at(const fs::path& story, const std::string& name) const {
        PlacesAsked asked{story, name, {}, false};
        const Places places = placesFor(asked, home);
        gatherSaves(places, asked, home);
        return places;
    }
    std::string read(const fs::path& file) const {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    test::TempDirectory temp;
    PlayersHome home{temp.path() / "home/zentrox", temp.path() / "config/zentrox"};
};

TEST_F(StoryPlaces, AWritableDirectoryKeepsItsGamesBesideTheData) {
    const fs::path room = temp.write("story/rooms/Start.lsd", "");
    const fs::path story = room.parent_path().parent_path();
    EXPECT_EQ(at(story, "eine").saves, story / "saves");
    EXPECT_EQ(at(story, "eine").settings, home.settings);
    EXPECT_FALSE(fs::exists(temp.path() / "home")) << "nothing is written before there is a game";
}

TEST_F(StoryPlaces, ALinkThatCameWithTheStoryIsNoPlaceForGames) {
    const fs::path story = temp.write("story/rooms/Start.lsd", "").parent_path().parent_path();
    temp.write("elsewhere/a.xtc", "nobody's");
    fs::create_directory_symlink(temp.path() / "elsewhere", story / "saves");
    EXPECT_EQ(at(story, "eine").saves, home.data / "eine/saves");
    EXPECT_FALSE(fs::exists(home.data / "eine/saves/a.xtc"));
}

TEST_F(StoryPlaces, APackedStoryKeepsThemInThePlayersDataUnderItsName) {
    const fs::path one = temp.write("eine.zentrox", "");
    const fs::path other = temp.write("andere.zentrox", "");
    EXPECT_EQ(at(one, "eine").saves, home.data / "eine/saves");
    EXPECT_EQ(at(other, "andere").saves, home.data / "andere/saves");
    // A name and not a place: the story that was moved finds them.
    fs::rename(one, temp.path() / "moved.zentrox");
    EXPECT_EQ(at(temp.path() / "moved.zentrox", "eine").saves, home.data / "eine/saves");
}

TEST_F(StoryPlaces, ThePlayersWordAndPortableModeWin) {
    const fs::path pack = temp.write("stick/eine.zentrox", "");
    PlacesAsked asked{pack, "eine", {}, true};
    EXPECT_EQ(placesFor(asked, home).saves, temp.path() / "stick/zentrox-portable/eine/saves");
    EXPECT_EQ(placesFor(asked, home).settings, temp.path() / "stick/zentrox-portable/eine/settings");
    asked.saves = temp.path() / "elsewhere";
    EXPECT_EQ(placesFor(asked, home).saves, temp.path() / "elsewhere");
    EXPECT_EQ(placesFor({pack, "eine", {}, false}, PlayersHome{}).saves,
              temp.path() / "stick/zentrox-portable/eine/saves")
        << "without any home";
}

TEST_F(StoryPlaces, LinksThatCameWithAPortableStoryAreNoPlaceForSettings) {
    const fs::path story = temp.write("story/rooms/Start.lsd", "").parent_path().parent_path();
    const PlacesAsked asked{story, "eine", {}, true};
    EXPECT_EQ(placesFor(asked, home).settings, story / "settings");
    const fs::path letter = temp.write("brief.txt", "ein Brief");
    fs::create_directory(story / "settings");
    fs::create_symlink(letter, story / "settings/einstellungen.txt");
    EXPECT_EQ(placesFor(asked, home).settings, home.settings);
    fs::remove_all(story / "settings");
    fs::create_directory_symlink(temp.path(), story / "settings");
    EXPECT_EQ(placesFor(asked, home).settings, home.settings);
    // The whole story may lie behind a link.
    fs::remove(story / "settings");
    fs::create_directory_symlink(story, temp.path() / "hierher");
    const PlacesAsked linked{temp.path() / "hierher", "eine", {}, true};
    EXPECT_EQ(placesFor(linked, home).settings, temp.path() / "hierher/settings");
}

TEST_F(StoryPlaces, GamesOfTheSameStoryAreFoundWhereverItWasPlayed) {
    temp.write("story/rooms/Start.lsd", "");
    temp.write("story/saves/Anfang.xtc", "of the folder");
    at(temp.path() / "story", "eine");
    const fs::path pack = temp.write("eine.zentrox", "");
    const Places packed = at(pack, "eine");
    EXPECT_EQ(read(packed.saves / "Anfang.xtc"), "of the folder");

    // One that has the same name and is another game comes beside it, once; what is deleted stays deleted.
    temp.write("home/zentrox/eine/saves/Ende.xtc", "of the pack");
    temp.write("story/saves/Ende.xtc", "of the folder, too");
    at(pack, "eine");
    at(pack, "eine");
    EXPECT_EQ(read(packed.saves / "Ende.xtc"), "of the pack");
    EXPECT_EQ(read(packed.saves / "Ende (2).xtc"), "of the folder, too");
    EXPECT_FALSE(fs::exists(packed.saves / "Ende (3).xtc"));
    fs::remove(packed.saves / "Anfang.xtc");
    at(pack, "eine");
    EXPECT_FALSE(fs::exists(packed.saves / "Anfang.xtc"));

    // And back; another story gets nothing.
    at(temp.path() / "story", "eine");
    EXPECT_EQ(read(temp.path() / "story/saves/Ende (2).xtc"), "of the pack");
    EXPECT_FALSE(fs::exists(at(temp.write("andere.zentrox", ""), "andere").saves));
}

}  // namespace
}  // namespace zentrox
