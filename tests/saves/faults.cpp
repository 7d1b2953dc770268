// Preloaded into a program, it breaks one of the calls with which that writes into one directory. In the
// environment: FAULT_DIRECTORY; FAULT_AT, the number of the call from 1 on; FAULT_KIND, the number of an error, or
// "short", which writes a single byte, or "kill"; FAULT_SEEN, a file that is made when the fault has been done.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <set>
#include <string>

namespace {

template <class Function>
Function* original(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::set<int>& watched() {
    static std::set<int> descriptors;
    return descriptors;
}

bool ours(const char* path) {
    static const std::string directory = variable("FAULT_DIRECTORY");
    return path != nullptr && !directory.empty() && std::string(path).rfind(directory, 0) == 0;
}

// True for the call that is to fail.
bool due() {
    static const int at = std::atoi(variable("FAULT_AT").c_str());
    static int calls = 0;
    if (++calls != at) return false;
    ::close(::creat(variable("FAULT_SEEN").c_str(), 0666));
    if (variable("FAULT_KIND") == "kill") raise(SIGKILL);
    return true;
}

bool shortened() {
    return variable("FAULT_KIND") == "short";
}

int failed() {
    errno = std::atoi(variable("FAULT_KIND").c_str());
    return -1;
}

// Breaks a call that knows no half success.
bool breaks(bool watches) {
    return watches && due() && !shortened();
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    if (breaks(ours(path))) return failed();
    const int made = original<int(const char*, int, ...)>("open")(path, flags, mode);
    if (made >= 0 && ours(path)) watched().insert(made);
    return made;
}

ssize_t write(int file, const void* bytes, size_t count) {
    const auto real = original<ssize_t(int, const void*, size_t)>("write");
    if (watched().count(file) == 0 || !due()) return real(file, bytes, count);
    return shortened() ? real(file, bytes, 1) : failed();
}

int fsync(int file) {
    if (breaks(watched().count(file) != 0)) return failed();
    return original<int(int)>("fsync")(file);
}

int fchmod(int file, mode_t mode) {
    if (breaks(watched().count(file) != 0)) return failed();
    return original<int(int, mode_t)>("fchmod")(file, mode);
}

// As a real one, a close that fails has closed.
int close(int file) {
    const bool watches = watched().erase(file) != 0;
    const bool broken = breaks(watches);
    const int result = original<int(int)>("close")(file);
    return broken ? failed() : result;
}

int rename(const char* from, const char* to) {
    if (breaks(ours(to))) return failed();
    return original<int(const char*, const char*)>("rename")(from, to);
}

int unlink(const char* path) {
    if (breaks(ours(path))) return failed();
    return original<int(const char*)>("unlink")(path);
}
}
