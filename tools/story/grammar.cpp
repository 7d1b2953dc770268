#include "tools/story/grammar.h"

#include <algorithm>
#include <map>

#include "tools/story/writer.h"

namespace zentrox::story {

namespace {

constexpr char lineMark = '#';
constexpr char fieldMark = ',';
constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);

// clang-format off
constexpr std::array forms{
    Form{Arg::none,          0, 1, "",                        "kein Argument",                              "Nothing."},
    Form{Arg::flag,          1, 1, "MERKER",                  "einen Merker",                               "The name of a flag; case does not matter."},
    Form{Arg::sound,         1, 1, "\"DATEI\"",               "eine Tondatei",                              "A file in `sounds`; if it is not there, the same name with mp3 or wav."},
    Form{Arg::text,          1, anyNumber, "\"ZEILE\" ...",   "einen Text in Anführungszeichen",            "A text, each line in quotes, on as many lines of the source as you like; `$` and a digit 0 to F at the start of a line is its colour."},
    Form{Arg::room,          1, 1, "\"RAUM.lsd\"",            "eine Raumdatei",                             "A file in `rooms`; directories below it are allowed."},
    Form{Arg::picture,       0, 1, "[\"DATEI\"]",             "höchstens eine Bilddatei",                   "A file in `graphics`."},
    Form{Arg::item,          1, 1, "\"BILD.bmp\"",            "die Bilddatei eines Gegenstands",            "The picture of an item in `items`."},
    Form{Arg::itemName,      1, 1, "GEGENSTAND",              "den Namen eines Gegenstands",                "An item: the name of its picture without extension; case does not matter."},
    Form{Arg::video,         1, 1, "\"DATEI\"",               "eine Filmdatei",                             "A file in `movies`."},
    Form{Arg::objectPointer, 2, 2, "\"OBJEKT\" \"ZEIGER.ico\"", "ein Objekt und eine Zeigerdatei",          "An object of this room, and a pointer icon in `cursors`."},
    Form{Arg::rectangle,     4, 4, "X1 Y1 X2 Y2",             "vier Zahlen: X1 Y1 X2 Y2",                   "Two corners in pixels of the picture, which is 640 by 480."},
    Form{Arg::object,        1, 1, "\"OBJEKT\"",              "ein Objekt des Raums",                       "An object of this room; case does not matter, blanks do."},
    Form{Arg::music,         0, 1, "[\"DATEI\"]",             "höchstens eine Musikdatei",                  "A file in `musics`."},
    Form{Arg::number,        1, 1, "ZAHL",                    "eine Zahl",                                  "A number, which may be negative."},
    Form{Arg::portrait,      2, 2, "links|rechts \"DATEI\"",  "links oder rechts und eine Bilddatei",       "Which frame (1 and 2 mean the same), and a file in `graphics`."},
    Form{Arg::choice,        1, anyNumber, "\"FRAGE\" ...",   "eine Frage in Anführungszeichen",            "The question, lines as in a text."},
    Form{Arg::option,        1, anyNumber, "\"ANTWORT\" ...", "den Text der Möglichkeit in Anführungszeichen", "The option's text, lines as in a text."},
    Form{Arg::game,          2, 3, "SPIEL MERKER [PARAMETER]", "ein Spiel, einen Merker und vielleicht einen Parameter", "A game, which is {}; the flag that tells the outcome; for `PRÜGEL` perhaps `zaubertrank`."},
    Form{Arg::label,         1, 1, "MARKE",                   "den Namen einer Marke",                      "The name of a label in this script."},
    Form{Arg::word,          1, 1, "WORT",                    "ein Wort: Open, Save, Abspann oder Ende",    "`Open`, `Save` or `Abspann`, exactly so; any other word closes the room window."},
    Form{Arg::seconds,       1, 1, "SEKUNDEN",                "eine Zahl von Sekunden",                     "Seconds, with a point for fractions; 0 switches it off."},
    Form{Arg::fade,          1, 1, "weiß|zurück",             "weiß oder zurück",                           "To white or back from it; 1 and 2 mean the same."},
};
// clang-format on

// Words that stand for the numbers 1 and 2 in the first field of an argument.
struct WordNumbers {
    Arg arg;
    TextView one;
    TextView two;
};
constexpr std::array wordNumbers{
    WordNumbers{Arg::portrait, "links", "rechts"},
    WordNumbers{Arg::fade, "weiß"_t, "zurück"_t},
};

const WordNumbers* wordNumbersOf(Arg arg) {
    const auto found = std::find_if(wordNumbers.begin(), wordNumbers.end(), [&](auto& w) { return w.arg == arg; });
    return found == wordNumbers.end() ? nullptr : &*found;
}

bool isNumeric(Arg arg) {
    return arg == Arg::number || arg == Arg::seconds;
}

std::string commandName(const Opcode& opcode) {
    return "\"" + toUtf8(opcode.name) + "\"";
}

Text fieldOf(Arg arg, const Token& word) {
    const WordNumbers* const numbers = wordNumbersOf(arg);
    if (!numbers || word.quoted) return word.value;
    const Text name = normalised(word.value);
    return name == normalised(numbers->one) ? "1" : name == normalised(numbers->two) ? "2" : word.value;
}

// A command that ends or divides a block may keep a text that nobody reads, as some files have it.
bool mayKeepText(const Opcode& opcode) {
    return opcode.role == Role::divides || opcode.role == Role::closes;
}

bool rightCount(const Opcode& opcode, Place command, std::span<const Token> words, Findings& findings) {
    const Form& form = formOf(opcode.arg);
    if (opcode.arg == Arg::none && words.size() == 1 && !(words[0].quoted && mayKeepText(opcode))) {
        findings.broken(words[0].place, "argument", commandName(opcode) + " braucht kein Argument");
        return false;
    }
    if (words.size() >= form.least && words.size() <= form.most) return true;
    const Place place = words.size() > form.most ? words[form.most].place : command;
    std::string message = commandName(opcode) + " braucht " + form.needs + ", hier steht " +
                          (words.empty()               ? "nichts"
                           : words.size() < form.least ? "zu wenig"
                                                       : "zu viel");
    if (isNumeric(opcode.arg) && words.size() == 2)
        message += "; Brüche schreibt man mit einem Punkt";
    else if (form.most == 1 && words.size() > 1)
        message += "; mit Leerzeichen steht es in Anführungszeichen";
    findings.broken(place, "argument", message);
    return false;
}

bool isBareWord(TextView text) {
    const auto fits = [](char c) {
        return (c >= '0' && c <= '9') || (lower(c) >= 'a' && lower(c) <= 'z') || c == '_' || c == '.' || c == '-' ||
               (static_cast<unsigned char>(c) >= 0xC0 && c != '\xD7' && c != '\xF7');
    };
    return !text.empty() && std::all_of(text.begin(), text.end(), fits);
}

std::vector<Text> split(TextView text, char mark) {
    std::vector<Text> parts;
    while (true) {
        const std::size_t end = text.find(mark);
        parts.emplace_back(text.substr(0, end));
        if (end == TextView::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

bool takesBareWord(Arg arg, std::size_t field) {
    switch (arg) {
        case Arg::flag:
        case Arg::itemName:
        case Arg::label:
        case Arg::word:
        case Arg::number:
        case Arg::seconds:
        case Arg::rectangle:
        case Arg::fade:
        case Arg::game: return true;
        case Arg::portrait: return field == 0;
        default: return false;
    }
}

// A number that stands there with blanks, say, is none that an author would write.
bool plainNumbers(const Opcode& opcode, const std::vector<Text>& fields) {
    const bool numbers = isNumeric(opcode.arg) || opcode.arg == Arg::rectangle || opcode.arg == Arg::fade;
    return !numbers || std::all_of(fields.begin(), fields.end(), isBareWord);
}

std::string writtenFields(const Opcode& opcode, const std::vector<Text>& fields) {
    const WordNumbers* const numbers = wordNumbersOf(opcode.arg);
    std::string out;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (i > 0) out += ' ';
        if (numbers && i == 0 && (fields[0] == "1" || fields[0] == "2"))
            out += toUtf8(fields[0] == "1" ? numbers->one : numbers->two);
        else
            out += takesBareWord(opcode.arg, i) ? bareOrQuoted(fields[i]) : inQuotes(fields[i]);
    }
    return out;
}

// What is written must come back as it was; a word that means a number, or a count of fields that differs, does
// not.
bool comesBack(const Opcode& opcode, const std::string& written, TextView argument) {
    Findings findings;
    std::vector<Silence> silences;
    const auto statements = scan(toUtf8(opcode.name) + " " + written, 0, findings, silences);
    const std::span<const Token> words(statements.front());
    const auto compiled = compileArgument(opcode, {}, words.subspan(1), findings);
    return findings.empty() && compiled && *compiled == argument;
}

}  // namespace

std::span<const Form> allForms() {
    return forms;
}

const Form& formOf(Arg arg) {
    return *std::find_if(forms.begin(), forms.end(), [&](const Form& form) { return form.arg == arg; });
}

Text normalised(TextView word) {
    constexpr std::array<std::pair<char, TextView>, 4> spelled{
        {{"ä"_t[0], "ae"}, {"ö"_t[0], "oe"}, {"ü"_t[0], "ue"}, {"ß"_t[0], "ss"}}};
    Text out;
    out.reserve(word.size() + 2);
    for (const char c : word) {
        if (static_cast<unsigned char>(c) < 0x80) {
            out += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
            continue;
        }
        const char small = lower(c);
        const auto umlaut = std::find_if(spelled.begin(), spelled.end(), [&](auto& s) { return s.first == small; });
        if (umlaut == spelled.end())
            out += small;
        else
            out += umlaut->second;
    }
    return out;
}

const Opcode* commandNamed(TextView word) {
    static const auto byName = [] {
        std::map<Text, const Opcode*, std::less<>> names;
        for (const Opcode& opcode : opcodes()) names[normalised(opcode.name)] = &opcode;
        return names;
    }();
    const auto found = byName.find(normalised(word));
    return found == byName.end() ? nullptr : found->second;
}

std::optional<Text> compileArgument(const Opcode& opcode, Place command, std::span<const Token> words,
                                    Findings& findings) {
    if (opcode.arg == Arg::text) return compileText(opcode.name, command, words, findings);
    if (!rightCount(opcode, command, words, findings)) return std::nullopt;
    Text argument;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const Text field = i == 0 ? fieldOf(opcode.arg, words[i]) : words[i].value;
        if (formOf(opcode.arg).most > 1 && field.find(fieldMark) != Text::npos) {
            findings.broken(words[i].place, "argument",
                            shown(field) + " enthält ein Komma; bei " + commandName(opcode) +
                                " trennt das Komma die Angaben, in einer Angabe kann es nicht stehen");
            return std::nullopt;
        }
        if (i > 0) argument += fieldMark;
        argument += field;
    }
    if (!writable(argument)) {
        findings.broken(command, "zeichen", "ein Anführungszeichen kann an dieser Stelle nicht gespeichert werden");
        return std::nullopt;
    }
    return argument;
}

std::optional<Text> compileText(TextView command, Place place, std::span<const Token> words, Findings& findings) {
    if (words.empty()) {
        findings.broken(place, "argument", "\"" + toUtf8(command) + "\" braucht einen Text in Anführungszeichen");
        return std::nullopt;
    }
    Text text;
    for (const Token& word : words) {
        if (!word.quoted) {
            findings.broken(word.place, "argument",
                            "ein Text steht in geraden Anführungszeichen; hier steht " + shown(word.value));
            return std::nullopt;
        }
        if (const auto mark = word.value.find(lineMark); mark != Text::npos)
            findings.warning(
                word.place, "raute",
                "das Zeichen # ist im Spiel ein Zeilenende und nicht zu sehen; jede Zeile steht in eigenen "
                "Anführungszeichen");
        if (&word != &words.front()) text += lineMark;
        text += word.value;
    }
    if (writable(text)) return text;
    findings.broken(place, "zeichen", "ein Anführungszeichen kann in diesem Text nicht gespeichert werden");
    return std::nullopt;
}

std::vector<Place> linePlaces(std::span<const Token> words) {
    std::vector<Place> places;
    for (const Token& word : words) {
        const auto marks = std::count(word.value.begin(), word.value.end(), lineMark);
        places.insert(places.end(), static_cast<std::size_t>(marks) + 1, word.place);
    }
    return places;
}

std::optional<std::vector<std::string>> writtenArgument(const Opcode& opcode, TextView argument) {
    if (opcode.arg == Arg::choice || opcode.arg == Arg::option) return std::nullopt;
    if (opcode.arg == Arg::text) return linesInQuotes(argument);
    const Form& form = formOf(opcode.arg);
    const auto fields = form.most > 1 ? split(argument, fieldMark) : std::vector{Text(argument)};
    if (!plainNumbers(opcode, fields)) return std::nullopt;
    const bool nothing = argument.empty() && form.least == 0;
    const std::string written = nothing ? std::string() : writtenFields(opcode, fields);
    if (!comesBack(opcode, written, argument)) return std::nullopt;
    return std::vector{written};
}

std::string bareOrQuoted(TextView text) {
    return isBareWord(text) ? toUtf8(text) : inQuotes(text);
}

std::string inQuotes(TextView text) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    std::string out;
    bool open = false;
    const auto turn = [&](bool on) {
        if (open != on) out += '"';
        open = on;
    };
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool numbered =
            byte < ' ' || byte == 0x7F || c == '"' || (byte >= 0x80 && toUnicode(c) == byte && byte < 0xA0);
        turn(!numbered);
        if (numbered)
            out += std::string("{") + hex[byte >> 4U] + hex[byte & 0xFU] + "}";
        else
            out += toUtf8(TextView(&c, 1));
    }
    if (out.empty()) return "\"\"";
    turn(false);
    return out;
}

std::vector<std::string> linesInQuotes(TextView text) {
    std::vector<std::string> lines;
    for (const Text& line : split(text, lineMark)) lines.push_back(inQuotes(line));
    return lines;
}

}  // namespace zentrox::story
