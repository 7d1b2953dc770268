// An open file of the system, closed with its owner.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <utility>

namespace zentrox {

class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { reset(); }
    Descriptor(Descriptor&& other) noexcept : number_(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        if (this != &other) {
            reset();
            number_ = other.release();
        }
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool isOpen() const { return number_ >= 0; }
    int number() const { return number_; }
    // The caller closes it.
    int release() { return std::exchange(number_, -1); }
    void reset() {
        if (isOpen()) ::close(release());
    }

private:
    int number_ = -1;
};

// Not open where that fails.
inline Descriptor openForReading(const std::filesystem::path& file) {
    return Descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
}

}  // namespace zentrox
