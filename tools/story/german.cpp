#include "tools/story/german.h"

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

}  // namespace zentrox::story
