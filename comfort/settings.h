// What the player has chosen, one file for all stories: plain lines "key = value". Out of the box nothing is
// chosen, and the game is what it is without any comfort.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "platform/values/text.h"

namespace zentrox {

struct Settings {
    // --- sound; volumes are percent
    int music = 100;
    int speech = 100;
    int effects = 100;
    bool muted = false;
    bool noSound = false;  // the program leaves the machine's sound alone

    // --- picture; away means that another program has the keyboard
    bool pauseAway = false;
    bool fullScreen = false;
    int enlarging = 0;         // as `Enlarging` counts
    bool fineLetters = false;  // in the screen's pixels

    // --- hands
    bool keyboardPlay = false;
    bool pad = false;    // a game pad is a keyboard
    bool touch = false;  // fingers are more than a mouse

    // --- mini-games
    int gamePace = 100;       // percent of the clock of those that go by it
    bool letThrough = false;  // the player is asked after some defeats in a row

    // --- what the player was told once
    bool soundFontTold = false;
    bool fontTold = false;
    // --- saved games
    bool autosave = false;
    bool askOnLeaving = false;  // where play would be lost
    bool richDialog = false;    // pictures in the list; a question before a game is replaced

    // --- texts
    bool strictSkip = false;     // only a click, space or Enter reads on
    bool instantText = false;    // no opening and closing of the band
    int autoForward = 0;         // 1 after the time to read, 2 after the voice where there is one
    int letterTime = 60;         // milliseconds to read a letter
    bool rememberHeard = false;  // what was heard is known in later plays, too
    int letters = 100;           // percent
    bool clearFont = false;
    bool outline = false;  // round the letters
    bool speakerNames = false;
    bool captions = false;
    int speechWay = 0;  // 1 by the speech of the machine, 2 by the clipboard

    friend bool operator==(const Settings&, const Settings&) = default;
};

// What a number of a setting means.
struct Choice {
    int value;
    const char* word;  // in the file
    TextView title;    // for the player
};

// One setting: how it is called in the file and in the window, where it lies, what it may be.
struct SettingsRow {
    const char* key;
    std::variant<bool Settings::*, int Settings::*> field;
    TextView page;
    TextView title;
    std::span<const Choice> choices{};  // of a number that is one of these
    int least = 0;                      // else of a number
    int most = 0;
    int step = 1;
    TextView unit{};
    bool shown = true;  // in the window
};

// All of them, those of a page together, in the order of the window.
std::span<const SettingsRow> settingsRows();

// What stands in the bytes of a settings file. What is missing, damaged or out of range is as out of the box; of
// two lines the last one counts. Any bytes will do.
Settings readSettings(std::string_view bytes);

// The bytes of the file for these settings: those of `before` with the values put in. Lines that say nothing known,
// comments among them, stay as and where they are; what is missing and not as out of the box comes at the end.
std::string writeSettings(const Settings& settings, std::string_view before);

}  // namespace zentrox
