// Names that lead out of a story: nothing is read there, and nothing is written.
#include <sys/stat.h>

#include "platform/machine/whole_file.h"
#include "stranger.h"

namespace zentrox::test {
namespace {

namespace fs = std::filesystem;

constexpr std::int32_t setFlag = 3;
constexpr std::int32_t changeRoom = 4;
constexpr std::int32_t showPicture = 5;

class Names : public Stranger {
protected:
    // A room and a picture outside, which would serve.
    Names() {
        write("Draussen.lsd", room({}, {{setFlag, "DRAUSSEN"}}));
        fs::rename(story / "rooms/Draussen.lsd", outside / "Draussen.lsd");
        directory.write("draussen.bmp", whitePixel());
    }
    // Clicks each object, closes what it has to say, and sees that nobody has gone anywhere.
    static std::string tryAll(std::size_t objects) {
        std::string walk = "until idle\n";
        for (std::size_t i = 0; i < objects; ++i) {
            walk += "use O" + std::to_string(i) + "\nuntil window MsgBox 2000\nkey enter\nuntil idle\n";
            walk += "expect room Start.lsd\nexpect not flag DRAUSSEN\n";
        }
        return walk;
    }
    std::vector<std::string> namesOfTheRoom() const {
        std::string back = directory.path().string() + "/Draussen.lsd";
        for (char& c : back) c = c == '/' ? '\\' : c;
        return {"..\\..\\..\\Draussen.lsd",
                "..\\rooms\\..\\..\\..\\Draussen.lsd",
                "../../../Draussen.lsd",
                back,
                "C:" + back,
                "C:\\Draussen.lsd",
                "\\\\?\\" + back,
                "..\\..\\..\\..\\..\\..\\..\\..\\..\\..\\dev\\zero",
                "..\\..\\..\\..\\..\\..\\..\\..\\..\\..\\etc\\passwd",
                "CON",
                "NUL",
                "COM1.lsd",
                std::string(4000, 'a'),
                std::string(2000, '.') + "\\x.lsd"};
    }
    void startWith(const std::vector<std::string>& names) const {
        std::vector<std::pair<std::string, std::vector<Command>>> objects;
        for (const std::string& name : names)
            objects.emplace_back("O" + std::to_string(objects.size()), std::vector<Command>{{changeRoom, name}});
        write("Start.lsd", room(objects));
    }

    const fs::path outside = directory.path();
};

TEST_F(Names, OfRoomsLeadNowhereElse) {
    const auto names = namesOfTheRoom();
    startWith(names);
    const Played played = play(tryAll(names.size()));
    EXPECT_EQ(played.status, 0) << played.said;
    EXPECT_EQ(played.said.find("found"), std::string::npos) << played.said;
    EXPECT_NE(played.said.find("gehört nicht zur Geschichte"), std::string::npos) << played.said;
    EXPECT_EQ(played.said.find("root:"), std::string::npos) << played.said;
}

TEST_F(Names, InAPackedStoryLeadNowhereElse) {
    const auto names = namesOfTheRoom();
    startWith(names);
    directory.write("fremde/geschichte/titel.txt", "Titel: Fremd\nKennung: fremd\n");
    const fs::path packed = outside / "fremd.zentrox";
    const Played packing = run({STORY, "pack", story.string(), "--into", packed.string()});
    ASSERT_TRUE(fs::exists(packed)) << packing.said;
    const fs::path walk = directory.write("walk", tryAll(names.size()));
    const Played played = run({PROBE, "--dir", packed.string(), "--args", "Start.lsd", walk.string()});
    EXPECT_EQ(played.status, 0) << played.said;
    EXPECT_EQ(played.said.find("found"), std::string::npos) << played.said;
}

TEST_F(Names, OfLinksAndPipesLeadNowhereElse) {
    fs::create_symlink(outside / "Draussen.lsd", story / "rooms/Link.lsd");
    fs::create_directory_symlink(outside, story / "rooms/hinaus");
    fs::create_symlink("/dev/zero", story / "rooms/Null.lsd");
    fs::create_symlink("Kreis.lsd", story / "rooms/Kreis.lsd");
    ASSERT_EQ(mkfifo((story / "rooms/Rohr.lsd").c_str(), 0666), 0);
    const std::vector<std::string> names{"Link.lsd", "hinaus\\Draussen.lsd", "Null.lsd", "Kreis.lsd", "Rohr.lsd"};
    startWith(names);
    const Played played = play(tryAll(names.size()));
    EXPECT_EQ(played.status, 0) << played.said;
    EXPECT_EQ(played.said.find("found"), std::string::npos) << played.said;
}

// Pictures, sounds, songs and films, by links and pipes of each kind.
TEST_F(Names, OfAllOtherFilesLeadNowhereElse) {
    const std::vector<std::pair<std::int32_t, std::string>> kinds{{showPicture, "graphics/link.bmp"},
                                                                  {1, "sounds/link.wav"},
                                                                  {19, "musics/link.mid"},
                                                                  {11, "movies/link.avi"}};
    std::vector<std::pair<std::string, std::vector<Command>>> objects;
    for (const auto& [opcode, file] : kinds) {
        fs::create_symlink(outside / "draussen.bmp", story / file);
        const std::string pipe = file.substr(0, file.find('/')) + "/rohr" + file.substr(file.rfind('.'));
        ASSERT_EQ(mkfifo((story / pipe).c_str(), 0666), 0);
        for (const std::string& name : {file, pipe})
            objects.emplace_back(
                "O" + std::to_string(objects.size()),
                std::vector<Command>{{opcode, name.substr(name.find('/') + 1)}, {setFlag, "WEITER"}});
    }
    write("Start.lsd", room(objects));
    std::string walk = "until idle\n";
    for (std::size_t i = 0; i < objects.size(); ++i) {
        walk += "use O" + std::to_string(i) + "\nwait 300\n";
        if (i < 2) walk += "until window MsgBox\nkey enter\n";
        walk += "until idle\n";
    }
    const Played played = play(walk + "expect flag WEITER\n");
    EXPECT_EQ(played.said.find("found"), std::string::npos) << played.said;
    EXPECT_EQ(played.said.find("voice "), std::string::npos) << played.said;
}

// Beside the story lies a link instead of a saved game, or instead of their directory.
TEST_F(Names, OfSavedGamesLeadNowhereElse) {
    startWith({"x.lsd"});
    const fs::path target = directory.write("brief.txt", "ein Brief");
    for (const bool whole : {true, false}) {
        fs::remove_all(story / "saves");
        if (whole)
            fs::create_directory_symlink(outside, story / "saves");
        else {
            fs::create_directory(story / "saves");
            fs::create_symlink(target, story / "saves/brief.xtc");
        }
        const Played played = play(
            "until idle\nkey f2\nuntil window Dialog\ntype \"brief\"\nkey enter\nuntil window MsgBox\n"
            "say controls\nkey enter\n");
        EXPECT_NE(played.said.find("konnte nicht unter brief.xtc gespeichert werden"), std::string::npos)
            << played.said;
        EXPECT_EQ(readFile(target), "ein Brief");
        EXPECT_FALSE(fs::exists(outside / "brief.xtc"));
    }
}

}  // namespace
}  // namespace zentrox::test
