#include <algorithm>
#include <cmath>

#include "platform/values/bytes.h"
#include "tools/notes/song.h"

namespace zentrox::notes {

namespace {

constexpr int drumChannel = 9;
constexpr int volumeController = 7;
constexpr int panController = 10;

// Seven bits a byte, the highest first; all but the last have their top bit set.
void variable(std::string& out, std::uint32_t value) {
    int groups = 1;
    while (groups < 5 && value >> (7 * groups) != 0) ++groups;
    for (int i = groups - 1; i >= 0; --i)
        out += static_cast<char>((value >> (7 * i) & 0x7FU) | (i > 0 ? 0x80U : 0U));
}

void meta(std::string& out, int kind, const std::string& data) {
    out += '\xFF';
    out += static_cast<char>(kind);
    variable(out, static_cast<std::uint32_t>(data.size()));
    out += data;
}

void message(std::string& out, int status, int a, int b) {
    out += static_cast<char>(status);
    out += static_cast<char>(a);
    out += static_cast<char>(b);
}

std::string chunk(const std::string& events) {
    std::string out = "MTrk";
    out += big(static_cast<std::uint32_t>(events.size()), 4);
    return out + events;
}

void endOfTrack(std::string& out, std::int64_t wait) {
    variable(out, static_cast<std::uint32_t>(wait));
    meta(out, 0x2F, {});
}

int log2(int value) {
    int n = 0;
    while (1 << (n + 1) <= value) ++n;
    return n;
}

// Tempo and measure.
std::string conductor(const Song& song) {
    std::string out;
    const std::string tempo = big(static_cast<std::uint32_t>(std::lround(60e6 / song.tempo)), 3);
    variable(out, 0);
    meta(out, 0x51, tempo);
    variable(out, 0);
    meta(out, 0x58, {static_cast<char>(song.barQuarters), static_cast<char>(log2(song.barUnit)), '\x18', '\x08'});
    endOfTrack(out, 0);
    return chunk(out);
}

struct Event {
    std::int64_t at;
    bool on;  // notes end before others begin
    int key;
    int velocity;
};

std::vector<Event> eventsOf(const Track& track) {
    std::vector<Event> events;
    for (const Note& n : track.notes) {
        events.push_back({n.start, true, n.key, n.velocity});
        events.push_back({n.start + n.length, false, n.key, 0});
    }
    std::stable_sort(events.begin(), events.end(),
                     [](const Event& a, const Event& b) { return a.at != b.at ? a.at < b.at : a.on < b.on; });
    return events;
}

std::string track(const Track& track, int channel, int volume) {
    std::string out;
    variable(out, 0);
    meta(out, 0x03, track.name);
    variable(out, 0);
    out += static_cast<char>(0xC0 | channel);
    out += static_cast<char>(track.program);
    for (const auto& [controller, value] :
         {std::pair(volumeController, track.volume * volume / 100), {panController, track.pan}}) {
        variable(out, 0);
        message(out, 0xB0 | channel, controller, value);
    }
    std::int64_t now = 0;
    for (const Event& e : eventsOf(track)) {
        variable(out, static_cast<std::uint32_t>(e.at - now));
        message(out, (e.on ? 0x90 : 0x80) | channel, e.key, e.velocity);
        now = e.at;
    }
    endOfTrack(out, std::max<std::int64_t>(track.end - now, 0));
    return chunk(out);
}

}  // namespace

std::string midiFile(const Song& song) {
    std::string out = "MThd";
    out += big(6, 4);
    out += big(1, 2);
    out += big(static_cast<std::uint32_t>(song.tracks.size() + 1), 2);
    out += big(ticksPerQuarter, 2);
    out += conductor(song);
    int channel = 0;
    for (const Track& t : song.tracks) {
        if (channel == drumChannel) ++channel;
        out += track(t, t.drums ? drumChannel : channel++, song.volume);
    }
    return out;
}

}  // namespace zentrox::notes
