#include "platform/codec/apart/apart.h"

#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include "platform/codec/apart/messages.h"
#include "platform/codec/apart/seal.h"

namespace zentrox::apart {

namespace {

// What the program asks the helper for; with it come the worker's end of the channel and the file.
struct Order {
    Job job{};
    bool worker = false;  // else to prepare only
    Ending ending;
};

struct Answer {
    bool done = false;
};

std::pair<Descriptor, Descriptor> socketPair(int type) {
    std::array<int, 2> ends{-1, -1};
    if (socketpair(AF_UNIX, type | SOCK_CLOEXEC, 0, ends.data()) != 0) return {};
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

// --- the helper's side

void closeFrom(int first) {
#ifdef SYS_close_range
    if (syscall(SYS_close_range, first, ~0U, 0) == 0) return;
#endif
    const long most = std::min(sysconf(_SC_OPEN_MAX), 4096L);
    for (int number = first; number < most; ++number) ::close(number);
}

// Puts these files to places 3 and up, and closes all others but the standard ones.
void keepOnly(std::initializer_list<int> files) {
    constexpr int beyond = 10;
    std::array<int, mostFiles> copies{};
    std::size_t count = 0;
    for (const int file : files) copies[count++] = fcntl(file, F_DUPFD, beyond);
    for (std::size_t i = 0; i < count; ++i) dup2(copies[i], channelPlace + static_cast<int>(i));
    closeFrom(channelPlace + static_cast<int>(count));
}

void silence(int standard) {
    const Descriptor nothing(open("/dev/null", O_RDWR | O_CLOEXEC));
    if (nothing.isOpen()) dup2(nothing.number(), standard);
}

[[noreturn]] void work(const Handler& handler, const Order& order, const Files& files, pid_t helper) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != helper) _exit(1);
    const bool hasFile = files.places[1].isOpen();
    if (hasFile)
        keepOnly({files.places[0].number(), files.places[1].number()});
    else
        keepOnly({files.places[0].number()});
    const OpenFile file{hasFile ? std::make_shared<const Descriptor>(filePlace) : nullptr, order.ending.text()};
    Channel channel{Descriptor(channelPlace)};
    seal(handler.takesFiles);
    try {
        handler.work(channel, file);
    } catch (...) {
        _exit(1);
    }
    _exit(0);
}

// Serves the program as long as there is one.
[[noreturn]] void help(const Handlers& handlers, int program) {
    std::array<bool, jobs> prepared{};
    const pid_t self = getpid();
    for (;;) {
        Order order;
        Files files;
        if (!receiveWith(program, order, files)) _exit(0);
        const auto number = static_cast<std::size_t>(order.job);
        const Handler& handler = handlers[number];
        if (!prepared[number])
            prepared[number] = handler.work != nullptr && (handler.prepare == nullptr || handler.prepare());
        if (!prepared[number] || !order.worker) {
            sendWith(program, Answer{prepared[number]}, {});
            continue;
        }
        const pid_t worker = fork();
        if (worker == 0) work(handler, order, files, self);
        const Descriptor process(worker > 0 ? static_cast<int>(syscall(SYS_pidfd_open, worker, 0)) : -1);
        if (process.isOpen())
            sendWith(program, Answer{true}, {process.number()});
        else
            sendWith(program, Answer{worker > 0}, {});
    }
}

// A terminal's and a session's end are the program's matter; nobody waits for workers.
[[noreturn]] void becomeHelper(const Handlers& handlers, Descriptor program, pid_t parent) {
    for (const int signal : {SIGINT, SIGQUIT, SIGTERM, SIGHUP, SIGPIPE, SIGCHLD})
        static_cast<void>(std::signal(signal, SIG_IGN));
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) _exit(0);
    prctl(PR_SET_NAME, "zentrox-decoder");
    keepOnly({program.release()});
    silence(STDIN_FILENO);
    silence(STDOUT_FILENO);
    help(handlers, channelPlace);
}

Apart*& theOne() {
    static Apart* standing = nullptr;
    return standing;
}

}  // namespace

// --- the program's side

Apart* Apart::standing() {
    return theOne();
}

Apart::Apart(const Handlers& handlers, Patience patience) : patience_(patience) {
    auto [ours, theirs] = socketPair(SOCK_SEQPACKET);
    if (!ours.isOpen()) return;
    const pid_t parent = getpid();
    process_ = fork();
    if (process_ == 0) becomeHelper(handlers, std::move(theirs), parent);
    if (process_ < 0) return;
    helper_ = std::move(ours);
    theOne() = this;
}

Apart::~Apart() {
    if (process_ < 0) return;
    theOne() = nullptr;
    for (auto& resident : residents_) resident.reset();
    helper_.reset();
    while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
    }
}

bool Apart::prepared(Job job) {
    bool& known = prepared_[static_cast<std::size_t>(job)];
    Answer answer;
    Files none;
    known = known || (sendWith(helper_.number(), Order{job}, {}) && receiveWith(helper_.number(), answer, none) &&
                      answer.done);
    return known;
}

std::unique_ptr<Worker> workerFor(Job job, const OpenFile& file) {
    return Apart::standing() != nullptr ? Apart::standing()->worker(job, file) : nullptr;
}

Worker* residentFor(Job job) {
    return Apart::standing() != nullptr ? Apart::standing()->resident(job) : nullptr;
}

std::unique_ptr<Worker> Apart::worker(Job job, const OpenFile& file) {
    auto [ours, theirs] = socketPair(SOCK_STREAM);
    if (!ours.isOpen()) return nullptr;
    const Order order{job, true, Ending(file.name)};
    Answer answer;
    Files process;
    const bool sent = file.file ? sendWith(helper_.number(), order, {theirs.number(), file.file->number()})
                                : sendWith(helper_.number(), order, {theirs.number()});
    if (!sent || !receiveWith(helper_.number(), answer, process) || !answer.done) return nullptr;
    return std::make_unique<Worker>(Channel(std::move(ours)), std::move(process.places[0]), patience_);
}

Worker* Apart::resident(Job job) {
    auto& known = residents_[static_cast<std::size_t>(job)];
    if (!known || known->ended() || known->channel.gone()) known = worker(job);
    return known.get();
}

void Worker::end() {
    ended_ = true;
    if (process_.isOpen()) syscall(SYS_pidfd_send_signal, process_.number(), SIGKILL, nullptr, 0);
    process_.reset();
}

}  // namespace zentrox::apart
