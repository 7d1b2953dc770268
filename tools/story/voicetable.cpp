#include "tools/story/voicetable.h"

#include <algorithm>
#include <charconv>
#include <tuple>

namespace zentrox::story {

namespace {

constexpr std::string_view head =
    "# Von zentrox-story build geführt: welche Datei welche Zeile spricht. Eine Zeile, die hier steht, behält ihre "
    "Datei.\n"
    "# Datei\tOrt\tStimme\tText\n";
constexpr std::size_t columns = 4;
constexpr TextView extension = ".wav";

std::vector<std::string_view> split(std::string_view line) {
    std::vector<std::string_view> fields;
    while (true) {
        const std::size_t end = line.find('\t');
        fields.push_back(line.substr(0, end));
        if (end == std::string_view::npos) return fields;
        line.remove_prefix(end + 1);
    }
}

// A name as one that was numbered here: what it begins with, and its number.
std::pair<Text, int> numbered(TextView file) {
    const TextView stem = file.substr(0, file.rfind('.'));
    const std::size_t hyphen = stem.rfind('-');
    int number = 0;
    if (hyphen != TextView::npos) std::from_chars(stem.data() + hyphen + 1, stem.data() + stem.size(), number);
    return {lower(stem.substr(0, hyphen)), number};
}

}  // namespace

VoiceTable::VoiceTable(std::string_view utf8, int file, Findings& findings) {
    for (int number = 1; !utf8.empty(); ++number) {
        const std::size_t end = std::min(utf8.find('\n'), utf8.size());
        std::string_view line = utf8.substr(0, end);
        utf8.remove_prefix(std::min(end + 1, utf8.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.empty() || line.starts_with('#')) continue;
        const auto fields = split(line);
        if (fields.size() != columns || fields[0].empty()) {
            findings.broken(
                {file, number, 1}, "stimmen",
                "eine Zeile dieser Tabelle hat vier Felder, die Tabulatoren trennen: Datei, Ort, Stimme, Text");
            continue;
        }
        rows_.push_back({fromUtf8(fields[0]), fromUtf8(fields[1]), fromUtf8(fields[2]), fromUtf8(fields[3])});
    }
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        byLine_[{rows_[i].voice, rows_[i].where, rows_[i].text}].push_back(i);
        byLine_[{rows_[i].voice, "", rows_[i].text}].push_back(i);
        const auto [begin, number] = numbered(rows_[i].file);
        lastNumber_[begin] = std::max(lastNumber_[begin], number);
    }
}

// A file of this line that no other line has yet; `anywhere` if it may have stood in another place.
VoiceTable::Row* VoiceTable::find(const SpokenPlace& line, bool anywhere) {
    const auto found = byLine_.find({line.voice, anywhere ? "" : line.where, line.text});
    if (found == byLine_.end()) return nullptr;
    for (const std::size_t i : found->second)
        if (!rows_[i].used) return &rows_[i];
    return nullptr;
}

VoiceTable::Row& VoiceTable::add(const SpokenPlace& line) {
    const Text begin = lower(line.voice + "-" + line.where);
    const int number = ++lastNumber_[begin];
    const Text digits = (number < 10 ? "0" : "") + std::to_string(number);
    byLine_[{line.voice, line.where, line.text}].push_back(rows_.size());
    rows_.push_back({begin + "-" + digits + Text(extension), line.where, line.voice, line.text});
    return rows_.back();
}

std::map<Place, Text> VoiceTable::assign(const std::vector<SpokenPlace>& lines) {
    std::map<Place, Text> files;
    const auto give = [&](const SpokenPlace& line, Row* row) {
        if (!row) return;
        row->used = true;
        row->where = line.where;
        files[line.place] = row->file;
    };
    // First those that stand where they stood, then those that have moved.
    for (const bool anywhere : {false, true})
        for (const SpokenPlace& line : lines)
            if (!files.contains(line.place)) give(line, find(line, anywhere));
    std::map<Key, std::size_t> same;
    for (std::size_t i = 0; i < rows_.size(); ++i)
        if (rows_[i].used) same.emplace(Key{rows_[i].voice, rows_[i].where, rows_[i].text}, i);
    for (const SpokenPlace& line : lines) {
        if (files.contains(line.place)) continue;
        // The same words by the same voice in the same place are recorded once.
        const Key key{line.voice, line.where, line.text};
        const auto known = same.find(key);
        give(line, known == same.end() ? &add(line) : &rows_[known->second]);
        same.emplace(key, rows_.size() - 1);
    }
    return files;
}

std::string VoiceTable::written() const {
    std::vector<std::string> lines;
    for (const Row& row : rows_)
        lines.push_back(toUtf8(row.file + "\t" + row.where + "\t" + row.voice + "\t" + row.text) + "\n");
    std::sort(lines.begin(), lines.end());
    std::string out(head);
    for (const std::string& line : lines) out += line;
    return out;
}

}  // namespace zentrox::story
