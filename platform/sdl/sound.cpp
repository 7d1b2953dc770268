#include "platform/sdl/sound.h"

#include <SDL.h>

#include <chrono>
#include <cstdlib>
#include <string_view>

#include "platform/codec/soundplayer.h"
#include "platform/machine/decoder.h"

namespace zentrox {

namespace {

// An effect has to be heard within 20 milliseconds: a buffer is 12 of them.
constexpr Uint16 bufferFrames = 512;
constexpr int frameBytes = 4;

class SdlOutput final : public SoundOutput {
public:
    ~SdlOutput() override { close(); }

    Opened open(Source source) override {
        source_ = std::move(source);
        if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return Opened::none;
        SDL_AudioSpec wanted{};
        wanted.freq = sampleRate;
        wanted.format = AUDIO_S16SYS;
        wanted.channels = 2;
        wanted.samples = bufferFrames;
        wanted.userdata = this;
        wanted.callback = [](void* output, Uint8* samples, int bytes) {
            SDL_memset(samples, 0, static_cast<std::size_t>(bytes));
            static_cast<SdlOutput*>(output)->source_(reinterpret_cast<std::int16_t*>(samples), bytes / frameBytes);
        };
        device_ = SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
        if (device_ == 0) {
            const bool there = SDL_GetNumAudioDevices(0) != 0;
            SDL_QuitSubSystem(SDL_INIT_AUDIO);
            return there ? Opened::refused : Opened::none;
        }
        SDL_PauseAudioDevice(device_, 0);
        return Opened::yes;
    }
    void close() override {
        if (device_ == 0) return;
        SDL_CloseAudioDevice(device_);
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        device_ = 0;
    }
    void setPaused(bool paused) override { SDL_PauseAudioDevice(device_, paused ? 1 : 0); }

private:
    SDL_AudioDeviceID device_ = 0;
    Source source_;
};

std::int64_t now() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

}  // namespace

std::unique_ptr<SoundDevice> desktopSound(const Files& files, std::function<std::int64_t()> clock, bool silent) {
    const char* choice = std::getenv("ZENTROX_SOUND");
    const bool muted = silent || (choice != nullptr && std::string_view(choice) == "none");
    return soundPlayer(files, muted ? nullptr : std::make_unique<SdlOutput>(), clock ? std::move(clock) : now);
}

}  // namespace zentrox
