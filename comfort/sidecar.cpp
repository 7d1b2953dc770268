#include "comfort/sidecar.h"

#include <chrono>
#include <ctime>
#include <system_error>

#include "engine/state/felder.h"
#include "engine/state/zustand.h"
#include "platform/codec/pictures.h"
#include "platform/machine/replace_file.h"
#include "platform/values/error.h"
#include "platform/values/limits.h"

namespace zentrox {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostLines = 4;
constexpr std::size_t mostItems = InventarPlätze;
constexpr TextView wordFor = "zu";
constexpr TextView wordWhen = "wann";
constexpr TextView wordItem = "dabei";
constexpr TextView wordLine = "gesagt";

// The game path of what lies beside a saved game.
Text beside(TextView save, TextView extension) {
    return Text(save.substr(0, save.rfind('.'))) + Text(extension);
}

// Tells saved games apart, not forgers.
std::string markOf(TextView bytes) {
    std::uint64_t mark = 0xCBF29CE484222325U;
    for (const char c : bytes) mark = (mark ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return std::to_string(mark);
}

std::string local(std::time_t time) {
    std::tm parts{};
    localtime_r(&time, &parts);
    char text[32];
    const std::size_t length = std::strftime(text, sizeof text, "%d.%m.%Y, %H:%M", &parts);
    return {text, length};
}

Text timeOf(const fs::path& file) {
    std::error_code error;
    const auto written = fs::last_write_time(file, error);
    if (error) return {};
    const auto since = written - fs::file_time_type::clock::now();
    const auto there =
        std::chrono::system_clock::now() + std::chrono::duration_cast<std::chrono::system_clock::duration>(since);
    return local(std::chrono::system_clock::to_time_t(there));
}

// The second line of a saved game is its room.
Text roomOf(TextView bytes) {
    const auto lines = linesOf(bytes.substr(0, 1024));
    return lines.size() < 2 ? Text() : Text(lines[1].substr(0, lines[1].rfind('.')));
}

Text onOneLine(Text text) {
    for (char& c : text)
        if (c == '\r' || c == '\n' || c == '#') c = ' ';
    return text;
}

void readLines(Sidecar& sidecar, const std::string& utf8) {
    const Text text = fromUtf8(utf8);
    for (const TextView line : linesOf(text)) {
        const auto colon = line.find(": ");
        if (colon == TextView::npos) continue;
        const TextView word = line.substr(0, colon);
        const Text value(line.substr(colon + 2, limits::captionLetters));
        if (word == wordWhen) sidecar.when = value;
        if (word == wordItem && sidecar.items.size() < mostItems) sidecar.items.push_back(value);
        if (word == wordLine && sidecar.lines.size() < mostLines) sidecar.lines.push_back(value);
    }
}

}  // namespace

Bitmap thumbnailOf(const Bitmap& view) {
    constexpr int step = 4;
    constexpr unsigned samples = step * step;
    Bitmap small(thumbnailSize);
    for (int y = 0; y < small.height() && (y + 1) * step <= view.height(); ++y) {
        for (int x = 0; x < small.width() && (x + 1) * step <= view.width(); ++x) {
            unsigned red = 0;
            unsigned green = 0;
            unsigned blue = 0;
            for (int i = 0; i < step; ++i) {
                for (int k = 0; k < step; ++k) {
                    const std::uint32_t pixel = view.row(y * step + i)[x * step + k];
                    red += pixel >> 16U & 255U;
                    green += pixel >> 8U & 255U;
                    blue += pixel & 255U;
                }
            }
            small.row(y)[x] = red / samples << 16U | green / samples << 8U | blue / samples;
        }
    }
    return small;
}

Text timeOfNow() {
    return local(std::time(nullptr));
}

void writeSidecar(const Files& files, TextView save, TextView bytes, const Sidecar& sidecar) {
    std::string out = std::string(wordFor) + ": " + markOf(bytes) + "\n";
    const auto put = [&out](TextView word, const Text& value) {
        out += std::string(word) + ": " + toUtf8(onOneLine(value)) + "\n";
    };
    put(wordWhen, sidecar.when);
    for (const Text& item : sidecar.items) put(wordItem, item);
    for (const Text& line : sidecar.lines) put(wordLine, line);
    if (!sidecar.picture.empty()) savePng(sidecar.picture, files.systemPath(beside(save, ".png")).string());
    replaceFile(files.systemPath(beside(save, ".was")), out);
}

std::optional<Sidecar> readSidecar(const Files& files, TextView save) {
    if (!files.exists(save)) return std::nullopt;
    Sidecar sidecar;
    try {
        const Text bytes = files.read(save, limits::savedGameBytes);
        sidecar.when = timeOf(files.systemPath(save));
        sidecar.room = roomOf(bytes);
        const Text notes = beside(save, ".was");
        if (!files.exists(notes)) return sidecar;
        const std::string utf8 = files.read(notes, limits::besideSaveBytes);
        if (!utf8.starts_with(std::string(wordFor) + ": " + markOf(bytes) + "\n")) return sidecar;
        readLines(sidecar, utf8);
        sidecar.picture = loadPicture(files, beside(save, ".png"), thumbnailSize);
    } catch (const DataError&) {
        // What can't be read is left out.
    }
    return sidecar;
}

}  // namespace zentrox
