#include "tools/completion/completion.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <sstream>

namespace zentrox {

namespace {

struct Word {
    std::string text;  // with its dashes
    std::string help;
    std::string value;  // what stands behind it, empty if nothing does
    bool wantsDirectory = false;
};

struct Command {
    std::string name;  // empty for the program itself
    std::string help;
    std::vector<Word> words;
    bool wantsDirectory = false;  // of the words that are no options
    std::vector<Word> others;
};

bool namesDirectory(const CLI::Option& option) {
    const std::string told = option.get_type_name() + option.get_name(true) + option.get_description();
    constexpr std::array signs{"DIR", "directory", "erzeichnis"};
    return std::any_of(signs.begin(), signs.end(),
                       [&](const char* sign) { return told.find(sign) != std::string::npos; });
}

std::string valueOf(const CLI::Option& option) {
    if (option.get_items_expected_max() == 0) return "";
    const std::string type = option.get_type_name();
    return type.empty() ? "TEXT" : type;
}

std::string replaced(std::string text, const std::string& mark, const std::string& instead) {
    for (std::size_t i = text.find(mark); i != std::string::npos; i = text.find(mark, i + instead.size()))
        text.replace(i, mark.size(), instead);
    return text;
}

Command commandOf(const CLI::App& app, const std::string& name) {
    Command command{name, app.get_description(), {}, false, {}};
    for (const CLI::Option* const option : app.get_options()) {
        if (option->get_positional() && option->get_lnames().empty()) {
            command.wantsDirectory = command.wantsDirectory || namesDirectory(*option);
            command.others.push_back({option->get_name(true), option->get_description(), "", false});
            continue;
        }
        if (option->get_group().empty()) continue;
        for (const std::string& word : option->get_lnames())
            command.words.push_back(
                {"--" + word, option->get_description(), valueOf(*option), namesDirectory(*option)});
    }
    return command;
}

// The program first, then its commands.
std::vector<Command> commandsOf(const CLI::App& app) {
    std::vector<Command> commands{commandOf(app, "")};
    for (const CLI::App* const sub : app.get_subcommands([](const CLI::App*) { return true; }))
        commands.push_back(commandOf(*sub, sub->get_name()));
    return commands;
}

std::string listed(const Command& command) {
    std::string all;
    for (const Word& word : command.words) all += (all.empty() ? "" : " ") + word.text;
    return all;
}

std::string namesOf(const std::vector<Command>& commands) {
    std::string all;
    for (std::size_t i = 1; i < commands.size(); ++i) all += (i == 1 ? "" : " ") + commands[i].name;
    return all;
}

// --- bash

std::string bash(const std::string& program, const std::vector<Command>& commands) {
    const std::string function = "_" + replaced(program, "-", "_");
    std::string script =
        "# Completion of " + program + " for bash.\n" + function + "() {\n" +
        "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} command= i\n" +
        "    for ((i = 1; i < COMP_CWORD; i++)); do\n" +
        "        case ${COMP_WORDS[i]} in -*) ;; *) command=${COMP_WORDS[i]}; break ;; esac\n" +
        "    done\n    COMPREPLY=()\n    compopt -o filenames 2>/dev/null\n" + "    case $command:$before in\n";
    for (const Command& command : commands)
        for (const Word& word : command.words)
            if (!word.value.empty())
                script += "        " + (command.name.empty() ? "*" : command.name) + ":" + word.text +
                          ") COMPREPLY=($(compgen -" + (word.wantsDirectory ? "d" : "f") +
                          " -- \"$word\")); return ;;\n";
    script += "    esac\n    case $command in\n";
    for (std::size_t i = 1; i < commands.size(); ++i)
        script += "        " + commands[i].name + ") [[ $word == -* ]] && COMPREPLY=($(compgen -W '" +
                  listed(commands[i]) + "' -- \"$word\")) || COMPREPLY=($(compgen -" +
                  (commands[i].wantsDirectory ? "d" : "f") + " -- \"$word\")) ;;\n";
    script += "        *) if [[ $word == -* ]]; then COMPREPLY=($(compgen -W '" + listed(commands[0]) +
              "' -- \"$word\")); else COMPREPLY=($(compgen " +
              (commands.size() > 1 ? "-W '" + namesOf(commands) + "'" : std::string("-f")) +
              " -- \"$word\")); fi ;;\n";
    return script + "    esac\n}\ncomplete -F " + function + " " + program + "\n";
}

// --- zsh

// Within single quotes and brackets.
std::string zshText(const std::string& text) {
    std::string quoted = replaced(replaced(text, "'", "'\\''"), "[", "\\[");
    return replaced(replaced(quoted, "]", "\\]"), ":", "\\:");
}

std::string zshArguments(const Command& command) {
    std::string arguments = "_arguments";
    for (const Word& word : command.words) {
        arguments += " \\\n            '*" + word.text + "[" + zshText(word.help) + "]";
        if (!word.value.empty()) arguments += word.wantsDirectory ? ":directory:_files -/" : ":file:_files";
        arguments += "'";
    }
    return arguments + " \\\n            '*:file:_files" + (command.wantsDirectory ? " -/" : "") + "'";
}

std::string zsh(const std::string& program, const std::vector<Command>& commands) {
    std::string script = "#compdef " + program + "\n";
    if (commands.size() == 1) return script + zshArguments(commands[0]) + "\n";
    script += "local -a commands\ncommands=(\n";
    for (std::size_t i = 1; i < commands.size(); ++i)
        script += "    '" + commands[i].name + ":" + zshText(commands[i].help) + "'\n";
    script += ")\nif (( CURRENT == 2 )); then\n    _describe command commands\n";
    for (const Word& word : commands[0].words) script += "    compadd -- " + word.text + "\n";
    script += "else\n    local chosen=$words[2]\n    shift words\n    (( CURRENT-- ))\n    case $chosen in\n";
    for (std::size_t i = 1; i < commands.size(); ++i)
        script += "        " + commands[i].name + ") " + zshArguments(commands[i]) + " ;;\n";
    return script + "    esac\nfi\n";
}

// --- fish

std::string fishText(const std::string& text) {
    return "'" + replaced(replaced(text, "\\", "\\\\"), "'", "\\'") + "'";
}

std::string fish(const std::string& program, const std::vector<Command>& commands) {
    std::string script = "# Completion of " + program + " for fish.\n";
    const std::string start = "complete -c " + program;
    for (std::size_t i = 1; i < commands.size(); ++i)
        script += start + " -f -n __fish_use_subcommand -a " + commands[i].name + " -d " +
                  fishText(commands[i].help) + "\n";
    for (const Command& command : commands)
        for (const Word& word : command.words) {
            script += start;
            if (!command.name.empty()) script += " -n '__fish_seen_subcommand_from " + command.name + "'";
            script += " -l " + word.text.substr(2) + " -d " + fishText(word.help);
            if (!word.value.empty())
                script += word.wantsDirectory ? " -x -a '(__fish_complete_directories)'" : " -r";
            script += "\n";
        }
    return script;
}

// --- mdoc

// As long as its letters are when each that is not ASCII is written out.
std::size_t written(const std::string& word) {
    constexpr std::size_t codedByte = 4;  // a letter of two bytes becomes eight
    const auto coded = std::count_if(word.begin(), word.end(), [](char c) { return (c & 0x80) != 0; });
    return word.size() + static_cast<std::size_t>(coded) * (codedByte - 1);
}

// A line of the source has at most 80 bytes and must not look like a request.
std::string manText(const std::string& text) {
    constexpr std::size_t longestLine = 78;
    std::istringstream words(replaced(replaced(text, "\\", "\\e"), "-", "\\-"));
    std::string lines;
    std::size_t length = 0;
    for (std::string word; words >> word; length += written(word) + 1) {
        if (length + written(word) > longestLine) length = 0;
        if (!lines.empty()) lines += length == 0 ? '\n' : ' ';
        if (length == 0 && (word.front() == '.' || word.front() == '\'')) lines += "\\&";
        lines += word;
    }
    return lines;
}

std::string manList(const Command& command) {
    if (command.words.empty() && command.others.empty()) return "";
    std::string list = ".Bl -tag -width Ds\n";
    for (const Word& word : command.others) list += ".It Ar " + word.text + "\n" + manText(word.help) + "\n";
    for (const Word& word : command.words)
        list += ".It Fl Fl " + word.text.substr(2) + (word.value.empty() ? "" : " Ar " + word.value) + "\n" +
                manText(word.help) + "\n";
    return list + ".El\n";
}

std::string man(const std::string& /*program*/, const std::vector<Command>& commands) {
    std::string text = manList(commands[0]);
    for (std::size_t i = 1; i < commands.size(); ++i)
        text += ".Ss " + commands[i].name + "\n" + manText(commands[i].help) + "\n" + manList(commands[i]);
    return text;
}

struct Form {
    const char* name;
    std::string (*write)(const std::string&, const std::vector<Command>&);
};
constexpr std::array forms{Form{"bash", bash}, Form{"zsh", zsh}, Form{"fish", fish}, Form{"man", man}};

}  // namespace

std::string wordsFor(const CLI::App& app, const std::string& whom) {
    const auto* const known =
        std::find_if(forms.begin(), forms.end(), [&](const Form& f) { return whom == f.name; });
    return known == forms.end() ? "" : known->write(app.get_name(), commandsOf(app));
}

void addWordsFor(CLI::App& app) {
    const auto print = [&app](const std::string& whom) {
        const std::string words = wordsFor(app, whom);
        if (words.empty()) throw CLI::ValidationError("--words-for", "there are none for " + whom);
        std::cout << words;
        throw CLI::Success();
    };
    app.add_option_function<std::string>("--words-for", print)->group("")->trigger_on_parse();
}

}  // namespace zentrox
