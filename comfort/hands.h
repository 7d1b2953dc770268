// Playing by the keyboard alone: a focus that goes through what can be clicked, and keys that click. And a key that
// shows all places of a room while it is held.
#pragma once

#include <optional>
#include <set>

#include "comfort/comforts.h"
#include "comfort/targets.h"

namespace zentrox {

class Hands : public Beobachter {
public:
    explicit Hands(Comforts& comforts);
    Hands(const Hands&) = delete;
    Hands& operator=(const Hands&) = delete;

    // Used things are dimmed where all places are shown.
    void Handelt(int objekt, int aktion, TextView gegenstand) override;
    void Betritt(TextView raum) override;
    // What can be clicked is another thing now.
    std::size_t Beginnt(const Skript& skript, TextView raum, int objekt) override;
    void Ruht() override;
    void Fragt(const std::vector<Text>& texte) override;
    void Gewählt(int option) override;

private:
    bool look(const Input& input);
    bool press(int code, bool shift);
    std::vector<Target> targets() const;
    void go(int by);
    void goToward(int code);
    void focusOn(const Target& target);
    void act(Button button);
    void takeInHand();
    void putBack();
    void handOver(Input::Kind kind, Point at, Button button = Button::none);
    void draw(Bitmap& picture, const Rect& top);
    void drawName(Bitmap& picture, const Rect& area, TextView name, bool dim, std::vector<Rect>& taken) const;

    Comforts& comforts_;
    std::optional<Target> focus_;
    const Window* focusedIn_ = nullptr;
    bool holds_ = false;       // an item is in hand: the left button is down for the game
    bool showsAll_ = false;    // the key for it is held
    std::set<int> swallowed_;  // keys that are down and were not the game's
    std::set<int> used_;       // objects of this room
};

}  // namespace zentrox
