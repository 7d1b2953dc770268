// Writes small sound, song and video files to play.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace zentrox::test {

struct Tone {
    double hertz = 440;
    double seconds = 1;
    double level = 0.25;  // of full scale
    int rate = 44100;
    int channels = 2;
    int bits = 16;  // of a WAV file: 8 or 16
};

std::string wavFile(const Tone& tone);

// One note of an organ, `quarters` quarter notes of `tempo` microseconds each.
struct Melody {
    int note = 69;
    int quarters = 4;
    int tempo = 500'000;
};

std::string midiFile(const Melody& melody);

// Its picture n is plain grey, of `greyOf(n)`.
struct Clip {
    const char* codec = "mpeg1video";
    int width = 640;
    int height = 480;
    int rate = 25;  // pictures a second
    double seconds = 3;
    double hertz = 440;     // of its sound; 0 is none
    bool detailed = false;  // moving stripes in place of plain grey: harder to decode
};

int greyOf(int picture);

// The format is that of the file's extension. Both throw `std::runtime_error` if there is no encoder for it.
void encodeTone(const std::filesystem::path& file, const Tone& tone);
void encodeClip(const std::filesystem::path& file, const Clip& clip);

}  // namespace zentrox::test
