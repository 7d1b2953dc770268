// How the player gets through texts: which keys count, reading on by itself, and running through what is known.
#pragma once

#include <cstdint>
#include <unordered_set>

#include "comfort/comforts.h"

namespace zentrox {

class Reader : public Beobachter {
public:
    // Must be outlived by the comforts, whose observers, keys and looks it joins.
    explicit Reader(Comforts& comforts);
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    // A text waits to be read.
    bool standing() const { return standing_ > 0; }
    // Texts pass by themselves, too quick to be read.
    bool running() const { return running_; }

    void Öffnet(Raumfenster& room) override;
    void Schließt() override;
    void Ruht() override;
    void Klingt(TextView file) override;
    void Zeigt(TextView text) override;
    void Gelesen() override;
    void Fragt(const std::vector<Text>& texts) override;
    void Film(TextView file) override;
    void SpielBeginnt(TextView name) override;

private:
    void addKeys();
    bool swallows(const Input& input) const;
    // Runs on to the next choice, game or end of the scene.
    void setRunning(bool on);
    void setRushing(bool on);
    void readOn();
    void tick();
    Milliseconds timeFor(TextView text) const;
    bool inRoom() const;
    void apply();
    std::filesystem::path heardFile() const;
    void readHeard();
    void writeHeard() const;

    Comforts& comforts_;
    Queue& queue_;
    Zustand& zustand_;
    Timer forward_;
    Milliseconds voiceEnd_ = 0;
    int standing_ = 0;
    bool open_ = false;
    bool running_ = false;
    bool rushing_ = false;                     // the key for known texts is held
    bool known_ = false;                       // the text that stands was heard before
    std::unordered_set<std::uint64_t> heard_;  // marks of texts
};

}  // namespace zentrox
