#include "tools/reasons/reasons.h"

#include <array>
#include <utility>

namespace zentrox {

std::string reasonInGerman(const std::error_code& error) {
    static constexpr std::array reasons{
        std::pair{std::errc::permission_denied, "das ist nicht erlaubt"},
        std::pair{std::errc::operation_not_permitted, "das ist nicht erlaubt"},
        std::pair{std::errc::read_only_file_system, "dort lässt sich nichts schreiben"},
        std::pair{std::errc::no_such_file_or_directory, "das gibt es nicht"},
        std::pair{std::errc::not_a_directory, "das ist kein Verzeichnis"},
        std::pair{std::errc::is_a_directory, "das ist ein Verzeichnis"},
        std::pair{std::errc::directory_not_empty, "das Verzeichnis ist nicht leer"},
        std::pair{std::errc::file_exists, "das gibt es schon"},
        std::pair{std::errc::no_space_on_device, "kein Platz mehr"},
        std::pair{std::errc::filename_too_long, "der Name ist zu lang"},
        std::pair{std::errc::io_error, "der Datenträger meldet einen Fehler"},
    };
    for (const auto& [code, reason] : reasons)
        if (error == code) return reason;
    return "das System erlaubt es nicht (Fehler " + std::to_string(error.value()) + ")";
}

std::string cannotWrite(const std::string& file, const std::system_error& error) {
    return file + " lässt sich nicht schreiben: " + reasonInGerman(error.code());
}

}  // namespace zentrox
