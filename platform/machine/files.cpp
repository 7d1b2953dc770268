#include "platform/machine/files.h"

#include <algorithm>

#include "platform/machine/near.h"
#include "platform/machine/whole_file.h"
#include "platform/values/error.h"

namespace zentrox {

namespace fs = std::filesystem;

namespace {

bool isSeparator(char c) {
    return c == '\\' || c == '/';
}

// A name on the disk as the game spells it. What can't stand in a name of the game becomes a question mark.
Text gameName(const std::string& name) {
    Text text = fromUtf8(name);
    std::replace(text.begin(), text.end(), '\\', '?');
    return text;
}

// No file of any system has a zero in its name; as it stands it would cut the name short.
std::string systemName(TextView name) {
    std::string utf8 = toUtf8(name);
    std::replace(utf8.begin(), utf8.end(), '\0', '\x7F');
    return utf8;
}

std::vector<TextView> componentsOf(TextView path) {
    std::vector<TextView> components;
    while (!path.empty()) {
        const auto end =
            static_cast<std::size_t>(std::find_if(path.begin(), path.end(), isSeparator) - path.begin());
        if (end > 0) components.push_back(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return components;
}

template <class Visit>
void eachEntry(const fs::path& directory, Visit visit) {
    std::error_code error;
    for (fs::directory_iterator entry(directory, error), end; !error && entry != end; entry.increment(error))
        visit(*entry);
}

bool isPlainFile(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

// The entry of a directory whose name is `name` but for case, the first in the order of bytes if there are several.
std::string entryLike(const fs::path& directory, TextView name) {
    std::string found;
    eachEntry(directory, [&](const fs::directory_entry& entry) {
        const std::string candidate = entry.path().filename().native();
        if (equalIgnoringCase(gameName(candidate), name) && (found.empty() || candidate < found)) found = candidate;
    });
    return found;
}

fs::path found(fs::path at, TextView below) {
    bool there = true;
    for (const TextView name : componentsOf(below)) {
        fs::path next = at / systemName(name);
        std::error_code error;
        if (there && !fs::exists(next, error)) {
            const std::string other = entryLike(at, name);
            there = !other.empty();
            if (there) next = at / other;
        }
        at = std::move(next);
    }
    // A path that ends in a backslash names a directory, and no file answers to it.
    if (!below.empty() && isSeparator(below.back()) && at.has_filename()) at /= "";
    return at;
}

fs::path wholly(const fs::path& path) {
    std::error_code error;
    fs::path whole = fs::weakly_canonical(path, error);
    if (error) return {};
    if (!whole.has_filename()) whole = whole.parent_path();
    return whole;
}

// Both canonical.
bool liesIn(const fs::path& path, const fs::path& directory) {
    const auto [end, rest] = std::mismatch(directory.begin(), directory.end(), path.begin(), path.end());
    return end == directory.end();
}

bool startsWithIgnoringCase(TextView text, TextView start) {
    return text.size() >= start.size() && equalIgnoringCase(text.substr(0, start.size()), start);
}

}  // namespace

Files::Files(const fs::path& programDirectory, std::unique_ptr<Archive> packed)
    : root_(fs::absolute(programDirectory).lexically_normal()) {
    if (!root_.has_filename()) root_ = root_.parent_path();
    programDirectory_ = gamePath(root_);
    if (!programDirectory_.ends_with('\\')) programDirectory_ += '\\';
    if (packed) packed_ = std::make_shared<Packed>(std::move(packed));
    savesDirectory_ = programDirectory_ + "saves\\";
}

void Files::keepSavesIn(const fs::path& directory) {
    saves_ = fs::absolute(directory).lexically_normal();
    if (!saves_.has_filename()) saves_ = saves_.parent_path();
    savesDirectory_ = gamePath(saves_) + "\\";
    // Beside the story's data they are the story's own, and have to lie there.
    if (!liesIn(saves_, root_)) admit(saves_);
}

void Files::confine() {
    bounds_->hold = true;
    admit(root_);
}

void Files::admit(const fs::path& directory) {
    const fs::path whole = wholly(directory);
    if (!whole.empty()) bounds_->directories.push_back(whole);
}

bool Files::mayBeRead(const fs::path& path) const {
    if (!bounds_->hold) return true;
    const fs::path whole = wholly(path);
    std::error_code error;
    const fs::file_type type = fs::status(whole, error).type();
    const bool plain =
        type == fs::file_type::regular || type == fs::file_type::directory || type == fs::file_type::not_found;
    return plain && std::any_of(bounds_->directories.begin(), bounds_->directories.end(),
                                [&](const fs::path& directory) { return liesIn(whole, directory); });
}

std::optional<TextView> Files::below(TextView path) const {
    if (startsWithIgnoringCase(path, programDirectory_)) return path.substr(programDirectory_.size());
    const bool whole = !path.empty() && isSeparator(path.front());
    return whole ? std::nullopt : std::optional(path);
}

std::optional<std::size_t> Files::packedFile(TextView path) const {
    const auto inside = packedPath(path);
    return inside ? packed_->find(*inside) : std::nullopt;
}

fs::path Files::foundOnDisk(TextView path) const {
    // What has no letter in the game's code page would be lost on the way back.
    if (!saves_.empty() && startsWithIgnoringCase(path, savesDirectory_))
        return found(saves_, path.substr(savesDirectory_.size()));
    if (const auto inside = below(path)) return found(root_, *inside);
    return found("/", path);
}

fs::path Files::systemPath(TextView path) const {
    const bool saved = !saves_.empty() && startsWithIgnoringCase(path, savesDirectory_);
    if (const auto entry = saved ? std::nullopt : packedFile(path)) return packed_->open(*entry);
    fs::path file = foundOnDisk(path);
    return mayBeRead(file) ? file : fs::path();
}

Text Files::gamePath(const fs::path& path) {
    Text text = path.is_absolute() ? "\\" : "";
    for (const fs::path& part : path.relative_path()) {
        if (!text.empty() && !text.ends_with('\\')) text += '\\';
        text += gameName(part.native());
    }
    return text;
}

bool Files::exists(TextView path) const {
    if (packedPath(path)) return packedFile(path).has_value();
    return isPlainFile(systemPath(path));
}

bool Files::holdsFile(TextView directory) const {
    return !list(directory).empty();
}

std::vector<Text> Files::list(TextView directory) const {
    std::vector<Text> names;
    if (const auto inside = packedPath(directory))
        names = packed_->list(*inside);
    else
        eachEntry(systemPath(directory), [&](const fs::directory_entry& entry) {
            if (isPlainFile(entry.path())) names.push_back(gameName(entry.path().filename().native()));
        });
    std::sort(names.begin(), names.end(), [](const Text& a, const Text& b) {
        const Text bigA = upper(a);
        const Text bigB = upper(b);
        return bigA != bigB ? bigA < bigB : a < b;
    });
    return names;
}

void Files::failUnreadable(TextView path) const {
    if (path.ends_with('\\'))
        throw DataError("Es ist keine Datei genannt, nur ihr Verzeichnis \"" + display(path) + "\".");
    throw DataError("Die Datei \"" + display(path) + "\" kann nicht gelesen werden.");
}

std::string Files::read(TextView path, std::uint64_t most) const {
    const auto needSize = [&](std::uint64_t size) {
        if (size > most) throw DataError("Die Datei \"" + display(path) + Text("\" ist zu groß."_t));
    };
    if (const auto entry = packedFile(path)) {
        needSize(packed_->size(*entry));
        auto bytes = packed_->read(*entry);
        if (!bytes) failUnreadable(path);
        return *std::move(bytes);
    }
    const fs::path file = systemPath(path);
    if (file.empty()) throw DataError("Die Datei \"" + display(path) + Text("\" gehört nicht zur Geschichte."_t));
    std::error_code error;
    bringNear(file);
    if (!fs::exists(file, error)) throw DataError("Die Datei \"" + display(path) + "\" fehlt.");
    if (const auto size = fs::file_size(file, error); !error) needSize(size);
    auto bytes = readFile(file, most);
    if (!bytes) failUnreadable(path);
    return std::move(*bytes);
}

void Files::makeDirectory(TextView path) const {
    const fs::path directory = systemPath(path);
    std::error_code error;
    if (!saves_.empty() && equalIgnoringCase(path, savesDirectory_))
        fs::create_directories(directory, error);
    else
        fs::create_directory(directory, error);
}

Text Files::display(TextView path) const {
    if (const auto entry = packedFile(path)) return packed_->spelled(*entry);
    const fs::path file = foundOnDisk(path).lexically_normal();
    const fs::path below = file.lexically_relative(root_);
    const bool under = !below.empty() && *below.begin() != ".." && *below.begin() != ".";
    Text text = gamePath(under ? below : file);
    if (!path.empty() && isSeparator(path.back()) && !text.ends_with('\\')) text += '\\';
    return text;
}

}  // namespace zentrox
