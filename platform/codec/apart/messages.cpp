#include "platform/codec/apart/messages.h"

#include <sys/socket.h>

#include <cerrno>
#include <cstring>

namespace zentrox::apart {

namespace {

constexpr std::size_t controlBytes = CMSG_SPACE(sizeof(int) * mostFiles);

void keepFiles(msghdr& message, Files& files) {
    for (cmsghdr* head = CMSG_FIRSTHDR(&message); head != nullptr; head = CMSG_NXTHDR(&message, head)) {
        if (head->cmsg_level != SOL_SOCKET || head->cmsg_type != SCM_RIGHTS) continue;
        const std::size_t count = (head->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (std::size_t i = 0; i < std::min(count, mostFiles); ++i) {
            int number = -1;
            std::memcpy(&number, CMSG_DATA(head) + i * sizeof(int), sizeof number);
            files.places[i] = Descriptor(number);
        }
    }
}

}  // namespace

bool sendMessage(int socket, const void* bytes, std::size_t size, std::initializer_list<int> files) {
    iovec piece{const_cast<void*>(bytes), size};
    alignas(cmsghdr) std::array<char, controlBytes> control{};
    msghdr message{};
    message.msg_iov = &piece;
    message.msg_iovlen = 1;
    if (files.size() > 0) {
        message.msg_control = control.data();
        message.msg_controllen = CMSG_SPACE(sizeof(int) * files.size());
        cmsghdr* const head = CMSG_FIRSTHDR(&message);
        head->cmsg_level = SOL_SOCKET;
        head->cmsg_type = SCM_RIGHTS;
        head->cmsg_len = CMSG_LEN(sizeof(int) * files.size());
        std::memcpy(CMSG_DATA(head), files.begin(), sizeof(int) * files.size());
    }
    for (;;) {
        const ssize_t sent = sendmsg(socket, &message, MSG_NOSIGNAL);
        if (sent >= 0 || errno != EINTR) return sent == static_cast<ssize_t>(size);
    }
}

bool receiveMessage(int socket, void* bytes, std::size_t size, Files& files) {
    iovec piece{bytes, size};
    alignas(cmsghdr) std::array<char, controlBytes> control{};
    msghdr message{};
    message.msg_iov = &piece;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    for (;;) {
        const ssize_t got = recvmsg(socket, &message, MSG_CMSG_CLOEXEC);
        if (got < 0 && errno == EINTR) continue;
        if (got > 0) keepFiles(message, files);
        return got == static_cast<ssize_t>(size);
    }
}

}  // namespace zentrox::apart
