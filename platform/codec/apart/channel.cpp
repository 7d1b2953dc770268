#include "platform/codec/apart/channel.h"

#include <poll.h>
#include <sys/socket.h>

#include <cerrno>

namespace zentrox::apart {

namespace {

using Clock = std::chrono::steady_clock;

// True when the socket can be read or written, or its other end is gone.
bool waitFor(int socket, short what, Clock::time_point until) {
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now()).count();
        pollfd polled{socket, what, 0};
        const int result = poll(&polled, 1, left > 0 ? static_cast<int>(left) : 0);
        if (result > 0) return true;
        if (result == 0 || errno != EINTR) return false;
    }
}

// Moves the bytes piece by piece; returns how many. A sealed process has neither `poll` nor calls made for sockets.
template <class Byte, class Plain, class Brief>
std::size_t move(Byte* bytes, std::size_t size, int socket, short what, Wait wait, bool& gone, Plain plain,
                 Brief brief) {
    const auto until = Clock::now() + wait.value_or(std::chrono::milliseconds(0));
    std::size_t done = 0;
    while (done < size) {
        const ssize_t moved = wait ? brief(bytes + done, size - done) : plain(bytes + done, size - done);
        if (moved > 0) {
            done += static_cast<std::size_t>(moved);
            continue;
        }
        if (moved < 0 && errno == EINTR) continue;
        const bool full = moved < 0 && (errno == EAGAIN || errno == EWOULDBLOCK);
        gone = gone || !full;
        if (!full || !waitFor(socket, what, until)) break;
    }
    return done;
}

}  // namespace

bool Channel::ready(std::chrono::milliseconds wait) const {
    return waitFor(socket_.number(), POLLIN, Clock::now() + wait);
}

std::size_t Channel::receive(void* bytes, std::size_t size, Wait wait) {
    const int socket = socket_.number();
    return move(
        static_cast<char*>(bytes), size, socket, POLLIN, wait, gone_,
        [&](char* at, std::size_t count) { return ::read(socket, at, count); },
        [&](char* at, std::size_t count) { return ::recv(socket, at, count, MSG_DONTWAIT); });
}

bool Channel::send(const void* bytes, std::size_t size, Wait wait) {
    const int socket = socket_.number();
    return move(
               static_cast<const char*>(bytes), size, socket, POLLOUT, wait, gone_,
               [&](const char* at, std::size_t count) { return ::write(socket, at, count); },
               [&](const char* at, std::size_t count) {
                   return ::send(socket, at, count, MSG_DONTWAIT | MSG_NOSIGNAL);
               }) == size;
}

}  // namespace zentrox::apart
