#include "tools/web/media.h"

#include <array>
#include <fstream>
#include <string_view>
#include <vector>

#include "platform/codec/soundfont.h"
#include "platform/machine/decoder.h"
#include "platform/machine/midi.h"
#include "tools/voices/process.h"

namespace zentrox::web {

namespace fs = std::filesystem;

namespace {

std::string beginningOf(const fs::path& file) {
    std::string begin(64, '\0');
    std::ifstream in(file, std::ios::binary);
    in.read(begin.data(), static_cast<std::streamsize>(begin.size()));
    begin.resize(static_cast<std::size_t>(in.gcount()));
    return begin;
}

// What can't be heard nor seen moving, so that nobody need try to decode it.
bool isPicture(std::string_view begin) {
    return begin.starts_with("BM") || begin.starts_with("\x89PNG") || begin.starts_with("\xFF\xD8\xFF");
}

// Plain samples; of what else may lie in such a file browsers know little.
bool isPlainWav(std::string_view begin) {
    constexpr std::size_t format = 20;
    if (!begin.starts_with("RIFF") || begin.size() <= format || begin.substr(12, 4) != "fmt ") return false;
    return begin[format] == 1 && begin[format + 1] == 0;
}

bool isMp3(std::string_view begin) {
    if (begin.starts_with("ID3")) return true;
    return begin.size() > 1 && begin[0] == '\xFF' && (static_cast<unsigned char>(begin[1]) & 0xE6U) == 0xE2U;
}

void run(std::vector<std::string> command, const char* wanted) {
    try {
        voices::runProgram(command);
    } catch (const std::system_error&) {
        throw MissingTool(command[0] + " fehlt, das " + wanted);
    }
}

std::string seconds(std::int64_t milliseconds) {
    return std::to_string(static_cast<double>(milliseconds) / 1000);
}

void ffmpeg(std::vector<std::string> options, const fs::path& from, const fs::path& to) {
    std::vector<std::string> command{"ffmpeg", "-v", "error", "-nostdin", "-y", "-i", "file:" + from.string()};
    command.insert(command.end(), options.begin(), options.end());
    command.insert(command.end(), {"-map_metadata", "-1", "-fflags", "+bitexact", "file:" + to.string()});
    run(std::move(command), "aus Tönen und Filmen macht, was ein Browser spielt");
}

// As loud as the program's own synthesiser plays it, and as long as the program counts it.
void renderSong(const fs::path& midi, std::int64_t length, const fs::path& musics, const fs::path& target) {
    const auto fonts = soundFonts(musics);
    if (fonts.empty()) throw MissingTool("eine General-MIDI-Klangdatei (.sf2) fehlt, aus der die Lieder klingen");
    fs::path wave = target;
    wave += ".wav";
    run({"fluidsynth", "-q", "-ni", "-g", "0.5", "-r", "44100", "-O", "s16", "-T", "wav", "-F", wave.string(),
         fonts.front().string(), midi.string()},
        "die Lieder vorspielt");
    ffmpeg({"-t", seconds(length), "-b:a", "96k"}, wave, target);
    fs::remove(wave);
}

}  // namespace

MediaFacts factsOf(const fs::path& file) {
    MediaFacts facts;
    const std::string begin = beginningOf(file);
    if (isPicture(begin)) return facts;
    if (const auto midi = readMidi(file)) {
        facts.sound = midiLength(*midi).value_or(0);
        facts.kind = facts.sound > 0 ? Media::song : Media::none;
        return facts;
    }
    MediaDecoder* const decoder = mediaDecoder();
    if (decoder == nullptr) return facts;
    facts.sound = decoder->audioLength(file);
    facts.playable = isPlainWav(begin) || isMp3(begin);
    if (!facts.playable) facts.film = decoder->videoLength(file);
    facts.kind = facts.film > 0 ? Media::film : facts.sound > 0 ? Media::sound : Media::none;
    return facts;
}

const char* extensionOf(Media kind) {
    return kind == Media::film ? "webm" : "mp3";
}

void convert(const fs::path& file, const MediaFacts& facts, const fs::path& musics, const fs::path& target) {
    switch (facts.kind) {
        case Media::song: return renderSong(file, facts.sound, musics, target);
        case Media::sound: return ffmpeg({"-b:a", "96k"}, file, target);
        case Media::film:
            return ffmpeg({"-c:v", "libvpx", "-crf", "12", "-b:v", "1500k", "-deadline", "good", "-cpu-used", "2",
                           "-c:a", "libopus", "-b:a", "64k"},
                          file, target);
        case Media::none: return;
    }
}

}  // namespace zentrox::web
