// Sounds in words, from "untertitel.tsv" beside the sounds: the name of a sound's file, a tab, what is heard. And
// who speaks, from "sprecher.tsv" there: what stands before the first "-" in the names of a voice's files, a tab, a
// name. Both files are UTF-8; other lines are left out.
#pragma once

#include <map>
#include <optional>

#include "comfort/comforts.h"

namespace zentrox {

// The first two fields of each line that has two; the first ones in lower case, the second ones cut where
// they are too long for a picture.
std::map<Text, Text> readTable(std::string_view utf8);

class Captions : public Beobachter {
public:
    // Must be outlived by the comforts, whose observers and overlays it joins.
    explicit Captions(Comforts& comforts);
    Captions(const Captions&) = delete;
    Captions& operator=(const Captions&) = delete;

    void Öffnet(Raumfenster& room) override;
    void Klingt(TextView file) override;
    void Gelesen() override { spoken_ = true; }
    void Anweisung(std::size_t number, std::int32_t index) override;

private:
    void draw(Bitmap& picture, const Rect& base) const;

    Comforts& comforts_;
    std::map<Text, Text> sounds_;
    std::map<Text, Text> speakers_;
    Text shown_;
    bool spoken_ = false;  // the text has been read that the speaker's name stands before
    Timer gone_;
};

}  // namespace zentrox
