#include "platform/codec/synthesiser.h"

#include <fluidsynth.h>

#include <algorithm>

namespace zentrox {

namespace {

// A song at full level lies about as high as a spoken voice.
constexpr double gain = 0.5;
constexpr int tail = 3 * sampleRate;  // frames for the last notes to die away

struct Closer {
    void operator()(fluid_settings_t* settings) const { delete_fluid_settings(settings); }
    void operator()(fluid_synth_t* synth) const { delete_fluid_synth(synth); }
    void operator()(fluid_player_t* player) const { delete_fluid_player(player); }
};

template <class T>
using Owned = std::unique_ptr<T, Closer>;

Owned<fluid_settings_t> settings() {
    Owned<fluid_settings_t> made(new_fluid_settings());
    fluid_settings_setnum(made.get(), "synth.sample-rate", sampleRate);
    fluid_settings_setnum(made.get(), "synth.gain", gain);
    // The large fonts have hundreds of megabytes; a song needs a few of their instruments.
    fluid_settings_setint(made.get(), "synth.dynamic-sample-loading", 1);
    fluid_settings_setint(made.get(), "synth.lock-memory", 0);
    // Time goes by the samples that are taken, not by a clock of the player's own.
    fluid_settings_setstr(made.get(), "player.timing-source", "sample");
    return made;
}

class MidiReader final : public AudioReader {
public:
    MidiReader(fluid_synth_t& synth, Owned<fluid_player_t> player) : synth_(synth), player_(std::move(player)) {}
    ~MidiReader() override {
        fluid_player_stop(player_.get());
        fluid_synth_system_reset(&synth_);
    }

    int read(std::int16_t* samples, int frames) override {
        if (fluid_player_get_status(player_.get()) == FLUID_PLAYER_DONE) left_ -= frames;
        if (left_ <= 0) return 0;
        fluid_synth_write_s16(&synth_, frames, samples, 0, 2, samples, 1, 2);
        return frames;
    }

private:
    fluid_synth_t& synth_;
    Owned<fluid_player_t> player_;
    int left_ = tail;
};

}  // namespace

struct Synthesiser::Parts {
    Owned<fluid_settings_t> settings = zentrox::settings();
    Owned<fluid_synth_t> synth{new_fluid_synth(settings.get())};
};

Synthesiser::Synthesiser(const std::vector<std::filesystem::path>& fonts) {
    for (int level = FLUID_PANIC; level < LAST_LOG_LEVEL; ++level) fluid_set_log_function(level, nullptr, nullptr);
    parts_ = std::make_unique<Parts>();
    ready_ = parts_->synth && std::any_of(fonts.begin(), fonts.end(), [this](const auto& font) {
                 return fluid_synth_sfload(parts_->synth.get(), font.c_str(), 1) != FLUID_FAILED;
             });
}

Synthesiser::~Synthesiser() = default;

std::unique_ptr<AudioReader> Synthesiser::play(const std::string& file) {
    if (!ready_) return nullptr;
    Owned<fluid_player_t> player(new_fluid_player(parts_->synth.get()));
    if (!player || fluid_player_add_mem(player.get(), file.data(), file.size()) != FLUID_OK) return nullptr;
    if (fluid_player_play(player.get()) != FLUID_OK) return nullptr;
    return std::make_unique<MidiReader>(*parts_->synth, std::move(player));
}

}  // namespace zentrox
