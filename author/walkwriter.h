// Writes down what is played as a walk, in the words of walks, as few as lead to the same state: a walk waits by
// itself for scripts, passes all texts of one with one `read`, and opens the bar where it has to.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "author/recordfile.h"
#include "author/walkwords.h"
#include "engine/interpreter/beobachter.h"
#include "engine/state/zustand.h"
#include "platform/platform.h"

namespace zentrox::author {

class WalkWriter : public Beobachter {
public:
    explicit WalkWriter(RecordLines& file) : file_(file) {}
    ~WalkWriter() override;  // inline, GCC 14 takes it for one of a writer that was never made

    // A life of the program begins, with its menu if it is not the first; both null: it is over.
    void watch(Platform* platform, const Zustand* state);
    // The same after the program has been started anew by itself, in another process.
    void goesOn();
    // What the player does that no script answers to: in the menu, in dialogs and boxes. Asked before the windows
    // know of it.
    void sees(const Input& input);

    // The keys that save and load at once, which are a player's comforts: who plays the walk needs them, too.
    void savesByKey();
    void loadsByKey();

    // What an author does, that no player can.
    void setsFlag(TextView name) { doesByHand("set " + word(name)); }
    void clearsFlag(TextView name) { doesByHand("clear " + word(name)); }
    void takesItem(TextView name) { doesByHand("take " + word(name)); }
    void dropsItem(TextView name) { doesByHand("drop " + word(name)); }
    void setsEvil(int points) { doesByHand("evil " + std::to_string(points)); }
    void enters(TextView room);
    // What has no words in a walk.
    void remarks(const std::string& text);

    std::size_t Beginnt(const Skript& script, TextView room, int object) override;
    void Endet(std::size_t number) override;
    void Ruht() override;
    void Schließt() override;
    void Betritt(TextView room) override;
    void Handelt(int object, int action, TextView item) override;
    void HandeltInLeiste(TextView item, int action, TextView onto) override;
    void Zeigt(TextView text) override;
    void Gelesen() override;
    void Fragt(const std::vector<Text>& texts) override;
    void Gewählt(int option) override;
    void Film(TextView file) override;
    void SpielBeginnt(TextView name) override;
    void SpielEndet(TextView name, bool won) override;

private:
    // What a tick of the room has found, to tell what it has changed.
    struct Tick {
        std::size_t depth = 0;  // of its run
        std::vector<Text> flags;
        std::vector<Text> items;
        std::int32_t evil = 0;
        std::vector<bool> active;
    };

    void put(const std::string& line);
    void putAnywhere(const std::string& line);
    void doesByHand(const std::string& line);
    void until(const std::string& condition);
    void tail(const std::string& condition);
    std::string limit() const;
    void inWindow(const std::string& name);
    std::string standing() const;
    void leaves();
    void ticked(const std::string& condition);
    void tellTick(const Tick& before);
    Tick look() const;

    bool nameIsEnough(int object) const;
    Text carried(TextView item) const;
    std::string answer(int option) const;
    void clickWhereItStands(bool left);

    void seesInRoom(const Input& input);
    void seesInWindow(const Window& window, const Input& input);
    void seesKey(const Window& window, const Input& input);
    void types(const Window& window, char character);
    void clicks(const Window& window, const Input& input);
    std::string withButton(const char* verb, const Input& input) const;

    RecordLines& file_;
    Platform* platform_ = nullptr;
    const Zustand* z_ = nullptr;
    bool first_ = true;
    std::string window_ = "Form1";     // that the walk is in
    Milliseconds lastAt_ = 0;          // when the last line was written
    std::size_t depth_ = 0;            // so many scripts run inside each other
    std::optional<Tick> tick_;         // of the outermost tick that the walk does not know of yet
    bool wait_ = false;                // a tick has changed what a walk can't ask for
    std::string text_;                 // that stands, in quotes; empty if none does
    std::vector<std::string> passed_;  // those that the last `read` has passed
    std::vector<Text> options_;
    bool closing_ = false;  // the room or the menu has been asked to close
    std::optional<Input> pressed_;
    std::optional<Size> size_;
    // An open mini-game: its play is not told of, but a box that is all there is of one is.
    int games_ = 0;
    bool gameSeen_ = false;
    bool boxSeen_ = false;
};

}  // namespace zentrox::author
