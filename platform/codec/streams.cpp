#include "platform/codec/streams.h"

#include <algorithm>

#include "platform/codec/levels.h"

namespace zentrox {

namespace {

constexpr int channels = 2;
constexpr std::array levels{voiceLevel, effectLevel, songLevel, videoLevel};  // in the order of `Track`

std::int64_t milliseconds(std::int64_t frames) {
    return frames * 1000 / sampleRate;
}

}  // namespace

void Streams::start(Track track, std::unique_ptr<AudioReader> reader) {
    Slot begun;  // in the end the old one, which outlives the lock
    begun.reader = std::move(reader);
    begun.running = true;
    const std::lock_guard lock(mutex_);
    std::swap(slot(track), begun);
}

void Streams::stop(Track track) {
    Slot stopped;  // outlives the lock
    const std::lock_guard lock(mutex_);
    std::swap(slot(track), stopped);
}

void Streams::setVolumes(const Volumes& volumes) {
    const std::lock_guard lock(mutex_);
    volumes_ = {volumes.voice, volumes.effect, volumes.song, volumes.video};  // in the order of `Track`
}

bool Streams::ended(Track track) const {
    const std::lock_guard lock(mutex_);
    return slot(track).ended;
}

std::int64_t Streams::taken(Track track) const {
    const std::lock_guard lock(mutex_);
    return milliseconds(slot(track).frames);
}

std::int64_t Streams::heard(Track track) const {
    const std::lock_guard lock(mutex_);
    const std::int64_t since = clock_() - called_;
    return std::max<std::int64_t>(0, milliseconds(slot(track).framesBefore) + since - latency_);
}

void Streams::mix(std::int16_t* samples, int frames) {
    const std::lock_guard lock(mutex_);
    called_ = clock_();
    // What is handed over now comes behind one buffer that plays and one that waits.
    latency_ = 2 * milliseconds(frames);
    decoded_.resize(static_cast<std::size_t>(frames) * channels);
    for (std::size_t i = 0; i < slots_.size(); ++i)
        if (slots_[i].running) add(slots_[i], levels[i] * volumes_[i] / 100, samples, frames);
}

void Streams::add(Slot& slot, int level, std::int16_t* samples, int frames) {
    slot.framesBefore = slot.frames;
    slot.frames += frames;
    if (!slot.reader || slot.ended) return;
    const int got = slot.reader->read(decoded_.data(), frames);
    slot.ended = got < frames;
    const auto bytes = static_cast<Uint32>(got * channels) * 2;
    SDL_MixAudioFormat(reinterpret_cast<Uint8*>(samples), reinterpret_cast<const Uint8*>(decoded_.data()),
                       AUDIO_S16SYS, bytes, level);
}

}  // namespace zentrox
