// A sound device for tests that plays nothing, and remembers what it was asked to play.
#pragma once

#include <vector>

#include "platform/sound.h"

namespace zentrox::test {

class SilentSound : public SoundDevice {
public:
    std::vector<Text> songs;
    int songStops = 0;

    bool init() override { return true; }
    bool start() override { return true; }
    int errorCode() const override { return 0; }
    void free() override {}
    SoundHandle openVoice(TextView /*path*/) override { return 0; }
    void playVoice(SoundHandle /*handle*/) override {}
    void freeVoice(SoundHandle /*handle*/) override {}
    void playEffect(TextView /*path*/) override {}
    void playSong(TextView path) override { songs.emplace_back(path); }
    void stopSong() override { ++songStops; }
    std::int64_t songLength() override { return 0; }
    std::int64_t songPosition() override { return 0; }
    bool playVideo(TextView /*path*/) override { return false; }
    void stopVideo() override {}
    std::int64_t videoLength() override { return 0; }
    std::int64_t videoPosition() override { return 0; }
    const Bitmap* videoFrame() override { return nullptr; }
};

}  // namespace zentrox::test
