// What was said last, for the player to read and hear again.
#pragma once

#include <deque>

#include "engine/interpreter/beobachter.h"
#include "platform/values/geometry.h"

namespace zentrox {

struct SpokenLine {
    int colour = 15;  // see `Farbe16`
    Text text;
};

// One text as it stood in the band, or one answer that the player chose.
struct Spoken {
    std::vector<SpokenLine> lines;
    Text voice;  // full path; empty if nobody spoke it
    bool chosen = false;
};

class History : public Beobachter {
public:
    static constexpr std::size_t most = 300;

    // The oldest first.
    const std::deque<Spoken>& all() const { return spoken_; }
    // The last so many lines of texts, the oldest first.
    std::vector<Text> lastLines(std::size_t count) const;
    // A game was loaded that has another past.
    void forget() { spoken_.clear(); }

    void Klingt(TextView file) override { voice_ = file; }
    void Zeigt(TextView text) override;
    void Gelesen() override { voice_.clear(); }
    void Fragt(const std::vector<Text>& texts) override { asked_ = texts; }
    void Gewählt(int option) override;

private:
    void add(TextView text, bool chosen);

    std::deque<Spoken> spoken_;
    std::vector<Text> asked_;
    Text voice_;  // of the text that comes next
};

}  // namespace zentrox
