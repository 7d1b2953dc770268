// The names that a story gives its items beside those of their pictures.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "platform/machine/files.h"

namespace zentrox::probe {

// The pictures of all items in their directory.
std::vector<Text> itemFiles(const Files& files, TextView items);

class ItemNames {
public:
    // `items` is the directory of the items, beside which the compiler has left its table. Where there is none each
    // item has but the name of its picture.
    TextView baseName(const Files& files, TextView items, TextView name);
    // The item's picture in that directory, by any of its names; nothing if there is none.
    std::optional<Text> file(const Files& files, TextView items, TextView name);

private:
    std::optional<std::vector<std::pair<Text, Text>>> names_;  // read when the first one is asked for
};

}  // namespace zentrox::probe
