#include "platform/machine/replace_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <sstream>
#include <system_error>

#include "tests/support/temp_directory.h"

namespace zentrox::test {
namespace {

std::string contents(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

// Runs `work` in a process of its own and gives its exit status.
template <class Work>
int inAProcess(Work work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(ReplaceFile, AKillAtAnyStepLeavesTheOldOrTheNewFile) {
    const std::string old(20'000, 'a');
    const std::string fresh(30'000, 'n');
    TempDirectory directory;
    const auto target = directory.write("spiel.xtc", old);
    bool sawOld = false;
    int kill = 1;
    for (;; ++kill) {
        std::ofstream(target, std::ios::binary) << old;
        const int status = inAProcess([&] {
            int step = 0;
            replaceFile(target, fresh, [&] {
                if (++step == kill) _exit(1);
            });
        });
        const std::string now = contents(target);
        ASSERT_TRUE(now == old || now == fresh) << "killed at step " << kill;
        if (now == old) sawOld = true;
        if (status == 0) {
            EXPECT_EQ(now, fresh);
            break;
        }
    }
    EXPECT_TRUE(sawOld);
    EXPECT_GT(kill, 10) << "each write of it is a step";
}

TEST(ReplaceFile, AFailureKeepsTheOldFileAndLeavesNothingOver) {
    TempDirectory directory;
    const auto target = directory.write("spiel.xtc", "alt");
    const auto entries = [&] { return std::distance(std::filesystem::directory_iterator(directory.path()), {}); };
    EXPECT_THROW(replaceFile(target, "neu",
                             [step = 0]() mutable {
                                 if (++step == 3) throw std::system_error(ENOSPC, std::generic_category());
                             }),
                 std::system_error);
    EXPECT_EQ(contents(target), "alt");
    EXPECT_THROW(replaceFile(directory.path() / (std::string(300, 'n') + ".xtc"), "neu"), std::system_error);
    EXPECT_THROW(replaceFile(directory.path() / "fehlt" / "spiel.xtc", "neu"), std::system_error);
    std::filesystem::create_directory(directory.path() / "ordner.xtc");
    EXPECT_THROW(replaceFile(directory.path() / "ordner.xtc", "neu"), std::system_error);
    EXPECT_EQ(entries(), 2);
}

TEST(ReplaceFile, NoRoomInTheMiddleOfTheFileIsAFailure) {
    TempDirectory directory;
    const auto target = directory.write("spiel.xtc", "alt");
    const int code = inAProcess([&] {
        static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
        const rlimit small{10'000, 10'000};
        setrlimit(RLIMIT_FSIZE, &small);
        try {
            replaceFile(target, std::string(30'000, 'n'));
        } catch (const std::system_error& error) {
            _exit(error.code().value());
        }
    });
    EXPECT_EQ(code, EFBIG);
    EXPECT_EQ(contents(target), "alt");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory.path()), {}), 1);
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
    const std::string now = contents(target);
    EXPECT_TRUE(now == first || now == second);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory.path()), {}), 1);
}

}  // namespace
}  // namespace zentrox::test
