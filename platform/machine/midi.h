// The length of a song in a MIDI file. The synthesiser can't tell it, and the music is started again by it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace zentrox {

// The whole file, if it begins like a MIDI file; nothing else.
std::optional<std::string> readMidi(const std::filesystem::path& file);

// Milliseconds until the last event, at least 1. Nothing if it is no whole MIDI file with a beat, or has no events.
std::optional<std::int64_t> midiLength(std::string_view file);

}  // namespace zentrox
