// Writing a file so that at any moment either the old one or the new one is there, whole.
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace zentrox {

// Writes the bytes beside `target`, brings them to the disk, and renames that file over it. Throws
// `std::system_error` where a step fails; the old file then stands as it was and nothing is left over. `beforeStep`
// is called before each call to the system.
void replaceFile(const std::filesystem::path& target, std::string_view bytes,
                 const std::function<void()>& beforeStep = {});

}  // namespace zentrox
