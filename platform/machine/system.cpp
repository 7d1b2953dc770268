#include "platform/machine/system.h"

#ifdef __EMSCRIPTEN__
#include <emscripten/stack.h>
#endif
#include <pthread.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <limits>
#include <system_error>

namespace zentrox {

std::filesystem::path programFile() {
    std::error_code error;
    const auto file = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::current_path() / "zentrox" : file;
}

std::filesystem::path programDirectory() {
    return programFile().parent_path();
}

std::filesystem::path libraryDirectoryFor(const std::filesystem::path& programDirectory) {
    return (programDirectory / ZENTROX_LIBRARY_FROM_PROGRAM).lexically_normal();
}

std::filesystem::path dataDirectoryFor(const std::filesystem::path& programDirectory) {
    return (programDirectory / ZENTROX_DATA_FROM_PROGRAM).lexically_normal();
}

#ifdef __EMSCRIPTEN__
std::size_t stackLeft() {
    return emscripten_stack_get_free();
}
#else
std::size_t stackLeft() {
    static const char* const lowest = [] {
        void* base = nullptr;
        std::size_t size = 0;
        pthread_attr_t attributes;
        if (pthread_getattr_np(pthread_self(), &attributes) != 0) return static_cast<const char*>(nullptr);
        pthread_attr_getstack(&attributes, &base, &size);
        pthread_attr_destroy(&attributes);
        return static_cast<const char*>(base);
    }();
    const auto* const here = static_cast<const char*>(__builtin_frame_address(0));
    if (lowest == nullptr || here < lowest) return std::numeric_limits<std::size_t>::max();
    return static_cast<std::size_t>(here - lowest);
}
#endif

bool startProcess(const std::vector<std::string>& command) {
    if (command.empty()) return false;
    std::vector<char*> words;
    words.reserve(command.size() + 1);
    for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);

    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    // A session of its own, so that it outlives this process and its terminal.
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    static_cast<void>(std::signal(SIGCHLD, SIG_IGN));  // nobody waits for it
    pid_t child = 0;
    const int failure = posix_spawnp(&child, words[0], nullptr, &attributes, words.data(), environ);
    posix_spawnattr_destroy(&attributes);
    return failure == 0;
}

}  // namespace zentrox
