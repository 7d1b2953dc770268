#include "tools/story/data.h"

#include <algorithm>

#include "engine/files/fieldreader.h"
#include "engine/files/raumdatei.h"
#include "engine/language/directories.h"
#include "platform/machine/files.h"
#include "tools/story/sourcefiles.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

constexpr TextView roomExtension = ".lsd";
constexpr TextView scriptExtension = ".skp";

// Finds line and column of bytes of a file, which are asked for in rising order.
class LineFinder {
public:
    LineFinder(std::string_view bytes, int file) : bytes_(bytes), at_{file, 1, 1} {}

    Place operator()(std::size_t offset) {
        while (true) {
            const std::size_t end = std::min(bytes_.find_first_of("\r\n", begin_), bytes_.size());
            const std::size_t next = std::min(end + (bytes_.substr(end, 2) == "\r\n" ? 2 : 1), bytes_.size());
            if (offset < next || next == bytes_.size()) break;
            begin_ = next;
            ++at_.line;
        }
        at_.column = static_cast<int>(std::min(offset, bytes_.size()) - begin_) + 1;
        return at_;
    }

private:
    std::string_view bytes_;
    Place at_;
    std::size_t begin_ = 0;  // of its line
};

ScriptPlaces placesOf(const SkriptOrte& offsets, LineFinder& find) {
    ScriptPlaces places;
    places.head = find(offsets.anfang);
    for (const std::size_t offset : offsets.befehle) places.commands.push_back({find(offset), {}, false});
    return places;
}

int addFile(const std::string& name, Story& story) {
    story.files.push_back(name);
    return static_cast<int>(story.files.size()) - 1;
}

void damaged(const FieldError& error, std::string_view bytes, int file, Findings& findings) {
    findings.broken(LineFinder(bytes, file)(error.offset()), "datei", toUtf8(error.why()));
}

bool hasExtension(const fs::path& path, TextView extension) {
    return equalIgnoringCase(path.extension().native(), extension);
}

bool isNamed(const fs::path& directory, TextView name) {
    return equalIgnoringCase(directory.filename().native(), name);
}

std::vector<fs::path> filesIn(const fs::path& directory, TextView extension, bool below) {
    std::vector<fs::path> found;
    std::error_code error;
    const auto take = [&](const fs::directory_entry& entry) {
        if (hasExtension(entry.path(), extension) && entry.is_regular_file(error)) found.push_back(entry.path());
    };
    if (below) {
        for (fs::recursive_directory_iterator i(directory, error), end; !error && i != end; i.increment(error))
            take(*i);
    } else {
        for (fs::directory_iterator i(directory, error), end; !error && i != end; i.increment(error)) take(*i);
    }
    std::sort(found.begin(), found.end());
    return found;
}

void readFile(const fs::path& path, const Text& file, const fs::path& shownAs, Story& story, Findings& findings) {
    const std::string name = shownAs.lexically_normal().generic_string();
    const auto bytes = SourceFiles().read(path);
    if (!bytes) {
        findings.broken({addFile(name, story), 1, 1}, "lesen", "diese Datei lässt sich nicht lesen");
        return;
    }
    (hasExtension(path, roomExtension) ? readRoomData : readScriptData)(*bytes, file, name, story, findings);
}

// The system's path of a directory of data, in whatever case.
fs::path below(const fs::path& directory, TextView name) {
    return Files(directory).systemPath(name);
}

}  // namespace

void readRoomData(std::string_view bytes, const Text& file, const std::string& name, Story& story,
                  Findings& findings) {
    const int number = addFile(name, story);
    StoryRoom room;
    RaumOrte offsets;
    try {
        room.room = parseRoom(bytes, {}, &offsets);
    } catch (const FieldError& error) {
        return damaged(error, bytes, number, findings);
    }
    LineFinder find(bytes, number);
    room.file = file;
    room.head = room.picture = {number, 1, 1};
    room.start = placesOf(offsets.startskript, find);
    for (const ObjektOrte& object : offsets.objekte) {
        ObjectPlaces places;
        for (std::size_t i = 0; i < places.action.size(); ++i) places.action[i] = placesOf(object.aktion[i], find);
        places.pointer = find(object.zeiger);
        places.name = find(object.name);
        room.objects.push_back(std::move(places));
    }
    room.countDown = placesOf(offsets.countDownSkript, find);
    story.rooms.push_back(std::move(room));
}

void readScriptData(std::string_view bytes, const Text& file, const std::string& name, Story& story,
                    Findings& findings) {
    const int number = addFile(name, story);
    StoryScript script;
    SkriptOrte offsets;
    try {
        script.script = parseSkript(bytes, {}, &offsets);
    } catch (const FieldError& error) {
        return damaged(error, bytes, number, findings);
    }
    LineFinder find(bytes, number);
    script.file = file;
    script.places = placesOf(offsets, find);
    story.scripts.push_back(std::move(script));
}

bool isDataDirectory(const fs::path& directory) {
    return !filesIn(below(directory, verzeichnis(Ordner::rooms)), roomExtension, true).empty() ||
           !filesIn(below(directory, verzeichnis(Ordner::items)), scriptExtension, false).empty();
}

void readDataDirectory(const fs::path& directory, Story& story, Findings& findings) {
    const fs::path whole = fs::absolute(directory).lexically_normal();
    const auto read = [&](const fs::path& path, const fs::path& base) {
        readFile(path, Files::gamePath(path.lexically_relative(base)), directory / path.lexically_relative(whole),
                 story, findings);
    };
    const fs::path rooms = below(whole, verzeichnis(Ordner::rooms));
    const fs::path items = below(whole, verzeichnis(Ordner::items));
    for (const fs::path& path : filesIn(rooms, roomExtension, true)) read(path, rooms);
    for (const fs::path& path : filesIn(items, scriptExtension, false)) read(path, items);
}

void readDataFile(const fs::path& path, Story& story, Findings& findings) {
    const fs::path root = dataDirectoryOf(path);
    const fs::path whole = fs::absolute(path).lexically_normal();
    const bool isRoom = hasExtension(path, roomExtension) && !root.empty();
    const fs::path file =
        isRoom ? whole.lexically_relative(below(root, verzeichnis(Ordner::rooms))) : path.filename();
    readFile(path, Files::gamePath(file), path, story, findings);
}

fs::path dataDirectoryOf(const fs::path& file) {
    const TextView wanted =
        hasExtension(file, roomExtension) ? verzeichnis(Ordner::rooms) : verzeichnis(Ordner::items);
    const fs::path whole = fs::absolute(file).lexically_normal();
    for (fs::path at = whole.parent_path(); at.has_relative_path(); at = at.parent_path())
        if (isNamed(at, wanted)) return at.parent_path();
    return {};
}

}  // namespace zentrox::story
