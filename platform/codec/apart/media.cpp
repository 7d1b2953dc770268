#include "platform/codec/apart/media.h"

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

#include "platform/codec/apart/messages.h"

namespace zentrox::apart {

namespace {

constexpr int channels = 2;
constexpr std::size_t frameBytes = channels * sizeof(std::int16_t);
constexpr std::size_t pictureBytes = std::size_t{videoWidth} * videoHeight * sizeof(std::uint32_t);

constexpr std::int64_t notYet = std::numeric_limits<std::int64_t>::max();

// A flag that may come from anywhere.
using Flag = std::uint8_t;

// What a film's worker says first.
struct Head {
    Flag film = 0;
    std::int64_t length = 0;
    std::int64_t endsAt = notYet;
};

// What it says of a position; with another picture, its pixels follow.
struct Look {
    Flag another = 0;
    std::int64_t endsAt = notYet;
};

// Of which file the length is wanted; with it comes the file.
struct LengthQuestion {
    Flag film = 0;
    Ending ending;
};

// The first position at which the film has ended; `notYet` while there are pictures to come.
std::int64_t endOf(const VideoReader& film) {
    if (!film.ended(notYet)) return notYet;
    if (film.ended(0)) return 0;
    std::int64_t before = 0;
    std::int64_t end = notYet;
    while (end - before > 1) {
        const std::int64_t middle = before + (end - before) / 2;
        (film.ended(middle) ? end : before) = middle;
    }
    return end;
}

class SoundFromWorker final : public AudioReader {
public:
    explicit SoundFromWorker(std::unique_ptr<Worker> worker) : worker_(std::move(worker)) {}

    // Where nothing comes in time it is silence for a while. The worker is ahead as far as the channel holds.
    int read(std::int16_t* samples, int frames) override {
        if (ended_) return 0;
        const std::size_t wanted = static_cast<std::size_t>(frames) * frameBytes;
        auto* const bytes = reinterpret_cast<char*>(samples);
        const std::size_t got = worker_->channel.receive(bytes, wanted, worker_->patience.atOnce);
        if (got == wanted) {
            waited_ = {};
            return frames;
        }
        waited_ += worker_->patience.atOnce;
        ended_ = worker_->channel.gone() || waited_ > worker_->patience.inAll;
        if (ended_) return static_cast<int>(got / frameBytes);
        std::fill(bytes + got, bytes + wanted, '\0');
        return frames;
    }

private:
    std::unique_ptr<Worker> worker_;
    std::chrono::milliseconds waited_{};
    bool ended_ = false;
};

// The worker is asked for one position at a time; its answer may come during a later call.
class FilmFromWorker final : public VideoReader {
public:
    FilmFromWorker(std::unique_ptr<Worker> worker, const Head& head)
        : worker_(std::move(worker)),
          length_(std::max<std::int64_t>(0, head.length)),
          endsAt_(head.endsAt) {}

    std::int64_t length() const override { return length_; }

    bool advance(std::int64_t position, std::uint32_t* pixels) override {
        if (over_) return false;
        if (!asked_) ask(position);
        if (over_ || !answered()) return false;
        return take(pixels);
    }

    bool ended(std::int64_t position) const override { return over_ || position >= endsAt_; }

private:
    using Clock = std::chrono::steady_clock;

    void ask(std::int64_t position) {
        over_ = !worker_->channel.sendValue(position, worker_->patience.inAll);
        asked_ = true;
        since_ = Clock::now();
    }
    bool answered() {
        if (worker_->channel.ready(worker_->patience.atOnce)) return true;
        if (Clock::now() - since_ > worker_->patience.inAll) giveUp();
        return false;
    }
    bool take(std::uint32_t* pixels) {
        asked_ = false;
        Look look;
        bool whole = worker_->channel.receiveValue(look, worker_->patience.inAll);
        if (whole && look.another != 0)
            whole = worker_->channel.receive(pixels, pictureBytes, worker_->patience.inAll) == pictureBytes;
        if (!whole) giveUp();
        endsAt_ = look.endsAt;
        return whole && look.another != 0;
    }
    void giveUp() {
        over_ = true;
        worker_->end();
    }

    std::unique_ptr<Worker> worker_;
    std::int64_t length_;
    std::int64_t endsAt_;
    bool asked_ = false;
    Clock::time_point since_;
    bool over_ = false;
};

}  // namespace

void serveSound(Channel& channel, AudioReader* sound) {
    if (!channel.sendValue(Flag{sound != nullptr}) || sound == nullptr) return;
    constexpr int piece = 1024;
    std::array<std::int16_t, piece * channels> samples{};
    for (int got = piece; got == piece;) {
        got = sound->read(samples.data(), piece);
        if (!channel.send(samples.data(), static_cast<std::size_t>(got) * frameBytes)) return;
    }
}

void serveFilm(Channel& channel, VideoReader* film) {
    if (film == nullptr) return;
    if (!channel.sendValue(Head{1, film->length(), endOf(*film)})) return;
    std::vector<std::uint32_t> pixels(pictureBytes / sizeof(std::uint32_t));
    std::int64_t position = 0;
    while (channel.receiveValue(position)) {
        const bool another = film->advance(position, pixels.data());
        if (!channel.sendValue(Look{Flag{another}, endOf(*film)})) return;
        if (another && !channel.send(pixels.data(), pictureBytes)) return;
    }
}

std::unique_ptr<AudioReader> soundFrom(std::unique_ptr<Worker> worker) {
    Flag there = 0;
    if (!worker->channel.receiveValue(there, worker->patience.inAll) || there == 0) return nullptr;
    return std::make_unique<SoundFromWorker>(std::move(worker));
}

std::unique_ptr<VideoReader> filmFrom(std::unique_ptr<Worker> worker) {
    Head head;
    if (!worker->channel.receiveValue(head, worker->patience.inAll) || head.film == 0) return nullptr;
    return std::make_unique<FilmFromWorker>(std::move(worker), head);
}

void serveLengths(Channel& channel, FileDecoder& decoder) {
    for (;;) {
        LengthQuestion question;
        Files files;
        if (!receiveWith(channel.socket(), question, files)) return;
        const OpenFile file{std::make_shared<const Descriptor>(std::move(files.places[0])), question.ending.text()};
        const auto length = question.film != 0 ? decoder.videoLength(file) : decoder.audioLength(file);
        if (!channel.sendValue(length)) return;
    }
}

std::int64_t lengthFrom(Worker& worker, Length length, const OpenFile& file) {
    const LengthQuestion question{Flag{length == Length::ofFilm}, Ending(file.name)};
    std::int64_t found = 0;
    if (sendWith(worker.channel.socket(), question, {file.file->number()}) &&
        worker.channel.receiveValue(found, worker.patience.whole))
        return std::max<std::int64_t>(0, found);
    worker.end();
    return 0;
}

}  // namespace zentrox::apart
