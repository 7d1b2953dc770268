#include "author/editor.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <string_view>

namespace zentrox::author {

namespace {

struct Convention {
    std::string_view name;  // of the program, without its directory
    std::string_view form;  // %l the line, %f the file, words apart
    bool inTerminal = false;
};

constexpr std::array conventions{
    Convention{"vi", "+%l %f", true},
    Convention{"vim", "+%l %f", true},
    Convention{"nvim", "+%l %f", true},
    Convention{"nano", "+%l %f", true},
    Convention{"micro", "+%l %f", true},
    Convention{"kak", "+%l %f", true},
    Convention{"joe", "+%l %f", true},
    Convention{"ne", "+%l %f", true},
    Convention{"hx", "%f:%l", true},
    Convention{"helix", "%f:%l", true},
    Convention{"gvim", "+%l %f"},
    Convention{"emacs", "+%l %f"},
    Convention{"emacsclient", "+%l %f"},
    Convention{"gedit", "+%l %f"},
    Convention{"gnome-text-editor", "+%l %f"},
    Convention{"xed", "+%l %f"},
    Convention{"pluma", "+%l %f"},
    Convention{"mousepad", "-l %l %f"},
    Convention{"geany", "-l %l %f"},
    Convention{"kate", "-l %l %f"},
    Convention{"kwrite", "-l %l %f"},
    Convention{"code", "--goto %f:%l"},
    Convention{"codium", "--goto %f:%l"},
    Convention{"code-oss", "--goto %f:%l"},
    Convention{"subl", "%f:%l"},
    Convention{"zed", "%f:%l"},
};

std::vector<std::string> wordsOf(const char* text) {
    std::vector<std::string> words;
    std::istringstream in(text != nullptr ? text : "");
    for (std::string word; in >> word;) words.push_back(word);
    return words;
}

std::string filled(std::string word, const std::string& file, const std::string& line) {
    for (const auto& [mark, value] : {std::pair{"%f", file}, std::pair{"%l", line}})
        if (const std::size_t at = word.find(mark); at != std::string::npos) word.replace(at, 2, value);
    return word;
}

}  // namespace

std::vector<std::string> editorCommand(const char* visual, const char* editor, const std::filesystem::path& file,
                                       int line) {
    std::vector<std::string> command = wordsOf(visual);
    if (command.empty()) command = wordsOf(editor);
    if (command.empty()) return {"xdg-open", file.string()};
    const std::string name = std::filesystem::path(command.front()).filename().string();
    const auto known = std::find_if(conventions.begin(), conventions.end(),
                                    [&](const Convention& convention) { return convention.name == name; });
    const bool isKnown = known != conventions.end();
    // What is not known opens the file, at whatever line.
    for (const std::string& word : wordsOf(isKnown ? std::string(known->form).c_str() : "%f"))
        command.push_back(filled(word, file.string(), std::to_string(line)));
    if (isKnown && known->inTerminal) command.insert(command.begin(), {"x-terminal-emulator", "-e"});
    return command;
}

}  // namespace zentrox::author
