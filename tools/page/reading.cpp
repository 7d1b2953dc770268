#include "tools/page/reading.h"

#include <map>

#include "engine/files/titeldatei.h"
#include "platform/values/error.h"
#include "tools/story/check.h"
#include "tools/story/data.h"
#include "tools/story/inputs.h"
#include "tools/story/parser.h"
#include "tools/story/source.h"
#include "tools/story/sourcereader.h"

namespace zentrox::page {

namespace fs = std::filesystem;

namespace {

// Sources that were made of compiled data.
class MadeUp : public story::SourceFiles {
public:
    std::map<fs::path, std::string> texts;
    std::optional<std::string> read(const fs::path& path) override {
        const auto found = texts.find(path);
        return found == texts.end() ? std::nullopt : std::optional(found->second);
    }
};

std::unique_ptr<Fonts> fontsIfAny() {
    try {
        auto fonts = makeFonts();
        fonts->get(FontSpec{});
        return fonts;
    } catch (const std::exception&) {
        return nullptr;
    }
}

// The part of a path behind the directory, or else its last component.
std::string below(const fs::path& directory, const fs::path& file) {
    const fs::path rest = file.lexically_normal().lexically_relative(directory.lexically_normal());
    return rest.empty() || *rest.begin() == ".." ? file.filename().generic_string() : rest.generic_string();
}

Reading readSources(const std::vector<fs::path>& sources, story::SourceFiles& files,
                    const std::vector<fs::path>& neighbours) {
    Reading reading;
    reading.story = parseSources(sources, files, reading.findings, neighbours);
    // Once more, for what the compiled story does not tell; the files get the same numbers.
    story::Story numbered;
    story::Findings ignored;
    story::SourceReader reader(files, numbered);
    for (const fs::path& path : sources) reading.sources.push_back({reader.read(path, ignored), true});
    for (const fs::path& path : neighbours) reading.sources.push_back({reader.read(path, ignored), false});
    reading.names = readNames(reading.sources, ignored);
    std::erase_if(reading.sources, [](const story::Source& source) { return !source.compiled; });
    reading.endings = prove::endingMarks(reading.story, files);
    const fs::path directory = sources.front().parent_path();
    const std::set<std::string> known = [&] {
        std::set<std::string> names;
        for (const fs::path& path : neighbours) names.insert(path.string());
        return names;
    }();
    for (const std::string& file : reading.story.files) {
        const bool shown = file != reading.story.voiceTable.path.string() && !known.contains(file);
        reading.texts.push_back(shown ? files.read(file).value_or("") : "");
        reading.files.push_back(below(directory, file));
    }
    return reading;
}

std::string titleOf(const std::vector<fs::path>& directories) {
    for (const fs::path& directory : directories) {
        if (directory.empty() || !fs::exists(directory / Titeldatei)) continue;
        const Titel title = TitelLesen(Files(directory));
        if (!title.Name.empty()) return toUtf8(title.Name);
    }
    return {};
}

// By the directory, or the one above it where that only says what it holds.
std::string nameOf(const fs::path& directory) {
    const fs::path whole = fs::absolute(directory).lexically_normal();
    const fs::path own = whole.has_filename() ? whole : whole.parent_path();
    const std::string name = own.filename().string();
    return name == "story" && own.has_parent_path() ? own.parent_path().filename().string() : name;
}

void look(Reading& reading, const story::Story* rest, bool fromSources) {
    const auto fonts = fontsIfAny();
    story::Surroundings around{rest, reading.data.get(), fonts.get()};
    around.wholeGame = true;
    around.fromSources = fromSources;
    check(reading.story, around, reading.findings);
    reading.findings.settle(reading.story);
}

Reading readData(const fs::path& directory) {
    story::Story compiled;
    story::Findings broken;
    readDataDirectory(directory, compiled, broken);
    const auto pictures = Files(directory).list(verzeichnis(Ordner::items));
    MadeUp files;
    std::vector<fs::path> sources;
    for (const auto& [name, text] : sourceFiles(compiled, pictures)) {
        files.texts[name] = text;
        sources.emplace_back(name);
    }
    if (sources.empty()) throw story::WrongCall{"in " + directory.string() + " liegt keine Geschichte"};
    Reading reading = readSources(sources, files, {});
    reading.root = directory;
    reading.data = std::make_unique<story::DataFiles>(directory);
    reading.title = titleOf({directory});
    if (reading.title.empty()) reading.title = nameOf(directory);
    look(reading, nullptr, false);
    return reading;
}

}  // namespace

Reading read(const std::vector<std::string>& words, const fs::path& data) {
    const story::DataInputs inputs = story::dataOf(words);
    if (!inputs.files.empty() || inputs.directories.size() > 1)
        throw story::WrongCall{"eine Seite gibt es von Quellen oder von einem ganzen Datenverzeichnis"};
    if (!inputs.directories.empty()) return readData(inputs.directories.front());
    const auto sources = story::sourcesOf(words);
    const auto neighbours = story::neighboursOf(sources);
    story::SourceFiles files;
    Reading reading = readSources(sources, files, neighbours);
    reading.root = data.empty() ? story::dataRootOf(sources.front()) : data;
    if (!reading.root.empty()) reading.data = std::make_unique<story::DataFiles>(reading.root);
    story::Findings ignored;
    const story::Story rest = parseSources(neighbours, files, ignored, sources);
    const fs::path own = fs::absolute(sources.front()).lexically_normal().parent_path();
    reading.title = titleOf({reading.root, own, own.parent_path()});
    if (reading.title.empty()) reading.title = sources.size() == 1 ? sources.front().stem().string() : nameOf(own);
    look(reading, &rest, true);
    return reading;
}

Reading read(const std::vector<fs::path>& sources, story::SourceFiles& files) {
    Reading reading = readSources(sources, files, {});
    reading.findings.settle(reading.story);
    return reading;
}

}  // namespace zentrox::page
