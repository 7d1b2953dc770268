#include "platform/machine/midi.h"

#include <gtest/gtest.h>

#include "tests/media/make_media.h"

namespace zentrox::test {
namespace {

using namespace std::string_literals;

std::string midi(const std::string& division, const std::vector<std::string>& tracks) {
    std::string file = "MThd\0\0\0\6\0\1\0"s + static_cast<char>(tracks.size()) + division;
    for (const auto& track : tracks) file += "MTrk\0\0\0"s + static_cast<char>(track.size()) + track;
    return file;
}

TEST(MidiLength, CountsTheBeatsOfTheWholeSong) {
    const auto beat = "\0\x60"s;  // 96 ticks a quarter note
    const auto noteFor96Ticks = "\0\x90\x40\x40\x60\x40\0"s;
    const auto end = "\0\xFF\x2F\0"s;
    const auto slower = "\x60\xFF\x51\x03\x0F\x42\x40"s;  // a second a quarter note, from tick 96 on
    struct {
        const char* what;
        std::string file;
        std::int64_t length;
    } const cases[] = {
        {"a quarter note at the usual tempo", midi(beat, {noteFor96Ticks + end}), 500},
        {"the end mark comes after the last note", midi(beat, {noteFor96Ticks + "\x60\xFF\x2F\0"s}), 1000},
        {"no end mark", midi(beat, {noteFor96Ticks}), 500},
        {"the longest track counts", midi(beat, {end, "\x81\x40\x90\x40\x40"s + end}), 1000},
        {"the tempo of one track holds for all", midi(beat, {slower + end, "\x81\x40\x90\x40\x40"s + end}), 1500},
        {"an exclusive message is passed over", midi(beat, {"\0\xF0\x03\x01\x02\xF7"s + noteFor96Ticks + end}),
         500},
        {"a strange chunk is passed over",
         "MThd\0\0\0\6\0\0\0\1\0\x60"s + "Xtra\0\0\0\2ab"s + "MTrk\0\0\0\x0B"s + noteFor96Ticks + end, 500},
    };
    for (const auto& [what, file, length] : cases) EXPECT_EQ(midiLength(file), length) << what;
    EXPECT_EQ(midiLength(midiFile({.quarters = 6, .tempo = 250'000})), 1500);
}

TEST(MidiLength, IsNothingForWhatCannotBePlayed) {
    const auto note = "\0\x90\x40\x40\x60\x40\0"s;
    EXPECT_FALSE(midiLength(""));
    EXPECT_FALSE(midiLength("RIFF and so on"));
    EXPECT_FALSE(midiLength(midi("\xE7\x28"s, {note}))) << "frames of film in place of a beat";
    EXPECT_FALSE(midiLength(midi("\0\0"s, {note}))) << "no beat";
    EXPECT_FALSE(midiLength(midi("\0\x60"s, {}))) << "no track";
    EXPECT_FALSE(midiLength(midi("\0\x60"s, {"\0\xFF\x2F\0"s}))) << "no events";
    EXPECT_FALSE(midiLength(midi("\0\x60"s, {"\0\xF4"s}))) << "an unknown message";
    EXPECT_FALSE(midiLength(midi("\0\x60"s, {"\0\x40\x40"s}))) << "data before any message";
    const auto whole = midi("\0\x60"s, {note + "\0\xFF\x2F\0"s});
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(midiLength(whole.substr(0, size))) << "cut after " << size << " bytes";
}

}  // namespace
}  // namespace zentrox::test
