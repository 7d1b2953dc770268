#include "tools/probe/walk.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <sstream>

#include "engine/language/games.h"
#include "platform/values/keys.h"
#include "tools/probe/verbs.h"

namespace zentrox::probe {

namespace {

struct Word {
    std::string text;
    bool quoted = false;
};

[[noreturn]] void fail(const std::string& place, const std::string& expected, const std::string& found) {
    throw WalkError(place + ": expected " + expected + ", found " + found);
}

// Cuts a line into words; a word that begins with # ends it.
std::vector<Word> split(const std::string& line, const std::string& place) {
    std::vector<Word> words;
    std::size_t at = 0;
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
    for (;;) {
        while (at < line.size() && blank(line[at])) ++at;
        if (at == line.size() || line[at] == '#') return words;
        if (line[at] == '"') {
            const std::size_t close = line.find('"', at + 1);
            if (close == std::string::npos) fail(place, "a closing quote", "the end of the line");
            words.push_back({line.substr(at + 1, close - at - 1), true});
            at = close + 1;
            if (at < line.size() && !blank(line[at])) fail(place, "a blank behind a quoted word", line.substr(at));
        } else {
            const std::size_t begin = at;
            while (at < line.size() && !blank(line[at])) ++at;
            words.push_back({line.substr(begin, at - begin), false});
        }
    }
}

struct ConditionForm {
    const char* kind;
    const char* words;
};

constexpr std::array conditionForms{
    ConditionForm{"idle", ""},  ConditionForm{"window", "f"},  ConditionForm{"title", "w"},
    ConditionForm{"text", "w"}, ConditionForm{"flag", "w"},    ConditionForm{"item", "w"},
    ConditionForm{"room", "w"}, ConditionForm{"evil", "n"},    ConditionForm{"choice", ""},
    ConditionForm{"ended", ""}, ConditionForm{"pixel", "nnx"},
};

bool isColour(const std::string& word) {
    return word.size() == 6 &&
           std::all_of(word.begin(), word.end(), [](unsigned char c) { return std::isxdigit(c) != 0; });
}

bool isWindow(const std::string& word) {
    static constexpr std::array others{"Menu",  "Form1",  "Dialog",  "MsgBox",  // and those of the comforts
                                       "Frage", "WasWar", "Verlauf", "Einstellungen", "Tasten"};
    const auto games = Spiele();
    return std::find(others.begin(), others.end(), word) != others.end() ||
           std::any_of(games.begin(), games.end(),
                       [name = fromUtf8(word)](const SpielArt& game) { return game.fenster == name; });
}

bool fits(char letter, const Word& word) {
    switch (letter) {
        case 'f': return isWindow(word.text);
        case 'q': return word.quoted;
        case 'n': return !word.quoted && isNumber(word.text);
        case 'b': return word.text == "left" || word.text == "right" || word.text == "middle";
        case 'k': return keyCode(word.text) != 0;
        case 'x': return isColour(word.text);
        case 'i': return !word.quoted && word.text == "item";
        default: return true;
    }
}

bool fit(const std::string& letters, const std::vector<Word>& words) {
    if (letters == "*")
        return std::all_of(words.begin(), words.end(), [](const Word& word) { return word.quoted; });
    if (letters.size() != words.size()) return false;
    for (std::size_t i = 0; i < words.size(); ++i)
        if (!fits(letters[i], words[i])) return false;
    return true;
}

std::string spell(const std::vector<Word>& words) {
    std::string out;
    for (const Word& word : words) {
        if (!out.empty()) out += ' ';
        out += word.quoted ? '"' + word.text + '"' : word.text;
    }
    return out.empty() ? "nothing" : out;
}

Condition parseCondition(std::vector<Word> words, const std::string& place) {
    Condition condition;
    condition.spelled = spell(words);
    while (!words.empty() && !words.front().quoted && words.front().text == "not") {
        condition.negated = !condition.negated;
        words.erase(words.begin());
    }
    if (words.empty()) fail(place, "a condition", condition.spelled);
    condition.kind = words.front().text;
    words.erase(words.begin());
    for (const ConditionForm& form : conditionForms) {
        if (condition.kind != form.kind || !fit(form.words, words)) continue;
        for (Word& word : words) condition.words.push_back(std::move(word.text));
        return condition;
    }
    if (condition.kind == "window" && !words.empty()) fail(place, "the name of a window", words[0].text);
    fail(place, "a condition", condition.spelled);
}

// `until` may close with a number of milliseconds that does not belong to the condition.
void takeCondition(Command& command, std::vector<Word> words, const std::string& place) {
    if (command.verb->name == std::string("say") && words.size() == 1 &&
        (words[0].text == "state" || words[0].text == "controls" || words[0].text == "pointer")) {
        command.words.push_back(words[0].text);
        return;
    }
    if (command.verb->name == std::string("until") && words.size() > 1 && !words.back().quoted &&
        isNumber(words.back().text)) {
        std::vector<Word> shorter(words.begin(), words.end() - 1);
        try {
            command.condition = parseCondition(shorter, place);
            command.words.push_back(words.back().text);
            return;
        } catch (const WalkError&) {
            // The number belongs to the condition, as in `until evil 3`.
        }
    }
    command.condition = parseCondition(std::move(words), place);
}

Command parseLine(std::vector<Word> words, int line, const std::string& place) {
    Command command;
    command.line = line;
    const std::string name = words.front().text;
    const std::string spelled = spell(words);
    words.erase(words.begin());
    for (const Verb& verb : verbs()) {
        if (name != verb.name) continue;
        command.verb = &verb;
        if (std::string(verb.words) == "c") {
            takeCondition(command, std::move(words), place);
            return command;
        }
        if (!fit(verb.words, words)) continue;
        for (Word& word : words) command.words.push_back(std::move(word.text));
        return command;
    }
    fail(place, command.verb != nullptr ? command.verb->shown : "a command", spelled);
}

}  // namespace

bool isNumber(const std::string& word) {
    int value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    return error == std::errc{} && end == word.data() + word.size();
}

int keyCode(const std::string& name) {
    struct Named {
        const char* name;
        int code;
    };
    static constexpr std::array keys{
        Named{"space", key::space},
        Named{"enter", key::enter},
        Named{"escape", key::escape},
        Named{"tab", key::tab},
        Named{"home", key::home},
        Named{"pageup", key::pageUp},
        Named{"pagedown", key::pageDown},
        Named{"backspace", key::backspace},
        Named{"delete", key::del},
        Named{"end", key::end},
        Named{"up", key::up},
        Named{"down", key::down},
        Named{"left", key::left},
        Named{"right", key::right},
        Named{"comma", key::comma},
        Named{"period", key::period},
        Named{"shift", key::shift},
        Named{"control", key::control},
        Named{"alt", key::alt},
    };
    if (name.size() == 1 && name[0] >= 'a' && name[0] <= 'z') return name[0] - 'a' + 'A';
    if (name.size() == 1 && name[0] >= '0' && name[0] <= '9') return name[0];
    for (const Named& known : keys)
        if (name == known.name) return known.code;
    for (int n = 1; n <= 12; ++n)
        if (name == "f" + std::to_string(n)) return key::f1 + n - 1;
    return 0;
}

char keyCharacter(const std::string& name) {
    if (name.size() == 1) return name[0];
    if (name == "space") return ' ';
    if (name == "comma") return ',';
    if (name == "period") return '.';
    const int code = keyCode(name);
    const bool control = code == key::enter || code == key::escape || code == key::backspace || code == key::tab;
    return control ? static_cast<char>(code) : '\0';
}

Walk parseWalk(const std::string& name, const std::string& text) {
    Walk walk;
    walk.name = name;
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    std::istringstream lines(text.rfind(mark, 0) == 0 ? text.substr(mark.size()) : text);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        const std::string place = name + ":" + std::to_string(number);
        auto words = split(line, place);
        if (!words.empty()) walk.commands.push_back(parseLine(std::move(words), number, place));
    }
    return walk;
}

}  // namespace zentrox::probe
