#include "tools/probe/itemnames.h"

#include "engine/language/directories.h"

namespace zentrox::probe {

namespace {

std::vector<std::pair<Text, Text>> readNames(const Files& files, const Text& path) {
    std::vector<std::pair<Text, Text>> names;
    if (!files.exists(path)) return names;
    const Text table = fromUtf8(files.read(path));
    for (const TextView line : linesOf(table)) {
        const std::size_t tab = line.find('\t');
        if (tab != TextView::npos) names.emplace_back(line.substr(0, tab), line.substr(tab + 1));
    }
    return names;
}

}  // namespace

TextView ItemNames::baseName(const Files& files, TextView items, TextView name) {
    if (!names_) names_ = readNames(files, Text(items) + "..\\" + Text(Gegenstandsnamen));
    for (const auto& [known, base] : *names_)
        if (equalIgnoringCase(known, name)) return base;
    return name;
}

}  // namespace zentrox::probe
