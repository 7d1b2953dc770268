#include "comfort/pictures.h"

#include <array>
#include <ctime>
#include <sstream>
#include <system_error>

#include "platform/codec/pictures.h"
#include "platform/machine/replace_file.h"
#include "platform/machine/whole_file.h"
#include "platform/values/keys.h"
#include "saves/saves.h"

namespace zentrox {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t mostBytes = 100'000;
constexpr std::string_view homeWord = "$HOME";

// The value of a line as the desktop's tools write it: "$HOME/Bilder" or an absolute path.
fs::path listedAs(const std::string& name, const std::string& file, const fs::path& home) {
    const std::string wanted = name + "=\"";
    std::istringstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with(wanted)) continue;
        std::string value = line.substr(wanted.size());
        value = value.substr(0, value.find('"'));
        if (value.starts_with(homeWord)) value = home.string() + value.substr(homeWord.size());
        if (fs::path(value).is_absolute()) return value;
    }
    return {};
}

fs::path ofEnvironment(const Environment& environment, const char* name) {
    const char* const value = environment(name);
    return value != nullptr && fs::path(value).is_absolute() ? fs::path(value) : fs::path();
}

fs::path ofUser(const Environment& environment, const char* name, std::array<const char*, 2> usual) {
    if (fs::path named = ofEnvironment(environment, name); !named.empty()) return named;
    const fs::path home = ofEnvironment(environment, "HOME");
    if (home.empty()) return {};
    fs::path config = ofEnvironment(environment, "XDG_CONFIG_HOME");
    if (config.empty()) config = home / ".config";
    const std::string rules = readFile(config / "user-dirs.dirs", mostBytes).value_or("");
    if (fs::path listed = listedAs(name, rules, home); !listed.empty()) return listed;
    std::error_code error;
    for (const char* const one : usual)
        if (fs::is_directory(home / one, error)) return home / one;
    return home;
}

}  // namespace

fs::path picturesDirectory(const Environment& environment) {
    return ofUser(environment, "XDG_PICTURES_DIR", {"Bilder", "Pictures"});
}

fs::path documentsDirectory(const Environment& environment) {
    return ofUser(environment, "XDG_DOCUMENTS_DIR", {"Dokumente", "Documents"});
}

Bitmap gamePicture(const Queue& queue) {
    Window* const top = queue.active();
    return top != nullptr ? top->compose() : Bitmap();
}

fs::path datedFile(const fs::path& directory, const std::string& stem, const std::string& extension) {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    std::array<char, 32> date{};
    std::strftime(date.data(), date.size(), " %Y-%m-%d %H-%M-%S", &local);
    fs::path file = directory / (stem + date.data() + extension);
    std::error_code error;
    for (int number = 2; fs::exists(file, error); ++number)
        file = directory / (stem + date.data() + " (" + std::to_string(number) + ")" + extension);
    return file;
}

Screenshots::Screenshots(Comforts& comforts, fs::path directory)
    : comforts_(comforts),
      directory_(std::move(directory)) {
    comforts_.keys().add({.code = key::f12,
                          .label = "F12",
                          .does = "Bild des Spiels speichern",
                          .down = [this] { take(); },
                          .nests = true});
}

void Screenshots::take() {
    std::error_code error;
    fs::create_directories(directory_, error);
    const std::string png = pngFile(gamePicture(comforts_.platform().queue));
    if (png.empty()) return;
    const fs::path file = directory_.empty() ? fs::path() : datedFile(directory_, "Zentrox", ".png");
    try {
        replaceFile(file, png);
        comforts_.notice(Text("Bild gespeichert:\n") + fromUtf8(file.string()));
    } catch (const std::system_error& failure) {
        comforts_.notice(Text("Das Bild kann nicht gespeichert werden:\n") + fromUtf8(directory_.string()) + "\n" +
                         SchreibfehlerText(failure.code().value()));
    }
}

}  // namespace zentrox
