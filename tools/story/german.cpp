#include "tools/story/german.h"

#include <array>

namespace zentrox::story {

namespace {

// The option that a message of CLI11 begins or ends with.
std::string behindColon(const std::string& what) {
    const std::size_t colon = what.rfind(": ");
    return colon == std::string::npos ? what : what.substr(colon + 2);
}
std::string firstWord(const std::string& what) {
    return what.substr(0, what.find_first_of(": "));
}

}  // namespace

void speakGerman(CLI::App& app) {
    const auto formatter = std::make_shared<CLI::Formatter>();
    for (const auto& [english, german] :
         std::initializer_list<std::pair<const char*, const char*>>{{"Usage", "Aufruf"},
                                                                    {"OPTIONS", "OPTIONEN"},
                                                                    {"Positionals", "Angaben"},
                                                                    {"SUBCOMMAND", "BEFEHL"},
                                                                    {"SUBCOMMANDS", "BEFEHLE"},
                                                                    {"REQUIRED", "nötig"},
                                                                    {"Needs", "braucht"},
                                                                    {"Excludes", "nicht mit"}})
        formatter->label(english, german);
    formatter->label("TEXT", "WERT");
    formatter->label("FLOAT", "ZAHL");
    app.formatter(formatter);
    app.option_defaults()->group("Optionen");
    app.set_help_flag("-h,--help", "zeigt dies und endet")->group("Optionen");
}

std::string inGerman(const CLI::ParseError& error) {
    const std::string what = error.what();
    switch (static_cast<CLI::ExitCodes>(error.get_exit_code())) {
        case CLI::ExitCodes::RequiredError:
            return what.find("subcommand") != std::string::npos ? "hier fehlt ein Befehl"
                                                                : "hier fehlt " + firstWord(what);
        case CLI::ExitCodes::ExtrasError: return "unbekannt ist " + behindColon(what);
        case CLI::ExitCodes::ValidationError: return "zu " + firstWord(what) + " passt dieser Wert nicht";
        case CLI::ExitCodes::ConversionError:
            return "zu " + firstWord(behindColon(what)) + " passt dieser Wert nicht";
        default: return "mit " + firstWord(what) + " stimmt etwas nicht";
    }
}

std::string inGerman(const std::error_code& error) {
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

}  // namespace zentrox::story
