// Which file each spoken line is heard from. The table lies beside the sources and remembers every name that was
// ever given, so that a recording never comes to speak another line: a line keeps its file when others are put
// before it or when it moves to another room, and gets a new one when it says something else.
#pragma once

#include "tools/story/names.h"

namespace zentrox::story {

constexpr const char* voiceTableFile = "stimmen.tsv";

class VoiceTable {
public:
    // `utf8` is what the file holds; empty for none yet. A line that makes no sense is a finding in file `file`.
    VoiceTable(std::string_view utf8, int file, Findings& findings);

    // Gives each line its file.
    std::map<Place, Text> assign(const std::vector<SpokenPlace>& lines);

    // What the file is to hold now.
    std::string written() const;

private:
    struct Row {
        Text file;
        Text where;
        Text voice;
        Text text;
        bool used = false;
    };
    using Key = std::tuple<Text, Text, Text>;  // voice, where, text

    Row* find(const SpokenPlace& line, bool anywhere);
    Row& add(const SpokenPlace& line);

    std::vector<Row> rows_;
    std::map<Key, std::vector<std::size_t>> byLine_;
    std::map<Text, int> lastNumber_;  // by what a file's name begins with
};

}  // namespace zentrox::story
