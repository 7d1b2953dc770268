// The engine on a fake machine with a fake room window, and scripts written down in a line.
#pragma once

#include <gtest/gtest.h>

#include "engine/interpreter/interpreter.h"
#include "media/medien.h"
#include "tests/support/fake_backend.h"
#include "tests/support/fake_fonts.h"
#include "tests/support/fake_room.h"
#include "tests/support/fake_sound.h"
#include "tests/support/temp_directory.h"

namespace zentrox::test {

struct Line {
    TextView befehl;
    TextView argument = {};
};

inline Skript skript(const std::vector<Line>& lines) {
    Skript s;
    for (const Line& line : lines) {
        const Opcode* const row = findOpcode(line.befehl);
        s.Befehl.push_back(row != nullptr ? row->number : std::stoi(Text(line.befehl)));
        s.Argument.emplace_back(line.argument);
    }
    s.Letzter = static_cast<std::int32_t>(s.Befehl.size()) - 1;
    return s;
}

class EngineTest : public ::testing::Test {
protected:
    TempDirectory directory;
    FakeBackend backend;
    FakeSound sound{backend};
    FakeFonts fonts;
    Platform platform{backend, fonts, sound, directory.path()};
    Zustand z;
    Medien medien{platform, z};
    FakeRaumfenster raum;
    Spieltabelle spiele;
    Beobachter niemand;
    Interpreter interpreter{platform, z, medien, raum, spiele, niemand};

    EngineTest() {
        const Text& root = platform.files.programDirectory();
        z.PfadRooms = root + "rooms\\";
        z.PfadSounds = root + "sounds\\";
        z.PfadGraphics = "g\\";
        z.PfadMovies = "mo\\";
        z.PfadCursors = "c\\";
        z.PfadItems = "i\\";
        z.PfadMusics = root + "musics\\";
    }
    // Any key, pressed a moment after each text has opened.
    void pressAtText() {
        raum.onZeigText = [this](TextView) { nach(50, [this] { z.TastenCode = 65; }); };
    }
    // Lets something happen while the script waits.
    void nach(Milliseconds ms, std::function<void()> was) {
        backend.wait(ms);
        backend.then(std::move(was));
    }
    void execute(const std::vector<Line>& lines, Text parameter = {}) {
        interpreter.SkriptAusführen(skript(lines), -1, std::move(parameter));
    }
    // What a script's commands have asked of the room window.
    std::vector<Text> notizen(const std::vector<Line>& lines, Text parameter = {}) {
        execute(lines, std::move(parameter));
        return raum.commandNotes();
    }
    // The pictures that a script has shown, as one line: "1 2 3". They mark which way it took.
    Text weg(const std::vector<Line>& lines, Text parameter = {}) {
        Text alle;
        for (const Text& notiz : notizen(lines, std::move(parameter)))
            if (notiz.starts_with("BildLaden g\\")) alle += (alle.empty() ? "" : " ") + notiz.substr(12);
        return alle;
    }
};

}  // namespace zentrox::test
