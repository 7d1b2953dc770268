#include "engine/files/fieldreader.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "platform/values/error.h"
#include "platform/values/limits.h"

namespace zentrox {

namespace {

constexpr TextView aNumber = "eine Zahl";
constexpr TextView aText = "ein Text";
constexpr TextView aTruth = "#TRUE#, #FALSE# oder eine Zahl";
constexpr std::size_t longestFound = 24;  // characters of a field that a message shows

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}
bool isLineEnd(char c) {
    return c == '\r' || c == '\n';
}
bool isSeparator(char c) {
    return c == ',' || isLineEnd(c);
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Where a separator that stands at `p` ends; carriage return and line feed are one.
const char* behindSeparator(const char* p, const char* end) {
    return *p == '\r' && end - p > 1 && p[1] == '\n' ? p + 2 : p + 1;
}

}  // namespace

FieldReader::FieldReader(TextView bytes, TextView what)
    : what_(what),
      begin_(bytes.data()),
      end_(bytes.data() + bytes.size()),
      at_(begin_),
      field_(begin_) {}

std::int32_t FieldReader::readNumber() {
    return number(aNumber);
}

std::int32_t FieldReader::number(TextView expected) {
    begin(expected);
    std::int32_t value = 0;
    if (!atSeparator()) {
        if (*at_ == '+' && left() > 1 && isDigit(at_[1])) ++at_;
        const auto [behind, error] = std::from_chars(at_, end_, value);
        const bool ended = behind == end_ || isBlank(*behind) || isSeparator(*behind);
        if (error == std::errc::invalid_argument || !ended) failFound(expected);
        if (error == std::errc::result_out_of_range)
            fail("die Zahl " + found() + Text(" ist zu groß oder zu klein"_t));
        at_ = behind;
    }
    finish();
    return value;
}

bool FieldReader::readTruth() {
    begin(aTruth);
    if (*at_ != '#') return number(aTruth) != 0;
    const char* const behind = std::find_if(at_, end_, [](char c) { return isBlank(c) || isSeparator(c); });
    const TextView word(at_, static_cast<std::size_t>(behind - at_));
    const bool value = equalIgnoringCase(word, "#TRUE#");
    if (!value && !equalIgnoringCase(word, "#FALSE#")) failFound(aTruth);
    at_ = behind;
    finish();
    return value;
}

Text FieldReader::readText() {
    if (emptyAtEnd()) return {};
    begin(aText);
    Text text = *at_ == '"' ? quoted() : bare();
    if (text.size() > limits::fieldBytes) fail("der Text ist zu lang"_t);
    finish();
    return text;
}

Text FieldReader::quoted() {
    ++at_;
    const char* const close = std::find(at_, end_, '"');
    if (close == end_) fail("dem Text fehlt das schließende Anführungszeichen"_t);
    Text text(at_, close);
    at_ = std::find_if(close, end_, isSeparator);
    return text;
}

Text FieldReader::bare() {
    const char* const behind = std::find_if(at_, end_, isSeparator);
    const char* last = behind;
    while (last != at_ && isBlank(last[-1])) --last;
    Text text(at_, last);
    at_ = behind;
    return text;
}

std::int32_t FieldReader::readLast(std::size_t fieldsEach) {
    const std::int32_t last = std::max(number(aNumber), -1);
    const auto count = static_cast<std::size_t>(static_cast<std::int64_t>(last) + 1);
    // Each field takes at least the byte of its separator, but for an empty text at the very end.
    const bool there = count <= (left() + 1) / fieldsEach;
    entries_ += count;
    if (there && entries_ <= limits::fileEntries) return last;
    --finished_;  // what is wrong is the field just read
    const Text index = "der letzte Index " + std::to_string(last);
    if (there) fail(index + Text(" ist zu groß"_t));
    fail(index + Text(" passt nicht in die Datei, so viel steht nicht mehr darin"_t));
}

// The bulk of a room file: nearly every field is 0 or 255 with a separator right behind it.
void FieldReader::readMask(Maske& mask) {
    for (int column = 0; column < Maskenspalten; ++column) {
        for (int row = 0; row < Maskenzeilen; ++row) {
            while (left() > 0 && *at_ == ' ') ++at_;
            if (left() >= 5) {
                const char* const p = at_;
                const bool set = std::memcmp(p, "255", 3) == 0;
                const char* const behind = set ? p + 3 : p + 1;
                if ((set || isDigit(*p)) && isSeparator(*behind)) {
                    if (set) mask.set(column, row, true);
                    at_ = behindSeparator(behind, end_);
                    ++finished_;
                    continue;
                }
            }
            if (number(aNumber) == 255) mask.set(column, row, true);
        }
    }
}

bool FieldReader::emptyAtEnd() {
    const TextView rest(at_, left());
    if (ended_ || rest.find_first_not_of(" \t") != TextView::npos) return false;
    const char* before = at_;
    while (before != begin_ && isBlank(before[-1])) --before;
    if (before == begin_ || before[-1] != ',') return false;
    field_ = end_;
    ended_ = true;
    ++finished_;
    return true;
}

void FieldReader::begin(TextView expected) {
    while (at_ != end_ && isBlank(*at_)) ++at_;
    field_ = at_;
    if (at_ == end_) fail("hier endet die Datei, erwartet war " + Text(expected));
}

void FieldReader::finish() {
    while (at_ != end_ && isBlank(*at_)) ++at_;
    if (at_ != end_ && isSeparator(*at_)) at_ = behindSeparator(at_, end_);
    ++finished_;
}

Text FieldReader::found() const {
    const char* const behind = std::find_if(field_, end_, isSeparator);
    const auto length = static_cast<std::size_t>(behind - field_);
    Text shown(field_, std::min(length, longestFound));
    for (char& c : shown)
        if (static_cast<unsigned char>(c) < ' ') c = '?';
    return length > longestFound ? shown + "..." : shown;
}

// Counted only where something is wrong. A carriage return alone ends a line as well.
std::size_t FieldReader::line() const {
    std::size_t lines = 1;
    for (const char* p = begin_; p != field_; ++p)
        if (*p == '\n' || (*p == '\r' && (p + 1 == end_ || p[1] != '\n'))) ++lines;
    return lines;
}

void FieldReader::failFound(TextView expected) const {
    fail("gefunden wurde \"" + found() + "\", erwartet war " + Text(expected));
}

void FieldReader::fail(TextView why) const {
    const Text place = ": Feld " + std::to_string(finished_ + 1) + " (Zeile " + std::to_string(line()) + "): ";
    throw FieldError(Text(what_) + place + Text(why), Text(why), offset());
}

}  // namespace zentrox
