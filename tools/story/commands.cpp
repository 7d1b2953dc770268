#include "tools/story/commands.h"

#include <algorithm>
#include <functional>
#include <iostream>
#include <map>
#include <optional>

#include "platform/error.h"
#include "tools/story/build.h"
#include "tools/story/parser.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view usage =
    R"(zentrox-story: schreibt, prüft und liest die Daten einer Geschichte.

  zentrox-story build QUELLE... --into VERZEICHNIS
      übersetzt Quellen (*.story, oder Verzeichnisse davon) in rooms/*.lsd und items/*.skp

Ende mit 0: nichts zu melden, 1: etwas gefunden, 2: so lässt es sich nicht aufrufen.
)";

// What the command line cannot mean. The text tells why.
struct WrongCall {
    std::string why;
};

// The words of one command: options by name, and the rest in order.
struct Call {
    std::vector<fs::path> words;
    std::map<std::string, std::string> options;  // those without a value have an empty one

    std::optional<fs::path> path(const std::string& option) const {
        const auto found = options.find(option);
        if (found == options.end()) return std::nullopt;
        return fs::path(found->second);
    }
};

struct OptionSpec {
    std::string_view name;
    bool hasValue;
};

Call parseCall(const std::vector<std::string>& arguments, const std::vector<OptionSpec>& specs) {
    Call call;
    bool optionsOver = false;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        if (optionsOver || !word.starts_with("--")) {
            call.words.emplace_back(word);
            continue;
        }
        if (word == "--") {
            optionsOver = true;
            continue;
        }
        const auto spec =
            std::find_if(specs.begin(), specs.end(), [&](const OptionSpec& s) { return s.name == word; });
        if (spec == specs.end()) throw WrongCall{"die Angabe " + word + " gibt es hier nicht"};
        if (spec->hasValue && i + 1 == arguments.size()) throw WrongCall{"hinter " + word + " fehlt ein Name"};
        call.options[word] = spec->hasValue ? arguments[++i] : "";
    }
    return call;
}

// Files as they are, directories as the sources that lie directly in them.
std::vector<fs::path> sourcesOf(const std::vector<fs::path>& words) {
    std::vector<fs::path> sources;
    for (const fs::path& word : words) {
        std::error_code error;
        if (!fs::exists(word, error)) throw WrongCall{"es gibt kein " + word.string()};
        if (!fs::is_directory(word, error)) {
            sources.push_back(word);
            continue;
        }
        std::vector<fs::path> inside;
        for (const auto& entry : fs::directory_iterator(word, error))
            if (entry.path().extension() == ".story" && entry.is_regular_file(error))
                inside.push_back(entry.path());
        if (inside.empty()) throw WrongCall{"in " + word.string() + " liegt keine Quelle (*.story)"};
        std::sort(inside.begin(), inside.end());
        sources.insert(sources.end(), inside.begin(), inside.end());
    }
    return sources;
}

int build(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    const Call call = parseCall(arguments, {{"--into", true}});
    const auto into = call.path("--into");
    if (call.words.empty()) throw WrongCall{"build braucht eine Quelle"};
    if (!into) throw WrongCall{"build braucht --into VERZEICHNIS"};
    Findings findings;
    SourceFiles files;
    const Story story = parseSources(sourcesOf(call.words), files, findings);
    findings.settle(story);
    if (findings.hasErrors()) {
        err << asLines(story, findings);
        return hasFindings;
    }
    for (const fs::path& path : writeStory(story, *into)) out << path.string() << "\n";
    return clean;
}

using Command = int (*)(const std::vector<std::string>&, std::ostream&, std::ostream&);

const std::map<std::string, Command>& commands() {
    static const std::map<std::string, Command> table{{"build", build}};
    return table;
}

}  // namespace

int run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    if (!arguments.empty() && (arguments[0] == "--help" || arguments[0] == "help")) {
        out << usage;
        return clean;
    }
    if (!arguments.empty() && arguments[0] == "--version") {
        out << "zentrox-story " << ZENTROX_VERSION << "\n";
        return clean;
    }
    try {
        if (arguments.empty()) throw WrongCall{"es fehlt, was zu tun ist"};
        const auto command = commands().find(arguments[0]);
        if (command == commands().end()) throw WrongCall{arguments[0] + " gibt es nicht"};
        return command->second(arguments, out, err);
    } catch (const WrongCall& call) {
        err << "zentrox-story: " << call.why << "\n\n" << usage;
    } catch (const fs::filesystem_error& error) {
        err << "zentrox-story: " << error.path1().string() << ": " << error.code().message() << "\n";
    } catch (const DataError& error) {
        err << "zentrox-story: " << toUtf8(error.message()) << "\n";
    }
    return wrongCall;
}

}  // namespace zentrox::story
