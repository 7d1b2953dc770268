#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <utility>

#include "tools/notes/song.h"

namespace zentrox::notes {

namespace {

constexpr std::size_t mostNotes = 200'000;
constexpr int mostTracks = 15;
constexpr int highestKey = 127;
constexpr int loudest = 127;
constexpr int deepest = 32;  // phrases within phrases

const std::map<std::string_view, int> drumKeys{{"kick", 36},  {"stick", 37}, {"snare", 38}, {"clap", 39},
                                               {"low", 45},   {"hat", 42},   {"mid", 47},   {"open", 46},
                                               {"crash", 49}, {"high", 50},  {"ride", 51},  {"tamb", 54},
                                               {"cow", 56},   {"shake", 70}, {"block", 76}, {"triangle", 81}};

struct Token {
    std::string_view text;
    int line;
};

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool standsAlone(char c) {
    return c == '(' || c == '[' || c == '|';
}

// Brackets that open and bar lines stand alone; one that closes takes what is glued to it along.
std::vector<Token> tokensOf(std::string_view text) {
    std::vector<Token> tokens;
    int line = 1;
    for (std::size_t i = 0; i < text.size();) {
        if (text.substr(i, 2) == "//") {
            while (i < text.size() && text[i] != '\n') ++i;
        } else if (isBlank(text[i])) {
            if (text[i++] == '\n') ++line;
        } else {
            const std::size_t begin = i++;
            if (!standsAlone(text[begin]))
                while (i < text.size() && !isBlank(text[i]) && !standsAlone(text[i]) && text[i] != ')' &&
                       text[i] != ']')
                    ++i;
            tokens.push_back({text.substr(begin, i - begin), line});
        }
    }
    return tokens;
}

std::optional<int> number(std::string_view text) {
    if (text.starts_with('+')) text.remove_prefix(1);
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

// "1/8", "3/16", "1"; a point at the end makes it half as long again. Nothing if it fits no whole tick.
std::optional<std::int64_t> duration(std::string_view text) {
    const bool dotted = text.ends_with('.');
    if (dotted) text.remove_suffix(1);
    const std::size_t slash = text.find('/');
    const auto over = number(text.substr(0, slash));
    const auto under = slash == std::string_view::npos ? std::optional(1) : number(text.substr(slash + 1));
    if (!over || !under || *over < 1 || *under < 1 || *over > 1000) return std::nullopt;
    const std::int64_t ticks = std::int64_t{ticksPerWhole} * *over * (dotted ? 3 : 2);
    const std::int64_t parts = std::int64_t{2} * *under;
    if (ticks % parts != 0) return std::nullopt;
    return ticks / parts;
}

// "c4", "f#3", "bb5".
std::optional<int> keyOf(std::string_view text) {
    constexpr std::string_view letters = "c d ef g a b";
    const std::size_t step = text.empty() || text[0] == ' ' ? std::string_view::npos : letters.find(text[0]);
    if (step == std::string_view::npos) return std::nullopt;
    int key = static_cast<int>(step);
    text.remove_prefix(1);
    for (; !text.empty() && (text[0] == '#' || text[0] == 'b'); text.remove_prefix(1))
        key += text[0] == '#' ? 1 : -1;
    const auto octave = number(text);
    if (!octave || *octave < -1 || *octave > 9) return std::nullopt;
    return key + 12 * (*octave + 1);
}

// "v90", "v+10", "g50".
bool isSetting(std::string_view text) {
    if (text.size() < 2 || (text[0] != 'v' && text[0] != 'g')) return false;
    const bool change = text[0] == 'v' && (text[1] == '+' || text[1] == '-');
    return number(text.substr(1)).has_value() && (change || text[1] != '-');
}

class Reader {
public:
    explicit Reader(std::string_view text) : tokens_(tokensOf(text)) {}

    Song read() {
        while (at_ < tokens_.size()) statement();
        if (song_.tracks.empty()) throw SongError(1, "das Lied hat keine Spur (track)");
        return std::move(song_);
    }

private:
    struct Range {
        std::size_t begin;
        std::size_t end;
    };

    [[noreturn]] void fail(const std::string& what) const {
        throw SongError(tokens_.empty() ? 1 : tokens_[at_ < tokens_.size() ? at_ : tokens_.size() - 1].line, what);
    }
    std::string quoted() const { return '"' + std::string(tokens_[at_].text) + '"'; }

    bool word(std::string_view text) {
        if (at_ >= tokens_.size() || tokens_[at_].text != text) return false;
        ++at_;
        return true;
    }
    int numberNext(int low, int high) {
        const auto value = at_ < tokens_.size() ? number(tokens_[at_].text) : std::nullopt;
        if (!value || *value < low || *value > high)
            fail("hier muss eine Zahl von " + std::to_string(low) + " bis " + std::to_string(high) + " stehen");
        ++at_;
        return *value;
    }

    void statement() {
        if (word("tempo")) {
            song_.tempo = numberNext(20, 400);
        } else if (word("bar")) {
            bar();
        } else if (song_.tracks.empty() && word("volume")) {
            song_.volume = numberNext(1, 100);
        } else if (word("track")) {
            track();
        } else if (word("let")) {
            let();
        } else if (song_.tracks.empty()) {
            fail(quoted() + " steht vor der ersten Spur (track)");
        } else {
            step();
        }
    }

    void bar() {
        const std::string_view text = at_ < tokens_.size() ? tokens_[at_].text : std::string_view();
        const std::size_t slash = text.find('/');
        const auto over = number(text.substr(0, slash));
        const auto under = slash == std::string_view::npos ? std::nullopt : number(text.substr(slash + 1));
        const auto ticks = duration(text);
        if (!over || !under || !ticks || *over > 32) fail("nach bar steht ein Takt wie 4/4");
        song_.barQuarters = *over;
        song_.barUnit = *under;
        song_.barTicks = static_cast<int>(*ticks);
        ++at_;
    }

    void track() {
        if (song_.tracks.size() == mostTracks) fail("mehr als 15 Spuren sind es zu viele");
        Track t;
        if (at_ < tokens_.size()) t.name = tokens_[at_++].text;
        t.drums = t.name == "drums";
        for (;;) {
            if (word("program"))
                t.program = numberNext(0, 127);
            else if (word("volume"))
                t.volume = numberNext(0, 127);
            else if (word("pan"))
                t.pan = numberNext(0, 127);
            else
                break;
        }
        song_.tracks.push_back(t);
        length_ = ticksPerQuarter;
        tied_ = 0;
        velocity_ = 100;
        gate_ = 90;
        barStart_ = 0;
    }

    // A phrase with a name, to be played where the name stands.
    void let() {
        if (at_ >= tokens_.size()) fail("nach let fehlt der Name");
        const std::string name(tokens_[at_++].text);
        if (!word("(")) fail("nach let " + name + " fehlt die Klammer");
        const Range body = bracket();
        ++at_;
        phrases_[name] = body;
    }

    // From behind an opening bracket to its closing one, on which it stops.
    Range bracket() {
        const std::size_t begin = at_;
        for (int depth = 0; at_ < tokens_.size(); ++at_) {
            if (tokens_[at_].text == "(") ++depth;
            if (tokens_[at_].text.starts_with(')') && depth-- == 0) return {begin, at_};
        }
        at_ = begin - 1;
        fail("diese Klammer wird nicht geschlossen");
    }

    void run(const Range& range) {
        if (++depth_ > deepest) fail("eine Phrase enthält sich selbst");
        const std::size_t back = at_;
        for (at_ = range.begin; at_ < range.end;) step();
        at_ = back;
        --depth_;
    }

    void step() {
        const std::string_view text = tokens_[at_].text;
        if (text == "(") return repeat();
        if (text == "[") return chord();
        if (text == "|") return barLine();
        if (text == "~" || text.starts_with("~:")) return tie();
        if (isSetting(text) && takeSetting(text)) return;
        if (phrase(text)) return;
        const std::string_view name = timed(text);
        tied_ = 0;
        if (name != "r") play(keyOrFail(name));
        song_.tracks.back().end += length_;
        ++at_;
    }

    // "~:1/4": what sounded last goes on for so long, over a bar line too.
    void tie() {
        if (tied_ == 0) fail("vor ~ steht keine Note, die weiterklingen kann");
        timed(tokens_[at_].text);
        Track& t = song_.tracks.back();
        t.end += length_;
        for (auto n = t.notes.end() - tied_; n != t.notes.end(); ++n)
            n->length = std::max<std::int64_t>((t.end - n->start) * gate_ / 100, 1);
        ++at_;
    }

    void repeat() {
        ++at_;
        const Range body = bracket();
        const std::string_view times = tokens_[at_].text.substr(1);
        const auto count = times.empty()     ? std::optional(1)
                           : times[0] == '*' ? number(times.substr(1))
                                             : std::nullopt;
        if (!count || *count < 1 || *count > 1000) fail("nach der Klammer steht nichts oder *2 bis *1000");
        for (int i = 0; i < *count; ++i) run(body);
        ++at_;
    }

    // "v90", how loud from 1 to 127, "v+10", so much louder; "g50", how much of its time a note sounds, in
    // hundredths.
    bool takeSetting(std::string_view text) {
        // "g4" is a note; a gate below ten hundredths is none.
        if (text[0] == 'g' && text.size() < 3) return false;
        const int high = text[0] == 'v' ? loudest : 100;
        const bool change = text[1] == '+' || text[1] == '-';
        const std::int64_t value = std::int64_t{number(text.substr(1)).value_or(0)} + (change ? velocity_ : 0);
        if (value < 1 || value > high) fail(quoted() + " führt aus 1 bis " + std::to_string(high) + " hinaus");
        (text[0] == 'v' ? velocity_ : gate_) = static_cast<int>(value);
        ++at_;
        return true;
    }

    // The name of a phrase, with half tones up or down behind it.
    bool phrase(std::string_view text) {
        const std::size_t sign = text.find_first_of("+-");
        const auto found = phrases_.find(std::string(text.substr(0, sign)));
        if (found == phrases_.end()) return false;
        const auto by = sign == std::string_view::npos ? std::optional(0) : number(text.substr(sign));
        if (!by) fail(quoted() + ": nach dem Namen steht nichts oder eine Zahl wie +5");
        const int before = std::exchange(shift_, shift_ + *by);
        run(found->second);
        shift_ = before;
        ++at_;
        return true;
    }

    // Takes the length off the end of a note; it holds for those that follow.
    std::string_view timed(std::string_view text) {
        const std::size_t colon = text.find(':');
        if (colon == std::string_view::npos) return text;
        const auto ticks = duration(text.substr(colon + 1));
        if (!ticks) fail(quoted() + ": die Länge ist ein Bruch wie 1/8 oder 1/4.");
        length_ = *ticks;
        return text.substr(0, colon);
    }

    int keyOrFail(std::string_view name) const {
        const bool drums = song_.tracks.back().drums;
        if (const auto drum = drumKeys.find(name); drums && drum != drumKeys.end()) return drum->second;
        const auto key = keyOf(name);
        const int shifted = key.value_or(-1) + (drums ? 0 : shift_);
        if (!key) fail(quoted() + " ist keine Note, keine Trommel und kein Name einer Phrase");
        if (shifted < 0 || shifted > highestKey) fail(quoted() + " ist zu hoch oder zu tief");
        return shifted;
    }

    void play(int key) {
        Track& t = song_.tracks.back();
        if (t.notes.size() == mostNotes) fail("das Lied ist zu lang");
        ++tied_;
        t.notes.push_back({t.end, std::max<std::int64_t>(length_ * gate_ / 100, 1), key, velocity_});
    }

    void chord() {
        std::vector<int> keys;
        for (++at_; at_ < tokens_.size() && !tokens_[at_].text.starts_with(']'); ++at_)
            keys.push_back(keyOrFail(tokens_[at_].text));
        if (at_ == tokens_.size()) fail("dieser Akkord wird nicht geschlossen");
        timed(tokens_[at_].text);
        tied_ = 0;
        for (const int key : keys) play(key);
        song_.tracks.back().end += length_;
        ++at_;
    }

    void barLine() {
        const std::int64_t now = song_.tracks.back().end;
        if ((now - barStart_) % song_.barTicks != 0)
            fail("der Takt hat " + std::to_string((now - barStart_) * 16 / ticksPerWhole) + "/16 und nicht " +
                 std::to_string(song_.barTicks * 16 / ticksPerWhole));
        barStart_ = now;
        ++at_;
    }

    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    Song song_;
    std::map<std::string, Range> phrases_;
    std::int64_t length_ = ticksPerQuarter;
    std::int64_t barStart_ = 0;
    int tied_ = 0;  // the notes at the end of the track that a tie makes longer
    int velocity_ = 100;
    int gate_ = 90;
    int shift_ = 0;
    int depth_ = 0;
};

}  // namespace

Song readSong(std::string_view text) {
    return Reader(text).read();
}

}  // namespace zentrox::notes
