#include <gtest/gtest.h>

#include "menu/datensuche.h"
#include "platform/machine/roots.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {
namespace {

// A program's directory and some roots, all in one temporary directory.
struct Disk {
    TempDirectory directory;
    Files files{directory.path() / "programm"};
    Zustand z;

    Disk() { std::filesystem::create_directories(directory.path() / "programm"); }
    Text at(TextView path) const { return Files::gamePath(directory.path()) + "\\" + Text(path); }
    Text search(const std::vector<std::string>& roots) {
        std::vector<std::filesystem::path> paths;
        paths.reserve(roots.size());
        for (const auto& root : roots) paths.push_back(directory.path() / root);
        return DatenSuchen(files, paths, z);
    }
};

TEST(DataSearch, TakesWhatIsInstalledAndTheRestFromTheCd) {
    Disk disk;
    disk.directory.write("programm/sounds/a.mp3", "");
    disk.directory.write("programm/ROOMS/start.lsd", "");
    disk.directory.write("programm/graphics/tief/bild.jpg", "");  // no plain file directly in it
    disk.directory.write("cd/Zentrox", "");
    EXPECT_EQ(disk.search({"leer", "cd"}), disk.at("cd\\"));
    EXPECT_EQ(disk.z.PfadSounds, disk.at("programm\\sounds\\"));
    EXPECT_EQ(disk.z.PfadRooms, disk.at("programm\\rooms\\")) << "case does not matter";
    EXPECT_EQ(disk.z.PfadGraphics, disk.at("cd\\Spiel\\Graphics\\"));
    EXPECT_EQ(disk.z.PfadMovies, disk.at("cd\\Spiel\\Movies\\"));
    EXPECT_EQ(disk.z.PfadCursors, disk.at("cd\\Spiel\\Cursors\\"));
    EXPECT_EQ(disk.z.PfadItems, disk.at("cd\\Spiel\\Items\\"));
    EXPECT_EQ(disk.z.PfadMusics, disk.at("cd\\Spiel\\Musics\\"));
    EXPECT_EQ(disk.z.PfadGames, disk.at("cd\\Spiel\\Games\\"));
    EXPECT_TRUE(std::filesystem::is_directory(disk.directory.path() / "programm/saves"));
}

TEST(DataSearch, TheLastMarkedRootCounts) {
    Disk disk;
    disk.directory.write("eins/Zentrox", "");
    disk.directory.write("zwei/ZENTROX", "");
    disk.directory.write("drei/Zentrox/ist ein Verzeichnis", "");
    EXPECT_EQ(disk.search({"eins", "zwei", "drei", "fehlt"}), disk.at("zwei\\"));
    EXPECT_EQ(disk.z.PfadSounds, disk.at("zwei\\Spiel\\sounds\\"));
}

TEST(DataSearch, AGameUnpackedIntoARootIsNoCd) {
    Disk disk;
    disk.directory.write("stick/zentrox", "the program");
    disk.directory.write("stick/rooms/Start.lsd", "");
    EXPECT_EQ(disk.search({"stick"}), "");
    disk.directory.write("stick/Zentrox", "the mark beside it");
    EXPECT_EQ(disk.search({"stick"}), disk.at("stick\\"));
}

TEST(DataSearch, WithoutACdThePathsAreRelative) {
    Disk disk;
    std::filesystem::remove_all(disk.directory.path() / "programm");
    EXPECT_EQ(disk.search({"eins"}), "");
    EXPECT_EQ(disk.z.PfadRooms, "Spiel\\Rooms\\");
    EXPECT_EQ(disk.z.PfadSounds, "Spiel\\sounds\\");
}

TEST(SearchRoots, AreTheProgramsOwnAndTheMountedMedia) {
    TempDirectory directory;
    const auto table = directory.write("mounts",
                                       "/dev/sda1 / ext4 rw 0 0\n"
                                       "proc /proc proc rw 0 0\n"
                                       "/dev/sdb1 /run/media/velmar/USB\\040STICK vfat rw 0 0\n"
                                       "/dev/sr0 /cd iso9660 ro 0 0\n"
                                       "/dev/sdc1 /mediathek ext4 rw 0 0\n"
                                       "kaputt\n"
                                       "/dev/sdd1 /media/k\\303\\274che ext4 rw 0 0\n"
                                       "/dev/sde1 /mnt vfat rw 0 0\n"
                                       "/dev/sr0 /cd iso9660 ro 0 0\n"
                                       "/dev/loop1 /srv/film udf ro 0 0\n");
    auto roots = searchRoots(directory.path(), table);
    ASSERT_FALSE(roots.empty());
    std::filesystem::path below = directory.path();
    while (below != roots.front() && below.has_relative_path()) below = below.parent_path();
    EXPECT_EQ(below, roots.front()) << "the program's own root lies above it";
    roots.erase(roots.begin());
    EXPECT_EQ(roots, (std::vector<std::filesystem::path>{"/run/media/velmar/USB STICK", "/cd", "/media/küche",
                                                         "/mnt", "/srv/film"}));
    EXPECT_EQ(searchRoots(directory.path(), directory.path() / "fehlt").size(), 1U);
}

}  // namespace
}  // namespace zentrox::test
