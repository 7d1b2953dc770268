// Never lose play: saving by itself and by one key, a look at saved games, and going on where the last play ended.
#pragma once

#include <functional>

#include "comfort/autosave.h"
#include "comfort/comforts.h"
#include "saves/saves.h"

namespace zentrox {

class Keepsakes : private Speicherwart, private Beobachter {
public:
    // Joins the observers and the keys of the comforts, which must outlive it.
    explicit Keepsakes(Comforts& comforts);

    // For `Spielen`.
    Speicherwart& saves() { return *this; }
    const History& history() const { return history_; }

    // There is a play to go on with.
    bool canContinue() const { return !autosave_.slots().newestFirst().empty(); }
    // The room window goes on there when it opens, instead of in the first room.
    void continueWhenOpened() { continues_ = true; }
    // The same out of the menu, by a line of the settings, as long as it stands: `begin` begins the game, and is
    // null where there is no menu.
    void menuStands(std::function<void()> begin) { begin_ = std::move(begin); }

    // Called when a key has saved, and before one leaves for what it has saved.
    std::function<void()> onQuickSave;
    std::function<void()> onQuickLoad;

private:
    Text Fragen(Platform& platform, Zustand& zustand, TextView title) override;
    void Geschrieben(const Text& path, TextView bytes) override;
    bool TrotzdemLaden(Platform& platform, const std::vector<Text>& items) override;
    void Öffnet(Raumfenster& room) override;

    void addKeys();
    void addAction();
    void goOnFromMenu();
    void continueNow();
    void quickSave();
    void quickLoad();
    bool staysHere(const Input& input);

    Comforts& comforts_;
    Platform& platform_;
    History history_;
    Moment moment_;
    Autosave autosave_;
    Slots quick_;
    bool continues_ = false;
    std::function<void()> begin_;
    Timer goOn_;  // the settings have to be closed first
};

}  // namespace zentrox
