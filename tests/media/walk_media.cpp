// Writes the sounds, songs and videos that the walks play: walk_media DIRECTORY
#include <filesystem>
#include <fstream>
#include <iostream>

#include "tests/media/make_media.h"

int main(int argc, char** argv) {
    using namespace zentrox::test;
    if (argc != 2) return 2;
    const std::filesystem::path data(argv[1]);
    const auto write = [&](const char* name, const std::string& content) {
        std::ofstream(data / name, std::ios::binary) << content;
    };
    try {
        write("sounds/lang.wav", wavFile({.seconds = 2}));
        write("sounds/Nur Wäv.WAV", wavFile({.seconds = 0.5, .rate = 11025, .channels = 1, .bits = 8}));
        encodeTone(data / "sounds" / "nur mp3.mp3", {.seconds = 0.5});
        write("sounds/kaputt.wav", "no sound");
        write("musics/lied.mid", midiFile({.quarters = 6}));  // 3000 ms
        write("musics/zweites.mid", midiFile({.quarters = 20}));
        write("musics/kaputt.mid", "MThd");
        encodeClip(data / "movies" / "Film.mpg", {.width = 160, .height = 120, .seconds = 1, .hertz = 0});
        write("movies/kaputt.avi", "RIFF");
        for (int i = 10; i <= 18; ++i)
            encodeTone(data / "sounds" / ("Error" + std::to_string(i) + ".mp3"), {.seconds = 0.5});
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
