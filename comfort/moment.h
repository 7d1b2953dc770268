// The last moment of the play at which a save was allowed, and what it can be written to.
#pragma once

#include "comfort/history.h"
#include "comfort/sidecar.h"
#include "engine/interpreter/beobachter.h"
#include "engine/interpreter/raumfenster.h"
#include "engine/state/zustand.h"
#include "platform/platform.h"

namespace zentrox {

class Moment : public Beobachter {
public:
    // All must outlive it.
    Moment(Platform& platform, const Zustand& zustand, History& history)
        : platform_(platform),
          zustand_(zustand),
          history_(history) {}

    // The bytes of the saved game that it would be; empty if there is none yet.
    const Text& bytes() const { return bytes_; }
    // A count-down runs: nothing newer may be saved.
    bool barred() const { return room_ != nullptr && room_->CountDownPeriode() != 0; }
    Raumfenster* room() const { return room_; }

    // Writes it, and what belongs beside it. Throws `std::system_error` where the game itself could not be written.
    void write(const Text& path);
    // Somebody else has written these bytes from the play as it stands.
    void saved(TextView bytes) { saved_ = bytes; }
    // Writes what belongs beside them, as far as that can be written.
    void writeBeside(const Text& path, TextView bytes) const;
    // Of the play as it is now.
    Sidecar sidecar() const;

    // The play would be lost that the player has had since these bytes were written or loaded.
    bool unsaved() const { return acted_ && bytes_ != saved_; }
    // The play goes on from these bytes of a saved game; `lines` were said last before it.
    void begin(TextView bytes, std::vector<Text> lines);

    void Öffnet(Raumfenster& room) override { room_ = &room; }
    void Schließt() override { room_ = nullptr; }
    void Handelt(int /*object*/, int /*action*/, TextView /*item*/) override { acted_ = true; }
    void HandeltInLeiste(TextView /*item*/, int /*action*/, TextView /*with*/) override { acted_ = true; }
    void Ruht() override;

private:
    std::vector<Text> lastLines() const;

    Platform& platform_;
    const Zustand& zustand_;
    History& history_;
    Raumfenster* room_ = nullptr;
    Text bytes_;
    Sidecar sidecar_;
    Text saved_;
    std::vector<Text> before_;  // said before the play went on from a saved game
    bool acted_ = false;
};

}  // namespace zentrox
