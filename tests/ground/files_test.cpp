#include "platform/machine/files.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/values/error.h"
#include "platform/values/limits.h"
#include "tests/support/temp_directory.h"

namespace zentrox {
namespace {

namespace fs = std::filesystem;

class GameFiles : public ::testing::Test {
protected:
    test::TempDirectory temp;
    Files files{temp.path()};

    Text failure(TextView path) const {
        try {
            files.read(path);
        } catch (const DataError& error) {
            return error.message();
        }
        return "no failure";
    }
};

TEST_F(GameFiles, FindEachComponentWithoutRegardToCase) {
    temp.write("Rooms/Küche.LSD", "kitchen");
    EXPECT_EQ(files.read("rooms\\KÜCHE.lsd"_t), "kitchen");
    EXPECT_EQ(files.read("ROOMS\\küche.lsd"_t), "kitchen");
    EXPECT_EQ(files.read("rooms\\..\\rooms\\\\küche.lsd"_t), "kitchen");
    EXPECT_TRUE(files.exists(files.programDirectory() + "rOOms\\" + Text("Küche.lsd"_t)));
    EXPECT_FALSE(files.exists("rooms\\Kuche.lsd"));
    EXPECT_FALSE(files.exists("rooms"));
    EXPECT_FALSE(files.exists("Rooms\\Küche.LSD\\"_t));
}

TEST_F(GameFiles, PreferTheExactSpelling) {
    temp.write("start.lsd", "small");
    temp.write("Start.lsd", "capital");
    EXPECT_EQ(files.read("start.lsd"), "small");
    EXPECT_EQ(files.read("Start.lsd"), "capital");
    EXPECT_EQ(files.read("START.LSD"), "capital");  // the first in the order of bytes
}

TEST_F(GameFiles, SpellWhatDoesNotExistAsAsked) {
    temp.write("Saves/a.xtc", "");
    EXPECT_EQ(files.systemPath("saves\\Größe.xtc"_t), temp.path() / "Saves" / "Größe.xtc");
    EXPECT_EQ(files.systemPath("nowhere\\Deep\\x"), temp.path() / "nowhere" / "Deep" / "x");
    EXPECT_EQ(files.systemPath(""), temp.path());
    EXPECT_FALSE(files.exists(Text("Saves\\a.xtc") + '\0'));
}

TEST_F(GameFiles, ReachNamesThatTheCodePageLacks) {
    temp.write("Музыка/песня.mid", "song");
    temp.write("latin\xFC.txt", "latin");
    EXPECT_EQ(files.read("??????\\?????.mid"), "song");
    EXPECT_EQ(files.list("??????\\"), std::vector<Text>{"?????.mid"});
    EXPECT_EQ(files.read("LATIN?.txt"), "latin");

    const Files inside(temp.path() / "Музыка");
    EXPECT_TRUE(inside.programDirectory().ends_with("\\??????\\"));
    EXPECT_EQ(inside.read(inside.programDirectory() + "?????.mid"), "song");
}

TEST_F(GameFiles, ListPlainFilesInOrder) {
    for (const char* name : {"b.txt", "A.txt", "ö.txt", "c.txt"}) temp.write(std::string("d/") + name, "");
    temp.write("d/inner/e.txt", "");
    EXPECT_EQ(files.list("D\\"), (std::vector<Text>{"A.txt", "b.txt", "c.txt", Text("ö.txt"_t)}));
    EXPECT_TRUE(files.holdsFile("d"));
    fs::create_directories(temp.path() / "only" / "directories");
    EXPECT_FALSE(files.holdsFile("only\\"));
    EXPECT_FALSE(files.holdsFile("missing\\"));
    EXPECT_TRUE(files.list("d\\A.txt").empty());
}

TEST_F(GameFiles, MakeOneDirectoryAtMost) {
    files.makeDirectory("saves\\");
    EXPECT_TRUE(fs::is_directory(temp.path() / "saves"));
    files.makeDirectory("SAVES\\");
    EXPECT_FALSE(fs::exists(temp.path() / "SAVES"));
    files.makeDirectory("far\\away");
    EXPECT_FALSE(fs::exists(temp.path() / "far"));
}

TEST_F(GameFiles, AreShownAsFoundOnTheDisk) {
    temp.write("Graphics/Flur.jpg", "");
    EXPECT_EQ(files.display("GRAPHICS\\flur.JPG"), "Graphics\\Flur.jpg");
    EXPECT_EQ(files.display(files.programDirectory() + "graphics\\"), "Graphics\\");
    EXPECT_EQ(files.display("graphics\\..\\weg.bmp"), "weg.bmp");
    EXPECT_EQ(files.display("\\nirgends\\x.bmp"), "\\nirgends\\x.bmp");
    EXPECT_EQ(files.display(files.programDirectory() + "..\\fremd.bmp"),
              Files::gamePath(temp.path().parent_path() / "fremd.bmp"));
}

TEST_F(GameFiles, ExplainInGermanWhatCantBeRead) {
    temp.write("Rooms/a.lsd", "");
    EXPECT_EQ(files.read("rooms\\A.lsd"), "");
    EXPECT_EQ(failure("ROOMS\\Straße.lsd"_t), "Die Datei \"Rooms\\Straße.lsd\" fehlt."_t);
    EXPECT_EQ(failure("rooms"), "Die Datei \"Rooms\" kann nicht gelesen werden.");
    fs::resize_file(temp.write("Rooms/b.lsd", ""), limits::fileBytes + 1);
    EXPECT_EQ(failure("rooms\\B.lsd"), "Die Datei \"Rooms\\b.lsd\" ist zu groß."_t);
    if (geteuid() == 0) return;  // who reads everything
    fs::permissions(temp.path() / "Rooms" / "a.lsd", fs::perms::none);
    EXPECT_EQ(failure("rooms\\a.lsd"), "Die Datei \"Rooms\\a.lsd\" kann nicht gelesen werden.");
}

TEST_F(GameFiles, TakeTheProgramDirectoryInAnyForm) {
    temp.write("x", "1");
    for (const fs::path& form : {temp.path() / "", temp.path() / ".", temp.path() / "sub" / ".."})
        EXPECT_EQ(Files(form).programDirectory(), files.programDirectory());
    EXPECT_EQ(Files("/").programDirectory(), "\\");
}

}  // namespace
}  // namespace zentrox
