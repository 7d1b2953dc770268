#include "author/sourceedit.h"

#include <algorithm>
#include <string_view>

namespace zentrox::author {

namespace {

struct Lines {
    std::vector<std::string> all;
    std::string end = "\n";
    bool endsWithOne = true;
};

Lines linesOf(const std::string& source) {
    Lines lines;
    if (source.find("\r\n") != std::string::npos) lines.end = "\r\n";
    lines.endsWithOne = source.ends_with('\n');
    for (std::size_t at = 0; at < source.size();) {
        const std::size_t end = std::min(source.find('\n', at), source.size());
        std::string line = source.substr(at, end - at);
        if (line.ends_with('\r')) line.pop_back();
        lines.all.push_back(std::move(line));
        at = end + 1;
    }
    return lines;
}

std::string joined(const Lines& lines) {
    std::string text;
    for (std::size_t i = 0; i < lines.all.size(); ++i) {
        text += lines.all[i];
        if (i + 1 < lines.all.size() || lines.endsWithOne) text += lines.end;
    }
    return text;
}

std::string_view words(const std::string& line) {
    const std::size_t begin = line.find_first_not_of(" \t\xEF\xBB\xBF");
    return begin == std::string::npos ? std::string_view() : std::string_view(line).substr(begin);
}

// The first word, in small letters but for what is no letter of ASCII.
std::string firstWord(std::string_view rest) {
    std::string word(rest.substr(0, rest.find_first_of(" \t\"/")));
    for (char& c : word)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return word;
}

bool beginsWith(const std::string& line, std::initializer_list<const char*> some) {
    const std::string word = firstWord(words(line));
    return std::any_of(some.begin(), some.end(), [&](const char* one) { return word == one; });
}

bool isShape(const std::string& line) {
    return beginsWith(line, {"rechteck", "vieleck", "maskenbild"});
}

bool isArea(const std::string& line) {
    return beginsWith(line, {"fläche", "flaeche"});
}

std::string indentOf(const std::string& line) {
    return line.substr(0, line.size() - words(line).size());
}

// Where the object's own lines end: at its first script, or at what follows it.
std::size_t headEnd(const std::vector<std::string>& lines, std::size_t object) {
    std::size_t at = object + 1;
    while (at < lines.size() && !beginsWith(lines[at], {"rechts", "links", "ablegen", "objekt", "raum", "start",
                                                        "countdown", "gegenstand", "skriptdatei", "skriptteil",
                                                        "kombiniere", "person", "nimm", "nimmt"}))
        ++at;
    return at;
}

// `Fläche` with its first shape behind it becomes two lines.
void splitAreas(std::vector<std::string>& lines, std::size_t begin, std::size_t end, const std::string& step) {
    for (std::size_t i = begin; i < end && i < lines.size(); ++i) {
        if (!isArea(lines[i])) continue;
        const std::size_t word = lines[i].find_first_not_of(" \t");
        const std::size_t blank = lines[i].find_first_of(" \t", word);
        const std::size_t rest = blank == std::string::npos ? blank : lines[i].find_first_not_of(" \t", blank);
        if (rest == std::string::npos || lines[i][rest] == '/') continue;
        const std::string shape = indentOf(lines[i]) + step + lines[i].substr(rest);
        lines[i].resize(blank);
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(i) + 1, shape);
    }
}

}  // namespace

std::string rectangleLine(Point a, Point b) {
    const auto [left, right] = std::minmax(a.x, b.x);
    const auto [top, bottom] = std::minmax(a.y, b.y);
    return "Rechteck " + std::to_string(left) + " " + std::to_string(top) + " " + std::to_string(right) + " " +
           std::to_string(bottom);
}

std::string polygonLine(const std::vector<Point>& corners) {
    std::string line = "Vieleck";
    for (const Point& corner : corners)
        line +=
            (&corner == &corners.front() ? " " : ", ") + std::to_string(corner.x) + " " + std::to_string(corner.y);
    return line;
}

std::optional<std::string> withArea(const std::string& source, int objectLine, const std::string& areaLine,
                                    bool further) {
    Lines lines = linesOf(source);
    auto& all = lines.all;
    const auto object = static_cast<std::size_t>(objectLine - 1);
    if (objectLine < 1 || object >= all.size() || !beginsWith(all[object], {"objekt"})) return std::nullopt;
    const std::string step = indentOf(all[object]).starts_with('\t') ? "\t" : "    ";
    splitAreas(all, object + 1, headEnd(all, object), step);
    std::size_t end = headEnd(all, object);
    const auto at = [&](std::size_t i) { return all.begin() + static_cast<std::ptrdiff_t>(i); };
    if (std::none_of(at(object + 1), at(end), [](const auto& line) { return isArea(line) || isShape(line); })) {
        const std::string indent = indentOf(all[object]) + step;
        std::size_t place = object + 1;
        while (place < end && beginsWith(all[place], {"zeiger", "aktiv", "inaktiv"})) ++place;
        all.insert(at(place), {indent + "Fläche", indent + step + areaLine});
        return joined(lines);
    }
    const auto first = static_cast<std::size_t>(
        std::find_if(at(object + 1), at(end), [](const auto& line) { return isArea(line) || isShape(line); }) -
        all.begin());
    // Remarks between the shapes stay.
    std::string indent = isArea(all[first]) ? indentOf(all[first]) + step : indentOf(all[first]);
    std::size_t place = isArea(all[first]) ? first + 1 : first;
    for (std::size_t i = first; i < end; ++i) {
        if (!isShape(all[i])) continue;
        indent = indentOf(all[i]);
        if (further) {
            place = i + 1;
        } else {
            all.erase(at(i--));
            --end;
        }
    }
    all.insert(at(place), indent + areaLine);
    return joined(lines);
}

}  // namespace zentrox::author
