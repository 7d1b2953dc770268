// A story in one file, and the files in it as the game finds them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/values/text.h"

namespace zentrox {

// What reads the one file. An entry is known by its place in `names`.
class Archive {
public:
    virtual ~Archive() = default;
    // Of all plain files, UTF-8 with slashes; no name leaves the archive, and none is there twice in whatever case.
    virtual const std::vector<std::string>& names() const = 0;
    // Bytes of an entry, unpacked.
    virtual std::uint64_t size(std::size_t entry) const = 0;
    // Nothing if the entry is damaged.
    virtual std::optional<std::string> read(std::size_t entry) = 0;
    // A path of the system under which this process can open the entry's bytes. They lie in memory that goes when
    // nothing has it open and some other entries have been asked for. Empty if the entry is damaged.
    virtual std::filesystem::path open(std::size_t entry) = 0;
};

// Paths are those of the game, from the top of the archive on, in any case.
class Packed {
public:
    explicit Packed(std::unique_ptr<Archive> archive);

    std::optional<std::size_t> find(TextView path) const;
    // As the archive spells it.
    const Text& spelled(std::size_t entry) const { return spelled_[entry]; }
    // The names of the files directly in a directory.
    std::vector<Text> list(TextView directory) const;
    std::uint64_t size(std::size_t entry) const { return archive_->size(entry); }
    std::optional<std::string> read(std::size_t entry) { return archive_->read(entry); }
    std::filesystem::path open(std::size_t entry) { return archive_->open(entry); }

private:
    std::unique_ptr<Archive> archive_;
    std::vector<Text> spelled_;
    std::map<Text, std::size_t> byName_;  // in upper case
};

}  // namespace zentrox
