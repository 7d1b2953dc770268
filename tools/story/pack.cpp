#include "tools/story/pack.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <ostream>
#include <set>

#include "engine/files/titeldatei.h"
#include "engine/language/directories.h"
#include "platform/codec/zip.h"
#include "platform/codec/zipwriter.h"
#include "platform/machine/replace_file.h"
#include "platform/machine/system.h"
#include "platform/machine/whole_file.h"
#include "platform/values/error.h"
#include "tools/story/commands.h"
#include "tools/story/inputs.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

constexpr const char* packedExtension = ".zentrox";
constexpr const char* relocatableMark = "share/zentrox/relocatable";  // holds the name of the machine
constexpr const char* launcher = "zentrox";

// What can't be packed: told in lines, as findings are.
struct Faults {
    std::ostream& err;
    bool any = false;
    void tell(const std::string& text) {
        err << text << '\n';
        any = true;
    }
};

struct Found {
    Titel title;
    std::vector<PackedFile> files;
};

std::int64_t dateOfFiles() {
    const char* const epoch = std::getenv("SOURCE_DATE_EPOCH");
    std::int64_t date = 0;
    if (epoch != nullptr) std::from_chars(epoch, epoch + std::strlen(epoch), date);
    return date;
}

// The entry of a directory of that name in any case.
fs::path entryOf(const fs::path& directory, std::string_view name) {
    for (const fs::directory_entry& entry : fs::directory_iterator(directory))
        if (equalIgnoringCase(fromUtf8(entry.path().filename().string()), fromUtf8(name))) return entry.path();
    return {};
}

class Collector {
public:
    Collector(fs::path story, std::ostream& err) : story_(std::move(story)), faults_{err} {}

    std::optional<Found> collect() {
        readTitle();
        add(story_ / toUtf8(Titeldatei), toUtf8(Titeldatei));
        for (const Datenverzeichnis& directory : Datenverzeichnisse) addDirectory(directory);
        const Text& picture = found_.title.Titelbild;
        if (!picture.empty()) addTitlePicture(toUtf8(picture));
        std::sort(found_.files.begin(), found_.files.end(),
                  [](const PackedFile& a, const PackedFile& b) { return a.name < b.name; });
        found_.files.insert(found_.files.begin(), {"mimetype", {}, "application/x-zentrox-story", false});
        if (names_.count("ROOMS/START.LSD") == 0)
            faults_.tell(story_.string() +
                         ": rooms/Start.lsd fehlt; erst übersetzen: zentrox-story build QUELLEN --into " +
                         story_.string());
        if (faults_.any) return std::nullopt;
        return std::move(found_);
    }

private:
    void readTitle() {
        const fs::path file = story_ / toUtf8(Titeldatei);
        const auto bytes = readFile(file);
        std::vector<Titelmangel> defects;
        found_.title = TitelLesen(bytes.value_or(""), &defects);
        for (const Titelmangel& defect : defects)
            faults_.tell(file.string() + ":" + std::to_string(defect.zeile) + ": " + toUtf8(defect.text));
        if (found_.title.Kennung.empty())
            faults_.tell(file.string() +
                         ": eine Zeile fehlt, die den Spielständen einen Platz gibt; etwa\nKennung: mein-spiel");
    }

    void add(const fs::path& file, const std::string& name) {
        std::error_code error;
        if (!fs::is_regular_file(file, error)) return;
        const auto text = tryFromUtf8(name);
        if (!text) return faults_.tell(file.string() + ": der Name hat ein Zeichen, das es im Spiel nicht gibt");
        if (!names_.insert(upper(*text)).second)
            return faults_.tell(file.string() + ": eine Datei dieses Namens gibt es schon, anders geschrieben");
        found_.files.push_back({name, file, {}, false});
    }

    void addTree(const fs::path& top, const std::string& name) {
        std::error_code error;
        for (fs::recursive_directory_iterator at(top, error), end; !error && at != end; at.increment(error))
            if (!at->path().filename().string().starts_with('.'))
                add(at->path(), name + "/" + at->path().lexically_relative(top).generic_string());
    }

    // What the story does not have itself comes from the CD that it brings along, as in the game.
    void addDirectory(const Datenverzeichnis& directory) {
        const std::string name(directory.name);
        if (Files(story_).holdsFile(Text(directory.name) + "\\")) return addTree(entryOf(story_, name), name);
        if (found_.title.CD.empty()) return;
        const fs::path cd = Files(story_).systemPath(found_.title.CD + "\\Spiel\\" + Text(directory.aufCD));
        addTree(cd, name);
    }

    void addTitlePicture(const std::string& name) {
        const fs::path file = Files(story_).systemPath(fromUtf8(name));
        const std::string below = file.lexically_relative(story_).generic_string();
        if (names_.count(upper(fromUtf8(below))) != 0) return;
        if (below.starts_with("..") || !fs::is_regular_file(file))
            return faults_.tell(file.string() + ": das Titelbild fehlt");
        add(file, below);
    }

    fs::path story_;
    Faults faults_;
    Found found_;
    std::set<Text> names_;
};

void placed(const fs::path& draft, const fs::path& target) {
    try {
        placeFile(draft, target);
    } catch (const std::system_error& error) {
        throw fs::filesystem_error("place", target, error.code());
    }
}

// Writes the archive and opens it as the game does, so that nobody gets one that it refuses; until then the one of
// before stays.
void writePacked(const fs::path& target, const Found& found) {
    struct Draft {
        const fs::path path;
        ~Draft() {
            std::error_code ignored;
            fs::remove(path, ignored);
        }
    };
    const Draft draft{target.string() + ".neu"};
    writeZip(draft.path, found.files, dateOfFiles());
    try {
        openZip(draft.path);
    } catch (const DataError& error) {
        throw WrongCall{toUtf8(error.message())};
    }
    placed(draft.path, target);
}

fs::path playerFor(const PackWishes& wishes) {
    const fs::path player = wishes.player.empty() ? programDirectory().parent_path() : wishes.player;
    if (fs::is_regular_file(player / relocatableMark)) return player;
    throw WrongCall{
        player.string() +
        " ist nicht das ausgepackte Archiv des Spiels, das überall läuft; --player nennt sein Verzeichnis"};
}

// The author's tools and other stories stay behind.
bool belongsToPlayer(const std::string& name) {
    return !name.starts_with("share/zentrox/stories/") && !name.starts_with("bin/zentrox-") && name != launcher;
}

int packWithProgram(const PackWishes& wishes, const Found& found, std::ostream& out) {
    const std::string id = found.title.Kennung;
    const fs::path player = playerFor(wishes);
    if (id != launcher && fs::exists(player / id))
        throw WrongCall{"Kennung: " + id + ": so heißt schon ein Verzeichnis des Spiels"};
    const fs::path folder = wishes.into.empty() ? fs::path(id) : wishes.into;
    if (fs::exists(folder) && !fs::is_empty(folder)) throw WrongCall{folder.string() + " gibt es schon"};
    std::vector<PackedFile> all;
    const auto copy = [&](const fs::path& from, const std::string& name) {
        fs::create_directories((folder / name).parent_path());
        const fs::path beside = (folder / name).string() + ".neu";
        fs::copy_file(from, beside);
        placed(beside, folder / name);
        const bool runs = (fs::status(from).permissions() & fs::perms::owner_exec) != fs::perms::none;
        all.push_back({id + "/" + name, folder / name, {}, runs});
    };
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(player)) {
        const std::string name = entry.path().lexically_relative(player).generic_string();
        if (entry.is_regular_file() && belongsToPlayer(name)) copy(entry.path(), name);
    }
    copy(player / launcher, id);
    const std::string story = "share/zentrox/stories/" + id + packedExtension;
    fs::create_directories((folder / story).parent_path());
    writePacked(folder / story, found);
    all.push_back({id + "/" + story, folder / story, {}, false});
    std::sort(all.begin(), all.end(), [](const PackedFile& a, const PackedFile& b) { return a.name < b.name; });
    const std::string machine = readFile(player / relocatableMark).value_or("");
    const fs::path archive = folder.string() + "-" + machine.substr(0, machine.find('\n')) + ".zip";
    writeZip(archive, all, dateOfFiles());
    out << (folder / id).string() << '\n' << archive.string() << '\n';
    return clean;
}

}  // namespace

int pack(const PackWishes& wishes, std::ostream& out, std::ostream& err) {
    needAll({wishes.story.string()});
    if (!fs::is_directory(wishes.story)) throw WrongCall{wishes.story.string() + " ist kein Verzeichnis"};
    const auto found = Collector(fs::absolute(wishes.story).lexically_normal(), err).collect();
    if (!found) return hasFindings;
    if (wishes.program) return packWithProgram(wishes, *found, out);
    const fs::path target = wishes.into.empty() ? fs::path(found->title.Kennung + packedExtension) : wishes.into;
    if (target.extension() != packedExtension) throw WrongCall{target.string() + " endet nicht auf .zentrox"};
    writePacked(target, *found);
    out << target.string() << '\n';
    return clean;
}

}  // namespace zentrox::story
