#include "stranger.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/machine/whole_file.h"
#include "tools/story/writer.h"

namespace zentrox::test {

namespace fs = std::filesystem;

namespace {

std::string number(std::uint32_t value, int bytes = 4) {
    std::string out;
    for (int i = 0; i < bytes; ++i) out += static_cast<char>(value >> (8 * i) & 0xFF);
    return out;
}

double seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

// One pixel in a file, with the rows of a mask behind it where it is a pointer's.
std::string bitmapHeader(std::uint32_t height, std::uint32_t bits) {
    return number(40) + number(1) + number(height) + number(1, 2) + number(bits, 2) + std::string(24, '\0');
}

std::string pointer() {
    const std::string picture = bitmapHeader(2, 32) + number(0xFFFFFFFF) + number(0);
    const auto size = static_cast<std::uint32_t>(picture.size());
    return number(0, 2) + number(1, 2) + number(1, 2) + number(0x0101) + number(1, 2) + number(32, 2) +
           number(size) + number(22) + picture;
}

}  // namespace

std::string whitePixel() {
    return "BM" + number(58) + number(0) + number(54) + bitmapHeader(1, 24) + number(0xFFFFFF);
}

Stranger::Stranger() {
    for (const char* name : {"taste1", "taste2", "ge2", "werfen"})
        directory.write(std::string("fremde/geschichte/cursors/") + name + ".ico", pointer());
    directory.write("fremde/geschichte/graphics/a.bmp", whitePixel());
    for (const char* folder : {"rooms", "items", "graphics", "cursors", "sounds", "musics", "movies", "games"})
        fs::create_directories(story / folder);
}

Skript Stranger::script(const std::vector<Command>& commands) {
    Skript made;
    for (const Command& command : commands) {
        made.Befehl.push_back(command.opcode);
        made.Argument.push_back(fromUtf8(command.argument));
    }
    made.Letzter = static_cast<std::int32_t>(commands.size()) - 1;
    return made;
}

Raum Stranger::room(const std::vector<std::pair<std::string, std::vector<Command>>>& objects,
                    const std::vector<Command>& start) {
    Raum made;
    made.Bild = "a.bmp";
    made.Startskript = script(start);
    int column = 0;
    for (const auto& [name, commands] : objects) {
        RaumObjekt object;
        object.Name = fromUtf8(name);
        object.Aktiv = true;
        for (int row = 0; row < 4; ++row)
            object.Maske.set(column % Maskenspalten, column / Maskenspalten * 4 + row, true);
        object.HatSkript[1] = true;
        object.Aktion[1] = script(commands);
        made.Objekte.push_back(object);
        ++column;
    }
    made.LetztesObjekt = column - 1;
    return made;
}

void Stranger::write(const std::string& file, const Raum& room) const {
    directory.write("fremde/geschichte/rooms/" + file, story::writeRoom(room));
}

Played Stranger::play(const std::string& walk, std::vector<std::string> options) const {
    const fs::path file = directory.write("walk", walk);
    std::vector<std::string> command{PROBE, "--dir", story.string(), "--args", "Start.lsd"};
    command.insert(command.end(), options.begin(), options.end());
    command.push_back(file.string());
    return run(std::move(command));
}

Played Stranger::run(std::vector<std::string> command) const {
    // Another player than the probe: scripts/harm.
    if (const char* const player = std::getenv("STRANGER_PLAYER"); player != nullptr && command[0] == PROBE)
        command[0] = player;
    const fs::path said = directory.path() / "said";
    const pid_t child = fork();
    if (child == 0) {
        if (freopen(said.c_str(), "w", stdout) == nullptr || dup2(1, 2) < 0) _exit(3);
        std::vector<char*> words;
        for (std::string& word : command) words.push_back(word.data());
        words.push_back(nullptr);
        execv(words[0], words.data());
        _exit(3);
    }
    int status = 0;
    rusage used{};
    wait4(child, &status, 0, &used);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readFile(said).value_or(""),
            seconds(used.ru_utime) + seconds(used.ru_stime), static_cast<double>(used.ru_maxrss) / 1024};
}

}  // namespace zentrox::test
