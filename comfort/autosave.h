// Saves by itself, into three files that take turns: when a room was entered, before a game, and when the play ends
// by whatever way. What is written is always the last moment at which the player could have saved.
#pragma once

#include "comfort/moment.h"
#include "comfort/slots.h"

namespace zentrox {

class Autosave : public Beobachter {
public:
    // All must outlive it; `moment` is told of the play before this is. `failed` is told, in German, why nothing
    // could be written.
    Autosave(const Files& files, Moment& moment, std::function<void(Text)> failed)
        : moment_(moment),
          failed_(std::move(failed)),
          slots_(files, "auto-") {}

    // While it is off nothing is written.
    void setOn(bool on) { on_ = on; }
    bool on() const { return on_; }
    // Writes the moment if it was not written yet.
    void write();
    const Slots& slots() const { return slots_; }

    void Betritt(TextView /*room*/) override { entered_ = true; }
    void Ruht() override;
    void SpielBeginnt(TextView /*name*/) override { write(); }
    void Schließt() override { write(); }

private:
    Moment& moment_;
    std::function<void(Text)> failed_;
    Slots slots_;
    bool on_ = false;
    bool entered_ = false;
    Text written_;
    Text complaint_;  // told already
};

}  // namespace zentrox
