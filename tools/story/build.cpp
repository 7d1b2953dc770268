#include "tools/story/build.h"

#include <map>

#include "engine/language/directories.h"
#include "platform/machine/files.h"
#include "platform/machine/replace_file.h"
#include "platform/machine/whole_file.h"
#include "tools/story/writer.h"

namespace zentrox::story {

namespace fs = std::filesystem;

bool writeIfChanged(const fs::path& path, const std::string& bytes) {
    if (readFile(path, bytes.size()) == bytes) return false;
    if (path.has_parent_path()) fs::create_directories(path.parent_path());
    try {
        replaceFile(path, bytes);
    } catch (const std::system_error& error) {
        throw fs::filesystem_error("schreiben", path, error.code());
    }
    return true;
}

namespace {

// Where files of the game go. Each directory is looked at once; a file that is there in another case keeps its
// spelling.
class Targets {
public:
    explicit Targets(const fs::path& root) : files_(root) {}

    fs::path of(Ordner directory, TextView file) {
        const std::size_t name = file.find_last_of('\\') + 1;
        const Text path = Text(verzeichnis(directory)) + "\\" + Text(file.substr(0, name));
        const auto [at, isNew] = known_.try_emplace(upper(path));
        Known& known = at->second;
        if (isNew) {
            known.path = files_.systemPath(path);
            for (const Text& there : files_.list(path)) known.names.emplace(upper(there), there);
        }
        const Text wanted(file.substr(name));
        return known.path / fs::path(toUtf8(known.names.emplace(upper(wanted), wanted).first->second));
    }

private:
    struct Known {
        fs::path path;
        std::map<Text, Text> names;  // by their upper case
    };
    Files files_;
    std::map<Text, Known> known_;
};

}  // namespace

std::vector<fs::path> writeStory(const Story& story, const fs::path& into) {
    Targets targets(into);
    std::vector<fs::path> changed;
    const auto write = [&](Ordner directory, const Text& file, const std::string& bytes) {
        const fs::path target = targets.of(directory, file);
        if (writeIfChanged(target, bytes))
            changed.push_back(into / target.lexically_relative(fs::absolute(into).lexically_normal()));
    };
    for (const StoryRoom& room : story.rooms) write(Ordner::rooms, room.file, writeRoom(room.room));
    for (const StoryScript& script : story.scripts) write(Ordner::items, script.file, writeScript(script.script));
    std::string names;
    for (const auto& [name, picture] : story.itemNames) names += toUtf8(name + "\t" + picture) + "\n";
    const fs::path table = Files(into).systemPath(Gegenstandsnamen);
    std::error_code error;
    if ((!names.empty() || fs::exists(table, error)) && writeIfChanged(table, names))
        changed.push_back(into / table.filename());
    return changed;
}

}  // namespace zentrox::story
