// A song as it is written down: tracks of notes in ticks.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zentrox::notes {

constexpr int ticksPerQuarter = 480;
constexpr int ticksPerWhole = 4 * ticksPerQuarter;

struct Note {
    std::int64_t start = 0;   // ticks
    std::int64_t length = 0;  // ticks that it sounds
    int key = 60;             // 60 is the middle c
    int velocity = 100;       // 1 to 127
};

struct Track {
    std::string name;
    bool drums = false;
    int program = 0;   // General MIDI, from 0
    int volume = 100;  // 0 to 127
    int pan = 64;      // 0 is left, 127 right
    std::vector<Note> notes;
    std::int64_t end = 0;  // ticks, rests included
};

struct Song {
    double tempo = 120;  // quarters a minute
    int volume = 100;    // of all tracks, hundredths
    int barTicks = ticksPerWhole;
    int barQuarters = 4;  // as the time signature says: that many of `barUnit`
    int barUnit = 4;
    std::vector<Track> tracks;
};

// What is wrong, in German and UTF-8, with the line it stands in.
class SongError : public std::runtime_error {
public:
    SongError(int where, const std::string& what) : std::runtime_error(what), line(where) {}
    int line;
};

// Reads the notation that docs/notes.md describes. Throws `SongError`.
Song readSong(std::string_view text);

// A MIDI file of format 1, a track each.
std::string midiFile(const Song& song);

}  // namespace zentrox::notes
