// What Memory shows: sixteen cards that are turned, and pairs that fly to the row of who has won them.
#pragma once

#include <array>
#include <functional>
#include <optional>

#include "games/memory/memoryspiel.h"
#include "platform/machine/files.h"
#include "platform/window/controls/image.h"
#include "platform/window/controls/label.h"

namespace zentrox {

// Cards of 97 by 97 pixels.
struct Memorybilder {
    Bitmap rücken;
    std::array<Bitmap, paarAnzahl> gesichter;
};

// Reads them from a directory. Throws `DataError` that names the file that can't be read.
Memorybilder MemorybilderLaden(const Files& files, TextView pfad);

// A picture made smaller, each pixel the mean of those that it stands for.
Bitmap verkleinert(const Bitmap& bild, Size größe);

class Memorybild {
public:
    // All cards lie on their faces. A click on one that has not been won calls `klick`. The names of player and
    // opponent, or empty texts for those of the game.
    Memorybild(Control* parent, const std::array<Text, 2>& namen, Memorybilder bilder,
               std::function<void(std::int32_t position)> klick);

    void Aufdecken(const Memoryspiel& spiel, std::int32_t position);
    void Zudecken(Memoryspiel::Zug zug);
    // A pair leaves the table: it lies on top of all, then both cards fly to one place in the row of the winner and
    // shrink on the way. `p` is the share of the flight, from 0 to 1.
    void Abheben(const Memoryspiel& spiel, Memoryspiel::Zug zug);
    void Fliegen(const Memoryspiel& spiel, Memoryspiel::Zug zug, Wer wer, double p);

private:
    void karteAnlegen(std::int32_t position);
    const Bitmap& gesicht(const Memoryspiel& spiel, std::int32_t position) const;
    Image& karte(std::int32_t position) { return *Image1[static_cast<std::size_t>(position)]; }

    Control* parent_;
    Memorybilder bilder_;
    std::function<void(std::int32_t position)> klick_;
    std::array<Label, 2> Label1;
    std::array<std::optional<Image>, kartenAnzahl> Image1;
};

}  // namespace zentrox
