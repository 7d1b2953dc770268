// Decodes in other processes. Decoders are libraries with a history, and files of a story come from anywhere:
// whatever a file makes of its decoder, it stays in a process that has no rights (seal.h).
//
// A helper is forked when the program begins. It reads no data; for each sound and film that plays, for all
// pictures and for all lengths, it forks a worker, which is sealed before it reads the first byte. Workers end with
// the helper, and the helper with the program, however that ends.
#pragma once

#include <array>
#include <chrono>
#include <memory>
#include <string>

#include "platform/codec/apart/channel.h"
#include "platform/codec/filedecoder.h"

namespace zentrox::apart {

enum class Job { sound, film, lengths, mp3, pictures };
constexpr std::size_t jobs = 5;

struct Handler {
    bool (*prepare)();  // in the helper, with all rights and no data, before the first of its workers; may be null
    // Sealed. Without it the program does the job in its own process.
    void (*work)(Channel& channel, const OpenFile& file);
    bool takesFiles = false;  // through the channel, one after the other
};

// In the order of the jobs.
using Handlers = std::array<Handler, jobs>;

// How long the program waits for a worker.
struct Patience {
    std::chrono::milliseconds atOnce;  // then it goes on without an answer, and looks again later
    std::chrono::milliseconds inAll;   // then the file counts as damaged
    std::chrono::milliseconds whole;   // the same, where it has to go through all of the file
};
// The window stays alive, and a drive may take its time to turn.
constexpr Patience ofPlayers{std::chrono::milliseconds(50), std::chrono::seconds(5), std::chrono::seconds(30)};
// What is seen and heard must not depend on how fast the machine is.
constexpr Patience ofProbes{std::chrono::minutes(1), std::chrono::minutes(1), std::chrono::minutes(1)};

// A process at work, ended with its owner.
class Worker {
public:
    Worker(Channel talk, Descriptor running, Patience given)
        : channel(std::move(talk)),
          patience(given),
          process_(std::move(running)) {}
    ~Worker() { end(); }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    void end();
    bool ended() const { return ended_; }

    Channel channel;
    Patience patience;

private:
    Descriptor process_;  // not open where the kernel has no such thing; who finds the channel closed ends then
    bool ended_ = false;
};

// The helper's life. For the main thread; to be made before there is another one.
class Apart {
public:
    Apart(const Handlers& handlers, Patience patience);
    ~Apart();
    Apart(const Apart&) = delete;
    Apart& operator=(const Apart&) = delete;

    // Whether the helper is there and has prepared the job.
    bool prepared(Job job);
    // Null where there is no helper, or it can't fork: the system is short of something.
    std::unique_ptr<Worker> worker(Job job, const OpenFile& file = {});
    // The one for all files of its kind, anew where the last one is gone; null as above.
    Worker* resident(Job job);
    // The one that is alive; null where all is decoded in this process.
    static Apart* standing();

private:
    Descriptor helper_;
    int process_ = -1;
    Patience patience_;
    std::array<bool, jobs> prepared_{};
    std::array<std::unique_ptr<Worker>, jobs> residents_;
};

// Null where it has to be done in this process.
std::unique_ptr<Worker> workerFor(Job job, const OpenFile& file);
Worker* residentFor(Job job);

}  // namespace zentrox::apart
