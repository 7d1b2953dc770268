#include "tools/story/build.h"

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

std::vector<fs::path> writeStory(const Story& story, const fs::path& into) {
    const Files files(into);
    std::vector<fs::path> changed;
    const auto write = [&](Ordner directory, const Text& file, const std::string& bytes) {
        const fs::path target = files.systemPath(Text(verzeichnis(directory)) + "\\" + file);
        if (writeIfChanged(target, bytes))
            changed.push_back(into / target.lexically_relative(fs::absolute(into).lexically_normal()));
    };
    for (const StoryRoom& room : story.rooms) write(Ordner::rooms, room.file, writeRoom(room.room));
    for (const StoryScript& script : story.scripts) write(Ordner::items, script.file, writeScript(script.script));
    return changed;
}

}  // namespace zentrox::story
