#include "engine/state/merker.h"

#include <algorithm>
#include <cstring>

#include "engine/state/felder.h"

namespace zentrox {

namespace {

Text merkerName(TextView name) {
    return upper(Getrimmt(name));
}

// So many characters as one number.
template <typename Zahl>
std::uint64_t zeichen(const char* von) {
    Zahl wert = 0;
    std::memcpy(&wert, von, sizeof wert);
    return wert;
}

// Compares with one name again and again: up to 1001 slots are looked at for one test. The names of a story often
// begin or end alike, so three places are compared in one step each; together they are all of a usual name.
class Vergleich {
public:
    explicit Vergleich(const Text& name) : name_(name), stellen_(stellen(name)) {}
    bool operator()(const Text& platz) const {
        if (platz.size() != name_.size()) return false;
        const Stellen andere = stellen(platz);
        const std::uint64_t anders =
            (andere.vorn ^ stellen_.vorn) | (andere.mitte ^ stellen_.mitte) | (andere.hinten ^ stellen_.hinten);
        return anders == 0 && ((platz.size() >= 4 && platz.size() <= 24) || platz == name_);
    }

private:
    struct Stellen {
        std::uint64_t vorn = 0;
        std::uint64_t mitte = 0;
        std::uint64_t hinten = 0;
    };
    static Stellen stellen(const Text& name) {
        const char* const p = name.data();
        const std::size_t n = name.size();
        if (n < 4) return {};
        if (n < 8) return {zeichen<std::uint32_t>(p), 0, zeichen<std::uint32_t>(p + n - 4)};
        return {zeichen<std::uint64_t>(p), zeichen<std::uint64_t>(p + n / 2 - 4),
                zeichen<std::uint64_t>(p + n - 8)};
    }

    const Text& name_;
    Stellen stellen_;
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
