// One end of a conversation between two processes. Nothing that is said at the other end is believed to come, nor
// to come whole.
#pragma once

#include <chrono>
#include <optional>
#include <type_traits>

#include "platform/machine/descriptor.h"

namespace zentrox::apart {

using Wait = std::optional<std::chrono::milliseconds>;  // as long as it takes, without a value

class Channel {
public:
    explicit Channel(Descriptor socket) : socket_(std::move(socket)) {}

    // True when something can be received, or the other end is gone.
    bool ready(std::chrono::milliseconds wait) const;
    // How many bytes have come before the other end was gone, or the time was over.
    std::size_t receive(void* bytes, std::size_t size, Wait wait = {});
    // False where not all of them could be sent. Who ignores SIGPIPE may wait as long as it takes.
    bool send(const void* bytes, std::size_t size, Wait wait = {});
    int socket() const { return socket_.number(); }
    // The other end is gone, as far as has been tried.
    bool gone() const { return gone_; }

    template <class Value>
    bool receiveValue(Value& value, Wait wait = {}) {
        static_assert(std::is_trivially_copyable_v<Value>);
        return receive(&value, sizeof value, wait) == sizeof value;
    }
    template <class Value>
    bool sendValue(const Value& value, Wait wait = {}) {
        static_assert(std::is_trivially_copyable_v<Value>);
        return send(&value, sizeof value, wait);
    }

private:
    Descriptor socket_;
    bool gone_ = false;
};

}  // namespace zentrox::apart
