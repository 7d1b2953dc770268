#include "tools/story/inputs.h"

#include <algorithm>
#include <set>

#include "platform/values/text.h"
#include "tools/reasons/reasons.h"
#include "tools/story/data.h"
#include "tools/story/german.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

bool isDirectory(const fs::path& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

bool isSource(const fs::path& path) {
    return lower(path.extension().native()) == ".story";
}

bool isDataFile(const fs::path& path) {
    const Text extension = lower(path.extension().native());
    return extension == ".lsd" || extension == ".skp";
}

std::vector<fs::path> filesIn(const fs::path& directory, bool (*wanted)(const fs::path&)) {
    std::vector<fs::path> inside;
    std::error_code error;
    fs::directory_iterator entries(directory, error);
    if (error) throw WrongCall{directory.string() + " lässt sich nicht lesen: " + reasonInGerman(error)};
    for (const auto& entry : entries)
        if (wanted(entry.path()) && entry.is_regular_file(error)) inside.push_back(entry.path());
    std::sort(inside.begin(), inside.end());
    return inside;
}

}  // namespace

void needAll(const std::vector<std::string>& words) {
    std::error_code error;
    for (const std::string& word : words)
        if (!fs::exists(word, error)) throw WrongCall{word + " gibt es nicht"};
}

std::vector<fs::path> sourcesOf(const std::vector<std::string>& words) {
    needAll(words);
    std::vector<fs::path> sources;
    for (const std::string& word : words) {
        if (!isDirectory(word)) {
            sources.emplace_back(word);
            continue;
        }
        const auto inside = filesIn(word, isSource);
        if (inside.empty()) throw WrongCall{"in " + word + " liegt keine Quelle (*.story)"};
        sources.insert(sources.end(), inside.begin(), inside.end());
    }
    return sources;
}

std::vector<fs::path> neighboursOf(const std::vector<fs::path>& sources) {
    std::set<fs::path> known;
    std::set<fs::path> directories;
    for (const fs::path& source : sources) {
        known.insert(fs::absolute(source).lexically_normal());
        directories.insert(fs::absolute(source).lexically_normal().parent_path());
    }
    std::vector<fs::path> neighbours;
    for (const fs::path& directory : directories)
        for (const fs::path& path : filesIn(directory, isSource))
            if (!known.contains(path)) neighbours.push_back(path);
    return neighbours;
}

DataInputs dataOf(const std::vector<std::string>& words) {
    needAll(words);
    DataInputs data;
    std::size_t sources = 0;
    for (const std::string& word : words) {
        const bool directory = isDirectory(word);
        if (directory ? !filesIn(word, isSource).empty() : !isDataFile(word)) {
            ++sources;
        } else if (!directory) {
            data.files.emplace_back(word);
        } else if (isDataDirectory(word)) {
            data.directories.emplace_back(word);
        } else {
            const auto inside = filesIn(word, isDataFile);
            if (inside.empty())
                throw WrongCall{"in " + word +
                                " liegt weder eine Quelle noch ein übersetzter Raum oder Gegenstand"};
            data.files.insert(data.files.end(), inside.begin(), inside.end());
        }
    }
    if (sources > 0 && sources < words.size())
        throw WrongCall{"Quellen und übersetzte Daten gehen nicht in einem Aufruf"};
    return data;
}

}  // namespace zentrox::story
