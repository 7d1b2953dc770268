#include "platform/codec/zip.h"

#include <sys/stat.h>
#include <zip.h>

#include <algorithm>
#include <array>
#include <set>

#include "platform/codec/memoryfiles.h"
#include "platform/values/error.h"
#include "platform/values/limits.h"

namespace zentrox {

namespace {

namespace fs = std::filesystem;

struct Closer {
    void operator()(zip_t* archive) const { zip_discard(archive); }
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};
template <class T>
using Owned = std::unique_ptr<T, Closer>;

[[noreturn]] void refuse(const fs::path& file, TextView why) {
    throw DataError("Die Geschichte \"" + Files::gamePath(file.filename()) +
                    Text("\" kann nicht geöffnet werden: "_t) + Text(why));
}

TextView reasonFor(int error) {
    switch (error) {
        case ZIP_ER_NOENT: return "Die Datei fehlt."_t;
        case ZIP_ER_OPEN:
        case ZIP_ER_READ: return "Die Datei kann nicht gelesen werden."_t;
        case ZIP_ER_NOZIP: return "Sie ist kein Archiv, oder ihr Ende fehlt."_t;
        case ZIP_ER_MEMORY: return "Der Speicher reicht nicht."_t;
        default: return "Das Archiv ist beschädigt."_t;
    }
}

// What people see of a name in an archive that is not to be trusted.
Text shown(const std::string& name) {
    Text text = fromUtf8(name).substr(0, 60);
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, '?');
    return '"' + text + '"';
}

// False for what leads out of a directory, is another thing on another system, or is no name at all.
bool harmless(std::string_view name) {
    if (name.empty() || name.size() > limits::packedNameBytes || name.front() == '/') return false;
    const bool odd = std::any_of(name.begin(), name.end(), [](char c) {
        return c == '\\' || c == ':' || static_cast<unsigned char>(c) < ' ' || c == '\x7F';
    });
    if (odd) return false;
    while (!name.empty()) {
        const auto end = std::min(name.find('/'), name.size());
        const std::string_view part = name.substr(0, end);
        if (part.empty() || part == "." || part == "..") return false;
        name.remove_prefix(std::min(end + 1, name.size()));
    }
    return true;
}

bool plainFile(zip_t* archive, zip_uint64_t index) {
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    if (zip_file_get_external_attributes(archive, index, 0, &system, &attributes) != 0) return false;
    const auto kind = attributes >> 16U & static_cast<unsigned>(S_IFMT);
    return system != ZIP_OPSYS_UNIX || kind == 0 || kind == S_IFREG || kind == S_IFDIR;
}

class ZipArchive final : public Archive {
public:
    explicit ZipArchive(const fs::path& file) {
        int error = 0;
        archive_.reset(zip_open(file.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, &error));
        if (!archive_) refuse(file, reasonFor(error));
        const auto count = static_cast<std::uint64_t>(zip_get_num_entries(archive_.get(), 0));
        if (count > limits::packedFiles)
            refuse(file, "Mehr als " + std::to_string(limits::packedFiles) + " Dateien sind zu viele.");
        for (std::uint64_t i = 0; i < count; ++i) add(file, i);
        std::error_code unknown;
        const std::uint64_t packed = fs::file_size(file, unknown);
        if (total_ > limits::packedStoryBytes || total_ > limits::packedGrowthFrom + packed * limits::packedGrowth)
            refuse(file, Text("Ausgepackt wäre sie zu groß."_t));
    }

    const std::vector<std::string>& names() const override { return names_; }

    std::uint64_t size(std::size_t entry) const override { return entries_[entry].size; }

    std::optional<std::string> read(std::size_t entry) override {
        std::string bytes;
        bytes.reserve(entries_[entry].size);
        const auto append = [&](std::string_view piece) { return bytes.append(piece), true; };
        return unpack(entry, append) ? std::optional(std::move(bytes)) : std::nullopt;
    }

    fs::path open(std::size_t entry) override {
        if (fs::path kept = memory_.find(entry); !kept.empty()) return kept;
        return memory_.add(entry, [&](const MemoryFiles::Append& append) { return unpack(entry, append); });
    }

private:
    struct Entry {
        std::uint64_t index;
        std::uint64_t size;
    };

    void add(const fs::path& file, std::uint64_t index) {
        zip_stat_t about;
        constexpr unsigned known = ZIP_STAT_NAME | ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_COMP_METHOD;
        if (zip_stat_index(archive_.get(), index, 0, &about) != 0 || (about.valid & known) != known)
            refuse(file, Text("Das Archiv ist beschädigt."_t));
        const std::string name = about.name;
        if (!harmless(name)) refuse(file, "Der Name " + shown(name) + Text(" ist nicht erlaubt."_t));
        if (!plainFile(archive_.get(), index)) refuse(file, shown(name) + " ist keine einfache Datei.");
        if (name.back() == '/') return;
        if (!taken_.insert(upper(fromUtf8(name))).second) refuse(file, shown(name) + " ist doppelt darin.");
        const bool stored = about.comp_method == ZIP_CM_STORE && about.size == about.comp_size;
        const bool readable = (stored || about.comp_method == ZIP_CM_DEFLATE) &&
                              (about.encryption_method == ZIP_EM_NONE) && growsPlausibly(about);
        if (!readable) refuse(file, shown(name) + Text(" ist anders gepackt, als wir es lesen."_t));
        if (about.size > limits::packedFileBytes) refuse(file, shown(name) + Text(" ist zu groß."_t));
        total_ += about.size;
        names_.push_back(name);
        entries_.push_back({index, about.size});
    }

    // False if the entry is damaged, or as soon as `append` says so. The sum of the bytes is checked where the end
    // is read.
    bool unpack(std::size_t entry, const MemoryFiles::Append& append) {
        const Owned<zip_file_t> file(zip_fopen_index(archive_.get(), entries_[entry].index, 0));
        if (!file) return false;
        std::uint64_t left = entries_[entry].size;
        std::array<char, 65'536> piece{};
        for (;;) {
            const zip_int64_t got = zip_fread(file.get(), piece.data(), piece.size());
            if (got <= 0) return got == 0 && left == 0;
            if (static_cast<std::uint64_t>(got) > left) return false;
            left -= static_cast<std::uint64_t>(got);
            if (!append({piece.data(), static_cast<std::size_t>(got)})) return false;
        }
    }

    static bool growsPlausibly(const zip_stat_t& about) {
        return about.size / limits::packedByteGrowth <= about.comp_size;
    }

    Owned<zip_t> archive_;
    std::vector<std::string> names_;
    std::vector<Entry> entries_;
    std::set<Text> taken_;
    MemoryFiles memory_;
    std::uint64_t total_ = 0;
};

}  // namespace

std::unique_ptr<Archive> openZip(const fs::path& file) {
    std::error_code error;
    if (!fs::is_regular_file(file, error)) refuse(file, "Die Datei fehlt.");
    return std::make_unique<ZipArchive>(file);
}

Files openStory(const fs::path& place) {
    std::error_code error;
    return fs::is_directory(place, error) ? Files(place) : Files(place, openZip(place));
}

}  // namespace zentrox
