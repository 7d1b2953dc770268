#include "engine/state/merker.h"

#include <algorithm>
#include <cstring>

#include "engine/state/felder.h"

namespace zentrox {

namespace {

Text merkerName(TextView name) {
    return upper(Getrimmt(name));
}

std::uint64_t achtZeichen(const char* von) {
    std::uint64_t wert = 0;
    std::memcpy(&wert, von, sizeof wert);
    return wert;
}

// Compares with one name again and again. The names of a story often begin alike or end alike, and up to 1001 slots
// are looked at for one test, so both ends are compared first, each in one step.
class Vergleich {
public:
    explicit Vergleich(const Text& name) : name_(name) {
        if (name.size() < 8) return;
        vorn_ = achtZeichen(name.data());
        hinten_ = achtZeichen(name.data() + name.size() - 8);
    }
    bool operator()(const Text& platz) const {
        if (platz.size() != name_.size()) return false;
        if (platz.size() < 8) return std::equal(platz.begin(), platz.end(), name_.begin());
        return achtZeichen(platz.data()) == vorn_ && achtZeichen(platz.data() + platz.size() - 8) == hinten_ &&
               (platz.size() <= 16 || platz == name_);
    }

private:
    const Text& name_;
    std::uint64_t vorn_ = 0;
    std::uint64_t hinten_ = 0;
};

}  // namespace

bool MerkerGesetzt(const Zustand& z, TextView name) {
    const Text gesucht = merkerName(name);
    return std::any_of(z.Merker.begin(), z.Merker.end(), Vergleich(gesucht));
}

void MerkerSetzen(Zustand& z, TextView name) {
    const Text neu = merkerName(name);
    if (MerkerGesetzt(z, neu)) return;
    const auto frei =
        std::find_if(z.Merker.begin(), z.Merker.end(), [](const Text& platz) { return platz.empty(); });
    if (frei != z.Merker.end()) *frei = neu;
}

void MerkerLöschen(Zustand& z, TextView name) {
    const Text weg = merkerName(name);
    for (Text& platz : z.Merker)
        if (platz == weg) platz.clear();
}

}  // namespace zentrox
