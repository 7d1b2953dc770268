// The one way in which a file is written, so that at any moment either the old one or the new one is there, whole.
#pragma once

#include <filesystem>
#include <string_view>

namespace zentrox {

// Writes the bytes beside `target`, brings them to the disk, renames that file over it, and brings the new name to
// the disk. A link is followed, and the permissions of an old file are kept. What is no plain file, as a pipe or a
// device, is written into; an empty path is no file. Throws `std::system_error` where a step fails: the old file
// then stands as it was, or if the very last step failed the new one, and nothing is left over.
void replaceFile(const std::filesystem::path& target, std::string_view bytes);

// The same for a file that another program has written: it takes the place of `target`, which lies in the same
// directory. `draft` is gone afterwards, in any case.
void placeFile(const std::filesystem::path& draft, const std::filesystem::path& target);

}  // namespace zentrox
