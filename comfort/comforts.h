// What a player of today expects beside the game: settings, keys of its own, what is drawn over the picture. Made
// by who makes the machine; without it the game is what it is out of the box.
#pragma once

#include <filesystem>
#include <optional>

#include "comfort/keys.h"
#include "comfort/machine.h"
#include "comfort/settings.h"
#include "engine/interpreter/verteiler.h"
#include "engine/state/zustand.h"
#include "platform/platform.h"

namespace zentrox {

// A button on the first page of the settings, which closes them.
struct SettingsAction {
    TextView title;
    std::function<bool()> available;
    std::function<void()> does;
};

class Comforts {
public:
    // All must outlive it. `file` holds the settings; it need not be there, and is left alone where it can't be
    // written. Takes the queue's first look at inputs, for its lifetime.
    Comforts(Platform& platform, Zustand& zustand, ComfortMachine& machine, std::filesystem::path file);
    ~Comforts();
    Comforts(const Comforts&) = delete;
    Comforts& operator=(const Comforts&) = delete;

    Platform& platform() { return platform_; }
    Zustand& zustand() { return zustand_; }
    ComfortMachine& machine() { return machine_; }

    const Settings& settings() const { return settings_; }
    // Puts them into force and into the file.
    void change(const Settings& settings);
    // Called after each change.
    void whenChanged(std::function<void(const Settings&)> told) { told_.push_back(std::move(told)); }

    void addAction(SettingsAction action) { actions_.push_back(std::move(action)); }
    const std::vector<SettingsAction>& actions() const { return actions_; }

    ComfortKeys& keys() { return keys_; }
    // Asked, behind the keys, for each input; true if the game shall not know of it. It may open windows and wait.
    void addLook(std::function<bool(const Input& input)> look) { looks_.push_back(std::move(look)); }
    // Who is to be told of the play; hand it to `Spielen`.
    Verteiler& observers() { return observers_; }

    // Does something, usually in a window of its own, while the game stands still: its clock, its timers, its
    // sound.
    void pausedDuring(const std::function<void()>& work);
    // The machine stands still by itself, as a minimised window does: so does the sound.
    void machineStands(bool stands);

    // Draws over the picture; the later ones over the earlier ones.
    void addOverlay(std::function<void(Bitmap& picture, const Rect& base)> draw) {
        overlays_.push_back(std::move(draw));
    }
    // Where the client area of the topmost window stands in the picture that is drawn over.
    const Rect& topArea() const { return topArea_; }
    // Tells the player something for a few seconds, at the upper edge of the picture.
    void notice(Text text);
    // Asked for each picture: what stands there as long as no notice does; empty for nothing.
    void addHint(std::function<Text()> hint) { hints_.push_back(std::move(hint)); }
    // The overlay would look different now.
    void refresh() { machine_.refreshOverlay(); }

private:
    bool firstLook(const Input& input);
    void apply();
    void applyLetters();
    void store();
    void takeFromMachine();
    void pauseSound(bool on);
    Text noticeNow() const;
    void drawNotice(Bitmap& picture, const Rect& base) const;

    Platform& platform_;
    Zustand& zustand_;
    ComfortMachine& machine_;
    std::filesystem::path file_;
    Settings settings_;
    bool fineLetters_ = false;  // in force
    std::vector<SettingsAction> actions_;
    ComfortKeys keys_;
    Verteiler observers_;
    std::vector<std::function<void(const Settings&)>> told_;
    std::vector<std::function<bool(const Input&)>> looks_;
    std::vector<std::function<void(Bitmap&, const Rect&)>> overlays_;
    std::vector<std::function<Text()>> hints_;
    Rect topArea_;
    bool standsAway_ = false;
    int soundPauses_ = 0;  // so many want it to stand still
    Text notice_;
    Text complaint_;  // why the settings could not be stored, told already
    std::optional<Timer> noticeEnd_;
};

// What a file of settings holds; as out of the box if it can't be read.
Settings storedSettings(const std::filesystem::path& file);

// The file of the settings in a directory as `Places` has it.
std::filesystem::path settingsFile(const std::filesystem::path& directory);

}  // namespace zentrox
