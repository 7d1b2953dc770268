// The messages of a language server: JSON behind a header that tells its length.
#pragma once

#include <condition_variable>
#include <deque>
#include <iosfwd>
#include <mutex>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <string>

namespace zentrox::lsp {

using Json = nlohmann::json;

// What has come in: a message, or why none can be made of it.
struct Incoming {
    Json message;
    std::string problem;  // empty if there is a message
};

// Reads messages one by one. Whatever is damaged is skipped up to the next header, and is never kept: neither a
// header nor a message can be longer than what a client has reason to send.
class MessageReader {
public:
    explicit MessageReader(std::istream& in) : in_(in) {}
    // Waits for the next one; nothing at the end.
    std::optional<Incoming> next();

private:
    std::optional<std::size_t> header(bool& damaged);
    std::optional<std::string> line();

    std::istream& in_;
};

void writeMessage(std::ostream& out, const Json& message);

// Messages that wait to be handled. One thread puts them in, another takes them out.
class Inbox {
public:
    // Waits while so many are there that nobody keeps up with them.
    void put(Incoming incoming);
    // There will be no more.
    void close();

    // A message and whether it has been cancelled meanwhile.
    struct Taken {
        Incoming incoming;
        bool cancelled = false;
    };
    // Waits as long as it takes; nothing at the end.
    std::optional<Taken> take();
    // True as soon as there is something to take, or the end; false after so many milliseconds without.
    bool wait(int milliseconds);

private:
    std::mutex mutex_;
    std::condition_variable come_;
    std::condition_variable gone_;
    std::deque<Incoming> waiting_;
    std::set<Json> cancelled_;  // ids of requests that still wait
    bool closed_ = false;
};

}  // namespace zentrox::lsp
