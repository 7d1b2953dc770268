// What a sealed process can still do, tried by a process that is one.
#include "platform/codec/apart/seal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "tests/support/temp_directory.h"

namespace zentrox::test {
namespace {

using apart::channelPlace;
using apart::filePlace;

struct Attempt {
    const char* what;
    long (*tried)();
    bool possible;
};

// The number of a file that is open beside those of the seal.
constexpr int other = 5;

int nobody() {
    return static_cast<int>(getppid());
}

const std::vector<Attempt>& attempts() {
    static const std::vector<Attempt> all{
        {"reads its file",
         [] {
             char c = 0;
             return static_cast<long>(read(filePlace, &c, 1));
         },
         true},
        {"talks", [] { return static_cast<long>(write(channelPlace, "", 0)); }, true},
        {"takes memory", [] { return std::malloc(1'000'000) != nullptr ? 0L : -1L; }, true},
        {"opens a file", [] { return static_cast<long>(open("/etc/passwd", O_RDONLY)); }, false},
        {"makes a file", [] { return static_cast<long>(creat("/tmp/zentrox-sealed", 0600)); }, false},
        {"looks at a file",
         [] {
             struct stat s {};
             return static_cast<long>(stat("/", &s));
         },
         false},
        {"removes a file", [] { return static_cast<long>(unlink("/tmp/zentrox-none")); }, false},
        {"writes elsewhere", [] { return static_cast<long>(write(other, "x", 1)); }, false},
        {"writes elsewhere in pieces",
         [] {
             const iovec v{const_cast<char*>("x"), 1};
             return static_cast<long>(writev(other, &v, 1));
         },
         false},
        {"writes at a place", [] { return static_cast<long>(pwrite(other, "x", 1, 0)); }, false},
        {"cuts a file", [] { return static_cast<long>(ftruncate(other, 0)); }, false},
        {"copies a file's number", [] { return static_cast<long>(dup(channelPlace)); }, false},
        {"opens a socket", [] { return static_cast<long>(socket(AF_INET, SOCK_STREAM, 0)); }, false},
        {"opens one to the display", [] { return static_cast<long>(socket(AF_UNIX, SOCK_STREAM, 0)); }, false},
        {"sends files", [] { return static_cast<long>(send(channelPlace, "x", 1, MSG_NOSIGNAL)); }, false},
        {"starts a process", [] { return static_cast<long>(syscall(SYS_fork)); }, false},
        {"starts a thread",
         [] { return static_cast<long>(syscall(SYS_clone, 0x00010f00, nullptr, nullptr, nullptr, 0)); }, false},
        {"becomes a program", [] { return static_cast<long>(execl("/bin/true", "true", nullptr)); }, false},
        {"ends its parent", [] { return static_cast<long>(kill(nobody(), 0)); }, false},
        {"reads its parent", [] { return ptrace(PTRACE_ATTACH, nobody(), nullptr, nullptr); }, false},
        {"makes code",
         [] {
             return mmap(nullptr, 4096, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) ==
                            MAP_FAILED
                        ? -1L
                        : 0L;
         },
         false},
        {"turns memory into code",
         [] {
             void* const page = mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
             return static_cast<long>(mprotect(page, 4096, PROT_READ | PROT_EXEC));
         },
         false},
        {"lifts its bounds", [] { return static_cast<long>(syscall(SYS_prlimit64, 0, 7, nullptr, nullptr)); },
         false},
        {"asks for rights", [] { return static_cast<long>(prctl(PR_SET_DUMPABLE, 1)); }, false},
        {"goes elsewhere", [] { return static_cast<long>(chdir("/")); }, false},
    };
    return all;
}

// Seals itself and answers with a letter for each attempt.
[[noreturn]] void tryAll(int answers, const std::filesystem::path& file, bool takesFiles) {
    const int readable = open(file.c_str(), O_RDONLY);
    const int writable = open(file.c_str(), O_RDWR);
    dup2(answers, 20), dup2(readable, 21), dup2(writable, 22);
    dup2(20, channelPlace), dup2(21, filePlace), dup2(22, other);
    std::string result(1, apart::seal(takesFiles) ? 's' : 'u');
    for (const Attempt& attempt : attempts()) {
        errno = 0;
        const long got = attempt.tried();
        result += got >= 0 ? 'y' : errno == EPERM ? 'n' : '?';
    }
    for (std::size_t done = 0; done < result.size();) {
        const ssize_t written = write(channelPlace, result.data() + done, result.size() - done);
        if (written <= 0) break;
        done += static_cast<std::size_t>(written);
    }
    _exit(0);
}

class Seal : public testing::TestWithParam<bool> {};

TEST_P(Seal, LeavesNoRightsButToReckonAndToAnswer) {
    const TempDirectory directory;
    const auto file = directory.write("daten", "daten");
    std::array<int, 2> ends{};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
    const pid_t child = fork();
    if (child == 0) tryAll(ends[1], file, GetParam());
    close(ends[1]);
    std::string result;
    std::array<char, 100> buffer{};
    for (ssize_t got = 0; (got = read(ends[0], buffer.data(), buffer.size())) > 0;)
        result.append(buffer.data(), static_cast<std::size_t>(got));
    close(ends[0]);
    waitpid(child, nullptr, 0);
    ASSERT_EQ(result.size(), attempts().size() + 1) << "it came to its end";
    if (result[0] == 'u') GTEST_SKIP() << "this machine has no filter for system calls";
    for (std::size_t i = 0; i < attempts().size(); ++i)
        EXPECT_EQ(result[i + 1], attempts()[i].possible ? 'y' : 'n') << attempts()[i].what;
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutFurtherFiles, Seal, testing::Bool());

}  // namespace
}  // namespace zentrox::test
