#include "platform/machine/replace_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <system_error>
#include <thread>

#include "platform/machine/whole_file.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {
namespace {

namespace fs = std::filesystem;

std::ptrdiff_t entries(const TempDirectory& directory) {
    return std::distance(fs::directory_iterator(directory.path()), {});
}

TEST(ReplaceFile, AFailureKeepsTheOldFileAndLeavesNothingOver) {
    TempDirectory directory;
    fs::create_directory(directory.path() / "ordner.xtc");
    for (const fs::path target : {std::string(300, 'n') + ".xtc", std::string("fehlt/spiel.xtc"),
                                  std::string("ordner.xtc"), std::string("")})
        EXPECT_THROW(replaceFile(directory.path() / target, "neu"), std::system_error) << target;
    EXPECT_EQ(entries(directory), 1);
}

TEST(ReplaceFile, FollowsALinkAndKeepsThePermissions) {
    TempDirectory directory;
    const auto target = directory.write("tief/spiel.xtc", "alt");
    fs::permissions(target, fs::perms(0640));
    fs::create_symlink("tief/spiel.xtc", directory.path() / "link.xtc");
    replaceFile(directory.path() / "link.xtc", "neu");
    EXPECT_TRUE(fs::is_symlink(directory.path() / "link.xtc"));
    EXPECT_EQ(readFile(target), "neu");
    EXPECT_EQ(fs::status(target).permissions(), fs::perms(0640));
}

TEST(ReplaceFile, WritesIntoWhatIsNoPlainFile) {
    TempDirectory directory;
    const auto pipe = directory.path() / "rohr";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::string got;
    std::thread reader([&] { got = readFile(pipe).value_or("nothing"); });
    replaceFile(pipe, "durch das Rohr");
    reader.join();
    EXPECT_EQ(got, "durch das Rohr");
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_NO_THROW(replaceFile("/dev/null", "weg"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(ReplaceFile, TwoProcessesThatSaveTheSameNameLeaveOneWholeGame) {
    TempDirectory directory;
    const auto target = directory.path() / "spiel.xtc";
    const std::string first(50'000, '1');
    const std::string second(60'000, '2');
    const pid_t child = fork();
    for (int i = 0; i < 50; ++i) replaceFile(target, child == 0 ? first : second);
    if (child == 0) _exit(0);
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    const auto now = readFile(target);
    EXPECT_TRUE(now == first || now == second);
    EXPECT_EQ(entries(directory), 1);
}

TEST(ReadFile, TakesAllOrNothing) {
    TempDirectory directory;
    const auto file = directory.write("a", std::string(100'000, 'a'));
    EXPECT_EQ(readFile(file)->size(), 100'000U);
    EXPECT_EQ(readFile(file, 100'000)->size(), 100'000U);
    EXPECT_FALSE(readFile(file, 99'999));
    EXPECT_FALSE(readFile(directory.path()));
    EXPECT_FALSE(readFile(directory.path() / "fehlt"));
    EXPECT_FALSE(readFile("/dev/zero", 1'000'000)) << "without end";
    EXPECT_NE(readFile("/proc/self/status"), "") << "without a size";
}

}  // namespace
}  // namespace zentrox::test
