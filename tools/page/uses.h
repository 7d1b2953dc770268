// Who sets, clears and tests a flag, who takes, gives and asks for an item.
#pragma once

#include <map>

#include "tools/story/story.h"

namespace zentrox::page {

enum class UseKind { sets, clears, tests, plays, takes, gives, drops, carries };

struct Use {
    story::Place place;  // of the name in the source
    UseKind kind = UseKind::tests;
    friend auto operator<=>(const Use&, const Use&) = default;
};

struct Uses {
    std::map<Text, std::vector<Use>> flags;  // by their names in upper case
    std::map<Text, std::vector<Use>> items;  // by the base names of their pictures in upper case
};

// Each place once, in the order of the sources.
Uses usesOf(const story::Story& story);

}  // namespace zentrox::page
