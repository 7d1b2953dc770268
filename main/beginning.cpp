#include "main/beginning.h"

#include <CLI/CLI.hpp>

#include "engine/interpreter/raumfenster.h"
#include "engine/language/directories.h"
#include "engine/state/merker.h"
#include "platform/values/error.h"
#include "tools/probe/itemnames.h"

namespace zentrox {

namespace {

std::string inQuotes(const std::string& word) {
    return word.find(' ') == std::string::npos ? word : '"' + word + '"';
}

std::string joined(const std::vector<std::string>& names) {
    std::string all;
    for (const std::string& name : names) all += (all.empty() ? "" : ",") + name;
    return inQuotes(all);
}

// The whole game paths of their pictures.
std::vector<Text> itemFiles(const Beginning& beginning, const Files& files, const Text& directory) {
    if (beginning.items.size() > InventarPlätze)
        throw DataError(Text("So viel kann niemand tragen: höchstens "_t) + std::to_string(InventarPlätze) +
                        Text(" Gegenstände."_t));
    probe::ItemNames names;
    std::vector<Text> found;
    for (const std::string& item : beginning.items) {
        const auto file = names.file(files, directory, fromUtf8(item));
        if (!file) throw DataError(Text("Diesen Gegenstand gibt es nicht: "_t) + fromUtf8(item));
        found.push_back(directory + *file);
    }
    return found;
}

}  // namespace

void addBeginning(CLI::App& app, Beginning& beginning) {
    const auto names = [&app](const char* option, std::vector<std::string>& into, const char* help) {
        app.add_option_function<std::string>(
               option, [&into](const std::string& list) { into = CLI::detail::split(list, ','); }, help)
            ->type_name("A,B");
    };
    names("--flags", beginning.flags, "Flags that are set in the beginning, with commas between them");
    names("--items", beginning.items, "Items that are carried in the beginning, with commas between them");
    app.add_option("--evil", beginning.evil, "Where the evil counter stands in the beginning")->type_name("N");
    app.add_option("--seed", beginning.seed, "Seed of the random numbers")->type_name("N");
    app.add_option("--random", beginning.random,
                   "The same, but from the first room on, as reports of problems have it")
        ->type_name("N");
}

std::string roomOf(const Beginning& beginning, const std::string& named) {
    return named.empty() && beginning.hasState() ? "Start.lsd" : named;
}

std::string walkCall(const std::string& room, const Beginning& beginning) {
    std::string words = "# zentrox-probe";
    if (!room.empty()) words += " --args " + inQuotes(room);
    if (beginning.seed) words += " --seed " + std::to_string(*beginning.seed);
    if (beginning.random) words += " --random " + std::to_string(*beginning.random);
    if (!beginning.flags.empty()) words += " --flags " + joined(beginning.flags);
    if (!beginning.items.empty()) words += " --items " + joined(beginning.items);
    if (beginning.evil != 0) words += " --evil " + std::to_string(beginning.evil);
    return words;
}

void checkBeginning(const Beginning& beginning, const Files& files) {
    Zustand paths;
    PfadeSetzen(paths, files.programDirectory());
    itemFiles(beginning, files, paths.PfadItems);
}

void Beginner::Öffnet(Raumfenster& room) {
    if (done_ || state_ == nullptr) return;
    done_ = true;
    for (const std::string& flag : beginning_.flags) MerkerSetzen(*state_, fromUtf8(flag));
    for (Text& file : itemFiles(beginning_, platform_->files, state_->PfadItems))
        state_->Inventar[static_cast<std::size_t>(++state_->InventarLetzter)] = std::move(file);
    state_->BösePunkte += beginning_.evil;
    if (!beginning_.items.empty()) room.GegenständeLaden();
    if (beginning_.random) platform_->random.reseed(*beginning_.random);
}

}  // namespace zentrox
