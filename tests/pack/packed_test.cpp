#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "platform/codec/zip.h"
#include "platform/machine/files.h"
#include "platform/values/error.h"
#include "platform/values/limits.h"
#include "tests/pack/zip_support.h"

namespace zentrox {
namespace {

namespace fs = std::filesystem;
using test::ZipWriter;

std::string contents(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// The archive of one file, with another number of unpacked bytes told at its start and in its directory.
std::string telling(std::string archive, std::uint32_t size) {
    const std::size_t directory = archive.rfind("PK\x01\x02");
    for (const std::size_t at : {archive.find("PK\x03\x04") + 22, directory + 24})
        for (unsigned byte = 0; byte < 4; ++byte) archive.at(at + byte) = static_cast<char>(size >> 8U * byte);
    return archive;
}

class PackedFiles : public ::testing::Test {
protected:
    Files open(ZipWriter& writer) const {
        const fs::path file = writer.close();
        return Files(file, openZip(file));
    }
    Text refusal(const fs::path& file) const {
        try {
            openZip(file);
        } catch (const DataError& error) {
            return error.message();
        }
        return "no refusal";
    }
    Text refusal(ZipWriter& writer) const { return refusal(writer.close()); }

    test::TempDirectory temp;
    ZipWriter zip{temp.path() / "Größe.zentrox"};
};

TEST_F(PackedFiles, AreFoundAsThoseOfADirectory) {
    const std::string song(100'000, 's');
    zip.add("rooms/", "").add("rooms/Küche.LSD", "kitchen").add("rooms/Start.lsd", "start", ZIP_CM_STORE);
    zip.add("musics/lied.mid", song).add("titel.txt", "Titel: X");
    const Files files = open(zip);
    const Text& top = files.programDirectory();

    EXPECT_TRUE(files.exists(top + Text("ROOMS\\küche.lsd"_t)));
    EXPECT_TRUE(files.exists("rooms\\..\\musics\\.\\lied.mid"));
    EXPECT_EQ(files.read(top + "musics\\Lied.MID"), song);
    EXPECT_EQ(files.list(top + "Rooms\\"), (std::vector<Text>{Text("Küche.LSD"_t), "Start.lsd"}));
    EXPECT_EQ(files.list(""), std::vector<Text>{"titel.txt"});
    EXPECT_TRUE(files.holdsFile(top + "musics\\"));
    EXPECT_FALSE(files.holdsFile(top + "sounds\\"));
    EXPECT_EQ(files.display(top + "ROOMS\\start.LSD"), "rooms\\Start.lsd");

    for (const char* absent : {"rooms", "rooms\\", "rooms\\start.lsd\\", "..\\rooms\\Start.lsd", "start.lsd", ""})
        EXPECT_FALSE(files.exists(absent)) << absent;
    EXPECT_THROW(static_cast<void>(files.read(top + "rooms\\Fehlt.lsd")), DataError);
}

TEST_F(PackedFiles, CanBeOpenedUnderAPathByWhoeverReadsThemSlowly) {
    std::vector<std::string> names;
    for (int i = 0; i < 40; ++i) names.push_back("sounds/" + std::to_string(i) + ".wav");
    for (const std::string& name : names) zip.add(name.c_str(), name);
    const Files files = open(zip);
    std::ifstream early(files.systemPath("sounds\\0.wav"), std::ios::binary);
    for (const std::string& name : names) EXPECT_EQ(contents(files.systemPath(name)), name);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(early), {}), "sounds/0.wav")
        << "it stays while it is open";
    EXPECT_EQ(contents(Files(files).systemPath("SOUNDS\\39.WAV")), "sounds/39.wav");
}

TEST_F(PackedFiles, LeaveSavedGamesAndOtherPlacesToTheSystem) {
    zip.add("rooms/Start.lsd", "start").add("saves/x.xtc", "not a place for games");
    Files files = open(zip);
    const fs::path place = temp.path() / "Łódź" / "saves";  // a name that the game's code page does not have
    files.keepSavesIn(place);
    files.makeDirectory(files.savesDirectory());
    ASSERT_TRUE(fs::is_directory(place));
    EXPECT_EQ(files.systemPath(files.savesDirectory() + "a.xtc"), place / "a.xtc");
    std::ofstream(place / "A.xtc") << "game";
    EXPECT_EQ(files.list(files.savesDirectory()), std::vector<Text>{"A.xtc"});
    EXPECT_EQ(files.read(files.savesDirectory() + "a.XTC"), "game");

    const fs::path other = temp.write("cd/Zentrox", "mark");
    EXPECT_EQ(files.read(Files::gamePath(other)), "mark");
}

TEST_F(PackedFiles, AreRefusedWithNamesThatAreNone) {
    for (const char* name : {"../out.txt", "rooms/../../out.txt", "/etc/passwd", "C:/boot.ini", "rooms\\a.lsd",
                             "rooms//a.lsd", "./a", "rooms/a\nb.lsd"}) {
        ZipWriter bad(temp.path() / "schlecht.zentrox");
        bad.add("rooms/Start.lsd", "x").add(name, "x");
        EXPECT_NE(refusal(bad).find("nicht erlaubt"), Text::npos) << name << ": " << toUtf8(refusal(bad));
    }
    const std::string longest(2000, 'n');
    zip.add(longest.c_str(), "x");
    EXPECT_NE(refusal(zip).find("nicht erlaubt"), Text::npos);
}

TEST_F(PackedFiles, AreRefusedIfTheyAreNoPlainFilesOfTheirOwnName) {
    ZipWriter link(temp.path() / "link.zentrox");
    link.add("rooms/Start.lsd", "/etc/passwd").mode(S_IFLNK | 0777U);
    EXPECT_NE(refusal(link).find("keine einfache Datei"), Text::npos);
    ZipWriter device(temp.path() / "device.zentrox");
    device.add("rooms/Start.lsd", "").mode(S_IFCHR | 0666U);
    EXPECT_NE(refusal(device).find("keine einfache Datei"), Text::npos);
    ZipWriter twice(temp.path() / "twice.zentrox");
    twice.add("rooms/Start.lsd", "a").add("ROOMS/start.LSD", "b");
    EXPECT_NE(refusal(twice).find("doppelt"), Text::npos);
    ZipWriter secret(temp.path() / "secret.zentrox");
    secret.add("rooms/Start.lsd", "a").encrypted();
    EXPECT_NE(refusal(secret).find("anders gepackt"), Text::npos);
    ZipWriter other(temp.path() / "other.zentrox");
    other.add("rooms/Start.lsd", std::string_view("abcabcabcabcabcabc"), ZIP_CM_BZIP2);
    EXPECT_NE(refusal(other).find("anders gepackt"), Text::npos);
}

TEST_F(PackedFiles, AreRefusedIfTheyAreTooManyOrTooMuch) {
    std::vector<std::string> names;
    for (std::uint64_t i = 0; i <= limits::packedFiles; ++i) names.push_back("rooms/" + std::to_string(i));
    for (const std::string& name : names) zip.add(name.c_str(), "", ZIP_CM_STORE);
    EXPECT_NE(refusal(zip).find("zu viele"), Text::npos);

    const std::string bomb(80U << 20U, '\0');
    ZipWriter one(temp.path() / "bomb.zentrox");
    one.add("graphics/a.bmp", bomb);
    EXPECT_NE(refusal(one).find("zu gro"), Text::npos);
}

TEST_F(PackedFiles, AreRefusedIfTheyAreNotAsLongAsTheArchiveSays) {
    const std::string zeros(1U << 20U, '\0');
    zip.add("rooms/Start.lsd", zeros);
    const std::string honest = contents(zip.close());
    EXPECT_EQ(Files(temp.path(), openZip(zip.close())).read("rooms\\Start.lsd"), zeros);
    for (const std::uint32_t size : {0U, 10U, (1U << 20U) - 1, (1U << 20U) + 1}) {
        const fs::path file = temp.write("lie.zentrox", telling(honest, size));
        EXPECT_THROW(
            {
                const Files files(file, openZip(file));
                static_cast<void>(files.read("rooms\\Start.lsd"));
            },
            DataError)
            << size;
    }
    for (const std::uint32_t size : {1U << 31U, ~0U - 1})
        EXPECT_NE(refusal(temp.write("lie.zentrox", telling(honest, size))), "no refusal") << size;
}

TEST_F(PackedFiles, AreRefusedWhereverTheArchiveIsCut) {
    const std::string noise = [] {
        std::string bytes;
        for (unsigned i = 0, x = 1; i < 3000; ++i)
            bytes += static_cast<char>((x = x * 1103515245U + 12345U) >> 16U);
        return bytes;
    }();
    zip.add("rooms/Start.lsd", noise).add("titel.txt", "Titel: X");
    const std::string whole = contents(zip.close());
    for (std::size_t length = 0; length < whole.size(); length += 37)
        EXPECT_NE(refusal(temp.write("cut.zentrox", whole.substr(0, length))), "no refusal") << length;
    EXPECT_NE(refusal(temp.path() / "fehlt.zentrox").find("fehlt"), Text::npos);
    EXPECT_NE(refusal(temp.path()), "no refusal");

    // A byte that has turned: either the archive is refused, or the file in it, or what is read is what was packed.
    for (std::size_t at = 0; at < whole.size(); at += 11) {
        std::string turned = whole;
        turned[at] = static_cast<char>(turned[at] ^ 0x55);
        const fs::path file = temp.write("turned.zentrox", turned);
        try {
            const Files files(file, openZip(file));
            const bool there = files.exists("rooms\\Start.lsd");
            EXPECT_TRUE(!there || files.read("rooms\\Start.lsd") == noise) << at;
        } catch (const DataError& error) {
            EXPECT_FALSE(error.message().empty());
        }
    }
}

}  // namespace
}  // namespace zentrox
