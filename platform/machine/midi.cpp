#include "platform/machine/midi.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <vector>

#include "platform/machine/whole_file.h"
#include "platform/values/limits.h"

namespace zentrox {

namespace {

constexpr std::string_view magic = "MThd";
constexpr double defaultTempo = 500'000;  // microseconds a quarter note
constexpr std::int64_t longest = 24LL * 60 * 60 * 1000;

// Reads big-endian numbers from the front of a text; `failed` when it is used up.
class Bytes {
public:
    explicit Bytes(std::string_view rest) : rest_(rest) {}

    bool empty() const { return rest_.empty(); }
    bool failed() const { return failed_; }

    std::uint32_t byte() { return number(1); }
    std::uint32_t number(int bytes) {
        std::uint32_t value = 0;
        for (const char c : take(static_cast<std::size_t>(bytes)))
            value = value << 8U | static_cast<unsigned char>(c);
        return value;
    }
    // Seven bits a byte, at most four bytes.
    std::uint32_t variable() {
        std::uint32_t value = 0;
        for (int i = 0; i < 4; ++i) {
            const std::uint32_t next = byte();
            value = value << 7U | (next & 0x7FU);
            if ((next & 0x80U) == 0) return value;
        }
        failed_ = true;
        return 0;
    }
    std::string_view take(std::size_t count) {
        if (count > rest_.size()) {
            failed_ = true;
            rest_ = {};
            return {};
        }
        const auto part = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return part;
    }
    bool nextIsData() const { return !rest_.empty() && static_cast<unsigned char>(rest_.front()) < 0x80; }

private:
    std::string_view rest_;
    bool failed_ = false;
};

struct TempoChange {
    std::int64_t tick;
    double tempo;  // microseconds a quarter note
};

struct Song {
    std::int64_t lastTick = 0;
    std::vector<TempoChange> tempos;
};

// False at the end of the track.
bool readMeta(Bytes& track, std::int64_t tick, Song& song) {
    constexpr std::uint32_t endOfTrack = 0x2F;
    constexpr std::uint32_t setTempo = 0x51;
    const std::uint32_t type = track.byte();
    Bytes content(track.take(track.variable()));
    if (type == setTempo) song.tempos.push_back({tick, static_cast<double>(content.number(3))});
    return type != endOfTrack;
}

bool readTrack(Bytes track, Song& song) {
    std::int64_t tick = 0;
    std::uint32_t running = 0;
    while (!track.empty()) {
        tick += track.variable();
        const std::uint32_t status = track.nextIsData() ? running : track.byte();
        if (status == 0xFF) {
            if (!readMeta(track, tick, song)) break;
        } else if (status == 0xF0 || status == 0xF7) {
            track.take(track.variable());
        } else if (status >= 0x80 && status < 0xF0) {
            running = status;
            track.take(status >= 0xC0 && status < 0xE0 ? 1 : 2);
        } else {
            return false;
        }
    }
    song.lastTick = std::max(song.lastTick, tick);
    return !track.failed();
}

double microseconds(Song& song, double ticksPerQuarter) {
    std::stable_sort(song.tempos.begin(), song.tempos.end(),
                     [](const TempoChange& a, const TempoChange& b) { return a.tick < b.tick; });
    double time = 0;
    double tempo = defaultTempo;
    std::int64_t from = 0;
    for (const auto& change : song.tempos) {
        time += static_cast<double>(change.tick - from) * tempo / ticksPerQuarter;
        tempo = change.tempo;
        from = change.tick;
    }
    return time + static_cast<double>(song.lastTick - from) * tempo / ticksPerQuarter;
}

}  // namespace

std::optional<std::string> readMidi(const std::filesystem::path& file) {
    std::array<char, 4> begin{};
    std::ifstream(file, std::ios::binary).read(begin.data(), begin.size());
    if (std::string_view(begin.data(), begin.size()) != magic) return std::nullopt;
    return readFile(file, limits::midiBytes);
}

std::optional<std::int64_t> midiLength(std::string_view file) {
    if (!file.starts_with(magic)) return std::nullopt;
    Bytes bytes(file.substr(magic.size()));
    Bytes header(bytes.take(bytes.number(4)));
    header.number(2);  // the format: all tracks are played at once
    const std::uint32_t tracks = header.number(2);
    const std::uint32_t division = header.number(2);
    // Frames of film in place of a beat: the synthesiser does not play them.
    if (header.failed() || division == 0 || division >= 0x8000) return std::nullopt;

    Song song;
    for (std::uint32_t found = 0; found < tracks;) {
        const auto type = bytes.take(4);
        const Bytes chunk(bytes.take(bytes.number(4)));
        if (bytes.failed()) return std::nullopt;
        if (type != "MTrk") continue;
        ++found;
        if (!readTrack(chunk, song)) return std::nullopt;
    }
    const double length = microseconds(song, division) / 1000;
    if (song.lastTick == 0) return std::nullopt;
    return std::max<std::int64_t>(1, static_cast<std::int64_t>(std::min(length, static_cast<double>(longest))));
}

}  // namespace zentrox
