#include "tools/prove/endings.h"

#include <filesystem>
#include <optional>
#include <set>
#include <sstream>

namespace zentrox::prove {

namespace {

constexpr std::string_view commentMark = "//";
constexpr std::string_view endingWord = "ende:";
constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// Where a comment begins that does not stand in a text.
std::size_t commentIn(std::string_view line) {
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '"') quoted = !quoted;
        if (!quoted && line.substr(i).starts_with(commentMark)) return i;
    }
    return std::string_view::npos;
}

// The name of the ending that a line marks; `alone` tells whether the line holds nothing else.
std::optional<std::string> markIn(std::string_view line, bool& alone) {
    const std::size_t at = commentIn(line);
    if (at == std::string_view::npos) return std::nullopt;
    const std::string_view comment = trimmed(line.substr(at + commentMark.size()));
    if (!comment.starts_with(endingWord)) return std::nullopt;
    alone = trimmed(line.substr(0, at)).empty();
    const std::string_view name = trimmed(comment.substr(endingWord.size()));
    if (name.empty()) return std::nullopt;
    return std::string(name);
}

}  // namespace

Marks endingMarks(const story::Story& story, story::SourceFiles& files) {
    std::map<int, std::set<int>> lines;
    for (const story::ScriptView& view : story::scriptsOf(story))
        for (const story::CommandPlace& command : view.places.commands)
            lines[command.command.file].insert(command.command.line);
    Marks marks;
    for (const auto& [file, commands] : lines) {
        const std::filesystem::path path = std::filesystem::path(story.files[static_cast<std::size_t>(file)]);
        if (path.extension() == ".lsd" || path.extension() == ".skp") continue;
        std::istringstream source(files.read(path).value_or(""));
        std::string line;
        for (int number = 1; std::getline(source, line); ++number) {
            bool alone = false;
            const auto name = markIn(line, alone);
            if (!name) continue;
            const auto marked = alone ? commands.upper_bound(number) : commands.find(number);
            if (marked != commands.end()) marks[{file, *marked}] = {*name};
        }
    }
    return marks;
}

}  // namespace zentrox::prove
