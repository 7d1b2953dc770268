#include "tools/story/source.h"

#include <algorithm>
#include <map>
#include <set>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/area.h"
#include "tools/story/blocks.h"
#include "tools/story/check.h"
#include "tools/story/grammar.h"

namespace zentrox::story {

namespace {

constexpr int indentStep = 4;
constexpr int deepestIndent = 20;  // steps; beyond that nobody's eye is helped
constexpr const char* actionNames[] = {"Rechts", "Links", "Ablegen"};
constexpr TextView usualPicture = ".bmp";
constexpr std::size_t extensionLength = 4;
constexpr const char* itemsFile = "gegenstaende";

// Lines of a source, indented.
class Lines {
public:
    void add(int depth, const std::string& line) {
        out_.append(static_cast<std::size_t>(std::clamp(depth, 0, deepestIndent) * indentStep), ' ').append(line) +=
            '\n';
    }
    // A command with texts behind it, each on a line of its own below the first.
    void add(int depth, const std::string& command, const std::vector<std::string>& texts) {
        add(depth, texts.empty() || texts[0].empty() ? command : command + " " + texts[0]);
        const auto width = static_cast<std::size_t>(
            std::count_if(command.begin(), command.end(), [](char c) { return (c & '\xC0') != '\x80'; }));
        for (std::size_t i = 1; i < texts.size(); ++i) add(depth, std::string(width + 1, ' ') + texts[i]);
    }
    void gap() {
        if (!out_.empty()) out_ += '\n';
    }

    std::string take() { return std::move(out_); }

private:
    std::string out_;
};

// The options of a choice that can be written in place: the number of each of its cases.
struct WrittenChoice {
    ChoiceText text;
    std::map<std::size_t, std::int32_t> cases;  // by the index of the instruction
    bool inOrder = true;                        // else each option is written with its number
    std::int32_t written = 0;                   // so many options, while they are in order
};

class ScriptSource {
public:
    ScriptSource(const ScriptView& view, Lines& lines, int depth)
        : script_(view.script),
          lines_(lines),
          depth_(depth),
          blocks_(findBlocks(view.script)) {
        raw_.assign(script_.Befehl.size(), false);
        for (std::size_t i = 0; i < raw_.size(); ++i) noteWritten(i);
        noteErrors(view);
        for (const Block& block : blocks_.all)
            if (isPlain(block)) makeRaw(block);
    }

    void write() {
        for (std::size_t i = 0; i < script_.Befehl.size(); ++i) instruction(i);
    }

private:
    static bool belongsToBlock(std::int32_t command) {
        const Opcode* const row = findOpcode(command);
        return row && row->role != Role::plain;
    }
    static bool beginsChoice(std::int32_t command) { return opens(zentrox::Block::choice, command); }

    // What the options of a choice make of it is seen later.
    void noteWritten(std::size_t i) {
        const Opcode* const row = findOpcode(script_.Befehl[i]);
        const bool ofChoice = row && (row->arg == Arg::choice || row->arg == Arg::option);
        written_.push_back(row && !ofChoice ? writtenArgument(*row, argumentOf(script_, i)) : std::nullopt);
        raw_[i] = (!written_[i] && !ofChoice) || (belongsToBlock(script_.Befehl[i]) && !blocks_.at(i));
    }

    // What the compiler would not take is written as it is. For the check an instruction's line is its index.
    void noteErrors(const ScriptView& view) {
        ScriptPlaces places;
        for (std::size_t i = 0; i < script_.Befehl.size(); ++i)
            places.commands.push_back({{0, static_cast<int>(i) + 1, 1}, {}, false});
        Findings findings;
        checkCommands({script_, places, view.room, view.role}, {}, findings);
        for (const Finding& finding : findings.all())
            if (finding.severity == Severity::error) raw_[static_cast<std::size_t>(finding.place.line) - 1] = true;
    }

    // Whether a block can't be written as one: the compiler has to find its parts as they are, and the numbers of a
    // choice where it would put them itself.
    bool isPlain(const Block& block) {
        const bool choice = beginsChoice(script_.Befehl[block.begin]);
        return raw_[block.begin] || raw_[block.end] || (block.otherwise != nowhere && raw_[block.otherwise]) ||
               (choice && !noteChoice(block));
    }

    void makeRaw(const Block& block) {
        raw_[block.begin] = raw_[block.end] = true;
        if (block.otherwise != nowhere) raw_[block.otherwise] = true;
        for (const std::size_t i : block.cases) raw_[i] = true;
    }

    bool noteChoice(const Block& block) {
        const TextView argument = argumentOf(script_, block.begin);
        WrittenChoice choice{splitChoice(argument), {}};
        Text again = std::to_string(choice.text.options.size()) + "|" + choice.text.question;
        for (const Text& option : choice.text.options) again += "|" + option;
        if (again != argument) return false;
        std::int32_t before = 0;
        for (const std::size_t i : block.cases) {
            const std::int32_t number = Runden(Val(argumentOf(script_, i)));
            if (raw_[i] || argumentOf(script_, i) != std::to_string(number)) return false;
            choice.cases[i] = number;
            choice.inOrder = choice.inOrder && number > before;
            before = number;
        }
        choices_[block.begin] = std::move(choice);
        return true;
    }

    void instruction(std::size_t i) {
        const Block* const block = blocks_.at(i);
        const bool begins = block && block->begin == i;
        const bool ends = block && block->end == i;
        if (ends) depth_ -= beginsChoice(script_.Befehl[block->begin]) && !block->cases.empty() ? 2 : 1;
        if (ends && !raw_[i] && closes(zentrox::Block::choice, script_.Befehl[i])) endChoice(*block);
        const bool divides = block && !begins && !ends;
        const bool firstCase = divides && !block->cases.empty() && block->cases.front() == i;
        if (divides && !firstCase) --depth_;
        command(i);
        if (begins || divides) ++depth_;
    }

    void command(std::size_t i) {
        const Opcode* const row = findOpcode(script_.Befehl[i]);
        const TextView argument = argumentOf(script_, i);
        const auto choice = choices_.find(i);
        if (choice != choices_.end())
            return lines_.add(depth_, "Auswahl", linesInQuotes(choice->second.text.question));
        if (row && !raw_[i] && row->arg == Arg::option) return aCase(i);
        if (row && !raw_[i]) return lines_.add(depth_, toUtf8(row->name), *written_[i]);
        lines_.add(depth_, "Roh " + (row ? toUtf8(row->name) : std::to_string(script_.Befehl[i])),
                   argument.empty() ? std::vector<std::string>() : std::vector{inQuotes(argument)});
    }

    // --- cases and options of a choice

    void option(const char* word, WrittenChoice& choice, std::int32_t number) {
        const std::string command = choice.inOrder ? word : word + (" " + std::to_string(number));
        lines_.add(depth_, command, linesInQuotes(choice.text.options[static_cast<std::size_t>(number) - 1]));
        choice.written = number;
    }

    void aCase(std::size_t i) {
        WrittenChoice& choice = choices_.at(blocks_.at(i)->begin);
        const std::int32_t number = choice.cases.at(i);
        while (choice.inOrder && choice.written + 1 < number) option("Option", choice, choice.written + 1);
        option("Fall", choice, number);
    }

    // The options that have no case and are not written yet.
    void endChoice(const Block& block) {
        WrittenChoice& choice = choices_.at(block.begin);
        std::set<std::int32_t> done;
        for (const auto& [index, number] : choice.cases) done.insert(number);
        ++depth_;
        for (std::int32_t k = choice.inOrder ? choice.written + 1 : 1;
             k <= static_cast<std::int32_t>(choice.text.options.size()); ++k)
            if (!done.contains(k)) option("Option", choice, k);
        --depth_;
    }

    const Skript& script_;
    Lines& lines_;
    int depth_;
    Blocks blocks_;
    std::vector<bool> raw_;
    std::vector<std::optional<std::vector<std::string>>> written_;  // behind each command, where it can be said so
    std::map<std::size_t, WrittenChoice> choices_;                  // by the index of the instruction
};

void writeScript(const std::string& head, const ScriptView& view, Lines& lines, int depth) {
    lines.add(depth, head);
    ScriptSource(view, lines, depth + 1).write();
}

void writeArea(const Maske& mask, Lines& lines) {
    const auto rectangles = fewestRectangles(mask);
    if (rectangles.empty()) return;
    lines.add(2, "Fläche");
    for (const Rect& rect : rectangles)
        lines.add(3, "Rechteck " + std::to_string(rect.x * Maskenzelle) + " " +
                         std::to_string(rect.y * Maskenzelle) + " " + std::to_string(rect.right() * Maskenzelle) +
                         " " + std::to_string(rect.bottom() * Maskenzelle));
}

void writeObject(const StoryRoom& room, std::size_t index, Lines& lines) {
    const RaumObjekt& object = room.room.Objekte[index];
    lines.gap();
    lines.add(1, "Objekt " + inQuotes(object.Name));
    if (!object.Zeiger.empty()) lines.add(2, "Zeiger " + inQuotes(object.Zeiger));
    if (!object.Aktiv) lines.add(2, "Inaktiv");
    writeArea(object.Maske, lines);
    for (std::size_t which = 0; which < object.Aktion.size(); ++which) {
        if (!object.HatSkript[which] && object.Aktion[which].Befehl.empty()) continue;
        writeScript(actionNames[which] + std::string(object.HatSkript[which] ? "" : " Aus"),
                    {object.Aktion[which], room.objects[index].action[which], &room, ScriptView::Role::action},
                    lines, 2);
    }
}

// An item's script file as its base name and the script's number; nothing if it is named in another way.
struct ItemName {
    Text base;
    std::size_t which = 0;
};

std::optional<ItemName> itemNameOf(const Text& file) {
    if (!file.ends_with(".skp") || file.size() <= extensionLength + 1) return std::nullopt;
    const char digit = file[file.size() - extensionLength - 1];
    if (digit < '0' || digit > '2') return std::nullopt;
    return ItemName{file.substr(0, file.size() - extensionLength - 1), static_cast<std::size_t>(digit - '0')};
}

Text pictureOf(const Text& base, const std::vector<Text>& pictures) {
    const auto fits = [&](const Text& name) {
        return name.size() == base.size() + extensionLength && name.find('.', 1) != Text::npos &&
               name.starts_with(base) && !lower(name).ends_with(".skp");
    };
    const auto found = std::find_if(pictures.begin(), pictures.end(), fits);
    return found == pictures.end() ? base + Text(usualPicture) : *found;
}

}  // namespace

std::string roomSource(const StoryRoom& room) {
    using Role = ScriptView::Role;
    Lines lines;
    lines.add(0, "Raum " + inQuotes(room.file));
    if (!room.room.Bild.empty()) lines.add(1, "Bild " + inQuotes(room.room.Bild));
    if (!room.room.Startskript.Befehl.empty()) {
        lines.gap();
        writeScript("Start", {room.room.Startskript, room.start, &room, Role::start}, lines, 1);
    }
    if (!room.room.CountDownSkript.Befehl.empty()) {
        lines.gap();
        writeScript("Countdown", {room.room.CountDownSkript, room.countDown, &room, Role::countDown}, lines, 1);
    }
    for (std::size_t i = 0; i < room.room.Objekte.size(); ++i) writeObject(room, i, lines);
    return lines.take();
}

std::string itemsSource(const std::vector<StoryScript>& scripts, const std::vector<Text>& itemPictures) {
    Lines lines;
    std::map<Text, std::map<std::size_t, const StoryScript*>> items;
    std::vector<const StoryScript*> others;
    for (const StoryScript& script : scripts) {
        if (const auto name = itemNameOf(script.file))
            items[name->base][name->which] = &script;
        else
            others.push_back(&script);
    }
    const auto write = [&](const std::string& head, const StoryScript& script, int depth) {
        writeScript(head, {script.script, script.places, nullptr, ScriptView::Role::item}, lines, depth);
    };
    for (const auto& [base, actions] : items) {
        lines.gap();
        lines.add(0, "Gegenstand " + inQuotes(pictureOf(base, itemPictures)));
        for (const auto& [which, script] : actions) write(actionNames[which], *script, 1);
    }
    for (const StoryScript* const script : others) {
        lines.gap();
        write("Skriptdatei " + inQuotes(script->file), *script, 0);
    }
    return lines.take();
}

std::vector<std::pair<std::string, std::string>> sourceFiles(const Story& story,
                                                             const std::vector<Text>& itemPictures) {
    std::vector<std::pair<std::string, std::string>> files;
    std::set<std::string> taken;
    const auto add = [&](std::string name, std::string text) {
        while (!taken.insert(toUtf8(lower(fromUtf8(name)))).second) name += '_';
        files.emplace_back(name + ".story", std::move(text));
    };
    for (const StoryRoom& room : story.rooms) {
        Text name = room.file.substr(0, room.file.size() - std::min(room.file.size(), extensionLength));
        std::replace(name.begin(), name.end(), '\\', '_');
        add(toUtf8(name), roomSource(room));
    }
    if (!story.scripts.empty()) add(itemsFile, itemsSource(story.scripts, itemPictures));
    return files;
}

}  // namespace zentrox::story
