#include "comfort/settings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <set>

namespace zentrox {

namespace {

constexpr std::array enlargingWays{
    Choice{0, "ganz", "ganze Vielfache"_t},
    Choice{1, "scharf", "so groß es geht, scharf"_t},
    Choice{2, "weich", "so groß es geht, weich"_t},
};

constexpr std::array gamePaces{
    Choice{100, "100", "wie es ist"_t},
    Choice{75, "75", "etwas langsamer"_t},
    Choice{50, "50", "halb so schnell"_t},
    Choice{30, "30", "sehr langsam"_t},
};

constexpr std::array forwardWays{
    Choice{0, "aus", "nein"_t},
    Choice{1, "lesezeit", "nach der Lesezeit"_t},
    Choice{2, "stimme", "nach der Stimme"_t},
};

constexpr std::array readingPaces{
    Choice{95, "langsam", "langsam"_t},
    Choice{60, "mittel", "mittel"_t},
    Choice{35, "schnell", "schnell"_t},
};

constexpr std::array letterSizes{
    Choice{100, "100", "wie immer"_t},
    Choice{150, "150", "150 %"_t},
    Choice{200, "200", "200 %"_t},
};

constexpr std::array speechWays{
    Choice{0, "aus", "nein"_t},
    Choice{1, "stimme", "mit der Sprachausgabe"_t},
    Choice{2, "ablage", "in die Zwischenablage"_t},
};

constexpr TextView sound = "Ton";
constexpr TextView picture = "Bild";
constexpr TextView hands = "Bedienung";
constexpr TextView games = "Spiele";
constexpr TextView saving = "Spielstände"_t;
constexpr TextView talk = "Texte";
constexpr TextView reading = "Lesen";
constexpr TextView percent = " %";

constexpr SettingsRow volume(const char* key, int Settings::*field, TextView title) {
    return {.key = key, .field = field, .page = sound, .title = title, .most = 100, .step = 10, .unit = percent};
}

constexpr SettingsRow yesOrNo(const char* key, bool Settings::*field, TextView page, TextView title) {
    return {.key = key, .field = field, .page = page, .title = title};
}

constexpr SettingsRow oneOf(const char* key, int Settings::*field, TextView page, TextView title,
                            std::span<const Choice> choices) {
    return {.key = key, .field = field, .page = page, .title = title, .choices = choices};
}

constexpr std::array rows{
    volume("musik", &Settings::music, "Musik"_t),
    volume("sprache", &Settings::speech, "Sprache"_t),
    volume("effekte", &Settings::effects, "Geräusche"_t),
    yesOrNo("stumm", &Settings::muted, sound, "Stumm"_t),
    yesOrNo("ohne-ton", &Settings::noSound, sound, "Ohne Ton starten"_t),
    yesOrNo("vollbild", &Settings::fullScreen, picture, "Vollbild"_t),
    SettingsRow{.key = "vergroesserung",
                .field = &Settings::enlarging,
                .page = picture,
                .title = "Vergrößern"_t,
                .choices = enlargingWays},
    yesOrNo("feine-buchstaben", &Settings::fineLetters, picture, "Buchstaben so fein wie der Bildschirm"_t),
    yesOrNo("pause-abseits", &Settings::pauseAway, picture, "Pause, solange ein anderes Programm vorn ist"_t),
    yesOrNo("mit-tasten", &Settings::keyboardPlay, hands, "Alles mit der Tastatur spielen"_t),
    yesOrNo("gamepad", &Settings::pad, hands, "Gamepad als Tastatur (dazu die Zeile darüber)"_t),
    yesOrNo("finger", &Settings::touch, hands, "Finger: lange tippen sieht an, ziehen zieht"_t),
    SettingsRow{.key = "spieltempo",
                .field = &Settings::gamePace,
                .page = games,
                .title = "Tempo der Spiele"_t,
                .choices = gamePaces},
    yesOrNo("durchwinken", &Settings::letThrough, games, "Nach drei Niederlagen fragen, ob es weitergehen soll"_t),
    SettingsRow{.key = "klangfont-gemeldet", .field = &Settings::soundFontTold, .page = sound, .shown = false},
    SettingsRow{.key = "schrift-gemeldet", .field = &Settings::fontTold, .page = talk, .shown = false},
    yesOrNo("automatisch-speichern", &Settings::autosave, saving, "Von selbst speichern"_t),
    yesOrNo("beenden-fragen", &Settings::askOnLeaving, saving,
            "Vor dem Beenden fragen, wenn etwas verloren geht"_t),
    yesOrNo("bilder-der-spielstaende", &Settings::richDialog, saving,
            "Spielstände mit Bild; fragen vor dem Ersetzen"_t),
    oneOf("buchstaben", &Settings::letters, talk, "Buchstaben"_t, letterSizes),
    yesOrNo("klare-schrift", &Settings::clearFont, talk, "Klarere Schrift"_t),
    yesOrNo("umriss", &Settings::outline, talk, "Umriss um die Buchstaben"_t),
    yesOrNo("namen", &Settings::speakerNames, talk, "Namen vor dem, was gesagt wird"_t),
    yesOrNo("untertitel", &Settings::captions, talk, "Geräusche in Worten"_t),
    oneOf("vorlesen", &Settings::speechWay, talk, "Vorlesen"_t, speechWays),
    yesOrNo("sofort", &Settings::instantText, reading, "Texte stehen sofort"_t),
    yesOrNo("weiter-nur", &Settings::strictSkip, reading, "Weiter nur mit Klick, Leertaste, Eingabe"_t),
    oneOf("weiter-von-selbst", &Settings::autoForward, reading, "Von selbst weiter"_t, forwardWays),
    oneOf("lesetempo", &Settings::letterTime, reading, "Lesetempo"_t, readingPaces),
    yesOrNo("gehoertes-merken", &Settings::rememberHeard, reading, "Gehörtes merken"_t),
};

constexpr const char* yes = "ja";
constexpr const char* no = "nein";
constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const auto begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::optional<int> number(std::string_view word, int least, int most) {
    int value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc() || end != word.data() + word.size() || value < least || value > most) return {};
    return value;
}

void take(Settings& settings, const SettingsRow& row, std::string_view word) {
    if (const auto* const field = std::get_if<bool Settings::*>(&row.field)) {
        settings.*(*field) = word == yes || (word != no && Settings().*(*field));
        return;
    }
    int Settings::*const field = std::get<int Settings::*>(row.field);
    settings.*field = Settings().*field;
    if (row.choices.empty()) {
        settings.*field = number(word, row.least, row.most).value_or(settings.*field);
        return;
    }
    for (const Choice& choice : row.choices)
        if (word == choice.word) settings.*field = choice.value;
}

std::string wordOf(const Settings& settings, const SettingsRow& row) {
    if (const auto* const field = std::get_if<bool Settings::*>(&row.field)) return settings.*(*field) ? yes : no;
    const int value = settings.*std::get<int Settings::*>(row.field);
    for (const Choice& choice : row.choices)
        if (choice.value == value) return choice.word;
    return std::to_string(value);
}

// A line of the file, without its end, parted at the equals sign. A line that is about nothing known has no row.
struct Line {
    const SettingsRow* row = nullptr;
    std::string_view value;
};

Line parted(std::string_view line) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) return {};
    const std::string_view key = trimmed(line.substr(0, equals));
    const auto row = std::find_if(rows.begin(), rows.end(), [key](const SettingsRow& r) { return key == r.key; });
    if (row == rows.end()) return {};
    return {&*row, trimmed(line.substr(equals + 1))};
}

// Calls `use` with each line, its end included.
template <class Use>
void eachLine(std::string_view bytes, Use use) {
    while (!bytes.empty()) {
        const std::string_view line = bytes.substr(0, std::min(bytes.find('\n'), bytes.size() - 1) + 1);
        use(line);
        bytes.remove_prefix(line.size());
    }
}

std::string_view endOf(std::string_view line) {
    if (line.ends_with("\r\n")) return "\r\n";
    return line.ends_with('\n') ? "\n" : "";
}

}  // namespace

std::span<const SettingsRow> settingsRows() {
    return rows;
}

Settings readSettings(std::string_view bytes) {
    Settings settings;
    eachLine(bytes, [&](std::string_view line) {
        const Line part = parted(line.substr(0, line.size() - endOf(line).size()));
        if (part.row != nullptr) take(settings, *part.row, part.value);
    });
    return settings;
}

std::string writeSettings(const Settings& settings, std::string_view before) {
    std::string out;
    std::set<const SettingsRow*> written;
    const auto put = [&](const SettingsRow& row, std::string_view end) {
        out.append(row.key).append(" = ").append(wordOf(settings, row)).append(end);
        written.insert(&row);
    };
    eachLine(before, [&](std::string_view line) {
        const std::string_view end = endOf(line);
        const Line part = parted(line.substr(0, line.size() - end.size()));
        if (part.row != nullptr)
            put(*part.row, end);
        else
            out += line;
    });
    if (!out.empty() && out.back() != '\n') out += '\n';
    for (const SettingsRow& row : rows)
        if (written.count(&row) == 0 && wordOf(settings, row) != wordOf(Settings(), row)) put(row, "\n");
    return out;
}

}  // namespace zentrox
