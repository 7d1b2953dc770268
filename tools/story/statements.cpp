#include "tools/story/statements.h"

#include <algorithm>
#include <array>

#include "tools/story/writer.h"

namespace zentrox::story {

namespace {

constexpr std::size_t shortestItem = 5;  // a character, and the four of an extension

// What begins a comment elsewhere.
constexpr std::array<TextView, 5> foreignComments{"#", "--", ";", "/*", "'"};

bool isPlainFile(const Token& name, Findings& findings) {
    if (name.value.find_first_of("\\/:") == Text::npos && name.value.find('\0') == Text::npos) return true;
    findings.broken(name.place, "name", "hier steht ein Dateiname ohne Verzeichnis, nicht " + shown(name.value));
    return false;
}

}  // namespace

bool noWords(const Statement& s, Findings& findings) {
    if (s.size() == 1) return true;
    findings.broken(s[1].place, "argument",
                    "hinter " + shown(s[0].value) + " steht nichts weiter; hier steht " + shown(s[1].value));
    return false;
}

bool oneName(const Statement& s, Findings& findings) {
    if (s.size() != 2) {
        findings.broken(
            s.size() < 2 ? s[0].place : s[2].place, "argument",
            "hinter " + shown(s[0].value) + " steht genau ein Name; hat er Leerzeichen, dann in Anführungszeichen");
        return false;
    }
    if (writable(s[1].value)) return true;
    findings.broken(s[1].place, "zeichen",
                    "ein Name kann kein Anführungszeichen enthalten; richtig ist er ohne, oder mit „ und “");
    return false;
}

bool isRoomFile(const Token& name, Findings& findings) {
    const Text path = lower(name.value);
    const bool outside = path.find("..") != Text::npos || path.find(':') != Text::npos || path.starts_with('\\') ||
                         path.find('\0') != Text::npos;
    if (path.size() > 4 && path.ends_with(".lsd") && !outside) return true;
    findings.broken(name.place, "name",
                    "ein Raum heißt wie seine Datei, etwa \"Start.lsd\"; hier steht " + shown(name.value));
    return false;
}

bool isItemPicture(const Token& name, Findings& findings) {
    if (!isPlainFile(name, findings)) return false;
    if (name.value.size() >= shortestItem && name.value.find('.', 1) != Text::npos) return true;
    findings.broken(name.place, "name",
                    "ein Gegenstand heißt wie die Datei seines Bildes, etwa \"schluessel.bmp\"; hier steht " +
                        shown(name.value));
    return false;
}

bool isScriptFile(const Token& name, Findings& findings) {
    if (!isPlainFile(name, findings)) return false;
    if (lower(name.value).ends_with(".skp")) return true;
    findings.broken(name.place, "name", "eine Skriptdatei endet auf .skp; hier steht " + shown(name.value));
    return false;
}

std::string unknownWord(TextView word, const std::vector<Text>& known) {
    const bool comment = std::any_of(foreignComments.begin(), foreignComments.end(),
                                     [&](TextView mark) { return word.starts_with(mark); });
    const std::string why = shown(word) + " ist kein Befehl";
    if (comment) return why + "; ein Kommentar beginnt mit //";
    const std::string hint = perhaps(word, known);
    return why + (hint.empty() ? "; alle Befehle zeigt \"zentrox-story opcodes\"" : hint);
}

}  // namespace zentrox::story
