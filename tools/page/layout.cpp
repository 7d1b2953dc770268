#include "tools/page/layout.h"

#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tools/voices/process.h"

namespace zentrox::page {

namespace fs = std::filesystem;

namespace {

using Json = nlohmann::json;

constexpr double pixelsAnInch = 72;

class ScratchDirectory {
public:
    ScratchDirectory() {
        std::string name = (fs::temp_directory_path() / "zentrox-page-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr)
            throw fs::filesystem_error("mkdtemp", name, std::error_code(errno, std::generic_category()));
        path_ = name;
    }
    ~ScratchDirectory() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;
    const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

void write(const Drawing& drawing, std::ostream& out) {
    out << "digraph {\nrankdir=" << (drawing.sideways ? "LR" : "TB")
        << ";\nnodesep=0.35;\nranksep=0.45;\nnode [shape=box, fixedsize=true, label=\"\"];\nedge "
           "[arrowsize=0.7];\n";
    for (std::size_t i = 0; i < drawing.boxes.size(); ++i)
        out << "n" << i << " [width=" << drawing.boxes[i].width / pixelsAnInch
            << ", height=" << drawing.boxes[i].height / pixelsAnInch << "];\n";
    for (std::size_t i = 0; i < drawing.lines.size(); ++i) {
        const Drawing::Line& line = drawing.lines[i];
        out << "n" << line.from << " -> n" << line.to << " [id=e" << i;
        if (line.back) out << ", constraint=false";
        if (line.labelWidth > 0)
            out << ", label=<<TABLE BORDER=\"0\" CELLBORDER=\"0\" FIXEDSIZE=\"TRUE\" WIDTH=\"" << line.labelWidth
                << "\" HEIGHT=\"" << line.labelHeight << "\"><TR><TD></TD></TR></TABLE>>";
        out << "];\n";
    }
    out << "}\n";
}

std::vector<double> numbersIn(const std::string& text) {
    std::vector<double> numbers;
    for (const char *at = text.data(), *const end = at + text.size(); at < end;) {
        double number = 0;
        const auto [next, error] = std::from_chars(at, end, number);
        if (error == std::errc()) numbers.push_back(number);
        at = error == std::errc() ? next : at + 1;
    }
    return numbers;
}

class Taker {
public:
    Taker(Drawing& drawing, const Json& graph) : drawing_(drawing) {
        const auto box = numbersIn(graph.at("bb"));
        drawing_.width = box.at(2);
        drawing_.height = box.at(3);
        for (const Json& object : graph.value("objects", Json::array())) takeBox(object);
        for (const Json& edge : graph.value("edges", Json::array())) takeLine(edge);
        drawing_.placed = true;
    }

private:
    void takeBox(const Json& object) {
        const std::string name = object.at("name");
        const auto at = numbersIn(object.at("pos"));
        Drawing::Box& box = drawing_.boxes.at(std::stoul(name.substr(1)));
        box.x = at.at(0);
        box.y = drawing_.height - at.at(1);
    }

    void takeLine(const Json& edge) {
        const std::string id = edge.at("id");
        Drawing::Line& line = drawing_.lines.at(std::stoul(id.substr(1)));
        line.path = pathOf(edge.at("pos"));
        if (!edge.contains("lp")) return;
        const auto at = numbersIn(edge.at("lp"));
        line.labelX = at.at(0);
        line.labelY = drawing_.height - at.at(1);
    }

    // "e,X,Y" is the tip of the arrow; what follows is where the curve begins, and three points for each piece of
    // it.
    std::string pathOf(const std::string& position) const {
        std::istringstream words(position);
        std::ostringstream path;
        std::string tip;
        std::string word;
        for (int points = 0; words >> word;) {
            if (word.starts_with("e,"))
                tip = point(word);
            else if (!word.starts_with("s,"))
                path << (points++ == 0 ? "M" : points == 2 ? "C" : " ") << point(word);
        }
        if (!tip.empty()) path << "L" << tip;
        return path.str();
    }
    std::string point(const std::string& word) const {
        const auto at = numbersIn(word);
        std::ostringstream out;
        out.precision(6);
        out << at.at(0) << "," << drawing_.height - at.at(1);
        return out.str();
    }

    Drawing& drawing_;
};

}  // namespace

bool place(const std::vector<Drawing*>& drawings) try {
    const ScratchDirectory scratch;
    const auto fileOf = [&](std::size_t i) { return (scratch.path() / std::to_string(i)).string(); };
    std::vector<std::string> command{"dot", "-Tjson0", "-O"};  // writes beside each file
    for (std::size_t i = 0; i < drawings.size(); ++i) {
        std::ofstream file(fileOf(i));
        write(*drawings[i], file);
        command.push_back(fileOf(i));
    }
    voices::runProgram(command);
    for (std::size_t i = 0; i < drawings.size(); ++i) {
        std::ifstream file(fileOf(i) + ".json0");
        const Taker taker(*drawings[i], Json::parse(file));
    }
    return true;
} catch (const std::exception&) {
    for (Drawing* const drawing : drawings) drawing->placed = false;
    return false;
}

}  // namespace zentrox::page
