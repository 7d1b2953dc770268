// Messages that carry open files from one process to another.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>

#include "platform/machine/descriptor.h"

namespace zentrox::apart {

constexpr std::size_t mostFiles = 2;

struct Files {
    std::array<Descriptor, mostFiles> places;
};

// The end of a file's name, as far as a message holds it.
class Ending {
public:
    Ending() = default;
    explicit Ending(std::string_view name) {
        const std::size_t length = std::min(name.size(), letters_.size());
        name.copy(letters_.data(), length, name.size() - length);
    }
    std::string text() const { return {letters_.begin(), std::find(letters_.begin(), letters_.end(), '\0')}; }

private:
    std::array<char, 64> letters_{};
};

// False if the other end is gone.
bool sendMessage(int socket, const void* bytes, std::size_t size, std::initializer_list<int> files);
bool receiveMessage(int socket, void* bytes, std::size_t size, Files& files);

template <class Value>
bool sendWith(int socket, const Value& value, std::initializer_list<int> files) {
    static_assert(std::is_trivially_copyable_v<Value>);
    return sendMessage(socket, &value, sizeof value, files);
}
template <class Value>
bool receiveWith(int socket, Value& value, Files& files) {
    static_assert(std::is_trivially_copyable_v<Value>);
    return receiveMessage(socket, &value, sizeof value, files);
}

}  // namespace zentrox::apart
