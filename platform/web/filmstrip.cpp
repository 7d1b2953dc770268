#include "platform/web/filmstrip.h"

#include <cstdlib>
#include <fstream>

#include "platform/web/lengths.h"

namespace zentrox::web {

namespace {

class Filmstrip final : public VideoReader {
public:
    Filmstrip(std::ifstream pictures, std::int64_t length) : pictures_(std::move(pictures)), length_(length) {
        readTime();
    }

    std::int64_t length() const override { return length_; }
    bool advance(std::int64_t position, std::uint32_t* pixels) override {
        bool another = false;
        while (more_ && begins_ <= position) {
            pictures_.read(reinterpret_cast<char*>(pixels), videoWidth * videoHeight * 4L);
            another = true;
            readTime();
        }
        return another;
    }
    bool ended(std::int64_t position) const override { return !more_ && position >= length_; }

private:
    void readTime() {
        more_ = static_cast<bool>(pictures_.read(reinterpret_cast<char*>(&begins_), sizeof begins_));
    }

    std::ifstream pictures_;
    std::int64_t length_;
    std::int64_t begins_ = 0;  // of the picture ahead
    bool more_ = false;
};

}  // namespace

std::unique_ptr<VideoReader> openFilmstrip(const std::filesystem::path& film) {
    const char* const place = std::getenv("ZENTROX_FILMS");
    if (place == nullptr) return nullptr;
    const auto path = std::filesystem::absolute(film).lexically_normal();
    std::ifstream pictures(std::filesystem::path(place) / path.relative_path(), std::ios::binary);
    if (!pictures) return nullptr;
    return std::make_unique<Filmstrip>(std::move(pictures), lengthsOf(path).film);
}

}  // namespace zentrox::web
