// A sound device for tests that notes what would be heard. A video lasts `videoEnd` milliseconds from its start.
#pragma once

#include <algorithm>
#include <vector>

#include "platform/machine/sound.h"
#include "tests/support/fake_backend.h"

namespace zentrox::test {

class FakeSound : public SoundDevice {
public:
    explicit FakeSound(FakeBackend& backend) : backend_(backend) {}

    std::vector<Text> notes;
    SoundHandle voice = 0;  // the one that is open
    Text song;              // empty when there is none
    std::int64_t videoEnd = 0;

    bool init() override { return true; }
    bool start() override { return true; }
    SoundError error() const override { return SoundError::none; }
    void free() override { notes.emplace_back("free"); }

    SoundHandle openVoice(TextView path) override {
        notes.push_back("voice " + Text(path));
        return voice = ++handles_;
    }
    void playVoice(SoundHandle /*handle*/) override {}
    void freeVoice(SoundHandle handle) override {
        if (handle == 0 || handle != voice) return;
        notes.emplace_back("voice off");
        voice = 0;
    }
    void playEffect(TextView path) override { notes.push_back("effect " + Text(path)); }
    void playSong(TextView path) override {
        song = path;
        notes.push_back("song " + song);
    }
    void stopSong() override {
        if (!song.empty()) notes.emplace_back("song off");
        song.clear();
    }
    std::int64_t songLength() override { return song.empty() ? 0 : 60'000; }
    std::int64_t songPosition() override { return 0; }

    bool playVideo(TextView path) override {
        notes.push_back("video " + Text(path));
        videoSince_ = backend_.now;
        return true;
    }
    void stopVideo() override {
        if (videoSince_) notes.emplace_back("video off");
        videoSince_.reset();
    }
    std::int64_t videoLength() override { return videoSince_ ? videoEnd : 0; }
    std::int64_t videoPosition() override {
        return videoSince_ ? std::min(backend_.now - *videoSince_, videoEnd) : 0;
    }
    const Bitmap* videoFrame() override { return nullptr; }

private:
    FakeBackend& backend_;
    SoundHandle handles_ = 0;
    std::optional<Milliseconds> videoSince_;
};

}  // namespace zentrox::test
