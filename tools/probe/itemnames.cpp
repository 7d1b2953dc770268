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

std::vector<Text> itemFiles(const Files& files, TextView items) {
    auto found = files.list(items);
    std::erase_if(found, [](TextView file) {
        constexpr TextView script = ".skp";
        return file.size() > script.size() && equalIgnoringCase(file.substr(file.size() - script.size()), script);
    });
    return found;
}

TextView ItemNames::baseName(const Files& files, TextView items, TextView name) {
    if (!names_) names_ = readNames(files, Text(items) + "..\\" + Text(Gegenstandsnamen));
    for (const auto& [known, base] : *names_)
        if (equalIgnoringCase(known, name)) return base;
    return name;
}

std::optional<Text> ItemNames::file(const Files& files, TextView items, TextView name) {
    name = baseName(files, items, name);
    for (const Text& file : itemFiles(files, items))
        if (equalIgnoringCase(TextView(file).substr(0, file.rfind('.')), name)) return file;
    return std::nullopt;
}

}  // namespace zentrox::probe
